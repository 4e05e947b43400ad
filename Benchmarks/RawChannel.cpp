#include "Benchmarks/RawChannel.h"

#include "Host/Channel/Datagrams.h"

#include <arv.h>

#include <cstring>
#include <stdexcept>
#include <string_view>

namespace Bench {

namespace {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};
using Address = std::unique_ptr<GInetAddress, Unref>;

void Require(bool done, const GError* error) {
    if (!done) {
        throw std::runtime_error(std::string("Aravis: ") + (error != nullptr ? error->message : "unknown error"));
    }
}

} // namespace

bool IsOfRegister(const Host::Access& access) { return std::string_view(access.operation).ends_with("Register"); }

void RawChannel::Release::operator()(_ArvDevice* opened) const { g_object_unref(opened); }

RawChannel::RawChannel(const std::string& address) {
    const Address from(g_inet_address_new_from_string(Host::LocalAddressFor(address).c_str()));
    const Address to(g_inet_address_new_from_string(address.c_str()));
    GError* error = nullptr;
    device.reset(arv_gv_device_new(from.get(), to.get(), &error));
    Require(device != nullptr, error);
    if (arv_gv_device_is_controller(ARV_GV_DEVICE(device.get())) == FALSE) {
        throw std::runtime_error("another program controls the camera at " + address);
    }
}

bool RawChannel::MoveRegister(const Host::Access& access, GError** error) {
    guint32 value = 0;
    gboolean done = FALSE;
    if (access.write) {
        std::memcpy(&value, access.data.data(), sizeof value);
        done = arv_device_write_register(device.get(), access.address, value, error);
    } else {
        done = arv_device_read_register(device.get(), access.address, &value, error);
    }
    moved.resize(sizeof value);
    std::memcpy(moved.data(), &value, sizeof value);
    return done != FALSE;
}

bool RawChannel::MoveMemory(const Host::Access& access, GError** error) {
    const auto size = static_cast<guint32>(access.data.size());
    if (access.write) {
        moved = access.data; // Aravis takes a buffer that is not const
        return arv_device_write_memory(device.get(), access.address, size, moved.data(), error) != FALSE;
    }
    moved.resize(size);
    return arv_device_read_memory(device.get(), access.address, size, moved.data(), error) != FALSE;
}

void RawChannel::Make(const Host::Access& access) {
    GError* error = nullptr;
    Require(IsOfRegister(access) ? MoveRegister(access, &error) : MoveMemory(access, &error), error);
}

void RawChannel::Make(const std::vector<Host::Access>& accesses) {
    for (const Host::Access& access : accesses) {
        Make(access);
    }
}

void RawChannel::RequireSameAnswers(const std::vector<Host::Access>& accesses) {
    for (const Host::Access& access : accesses) {
        Make(access);
        if (moved != access.data) {
            throw std::runtime_error(std::string(access.operation) + " has another result on the other camera");
        }
    }
}

} // namespace Bench
