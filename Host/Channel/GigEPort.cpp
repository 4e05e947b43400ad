#include "Host/Channel/GigEPort.h"

#include "Common/Bootstrap.h"
#include "Host/Channel/AravisErrors.h"
#include "Host/Channel/Busy.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/Channel/Datagrams.h"
#include "Host/Channel/DeferredTermination.h"
#include "Host/Errors.h"

#include <arv.h>

#include <thread>

namespace Host {

using namespace Common::Bootstrap;

namespace {

constexpr std::uint32_t largestTransfer = 512; ///< of Aravis

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};
using Address = std::unique_ptr<GInetAddress, Unref>;

struct FreeError {
    void operator()(GError* error) const { g_error_free(error); }
};
using Error = std::unique_ptr<GError, FreeError>;

bool Is(const GError& error, ArvDeviceError code) { return error.domain == ARV_DEVICE_ERROR && error.code == code; }

/// Makes an access, and retries while the camera is busy.
/// @return the error, or nothing
Error Try(const std::function<bool(GError**)>& access) {
    const auto attempt = [&] {
        GError* failure = nullptr;
        access(&failure);
        return Error(failure);
    };
    return RetryWhileBusy(attempt,
                          [](const Error& error) { return error && Is(*error, ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY); });
}

ArvDevice* Open(const std::string& address) {
    const std::string local = LocalAddressFor(address);
    const Address from(g_inet_address_new_from_string(local.c_str()));
    const Address to(g_inet_address_new_from_string(address.c_str()));
    SilenceAravis();
    for (int attempt = 1;; ++attempt) {
        GError* failure = nullptr;
        if (ArvDevice* const opened = arv_gv_device_new(from.get(), to.get(), &failure)) {
            return opened;
        }
        const Error error(failure);
        // If the camera was busy, the description may be missing, and Aravis does not open a camera without it.
        const bool mayBeBusy = error && (Is(*error, ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY) ||
                                         Is(*error, ARV_DEVICE_ERROR_GENICAM_NOT_FOUND));
        if (attempt == busyAttempts || !mayBeBusy) {
            throw CameraUnavailable("the camera at " + address +
                                    " could not be opened: " + (error ? Reason(*error) : "unknown error"));
        }
        std::this_thread::sleep_for(busyPause);
    }
}

} // namespace

void GigEPort::Release::operator()(_ArvDevice* opened) const { g_object_unref(opened); }

GigEPort::GigEPort(const std::string& address) : ChannelPort(address, largestTransfer), device(Open(address)) {
    g_signal_connect_data(
        device.get(), "control-lost", G_CALLBACK(+[](ArvDevice*, Flag* flag) { **flag = true; }), new Flag(controlLost),
        [](void* flag, GClosure*) { delete static_cast<Flag*>(flag); }, GConnectFlags());
    controls = arv_gv_device_is_controller(ARV_GV_DEVICE(device.get()));
    controller = ReadController();
    TryToTakeControl(); // Aravis tried only once, and the camera may have been busy
}

/// Aravis releases control too, but does not retry if the camera is busy, and control would be held until the heartbeat
/// times out.
GigEPort::~GigEPort() {
    if (controls && lost == Lost::No) {
        static_cast<void>(Try(
            [&](GError** error) { return arv_gv_device_leave_control(ARV_GV_DEVICE(device.get()), error) != FALSE; }));
    }
    if (lost == Lost::Silent) { // Aravis asks for seconds before it closes it, for which nobody has to wait
        std::thread([left = device.release()] { g_object_unref(left); }).detach();
    }
}

void GigEPort::TryToTakeControl() {
    if (!controls && lost == Lost::No) {
        controls = Try([&](GError** error) {
                       return arv_gv_device_take_control(ARV_GV_DEVICE(device.get()), error) != FALSE;
                   }) == nullptr;
        controller = ReadController();
    }
}

void GigEPort::RequireUnbrokenControl() {
    if (controls && lost == Lost::No && IsLost()) { // an earlier loss has been reported
        FailAsLost({"ReadRegister", controlChannelPrivilege, false});
    }
}

void GigEPort::FailAsLost(const Operation& operation) const {
    throw ChannelLost(operation.name, operation.address,
                      lost == Lost::Control ? "control of " + Name() + " was lost" : Name() + " no longer answers");
}

void GigEPort::Fail(const Operation& operation, const GError& error) {
    if (Is(error, ARV_DEVICE_ERROR_TIMEOUT)) {
        lost = Lost::Silent;
        FailAsLost(operation);
    }
    // A camera may also deny a write while control is held.
    if (operation.writes && Is(error, ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED) && IsLost()) {
        FailAsLost(operation);
    }
    if (Is(error, ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS)) {
        throw NoSuchAddress(operation.name, operation.address, Reason(error));
    }
    throw ChannelError(operation.name, operation.address, Reason(error));
}

void GigEPort::Access(const Operation& operation, const std::function<bool(GError**)>& access) {
    if (*controlLost && lost == Lost::No) {
        lost = Lost::Control;
    }
    if (lost != Lost::No) {
        FailAsLost(operation);
    }
    RequireNotEnding(operation);
    if (operation.writes && !controls) {
        denied = true;
        throw ControlHeld(operation.name, operation.address, DescribeController());
    }
    const Error error = Try(access);
    RequireNotEnding(operation);
    if (error) {
        Fail(operation, *error);
    }
}

void GigEPort::RequireNotEnding(const Operation& operation) {
    if (DeferredTermination::IsDue()) {
        throw Ending(operation.name, operation.address, "the program is terminating");
    }
}

std::uint32_t GigEPort::ReadOptional(std::uint32_t address) {
    if (lost != Lost::No) {
        return 0;
    }
    guint32 value = 0;
    const Error error = Try(
        [&](GError** failure) { return arv_device_read_register(device.get(), address, &value, failure) != FALSE; });
    if (error && Is(*error, ARV_DEVICE_ERROR_TIMEOUT)) {
        lost = Lost::Silent;
    }
    return error ? 0 : value;
}

Controller GigEPort::ReadController() {
    return {ReadOptional(controlChannelPrivilege), ReadOptional(primaryApplicationAddress),
            ReadOptional(primaryApplicationPort)};
}

bool GigEPort::IsLost() {
    if (ReadController() != controller && lost == Lost::No) {
        lost = Lost::Control;
    }
    return lost != Lost::No;
}

std::uint32_t GigEPort::ReadWord(const Operation& operation) {
    std::uint32_t value = 0;
    Access(operation, [&](GError** error) {
        return arv_device_read_register(device.get(), operation.address, &value, error) != FALSE;
    });
    return value;
}

void GigEPort::WriteWord(const Operation& operation, std::uint32_t value) {
    Access(operation, [&](GError** error) {
        return arv_device_write_register(device.get(), operation.address, value, error) != FALSE;
    });
}

void GigEPort::ReadMemory(const Operation& operation, std::uint32_t address, std::span<std::uint8_t> data) {
    Access(operation, [&](GError** error) {
        return arv_device_read_memory(device.get(), address, static_cast<guint32>(data.size()), data.data(), error) !=
               FALSE;
    });
}

void GigEPort::WriteMemory(const Operation& operation, std::uint32_t address, std::span<std::uint8_t> data) {
    Access(operation, [&](GError** error) {
        return arv_device_write_memory(device.get(), address, static_cast<guint32>(data.size()), data.data(), error) !=
               FALSE;
    });
}

} // namespace Host
