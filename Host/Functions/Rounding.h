#pragma once

#include "Host/Function.h"

/// What a camera may make of an admitted value, as the rows of the table announce it.
namespace Host::Rounding {

// Each tells whether the camera may hold the one where the other was asked for.

/// The next multiple of 4 below.
[[nodiscard]] bool DownToFours(IDynamicObject& control, const Value& asked, const Value& held);
/// More, since it cannot be less.
[[nodiscard]] bool UpToTheFastest(IDynamicObject& control, const Value& asked, const Value& held);
/// An area as far as it lies in the image: what lies outside is moved to its edge.
[[nodiscard]] bool IntoTheImage(IDynamicObject& control, const Value& asked, const Value& held);
/// Another count of the same time base.
[[nodiscard]] bool ToACount(IDynamicObject& control, const Value& asked, const Value& held);

} // namespace Host::Rounding
