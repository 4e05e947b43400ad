#include "Range.h"

#include "Log.h"

namespace SDK4 {

namespace {

/// Returns whether the field changed. With a minimum above the maximum, it may be raised and then lowered to its old
/// value.
bool ClampField(std::uint32_t& field, std::uint32_t min, std::uint32_t max) {
    const std::uint32_t before = field;
    Clamp(field, min, max);
    return field != before;
}

} // namespace

template <> bool Range<SDK4_KPOSITION>::Check(SDK4_KPOSITION& value, SDK4_KPOSITION min, SDK4_KPOSITION max) {
    SDK4_LOG(Info, "Check  (Pos)=" << value.posx << "," << value.posy);
    bool changed = ClampField(value.posx, min.posx, max.posx);
    changed |= ClampField(value.posy, min.posy, max.posy);
    if (changed) {
        SDK4_LOG(Info, "Checked(Pos)=" << value.posx << "," << value.posy);
    }
    return changed;
}

template <> bool Range<SDK4_KAREA>::Check(SDK4_KAREA& value, SDK4_KAREA min, SDK4_KAREA max) {
    SDK4_LOG(Info, "Check  (Roa)=" << value.startx << "," << value.starty << "," << value.endx << "," << value.endy);
    bool changed = ClampField(value.startx, min.startx, max.startx);
    changed |= ClampField(value.starty, min.starty, max.starty);
    changed |= ClampField(value.endx, min.endx, max.endx);
    changed |= ClampField(value.endy, min.endy, max.endy);
    if (changed) {
        SDK4_LOG(Info,
                 "Checked(Roa)=" << value.startx << "," << value.starty << "," << value.endx << "," << value.endy);
    }
    return changed;
}

template <> bool Range<SDK4_KRGB>::Check(SDK4_KRGB& value, SDK4_KRGB min, SDK4_KRGB max) {
    SDK4_LOG(Info, "Check  (RGB)=" << value.red << "," << value.green << "," << value.blue);
    bool changed = ClampField(value.red, min.red, max.red);
    changed |= ClampField(value.green, min.green, max.green);
    changed |= ClampField(value.blue, min.blue, max.blue);
    if (changed) {
        SDK4_LOG(Info, "Checked(RGB)=" << value.red << "," << value.green << "," << value.blue);
    }
    return changed;
}

} // namespace SDK4
