#include "OrvikControlImpl/KOverlay.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KOverlay::KOverlay(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KOverlay");
    // clang-format off
    Register<int>              (OverlayShowLine1,     0x17010000, Instance{0}, Normal, {LoadSettings});
    Register<int>              (OverlayShowLine2,     0x17010000, Instance{1}, Normal, {LoadSettings});
    Register<SDK4_KPOSITION>   (OverlayPositionLine1, 0x17020000, Instance{0}, Normal, {LoadSettings, ReadoutArea});
    Register<SDK4_KPOSITION>   (OverlayPositionLine2, 0x17020000, Instance{1}, Normal, {LoadSettings, ReadoutArea});
    Register<SDK4_KSTYLE>      (OverlayStyleLine1,    0x17030000, Instance{0}, Normal, {LoadSettings});
    Register<SDK4_KSTYLE>      (OverlayStyleLine2,    0x17030000, Instance{1}, Normal, {LoadSettings});
    Register<SDK4_KOVERLAYSIZE>(OverlaySizeLine1,     0x17040000, Instance{0}, Normal, {LoadSettings});
    Register<SDK4_KOVERLAYSIZE>(OverlaySizeLine2,     0x17040000, Instance{1}, Normal, {LoadSettings});

    Enum                    (OverlayShowLine1, {0, 1});
    Enum                    (OverlayShowLine2, {0, 1});
    RangeOf<SDK4_KPOSITION> (OverlayPositionLine1, "", OverlayPositionMax);
    RangeOf<SDK4_KPOSITION> (OverlayPositionLine2, "", OverlayPositionMax);
    Plain<SDK4_KSTYLE>      (OverlayStyleLine1);
    Plain<SDK4_KSTYLE>      (OverlayStyleLine2);
    Plain<SDK4_KOVERLAYSIZE>(OverlaySizeLine1);
    Plain<SDK4_KOVERLAYSIZE>(OverlaySizeLine2);
    // clang-format on
}

// clang-format off
constexpr std::string_view showOfLine[]     = {OverlayShowLine1,     OverlayShowLine2};
constexpr std::string_view positionOfLine[] = {OverlayPositionLine1, OverlayPositionLine2};
constexpr std::string_view styleOfLine[]    = {OverlayStyleLine1,    OverlayStyleLine2};
constexpr std::string_view sizeOfLine[]     = {OverlaySizeLine1,     OverlaySizeLine2};

SDK4_ENUM_SWITCH KOverlay::GetOverlayShow(int line)                  { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_SWITCH>(OneOf(line, showOfLine)); }
void KOverlay::SetOverlayShow(int line, int show)                    { SDK4_LOG_CALL(); Set<int>(OneOf(line, showOfLine), show); }
SDK4_KPOSITION KOverlay::GetOverlayPosition(int line)                { SDK4_LOG_CALL(); return Get<SDK4_KPOSITION>(OneOf(line, positionOfLine)); }
void KOverlay::SetOverlayPosition(int line, SDK4_KPOSITION position) { SDK4_LOG_CALL(); Set<SDK4_KPOSITION>(OneOf(line, positionOfLine), position); }
SDK4_KSTYLE KOverlay::GetOverlayStyle(int line)                      { SDK4_LOG_CALL(); return Get<SDK4_KSTYLE>(OneOf(line, styleOfLine)); }
void KOverlay::SetOverlayStyle(int line, SDK4_KSTYLE style)          { SDK4_LOG_CALL(); Set<SDK4_KSTYLE>(OneOf(line, styleOfLine), style); }
SDK4_KOVERLAYSIZE KOverlay::GetOverlaySize(int line)                 { SDK4_LOG_CALL(); return Get<SDK4_KOVERLAYSIZE>(OneOf(line, sizeOfLine)); }
void KOverlay::SetOverlaySize(int line, SDK4_KOVERLAYSIZE size)      { SDK4_LOG_CALL(); Set<SDK4_KOVERLAYSIZE>(OneOf(line, sizeOfLine), size); }
// clang-format on

} // namespace SDK4::Control
