#include "OrvikControlImpl/KSignalAnalysis.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KSignalAnalysis::KSignalAnalysis(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KSignalAnalysis");
    // clang-format off
    Register<int>       (MeasureFrameShow,  0x1E010000,              Normal,   {LoadSettings});
    Register<int>       (MeasureFrameColor, 0x1E020000,              Normal,   {LoadSettings});
    Register<SDK4_KAREA>(MeasureWindow1,    0x1E030000, Instance{0}, ReadBack, {LoadSettings, ReadoutArea});
    Register<SDK4_KAREA>(MeasureWindow2,    0x1E030000, Instance{1}, ReadBack, {LoadSettings, ReadoutArea});

    Enum             (MeasureFrameShow, {0, 1});
    Plain<int>       (MeasureFrameColor).AvailableIf(IsNotColorCodingRaw);
    Plain<SDK4_KAREA>(MeasureWindow1);
    Plain<SDK4_KAREA>(MeasureWindow2);
    // clang-format on
}

// clang-format off
constexpr std::string_view measureWindows[] = {MeasureWindow1, MeasureWindow2};

SDK4_ENUM_SWITCH KSignalAnalysis::GetMeasureFrameShow()             { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_SWITCH>(MeasureFrameShow); }
void KSignalAnalysis::SetMeasureFrameShow(int show)                 { SDK4_LOG_CALL(); Set<int>(MeasureFrameShow, show); }
SDK4_ENUM_MFCOLOR KSignalAnalysis::GetMeasureFrameColor()           { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_MFCOLOR>(MeasureFrameColor); }
void KSignalAnalysis::SetMeasureFrameColor(int color)               { SDK4_LOG_CALL(); Set<int>(MeasureFrameColor, color); }
SDK4_KAREA KSignalAnalysis::GetMeasureWindow(int window)            { SDK4_LOG_CALL(); return Get<SDK4_KAREA>(OneOf(window, measureWindows)); }
void KSignalAnalysis::SetMeasureWindow(int window, SDK4_KAREA area) { SDK4_LOG_CALL(); Set<SDK4_KAREA>(OneOf(window, measureWindows), area); }
unsigned int KSignalAnalysis::GetMeasureValue(int)                  { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
// clang-format on

} // namespace SDK4::Control
