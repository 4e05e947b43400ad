#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace Host {

/// How an access failed, as a recording has it.
struct AccessFailure {
    std::string kind;   ///< one of a few names; empty after success
    std::string reason; ///< what the error says beside operation and address
};

constexpr const char* nothingReturned = "nothing returned"; ///< the kind of a null block or text

constexpr const char* noControl = "no control"; ///< the kind of a write without control

/// @param error what the port threw; null if it returned nothing
[[nodiscard]] AccessFailure FailureOf(const std::exception_ptr& error, const std::string& operation,
                                      std::uint32_t address);

[[nodiscard]] bool IsFailureKind(std::string_view kind);

/// Throws an error that the host treats as the recorded one.
[[noreturn]] void ThrowAgain(const AccessFailure& failure, const std::string& operation, std::uint32_t address);

} // namespace Host
