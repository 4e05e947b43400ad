#include "Host/Channel/ReadOnlyPort.h"

#include "Common/Bootstrap.h"
#include "Host/Channel/Busy.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/Errors.h"

#include <algorithm>

namespace Host {

namespace {

namespace Gvcp = Common::Gvcp;
using MaybeAnswer = std::optional<Gvcp::Answer>;

bool IsBusy(const MaybeAnswer& answer) { return answer && answer->status == Gvcp::Status::Busy; }

/// @return empty after success
std::string FaultOf(const MaybeAnswer& answer) {
    return !answer ? noAnswer : answer->status == Gvcp::Status::Success ? "" : DescribeStatus(answer->status);
}

} // namespace

ReadOnlyPort::ReadOnlyPort(const std::string& address) : ChannelPort(address, Gvcp::largestMemory), requests(address) {
    const auto probe = [&] { return requests.ReadRegister(Common::Bootstrap::controlChannelPrivilege); };
    if (const std::string fault = FaultOf(RetryWhileBusy(probe, IsBusy)); !fault.empty()) {
        throw CameraUnavailable(Name() + " could not be opened: " + fault);
    }
}

template <typename Request>
Gvcp::Bytes ReadOnlyPort::Read(const Operation& operation, std::size_t length, const Request& request) {
    const MaybeAnswer answer = lost ? std::nullopt : RetryWhileBusy(request, IsBusy);
    lost = !answer;
    if (lost) {
        throw ChannelLost(operation.name, operation.address, Name() + " no longer answers");
    }
    if (answer->status == Gvcp::Status::InvalidAddress) {
        throw NoSuchAddress(operation.name, operation.address, FaultOf(answer));
    }
    if (answer->status != Gvcp::Status::Success) {
        throw ChannelError(operation.name, operation.address, FaultOf(answer));
    }
    if (answer->payload.size() != length) {
        throw ChannelError(operation.name, operation.address, "the answer has a wrong length");
    }
    return answer->payload;
}

std::uint32_t ReadOnlyPort::ReadWord(const Operation& operation) {
    return Gvcp::Get32(Read(operation, Gvcp::wordSize, [&] { return requests.ReadRegister(operation.address); }));
}

void ReadOnlyPort::ReadMemory(const Operation& operation, std::uint32_t address, std::span<std::uint8_t> data) {
    const auto length = static_cast<std::uint32_t>(data.size());
    const auto read = Read(operation, length, [&] { return requests.ReadMemory(address, length); });
    std::copy(read.begin(), read.end(), data.begin());
}

void ReadOnlyPort::WriteWord(const Operation& operation, std::uint32_t /*value*/) { Deny(operation); }

void ReadOnlyPort::WriteMemory(const Operation& operation, std::uint32_t /*address*/,
                               std::span<std::uint8_t> /*data*/) {
    Deny(operation);
}

void ReadOnlyPort::Deny(const Operation& operation) {
    denied = true;
    throw ControlHeld(operation.name, operation.address, DescribeDenial());
}

} // namespace Host
