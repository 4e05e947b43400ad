#pragma once

// The kinds of rows of a property table: properties that add themselves to the list of the control.

#include "PropertyParams.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <vector>

namespace SDK4::Control {

using PropertyList = std::vector<CPropertyParams*>;

/// Admits any value between its limits, inclusive.
struct UnsignedProperty : CPropertyParams {
    UnsignedProperty(PropertyList& list, const char* propertyName, std::uint32_t minimum, std::uint32_t maximum,
                     std::uint32_t defaultValue)
        : CPropertyParams(propertyName, minimum, maximum, defaultValue) {
        list.push_back(this);
    }
};

/// The same, signed.
struct SignedProperty : CPropertyParams {
    SignedProperty(PropertyList& list, const char* propertyName, std::int32_t minimum, std::int32_t maximum,
                   std::int32_t defaultValue)
        : CPropertyParams(propertyName, minimum, maximum, defaultValue) {
        list.push_back(this);
    }
};

/// Adds admitted values.
inline void Admit(CPropertyParams& property, std::initializer_list<std::uint32_t> values) {
    for (const std::uint32_t value : values) {
        property.SetEnumValue(value);
    }
}

/// Admits only the listed values.
struct EnumProperty : CPropertyParams {
    EnumProperty(PropertyList& list, const char* propertyName, std::uint32_t defaultValue,
                 std::initializer_list<std::uint32_t> values)
        : CPropertyParams(propertyName, defaultValue) {
        Admit(*this, values);
        list.push_back(this);
    }
};

/// N scalars that are transferred as one record. The list gets the scalars.
template <std::size_t N> struct CompoundProperty : CompoundParams<N> {
    /// @param arguments the sub-names, then minimum, maximum, default of each unless their limits are set later
    template <typename... Arguments>
    CompoundProperty(PropertyList& list, const char* propertyName, Arguments... arguments)
        : CompoundParams<N>(propertyName, arguments...) {
        for (std::size_t i = 0; i < N; ++i) {
            list.push_back(this->GetSubProperty(i));
        }
    }

    CPropertyParams& operator[](std::size_t i) { return *this->GetSubProperty(i); }
};

/// Several rows of one kind. They never move, because the list points to them.
template <typename Row> struct Repeated : std::deque<Row> {
    template <typename... Arguments> explicit Repeated(std::size_t count, PropertyList& list, Arguments... arguments) {
        while (this->size() < count) {
            this->emplace_back(list, arguments...);
        }
    }
};

/// Sets the index of a property, or of each part of a compound one, among those that share its name.
inline void SetIndex(CPropertyParams& property, std::int32_t index) { property.SetIndex(index); }

template <std::size_t N> void SetIndex(CompoundProperty<N>& property, std::int32_t index) {
    for (std::size_t i = 0; i < N; ++i) {
        property[i].SetIndex(index);
    }
}

/// Numbers rows from 0.
template <typename Rows> void SetIndices(Rows& rows) {
    std::int32_t index = 0;
    for (auto& row : rows) {
        SetIndex(row, index++);
    }
}

} // namespace SDK4::Control
