#include "Host/Recording/ReplayPort.h"

#include "Common/Number.h"
#include "Host/CurrentCall.h"
#include "Host/Format.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace Host {

namespace {

/// "WriteMem at 0x14010000 of 9 (set gain)"
std::string Describe(const RecordedAccess& access) {
    const std::string content = access.write ? FormatBytes(access.data) : std::to_string(access.length) + " bytes";
    return access.operation + " at " + Common::Hex(access.address) + " of " + content +
           (access.call.empty() ? "" : " (" + access.call + ")");
}

bool AreSame(const RecordedAccess& one, const RecordedAccess& other) {
    return one.operation == other.operation && one.address == other.address && one.length == other.length &&
           (!one.write || one.data == other.data);
}

} // namespace

ReplayPort::ReplayPort(Recording replayed, bool answersLoosely)
    : recording(std::move(replayed)),
      loose(answersLoosely) {
    for (const RecordedAccess& access : recording.accesses) {
        if (access.write) {
            lastWrites[access.address] = access.data;
        } else {
            samples[{access.operation, access.address, access.length}].push_back({&access, lastWrites[access.address]});
        }
    }
    for (auto& [address, written] : lastWrites) { // the addresses stay
        written.clear();
    }
}

std::string ReplayPort::DescribeRest() const {
    if (loose || !difference.empty() || next == recording.accesses.size()) {
        return "";
    }
    const RecordedAccess& first = recording.accesses[next];
    return std::to_string(recording.accesses.size() - next) +
           " accesses of the recording were not made, the first in line " + std::to_string(first.line) + ": " +
           Describe(first) + "; recorded with: " + first.command;
}

void ReplayPort::Stop(const RecordedAccess& made, const std::string& reason) {
    difference = reason;
    throw ReplayDiffers(made.operation, made.address, reason);
}

const RecordedAccess& ReplayPort::Next(const RecordedAccess& made) {
    if (!difference.empty()) {
        Stop(made, difference);
    }
    if (next == recording.accesses.size()) {
        Stop(made, "the recording ends after line " + std::to_string(recording.lastLine) +
                       (recording.isTruncated ? ", truncated" : "") + "; recorded with: " + recording.lastCommand);
    }
    const RecordedAccess& recorded = recording.accesses[next];
    if (!AreSame(recorded, made)) {
        Stop(made, "line " + std::to_string(recorded.line) + " of the recording has " + Describe(recorded) +
                       ", this run " + Describe(made) + "; recorded with: " + recorded.command);
    }
    ++next;
    return recorded;
}

const RecordedAccess& ReplayPort::LastBefore(const RecordedAccess& made) {
    const auto found = samples.find({made.operation, made.address, made.length});
    if (found == samples.end()) {
        throw ChannelError(made.operation, made.address, "the recording has no " + Describe(made));
    }
    const Bytes& written = lastWrites[made.address];
    const RecordedAccess* same = nullptr; // after the same write
    const RecordedAccess* any = found->second.front().access;
    for (const Sample& sample : found->second) {
        const bool isPast = std::chrono::microseconds(sample.access->microseconds) <= time;
        any = isPast ? sample.access : any;
        if (!written.empty() && sample.written == written && (isPast || same == nullptr)) {
            same = sample.access;
        }
    }
    return same == nullptr ? *any : *same;
}

void ReplayPort::AcceptLoosely(const RecordedAccess& made) {
    const bool isKnown = lastWrites.contains(made.address);
    if (!isKnown) {
        throw ChannelError(made.operation, made.address, "the recording has no access to this address");
    }
    lastWrites[made.address] = made.data;
}

const ReplayPort::Bytes* ReplayPort::Answer(const RecordedAccess& recorded) {
    time += std::chrono::microseconds(recorded.duration);
    const AccessFailure& failure = recorded.failure;
    if (failure.kind == nothingReturned) {
        return nullptr;
    }
    if (!failure.kind.empty()) {
        try {
            ThrowAgain(failure, recorded.operation, recorded.address);
        } catch (const ControlHeld&) {
            denial = failure.reason;
            throw;
        }
    }
    return &recorded.data;
}

const ReplayPort::Bytes* ReplayPort::Read(const char* operation, std::uint32_t address, std::uint64_t length) {
    RecordedAccess made{.call = CurrentCall::Name(), .operation = operation, .address = address, .length = length};
    return Answer(loose ? LastBefore(made) : Next(made));
}

void ReplayPort::Write(const char* operation, std::uint32_t address, const void* data, std::uint64_t length) {
    const auto* const bytes = static_cast<const std::uint8_t*>(data);
    RecordedAccess made{.call = CurrentCall::Name(),
                        .operation = operation,
                        .address = address,
                        .write = true,
                        .data = {bytes, bytes + length},
                        .length = length};
    if (loose) {
        AcceptLoosely(made);
    } else {
        Answer(Next(made));
    }
}

template <typename Word> Word ReplayPort::ReadWord(const char* operation, std::uint32_t address) {
    Word value = 0;
    if (const Bytes* const bytes = Read(operation, address, sizeof value)) {
        std::memcpy(&value, bytes->data(), sizeof value);
    }
    return value;
}

void ReplayPort::WriteRegister(std::uint32_t address, std::uint32_t value) {
    Write("WriteRegister", address, &value, sizeof value);
}

std::uint32_t ReplayPort::ReadRegister(std::uint32_t address) {
    return ReadWord<std::uint32_t>("ReadRegister", address);
}

void ReplayPort::WriteRegisterPair(std::uint32_t address, std::uint64_t value) {
    Write("WriteRegisterPair", address, &value, sizeof value);
}

std::uint64_t ReplayPort::ReadRegisterPair(std::uint32_t address) {
    return ReadWord<std::uint64_t>("ReadRegisterPair", address);
}

unsigned char* ReplayPort::ReadBlock(std::uint32_t address, std::uint32_t length) {
    const Bytes* const bytes = Read("ReadBlock", address, length);
    auto* const block = bytes == nullptr ? nullptr : static_cast<unsigned char*>(std::malloc(length)); // the caller's
    if (block != nullptr) {
        std::copy(bytes->begin(), bytes->end(), block);
    }
    return block;
}

void ReplayPort::WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) {
    Write("WriteBlock", address, buffer, length);
}

char* ReplayPort::ReadString(std::uint32_t address, std::uint32_t length) {
    const Bytes* const bytes = Read("ReadString", address, length);
    if (bytes == nullptr) {
        return nullptr;
    }
    text.assign(bytes->begin(), bytes->end());
    text.push_back('\0');
    return text.data();
}

void ReplayPort::WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) {
    Write("WriteString", address, buffer, length);
}

void ReplayPort::ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    const Bytes* const bytes = Read("ReadMem", address, *length);
    *length = bytes == nullptr ? 0 : bytes->size();
    if (bytes != nullptr) {
        std::copy(bytes->begin(), bytes->end(), buffer);
    }
}

void ReplayPort::WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    Write("WriteMem", address, buffer, *length);
}

} // namespace Host
