#include "Simulation/SimulatedCamera.h"

#include "Simulation/Addresses.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace Simulation {

namespace {

template <typename T> void RefuseNull(const T* pointer) {
    if (pointer == nullptr) {
        throw std::invalid_argument("simulated camera: null buffer or length");
    }
}

} // namespace

SimulatedCamera::SimulatedCamera(RegisterSpace::Registers registers)
    : space(std::move(registers)),
      powerUp(space.Save({Role::Volatile})),
      sets(space.Save({Role::Setting})) {
    AfterWrite("stopacquisition", [](RegisterSpace& own) { own.Set("startacquisition", {0}); });
    AfterWrite("savesettings",
               [this](RegisterSpace& own) { sets.Save(own.Get("savesettings")[0], own.Save({Role::Setting})); });
    AfterWrite("loadsettings", [this](RegisterSpace& own) { LoadSettings(own.Get("loadsettings")[0]); });
    AfterWrite("restart", [this](RegisterSpace&) { Restart(); });
}

void SimulatedCamera::Advance(std::chrono::microseconds time) {
    const auto before = now / stepTime;
    now += time;
    for (auto step = before + 1; step <= now / stepTime; ++step) {
        for (const Step& work : steps) {
            work(space, static_cast<std::uint64_t>(step));
        }
    }
}

void SimulatedCamera::AfterWrite(const std::string& name, Behaviour behaviour) {
    behaviours.emplace_back(name, std::move(behaviour));
}

void SimulatedCamera::AfterWrite(const std::string& name, Update update) {
    AfterWrite(name, [update = std::move(update)](RegisterSpace& own, const auto&) { update(own); });
}

void SimulatedCamera::Derive(Update update) {
    update(space);
    updates.push_back(std::move(update));
}

void SimulatedCamera::DeclareAutomatic(const std::string& mode) {
    automatics.insert(mode);
    AfterWrite(mode, [this, mode](RegisterSpace&) { (void)Runs(mode); }); // "endless" must notice even a short run
}

void SimulatedCamera::LoadSettings(std::uint32_t number) {
    RegisterSpace::Content settings = sets.At(number);
    std::erase_if(settings, [&](const auto& entry) { return faults.IsStale(entry.first) || IsLocked(entry.first); });
    space.Load(settings);
    for (const Update& update : updates) {
        update(space);
    }
}

void SimulatedCamera::Restart() {
    space.Load(powerUp); // also ends the acquisition
    LoadSettings(space.Get("startupsettings")[0]);
}

bool SimulatedCamera::Accept(const RegisterSpace::Change& change) {
    const Register& entry = change.entry;
    Words words = space.Get(entry.name, change.index);
    if (IsReadOnly(entry.role) || faults.Ignores(entry.name) || IsLocked(entry.name) || !Admit(entry.limits, words)) {
        space.Set(entry.name, change.before, change.index);
        return false;
    }
    faults.Distort(entry, words);
    space.Set(entry.name, words, change.index);
    if (entry.powerUp.keepsRequest) {
        space.SetRequested(entry.name, words, change.index);
    }
    return true;
}

void SimulatedCamera::BeginAccess(const char* operation, bool writes, std::uint32_t address, std::size_t length) {
    Advance(accessTime);
    if (!space.HasAddresses(address, length)) {
        throw InvalidAddressError(operation, address);
    }
    faults.Check(operation, writes, address, length);
}

void SimulatedCamera::Write(const char* operation, std::uint32_t address, const void* data, std::uint64_t length) {
    RefuseNull(data);
    const auto size = static_cast<std::size_t>(length);
    BeginAccess(operation, true, address, size);
    const auto changes = space.Write(address, {static_cast<const std::uint8_t*>(data), size});
    for (const auto& change : changes) {
        if (Accept(change)) {
            for (const auto& [name, behaviour] : behaviours) {
                if (name == change.entry.name) {
                    behaviour(space, change);
                }
            }
        }
    }
}

void SimulatedCamera::Read(const char* operation, std::uint32_t address, void* data, std::uint64_t length) {
    RefuseNull(data);
    const auto size = static_cast<std::size_t>(length);
    BeginAccess(operation, false, address, size);
    space.Read(address, {static_cast<std::uint8_t*>(data), size});
}

/// Words of the standard's registers are big-endian, so the first byte of a text is the highest of its word.
std::uint32_t SimulatedCamera::AsWord(std::uint32_t address, std::uint32_t bytes) const {
    const Register* const entry = space.At(address);
    const bool isText = address < bootstrapEnd && (entry == nullptr || SizeOf(*entry) != sizeof bytes);
    return isText ? __builtin_bswap32(bytes) : bytes;
}

void SimulatedCamera::WriteRegister(std::uint32_t address, std::uint32_t value) {
    value = AsWord(address, value);
    Write("WriteRegister", address, &value, sizeof value);
}

std::uint32_t SimulatedCamera::ReadRegister(std::uint32_t address) {
    std::uint32_t value = 0;
    Read("ReadRegister", address, &value, sizeof value);
    return AsWord(address, value);
}

void SimulatedCamera::WriteRegisterPair(std::uint32_t address, std::uint64_t value) {
    const std::uint32_t words[] = {static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> 32)};
    Write("WriteRegisterPair", address, words, sizeof words);
}

std::uint64_t SimulatedCamera::ReadRegisterPair(std::uint32_t address) {
    std::uint32_t words[2] = {};
    Read("ReadRegisterPair", address, words, sizeof words);
    return std::uint64_t{words[1]} << 32 | words[0];
}

unsigned char* SimulatedCamera::ReadBlock(std::uint32_t address, std::uint32_t length) {
    if (faults.ReturnsNull(address)) {
        return nullptr;
    }
    // From malloc: the caller frees it.
    std::unique_ptr<unsigned char, decltype(&std::free)> block(static_cast<unsigned char*>(std::malloc(length)),
                                                               &std::free);
    if (block != nullptr) {
        Read("ReadBlock", address, block.get(), length);
    }
    return block.release();
}

void SimulatedCamera::WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) {
    Write("WriteBlock", address, buffer, length);
}

char* SimulatedCamera::ReadString(std::uint32_t address, std::uint32_t length) {
    text.assign(std::size_t{length} + 1, '\0');
    Read("ReadString", address, text.data(), length);
    return text.data();
}

void SimulatedCamera::WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) {
    Write("WriteString", address, buffer, length);
}

void SimulatedCamera::ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    RefuseNull(length);
    Read("ReadMem", address, buffer, *length);
}

void SimulatedCamera::WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) {
    RefuseNull(length);
    Write("WriteMem", address, buffer, *length);
}

} // namespace Simulation
