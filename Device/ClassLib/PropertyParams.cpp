#include "PropertyParams.h"

#include <algorithm>
#include <limits>

namespace SDK4::Control {

CPropertyParams::CPropertyParams(std::string name) : m_name(std::move(name)) {}

CPropertyParams::CPropertyParams(std::string name, std::uint32_t defaultValue)
    : CPropertyParams(std::move(name), std::uint32_t{0}, std::uint32_t{0}, defaultValue) {}

CPropertyParams::CPropertyParams(std::string name, std::int32_t defaultValue)
    : CPropertyParams(std::move(name), std::int32_t{0}, std::int32_t{0}, defaultValue) {}

CPropertyParams::CPropertyParams(std::string name, std::uint32_t minimum, std::uint32_t maximum,
                                 std::uint32_t defaultValue)
    : m_name(std::move(name)),
      m_unsignedSide{minimum, maximum, defaultValue} {}

CPropertyParams::CPropertyParams(std::string name, std::int32_t minimum, std::int32_t maximum,
                                 std::int32_t defaultValue)
    : m_name(std::move(name)),
      m_signedSide{minimum, maximum, defaultValue},
      m_unsigned(false) {}

void CPropertyParams::SetIndex(std::int32_t index) {
    m_index = index;
    m_indexed = true;
}

void CPropertyParams::AddCallback(SDK4_CALLBACK callback, void* context) {
    m_callback = callback;
    m_context = context;
}

void CPropertyParams::RemoveCallback(SDK4_CALLBACK) { AddCallback(nullptr, nullptr); }

void CPropertyParams::SetEnabled(bool enabled) {
    if (std::exchange(m_enabled, enabled) != enabled) {
        Notify("enabled");
    }
}

void CPropertyParams::SetImplemented(bool implemented) {
    if (std::exchange(m_implemented, implemented) != implemented) {
        Notify("implemented");
    }
}

template <typename T> void CPropertyParams::StoreMin(Side<T>& side, T minimum) {
    m_unsigned = std::is_unsigned_v<T>;
    if (std::exchange(side.minimum, minimum) != minimum) {
        Notify("minimum");
    }
    side.value = std::max(side.value, side.minimum);
}

template <typename T> void CPropertyParams::StoreMax(Side<T>& side, T maximum) {
    m_unsigned = std::is_unsigned_v<T>;
    if (std::exchange(side.maximum, maximum) != maximum) {
        Notify("maximum");
    }
    side.value = std::min(side.value, side.maximum);
}

template <typename T> void CPropertyParams::StoreDefault(Side<T>& side, T defaultValue) {
    m_unsigned = std::is_unsigned_v<T>;
    side.defaultValue = defaultValue;
}

template <typename T> bool CPropertyParams::StoreValue(Side<T>& side, T value) {
    CheckAccess();
    return std::exchange(side.value, value) != value && Notify("value");
}

template <typename T> void CPropertyParams::AdmitValue(Side<T>& side, T value) {
    if (!m_implemented) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_NOT_IMPLEMENTED);
    }
    if (!m_enabled) { // auto-update does not help here: the camera moves values, not what it admits
        SDK4_THROW_QUALIFIED(SDK4_ERR_DISABLED);
    }
    if (m_enumCount >= MaxEnumValues) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_OUTOFRANGE);
    }
    side.enumValues[m_enumCount++] = value;
    m_enumerated = true;
}

template <typename T> std::span<const T> CPropertyParams::Admitted(const Side<T>& side) const {
    return {side.enumValues.data(), m_enumCount};
}

template <typename T> T CPropertyParams::Min(const Side<T>& side) const {
    return m_enumerated ? *std::ranges::min_element(Admitted(side)) : side.minimum;
}

template <typename T> T CPropertyParams::Max(const Side<T>& side) const {
    return m_enumerated ? *std::ranges::max_element(Admitted(side)) : side.maximum;
}

template <typename T> bool CPropertyParams::InRange(const Side<T>& side, T value) const {
    if (m_enumerated) {
        return std::ranges::find(Admitted(side), value) != Admitted(side).end();
    }
    return side.minimum <= value && value <= side.maximum;
}

/// What may be read and stored: implemented, and enabled or moved by the camera.
void CPropertyParams::CheckAccess() const {
    if (!m_implemented) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_NOT_IMPLEMENTED);
    }
    if (!m_enabled && !m_autoUpdate) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_DISABLED);
    }
}

/// Tells the observer, if there is one. It may remove itself, so nothing of it is used after the call.
bool CPropertyParams::Notify(const char* attribute) const {
    if (m_callback == nullptr) {
        return false;
    }
    m_callback(m_name.c_str(), attribute, m_context);
    return true;
}

// clang-format off
void CPropertyParams::SetMin(std::uint32_t minimum)             { StoreMin(m_unsignedSide, minimum); }
void CPropertyParams::SetMin(std::int32_t minimum)              { StoreMin(m_signedSide, minimum); }
void CPropertyParams::SetMax(std::uint32_t maximum)             { StoreMax(m_unsignedSide, maximum); }
void CPropertyParams::SetMax(std::int32_t maximum)              { StoreMax(m_signedSide, maximum); }
void CPropertyParams::SetDefault(std::uint32_t defaultValue)    { StoreDefault(m_unsignedSide, defaultValue); }
void CPropertyParams::SetDefault(std::int32_t defaultValue)     { StoreDefault(m_signedSide, defaultValue); }
bool CPropertyParams::SetValue(std::uint32_t value)             { return StoreValue(m_unsignedSide, value); }
bool CPropertyParams::SetValue(std::int32_t value)              { return StoreValue(m_signedSide, value); }
void CPropertyParams::SetEnumValue(std::uint32_t value)         { AdmitValue(m_unsignedSide, value); }
void CPropertyParams::SetEnumValue(std::int32_t value)          { AdmitValue(m_signedSide, value); }
bool CPropertyParams::IsValueInRange(std::uint32_t value) const { return InRange(m_unsignedSide, value); }
bool CPropertyParams::IsValueInRange(std::int32_t value) const  { return InRange(m_signedSide, value); }
std::uint32_t CPropertyParams::GetUIntMin() const               { return Min(m_unsignedSide); }
std::uint32_t CPropertyParams::GetUIntMax() const               { return Max(m_unsignedSide); }
std::int32_t CPropertyParams::GetIntMin() const                 { return Min(m_signedSide); }
std::int32_t CPropertyParams::GetIntMax() const                 { return Max(m_signedSide); }
std::uint32_t CPropertyParams::GetUIntValue() const             { CheckAccess(); return m_unsignedSide.value; }
std::int32_t CPropertyParams::GetIntValue() const               { CheckAccess(); return m_signedSide.value; }
// clang-format on

} // namespace SDK4::Control
