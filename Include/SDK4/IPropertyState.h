#pragma once

#include <SDK4/Callback.h>
#include <SDK4/Export.h>

#include <cstdint>

namespace SDK4::Control {

/// The properties of a property-based control, by name. Properties that exist once per overlay, channel or position
/// share a name and differ by index; without an index the first of them is meant. Fields of a record are properties of
/// their own, such as "overlayposition.posx". The index of a defect pixel is its position in its pair, so the first
/// pair alone is reached by name; the motor channels have no index, so channel 0 alone is; index 0 finds it, too.
///
/// A name that no property has (a null name is one), or no property of that index, makes the operations throw
/// SDK4_ERR_ERROR, except the five that answer false. Nothing here reads the camera.
///
/// The UInt operations answer from the unsigned side of a property, the Int operations from the signed side, whatever
/// IsUnsigned says. While a property admits single values only, its limits are the smallest and the largest of these.
class SDK4_PUBLIC IPropertyState {
public:
    /// Smallest admitted value, unsigned side.
    virtual std::uint32_t GetUIntMin(const char* name) = 0;
    /// Largest admitted value, unsigned side.
    virtual std::uint32_t GetUIntMax(const char* name) = 0;
    /// The default, unsigned side.
    virtual std::uint32_t GetUIntDefault(const char* name) = 0;

    /// The value as the control knows it, unsigned side. An uncached control knows what its setters left, else 0.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED when the camera lacks the property.
    /// @throws SDK4_ERR_DISABLED when it is disabled and the camera does not move it on its own.
    virtual std::uint32_t GetUIntValue(const char* name) = 0;
    /// The value of one of several; refuses as above.
    virtual std::uint32_t GetUIntValue(int index, const char* name) = 0;

    /// Smallest admitted value, signed side.
    virtual std::int32_t GetIntMin(const char* name) = 0;
    /// Largest admitted value, signed side.
    virtual std::int32_t GetIntMax(const char* name) = 0;
    /// The default, signed side.
    virtual std::int32_t GetIntDefault(const char* name) = 0;
    /// The value as the control knows it, signed side; refuses as GetUIntValue.
    virtual std::int32_t GetIntValue(const char* name) = 0;
    /// The value of one of several, signed side; refuses as GetUIntValue.
    virtual std::int32_t GetIntValue(int index, const char* name) = 0;

    /// Whether the property can be changed now. False for an unknown name.
    virtual bool GetEnabled(const char* name) = 0;
    /// Enables or disables the property in this control; the camera is not told. Most setters then refuse with
    /// SDK4_ERR_DISABLED, before the write where they say so, else after it; so do the getters of a cached control. A
    /// mode that is set may enable it again.
    virtual void SetEnabled(const char* name, bool enabled) = 0;

    /// Whether the camera has the property. False for an unknown name.
    virtual bool GetImplemented(const char* name) = 0;
    /// Whether the unsigned side is in force. False for an unknown name.
    virtual bool IsUnsigned(const char* name) = 0;
    /// Whether the property is one of several with its name. False for an unknown name.
    virtual bool IsIndexed(const char* name) = 0;
    /// Whether it admits single values only. False for an unknown name.
    virtual bool IsEnumerated(const char* name) = 0;

    /// Registers the one observer of all properties, in place of an earlier one; null is none.
    virtual void AddCallback(SDK4_CALLBACK callback, void* context) = 0;

    /// Removes the observer, whichever callback is given.
    virtual void RemoveCallback(SDK4_CALLBACK callback) = 0;
};

} // namespace SDK4::Control
