#pragma once

#include "Common/Number.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Host {

/// A failed access over a control channel. It passes through the plug-in unchanged.
class ChannelError : public std::runtime_error {
public:
    /// @param operation port operation, such as "WriteRegister"
    ChannelError(const std::string& operation, std::uint32_t address, const std::string& reason)
        : std::runtime_error(operation + " at " + Common::Hex(address) + " failed: " + reason) {}

    /// Sets the camera function that was called. The first call, which is the innermost, counts.
    void SetFunction(const std::string& name) {
        if (function.empty()) {
            function = name;
        }
    }
    /// Adds a consequence of the failure to the message.
    void AddConsequence(const std::string& text) { consequence += "; " + text; }
    /// "gain: ReadRegister at 0x14010000 failed: ...", without the function if unknown.
    [[nodiscard]] std::string Describe() const {
        return (function.empty() ? "" : function + ": ") + what() + consequence;
    }

private:
    std::string function;
    std::string consequence;
};

/// The camera has no such address, for example because its firmware or model is another.
class NoSuchAddress final : public ChannelError {
public:
    using ChannelError::ChannelError;
};

/// A write without control, which another program has or which was not wanted.
class ControlHeld final : public ChannelError {
public:
    using ChannelError::ChannelError;
};

/// The camera no longer answers, has restarted, or another program has taken control. Every later access fails
/// immediately.
class ChannelLost : public ChannelError {
public:
    using ChannelError::ChannelError;
};

/// A signal ends this program. Not reported.
class Ending final : public ChannelLost {
public:
    using ChannelLost::ChannelLost;
};

} // namespace Host
