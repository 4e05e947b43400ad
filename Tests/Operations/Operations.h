#pragma once

// The one table of all operations that a host can call on a camera, with their results and port accesses. A new
// operation is one row in the file of its group. Accesses are in the notation of RecordingPort.
//
// Every row holds for two ways to open the camera, by family: cached (Orvik index 0, M2VX index 3) and uncached (Orvik
// index 2, M2VX index 0).

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

/// The accesses of the first call and of the same call repeated at once, by a cached and by an uncached control.
struct Accesses {
    std::string first, again, firstUncached, againUncached;
    std::string affected; ///< the cached getters that the call affects, see Stales and Changes

    /// The names, without interface and in any order, of the getters whose cached value the call makes stale. "all but
    /// " names those that stay valid instead. Other calls must make no getter stale.
    Accesses Stales(std::string names) const;

    /// M2VX: the names of the getters that answer differently after the call, another value or another error. Other
    /// calls must change no answer.
    Accesses Changes(std::string names) const { return Stales(std::move(names)); }

    /// Adds the read of the function-model identifier to the first call. It is cached even with index 2.
    Accesses AskingModel() const;
};

Accesses Always(std::string accesses);                   ///< the same for every call: cache mode 0, or a write
Accesses Settling(std::string first, std::string again); ///< the second call at index 0 makes fewer accesses
Accesses Cached(std::string accesses);                   ///< the second call at index 0 makes no access
Accesses Kept(std::string accesses);                     ///< the second call makes no access, even with index 2
Accesses ReadThrough(std::string accesses);              ///< M2VX: only an uncached control reads the camera
inline Accesses Never() { return {}; }

/// M2VX: the accesses of a setter, after which the getter of the same name, or its row for @p instance such as
/// "GetABCThreshold 1", answers differently.
Accesses Sets(std::string accesses, const std::string& instance = "");

struct Preset {
    std::uint32_t address;
    Bytes bytes;
    int index = -1; ///< for one instance of an indexed register
};

/// The state of the camera before the call. By default a monochrome camera with image memory, automatic modes off.
struct State {
    std::vector<Preset> presets{};
    const char* model = "Orvik-31200M";
    Call before{}; ///< called first, such as the start of the acquisition

    [[nodiscard]] bool IsM2VX() const { return std::string(model) == m2vxModel; }
    [[nodiscard]] int CachedIndex() const { return IsM2VX() ? 3 : 0; }
    [[nodiscard]] int UncachedIndex() const { return IsM2VX() ? 0 : 2; }

    static constexpr const char* m2vxModel = "Cerix7-MV";
};

/// The default state with one different word, or one of an instance.
State With(std::uint32_t address, std::uint32_t word, int index = -1);
State Colour();                        ///< a colour camera with image memory
State Streaming();                     ///< the acquisition runs
State After(Call call);                ///< after a call by the host
State Disabling(const char* property); ///< M2VX: the host has disabled the property
State WithoutMemory();                 ///< a monochrome camera without image memory

struct Operation {
    std::string name; ///< "IGain::SetGain", then after a blank the circumstances of the row
    Call call;
    std::string result; ///< the result as text, or the name of the error code
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

/// Sets up the camera behind @p port, without State::before.
void Prepare(RecordingPort& port, const State& state);

/// The same, without the values of instances.
void Prepare(FlatPort& port, const State& state);

/// The result of a call, or the name of the error code that it threw.
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

/// An interface of the camera or of its media type.
template <typename Interface> Interface& Part(IDynamicObject& camera) {
    if constexpr (std::is_base_of_v<SDK4::IMediaType, Interface>) {
        return dynamic_cast<Interface&>(*dynamic_cast<SDK4::Control::IDSMediaType&>(camera).GetMediaType());
    } else {
        return dynamic_cast<Interface&>(camera);
    }
}

/// Whether the camera has the interface. All cameras have a media type.
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

/// A firmware for SetUpdateFile, which every camera refuses.
inline unsigned char firmware[4];

/// A state of an M2VX camera. Converts rows of several groups to rows of that family.
State OnM2VX(State state = {});
std::vector<Operation> OnM2VX(const std::vector<std::vector<Operation>>& groups);

} // namespace Test
