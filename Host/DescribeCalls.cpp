#include "Host/DescribeCalls.h"

#include "Common/Number.h"
#include "Common/Text.h"
#include "Host/Describe.h"

namespace Host {

namespace {

/// "read 0x14010000"
std::vector<std::string> Describe(const std::vector<Access>& accesses) {
    std::vector<std::string> texts;
    texts.reserve(accesses.size());
    for (const Access& access : accesses) {
        texts.push_back((access.write ? "write " : "read ") + Common::Hex(access.address));
    }
    return texts;
}

/// "1, then 0"
std::string Counts(const Calls& calls) {
    const std::string first = std::to_string(calls.first.size());
    const std::string again = std::to_string(calls.again.size());
    return first == again ? first : first + ", then " + again;
}

Json CountsToJson(const Calls& calls) {
    return Json(
        Json::List{static_cast<std::int64_t>(calls.first.size()), static_cast<std::int64_t>(calls.again.size())});
}

Json CostsToJson(const std::optional<CallCosts>& costs) {
    if (!costs) {
        return {};
    }
    Json accesses(Json::List{});
    for (const std::string& access : Describe(costs->uncached.first)) {
        accesses.Add(Json(access));
    }
    return {
        {"accesses", accesses}, {"uncached", CountsToJson(costs->uncached)}, {"cached", CountsToJson(costs->cached)}};
}

} // namespace

std::string DescribeCosts(const CallCosts& costs) {
    if (costs.uncached.first.empty()) {
        return "no access";
    }
    const std::string uncached = Counts(costs.uncached);
    const std::string cached = Counts(costs.cached);
    return uncached + (uncached == "1" ? " access (" : " accesses (") + Common::Join(Describe(costs.uncached.first)) +
           ')' + (cached == uncached ? "" : "; cached " + cached);
}

std::string DescribeCaching(const CallTrace& trace) {
    if (!trace.get || trace.get->uncached.first.empty()) {
        return "";
    }
    const auto& [uncached, cached] = *trace.get;
    if (!cached.again.empty()) {
        return "none, read each time";
    }
    std::string text = cached.first.empty() ? "read when the camera is opened" : "read once";
    text += trace.refreshers.empty() ? "" : ", and again after one of these is set: ";
    for (const std::string_view name : trace.refreshers) {
        text += (name == trace.refreshers.front() ? "" : ", ") + std::string(name);
    }
    text += trace.readWhileLocked ? "; each time while locked" : "";
    return text + (uncached.again.empty() ? "; also with index 2" : "; each time with index 2");
}

void AddCalls(Json& document, const CallTrace& trace) {
    const auto address = trace.Register();
    document.Add("register", TextOrNull(address ? Common::Hex(*address) : ""));
    document.Add("get", CostsToJson(trace.get));
    document.Add("set", CostsToJson(trace.set));
    document.Add("cache", TextOrNull(DescribeCaching(trace)));
}

} // namespace Host
