#pragma once

// The one table of everything a host can call on a camera: what it answers and which port accesses it costs. A new
// operation is one row in the file of its group. The accesses are written as RecordingPort writes them down.
//
// Every row holds for two ways to open the camera, by family: remembering what it can (Orvik index 0, M2VX index 3),
// and reading the camera every time (Orvik index 2, M2VX index 0).

#include "Tests/Support/FlatPort.h"
#include "Tests/Support/RecordingPort.h"

#include <SDK4/SDK4.h>

#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace Test {

/// Calls an operation on an opened camera and returns its result as text.
using Call = std::function<std::string(IDynamicObject&)>;

/// The accesses of the first and of an immediately repeated call, on a camera that remembers and on one that reads.
struct Accesses {
    std::string first, again, firstUncached, againUncached;
    std::string affected; ///< the cached getters that notice the call, see Stales and Changes

    /// The names, without interface and in any order, of the getters whose cached value the call made stale; "all but "
    /// in front names those that keep theirs. For calls without this, no getter may turn stale.
    Accesses Stales(std::string names) const;

    /// M2VX: the names of the getters that answer differently after the call, another value or another refusal. For
    /// calls without this, all answer as before.
    Accesses Changes(std::string names) const { return Stales(std::move(names)); }

    /// Adds, to the first call only, the read of the function-model identifier: it is kept even with index 2.
    Accesses AskingModel() const;
};

Accesses Always(std::string accesses);                   ///< the same every time: cache mode 0, or a write
Accesses Settling(std::string first, std::string again); ///< the second call at index 0 finds something in the cache
Accesses Cached(std::string accesses);                   ///< the second call at index 0 costs nothing
Accesses Kept(std::string accesses);                     ///< the second call costs nothing, even with index 2
Accesses ReadThrough(std::string accesses);              ///< M2VX: only a camera that does not remember is read
inline Accesses Never() { return {}; }

/// M2VX: the accesses of a setter, after which the getter of the same name answers differently, or its row for @p
/// instance, "GetABCThreshold 1".
Accesses Sets(std::string accesses, const std::string& instance = "");

struct Preset {
    std::uint32_t address;
    Bytes bytes;
    int index = -1; ///< for one of several instances
};

/// The state of the camera before the call. Without anything: a mono camera with image memory, automatic modes off.
struct State {
    std::vector<Preset> presets{};
    const char* model = "Orvik-31200M";
    Call before{}; ///< called first, for example the start of the acquisition

    [[nodiscard]] bool IsM2VX() const { return std::string(model) == m2vxModel; }
    [[nodiscard]] int RememberingIndex() const { return IsM2VX() ? 3 : 0; }
    [[nodiscard]] int ReadingIndex() const { return IsM2VX() ? 0 : 2; }

    static constexpr const char* m2vxModel = "Cerix7-MV";
};

/// The state that differs in one word, or in that of one of several instances.
State With(std::uint32_t address, std::uint32_t word, int index = -1);
State Colour();                        ///< a colour camera with image memory
State Streaming();                     ///< the acquisition runs
State After(Call call);                ///< the host has called something
State Disabling(const char* property); ///< M2VX: the host has disabled a property
State WithoutMemory();                 ///< a mono camera without image memory

struct Operation {
    std::string name; ///< "IGain::SetGain", and after a blank what is special about the row
    Call call;
    std::string result; ///< the result as text or the name of the error code
    Accesses accesses;
    State state{};
};

inline const std::string done = "done", outOfRange = "SDK4_ERR_OUTOFRANGE", invalid = "SDK4_ERR_INVALID_PARAMETER",
                         locked = "SDK4_ERR_CANTSETFEATURE", disabled = "SDK4_ERR_DISABLED",
                         notImplemented = "SDK4_ERR_NOT_IMPLEMENTED";

/// All rows. Those of the M2VX family are named "M2VX::IGain::SetGain".
const std::vector<Operation>& Operations();
/// The row of that name. @throws std::out_of_range
const Operation& FindOperation(const std::string& name);

/// Brings the camera behind @p port into the state before the call, except for State::before.
void Prepare(RecordingPort& port, const State& state);

/// The same, but for the values of instances.
void Prepare(FlatPort& port, const State& state);

/// The result of a call, or the name of the code of the X4Error that it threw.
std::string Outcome(const Call& call, IDynamicObject& camera);

// ---- building rows ----

std::string Text(const char* text);
std::string Text(SDK4::IMediaType* mediaType);
std::string TextOfWords(const void* words, std::size_t count);

template <typename T> std::string Text(const T& value) {
    if constexpr (std::is_enum_v<T>) {
        return std::to_string(static_cast<std::underlying_type_t<T>>(value));
    } else if constexpr (std::is_arithmetic_v<T>) {
        return std::to_string(value);
    } else {
        return TextOfWords(&value, sizeof value / 4);
    }
}

/// The interface as the camera has it, or as its media type has it.
template <typename Interface> Interface& Part(IDynamicObject& camera) {
    if constexpr (std::is_base_of_v<SDK4::IMediaType, Interface>) {
        return dynamic_cast<Interface&>(*dynamic_cast<SDK4::Control::IDSMediaType&>(camera).GetMediaType());
    } else {
        return dynamic_cast<Interface&>(camera);
    }
}

/// Whether the camera has the interface. All have a media type.
template <typename Interface> bool Has(IDynamicObject& camera) {
    return std::is_base_of_v<SDK4::IMediaType, Interface> || dynamic_cast<Interface*>(&camera) != nullptr;
}

/// A call of one operation with fixed arguments.
template <typename Interface, typename Result, typename... Parameters, typename... Arguments>
Call On(Result (Interface::*operation)(Parameters...), Arguments... arguments) {
    return [operation, values = std::tuple<Parameters...>(arguments...)](IDynamicObject& camera) {
        auto& interface = Part<Interface>(camera);
        const auto invoke = [&](auto... value) { return (interface.*operation)(value...); };
        if constexpr (std::is_void_v<Result>) {
            std::apply(invoke, values);
            return done;
        } else {
            return Text(std::apply(invoke, values));
        }
    };
}

std::vector<Operation> AccessOperations();
std::vector<Operation> NetworkOperations();
std::vector<Operation> ImagingOperations();
std::vector<Operation> ProcessingOperations();
std::vector<Operation> DeviceOperations();
std::vector<Operation> M2VXImagingOperations();
std::vector<Operation> M2VXDeviceOperations();

/// A firmware for SetUpdateFile, which no camera takes.
inline unsigned char firmware[4];

/// A state of an M2VX camera; rows of several groups as rows of that family.
State OnM2VX(State state = {});
std::vector<Operation> OnM2VX(const std::vector<std::vector<Operation>>& groups);

} // namespace Test
