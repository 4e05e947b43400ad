#include "Simulation/Faults.h"

#include "Common/Number.h"
#include "Common/Text.h"
#include "Simulation/FaultKinds.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace Simulation {

namespace {

/// A parsed "kind:register" or "kind:register=number".
struct FaultRequest {
    std::string text;
    std::string kind;
    std::string target;
    std::optional<std::int64_t> number;
};

[[noreturn]] void Refuse(const FaultRequest& request, const std::string& reason) {
    throw FaultError("fault \"" + request.text + "\": " + reason);
}

FaultRequest Parse(std::string_view text) {
    FaultRequest request{std::string(text), {}, {}, {}};
    const auto colon = request.text.find(':');
    const auto equals = request.text.find('=', colon == std::string::npos ? 0 : colon);
    request.kind = request.text.substr(0, colon);
    if (colon != std::string::npos) {
        request.target = request.text.substr(colon + 1, equals == std::string::npos ? equals : equals - colon - 1);
    }
    if (equals != std::string::npos) {
        request.number = Common::ParseNumber(std::string_view(request.text).substr(equals + 1));
        if (!request.number) {
            Refuse(request, "the value after = is not a number");
        }
    }
    return request;
}

std::int64_t NumberOf(const FaultRequest& request) {
    if (!request.number) {
        Refuse(request, request.kind + " needs a number, as in \"" + request.kind + ":" +
                            (request.target.empty() ? "gain" : request.target) + "=1\"");
    }
    return *request.number;
}

/// The register of that name or address, or null for an address where no register begins.
const Register* Target(const FaultRequest& request, const RegisterSpace& space) {
    if (const Register* const named = space.Find(request.target)) {
        return named;
    }
    const auto number = Common::ParseNumber(request.target);
    if (!number || *number < 0) {
        Refuse(request, "this camera has no register \"" + request.target + "\"");
    }
    return space.At(static_cast<std::uint32_t>(*number));
}

const std::string& NameOf(const FaultRequest& request, const RegisterSpace& space) {
    const Register* const target = Target(request, space);
    if (target == nullptr) {
        Refuse(request, "no register of this camera begins at " + request.target);
    }
    return target->name;
}

const std::string& SettingOf(const FaultRequest& request, const RegisterSpace& space) {
    const std::string& name = NameOf(request, space);
    if (space.Find(name)->role != Role::Setting) {
        Refuse(request, "settings sets do not contain " + name);
    }
    return name;
}

const std::string& ModeOf(const FaultRequest& request, const RegisterSpace& space,
                          const std::set<std::string>& automatics) {
    const std::string& name = NameOf(request, space);
    if (!automatics.contains(name)) {
        Refuse(request, name + " is not an automatic mode, expected " + Common::Join(automatics));
    }
    return name;
}

std::pair<std::uint64_t, std::uint64_t> ExtentOf(const FaultRequest& request, const RegisterSpace& space) {
    if (const Register* const target = Target(request, space)) {
        return {target->address, std::uint64_t{target->address} + SizeOf(*target) - 1};
    }
    const auto address = static_cast<std::uint32_t>(*Common::ParseNumber(request.target));
    if (!space.HasAddresses(address, sizeof address)) {
        Refuse(request, "this camera has no address " + request.target);
    }
    return {address, std::uint64_t{address} + sizeof address - 1};
}

} // namespace

void Faults::Inject(std::string_view text, const RegisterSpace& space, const std::set<std::string>& automatics) {
    const FaultRequest request = Parse(text);
    if (request.number && request.kind != "clamp" && request.kind != "offset") {
        Refuse(request, "only clamp and offset take a number");
    }
    if (request.kind == "fail" || request.kind == "failread" || request.kind == "failwrite") {
        const auto [first, last] = ExtentOf(request, space);
        failing.push_back({first, last, request.kind != "failwrite", request.kind != "failread"});
    } else if (request.kind == "null") {
        nullBlocks.insert(static_cast<std::uint32_t>(ExtentOf(request, space).first));
    } else if (request.kind == "ignore") {
        ignored.insert(NameOf(request, space));
    } else if (request.kind == "stale") {
        stale.insert(SettingOf(request, space));
    } else if (request.kind == "endless") {
        endless[ModeOf(request, space, automatics)] = false;
    } else if (request.kind == "clamp") {
        highest[NameOf(request, space)] = NumberOf(request);
    } else if (request.kind == "offset") {
        offset[NameOf(request, space)] = NumberOf(request);
    } else {
        std::vector<std::string> names;
        for (const FaultKind& kind : FaultKinds()) {
            names.emplace_back(kind.name);
        }
        Refuse(request, "unknown kind \"" + request.kind + "\", expected " + Common::Join(names));
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
