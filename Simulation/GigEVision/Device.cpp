#include "Simulation/GigEVision/Device.h"

#include "Common/Bootstrap.h"
#include "Simulation/Addresses.h"
#include "Simulation/Identity.h"

namespace Simulation::GigEVision {

using namespace Common::Gvcp;
using Common::Bootstrap::controlChannelPrivilege;

namespace {

/// @param index the number of registers or bytes written
Bytes AcknowledgeWrite(const Request& request, Status status, std::size_t index) {
    Bytes payload;
    Put16(payload, 0); // reserved
    Put16(payload, static_cast<std::uint32_t>(index));
    return Acknowledge(request, status, payload);
}

/// The acknowledge of a refused request, or nothing if it has none.
std::optional<Bytes> Refuse(const Request& request, Status status) {
    switch (request.command) {
    case Command::WriteRegister:
    case Command::WriteMemory:
        return AcknowledgeWrite(request, status, 0);
    case Command::PacketResend:
    case Command::Action:
        return std::nullopt;
    default:
        return Acknowledge(request, status);
    }
}

/// The gateway of the camera, if it is in the subnet.
IpConfiguration WithGateway(IpConfiguration ip, std::uint32_t gateway) {
    ip.gateway = ((gateway ^ ip.address) & ip.subnetMask) == 0 ? gateway : 0;
    return ip;
}

} // namespace

Device::Device(SimulatedCamera& served, const IpConfiguration& current, Time now)
    : camera(served),
      assigned(WithGateway(current, served.Registers().Get("currentdefaultgateway")[0])),
      ip(assigned),
      channel(served.Registers(), served.Time()),
      stream(served, channel),
      memory(served, channel, stream),
      start(now),
      cameraStart(served.Time()) {
    ShowAddress();
    camera.AfterWrite("restart", [this](RegisterSpace&, const auto&) { ShowAddress(); });
}

void Device::ShowAddress() {
    RegisterSpace& space = camera.Registers();
    space.Set("currentipaddress", {ip.address});
    space.Set("currentsubnetmask", {ip.subnetMask});
    space.Set("currentdefaultgateway", {ip.gateway});
}

void Device::PassTime(Time now) {
    const auto due = cameraStart + std::chrono::duration_cast<std::chrono::microseconds>(now - start);
    if (due > camera.Time()) {
        camera.Advance(due - camera.Time());
    }
    if (control.IsExpired(now)) {
        EndControl();
    }
}

std::optional<Time> Device::StreamDue() const {
    const auto due = stream.Due();
    return due ? std::optional(start + (*due - cameraStart)) : std::nullopt;
}

void Device::EndControl() {
    control.Release();
    camera.Registers().Set("startacquisition", {0});
    channel.CloseStream();
}

void Device::Reboot(Time now) {
    bootEnd = now + bootTime;
    control.Release();
    lastAcknowledges.Forget();
    camera.Restart();
    channel.Restart(camera.Time());
    static_cast<void>(MoveTo(assigned));
    ShowAddress();
}

std::optional<Bytes> Device::Answer(const Endpoint& from, std::span<const std::uint8_t> datagram, Time now,
                                    bool isBusy) {
    PassTime(now);
    const auto request = Parse(datagram);
    if (!request || IsStarting(now)) {
        return std::nullopt;
    }
    control.ResetHeartbeat(from, now);
    if (request->command == Command::Discovery) { // never repeated: an application may reuse the id
        return request->wantsAcknowledge ? std::optional(Discover(*request)) : std::nullopt;
    }
    if (request->command == Command::PacketResend) { // of the receiver's, whose requests are not acknowledged
        stream.RequestResend(from, request->payload);
        return std::nullopt;
    }
    if (IsForAnother(*request)) {
        return std::nullopt;
    }
    if (const auto* const last = lastAcknowledges.Find(from, datagram)) {
        return *last;
    }
    auto answer = isBusy ? Refuse(*request, Status::Busy) : CarryOut(from, *request, now);
    if (!request->wantsAcknowledge) {
        answer.reset();
    }
    lastAcknowledges.Remember(from, datagram, answer);
    return answer;
}

std::optional<Bytes> Device::CarryOut(const Endpoint& from, const Request& request, Time now) {
    switch (request.command) {
    case Command::ForceIp:
        return Acknowledge(request, ForceIp(ParseForcedIp(request.payload)->ip));
    case Command::ReadRegister:
        return ReadRegisters(from, request);
    case Command::WriteRegister:
        return WriteRegisters(from, request, now);
    case Command::ReadMemory:
        return ReadMemory(from, request);
    case Command::WriteMemory:
        return WriteMemory(from, request, now);
    default:
        return Refuse(request, Status::NotImplemented);
    }
}

Bytes Device::Discover(const Request& request) {
    Bytes identity(discoverySize);
    const Status status = request.payload.empty() ? memory.Read(0, identity) : Status::InvalidParameter;
    return Acknowledge(request, status, status == Status::Success ? identity : Bytes());
}

bool Device::IsForAnother(const Request& request) const {
    if (request.command != Command::ForceIp) {
        return false;
    }
    const auto forced = ParseForcedIp(request.payload);
    return !forced || forced->mac != MacNumberOf(camera.Registers());
}

Status Device::ForceIp(const IpConfiguration& wanted) {
    if (control.IsHeld()) {
        return Status::AccessDenied;
    }
    const bool isRestart = wanted.address == 0; // of how the device gets its address
    if (!isRestart && !Common::WhyUnusable(wanted).empty()) {
        return Status::InvalidParameter;
    }
    return MoveTo(isRestart ? assigned : wanted) ? Status::Success : Status::InvalidParameter;
}

bool Device::MoveTo(const IpConfiguration& wanted) {
    const bool isThere = move(wanted);
    if (isThere) {
        ip = wanted;
        ShowAddress();
    }
    return isThere;
}

Bytes Device::ReadRegisters(const Endpoint& from, const Request& request) {
    const auto addresses = request.payload;
    const bool wellFormed = !addresses.empty() && addresses.size() % 4 == 0;
    Status status = wellFormed ? Status::Success : Status::InvalidParameter;
    Bytes values; // up to the first failure
    for (std::size_t i = 0; i < addresses.size() && status == Status::Success; i += 4) {
        const std::uint32_t address = Get32(addresses.subspan(i));
        std::uint32_t value = 0;
        status = control.MayRead(from, address, 4) ? memory.ReadWord(address, value) : Status::AccessDenied;
        if (status == Status::Success) {
            Put32(values, value);
        }
    }
    return Acknowledge(request, status, values);
}

Bytes Device::WriteRegisters(const Endpoint& from, const Request& request, Time now) {
    const auto pairs = request.payload;
    const bool wellFormed = !pairs.empty() && pairs.size() % 8 == 0;
    Status status = wellFormed ? Status::Success : Status::InvalidParameter;
    std::size_t written = 0;
    while (status == Status::Success && 8 * written < pairs.size()) {
        const auto pair = pairs.subspan(8 * written);
        status = WriteWord(from, Get32(pair), Get32(pair.subspan(4)), now);
        written += status == Status::Success ? 1 : 0;
    }
    return AcknowledgeWrite(request, status, written);
}

Bytes Device::ReadMemory(const Endpoint& from, const Request& request) {
    if (request.payload.size() != 8) {
        return Acknowledge(request, Status::InvalidParameter);
    }
    const std::uint32_t address = Get32(request.payload);
    const std::size_t count = Get16(request.payload.subspan(6));
    if (count == 0 || count > largestMemory) {
        return Acknowledge(request, Status::InvalidParameter);
    }
    if (count % 4 != 0) {
        return Acknowledge(request, Status::BadAlignment);
    }
    Bytes bytes(count);
    const Status status = control.MayRead(from, address, count) ? memory.Read(address, bytes) : Status::AccessDenied;
    if (status != Status::Success) {
        return Acknowledge(request, status);
    }
    Bytes payload;
    Put32(payload, address);
    payload.insert(payload.end(), bytes.begin(), bytes.end());
    return Acknowledge(request, status, payload);
}

Bytes Device::WriteMemory(const Endpoint& from, const Request& request, Time now) {
    if (request.payload.size() < 5) {
        return AcknowledgeWrite(request, Status::InvalidParameter, 0);
    }
    if (request.payload.size() % 4 != 0) {
        return AcknowledgeWrite(request, Status::BadAlignment, 0);
    }
    const std::uint32_t address = Get32(request.payload);
    const auto bytes = request.payload.subspan(4);
    Status status = Status::AccessDenied;
    if (address == controlChannelPrivilege && bytes.size() == 4) {
        status = WriteWord(from, address, Get32(bytes), now);
    } else if (control.MayWrite(from)) {
        status = memory.Write(address, bytes, from.address);
    }
    return AcknowledgeWrite(request, status, status == Status::Success ? bytes.size() : 0);
}

Status Device::WriteWord(const Endpoint& from, std::uint32_t address, std::uint32_t value, Time now) {
    if (address == controlChannelPrivilege) {
        const bool wasHeld = control.IsHeld();
        const Status status = control.SetPrivilege(from, value, now);
        if (wasHeld && !control.IsHeld()) {
            EndControl();
        }
        return status;
    }
    return control.MayWrite(from) ? memory.WriteWord(address, value, from.address) : Status::AccessDenied;
}

} // namespace Simulation::GigEVision
