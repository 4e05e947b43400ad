#include "Simulation/FaultKinds.h"

#include "Simulation/Cameras.h"

#include <string_view>

namespace Simulation {

std::span<const FaultKind> FaultKinds() {
    // clang-format off
    static constexpr FaultKind kinds[] = {
        {"clamp",     "clamp:gain=400",    "Limit each written word to 400"},
        {"endless",   "endless:agc",       "Do not stop the automatic mode once it was on"},
        {"fail",      "fail:0x14010000",   "Fail, of the register or the four bytes at that address"},
        {"failread",  "failread:gain",     "Fail when it is read"},
        {"failwrite", "failwrite:gain",    "Fail when it is written"},
        {"ignore",    "ignore:gain",       "Ignore writes to the register; do not execute a command"},
        {"null",      "null:measurewindow", "Return no block when it is read"},
        {"offset",    "offset:gain=1",     "Add 1 to each written word, even past its limit; may be negative"},
        {"stale",     "stale:gain",        "Do not load the register with a settings set"},
    };
    // clang-format on
    return kinds;
}

std::string DescribeFaultKinds() {
    std::string lines = "Faults:\n";
    for (const FaultKind& kind : FaultKinds()) {
        const std::string name = std::string("  ") + kind.example;
        lines += name + std::string(30 - name.size(), ' ') + kind.about + '\n';
    }
    return lines;
}

std::vector<std::string> FaultsFor(const std::string& begun, const std::string& model) {
    std::vector<std::string> faults;
    const auto camera = begun.find(':') == std::string::npos ? nullptr : MakeCamera(model);
    for (const FaultKind& kind : FaultKinds()) {
        const std::string beginning = std::string(kind.name) + ':';
        const bool takesNumber = std::string_view(kind.example).find('=') != std::string_view::npos;
        if (camera == nullptr) {
            faults.push_back(beginning);
            continue;
        }
        for (const std::string& name : camera->Registers().Names()) {
            faults.push_back(beginning + name + (takesNumber ? "=" : ""));
        }
    }
    return faults;
}

} // namespace Simulation
