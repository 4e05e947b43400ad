// docs/generated/port-accesses.md: what every row of the table of operations costs, measured. The document is written
// by this test when QDV12_RENEW is set, and compared otherwise.

#include "Tests/Boundary/Rows.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

namespace Test {

namespace {

const char* const introduction = R"(# Port accesses

The accesses to the host's port that each operation makes. A test records them and compares them with this document. To
write the document again:

    cmake --build --preset release --target port-accesses

| Text | Access | Text | Access |
|---|---|---|---|
| `r 0014` | `ReadRegister` | `w 0D04=1500` | `WriteRegister` |
| `R 14010000/4` | `ReadMem` of 4 bytes | `W 14010000=511` | `WriteMem` |
| `rp 0A030000` | `ReadRegisterPair` | `wp 0A030000=1,2` | `WriteRegisterPair` |
| `rb 17020000/12` | `ReadBlock` of 12 bytes | `wb 17020000=0,1,2` | `WriteBlock` |
| `rs 0200/512` | `ReadString` | `ws 00E8/16=name` | `WriteString` |

Addresses are hexadecimal, values are decimal words. The words after the name of an operation describe the arguments or
the state of the camera ("above": a value above the range). The code in brackets is the error of the call.

- "Cached" and "Uncached" are two controls (camera index: Orvik 0 and 2, M2VX 3 and 0).
- "Again" is the same call, repeated at once.
- "-" is no access, "same" repeats the cell to the left.
- "Noticed by" lists the getters of the cached control that the call affects. Those of Orvik read the camera the next
  time, those of M2VX return another value. "All but" is followed by the getters that are not affected.
)";

std::string Code(const std::string& text) { return "`" + text + "`"; }

/// Cells of one line; the same text as to the left becomes a word.
std::string Cells(const std::vector<std::string>& accesses) {
    std::string line;
    const std::string* left = nullptr;
    for (const std::string& text : accesses) {
        line += text.empty() ? " - |" : left != nullptr && *left == text ? " same |" : " " + Code(text) + " |";
        left = &text;
    }
    return line;
}

template <typename Names> std::string Joined(const Names& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ", ") + name;
    }
    return text;
}

/// The lines of one text that are not in the other, each behind a sign.
std::string Missing(const std::string& sign, const std::string& text, const std::string& other) {
    std::vector<std::string> known = Split(other, "\n");
    std::sort(known.begin(), known.end());
    std::string missing;
    for (const std::string& line : Split(text, "\n")) {
        if (!std::binary_search(known.begin(), known.end(), line)) {
            missing += sign + line + "\n";
        }
    }
    return missing;
}

} // namespace

class PortAccessTest : public CameraTest {
protected:
    std::string Document();
    std::string Opening(const char* family, const State& state);
    std::string Family(bool ofM2VX);
    struct Cost {
        std::string outcome;
        std::vector<std::string> accesses;
    };
    Cost CostOf(const Operation& row);
    std::string Interface(const std::string& name, const std::vector<const Operation*>& rows);
    std::string Noticing(const Operation& row);

    /// A camera that has had no call yet.
    template <typename Call> auto OnNewCamera(const Call& call) {
        port = {};
        return call();
    }
};

/// The getters that notice a call, the shorter of two lists.
std::string PortAccessTest::Noticing(const Operation& row) {
    const auto [outcome, valid, affected] = OnNewCamera([&] { return EffectOf(row); });
    if (affected.empty() || 2 * affected.size() <= valid.size()) {
        return affected.empty() ? "-" : Joined(affected);
    }
    std::vector<std::string> untouched, beyond;
    std::set_difference(valid.begin(), valid.end(), affected.begin(), affected.end(), std::back_inserter(untouched));
    std::set_difference(affected.begin(), affected.end(), valid.begin(), valid.end(), std::back_inserter(beyond));
    return "all but " + Joined(untouched) + (beyond.empty() ? "" : "; besides " + Joined(beyond));
}

/// What a row's call costs: cached, again, uncached, again.
PortAccessTest::Cost PortAccessTest::CostOf(const Operation& row) {
    Cost cost;
    for (const int index : {row.state.CachedIndex(), row.state.UncachedIndex()}) {
        OnNewCamera([&] {
            const Camera camera = Open(row.state, index);
            for (int repetition = 0; repetition < 2; ++repetition) {
                Observation observed = Observe(camera, row.call);
                cost.accesses.push_back(std::move(observed.accesses));
                cost.outcome = std::move(observed.outcome);
            }
        });
    }
    return cost;
}

std::string PortAccessTest::Interface(const std::string& name, const std::vector<const Operation*>& rows) {
    std::string table;
    std::vector<std::string> withoutAccess;
    for (const Operation* row : rows) {
        const auto [outcome, accesses] = CostOf(*row);
        std::string operation = WithoutInterface(row->name);
        if (IsError(outcome)) {
            operation += " (" + outcome.substr(std::string("SDK4_ERR_").size()) + ")";
        }
        const std::string noticing = Noticing(*row);
        if (noticing == "-" && accesses == std::vector<std::string>(accesses.size())) {
            withoutAccess.push_back(operation);
        } else {
            table += "| " + operation + " |" + Cells(accesses) + " " + noticing + " |\n";
        }
    }
    std::string text = "\n### " + name + "\n";
    if (!table.empty()) {
        text += "\n| Operation | Cached | Again | Uncached | Again | Noticed by |\n|---|---|---|---|---|---|\n" + table;
    }
    if (!withoutAccess.empty()) {
        text += "\nWithout access: " + Joined(withoutAccess) + ".\n";
    }
    return text;
}

/// The accesses of CreateObject, counted by register in the order in which the registers come.
std::string PortAccessTest::Opening(const char* family, const State& state) {
    std::string text;
    for (const int index : {state.CachedIndex(), state.UncachedIndex()}) {
        OnNewCamera([&] {
            Prepare(port, state);
            const Camera camera(plugin, state.model, &port, index);
        });
        std::istringstream log(port.TakeLog());
        std::vector<std::string> order;
        std::map<std::string, int> count;
        int all = 0;
        for (std::string access; std::getline(log >> std::ws, access, ';'); ++all) {
            access.resize(std::min(access.find_first_of("=/"), access.size()));
            if (count[access]++ == 0) {
                order.push_back(access);
            }
        }
        for (std::string& access : order) {
            const int times = count[access];
            access = Code(access) + (times > 1 ? " x " + std::to_string(times) : "");
        }
        text += std::string("| ") + family + " | " + std::to_string(index) + " | " + std::to_string(all) + " | " +
                (order.empty() ? "-" : Joined(order)) + " |\n";
    }
    return text;
}

std::string PortAccessTest::Family(bool ofM2VX) {
    std::vector<std::string> order;
    std::map<std::string, std::vector<const Operation*>> rows;
    for (const Operation& row : Operations()) {
        if (row.state.IsM2VX() != ofM2VX) {
            continue;
        }
        std::string name = InterfaceOf(row.name);
        if (ofM2VX) {
            name.erase(0, std::string("M2VX::").size());
        }
        if (rows[name].empty()) {
            order.push_back(name);
        }
        rows[name].push_back(&row);
    }
    std::string text;
    for (const std::string& name : order) {
        text += Interface(name, rows[name]);
    }
    return text;
}

std::string PortAccessTest::Document() {
    return std::string(introduction) +
           "\n## Opening\n\nLogging is off. With the logger at debug level the ten network registers of an Orvik "
           "camera are read too, for the log.\nThe M2VX camera has one pair of defect pixels in use; with index 3 "
           "each pair adds four accesses.\n\n| Family | Index | Accesses | By register, in the order of the first "
           "access |\n|---|---|---|---|\n" +
           Opening("Orvik", {}) + Opening("M2VX", OnM2VX()) + "\n## Orvik\n" + Family(false) + "\n## M2VX\n" +
           Family(true);
}

TEST_F(PortAccessTest, TheDocumentTellsWhatEveryOperationCosts) {
#ifdef QDV12_SANITIZED
    GTEST_SKIP() << "the release build measures; the sanitizers see the same calls in OperationTest";
#endif
    const std::string measured = Document();
    if (std::getenv("QDV12_RENEW") != nullptr) {
        std::ofstream(QDV12_PORT_ACCESSES) << measured;
        return;
    }
    std::stringstream document;
    document << std::ifstream(QDV12_PORT_ACCESSES).rdbuf();
    if (document.str() != measured) {
        FAIL() << Missing("-", document.str(), measured) << Missing("+", measured, document.str())
               << "docs/generated/port-accesses.md is out of date. If the change is meant, renew it:\n"
                  "    cmake --build --preset release --target port-accesses";
    }
}

} // namespace Test
