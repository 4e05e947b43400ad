// Holds the built library to golden/boundary.txt: what a host that was compiled earlier relies on.

#include "Tests/Boundary/CameraTest.h"

#include <cxxabi.h>
#include <dlfcn.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <set>
#include <sstream>
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

    /// Empty for an address that is no function of the module.
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

/// What stands in a slot. The look past the last one is meant; it finds no function there.
__attribute__((no_sanitize("address"))) void* Entry(void** slot) { return *slot; }

/// The operations in the order of their slots. The table of an implementation continues with its destructor or ends.
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
    return line + "\n";
}

template <typename... Interfaces> std::string SlotsOfCamera(const Camera& camera) {
    return (SlotsOf(Part<Interfaces>(*camera.Object())) + ...);
}

template <typename... Records> std::string Sizes() {
    return (("size " + NameOf<Records>() + ": " + std::to_string(sizeof(Records)) + "\n") + ...);
}

/// Functions by name; type information of public types is expected, anything else stands out as data.
std::string Exports() {
    std::string text;
    for (const std::string& line : LinesOf("nm -DC --defined-only '" + std::string(Plugin::Path()) + "'")) {
        const Symbol symbol(line);
        if (std::string("TWi").find(symbol.kind) != std::string::npos) {
            text += "export " + symbol.name + "\n";
        } else if (!symbol.name.starts_with("typeinfo ")) {
            text += "data " + symbol.name + "\n";
        }
    }
    return text;
}

struct Registry final : IModelRegistry {
    void RegisterModel(const char*, const char*) override {}
};

/// The file without its comments.
std::string Golden() {
    std::ifstream file(QDV12_GOLDEN_FILE);
    std::string text;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line[0] != '#') {
            text += line + "\n";
        }
    }
    return text;
}

} // namespace

class GoldenTest : public CameraTest {
protected:
    /// The interfaces that both families have.
    const std::set<std::string> ofBoth{"IControl",       "IStreamControl", "IDSMediaType",  "IVideoFrame",
                                       "IGigECamera",    "IGufi",          "ISignalFormat", "IBasicSettings",
                                       "IInternalTests", "ILookUpTable",   "IMemory",       "IDigitalEnhancement"};
};

TEST_F(GoldenTest, BoundaryIsUnchanged) {
    const Camera camera = Open();
    const Camera m2vx(plugin, State::m2vxModel, &port);
    Registry registry;
    const std::string built =
        Exports() + SlotsOf<IModelRegistry>(registry) + SlotsOf<IControlPort>(port) +
        SlotsOfCamera<IDynamicObject, IControl, IStreamControl, IDSMediaType, IVideoFrame, IGigEVisionPort, IGigECamera,
                      IGain, ISignalFormat, ISlowScan, ITiming, IDigitalEnhancement, IACC, IColor, IOverlay, IGufi,
                      IExposure, IRoa, ISignalAnalysis, IInternalTests, IBasicSettings, IBinning, ILookUpTable,
                      ITrigger, IMemory, IGPIO>(camera) +
        SlotsOfCamera<IPropertyState, IPropertyList, M2VX::IExposure, M2VX::IGain, M2VX::IOverlay,
                      M2VX::IImageCorrection, M2VX::ISignalAnalysis, M2VX::IABC, M2VX::IDefectPixel,
                      M2VX::IMotorControl, M2VX::ILensControl>(m2vx) +
        Sizes<SDK4_KAREA, SDK4_KSIZE, SDK4_KRGB, SDK4_KPOSITION, SDK4_KSTYLE, SDK4_KOVERLAYSIZE, SDK4_KEXPOSURE,
              SDK4_KBINNING, SDK4_KVERSION, SDK4_KREVISION, SDK4_KCIRCULARPOSITION, SDK4_KMWCIRCLE, SDK4_KDEFECTPIXEL,
              SDK4_KDEFECTPIXELSELECT, SDK4_KDEVICESELECT, SDK4_AFE_SELECT, SDK4_AFE_PARAM, X4Error,
              SDK4_ENUM_COLORCODING>();
    EXPECT_EQ(built, Golden()) << "the left side is what was built, the right side is " << QDV12_GOLDEN_FILE;
}

TEST_F(GoldenTest, EveryOperationHasARowInEveryFamilyThatHasIt) {
    std::set<std::string> rows, expected;
    for (const Operation& row : Operations()) {
        rows.insert(row.name.substr(0, row.name.find(' ')));
    }
    const std::set<std::string> notForTheTable{"IDynamicObject", "IModelRegistry", "SDK4::IControlPort"};
    std::istringstream golden(Golden());
    for (std::string line; std::getline(golden, line);) {
        std::istringstream words(line);
        std::string kind, interface;
        words >> kind >> interface;
        interface.pop_back();
        if (kind != "slots" || notForTheTable.contains(interface)) {
            continue;
        }
        interface.erase(0, interface.rfind(':') + 1);
        const bool ofM2VXOnly =
            line.find(" SDK4::Control::M2VX::") != std::string::npos || interface.starts_with("IProperty");
        for (std::string operation; words >> operation;) {
            if (!ofM2VXOnly) {
                expected.insert(interface + "::" + operation);
            }
            if (ofM2VXOnly || ofBoth.contains(interface)) {
                expected.insert("M2VX::" + interface + "::" + operation);
            }
        }
    }
    EXPECT_EQ(rows, expected);
}

TEST_F(GoldenTest, LoggingComesFromTheHost) {
    const auto needed = LinesOf("readelf -d '" + std::string(Plugin::Path()) + "' | grep NEEDED");
    EXPECT_FALSE(needed.empty());
    for (const std::string& line : needed) {
        EXPECT_EQ(line.find("log4cxx"), std::string::npos) << line;
    }
}

} // namespace Test
