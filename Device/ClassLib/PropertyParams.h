#pragma once

#include "Log.h"

#include <SDK4/Callback.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <utility>

namespace SDK4::Control {

/// A change callback and its context.
struct Observer {
    SDK4_CALLBACK callback = nullptr;
    void* context = nullptr;
};

/// One named camera parameter of a property-based control: limits, default, value, whether the camera has it, whether
/// it can be changed now. One observer is notified of every change.
///
/// The unsigned and the signed operations work on separate storage. The unsigned flag, set by the constructor and by
/// every limit or default written, says which of the two is used. A new property has the value 0, whatever its default.
///
/// Take care with literals: 5 is signed, 5u is unsigned.
class CPropertyParams {
public:
    static constexpr std::uint32_t maxEnumValues = 20;

    explicit CPropertyParams(std::string propertyName);
    CPropertyParams(std::string propertyName, std::uint32_t defaultValue);
    CPropertyParams(std::string propertyName, std::int32_t defaultValue);
    CPropertyParams(std::string propertyName, std::uint32_t minimum, std::uint32_t maximum, std::uint32_t defaultValue);
    CPropertyParams(std::string propertyName, std::int32_t minimum, std::int32_t maximum, std::int32_t defaultValue);
    CPropertyParams(const CPropertyParams&) = delete;
    CPropertyParams& operator=(const CPropertyParams&) = delete;

    std::string GetName() const { return name; }
    const std::string& Name() const { return name; } ///< without the copy

    void SetIndex(std::int32_t i); ///< makes the property indexed
    std::int32_t GetIndex() const { return index; }
    bool IsIndexed() const { return indexed; }
    bool IsEnumerated() const { return enumerated; }
    bool IsUnsigned() const { return isUnsigned; }

    /// A property that the camera adjusts can be stored and read while it is disabled.
    void SetAutoUpdate(bool on) { autoUpdate = on; }
    bool GetAutoUpdate() const { return autoUpdate; }

    /// There is one observer: a new one replaces the old, and RemoveCallback ignores its argument.
    void AddCallback(SDK4_CALLBACK callback, void* context) { observer = {callback, context}; }
    void RemoveCallback(SDK4_CALLBACK) { observer = {}; }

    bool GetEnabled() const { return enabled; }
    bool GetImplemented() const { return implemented; }
    void SetEnabled(bool on);     ///< reports "enabled" on a change
    void SetImplemented(bool on); ///< reports "implemented" on a change

    /// Report "minimum" or "maximum" on a change, then clamp the value to the limit without a report.
    void SetMin(std::uint32_t minimum);
    void SetMin(std::int32_t minimum);
    void SetMax(std::uint32_t maximum);
    void SetMax(std::int32_t maximum);
    void SetDefault(std::uint32_t defaultValue);
    void SetDefault(std::int32_t defaultValue);

    /// The limits, or the smallest and the largest value of an enumerated property.
    std::uint32_t GetUIntMin() const;
    std::uint32_t GetUIntMax() const;
    std::int32_t GetIntMin() const;
    std::int32_t GetIntMax() const;
    std::uint32_t GetUIntDefault() const { return unsignedSide.defaultValue; }
    std::int32_t GetIntDefault() const { return signedSide.defaultValue; }

    bool IsValueInRange(std::uint32_t value) const;
    bool IsValueInRange(std::int32_t value) const;

    /// Store the value without a range check, which is up to the caller. Report "value" on a change. Throw
    /// SDK4_ERR_NOT_IMPLEMENTED, or SDK4_ERR_DISABLED unless enabled or auto-update is set.
    /// @return whether an observer was notified; false also for a changed value without an observer
    bool SetValue(std::uint32_t value);
    bool SetValue(std::int32_t value);

    /// Throw as SetValue does.
    std::uint32_t GetUIntValue() const;
    std::int32_t GetIntValue() const;

    /// The unsigned value, even if the property is disabled. For the control itself.
    std::uint32_t StoredUIntValue() const { return unsignedSide.value; }

    /// Add an admitted value. The property is enumerated from then on. Throw SDK4_ERR_NOT_IMPLEMENTED,
    /// SDK4_ERR_DISABLED unless enabled, SDK4_ERR_OUTOFRANGE after maxEnumValues.
    void SetEnumValue(std::uint32_t value);
    void SetEnumValue(std::int32_t value);

private:
    /// The part of a property that exists both unsigned and signed.
    template <typename T> struct Side {
        T minimum = 0;
        T maximum = 0;
        T defaultValue = 0;
        T value = 0;
        std::array<T, maxEnumValues> enumValues{};
    };

    // Each operation is written once, for either side.
    template <typename T> void StoreMin(Side<T>& side, T minimum);
    template <typename T> void StoreMax(Side<T>& side, T maximum);
    template <typename T> void StoreDefault(Side<T>& side, T defaultValue);
    template <typename T> bool StoreValue(Side<T>& side, T value);
    template <typename T> void AdmitValue(Side<T>& side, T value);
    template <typename T> std::span<const T> Admitted(const Side<T>& side) const;
    template <typename T> T Min(const Side<T>& side) const;
    template <typename T> T Max(const Side<T>& side) const;
    template <typename T> bool InRange(const Side<T>& side, T value) const;

    void CheckAccess() const;
    bool Notify(const char* attribute) const;

    bool enabled = true;
    bool implemented = true;
    std::string name;
    Side<std::uint32_t> unsignedSide;
    Side<std::int32_t> signedSide;
    bool enumerated = false;
    std::uint32_t enumCount = 0; // one count for both sides: a property is enumerated on one of them only
    Observer observer;
    bool autoUpdate = false;
    bool isUnsigned = true;
    std::int32_t index = 0;
    bool indexed = false;
};

/// N unsigned words, one per sub-property.
template <std::size_t N> struct UIntRecord { std::uint32_t values[N]; };

// NOLINTBEGIN(bugprone-reserved-identifier): the names are given
using _Sdk4_2UInts = UIntRecord<2>;
using _Sdk4_3UInts = UIntRecord<3>;
using _Sdk4_4UInts = UIntRecord<4>;
using _Sdk4_5UInts = UIntRecord<5>;
// NOLINTEND(bugprone-reserved-identifier)

/// T once for every number of a pack: typename Each<T, I>::Type... is a plain parameter list. With an alias template,
/// GCC takes the overloads for every T as the same signature.
template <typename T, std::size_t> struct Each { using Type = T; };

template <std::size_t N, typename = std::make_index_sequence<N>, typename = std::make_index_sequence<3 * N>>
class CompoundParams;

/// N scalar properties that are read and written together as one record of N words, first sub-property first. Word i is
/// signed or unsigned as sub-property i is. Only the sub-properties have names ("position.xpos") and report changes.
///
/// I counts the sub-properties, J their limits.
template <std::size_t N, std::size_t... I, std::size_t... J>
class CompoundParams<N, std::index_sequence<I...>, std::index_sequence<J...>> {
public:
    static constexpr std::size_t count = N;

    CompoundParams(const std::string& name, typename Each<const std::string&, I>::Type... subNames)
        : subs{CPropertyParams(name + '.' + subNames)...} {}

    /// N defaults.
    CompoundParams(const std::string& name, typename Each<const std::string&, I>::Type... subNames,
                   typename Each<std::uint32_t, I>::Type... defaults)
        : subs{CPropertyParams(name + '.' + subNames, defaults)...} {}

    CompoundParams(const std::string& name, typename Each<const std::string&, I>::Type... subNames,
                   const UIntRecord<N>& minimum, const UIntRecord<N>& maximum, const UIntRecord<N>& defaults)
        : subs{CPropertyParams(name + '.' + subNames, minimum.values[I], maximum.values[I], defaults.values[I])...} {}

    /// 3 N limits, all unsigned or all signed: minimum, maximum, default of the first sub-property, then of the second.
    CompoundParams(const std::string& name, typename Each<const std::string&, I>::Type... subNames,
                   typename Each<std::uint32_t, J>::Type... limits)
        : CompoundParams(std::array<std::uint32_t, 3 * N>{limits...}, name, subNames...) {}
    CompoundParams(const std::string& name, typename Each<const std::string&, I>::Type... subNames,
                   typename Each<std::int32_t, J>::Type... limits)
        : CompoundParams(std::array<std::int32_t, 3 * N>{limits...}, name, subNames...) {}

    /// The sub-property itself. Owned by this object.
    CPropertyParams* GetSubProperty(std::size_t i) { return &subs[i]; }

    void SetMin(typename Each<std::uint32_t, I>::Type... minimum) { (subs[I].SetMin(minimum), ...); }
    void SetMax(typename Each<std::uint32_t, I>::Type... maximum) { (subs[I].SetMax(maximum), ...); }

    void SetAutoUpdate(bool on) { (subs[I].SetAutoUpdate(on), ...); }
    bool GetAutoUpdate() const { return (subs[I].GetAutoUpdate() && ...); }

    bool GetEnabled() const { return enabled; }
    bool GetImplemented() const { return implemented; }

    void SetEnabled(bool on) {
        enabled = on;
        (subs[I].SetEnabled(on), ...);
    }

    void SetImplemented(bool on) {
        implemented = on;
        (subs[I].SetImplemented(on), ...);
    }

    /// Kept, never called: the sub-properties report to observers of their own.
    void AddCallback(SDK4_CALLBACK callback, void* context) { observer = {callback, context}; }
    void RemoveCallback(SDK4_CALLBACK) { observer = {}; }

    bool IsValueInRange(const void* record) const {
        const Words words = WordsOf(record);
        return (InRange(subs[I], words[I]) && ...);
    }

    /// Stores every word. If a sub-property throws, those before it stay stored. Throws SDK4_ERR_NOT_IMPLEMENTED. Each
    /// sub-property checks its own enabled flag.
    /// @return whether an observer was notified of any change
    bool SetValue(const void* record) {
        CheckImplemented();
        const Words words = WordsOf(record);
        bool told = false;
        ((told = Store(subs[I], words[I]) || told), ...);
        return told;
    }

    /// Fills the record if every sub-property can be read. Throws as SetValue does.
    void GetValue(void* record) const {
        CheckImplemented();
        const Words words = {Load(subs[I])...};
        std::memcpy(record, words.data(), sizeof words);
    }

private:
    using Words = std::array<std::uint32_t, N>;

    template <typename T>
    CompoundParams(const std::array<T, 3 * N>& limits, const std::string& name,
                   typename Each<const std::string&, I>::Type... subNames)
        : subs{CPropertyParams(name + '.' + subNames, limits[3 * I], limits[3 * I + 1], limits[3 * I + 2])...} {}

    static Words WordsOf(const void* record) {
        Words words{};
        std::memcpy(words.data(), record, sizeof words);
        return words;
    }

    static bool InRange(const CPropertyParams& sub, std::uint32_t word) {
        return sub.IsUnsigned() ? sub.IsValueInRange(word) : sub.IsValueInRange(static_cast<std::int32_t>(word));
    }

    static bool Store(CPropertyParams& sub, std::uint32_t word) {
        return sub.IsUnsigned() ? sub.SetValue(word) : sub.SetValue(static_cast<std::int32_t>(word));
    }

    static std::uint32_t Load(const CPropertyParams& sub) {
        return sub.IsUnsigned() ? sub.GetUIntValue() : static_cast<std::uint32_t>(sub.GetIntValue());
    }

    void CheckImplemented() const {
        if (!implemented) {
            SDK4_THROW_QUALIFIED(SDK4_ERR_NOT_IMPLEMENTED);
        }
    }

    std::array<CPropertyParams, N> subs;
    bool enabled = true;
    bool implemented = true;
    Observer observer;
};

using C2PropertyParams = CompoundParams<2>;
using C3PropertyParams = CompoundParams<3>;
using C4PropertyParams = CompoundParams<4>;
using C5PropertyParams = CompoundParams<5>;

} // namespace SDK4::Control
