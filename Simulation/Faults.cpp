#include "Simulation/Faults.h"

#include "Common/Number.h"
#include "Common/Text.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace Simulation {

namespace {

/// "kind:register" or "kind:register=number", taken apart.
struct FaultSpec {
    std::string text;
    std::string kind;
    std::string target;
    std::optional<std::int64_t> number;
};

[[noreturn]] void Refuse(const FaultSpec& spec, const std::string& reason) {
    throw FaultError("fault \"" + spec.text + "\": " + reason);
}

FaultSpec Parse(std::string_view text) {
    FaultSpec spec{std::string(text), {}, {}, {}};
    const auto colon = spec.text.find(':');
    const auto equals = spec.text.find('=', colon == std::string::npos ? 0 : colon);
    spec.kind = spec.text.substr(0, colon);
    if (colon != std::string::npos) {
        spec.target = spec.text.substr(colon + 1, equals == std::string::npos ? equals : equals - colon - 1);
    }
    if (equals != std::string::npos) {
        spec.number = Common::ParseNumber(std::string_view(spec.text).substr(equals + 1));
        if (!spec.number) {
            Refuse(spec, "what stands behind = is not a number");
        }
    }
    return spec;
}

std::int64_t NumberOf(const FaultSpec& spec) {
    if (!spec.number) {
        Refuse(spec, spec.kind + " needs a number, as in \"" + spec.kind + ":" +
                         (spec.target.empty() ? "gain" : spec.target) + "=1\"");
    }
    return *spec.number;
}

/// The register that the spec names, or whose address it gives; null for an address that no register has.
const Register* Target(const FaultSpec& spec, const RegisterSpace& space) {
    if (const Register* const named = space.Find(spec.target)) {
        return named;
    }
    const auto number = Common::ParseNumber(spec.target);
    if (!number || *number < 0) {
        Refuse(spec, "this camera has no register \"" + spec.target + "\"");
    }
    return space.At(static_cast<std::uint32_t>(*number));
}

const std::string& NameOf(const FaultSpec& spec, const RegisterSpace& space) {
    const Register* const target = Target(spec, space);
    if (target == nullptr) {
        Refuse(spec, "no register of this camera begins at " + spec.target);
    }
    return target->name;
}

const std::string& SettingOf(const FaultSpec& spec, const RegisterSpace& space) {
    const std::string& name = NameOf(spec, space);
    if (space.Find(name)->role != Role::Setting) {
        Refuse(spec, "no settings set holds " + name);
    }
    return name;
}

const std::string& ModeOf(const FaultSpec& spec, const RegisterSpace& space, const std::set<std::string>& automatics) {
    const std::string& name = NameOf(spec, space);
    if (!automatics.contains(name)) {
        Refuse(spec, name + " is no automatic mode; this camera has " + Common::Join(automatics));
    }
    return name;
}

std::pair<std::uint64_t, std::uint64_t> ExtentOf(const FaultSpec& spec, const RegisterSpace& space) {
    if (const Register* const target = Target(spec, space)) {
        return {target->address, std::uint64_t{target->address} + SizeOf(*target) - 1};
    }
    const auto address = static_cast<std::uint32_t>(*Common::ParseNumber(spec.target));
    if (!space.HasAddresses(address, sizeof address)) {
        Refuse(spec, "this camera has no address " + spec.target);
    }
    return {address, std::uint64_t{address} + sizeof address - 1};
}

} // namespace

void Faults::Inject(std::string_view text, const RegisterSpace& space, const std::set<std::string>& automatics) {
    const FaultSpec spec = Parse(text);
    if (spec.number && spec.kind != "clamp" && spec.kind != "offset") {
        Refuse(spec, "only clamp and offset take a number");
    }
    if (spec.kind == "fail" || spec.kind == "failread" || spec.kind == "failwrite") {
        const auto [first, last] = ExtentOf(spec, space);
        failing.push_back({first, last, spec.kind != "failwrite", spec.kind != "failread"});
    } else if (spec.kind == "null") {
        nullBlocks.insert(static_cast<std::uint32_t>(ExtentOf(spec, space).first));
    } else if (spec.kind == "ignore") {
        ignored.insert(NameOf(spec, space));
    } else if (spec.kind == "stale") {
        stale.insert(SettingOf(spec, space));
    } else if (spec.kind == "endless") {
        endless[ModeOf(spec, space, automatics)] = false;
    } else if (spec.kind == "clamp") {
        highest[NameOf(spec, space)] = NumberOf(spec);
    } else if (spec.kind == "offset") {
        offset[NameOf(spec, space)] = NumberOf(spec);
    } else {
        Refuse(spec, "there is no kind \"" + spec.kind +
                         "\", but clamp, endless, fail, failread, failwrite, ignore, null, offset, stale");
    }
}

void Faults::Check(const char* operation, bool writes, std::uint32_t address, std::size_t length) const {
    const std::uint64_t last = std::uint64_t{address} + std::max<std::size_t>(length, 1) - 1;
    for (const Extent& extent : failing) {
        if ((writes ? extent.writes : extent.reads) && address <= extent.last && last >= extent.first) {
            throw PortError(operation, address, "no answer from the camera");
        }
    }
}

bool Faults::Runs(const std::string& mode, bool on) {
    const auto found = endless.find(mode);
    if (found == endless.end()) {
        return on;
    }
    found->second = found->second || on;
    return found->second;
}

void Faults::Distort(const Register& entry, Words& words) const {
    const auto top = highest.find(entry.name);
    const auto shift = offset.find(entry.name);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::int64_t value = i < entry.limits.size() ? Number(words[i], entry.limits[i]) : words[i];
        if (top != highest.end()) {
            words[i] = static_cast<std::uint32_t>(std::min(value, top->second));
        }
        if (shift != offset.end()) {
            words[i] += static_cast<std::uint32_t>(shift->second);
        }
    }
}

} // namespace Simulation
