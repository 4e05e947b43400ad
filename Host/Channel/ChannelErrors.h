#pragma once

#include "Common/Number.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Host {

/// An access over a control channel that failed. It passes through the plug-in unchanged.
class ChannelError : public std::runtime_error {
public:
    /// @param operation of the port, such as "WriteRegister"
    ChannelError(const std::string& operation, std::uint32_t address, const std::string& reason)
        : std::runtime_error(operation + " at " + Common::Hex(address) + " failed: " + reason) {}

    /// Which camera function was being called; the first to say so is right, it is the innermost call.
    void SetFunction(const std::string& name) {
        if (function.empty()) {
            function = name;
        }
    }
    /// What the failure left undone, for the same line; may be more than one thing.
    void AddConsequence(const std::string& text) { consequence += "; " + text; }
    /// "gain: ReadRegister at 0x14010000 failed: ...", without the function if it is not known.
    [[nodiscard]] std::string Describe() const {
        return (function.empty() ? "" : function + ": ") + what() + consequence;
    }

private:
    std::string function;
    std::string consequence;
};

/// The camera has no such address: it is of another firmware, or not of the model that it is taken for.
class NoSuchAddress final : public ChannelError {
public:
    using ChannelError::ChannelError;
};

/// A write without control, which another program has.
class ControlHeld final : public ChannelError {
public:
    using ChannelError::ChannelError;
};

/// The camera no longer answers, or another program took control of it, or it started anew. Every access after that
/// fails the same, at once.
class ChannelLost : public ChannelError {
public:
    using ChannelError::ChannelError;
};

/// This program is to end, by a signal. There is nothing to tell.
class Ending final : public ChannelLost {
public:
    using ChannelLost::ChannelLost;
};

} // namespace Host
