#include "Simulation/Faults.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace Simulation {

namespace {

/// A whole text as a number: decimal, or hexadecimal after "0x".
std::optional<std::int64_t> ParseNumber(std::string_view text) {
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    const bool hexadecimal = text.starts_with("0x");
    text.remove_prefix(hexadecimal ? 2 : 0);
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return negative ? -std::int64_t{number} : std::int64_t{number};
}

/// "kind:register" or "kind:register=number", taken apart.
struct Order {
    std::string text;
    std::string kind;
    std::string target;
    std::optional<std::int64_t> number;
};

Order Parse(std::string_view text) {
    Order order{std::string(text), {}, {}, {}};
    const auto colon = order.text.find(':');
    const auto equals = order.text.find('=', colon == std::string::npos ? 0 : colon);
    order.kind = order.text.substr(0, colon);
    if (colon != std::string::npos) {
        order.target = order.text.substr(colon + 1, equals == std::string::npos ? equals : equals - colon - 1);
    }
    if (equals != std::string::npos) {
        order.number = ParseNumber(std::string_view(order.text).substr(equals + 1));
        if (!order.number) {
            throw FaultError("fault \"" + order.text + "\": what stands behind = is not a number");
        }
    }
    return order;
}

std::int64_t NumberOf(const Order& order) {
    if (!order.number) {
        throw FaultError("fault \"" + order.text + "\": " + order.kind + " needs a number, as in \"" + order.kind +
                         ":" + (order.target.empty() ? "gain" : order.target) + "=1\"");
    }
    return *order.number;
}

/// The register that the order names, or whose address it gives; null for an address that no register has.
const Register* Target(const Order& order, const RegisterSpace& space) {
    if (const Register* const named = space.Find(order.target)) {
        return named;
    }
    const auto number = ParseNumber(order.target);
    if (!number || *number < 0) {
        throw FaultError("fault \"" + order.text + "\": this camera has no register \"" + order.target + "\"");
    }
    return space.At(static_cast<std::uint32_t>(*number));
}

const std::string& NameOf(const Order& order, const RegisterSpace& space) {
    const Register* const target = Target(order, space);
    if (target == nullptr) {
        throw FaultError("fault \"" + order.text + "\": no register of this camera begins at " + order.target);
    }
    return target->name;
}

const std::string& SettingOf(const Order& order, const RegisterSpace& space) {
    const std::string& name = NameOf(order, space);
    if (space.Find(name)->role != Role::Setting) {
        throw FaultError("fault \"" + order.text + "\": no settings set holds " + name);
    }
    return name;
}

const std::string& ModeOf(const Order& order, const RegisterSpace& space, const std::set<std::string>& automatics) {
    const std::string& name = NameOf(order, space);
    if (!automatics.contains(name)) {
        std::string known;
        for (const std::string& mode : automatics) {
            known += (known.empty() ? "" : ", ") + mode;
        }
        throw FaultError("fault \"" + order.text + "\": " + name + " is no automatic mode; this camera has " + known);
    }
    return name;
}

std::pair<std::uint64_t, std::uint64_t> ExtentOf(const Order& order, const RegisterSpace& space) {
    if (const Register* const target = Target(order, space)) {
        const Instance& instance = target->powerUp.instances.front();
        const std::uint64_t bytes = instance.selector.size() + instance.value.size();
        return {target->address, target->address + bytes - 1};
    }
    const auto address = static_cast<std::uint32_t>(*ParseNumber(order.target));
    if (!space.HasAddresses(address, sizeof address)) {
        throw FaultError("fault \"" + order.text + "\": this camera has no address " + order.target);
    }
    return {address, std::uint64_t{address} + sizeof address - 1};
}

} // namespace

void Faults::Plant(std::string_view text, const RegisterSpace& space, const std::set<std::string>& automatics) {
    const Order order = Parse(text);
    if (order.number && order.kind != "clamp" && order.kind != "offset") {
        throw FaultError("fault \"" + order.text + "\": only clamp and offset take a number");
    }
    if (order.kind == "fail" || order.kind == "failread" || order.kind == "failwrite") {
        const auto [first, last] = ExtentOf(order, space);
        failing.push_back({first, last, order.kind != "failwrite", order.kind != "failread"});
    } else if (order.kind == "null") {
        mute.insert(static_cast<std::uint32_t>(ExtentOf(order, space).first));
    } else if (order.kind == "ignore") {
        ignored.insert(NameOf(order, space));
    } else if (order.kind == "stale") {
        stale.insert(SettingOf(order, space));
    } else if (order.kind == "endless") {
        endless[ModeOf(order, space, automatics)] = false;
    } else if (order.kind == "clamp") {
        highest[NameOf(order, space)] = NumberOf(order);
    } else if (order.kind == "offset") {
        offset[NameOf(order, space)] = NumberOf(order);
    } else {
        throw FaultError("fault \"" + order.text + "\": there is no kind \"" + order.kind +
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
