// Image processing in the camera: enhancement, colour, look-up table, overlay, measurement.

#include "Tests/Operations/Operations.h"

using namespace SDK4::Control;

namespace Test {

namespace {

constexpr std::uint32_t colorCoding = 0x28020000, awb = 0x46040000, acc = 0x46050000, overlayPosition = 0x17020000;

/// A colour camera with one different word.
State ColourWith(std::uint32_t address, std::uint32_t word) {
    State state = Colour();
    state.presets.push_back({address, Words({word})});
    return state;
}

State Area(SDK4_KAREA area) { return {{{0x28050000, Words({area.startx, area.starty, area.endx, area.endy})}}}; }

Accesses PositionWrite(const std::string& written) {
    return Settling("R 28050000/16; W 17020000=" + written, "W 17020000=" + written);
}

Call SetBalance(SDK4_KRGB balance) { return On(&IColor::SetColorBalance, balance); }
Call SetPosition(int line, SDK4_KPOSITION position) { return On(&IOverlay::SetOverlayPosition, line, position); }

} // namespace

// clang-format off
std::vector<Operation> ProcessingOperations() {
    using D = IDigitalEnhancement; using L = ILookUpTable; using S = ISignalAnalysis; using C = IColor;
    const SDK4_KRGB rgb{10, 20, 30};
    const SDK4_KSTYLE style{3, 9};
    const SDK4_KOVERLAYSIZE size{5, 600};
    const SDK4_KAREA area{1, 2, 30, 40}, picture{100, 50, 1100, 850};
    const State colour = Colour(), automatic = With(acc, 4), position{{{overlayPosition, Words({8, 9}), 1}}};
    return {
        {"IDigitalEnhancement::GetBrightness", On(&D::GetBrightness),       "1",        Cached("R 18010000/4")},
        {"IDigitalEnhancement::SetBrightness", On(&D::SetBrightness, 2047), done,       Always("R 46050000/4; W 18010000=2047")},
        {"IDigitalEnhancement::SetBrightness above", On(&D::SetBrightness, 2048), outOfRange, Always("R 46050000/4; W 18010000=2047")},
        {"IDigitalEnhancement::SetBrightness automatic", On(&D::SetBrightness, 2048), locked, Always("R 46050000/4"), automatic},
        {"IDigitalEnhancement::GetContrast",   On(&D::GetContrast),       "1",        Cached("R 18020000/4")},
        {"IDigitalEnhancement::SetContrast",   On(&D::SetContrast, 32),   done,       Always("R 46050000/4; W 18020000=32")},
        {"IDigitalEnhancement::SetContrast below", On(&D::SetContrast, 31), outOfRange, Always("R 46050000/4; W 18020000=32")},
        {"IDigitalEnhancement::SetContrast above", On(&D::SetContrast, 256), outOfRange, Always("R 46050000/4; W 18020000=255")},
        {"IDigitalEnhancement::SetContrast automatic", On(&D::SetContrast, 0), locked, Always("R 46050000/4"), automatic},
        {"IDigitalEnhancement::GetSharpness",  On(&D::GetSharpness),      "1",        Cached("R 18030000/4")},
        {"IDigitalEnhancement::SetSharpness",  On(&D::SetSharpness, 255), done,       Always("W 18030000=255"), automatic},
        {"IDigitalEnhancement::SetSharpness above", On(&D::SetSharpness, 256), outOfRange, Always("W 18030000=255")},
        {"IDigitalEnhancement::GetHistogramEqualization", On(&D::GetHistogramEqualization),    notImplemented, Never()},
        {"IDigitalEnhancement::SetHistogramEqualization", On(&D::SetHistogramEqualization, 1), notImplemented, Never()},

        {"IACC::GetACC",     On(&IACC::GetACC),    "0",     Always("R 46050000/4")},
        {"IACC::SetACC",     On(&IACC::SetACC, 0), done,    Always("W 46050000=0").Stales("GetBrightness, GetContrast")},
        {"IACC::SetACC on",  On(&IACC::SetACC, 4), done,    Always("W 46050000=4").Stales("GetBrightness, GetContrast")},
        {"IACC::SetACC 5",   On(&IACC::SetACC, 5), invalid, Never()},

        {"IColor::GetColorBalance",           On(&C::GetColorBalance), "1,2,3",        Cached("R 15010000/12").AskingModel(), colour},
        {"IColor::GetColorBalance mono",      On(&C::GetColorBalance), notImplemented, Kept("R 64030000/4")},
        {"IColor::SetColorBalance",           SetBalance(rgb),         done,           Always("R 46040000/4; W 15010000=10,20,30").AskingModel(), colour},
        {"IColor::SetColorBalance above",     SetBalance({300, 10, 256}), outOfRange, Always("R 46040000/4; W 15010000=255,10,255").AskingModel(), colour},
        {"IColor::SetColorBalance automatic", SetBalance({300, 10, 10}),    locked,         Always("R 46040000/4").AskingModel(), ColourWith(awb, 2)},
        {"IColor::SetColorBalance mono",      SetBalance(rgb),         notImplemented, Kept("R 64030000/4")},
        {"IColor::GetLightSource",            On(&C::GetLightSource),    "1",          Cached("R 28020000/4; R 15020000/4")},
        {"IColor::SetLightSource",            On(&C::SetLightSource, 3), done,         Settling("R 28020000/4; W 15020000=3", "W 15020000=3")},
        {"IColor::GetLightSource raw",        On(&C::GetLightSource),    disabled,     Cached("R 28020000/4"), With(colorCoding, 150)},
        {"IColor::SetLightSource raw",        On(&C::SetLightSource, 3), disabled,     Cached("R 28020000/4"), With(colorCoding, 153)},
        {"IColor::GetColorSaturation",        On(&C::GetColorSaturation), "1",         Cached("R 15040000/4").AskingModel(), colour},
        {"IColor::SetColorSaturation",        On(&C::SetColorSaturation, 255), done,   Always("W 15040000=255").AskingModel(), ColourWith(awb, 1)},
        {"IColor::SetColorSaturation above",  On(&C::SetColorSaturation, 256), outOfRange, Always("W 15040000=255").AskingModel(), colour},
        {"IColor::GetColorSaturation mono",   On(&C::GetColorSaturation), notImplemented, Kept("R 64030000/4")},
        {"IColor::SetColorSaturation mono",   On(&C::SetColorSaturation, 256), notImplemented, Kept("R 64030000/4")},
        {"IColor::GetAutoWhiteset",           On(&C::GetAutoWhiteset),    "0",         Always("R 46040000/4").AskingModel(), colour},
        {"IColor::SetAutoWhiteset",           On(&C::SetAutoWhiteset, 0), done,        Always("W 46040000=0").AskingModel().Stales("GetColorBalance"), colour},
        {"IColor::SetAutoWhiteset on",        On(&C::SetAutoWhiteset, 2), done,        Always("W 46040000=2").AskingModel().Stales("GetColorBalance"), colour},
        {"IColor::GetAutoWhiteset mono",      On(&C::GetAutoWhiteset),    notImplemented, Kept("R 64030000/4")},
        {"IColor::SetAutoWhiteset mono",      On(&C::SetAutoWhiteset, 9), notImplemented, Kept("R 64030000/4")},

        {"ILookUpTable::GetLUTMode",                On(&L::GetLUTMode),                  "1",  Cached("R 19020000/4")},
        {"ILookUpTable::SetLUTMode",                On(&L::SetLUTMode, 1),               done, Always("W 19020000=1")},
        {"ILookUpTable::GetLUTInterpolatorIndex",   On(&L::GetLUTInterpolatorIndex),     "-8", Cached("R 19010000/4"), With(0x19010000, 0xFFFFFFF8)},
        {"ILookUpTable::SetLUTInterpolatorIndex",   On(&L::SetLUTInterpolatorIndex, -8), done, Always("W 19010000=4294967288")},
        {"ILookUpTable::SetLUTInterpolatorIndex 12", On(&L::SetLUTInterpolatorIndex, 12), done, Always("W 19010000=12")},
        {"ILookUpTable::SetLUTInterpolatorIndex below", On(&L::SetLUTInterpolatorIndex, -9), outOfRange, Always("W 19010000=4294967288")},
        {"ILookUpTable::SetLUTInterpolatorIndex above", On(&L::SetLUTInterpolatorIndex, 13), outOfRange, Always("W 19010000=12")},
        {"ILookUpTable::GetNegativeImage",          On(&L::GetNegativeImage),            "1",  Cached("R 19030000/4")},
        {"ILookUpTable::SetNegativeImage",          On(&L::SetNegativeImage, 1),         done, Always("W 19030000=1").Stales("GetNegativeImage")},

        {"IOverlay::GetOverlayShow line 1",     On(&IOverlay::GetOverlayShow, 0),         "2",     Cached("w 17010000=0; R 17010000/8")},
        {"IOverlay::GetOverlayShow line 2",     On(&IOverlay::GetOverlayShow, 1),         "2",     Cached("w 17010000=1; R 17010000/8")},
        {"IOverlay::SetOverlayShow",            On(&IOverlay::SetOverlayShow, 0, 1),      done,    Always("W 17010000=0,1")},
        {"IOverlay::SetOverlayShow line 2",     On(&IOverlay::SetOverlayShow, 1, 0),      done,    Always("W 17010000=1,0")},
        {"IOverlay::SetOverlayShow value 2",    On(&IOverlay::SetOverlayShow, 0, 2),      invalid, Never()},
        {"IOverlay::GetOverlayPosition line 1", On(&IOverlay::GetOverlayPosition, 0),     "2,3",   Cached("w 17020000=0; R 17020000/12")},
        {"IOverlay::GetOverlayPosition line 2", On(&IOverlay::GetOverlayPosition, 1),     "8,9",   Cached("w 17020000=1; R 17020000/12"), position},
        {"IOverlay::SetOverlayPosition",        SetPosition(0, {1000, 800}), done,       PositionWrite("0,1000,800"), Area(picture)},
        {"IOverlay::SetOverlayPosition line 2", SetPosition(1, {0, 0}),      done,       PositionWrite("1,0,0"), Area(picture)},
        {"IOverlay::SetOverlayPosition beyond", SetPosition(1, {1001, 5}),   outOfRange, PositionWrite("1,1000,5"), Area(picture)},
        {"IOverlay::SetOverlayPosition beyond below", SetPosition(0, {5, 801}), outOfRange, PositionWrite("0,5,800"), Area(picture)},
        {"IOverlay::SetOverlayPosition area turned", SetPosition(0, {4000000000, 0}), done, PositionWrite("0,4000000000,0"), Area({9, 0, 8, 0})},
        {"IOverlay::GetOverlayStyle line 1",    On(&IOverlay::GetOverlayStyle, 0),        "2,3",   Cached("w 17030000=0; R 17030000/12")},
        {"IOverlay::GetOverlayStyle line 2",    On(&IOverlay::GetOverlayStyle, 1),        "2,3",   Cached("w 17030000=1; R 17030000/12")},
        {"IOverlay::SetOverlayStyle",           On(&IOverlay::SetOverlayStyle, 0, style), done,    Always("W 17030000=0,3,9")},
        {"IOverlay::SetOverlayStyle line 2",    On(&IOverlay::SetOverlayStyle, 1, style), done,    Always("W 17030000=1,3,9")},
        {"IOverlay::GetOverlaySize line 1",     On(&IOverlay::GetOverlaySize, 0),         "2,3",   Cached("w 17040000=0; R 17040000/12")},
        {"IOverlay::GetOverlaySize line 2",     On(&IOverlay::GetOverlaySize, 1),         "2,3",   Cached("w 17040000=1; R 17040000/12")},
        {"IOverlay::SetOverlaySize",            On(&IOverlay::SetOverlaySize, 0, size),   done,    Always("W 17040000=0,5,600")},
        {"IOverlay::SetOverlaySize line 2",     On(&IOverlay::SetOverlaySize, 1, size),   done,    Always("W 17040000=1,5,600")},
        {"IOverlay::GetOverlayShow 2",          On(&IOverlay::GetOverlayShow, 2),         invalid, Never()},
        {"IOverlay::SetOverlayShow -1",         On(&IOverlay::SetOverlayShow, -1, 1),     invalid, Never()},
        {"IOverlay::GetOverlayPosition -1",     On(&IOverlay::GetOverlayPosition, -1),    invalid, Never()},
        {"IOverlay::SetOverlayPosition 2",      SetPosition(2, {0, 0}),                   invalid, Never()},
        {"IOverlay::GetOverlayStyle 2",         On(&IOverlay::GetOverlayStyle, 2),        invalid, Never()},
        {"IOverlay::SetOverlayStyle -1",        On(&IOverlay::SetOverlayStyle, -1, style), invalid, Never()},
        {"IOverlay::GetOverlaySize -1",         On(&IOverlay::GetOverlaySize, -1),        invalid, Never()},
        {"IOverlay::SetOverlaySize 2",          On(&IOverlay::SetOverlaySize, 2, size),   invalid, Never()},

        {"ISignalAnalysis::GetMeasureFrameShow",  On(&S::GetMeasureFrameShow),     "1",  Cached("R 1E010000/4")},
        {"ISignalAnalysis::SetMeasureFrameShow",  On(&S::SetMeasureFrameShow, 1),  done, Always("W 1E010000=1")},
        {"ISignalAnalysis::GetMeasureFrameColor", On(&S::GetMeasureFrameColor),    "1",  Cached("R 28020000/4; R 1E020000/4")},
        {"ISignalAnalysis::SetMeasureFrameColor", On(&S::SetMeasureFrameColor, 9), done, Settling("R 28020000/4; W 1E020000=9", "W 1E020000=9")},
        {"ISignalAnalysis::GetMeasureFrameColor raw", On(&S::GetMeasureFrameColor),    disabled, Cached("R 28020000/4"), With(colorCoding, 151)},
        {"ISignalAnalysis::SetMeasureFrameColor raw", On(&S::SetMeasureFrameColor, 9), disabled, Cached("R 28020000/4"), With(colorCoding, 151)},
        {"ISignalAnalysis::GetMeasureWindow",     On(&S::GetMeasureWindow, 0), "2,3,4,5", Cached("w 1E030000=0; R 1E030000/20")},
        {"ISignalAnalysis::GetMeasureWindow 2",   On(&S::GetMeasureWindow, 1), "2,3,4,5", Cached("w 1E030000=1; R 1E030000/20")},
        {"ISignalAnalysis::SetMeasureWindow",     On(&S::SetMeasureWindow, 0, area), done, Always("W 1E030000=0,1,2,30,40").Stales("GetMeasureWindow")},
        {"ISignalAnalysis::SetMeasureWindow 2",   On(&S::SetMeasureWindow, 1, area), done, Always("W 1E030000=1,1,2,30,40").Stales("GetMeasureWindow 2")},
        {"ISignalAnalysis::GetMeasureWindow 3",   On(&S::GetMeasureWindow, 2),        invalid, Never()},
        {"ISignalAnalysis::SetMeasureWindow -1",  On(&S::SetMeasureWindow, -1, area), invalid, Never()},
        {"ISignalAnalysis::GetMeasureValue",      On(&S::GetMeasureValue, 0), notImplemented, Never()},
    };
}
// clang-format on

} // namespace Test
