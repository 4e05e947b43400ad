#include "Host/Recording/AccessFailure.h"

#include "Common/Number.h"
#include "Host/Channel/ChannelErrors.h"
#include "Simulation/PortError.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <type_traits>

namespace Host {

namespace {

/// A kind of failure and the error that stands for it.
struct FailureKind {
    std::string_view name;
    bool (*includes)(const std::exception& error);
    void (*raise)(const std::string& operation, std::uint32_t address, const std::string& reason);
};

template <typename Error> FailureKind KindOf(std::string_view name) {
    return {name, [](const std::exception& error) { return dynamic_cast<const Error*>(&error) != nullptr; },
            [](const std::string& operation, std::uint32_t address, const std::string& reason) {
                if constexpr (std::is_constructible_v<Error, std::string, std::uint32_t, std::string>) {
                    throw Error(operation, address, reason);
                } else {
                    throw Error(operation, address);
                }
            }};
}

/// The first one that includes an error counts.
const std::array failureKinds = {
    KindOf<NoSuchAddress>("no such address"),
    KindOf<ControlHeld>(noControl),
    KindOf<ChannelLost>("lost"),
    KindOf<ChannelError>("failed"),
    KindOf<Simulation::InvalidAddressError>("no such simulated address"),
    KindOf<Simulation::PortError>("simulated failure"),
};
constexpr std::string_view anyFailure = "failed";

std::string ReasonOf(const std::exception& error, const std::string& operation, std::uint32_t address) {
    const std::string said = error.what();
    const std::string beginning = operation + " at " + Common::Hex(address) + " failed: ";
    return said.starts_with(beginning) ? said.substr(beginning.size()) : said;
}

} // namespace

AccessFailure FailureOf(const std::exception_ptr& error, const std::string& operation, std::uint32_t address) {
    if (!error) {
        return {nothingReturned, ""};
    }
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& thrown) {
        const auto* const found = std::find_if(failureKinds.begin(), failureKinds.end(),
                                               [&](const FailureKind& kind) { return kind.includes(thrown); });
        return {std::string(found == failureKinds.end() ? anyFailure : found->name),
                ReasonOf(thrown, operation, address)};
    } catch (...) {
        return {std::string(anyFailure), "unknown error"};
    }
}

bool IsFailureKind(std::string_view kind) {
    return kind == nothingReturned || std::any_of(failureKinds.begin(), failureKinds.end(),
                                                  [&](const FailureKind& each) { return each.name == kind; });
}

void ThrowAgain(const AccessFailure& failure, const std::string& operation, std::uint32_t address) {
    for (const FailureKind& kind : failureKinds) {
        if (kind.name == failure.kind) {
            kind.raise(operation, address, failure.reason);
        }
    }
    throw ChannelError(operation, address, failure.reason);
}

} // namespace Host
