#include "Host/TracingPort.h"

#include <chrono>

namespace Host {

namespace {

using Clock = std::chrono::steady_clock;

} // namespace

template <typename Call> void TracingPort::Make(Access access, const Call& call, const std::uint64_t& length) {
    const auto start = Clock::now();
    access.length = length;
    const auto end = [&](const void* data) {
        access.microseconds = std::chrono::duration<double, std::micro>(Clock::now() - start).count();
        access.failed = data == nullptr;
        if (data != nullptr && !access.write) {
            const auto* const bytes = static_cast<const std::uint8_t*>(data);
            access.data.assign(bytes, bytes + length);
        }
        observer ? observer(access) : accesses.push_back(std::move(access));
    };
    const void* data = nullptr;
    try {
        data = call();
    } catch (...) {
        access.error = std::current_exception();
        end(nullptr);
        throw;
    }
    end(data);
}

template <typename Call>
void TracingPort::Read(const char* operation, std::uint32_t address, const std::uint64_t& length, const Call& read) {
    Make({operation, address, false, true, {}, 0}, read, length);
}

template <typename Call>
void TracingPort::Write(const char* operation, std::uint32_t address, const void* data, std::uint64_t length,
                        const Call& write) {
    const auto* const bytes = static_cast<const std::uint8_t*>(data);
    const auto call = [&] {
        write();
        return data;
    };
    Make({operation, address, true, true, {bytes, bytes + length}, 0}, call, length);
}

void TracingPort::WriteRegister(std::uint32_t address, std::uint32_t value) {
    Write("WriteRegister", address, &value, sizeof value, [&] { port.WriteRegister(address, value); });
}

std::uint32_t TracingPort::ReadRegister(std::uint32_t address) {
    std::uint32_t value = 0;
    Read("ReadRegister", address, sizeof value, [&] {
        value = port.ReadRegister(address);
        return &value;
    });
    return value;
}

void TracingPort::WriteRegisterPair(std::uint32_t address, std::uint64_t value) {
    Write("WriteRegisterPair", address, &value, sizeof value, [&] { port.WriteRegisterPair(address, value); });
}

std::uint64_t TracingPort::ReadRegisterPair(std::uint32_t address) {
    std::uint64_t value = 0;
    Read("ReadRegisterPair", address, sizeof value, [&] {
        value = port.ReadRegisterPair(address);
        return &value;
    });
    return value;
}

unsigned char* TracingPort::ReadBlock(std::uint32_t address, std::uint32_t length) {
    unsigned char* block = nullptr;
    Read("ReadBlock", address, length, [&] { return block = port.ReadBlock(address, length); });
    return block;
}

void TracingPort::WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) {
    Write("WriteBlock", address, buffer, length, [&] { port.WriteBlock(address, buffer, length); });
}

char* TracingPort::ReadString(std::uint32_t address, std::uint32_t length) {
    char* text = nullptr;
    Read("ReadString", address, length, [&] { return text = port.ReadString(address, length); });
    return text;
}

void TracingPort::WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) {
    Write("WriteString", address, buffer, length, [&] { port.WriteString(address, buffer, length); });
}

void TracingPort::ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Read("ReadMem", address, *length, [&] {
        port.ReadMem(address, buffer, length);
        return buffer;
    });
}

void TracingPort::WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Write("WriteMem", address, buffer, *length, [&] { port.WriteMem(address, buffer, length); });
}

} // namespace Host
