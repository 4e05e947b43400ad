#include "Simulation/GigEVision/ControlChannel.h"

#include "Simulation/Addresses.h"

namespace Simulation::GigEVision {

namespace {

constexpr std::uint32_t exclusiveAccess = 1;
constexpr std::uint32_t controlAccess = 2;

} // namespace

bool ControlChannel::MayRead(const Sender& sender, std::uint32_t address, std::size_t length) const {
    const bool privilegeAlone = address == privilegeAddress && length == sizeof(std::uint32_t);
    return privilegeAlone || !IsHeld() || controller == sender || registers.Privilege() != exclusiveAccess;
}

Status ControlChannel::SetPrivilege(const Sender& sender, std::uint32_t privilege, Time now) {
    if (IsHeld() && controller != sender) {
        return Status::AccessDenied;
    }
    if ((privilege & (exclusiveAccess | controlAccess)) == 0) {
        Release();
        return Status::Success;
    }
    controller = sender;
    lastHeard = now;
    registers.ShowControl((privilege & exclusiveAccess) != 0 ? exclusiveAccess : controlAccess, sender.address,
                          sender.port);
    return Status::Success;
}

void ControlChannel::Release() {
    controller.reset();
    registers.ShowControl(0, 0, 0);
}

void ControlChannel::Heard(const Sender& sender, Time now) {
    if (controller == sender) {
        lastHeard = now;
    }
}

} // namespace Simulation::GigEVision
