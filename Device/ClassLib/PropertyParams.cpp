#include "PropertyParams.h"

#include <algorithm>

namespace SDK4::Control {

CPropertyParams::CPropertyParams(std::string propertyName) : name(std::move(propertyName)) {}

CPropertyParams::CPropertyParams(std::string propertyName, std::uint32_t defaultValue)
    : CPropertyParams(std::move(propertyName), std::uint32_t{0}, std::uint32_t{0}, defaultValue) {}

CPropertyParams::CPropertyParams(std::string propertyName, std::int32_t defaultValue)
    : CPropertyParams(std::move(propertyName), std::int32_t{0}, std::int32_t{0}, defaultValue) {}

CPropertyParams::CPropertyParams(std::string propertyName, std::uint32_t minimum, std::uint32_t maximum,
                                 std::uint32_t defaultValue)
    : name(std::move(propertyName)),
      unsignedSide{minimum, maximum, defaultValue} {}

CPropertyParams::CPropertyParams(std::string propertyName, std::int32_t minimum, std::int32_t maximum,
                                 std::int32_t defaultValue)
    : name(std::move(propertyName)),
      signedSide{minimum, maximum, defaultValue},
      isUnsigned(false) {}

void CPropertyParams::SetIndex(std::int32_t i) {
    index = i;
    indexed = true;
}

void CPropertyParams::SetEnabled(bool on) {
    if (std::exchange(enabled, on) != on) {
        Notify("enabled");
    }
}

void CPropertyParams::SetImplemented(bool on) {
    if (std::exchange(implemented, on) != on) {
        Notify("implemented");
    }
}

template <typename T> void CPropertyParams::StoreMin(Side<T>& side, T minimum) {
    isUnsigned = std::is_unsigned_v<T>;
    if (std::exchange(side.minimum, minimum) != minimum) {
        Notify("minimum");
    }
    side.value = std::max(side.value, side.minimum);
}

template <typename T> void CPropertyParams::StoreMax(Side<T>& side, T maximum) {
    isUnsigned = std::is_unsigned_v<T>;
    if (std::exchange(side.maximum, maximum) != maximum) {
        Notify("maximum");
    }
    side.value = std::min(side.value, side.maximum);
}

template <typename T> void CPropertyParams::StoreDefault(Side<T>& side, T defaultValue) {
    isUnsigned = std::is_unsigned_v<T>;
    side.defaultValue = defaultValue;
}

template <typename T> bool CPropertyParams::StoreValue(Side<T>& side, T value) {
    CheckAccess();
    return std::exchange(side.value, value) != value && Notify("value");
}

template <typename T> void CPropertyParams::AdmitValue(Side<T>& side, T value) {
    if (!implemented) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_NOT_IMPLEMENTED);
    }
    if (!enabled) { // even with auto-update: the camera adjusts values, not the set of admitted values
        SDK4_THROW_QUALIFIED(SDK4_ERR_DISABLED);
    }
    if (enumCount >= maxEnumValues) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_OUTOFRANGE);
    }
    side.enumValues[enumCount++] = value;
    enumerated = true;
}

template <typename T> std::span<const T> CPropertyParams::Admitted(const Side<T>& side) const {
    return {side.enumValues.data(), enumCount};
}

template <typename T> T CPropertyParams::Min(const Side<T>& side) const {
    return enumerated ? *std::ranges::min_element(Admitted(side)) : side.minimum;
}

template <typename T> T CPropertyParams::Max(const Side<T>& side) const {
    return enumerated ? *std::ranges::max_element(Admitted(side)) : side.maximum;
}

template <typename T> bool CPropertyParams::InRange(const Side<T>& side, T value) const {
    if (enumerated) {
        return std::ranges::find(Admitted(side), value) != Admitted(side).end();
    }
    return side.minimum <= value && value <= side.maximum;
}

/// Throws unless the property is implemented, and enabled or adjusted by the camera.
void CPropertyParams::CheckAccess() const {
    if (!implemented) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_NOT_IMPLEMENTED);
    }
    if (!enabled && !autoUpdate) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_DISABLED);
    }
}

/// Notifies the observer, if any. It may remove itself, so it is not used after the call.
bool CPropertyParams::Notify(const char* attribute) const {
    if (observer.callback == nullptr) {
        return false;
    }
    observer.callback(name.c_str(), attribute, observer.context);
    return true;
}

// clang-format off
void CPropertyParams::SetMin(std::uint32_t minimum)             { StoreMin(unsignedSide, minimum); }
void CPropertyParams::SetMin(std::int32_t minimum)              { StoreMin(signedSide, minimum); }
void CPropertyParams::SetMax(std::uint32_t maximum)             { StoreMax(unsignedSide, maximum); }
void CPropertyParams::SetMax(std::int32_t maximum)              { StoreMax(signedSide, maximum); }
void CPropertyParams::SetDefault(std::uint32_t defaultValue)    { StoreDefault(unsignedSide, defaultValue); }
void CPropertyParams::SetDefault(std::int32_t defaultValue)     { StoreDefault(signedSide, defaultValue); }
bool CPropertyParams::SetValue(std::uint32_t value)             { return StoreValue(unsignedSide, value); }
bool CPropertyParams::SetValue(std::int32_t value)              { return StoreValue(signedSide, value); }
void CPropertyParams::SetEnumValue(std::uint32_t value)         { AdmitValue(unsignedSide, value); }
void CPropertyParams::SetEnumValue(std::int32_t value)          { AdmitValue(signedSide, value); }
bool CPropertyParams::IsValueInRange(std::uint32_t value) const { return InRange(unsignedSide, value); }
bool CPropertyParams::IsValueInRange(std::int32_t value) const  { return InRange(signedSide, value); }
std::uint32_t CPropertyParams::GetUIntMin() const               { return Min(unsignedSide); }
std::uint32_t CPropertyParams::GetUIntMax() const               { return Max(unsignedSide); }
std::int32_t CPropertyParams::GetIntMin() const                 { return Min(signedSide); }
std::int32_t CPropertyParams::GetIntMax() const                 { return Max(signedSide); }
std::uint32_t CPropertyParams::GetUIntValue() const             { CheckAccess(); return unsignedSide.value; }
std::int32_t CPropertyParams::GetIntValue() const               { CheckAccess(); return signedSide.value; }
// clang-format on

} // namespace SDK4::Control
