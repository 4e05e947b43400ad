#pragma once

#include <SDK4/Records.h>

namespace SDK4 {

/// Clamps a number to the minimum first and the maximum last, so the result is defined even if a camera reports a
/// minimum above its maximum; the number then always counts as outside. Returns whether it was outside.
template <typename Number> bool Clamp(Number& value, Number min, Number max) {
    const bool below = value < min;
    if (below) {
        value = min;
    }
    const bool above = value > max;
    if (above) {
        value = max;
    }
    return below || above;
}

/// Range<T>::Check clamps a value to [min, max]. For a number, returns whether it was outside; for a record, which is
/// clamped field by field, whether any field changed.
template <typename T> class Range {
public:
    static bool Check(T& value, T min, T max) { return Clamp(value, min, max); }
};

template <> bool Range<SDK4_KPOSITION>::Check(SDK4_KPOSITION& value, SDK4_KPOSITION min, SDK4_KPOSITION max);
template <> bool Range<SDK4_KAREA>::Check(SDK4_KAREA& value, SDK4_KAREA min, SDK4_KAREA max);
template <> bool Range<SDK4_KRGB>::Check(SDK4_KRGB& value, SDK4_KRGB min, SDK4_KRGB max);

} // namespace SDK4
