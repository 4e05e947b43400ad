#pragma once

#include <SDK4/Callback.h>
#include <SDK4/Export.h>

#include <cstdint>

namespace SDK4::Control {

/// The properties of a property-based control, by name. Properties that exist once per overlay, channel or position
/// share a name and differ by index; without an index, the first is used. Fields of a record are separate properties,
/// such as "overlayposition.posx". The index of a defect pixel is its position in its pair, so only the first pair can
/// be accessed by name. Motor channels have no index, so only channel 0 can be; index 0 finds it too.
///
/// For an unknown or null name, or an unknown index, the operations throw SDK4_ERR_ERROR, except the five that return
/// false. No operation accesses the camera.
///
/// The UInt operations use the unsigned side of a property, the Int operations the signed side, whatever IsUnsigned
/// returns. The limits of an enumerated property are its smallest and its largest value.
class SDK4_PUBLIC IPropertyState {
public:
    /// Smallest admitted value, unsigned side.
    virtual std::uint32_t GetUIntMin(const char* name) = 0;
    /// Largest admitted value, unsigned side.
    virtual std::uint32_t GetUIntMax(const char* name) = 0;
    /// The default, unsigned side.
    virtual std::uint32_t GetUIntDefault(const char* name) = 0;

    /// The value that the control holds, unsigned side. An uncached control holds what its setters stored, or 0.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED when the camera lacks the property.
    /// @throws SDK4_ERR_DISABLED when it is disabled and the camera does not adjust it.
    virtual std::uint32_t GetUIntValue(const char* name) = 0;
    /// The same, by index.
    virtual std::uint32_t GetUIntValue(int index, const char* name) = 0;

    /// Smallest admitted value, signed side.
    virtual std::int32_t GetIntMin(const char* name) = 0;
    /// Largest admitted value, signed side.
    virtual std::int32_t GetIntMax(const char* name) = 0;
    /// The default, signed side.
    virtual std::int32_t GetIntDefault(const char* name) = 0;
    /// The value that the control holds, signed side; throws as GetUIntValue does.
    virtual std::int32_t GetIntValue(const char* name) = 0;
    /// The same, by index.
    virtual std::int32_t GetIntValue(int index, const char* name) = 0;

    /// Whether the property can be changed now. False for an unknown name.
    virtual bool GetEnabled(const char* name) = 0;
    /// Enables or disables the property in this control; the camera is not accessed. Most setters of a disabled
    /// property throw SDK4_ERR_DISABLED, after the write unless they say otherwise; so do the getters of a cached
    /// control. Setting a mode may enable it again.
    virtual void SetEnabled(const char* name, bool enabled) = 0;

    /// Whether the camera has the property. False for an unknown name.
    virtual bool GetImplemented(const char* name) = 0;
    /// Whether the unsigned side is in force. False for an unknown name.
    virtual bool IsUnsigned(const char* name) = 0;
    /// Whether the property is one of several with its name. False for an unknown name.
    virtual bool IsIndexed(const char* name) = 0;
    /// Whether it admits single values instead of a range. False for an unknown name.
    virtual bool IsEnumerated(const char* name) = 0;

    /// Registers the observer of all properties. It replaces an earlier one; null removes it.
    virtual void AddCallback(SDK4_CALLBACK callback, void* context) = 0;

    /// Removes the observer. The argument is ignored.
    virtual void RemoveCallback(SDK4_CALLBACK callback) = 0;
};

} // namespace SDK4::Control
