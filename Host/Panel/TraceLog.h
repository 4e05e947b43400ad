#pragma once

#include "Host/Json.h"
#include "Host/TracingPort.h"

#include <cstdint>
#include <deque>
#include <map>
#include <string>

namespace Host::Panel {

/// The last accesses to a camera, for clients that follow them.
class TraceLog {
public:
    /// While one exists, accesses belong to a function.
    class Call {
    public:
        Call(TraceLog& ofLog, std::string function) : log(ofLog) { log.call = std::move(function); }
        ~Call() { log.call.clear(); }
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

    private:
        TraceLog& log;
    };

    /// The last access was to the register of a function. Of several functions the first one names it.
    void NameLast(const std::string& function) { names.try_emplace(lastAddress, function); }
    /// Whether anybody follows the accesses. Otherwise none are kept.
    void SetFollowed(bool follows);

    /// @param time in seconds
    void Add(const Access& access, double time);

    /// The number of accesses so far.
    [[nodiscard]] std::uint64_t Count() const { return count; }
    /// The accesses after the first @p seen, as the members of a message.
    [[nodiscard]] Json Since(std::uint64_t seen) const;

private:
    std::map<std::uint32_t, std::string> names; ///< of functions, by the addresses of their registers
    std::uint32_t lastAddress = 0;
    std::string call;
    bool followed = false;
    std::uint64_t count = 0;
    std::deque<Json> last;
};

} // namespace Host::Panel
