#pragma once

#include "Host/Function.h"

/// Rules by which a camera may round an admitted value, for the rows of the table.
namespace Host::Rounding {

// Each returns whether the camera may hold @p held after @p asked was set.

/// Rounds down to a multiple of 4.
[[nodiscard]] bool DownToFours(IDynamicObject& control, const Value& asked, const Value& held);
/// Rounds up to the shortest possible time.
[[nodiscard]] bool UpToTheFastest(IDynamicObject& control, const Value& asked, const Value& held);
/// Clamps an area to the image.
[[nodiscard]] bool IntoTheImage(IDynamicObject& control, const Value& asked, const Value& held);
/// Changes the count, but not the time base.
[[nodiscard]] bool ToACount(IDynamicObject& control, const Value& asked, const Value& held);

} // namespace Host::Rounding
