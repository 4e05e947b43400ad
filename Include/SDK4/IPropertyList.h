#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control {

/// The names of the properties of a property-based control.
class SDK4_PUBLIC IPropertyList {
public:
    /// How many there are, counting each of those that share a name: 1104.
    virtual int GetNumberOfProperties() = 0;

    /// @return the name at position @p i from 0, good until the next call on the same control; null when there is none.
    virtual const char* GetPropertyName(int i) = 0;
};

} // namespace SDK4::Control
