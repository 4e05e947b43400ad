#include "Tests/Support/RecordingPort.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace Test {

namespace {

std::string Hex(unsigned int value, int digits) {
    char text[16];
    std::snprintf(text, sizeof text, "%0*X", digits, value);
    return text;
}

std::string At(const char* access, std::uint32_t address) {
    return std::string(access) + " " + Hex(address, address > 0xFFFF ? 8 : 4);
}

std::string AsWords(const void* buffer, std::size_t length) {
    const auto* bytes = static_cast<const std::uint8_t*>(buffer);
    std::string text;
    for (std::size_t at = 0; at + 4 <= length; at += 4) {
        std::uint32_t word;
        std::memcpy(&word, bytes + at, 4);
        text += (at == 0 ? "" : ",") + std::to_string(word);
    }
    for (std::size_t at = length / 4 * 4; at < length; ++at) {
        text += "x" + Hex(bytes[at], 2);
    }
    return text;
}

} // namespace

Bytes Words(const std::vector<std::uint32_t>& words) {
    Bytes bytes(words.size() * 4);
    if (!words.empty()) {
        std::memcpy(bytes.data(), words.data(), bytes.size());
    }
    return bytes;
}

Bytes TextBlock(std::size_t length, const std::string& text) {
    Bytes bytes = Words({0x2A2A2A2A});
    bytes.insert(bytes.end(), text.begin(), text.end());
    bytes.resize(length);
    return bytes;
}

Bytes RecordingPort::Get(std::uint32_t address) const {
    const auto found = memory.find(address);
    return found == memory.end() ? Bytes{} : found->second;
}

std::string RecordingPort::TakeLog() { return std::exchange(log, {}); }

void RecordingPort::FailAt(unsigned int nth, std::function<void()> failure) {
    failIn = nth;
    fail = std::move(failure);
}

void RecordingPort::Record(const std::string& access) {
    log += (log.empty() ? "" : "; ") + access;
    if (failIn != 0 && --failIn == 0) {
        fail();
    }
}

void RecordingPort::Load(std::uint32_t address, void* buffer, std::size_t length) const {
    std::vector<std::uint32_t> positions(length / 4 + 1);
    for (std::size_t at = 0; at < positions.size(); ++at) {
        positions[at] = static_cast<std::uint32_t>(at + 1);
    }
    Bytes bytes = Words(positions);
    const Bytes known = Get(address);
    std::copy_n(known.begin(), std::min(known.size(), length), bytes.begin());
    std::memcpy(buffer, bytes.data(), length);
}

void RecordingPort::Store(std::uint32_t address, const void* buffer, std::size_t length) {
    Bytes& bytes = memory[address];
    bytes.resize(std::max(bytes.size(), length));
    std::memcpy(bytes.data(), buffer, length);
    if (const auto found = instances.find(address); found != instances.end() && length >= 4) {
        std::uint32_t index;
        std::memcpy(&index, buffer, 4);
        if (length > 4) {
            found->second[index].assign(bytes.begin() + 4, bytes.begin() + static_cast<std::ptrdiff_t>(length));
        }
        bytes.resize(4);
        const Bytes& selected = found->second[index];
        bytes.insert(bytes.end(), selected.begin(), selected.end());
    }
}

void RecordingPort::WriteRegister(std::uint32_t address, std::uint32_t value) {
    Record(At("w", address) + "=" + std::to_string(value));
    Store(address, &value, sizeof value);
}

std::uint32_t RecordingPort::ReadRegister(std::uint32_t address) {
    Record(At("r", address));
    std::uint32_t value;
    Load(address, &value, sizeof value);
    return value;
}

void RecordingPort::WriteRegisterPair(std::uint32_t address, std::uint64_t value) {
    Record(At("wp", address) + "=" + AsWords(&value, sizeof value));
    Store(address, &value, sizeof value);
}

std::uint64_t RecordingPort::ReadRegisterPair(std::uint32_t address) {
    Record(At("rp", address));
    std::uint64_t value;
    Load(address, &value, sizeof value);
    return value;
}

unsigned char* RecordingPort::ReadBlock(std::uint32_t address, std::uint32_t length) {
    Record(At("rb", address) + "/" + std::to_string(length));
    if (refuseBlocks) {
        return nullptr;
    }
    auto* block = static_cast<unsigned char*>(std::malloc(length));
    Load(address, block, length);
    return block;
}

void RecordingPort::WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) {
    Record(At("wb", address) + "=" + AsWords(buffer, length));
    Store(address, buffer, length);
}

char* RecordingPort::ReadString(std::uint32_t address, std::uint32_t length) {
    Record(At("rs", address) + "/" + std::to_string(length));
    if (refuseBlocks) {
        return nullptr;
    }
    const Bytes bytes = Get(address);
    text.assign(bytes.begin(), std::find(bytes.begin(), bytes.end(), 0));
    text.resize(std::min<std::size_t>(text.size(), length));
    return text.data();
}

void RecordingPort::WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) {
    Record(At("ws", address) + "/" + std::to_string(length) + "=" + std::string(buffer, strnlen(buffer, length)));
    Store(address, buffer, length);
}

void RecordingPort::ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Record(At("R", address) + "/" + std::to_string(*length));
    Load(address, buffer, std::min(*length, reportedCount.value_or(*length)));
    *length = reportedCount.value_or(*length);
}

void RecordingPort::WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Record(At("W", address) + "=" + AsWords(buffer, *length));
    Store(address, buffer, *length);
    *length = reportedCount.value_or(*length);
}

} // namespace Test
