// Compares the built library with golden/boundary.txt: the contract with hosts compiled earlier.

#include "Tests/Boundary/CameraTest.h"
#include "Tests/Operations/Published.h"

#include <cxxabi.h>
#include <dlfcn.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <set>
#include <sstream>
#include <type_traits>
#include <typeinfo>

using namespace SDK4;
using namespace SDK4::Control;

namespace Test {

namespace {

std::vector<std::string> LinesOf(const std::string& command) {
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::vector<std::string> lines;
    char line[8192];
    while (pipe != nullptr && std::fgets(line, sizeof line, pipe.get()) != nullptr) {
        lines.push_back(std::string(line, std::strcspn(line, "\n")));
    }
    return lines;
}

/// A line of nm: address, kind, demangled name.
struct Symbol {
    explicit Symbol(const std::string& line) {
        std::istringstream stream(line);
        stream >> std::hex >> address >> kind >> std::ws;
        std::getline(stream, name);
    }
    std::uintptr_t address = 0;
    char kind = '?';
    std::string name;
};

/// "GetGain" for SDK4::Control::KGain::GetGain() and for a thunk to it.
std::string FunctionName(std::string name) {
    const std::string anonymous = "(anonymous namespace)";
    for (std::size_t at; (at = name.find(anonymous)) != std::string::npos;) {
        name.erase(at, anonymous.size());
    }
    name.erase(std::min(name.find('('), name.size()));
    return name.substr(name.rfind(':') + 1);
}

/// The function names of one module.
class FunctionNames {
public:
    explicit FunctionNames(const void* withinModule) {
        Dl_info module{};
        dladdr(withinModule, &module);
        base = reinterpret_cast<std::uintptr_t>(module.dli_fbase);
        for (const std::string& line : LinesOf("nm -C --defined-only '" + std::string(module.dli_fname) + "'")) {
            const Symbol symbol(line);
            if (std::string("tTwWi").find(symbol.kind) != std::string::npos) {
                names[symbol.address] = FunctionName(symbol.name);
            }
        }
    }

    /// Empty if the address is not a function of the module.
    std::string At(const void* address) const {
        const auto found = names.find(reinterpret_cast<std::uintptr_t>(address) - base);
        return found == names.end() ? "" : found->second;
    }

private:
    std::uintptr_t base = 0;
    std::map<std::uintptr_t, std::string> names;
};

template <typename T> std::string NameOf() {
    const std::unique_ptr<char, void (*)(void*)> name(abi::__cxa_demangle(typeid(T).name(), nullptr, nullptr, nullptr),
                                                      std::free);
    return name.get();
}

/// The entry of a slot. Reading past the last one is intended: it finds no function there.
__attribute__((no_sanitize("address"))) void* Entry(void** slot) { return *slot; }

/// The operations in slot order. The table of an implementation continues with its destructor or ends.
template <typename Interface> std::string SlotsOf(Interface& object) {
    void** slot = *reinterpret_cast<void***>(&object);
    static std::map<void*, FunctionNames> modules;
    Dl_info module{};
    dladdr(slot, &module);
    const FunctionNames& functions = modules.try_emplace(module.dli_fbase, slot).first->second;
    std::string line = "slots " + NameOf<Interface>() + ":";
    for (std::string name; !(name = functions.At(Entry(slot))).empty() && name[0] != '~'; ++slot) {
        line += " " + name;
    }
    return line;
}

/// Lines in any order. The tests print missing and surplus lines.
using Lines = std::set<std::string>;

Lines Without(Lines lines, const Lines& others) {
    std::erase_if(lines, [&](const std::string& line) { return others.contains(line); });
    return lines;
}

template <typename... Records> Lines Sizes() {
    return {"size " + NameOf<Records>() + ": " + std::to_string(sizeof(Records))...};
}

/// Functions and interfaces by name, and exported data other than type information.
Lines Exports() {
    const std::string type = "typeinfo for ", typeName = "typeinfo name for ";
    Lines lines;
    for (const std::string& line : LinesOf("nm -DC --defined-only '" + std::string(Plugin::Path()) + "'")) {
        const Symbol symbol(line);
        if (std::string("TWi").find(symbol.kind) != std::string::npos) {
            lines.insert("export " + symbol.name);
        } else if (symbol.name.starts_with(type)) {
            lines.insert("slots " + symbol.name.substr(type.size()));
        } else if (!symbol.name.starts_with(typeName)) {
            lines.insert("data " + symbol.name);
        }
    }
    return lines;
}

/// The file without its comments.
Lines Golden() {
    Lines lines;
    std::ifstream file(QDV12_GOLDEN_FILE);
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line[0] != '#') {
            lines.insert(line);
        }
    }
    return lines;
}

} // namespace

class GoldenTest : public CameraTest {
protected:
    const Camera orvik = Open();
    const Camera m2vx{plugin, State::m2vxModel, &port};
};

TEST_F(GoldenTest, BoundaryIsUnchanged) {
    const Lines golden = Golden();
    Registry registry;
    Lines built = Sizes<SDK4_KAREA, SDK4_KSIZE, SDK4_KRGB, SDK4_KPOSITION, SDK4_KSTYLE, SDK4_KOVERLAYSIZE,
                        SDK4_KEXPOSURE, SDK4_KBINNING, SDK4_KVERSION, SDK4_KREVISION, SDK4_KCIRCULARPOSITION,
                        SDK4_KMWCIRCLE, SDK4_KDEFECTPIXEL, SDK4_KDEFECTPIXELSELECT, SDK4_KDEVICESELECT, SDK4_AFE_SELECT,
                        SDK4_AFE_PARAM, X4Error, SDK4_ENUM_COLORCODING>();
    built.insert({SlotsOf<IModelRegistry>(registry), SlotsOf<IControlPort>(port), SlotsOf(*orvik.Object())});
    ForEachOperation([&]<typename Owner, typename Operation>(const char*, Operation Owner::*) {
        using Interface = std::conditional_t<std::is_same_v<Owner, IMediaType>, IVideoFrame, Owner>; // derives from it
        for (const Camera* camera : {&orvik, &m2vx}) {
            if (Has<Interface>(*camera->Object())) {
                built.insert(SlotsOf(Part<Interface>(*camera->Object())));
            }
        }
    });
    // An exported interface must have its slots in the file, from which ForEachOperation is generated.
    for (const std::string& line : Exports()) {
        const auto slots = golden.lower_bound(line + ":");
        const bool known = slots != golden.end() && slots->starts_with(line + ":");
        if (!known && line != "slots SDK4::X4Error" && line != "slots SDK4::IMediaType") {
            built.insert(line);
        }
    }
    EXPECT_EQ(Without(built, golden), Lines{}) << "built, but missing in " << QDV12_GOLDEN_FILE;
    EXPECT_EQ(Without(golden, built), Lines{}) << "not built, but listed in " << QDV12_GOLDEN_FILE;
}

TEST_F(GoldenTest, EveryOperationHasARowInEveryFamilyThatHasIt) {
    Lines rows, published;
    for (const Operation& row : Operations()) {
        rows.insert(row.name.substr(0, row.name.find(' ')));
    }
    ForEachOperation([&]<typename Interface, typename Operation>(const std::string& name, Operation Interface::*) {
        if (Has<Interface>(*orvik.Object())) {
            published.insert(name);
        }
        if (Has<Interface>(*m2vx.Object())) {
            published.insert("M2VX::" + name);
        }
    });
    EXPECT_EQ(Without(published, rows), Lines{}) << "have no row in Tests/Operations";
    EXPECT_EQ(Without(rows, published), Lines{}) << "have a row in Tests/Operations, but no camera has them";
}

TEST_F(GoldenTest, LoggingComesFromTheHost) {
    const auto needed = LinesOf("readelf -d '" + std::string(Plugin::Path()) + "' | grep NEEDED");
    EXPECT_FALSE(needed.empty());
    for (const std::string& line : needed) {
        EXPECT_EQ(line.find("log4cxx"), std::string::npos) << line;
    }
}

} // namespace Test
