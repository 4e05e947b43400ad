#include "Host/Functions/Rounding.h"

#include "Host/Functions/FunctionTable.h"

#include <SDK4/SDK4.h>

#include <algorithm>

namespace Host::Rounding {

bool DownToFours(IDynamicObject&, const Value& asked, const Value& held) {
    return held.numbers[0] == asked.numbers[0] / 4 * 4;
}

bool UpToTheFastest(IDynamicObject&, const Value& asked, const Value& held) {
    return held.numbers[0] >= asked.numbers[0];
}

bool IntoTheImage(IDynamicObject& control, const Value& asked, const Value& held) {
    const SDK4_KSIZE image = InterfaceOf<SDK4::Control::ISignalFormat>(control).GetImageSize();
    const std::int64_t edges[] = {std::int64_t{image.width} - 1, std::int64_t{image.height} - 1};
    for (std::size_t start = 0, end = 2; start < 2; ++start, ++end) {
        const std::int64_t from = std::min(asked.numbers[start], edges[start]);
        const std::int64_t to =
            std::min(std::max(asked.numbers[end], from), edges[start]); // an area does not end before it starts
        if (held.numbers[start] != from || held.numbers[end] != to) {
            return false;
        }
    }
    return true;
}

bool ToACount(IDynamicObject&, const Value& asked, const Value& held) { return held.numbers[0] == asked.numbers[0]; }

} // namespace Host::Rounding
