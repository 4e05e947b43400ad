#include "Simulation/GigEVision/ControlChannel.h"

#include "Common/Bootstrap.h"

namespace Simulation::GigEVision {

namespace {

constexpr std::uint32_t exclusiveAccess = 1;
constexpr std::uint32_t controlAccess = 2;

} // namespace

bool ControlChannel::MayRead(const Endpoint& sender, std::uint32_t address, std::size_t length) const {
    const bool privilegeAlone =
        address == Common::Bootstrap::controlChannelPrivilege && length == sizeof(std::uint32_t);
    return privilegeAlone || !IsHeld() || controller == sender || registers.Privilege() != exclusiveAccess;
}

Status ControlChannel::SetPrivilege(const Endpoint& sender, std::uint32_t privilege, Time now) {
    if (IsHeld() && controller != sender) {
        return Status::AccessDenied;
    }
    if ((privilege & (exclusiveAccess | controlAccess)) == 0) {
        Release();
        return Status::Success;
    }
    controller = sender;
    lastRequest = now;
    registers.ShowControl((privilege & exclusiveAccess) != 0 ? exclusiveAccess : controlAccess, sender.address,
                          sender.port);
    return Status::Success;
}

void ControlChannel::Release() {
    controller.reset();
    registers.ShowControl(0, 0, 0);
}

void ControlChannel::ResetHeartbeat(const Endpoint& sender, Time now) {
    if (controller == sender) {
        lastRequest = now;
    }
}

} // namespace Simulation::GigEVision
