#include "Host/Panel/TraceLog.h"

#include "Common/Number.h"
#include "Host/Format.h"

#include <algorithm>
#include <cmath>

namespace Host::Panel {

namespace {

constexpr std::size_t kept = 500; ///< accesses

} // namespace

void TraceLog::SetFollowed(bool follows) {
    followed = follows;
    if (!followed) {
        last.clear();
    }
}

void TraceLog::Add(const Access& access, double time) {
    ++count;
    lastAddress = access.address;
    if (!followed) {
        return;
    }
    const auto name = names.find(access.address);
    last.push_back({{"time", time},
                    {"write", access.write},
                    {"operation", access.operation},
                    {"address", Common::Hex(access.address)},
                    {"data", FormatBytes(access.data)},
                    {"failed", access.failed},
                    {"microseconds", std::int64_t{std::lround(access.microseconds)}},
                    {"name", name == names.end() ? "" : name->second},
                    {"call", call}});
    if (last.size() > kept) {
        last.pop_front();
    }
}

Json TraceLog::Since(std::uint64_t seen) const {
    const std::uint64_t fresh = std::min<std::uint64_t>(count - seen, last.size());
    Json accesses(Json::List{});
    for (auto access = last.end() - static_cast<std::ptrdiff_t>(fresh); access != last.end(); ++access) {
        accesses.Add(*access);
    }
    return {{"type", "trace"}, {"accesses", accesses}, {"left", static_cast<std::int64_t>(count - seen - fresh)}};
}

} // namespace Host::Panel
