// The M2VX family: exposure, gain, image corrections, overlay and image memory.

#include "Tests/Operations/Operations.h"

using namespace SDK4::Control;

namespace Test {

namespace {

Call Position(int overlay, int x, int y) {
    return On(&M2VX::IOverlay::SetOverlayPosition, overlay, SDK4_KCIRCULARPOSITION{x, y});
}
Call Style(int overlay, SDK4_KSTYLE style) { return On(&M2VX::IOverlay::SetOverlayStyle, overlay, style); }
Call Size(int overlay, SDK4_KOVERLAYSIZE size) { return On(&M2VX::IOverlay::SetOverlaySize, overlay, size); }
Call Shade(int number, int value) { return On(&M2VX::IImageCorrection::SetShadingCorrection, number, value); }
Call Blank(int x, int y) {
    return On(&M2VX::IImageCorrection::SetCircularBlankingPosition, SDK4_KCIRCULARPOSITION{x, y});
}
Call Window(SDK4_KMWCIRCLE window) { return On(&M2VX::ISignalAnalysis::SetMeasureWindow, window); }
Call Pixel(SDK4_KDEFECTPIXELSELECT select) { return On(&M2VX::IDefectPixel::GetDefectPixel, select); }
Call Pixel(SDK4_KDEFECTPIXELSELECT select, SDK4_KDEFECTPIXEL pixel) {
    return On(&M2VX::IDefectPixel::SetDefectPixel, select, pixel);
}

// By default, the modes of the camera enable everything but "automaticlevel" and "autogainstopmode". Instance i of an
// indexed register holds the words 10 i + 5 and 10 i + 6, other registers hold 1, 2, ... (see Prepare).

// clang-format off
std::vector<Operation> SensorOperations() {
    using E = M2VX::IExposure; using G = M2VX::IGain; using A = M2VX::IABC;
    const State automatic = With(0x46020000, 2);
    const std::string allOfAGC = "GetAGC, GetAutomaticLevel, GetAutoGainStopMode";
    const std::string allOfABC = "GetABC, GetABCThreshold, GetABCThreshold 1, GetABCStopMode";
    return {
        {"IExposure::GetExposureMode",           On(&E::GetExposureMode),       "3",        ReadThrough("r 0A020000")},
        {"IExposure::SetExposureMode",           On(&E::SetExposureMode, 4),    done,       Sets("w 0A020000=4")},
        {"IExposure::SetExposureMode 0",         On(&E::SetExposureMode, 0),    outOfRange, Never()},
        {"IExposure::SetExposureMode 7",         On(&E::SetExposureMode, 7),    outOfRange, Never()},
        {"IExposure::SetExposureMode disabled",  On(&E::SetExposureMode, 7),    disabled,   Never(), Disabling("exposuremode")},
        {"IExposure::GetExposure",               On(&E::GetExposure),           "1",        ReadThrough("r 0A030000")},
        {"IExposure::SetExposure",               On(&E::SetExposure, 2000),     done,       Sets("w 0A030000=2000")},
        {"IExposure::SetExposure 0",             On(&E::SetExposure, 0),        outOfRange, Sets("w 0A030000=0; r 0A030000")},
        {"IExposure::SetExposure above",         On(&E::SetExposure, 2001),     outOfRange, Sets("w 0A030000=2001; r 0A030000")},
        {"IExposure::SetExposure other mode",    On(&E::SetExposure, 2001),     disabled,   Never(), After(On(&E::SetExposureMode, 1))},
        {"IExposure::GetExposure other mode",    On(&E::GetExposure),           "1",        ReadThrough("r 0A030000"), After(On(&E::SetExposureMode, 1))},
        {"IExposure::GetFODStatus",              On(&E::GetFODStatus),          "1",        Always("r 0A0D0000")},
        {"IExposure::GetTwinModeShutterOffset",  On(&E::GetTwinModeShutterOffset), "1",     Always("r 0A130000")},
        {"IExposure::SetTwinModeShutterOffset",  On(&E::SetTwinModeShutterOffset, 2000), done, Always("w 0A130000=2000")},
        {"IExposure::SetTwinModeShutterOffset 0", On(&E::SetTwinModeShutterOffset, 0), done, Always("w 0A130000=0")},
        {"IExposure::SetTwinModeShutterOffset above", On(&E::SetTwinModeShutterOffset, 2001), outOfRange, Never()},

        {"IGain::GetGain",                   On(&G::GetGain),                 "1",        ReadThrough("r 14010000")},
        {"IGain::SetGain",                   On(&G::SetGain, 568),            done,       Sets("w 14010000=568")},
        {"IGain::SetGain above",             On(&G::SetGain, 600),            outOfRange, Sets("w 14010000=600; r 14010000")},
        {"IGain::SetGain greatest",          On(&G::SetGain, 0xFFFFFFFF),     outOfRange, Sets("w 14010000=4294967295; r 14010000")},
        {"IGain::SetGain automatic",         On(&G::SetGain, 600),            disabled,   Never(), After(On(&G::SetAGC, 1))},
        {"IGain::GetGain automatic",         On(&G::GetGain),                 "1",        ReadThrough("r 14010000"), After(On(&G::SetAGC, 2))},
        {"IGain::GetAGC",                    On(&G::GetAGC),                  "0",        ReadThrough("r 46020000")},
        {"IGain::SetAGC",                    On(&G::SetAGC, 0),               done,       Always("w 46020000=0").Changes(allOfAGC), automatic},
        {"IGain::SetAGC 1",                  On(&G::SetAGC, 1),               done,       Always("w 46020000=1").Changes("GetAGC, GetAutoGainStopMode")},
        {"IGain::SetAGC 2",                  On(&G::SetAGC, 2),               done,       Always("w 46020000=2").Changes(allOfAGC)},
        {"IGain::SetAGC 3",                  On(&G::SetAGC, 3),               outOfRange, Never()},
        {"IGain::SetAGC -1",                 On(&G::SetAGC, -1),              outOfRange, Never()},
        {"IGain::GetAutoGainStopMode",       On(&G::GetAutoGainStopMode),     "1",        ReadThrough("r 46090000"), automatic},
        {"IGain::SetAutoGainStopMode",       On(&G::SetAutoGainStopMode, 0),  done,       Sets("w 46090000=0"), automatic},
        {"IGain::SetAutoGainStopMode 2",     On(&G::SetAutoGainStopMode, 2),  outOfRange, Never(), automatic},
        {"IGain::SetAutoGainStopMode manual", On(&G::SetAutoGainStopMode, 2), disabled,   Never(), After(On(&G::SetAGC, 0))},
        {"IGain::GetAutomaticLevel",         On(&G::GetAutomaticLevel),       "1",        ReadThrough("r 46030000"), automatic},
        {"IGain::SetAutomaticLevel",         On(&G::SetAutomaticLevel, 100),  done,       Sets("w 46030000=100"), automatic},
        {"IGain::SetAutomaticLevel above",   On(&G::SetAutomaticLevel, 101),  outOfRange, Sets("w 46030000=101; r 46030000"), automatic},
        {"IGain::SetAutomaticLevel manual",  On(&G::SetAutomaticLevel, 101),  disabled,   Never(), After(On(&G::SetAGC, 1))},

        {"IABC::GetABC",              On(&A::GetABC),                 "2",        ReadThrough("r 47040000")},
        {"IABC::SetABC",              On(&A::SetABC, 0),              done,       Always("w 47040000=0").Changes(allOfABC)},
        {"IABC::SetABC 1",            On(&A::SetABC, 1),              done,       Always("w 47040000=1").Changes("GetABC, GetABCStopMode")},
        {"IABC::SetABC 2",            On(&A::SetABC, 2),              done,       Always("w 47040000=2").Changes(allOfABC), With(0x47040000, 0)},
        {"IABC::SetABC 3",            On(&A::SetABC, 3),              outOfRange, Never()},
        {"IABC::GetABCStopMode",      On(&A::GetABCStopMode),         "1",        ReadThrough("r 47050000")},
        {"IABC::SetABCStopMode",      On(&A::SetABCStopMode, 0),      done,       Sets("w 47050000=0")},
        {"IABC::SetABCStopMode 2",    On(&A::SetABCStopMode, 2),      outOfRange, Never(), After(On(&A::SetABC, 0))},
        {"IABC::GetABCThreshold",     On(&A::GetABCThreshold, 0),     "5",        ReadThrough("w 47090000=0; rp 47090000")},
        {"IABC::GetABCThreshold 1",   On(&A::GetABCThreshold, 1),     "15",       ReadThrough("w 47090000=1; rp 47090000")},
        {"IABC::GetABCThreshold 2",   On(&A::GetABCThreshold, 2),     invalid,    Never()},
        {"IABC::SetABCThreshold",     On(&A::SetABCThreshold, 0, 0),  done,       Sets("wp 47090000=0,0")},
        {"IABC::SetABCThreshold 1",   On(&A::SetABCThreshold, 1, 1023), done,     Sets("wp 47090000=1,1023", "1")},
        {"IABC::SetABCThreshold above", On(&A::SetABCThreshold, 1, 1024), outOfRange, Sets("wp 47090000=1,1024; w 47090000=1; rp 47090000", "1")},
        {"IABC::SetABCThreshold 2",   On(&A::SetABCThreshold, 2, 1024), invalid,  Never()},
        {"IABC::GetABCXRLevel",       On(&A::GetABCXRLevel),          "1",        ReadThrough("r 470A0000")},
    };
}

std::vector<Operation> DrawingOperations() {
    using O = M2VX::IOverlay; using S = M2VX::ISignalAnalysis;
    return {
        {"IOverlay::GetOverlayShow",          On(&O::GetOverlayShow, 0),       "5",        ReadThrough("w 17010000=0; rp 17010000")},
        {"IOverlay::GetOverlayShow 2",        On(&O::GetOverlayShow, 2),       "25",       ReadThrough("w 17010000=2; rp 17010000")},
        {"IOverlay::GetOverlayShow 3",        On(&O::GetOverlayShow, 3),       outOfRange, Never()},
        {"IOverlay::GetOverlayShow 4",        On(&O::GetOverlayShow, 4),       invalid,    Never()},
        {"IOverlay::GetOverlayShow -1",       On(&O::GetOverlayShow, -1),      invalid,    Never()},
        {"IOverlay::SetOverlayShow",          On(&O::SetOverlayShow, 0, 0),    done,       Sets("wp 17010000=0,0")},
        {"IOverlay::SetOverlayShow 2",        On(&O::SetOverlayShow, 2, 1),    done,       Sets("wp 17010000=2,1", "2")},
        {"IOverlay::SetOverlayShow value 2",  On(&O::SetOverlayShow, 1, 2),    outOfRange, Never()},
        {"IOverlay::SetOverlayShow value -1", On(&O::SetOverlayShow, 1, -1),   outOfRange, Never()},
        {"IOverlay::SetOverlayShow 3",        On(&O::SetOverlayShow, 3, 1),    outOfRange, Never()},
        {"IOverlay::SetOverlayShow 4",        On(&O::SetOverlayShow, 4, 1),    invalid,    Never()},
        {"IOverlay::SetOverlayShow -1",       On(&O::SetOverlayShow, -1, 1),   invalid,    Never()},
        {"IOverlay::GetOverlayPosition",      On(&O::GetOverlayPosition, 0),   "5,6",      ReadThrough("w 17020000=0; rb 17020000/12")},
        {"IOverlay::GetOverlayPosition 2",    On(&O::GetOverlayPosition, 2),   "25,26",    ReadThrough("w 17020000=2; rb 17020000/12")},
        {"IOverlay::GetOverlayPosition 3",    On(&O::GetOverlayPosition, 3),   outOfRange, Never()},
        {"IOverlay::GetOverlayPosition 4",    On(&O::GetOverlayPosition, 4),   invalid,    Never()},
        {"IOverlay::SetOverlayPosition",      Position(2, -500, 499),          done,       Sets("wb 17020000=2,4294966796,499", "2")},
        {"IOverlay::SetOverlayPosition x",    Position(0, 500, 0),             outOfRange, Sets("wb 17020000=0,500,0; w 17020000=0; rb 17020000/12")},
        {"IOverlay::SetOverlayPosition y",    Position(0, 0, -501),            outOfRange, Sets("wb 17020000=0,0,4294966795; w 17020000=0; rb 17020000/12")},
        {"IOverlay::SetOverlayPosition 3",    Position(3, 0, 0),               outOfRange, Never()},
        {"IOverlay::SetOverlayPosition 4",    Position(4, 0, 0),               invalid,    Never()},
        {"IOverlay::GetOverlayStyle",         On(&O::GetOverlayStyle, 0),      "5,6",      ReadThrough("w 17030000=0; rb 17030000/12")},
        {"IOverlay::GetOverlayStyle 2",       On(&O::GetOverlayStyle, 2),      "25,26",    ReadThrough("w 17030000=2; rb 17030000/12")},
        {"IOverlay::GetOverlayStyle 3",       On(&O::GetOverlayStyle, 3),      outOfRange, Never()},
        {"IOverlay::GetOverlayStyle 4",       On(&O::GetOverlayStyle, 4),      invalid,    Never()},
        {"IOverlay::SetOverlayStyle",         Style(2, {3, 1}),                done,       Sets("wb 17030000=2,3,1", "2")},
        {"IOverlay::SetOverlayStyle color",   Style(0, {4, 0}),                outOfRange, Never()},
        {"IOverlay::SetOverlayStyle style",   Style(0, {0, 2}),                outOfRange, Never()},
        {"IOverlay::SetOverlayStyle 3",       Style(3, {0, 0}),                outOfRange, Never()},
        {"IOverlay::SetOverlayStyle 4",       Style(4, {9, 9}),                invalid,    Never()},
        {"IOverlay::GetOverlaySize",          On(&O::GetOverlaySize, 0),       "5,6",      ReadThrough("w 17040000=0; rb 17040000/12")},
        {"IOverlay::GetOverlaySize 2",        On(&O::GetOverlaySize, 2),       "25,26",    ReadThrough("w 17040000=2; rb 17040000/12")},
        {"IOverlay::GetOverlaySize 3",        On(&O::GetOverlaySize, 3),       outOfRange, Never()},
        {"IOverlay::GetOverlaySize 4",        On(&O::GetOverlaySize, 4),       invalid,    Never()},
        {"IOverlay::SetOverlaySize",          Size(2, {3, 1024}),              done,       Sets("wb 17040000=2,3,1024", "2")},
        {"IOverlay::SetOverlaySize width",    Size(0, {4, 1}),                 outOfRange, Never()},
        {"IOverlay::SetOverlaySize length",   Size(0, {0, 0}),                 outOfRange, Never()},
        {"IOverlay::SetOverlaySize 3",        Size(3, {0, 1}),                 outOfRange, Never()},
        {"IOverlay::SetOverlaySize 4",        Size(4, {0, 1}),                 invalid,    Never()},

        {"ISignalAnalysis::GetMeasureFrameShow",   On(&S::GetMeasureFrameShow),    "1",         ReadThrough("r 1E010000")},
        {"ISignalAnalysis::SetMeasureFrameShow",   On(&S::SetMeasureFrameShow, 0), done,        Sets("w 1E010000=0")},
        {"ISignalAnalysis::SetMeasureFrameShow 2", On(&S::SetMeasureFrameShow, 2), outOfRange,  Never()},
        {"ISignalAnalysis::GetMeasureWindow",      On(&S::GetMeasureWindow),       "1,2,3,4,5", ReadThrough("rb 1E030000/20")},
        {"ISignalAnalysis::SetMeasureWindow",      Window({511, 3, -511, 511, 512}), done,      Sets("wb 1E030000=511,3,4294966785,511,512")},
        {"ISignalAnalysis::SetMeasureWindow radius", Window({512, 1, 0, 0, 1}),    outOfRange,  Sets("wb 1E030000=512,1,0,0,1; rb 1E030000/20")},
        {"ISignalAnalysis::SetMeasureWindow width",  Window({0, 0, 0, 0, 1}),      outOfRange,  Sets("wb 1E030000=0,0,0,0,1; rb 1E030000/20")},
        {"ISignalAnalysis::SetMeasureWindow x",      Window({0, 1, -512, 0, 1}),   outOfRange,  Sets("wb 1E030000=0,1,4294966784,0,1; rb 1E030000/20")},
        {"ISignalAnalysis::SetMeasureWindow stretch", Window({0, 1, 0, 0, 0}),     outOfRange,  Sets("wb 1E030000=0,1,0,0,0; rb 1E030000/20")},
    };
}

std::vector<Operation> CorrectionOperations() {
    using C = M2VX::IImageCorrection; using P = M2VX::IDefectPixel; using D = IDigitalEnhancement;
    const State uncorrected = After(On(&C::SetShadingCorrectionMode, 0)), unblanked = After(On(&C::SetCircularBlankingMode, 0));
    const std::string first = "wp 0B020000=0,0; rb 0B020000/20", second = "wp 0B020000=1,0; rb 0B020000/20";
    const State uncompensated = Disabling("defectpixelautocompensation");
    const State negative = With(0x1B020000, 0xFFFFFFF7, 1);
    const std::string equalized = "GetHistogramEqualization, GetBrightness, GetContrast";
    const std::string shading = "GetShadingCorrectionMode, GetShadingCorrection, GetShadingCorrection 1, GetShadingCorrection 2, GetShadingCorrection 3";
    const std::string blanking = "GetCircularBlankingMode, GetCircularBlankingSize, GetCircularBlankingPosition";
    return {
        {"IImageCorrection::GetShadingCorrectionMode",   On(&C::GetShadingCorrectionMode),    "1",        ReadThrough("r 1B010000")},
        {"IImageCorrection::SetShadingCorrectionMode",   On(&C::SetShadingCorrectionMode, 0), done,       Always("w 1B010000=0").Changes(shading)},
        {"IImageCorrection::SetShadingCorrectionMode 2", On(&C::SetShadingCorrectionMode, 2), outOfRange, Never()},
        {"IImageCorrection::GetShadingCorrection",       On(&C::GetShadingCorrection, 0),     "5",        ReadThrough("w 1B020000=0; rp 1B020000")},
        {"IImageCorrection::GetShadingCorrection 1",     On(&C::GetShadingCorrection, 1),     "-9",       ReadThrough("w 1B020000=1; rp 1B020000"), negative},
        {"IImageCorrection::GetShadingCorrection 2",     On(&C::GetShadingCorrection, 2),     "25",       ReadThrough("w 1B020000=2; rp 1B020000")},
        {"IImageCorrection::GetShadingCorrection 3",     On(&C::GetShadingCorrection, 3),     "35",       ReadThrough("w 1B020000=3; rp 1B020000")},
        {"IImageCorrection::GetShadingCorrection 4",     On(&C::GetShadingCorrection, 4),     invalid,    Never()},
        {"IImageCorrection::SetShadingCorrection",       Shade(3, -128), done,     Sets("wp 1B020000=3,4294967168", "3")},
        {"IImageCorrection::SetShadingCorrection above", Shade(0, 128), outOfRange, Sets("wp 1B020000=0,128; w 1B020000=0; rp 1B020000")},
        {"IImageCorrection::SetShadingCorrection below", Shade(2, -129), outOfRange, Sets("wp 1B020000=2,4294967167; w 1B020000=2; rp 1B020000", "2")},
        {"IImageCorrection::SetShadingCorrection off",   Shade(3, 999), disabled,  Never(), uncorrected},
        {"IImageCorrection::SetShadingCorrection 4",     Shade(4, 0),  invalid,    Never(), uncorrected},
        {"IImageCorrection::GetCircularBlankingMode",    On(&C::GetCircularBlankingMode),     "1",        ReadThrough("r 1B030000")},
        {"IImageCorrection::SetCircularBlankingMode",    On(&C::SetCircularBlankingMode, 0),  done,       Always("w 1B030000=0").Changes(blanking)},
        {"IImageCorrection::SetCircularBlankingMode 2",  On(&C::SetCircularBlankingMode, 2),  outOfRange, Never()},
        {"IImageCorrection::GetCircularBlankingSize",    On(&C::GetCircularBlankingSize),     "1",        ReadThrough("r 1B040000")},
        {"IImageCorrection::SetCircularBlankingSize",    On(&C::SetCircularBlankingSize, 512), done,      Sets("w 1B040000=512")},
        {"IImageCorrection::SetCircularBlankingSize 0",  On(&C::SetCircularBlankingSize, 0),  outOfRange, Sets("w 1B040000=0; r 1B040000")},
        {"IImageCorrection::SetCircularBlankingSize above", On(&C::SetCircularBlankingSize, 513), outOfRange, Sets("w 1B040000=513; r 1B040000")},
        {"IImageCorrection::SetCircularBlankingSize off", On(&C::SetCircularBlankingSize, 513), disabled, Never(), unblanked},
        {"IImageCorrection::GetCircularBlankingPosition", On(&C::GetCircularBlankingPosition), "1,2",     ReadThrough("rp 1B050000")},
        {"IImageCorrection::SetCircularBlankingPosition",   Blank(1023, 0), done,       Sets("wp 1B050000=1023,0")},
        {"IImageCorrection::SetCircularBlankingPosition x", Blank(-1, 0),   outOfRange, Sets("wp 1B050000=4294967295,0; rp 1B050000")},
        {"IImageCorrection::SetCircularBlankingPosition y", Blank(0, 1024), outOfRange, Sets("wp 1B050000=0,1024; rp 1B050000")},
        {"IImageCorrection::SetCircularBlankingPosition off", Blank(-1, 0), disabled,   Never(), unblanked},

        {"IDefectPixel::GetDefectPixel",            Pixel({0, 0}),   "3,4,5",     ReadThrough(first)},
        {"IDefectPixel::GetDefectPixel second",     Pixel({0, 1}),   "3,4,5",     ReadThrough(second)},
        {"IDefectPixel::GetDefectPixel last",       Pixel({127, 1}), "3,4,5",     ReadThrough("wp 0B020000=1,127; rb 0B020000/20"), With(0x0B040000, 128)},
        {"IDefectPixel::GetDefectPixel pair 128",   Pixel({128, 0}), "SDK4_ERR_CANTGETFEATURE", Never()},
        {"IDefectPixel::GetDefectPixel position 2", Pixel({0, 2}),   "SDK4_ERR_CANTGETFEATURE", Never()},
        {"IDefectPixel::SetDefectPixel",            Pixel({0, 1}, {1024, 0, 2}), done,  Sets("wb 0B020000=0,1,1024,0,2", "second")},
        {"IDefectPixel::SetDefectPixel last",       Pixel({127, 1}, {5, 6, 1}),  done,  Sets("wb 0B020000=127,1,5,6,1", "last")},
        {"IDefectPixel::SetDefectPixel x",    Pixel({0, 0}, {1025, 0, 0}), outOfRange, Sets("wb 0B020000=0,0,1025,0,0; " + first)},
        {"IDefectPixel::SetDefectPixel y",    Pixel({0, 1}, {0, 1025, 0}), outOfRange, Sets("wb 0B020000=0,1,0,1025,0; " + second, "second")},
        {"IDefectPixel::SetDefectPixel mode", Pixel({0, 0}, {0, 0, 3}),    outOfRange, Sets("wb 0B020000=0,0,0,0,3; " + first)},
        {"IDefectPixel::SetDefectPixel pair 128",   Pixel({128, 0}, {9999, 0, 0}), "SDK4_ERR_CANTGETFEATURE", Never()},
        {"IDefectPixel::SetDefectPixel position 2", Pixel({0, 2}, {0, 0, 0}),      "SDK4_ERR_CANTGETFEATURE", Never()},
        {"IDefectPixel::SetDefectPixelAutoCompensation", On(&P::SetDefectPixelAutoCompensation), done, Always("w 0B030000=0")},
        {"IDefectPixel::SetDefectPixelAutoCompensation disabled", On(&P::SetDefectPixelAutoCompensation), disabled, Never(), uncompensated},
        {"IDefectPixel::GetDefectPixelCount",  On(&P::GetDefectPixelCount),    "1",        ReadThrough("r 0B040000")},
        {"IDefectPixel::GetDefectPixelShow",   On(&P::GetDefectPixelShow),     "1",        ReadThrough("r 0B0A0000")},
        {"IDefectPixel::SetDefectPixelShow",   On(&P::SetDefectPixelShow, 0),  done,       Sets("w 0B0A0000=0")},
        {"IDefectPixel::SetDefectPixelShow 2", On(&P::SetDefectPixelShow, 2),  outOfRange, Never()},
        {"IDefectPixel::SetDefectPixelShow disabled", On(&P::SetDefectPixelShow, 0), disabled, Never(), Disabling("defectpixelshow")},

        {"IDigitalEnhancement::GetBrightness",       On(&D::GetBrightness),        "1",        ReadThrough("r 18010000")},
        {"IDigitalEnhancement::SetBrightness",       On(&D::SetBrightness, 16383), done,       Sets("w 18010000=16383")},
        {"IDigitalEnhancement::SetBrightness above", On(&D::SetBrightness, 16384), outOfRange, Sets("w 18010000=16384; r 18010000")},
        {"IDigitalEnhancement::GetContrast",         On(&D::GetContrast),          "1",        ReadThrough("r 18020000")},
        {"IDigitalEnhancement::SetContrast",         On(&D::SetContrast, 255),     done,       Sets("w 18020000=255")},
        {"IDigitalEnhancement::SetContrast above",   On(&D::SetContrast, 256),     outOfRange, Sets("w 18020000=256; r 18020000")},
        {"IDigitalEnhancement::GetSharpness",        On(&D::GetSharpness),         "1",        ReadThrough("r 18030000")},
        {"IDigitalEnhancement::SetSharpness",        On(&D::SetSharpness, 255),    done,       Sets("w 18030000=255")},
        {"IDigitalEnhancement::SetSharpness above",  On(&D::SetSharpness, 256),    outOfRange, Sets("w 18030000=256; r 18030000")},
        {"IDigitalEnhancement::GetHistogramEqualization",    On(&D::GetHistogramEqualization),     "0",        ReadThrough("r 180C0000")},
        {"IDigitalEnhancement::SetHistogramEqualization",    On(&D::SetHistogramEqualization, 3),  done,       Sets("w 180C0000=3")},
        {"IDigitalEnhancement::SetHistogramEqualization 1",  On(&D::SetHistogramEqualization, 1),  done,       Always("w 180C0000=1").Changes(equalized)},
        {"IDigitalEnhancement::SetHistogramEqualization 4",  On(&D::SetHistogramEqualization, 4),  outOfRange, Never()},
        {"IDigitalEnhancement::SetHistogramEqualization -1", On(&D::SetHistogramEqualization, -1), outOfRange, Never()},
    };
}

std::vector<Operation> MemoryOperations() {
    using L = ILookUpTable; using M = IMemory;
    const std::string unfiltered = "GetRecursiveFilter, GetAutoMotionDetection";
    return {
        {"ILookUpTable::GetLUTMode",                 On(&L::GetLUTMode),                  notImplemented, Never()},
        {"ILookUpTable::SetLUTMode",                 On(&L::SetLUTMode, 0),               notImplemented, Never()},
        {"ILookUpTable::GetLUTInterpolatorIndex",    On(&L::GetLUTInterpolatorIndex),     "-5",       ReadThrough("r 19010000"), With(0x19010000, 0xFFFFFFFB)},
        {"ILookUpTable::SetLUTInterpolatorIndex",    On(&L::SetLUTInterpolatorIndex, 12), done,       Sets("w 19010000=12")},
        {"ILookUpTable::SetLUTInterpolatorIndex 13", On(&L::SetLUTInterpolatorIndex, 13), outOfRange, Never()},
        {"ILookUpTable::SetLUTInterpolatorIndex -1", On(&L::SetLUTInterpolatorIndex, -1), outOfRange, Never()},
        {"ILookUpTable::GetNegativeImage",           On(&L::GetNegativeImage),            "1",        ReadThrough("r 19030000")},
        {"ILookUpTable::SetNegativeImage",           On(&L::SetNegativeImage, 0),         done,       Sets("w 19030000=0")},
        {"ILookUpTable::SetNegativeImage -1",        On(&L::SetNegativeImage, -1),        outOfRange, Never()},

        {"IMemory::GetVerticalFlip",         On(&M::GetVerticalFlip),         "1",        ReadThrough("r 16020000")},
        {"IMemory::SetVerticalFlip",         On(&M::SetVerticalFlip, 0),      done,       Sets("w 16020000=0")},
        {"IMemory::SetVerticalFlip 2",       On(&M::SetVerticalFlip, 2),      outOfRange, Never()},
        {"IMemory::GetHorizontalFlip",       On(&M::GetHorizontalFlip),       "1",        ReadThrough("r 16030000")},
        {"IMemory::SetHorizontalFlip",       On(&M::SetHorizontalFlip, 0),    done,       Sets("w 16030000=0")},
        {"IMemory::SetHorizontalFlip -1",    On(&M::SetHorizontalFlip, -1),   outOfRange, Never()},
        {"IMemory::GetLastImageHold",        On(&M::GetLastImageHold),        "1",        ReadThrough("r 16040000")},
        {"IMemory::SetLastImageHold",        On(&M::SetLastImageHold, 0),     done,       Sets("w 16040000=0")},
        {"IMemory::SetLastImageHold 2",      On(&M::SetLastImageHold, 2),     outOfRange, Never()},
        {"IMemory::GetImageSubtraction",     On(&M::GetImageSubtraction),     "1",        ReadThrough("r 16060000")},
        {"IMemory::SetImageSubtraction",     On(&M::SetImageSubtraction, 0),  done,       Sets("w 16060000=0")},
        {"IMemory::SetImageSubtraction 2",   On(&M::SetImageSubtraction, 2),  outOfRange, Never()},
        {"IMemory::GetRecursiveFilter",      On(&M::GetRecursiveFilter),      "1",        ReadThrough("r 16070000")},
        {"IMemory::SetRecursiveFilter",      On(&M::SetRecursiveFilter, 4),   done,       Sets("w 16070000=4")},
        {"IMemory::SetRecursiveFilter off",  On(&M::SetRecursiveFilter, 0),   done,       Always("w 16070000=0").Changes(unfiltered)},
        {"IMemory::SetRecursiveFilter 5",    On(&M::SetRecursiveFilter, 5),   outOfRange, Never()},
        {"IMemory::StoreImage",              On(&M::StoreImage, 1),           done,       Always("w 16050000=1")},
        {"IMemory::StoreImage 2",            On(&M::StoreImage, 2),           outOfRange, Never()},
        {"IMemory::GetAutoMotionDetection",  On(&M::GetAutoMotionDetection),  "1",        ReadThrough("r 16080000")},
        {"IMemory::SetAutoMotionDetection",  On(&M::SetAutoMotionDetection, 0), done,     Sets("w 16080000=0")},
        {"IMemory::SetAutoMotionDetection 2", On(&M::SetAutoMotionDetection, 2), outOfRange, Never()},
        {"IMemory::SetAutoMotionDetection no filter", On(&M::SetAutoMotionDetection, 2), disabled, Never(), After(On(&M::SetRecursiveFilter, 0))},
    };
}
// clang-format on

} // namespace

std::vector<Operation> M2VXImagingOperations() {
    return OnM2VX({SensorOperations(), DrawingOperations(), CorrectionOperations(), MemoryOperations()});
}

} // namespace Test
