#pragma once

#include "Log.h"
#include "M2VXCamera.h"
#include "M2VXControlImpl/PropertyRows.h"
#include "RT6Camera.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace SDK4::Control {

/// The sequences of checks, accesses and stores between a property and its registers. A register is given by the method
/// of the register map; its index comes last.
///
/// If a register map throws, the property keeps its value.
class CPropertyAccess {
public:
    /// The precondition of a setter.
    enum class Gate { Implemented, Enabled };

    /// @param readThrough whether getters read the camera instead of the property
    CPropertyAccess(CRT6Camera& commonMap, CM2VXCamera& familyMap, bool readThrough)
        : common(commonMap),
          family(familyMap),
          reading(readThrough) {}

    /// A getter: checks implemented, then returns the value of the camera or of the property as Result.
    template <typename Result = void, typename Property, typename Map, typename Value, typename... Parameters,
              typename... Index>
    auto Get(Property& property, Value (Map::*read)(Parameters...), Index... index) const {
        using Returned = std::conditional_t<std::is_void_v<Result>, Value, Result>;
        if (!property.GetImplemented()) {
            SDK4_THROW_QUALIFIED(SDK4_ERR_NOT_IMPLEMENTED);
        }
        return reading ? static_cast<Returned>(Read(read, index...)) : Load<Returned>(property);
    }

    /// A setter: checks implemented, enabled if @p gate says so, and range; then writes and stores.
    template <Gate gate = Gate::Implemented, typename Property, typename Value, typename WriteMethod, typename... Index>
    void Set(Property& property, Value value, WriteMethod write, Index... index) const {
        Send<gate>(property, value, write, index...);
        Store(property, value);
    }

    /// The same for a command: the value is not stored.
    template <Gate gate = Gate::Implemented, typename Property, typename Value, typename WriteMethod, typename... Index>
    void Send(Property& property, Value value, WriteMethod write, Index... index) const {
        Check<gate>(property);
        if (!InRange(property, value)) {
            SDK4_THROW(SDK4_ERR_OUTOFRANGE);
        }
        Write(write, index..., value);
    }

    /// A setter that lets the camera clamp: a value out of range is written, the value read back is stored, and then
    /// SDK4_ERR_OUTOFRANGE is thrown.
    template <Gate gate = Gate::Implemented, typename Property, typename Value, typename WriteMethod,
              typename ReadMethod, typename... Index>
    void SetThenReport(Property& property, Value value, WriteMethod write, ReadMethod read, Index... index) const {
        Check<gate>(property);
        const bool admitted = InRange(property, value);
        Write(write, index..., value);
        Store(property, admitted ? value : Read(read, index...));
        if (!admitted) {
            SDK4_THROW(SDK4_ERR_OUTOFRANGE);
        }
    }

    template <Gate gate, typename Property> void Check(const Property& property) const {
        if (!property.GetImplemented()) {
            SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
        }
        if (gate == Gate::Enabled && !property.GetEnabled()) {
            SDK4_THROW(SDK4_ERR_DISABLED);
        }
    }

    /// Fills a property from the camera, without a range check.
    template <typename Property, typename ReadMethod, typename... Index>
    void Fill(Property& property, ReadMethod read, Index... index) const {
        Store(property, Read(read, index...));
    }

private:
    template <typename Map> Map& On() const {
        if constexpr (std::is_same_v<Map, CRT6Camera>) {
            return common;
        } else {
            return family;
        }
    }

    template <typename Map, typename Value, typename... Parameters, typename... Arguments>
    Value Read(Value (Map::*read)(Parameters...), Arguments... arguments) const {
        return (On<Map>().*read)(static_cast<Parameters>(arguments)...);
    }

    template <typename Map, typename... Parameters, typename... Arguments>
    void Write(void (Map::*write)(Parameters...), Arguments... arguments) const {
        (On<Map>().*write)(static_cast<Parameters>(arguments)...);
    }

    static bool InRange(const CPropertyParams& property, std::uint32_t value) { return property.IsValueInRange(value); }

    // Many operations take an int where the property is unsigned.
    static bool InRange(const CPropertyParams& property, std::int32_t value) {
        if (property.IsUnsigned()) {
            return value >= 0 && property.IsValueInRange(static_cast<std::uint32_t>(value));
        }
        return property.IsValueInRange(value);
    }

    template <std::size_t N, typename Record>
    static bool InRange(const CompoundProperty<N>& property, const Record& record) {
        static_assert(sizeof(Record) == N * sizeof(std::uint32_t));
        return property.IsValueInRange(&record);
    }

    static void Store(CPropertyParams& property, std::uint32_t value) { property.SetValue(value); }

    static void Store(CPropertyParams& property, std::int32_t value) {
        if (property.IsUnsigned()) {
            property.SetValue(static_cast<std::uint32_t>(value));
        } else {
            property.SetValue(value);
        }
    }

    template <std::size_t N, typename Record> static void Store(CompoundProperty<N>& property, const Record& record) {
        static_assert(sizeof(Record) == N * sizeof(std::uint32_t));
        property.SetValue(&record);
    }

    template <typename Value> static Value Load(const CPropertyParams& property) {
        if (property.IsUnsigned()) {
            return static_cast<Value>(property.GetUIntValue());
        }
        return static_cast<Value>(property.GetIntValue());
    }

    template <typename Record, std::size_t N> static Record Load(const CompoundProperty<N>& property) {
        static_assert(sizeof(Record) == N * sizeof(std::uint32_t));
        Record record{};
        property.GetValue(&record);
        return record;
    }

    CRT6Camera& common;
    CM2VXCamera& family;
    const bool reading;
};

} // namespace SDK4::Control
