#include "Host/Channel/GigEPort.h"

#include "Common/Bootstrap.h"
#include "Common/Gvcp.h"
#include "Common/Ipv4.h"
#include "Host/Channel/AravisErrors.h"
#include "Host/Channel/ChannelErrors.h"
#include "Host/Channel/Datagrams.h"
#include "Host/Channel/DeferredTermination.h"
#include "Host/Errors.h"

#include <arv.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace Host {

using namespace Common::Bootstrap;
using Common::Gvcp::wordSize;

namespace {

constexpr std::uint64_t largestTransfer = 512; ///< fits into every packet of the control channel

constexpr int busyAttempts = 6;                    ///< attempts of an access
constexpr std::chrono::milliseconds busyPause{20}; ///< time between attempts

// Words of register pairs, blocks and texts stay in the byte order of the camera.
static_assert(std::endian::native == std::endian::little, "cameras are little-endian");

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
    for (int attempt = 1;; ++attempt) {
        GError* failure = nullptr;
        if (access(&failure)) {
            return nullptr;
        }
        Error error(failure);
        if (attempt == busyAttempts || !Is(*error, ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY)) {
            return error;
        }
        std::this_thread::sleep_for(busyPause);
    }
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
            throw OpenError("the camera at " + address +
                            " could not be opened: " + (error ? Reason(*error) : "unknown error"));
        }
        std::this_thread::sleep_for(busyPause);
    }
}

} // namespace

void GigEPort::Release::operator()(_ArvDevice* opened) const { g_object_unref(opened); }

GigEPort::GigEPort(const std::string& address) : camera("the camera at " + address), device(Open(address)) {
    g_signal_connect(device.get(), "control-lost",
                     G_CALLBACK(+[](ArvDevice*, std::atomic<bool>* flag) { *flag = true; }), &controlLost);
    controls = arv_gv_device_is_controller(ARV_GV_DEVICE(device.get()));
    controller = ReadController();
    TryToTakeControl(); // Aravis tried only once, and the camera may have been busy
}

/// Aravis releases control too, but does not retry if the camera is busy, and control would be held until the heartbeat
/// times out.
GigEPort::~GigEPort() {
    if (controls && (lost == Lost::No || lost == Lost::Ending)) {
        static_cast<void>(Try(
            [&](GError** error) { return arv_gv_device_leave_control(ARV_GV_DEVICE(device.get()), error) != FALSE; }));
    }
}

std::string GigEPort::ModelName() {
    const char* const name = ReadString(modelName, modelNameLength);
    return {name, std::find(name, name + modelNameLength, '\0')};
}

void GigEPort::TryToTakeControl() {
    if (!controls && lost == Lost::No) {
        controls = Try([&](GError** error) {
                       return arv_gv_device_take_control(ARV_GV_DEVICE(device.get()), error) != FALSE;
                   }) == nullptr;
        controller = ReadController();
    }
}

std::string GigEPort::DescribeController() const {
    const std::string where =
        Common::PrintAddress(controller.address) + ":" + std::to_string(controller.port & 0xFFFFU);
    return camera + " is controlled by another program" + (controller.address == 0 ? "" : " at " + where);
}

void GigEPort::RequireUnbrokenControl() {
    if (controls && lost == Lost::No && IsLost()) { // an earlier loss has been reported
        FailAsLost({"ReadRegister", controlChannelPrivilege, false});
    }
}

void GigEPort::FailAsLost(const Operation& operation) const {
    if (lost == Lost::Ending) {
        throw Ending(operation.name, operation.address, "the program is terminating");
    }
    throw ChannelLost(operation.name, operation.address,
                      lost == Lost::Control ? "control of " + camera + " was lost" : camera + " no longer answers");
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
    if (controlLost && lost == Lost::No) {
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
        lost = Lost::Ending;
        FailAsLost(operation);
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

GigEPort::Controller GigEPort::ReadController() {
    return {ReadOptional(controlChannelPrivilege), ReadOptional(primaryApplicationAddress),
            ReadOptional(primaryApplicationPort)};
}

bool GigEPort::IsLost() {
    if (ReadController() != controller && lost == Lost::No) {
        lost = Lost::Control;
    }
    return lost != Lost::No;
}

void GigEPort::RequireAddresses(const Operation& operation, std::uint64_t length) {
    constexpr std::uint64_t addresses = std::uint64_t{1} << 32;
    if (length > addresses - operation.address) {
        throw ChannelError(operation.name, operation.address, "the access exceeds the address space");
    }
}

void GigEPort::Read(const Operation& operation, std::uint8_t* data, std::uint64_t length) {
    RequireAddresses(operation, length);
    const std::uint64_t end = operation.address + length;
    std::array<std::uint8_t, largestTransfer> piece{};
    for (std::uint64_t wanted = operation.address; wanted < end;) {
        const std::uint64_t first = wanted / wordSize * wordSize;
        const std::uint64_t size = std::min((end - first + wordSize - 1) / wordSize * wordSize, largestTransfer);
        Access(operation, [&](GError** error) {
            return arv_device_read_memory(device.get(), first, static_cast<guint32>(size), piece.data(), error) !=
                   FALSE;
        });
        const std::uint64_t last = std::min(first + size, end);
        data = std::copy(piece.begin() + (wanted - first), piece.begin() + (last - first), data);
        wanted = last;
    }
}

void GigEPort::Write(const Operation& operation, const std::uint8_t* data, std::uint64_t length) {
    if (operation.address % wordSize != 0 || length % wordSize != 0) {
        throw ChannelError(operation.name, operation.address,
                           std::to_string(length) + " bytes: writes must be whole words at multiples of 4");
    }
    RequireAddresses(operation, length);
    std::array<std::uint8_t, largestTransfer> piece{}; // Aravis takes a non-const buffer
    for (std::uint64_t done = 0; done < length;) {
        const std::uint64_t size = std::min(length - done, largestTransfer);
        std::copy_n(data + done, size, piece.begin());
        Access(operation, [&](GError** error) {
            return arv_device_write_memory(device.get(), operation.address + done, static_cast<guint32>(size),
                                           piece.data(), error) != FALSE;
        });
        done += size;
    }
}

void GigEPort::WriteRegister(std::uint32_t address, std::uint32_t value) {
    const Operation operation{"WriteRegister", address, true};
    if (address % wordSize != 0) {
        throw ChannelError(operation.name, address, "the address is not a multiple of 4");
    }
    Access(operation,
           [&](GError** error) { return arv_device_write_register(device.get(), address, value, error) != FALSE; });
}

std::uint32_t GigEPort::ReadRegister(std::uint32_t address) {
    const Operation operation{"ReadRegister", address, false};
    std::uint32_t value = 0;
    if (address % wordSize != 0) {
        Read(operation, reinterpret_cast<std::uint8_t*>(&value), sizeof value);
        return value;
    }
    Access(operation,
           [&](GError** error) { return arv_device_read_register(device.get(), address, &value, error) != FALSE; });
    return value;
}

void GigEPort::WriteRegisterPair(std::uint32_t address, std::uint64_t value) {
    Write({"WriteRegisterPair", address, true}, reinterpret_cast<const std::uint8_t*>(&value), sizeof value);
}

std::uint64_t GigEPort::ReadRegisterPair(std::uint32_t address) {
    std::uint64_t value = 0;
    Read({"ReadRegisterPair", address, false}, reinterpret_cast<std::uint8_t*>(&value), sizeof value);
    return value;
}

unsigned char* GigEPort::ReadBlock(std::uint32_t address, std::uint32_t length) {
    // From malloc: the caller frees it, as IControlPort requires.
    std::unique_ptr<unsigned char, decltype(&std::free)> block(static_cast<unsigned char*>(std::malloc(length)),
                                                               &std::free);
    if (block != nullptr) {
        Read({"ReadBlock", address, false}, block.get(), length);
    }
    return block.release();
}

void GigEPort::WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) {
    Write({"WriteBlock", address, true}, buffer, length);
}

char* GigEPort::ReadString(std::uint32_t address, std::uint32_t length) {
    std::vector<std::uint8_t> bytes(length);
    Read({"ReadString", address, false}, bytes.data(), length);
    text.assign(bytes.begin(), bytes.end());
    text.push_back('\0');
    return text.data();
}

void GigEPort::WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) {
    const std::vector<std::uint8_t> bytes(buffer, buffer + length);
    Write({"WriteString", address, true}, bytes.data(), length);
}

void GigEPort::ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Read({"ReadMem", address, false}, buffer, *length);
}

void GigEPort::WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Write({"WriteMem", address, true}, buffer, *length);
}

} // namespace Host
