#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control {

/// The names of the properties of a property-based control.
class SDK4_PUBLIC IPropertyList {
public:
    /// Number of properties, 1104. Those that share a name are counted separately.
    virtual int GetNumberOfProperties() = 0;

    /// @return the name at position @p i, counted from 0, valid until the next call on the same control; null if there
    ///         is none.
    virtual const char* GetPropertyName(int i) = 0;
};

} // namespace SDK4::Control
