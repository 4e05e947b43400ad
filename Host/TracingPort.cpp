#include "TracingPort.h"

namespace Host {

void TracingPort::Reading(const char* operation, std::uint32_t address) {
    accesses.push_back({operation, address, false, true, {}});
}

void TracingPort::Complete(const void* data, std::uint64_t length) {
    Access& access = accesses.back();
    access.failed = data == nullptr;
    if (data != nullptr) {
        const auto* const bytes = static_cast<const std::uint8_t*>(data);
        access.data.assign(bytes, bytes + length);
    }
}

void TracingPort::Write(const char* operation, std::uint32_t address, const void* data, std::uint64_t length,
                        const std::function<void()>& write) {
    accesses.push_back({operation, address, true, true, {}});
    Complete(data, length);
    accesses.back().failed = true;
    write();
    accesses.back().failed = false;
}

void TracingPort::WriteRegister(std::uint32_t address, std::uint32_t value) {
    Write("WriteRegister", address, &value, sizeof value, [&] { port.WriteRegister(address, value); });
}

std::uint32_t TracingPort::ReadRegister(std::uint32_t address) {
    Reading("ReadRegister", address);
    const std::uint32_t value = port.ReadRegister(address);
    Complete(&value, sizeof value);
    return value;
}

void TracingPort::WriteRegisterPair(std::uint32_t address, std::uint64_t value) {
    Write("WriteRegisterPair", address, &value, sizeof value, [&] { port.WriteRegisterPair(address, value); });
}

std::uint64_t TracingPort::ReadRegisterPair(std::uint32_t address) {
    Reading("ReadRegisterPair", address);
    const std::uint64_t value = port.ReadRegisterPair(address);
    Complete(&value, sizeof value);
    return value;
}

unsigned char* TracingPort::ReadBlock(std::uint32_t address, std::uint32_t length) {
    Reading("ReadBlock", address);
    unsigned char* const block = port.ReadBlock(address, length);
    Complete(block, length);
    return block;
}

void TracingPort::WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) {
    Write("WriteBlock", address, buffer, length, [&] { port.WriteBlock(address, buffer, length); });
}

char* TracingPort::ReadString(std::uint32_t address, std::uint32_t length) {
    Reading("ReadString", address);
    char* const text = port.ReadString(address, length);
    Complete(text, length);
    return text;
}

void TracingPort::WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) {
    Write("WriteString", address, buffer, length, [&] { port.WriteString(address, buffer, length); });
}

void TracingPort::ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Reading("ReadMem", address);
    port.ReadMem(address, buffer, length);
    Complete(buffer, *length);
}

void TracingPort::WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Write("WriteMem", address, buffer, *length, [&] { port.WriteMem(address, buffer, length); });
}

} // namespace Host
