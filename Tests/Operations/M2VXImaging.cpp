// The M2VX family: exposure, gain, corrections of the image, what is drawn into it, and its memory.

#include "Tests/Operations/Operations.h"

using namespace SDK4::Control;

namespace Test {

namespace {

constexpr std::uint32_t agc = 0x46020000;

Call Position(int overlay, int x, int y) {
    return On(&M2VX::IOverlay::SetOverlayPosition, overlay, SDK4_KCIRCULARPOSITION{x, y});
}
Call Style(int overlay, SDK4_KSTYLE style) { return On(&M2VX::IOverlay::SetOverlayStyle, overlay, style); }
Call Size(int overlay, SDK4_KOVERLAYSIZE size) { return On(&M2VX::IOverlay::SetOverlaySize, overlay, size); }
Call Blank(int x, int y) {
    return On(&M2VX::IImageCorrection::SetCircularBlankingPosition, SDK4_KCIRCULARPOSITION{x, y});
}
Call Window(SDK4_KMWCIRCLE window) { return On(&M2VX::ISignalAnalysis::SetMeasureWindow, window); }
Call Pixel(SDK4_KDEFECTPIXELSELECT select) { return On(&M2VX::IDefectPixel::GetDefectPixel, select); }
Call Pixel(SDK4_KDEFECTPIXELSELECT select, SDK4_KDEFECTPIXEL pixel) {
    return On(&M2VX::IDefectPixel::SetDefectPixel, select, pixel);
}

// Unless a row says otherwise, the modes of the camera enable everything but "automaticlevel" and "autogainstopmode";
// of an indexed register, instance i holds the words 10 i + 5 and 10 i + 6, other registers 1, 2, ... (see Prepare).

// clang-format off
std::vector<Operation> SensorOperations() {
    using E = M2VX::IExposure; using G = M2VX::IGain; using A = M2VX::IABC;
    const State automatic = With(agc, 2);
    return {
        {"IExposure::GetExposureMode",           On(&E::GetExposureMode),       "3",        ReadThrough("r 0A020000")},
        {"IExposure::SetExposureMode",           On(&E::SetExposureMode, 4),    done,       Always("w 0A020000=4").Changes("GetExposureMode")},
        {"IExposure::SetExposureMode 0",         On(&E::SetExposureMode, 0),    outOfRange, Never()},
        {"IExposure::SetExposureMode 7",         On(&E::SetExposureMode, 7),    outOfRange, Never()},
        {"IExposure::SetExposureMode disabled",  On(&E::SetExposureMode, 7),    disabled,   Never(), Disabling("exposuremode")},
        {"IExposure::GetExposure",               On(&E::GetExposure),           "1",        ReadThrough("r 0A030000")},
        {"IExposure::SetExposure",               On(&E::SetExposure, 2000),     done,       Always("w 0A030000=2000").Changes("GetExposure")},
        {"IExposure::SetExposure 0",             On(&E::SetExposure, 0),        outOfRange, Always("w 0A030000=0; r 0A030000").Changes("GetExposure")},
        {"IExposure::SetExposure above",         On(&E::SetExposure, 2001),     outOfRange, Always("w 0A030000=2001; r 0A030000").Changes("GetExposure")},
        {"IExposure::SetExposure other mode",    On(&E::SetExposure, 2001),     disabled,   Never(), After(On(&E::SetExposureMode, 1))},
        {"IExposure::GetExposure other mode",    On(&E::GetExposure),           "1",        ReadThrough("r 0A030000"), After(On(&E::SetExposureMode, 1))},
        {"IExposure::GetFODStatus",              On(&E::GetFODStatus),          "1",        Always("r 0A0D0000")},
        {"IExposure::GetTwinModeShutterOffset",  On(&E::GetTwinModeShutterOffset), "1",     Always("r 0A130000")},
        {"IExposure::SetTwinModeShutterOffset",  On(&E::SetTwinModeShutterOffset, 2000), done, Always("w 0A130000=2000")},
        {"IExposure::SetTwinModeShutterOffset 0", On(&E::SetTwinModeShutterOffset, 0), done, Always("w 0A130000=0")},
        {"IExposure::SetTwinModeShutterOffset above", On(&E::SetTwinModeShutterOffset, 2001), outOfRange, Never()},

        {"IGain::GetGain",                   On(&G::GetGain),                 "1",        ReadThrough("r 14010000")},
        {"IGain::SetGain",                   On(&G::SetGain, 568),            done,       Always("w 14010000=568").Changes("GetGain")},
        {"IGain::SetGain above",             On(&G::SetGain, 600),            outOfRange, Always("w 14010000=600; r 14010000").Changes("GetGain")},
        {"IGain::SetGain greatest",          On(&G::SetGain, 0xFFFFFFFF),     outOfRange, Always("w 14010000=4294967295; r 14010000").Changes("GetGain")},
        {"IGain::SetGain automatic",         On(&G::SetGain, 600),            disabled,   Never(), After(On(&G::SetAGC, 1))},
        {"IGain::GetGain automatic",         On(&G::GetGain),                 "1",        ReadThrough("r 14010000"), After(On(&G::SetAGC, 2))},
        {"IGain::GetAGC",                    On(&G::GetAGC),                  "0",        ReadThrough("r 46020000")},
        {"IGain::SetAGC",                    On(&G::SetAGC, 0),               done,       Always("w 46020000=0").Changes("GetAGC, GetAutomaticLevel, GetAutoGainStopMode"), automatic},
        {"IGain::SetAGC 1",                  On(&G::SetAGC, 1),               done,       Always("w 46020000=1").Changes("GetAGC, GetAutoGainStopMode")},
        {"IGain::SetAGC 2",                  On(&G::SetAGC, 2),               done,       Always("w 46020000=2").Changes("GetAGC, GetAutomaticLevel, GetAutoGainStopMode")},
        {"IGain::SetAGC 3",                  On(&G::SetAGC, 3),               outOfRange, Never()},
        {"IGain::SetAGC -1",                 On(&G::SetAGC, -1),              outOfRange, Never()},
        {"IGain::GetAutoGainStopMode",       On(&G::GetAutoGainStopMode),     "1",        ReadThrough("r 46090000"), automatic},
        {"IGain::SetAutoGainStopMode",       On(&G::SetAutoGainStopMode, 0),  done,       Always("w 46090000=0").Changes("GetAutoGainStopMode"), automatic},
        {"IGain::SetAutoGainStopMode 2",     On(&G::SetAutoGainStopMode, 2),  outOfRange, Never(), automatic},
        {"IGain::SetAutoGainStopMode manual", On(&G::SetAutoGainStopMode, 2), disabled,   Never(), After(On(&G::SetAGC, 0))},
        {"IGain::GetAutomaticLevel",         On(&G::GetAutomaticLevel),       "1",        ReadThrough("r 46030000"), automatic},
        {"IGain::SetAutomaticLevel",         On(&G::SetAutomaticLevel, 100),  done,       Always("w 46030000=100").Changes("GetAutomaticLevel"), automatic},
        {"IGain::SetAutomaticLevel above",   On(&G::SetAutomaticLevel, 101),  outOfRange, Always("w 46030000=101; r 46030000").Changes("GetAutomaticLevel"), automatic},
        {"IGain::SetAutomaticLevel manual",  On(&G::SetAutomaticLevel, 101),  disabled,   Never(), After(On(&G::SetAGC, 1))},

        {"IABC::GetABC",              On(&A::GetABC),                 "2",        ReadThrough("r 47040000")},
        {"IABC::SetABC",              On(&A::SetABC, 0),              done,       Always("w 47040000=0").Changes("GetABC, GetABCThreshold, GetABCThreshold 1, GetABCStopMode")},
        {"IABC::SetABC 1",            On(&A::SetABC, 1),              done,       Always("w 47040000=1").Changes("GetABC, GetABCStopMode")},
        {"IABC::SetABC 2",            On(&A::SetABC, 2),              done,       Always("w 47040000=2").Changes("GetABC, GetABCThreshold, GetABCThreshold 1, GetABCStopMode"), With(0x47040000, 0)},
        {"IABC::SetABC 3",            On(&A::SetABC, 3),              outOfRange, Never()},
        {"IABC::GetABCStopMode",      On(&A::GetABCStopMode),         "1",        ReadThrough("r 47050000")},
        {"IABC::SetABCStopMode",      On(&A::SetABCStopMode, 0),      done,       Always("w 47050000=0").Changes("GetABCStopMode")},
        {"IABC::SetABCStopMode 2",    On(&A::SetABCStopMode, 2),      outOfRange, Never(), After(On(&A::SetABC, 0))},
        {"IABC::GetABCThreshold",     On(&A::GetABCThreshold, 0),     "5",        ReadThrough("w 47090000=0; rp 47090000")},
        {"IABC::GetABCThreshold 1",   On(&A::GetABCThreshold, 1),     "15",       ReadThrough("w 47090000=1; rp 47090000")},
        {"IABC::GetABCThreshold 2",   On(&A::GetABCThreshold, 2),     invalid,    Never()},
        {"IABC::SetABCThreshold",     On(&A::SetABCThreshold, 0, 0),  done,       Always("wp 47090000=0,0").Changes("GetABCThreshold")},
        {"IABC::SetABCThreshold 1",   On(&A::SetABCThreshold, 1, 1023), done,     Always("wp 47090000=1,1023").Changes("GetABCThreshold 1")},
        {"IABC::SetABCThreshold above", On(&A::SetABCThreshold, 1, 1024), outOfRange, Always("wp 47090000=1,1024; w 47090000=1; rp 47090000").Changes("GetABCThreshold 1")},
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
        {"IOverlay::SetOverlayShow",          On(&O::SetOverlayShow, 0, 0),    done,       Always("wp 17010000=0,0").Changes("GetOverlayShow")},
        {"IOverlay::SetOverlayShow 2",        On(&O::SetOverlayShow, 2, 1),    done,       Always("wp 17010000=2,1").Changes("GetOverlayShow 2")},
        {"IOverlay::SetOverlayShow value 2",  On(&O::SetOverlayShow, 1, 2),    outOfRange, Never()},
        {"IOverlay::SetOverlayShow value -1", On(&O::SetOverlayShow, 1, -1),   outOfRange, Never()},
        {"IOverlay::SetOverlayShow 3",        On(&O::SetOverlayShow, 3, 1),    outOfRange, Never()},
        {"IOverlay::SetOverlayShow 4",        On(&O::SetOverlayShow, 4, 1),    invalid,    Never()},
        {"IOverlay::SetOverlayShow -1",       On(&O::SetOverlayShow, -1, 1),   invalid,    Never()},
        {"IOverlay::GetOverlayPosition",      On(&O::GetOverlayPosition, 0),   "5,6",      ReadThrough("w 17020000=0; rb 17020000/12")},
        {"IOverlay::GetOverlayPosition 2",    On(&O::GetOverlayPosition, 2),   "25,26",    ReadThrough("w 17020000=2; rb 17020000/12")},
        {"IOverlay::GetOverlayPosition 3",    On(&O::GetOverlayPosition, 3),   outOfRange, Never()},
        {"IOverlay::GetOverlayPosition 4",    On(&O::GetOverlayPosition, 4),   invalid,    Never()},
        {"IOverlay::SetOverlayPosition",      Position(2, -500, 499),          done,       Always("wb 17020000=2,4294966796,499").Changes("GetOverlayPosition 2")},
        {"IOverlay::SetOverlayPosition x",    Position(0, 500, 0),             outOfRange, Always("wb 17020000=0,500,0; w 17020000=0; rb 17020000/12").Changes("GetOverlayPosition")},
        {"IOverlay::SetOverlayPosition y",    Position(0, 0, -501),            outOfRange, Always("wb 17020000=0,0,4294966795; w 17020000=0; rb 17020000/12").Changes("GetOverlayPosition")},
        {"IOverlay::SetOverlayPosition 3",    Position(3, 0, 0),               outOfRange, Never()},
        {"IOverlay::SetOverlayPosition 4",    Position(4, 0, 0),               invalid,    Never()},
        {"IOverlay::GetOverlayStyle",         On(&O::GetOverlayStyle, 0),      "5,6",      ReadThrough("w 17030000=0; rb 17030000/12")},
        {"IOverlay::GetOverlayStyle 2",       On(&O::GetOverlayStyle, 2),      "25,26",    ReadThrough("w 17030000=2; rb 17030000/12")},
        {"IOverlay::GetOverlayStyle 3",       On(&O::GetOverlayStyle, 3),      outOfRange, Never()},
        {"IOverlay::GetOverlayStyle 4",       On(&O::GetOverlayStyle, 4),      invalid,    Never()},
        {"IOverlay::SetOverlayStyle",         Style(2, {3, 1}),                done,       Always("wb 17030000=2,3,1").Changes("GetOverlayStyle 2")},
        {"IOverlay::SetOverlayStyle color",   Style(0, {4, 0}),                outOfRange, Never()},
        {"IOverlay::SetOverlayStyle style",   Style(0, {0, 2}),                outOfRange, Never()},
        {"IOverlay::SetOverlayStyle 3",       Style(3, {0, 0}),                outOfRange, Never()},
        {"IOverlay::SetOverlayStyle 4",       Style(4, {9, 9}),                invalid,    Never()},
        {"IOverlay::GetOverlaySize",          On(&O::GetOverlaySize, 0),       "5,6",      ReadThrough("w 17040000=0; rb 17040000/12")},
        {"IOverlay::GetOverlaySize 2",        On(&O::GetOverlaySize, 2),       "25,26",    ReadThrough("w 17040000=2; rb 17040000/12")},
        {"IOverlay::GetOverlaySize 3",        On(&O::GetOverlaySize, 3),       outOfRange, Never()},
        {"IOverlay::GetOverlaySize 4",        On(&O::GetOverlaySize, 4),       invalid,    Never()},
        {"IOverlay::SetOverlaySize",          Size(2, {3, 1024}),              done,       Always("wb 17040000=2,3,1024").Changes("GetOverlaySize 2")},
        {"IOverlay::SetOverlaySize width",    Size(0, {4, 1}),                 outOfRange, Never()},
        {"IOverlay::SetOverlaySize length",   Size(0, {0, 0}),                 outOfRange, Never()},
        {"IOverlay::SetOverlaySize 3",        Size(3, {0, 1}),                 outOfRange, Never()},
        {"IOverlay::SetOverlaySize 4",        Size(4, {0, 1}),                 invalid,    Never()},

        {"ISignalAnalysis::GetMeasureFrameShow",   On(&S::GetMeasureFrameShow),    "1",         ReadThrough("r 1E010000")},
        {"ISignalAnalysis::SetMeasureFrameShow",   On(&S::SetMeasureFrameShow, 0), done,        Always("w 1E010000=0").Changes("GetMeasureFrameShow")},
        {"ISignalAnalysis::SetMeasureFrameShow 2", On(&S::SetMeasureFrameShow, 2), outOfRange,  Never()},
        {"ISignalAnalysis::GetMeasureWindow",      On(&S::GetMeasureWindow),       "1,2,3,4,5", ReadThrough("rb 1E030000/20")},
        {"ISignalAnalysis::SetMeasureWindow",      Window({511, 3, -511, 511, 512}), done,      Always("wb 1E030000=511,3,4294966785,511,512").Changes("GetMeasureWindow")},
        {"ISignalAnalysis::SetMeasureWindow radius", Window({512, 1, 0, 0, 1}),    outOfRange,  Always("wb 1E030000=512,1,0,0,1; rb 1E030000/20").Changes("GetMeasureWindow")},
        {"ISignalAnalysis::SetMeasureWindow width",  Window({0, 0, 0, 0, 1}),      outOfRange,  Always("wb 1E030000=0,0,0,0,1; rb 1E030000/20").Changes("GetMeasureWindow")},
        {"ISignalAnalysis::SetMeasureWindow x",      Window({0, 1, -512, 0, 1}),   outOfRange,  Always("wb 1E030000=0,1,4294966784,0,1; rb 1E030000/20").Changes("GetMeasureWindow")},
        {"ISignalAnalysis::SetMeasureWindow stretch", Window({0, 1, 0, 0, 0}),     outOfRange,  Always("wb 1E030000=0,1,0,0,0; rb 1E030000/20").Changes("GetMeasureWindow")},
    };
}

std::vector<Operation> CorrectionOperations() {
    using C = M2VX::IImageCorrection; using P = M2VX::IDefectPixel; using D = IDigitalEnhancement;
    const State uncorrected = After(On(&C::SetShadingCorrectionMode, 0)), unblanked = After(On(&C::SetCircularBlankingMode, 0));
    return {
        {"IImageCorrection::GetShadingCorrectionMode",   On(&C::GetShadingCorrectionMode),    "1",        ReadThrough("r 1B010000")},
        {"IImageCorrection::SetShadingCorrectionMode",   On(&C::SetShadingCorrectionMode, 0), done,       Always("w 1B010000=0").Changes("GetShadingCorrectionMode, GetShadingCorrection, GetShadingCorrection 1, GetShadingCorrection 2, GetShadingCorrection 3")},
        {"IImageCorrection::SetShadingCorrectionMode 2", On(&C::SetShadingCorrectionMode, 2), outOfRange, Never()},
        {"IImageCorrection::GetShadingCorrection",       On(&C::GetShadingCorrection, 0),     "5",        ReadThrough("w 1B020000=0; rp 1B020000")},
        {"IImageCorrection::GetShadingCorrection 1",     On(&C::GetShadingCorrection, 1),     "-9",       ReadThrough("w 1B020000=1; rp 1B020000"), {{{0x1B020000, Words({0xFFFFFFF7}), 1}}}},
        {"IImageCorrection::GetShadingCorrection 2",     On(&C::GetShadingCorrection, 2),     "25",       ReadThrough("w 1B020000=2; rp 1B020000")},
        {"IImageCorrection::GetShadingCorrection 3",     On(&C::GetShadingCorrection, 3),     "35",       ReadThrough("w 1B020000=3; rp 1B020000")},
        {"IImageCorrection::GetShadingCorrection 4",     On(&C::GetShadingCorrection, 4),     invalid,    Never()},
        {"IImageCorrection::SetShadingCorrection",       On(&C::SetShadingCorrection, 3, -128), done,     Always("wp 1B020000=3,4294967168").Changes("GetShadingCorrection 3")},
        {"IImageCorrection::SetShadingCorrection above", On(&C::SetShadingCorrection, 0, 128), outOfRange, Always("wp 1B020000=0,128; w 1B020000=0; rp 1B020000").Changes("GetShadingCorrection")},
        {"IImageCorrection::SetShadingCorrection below", On(&C::SetShadingCorrection, 2, -129), outOfRange, Always("wp 1B020000=2,4294967167; w 1B020000=2; rp 1B020000").Changes("GetShadingCorrection 2")},
        {"IImageCorrection::SetShadingCorrection off",   On(&C::SetShadingCorrection, 3, 999), disabled,  Never(), uncorrected},
        {"IImageCorrection::SetShadingCorrection 4",     On(&C::SetShadingCorrection, 4, 0),  invalid,    Never(), uncorrected},
        {"IImageCorrection::GetCircularBlankingMode",    On(&C::GetCircularBlankingMode),     "1",        ReadThrough("r 1B030000")},
        {"IImageCorrection::SetCircularBlankingMode",    On(&C::SetCircularBlankingMode, 0),  done,       Always("w 1B030000=0").Changes("GetCircularBlankingMode, GetCircularBlankingSize, GetCircularBlankingPosition")},
        {"IImageCorrection::SetCircularBlankingMode 2",  On(&C::SetCircularBlankingMode, 2),  outOfRange, Never()},
        {"IImageCorrection::GetCircularBlankingSize",    On(&C::GetCircularBlankingSize),     "1",        ReadThrough("r 1B040000")},
        {"IImageCorrection::SetCircularBlankingSize",    On(&C::SetCircularBlankingSize, 512), done,      Always("w 1B040000=512").Changes("GetCircularBlankingSize")},
        {"IImageCorrection::SetCircularBlankingSize 0",  On(&C::SetCircularBlankingSize, 0),  outOfRange, Always("w 1B040000=0; r 1B040000").Changes("GetCircularBlankingSize")},
        {"IImageCorrection::SetCircularBlankingSize above", On(&C::SetCircularBlankingSize, 513), outOfRange, Always("w 1B040000=513; r 1B040000").Changes("GetCircularBlankingSize")},
        {"IImageCorrection::SetCircularBlankingSize off", On(&C::SetCircularBlankingSize, 513), disabled, Never(), unblanked},
        {"IImageCorrection::GetCircularBlankingPosition", On(&C::GetCircularBlankingPosition), "1,2",     ReadThrough("rp 1B050000")},
        {"IImageCorrection::SetCircularBlankingPosition",   Blank(1023, 0), done,       Always("wp 1B050000=1023,0").Changes("GetCircularBlankingPosition")},
        {"IImageCorrection::SetCircularBlankingPosition x", Blank(-1, 0),   outOfRange, Always("wp 1B050000=4294967295,0; rp 1B050000").Changes("GetCircularBlankingPosition")},
        {"IImageCorrection::SetCircularBlankingPosition y", Blank(0, 1024), outOfRange, Always("wp 1B050000=0,1024; rp 1B050000").Changes("GetCircularBlankingPosition")},
        {"IImageCorrection::SetCircularBlankingPosition off", Blank(-1, 0), disabled,   Never(), unblanked},

        {"IDefectPixel::GetDefectPixel",            Pixel({0, 0}),   "3,4,5",     ReadThrough("wp 0B020000=0,0; rb 0B020000/20")},
        {"IDefectPixel::GetDefectPixel second",     Pixel({0, 1}),   "3,4,5",     ReadThrough("wp 0B020000=1,0; rb 0B020000/20")},
        {"IDefectPixel::GetDefectPixel last",       Pixel({127, 1}), "3,4,5",     ReadThrough("wp 0B020000=1,127; rb 0B020000/20"), With(0x0B040000, 128)},
        {"IDefectPixel::GetDefectPixel pair 128",   Pixel({128, 0}), "SDK4_ERR_CANTGETFEATURE", Never()},
        {"IDefectPixel::GetDefectPixel position 2", Pixel({0, 2}),   "SDK4_ERR_CANTGETFEATURE", Never()},
        {"IDefectPixel::SetDefectPixel",            Pixel({0, 1}, {1024, 0, 2}), done,  Always("wb 0B020000=0,1,1024,0,2").Changes("GetDefectPixel second")},
        {"IDefectPixel::SetDefectPixel last",       Pixel({127, 1}, {5, 6, 1}),  done,  Always("wb 0B020000=127,1,5,6,1").Changes("GetDefectPixel last")},
        {"IDefectPixel::SetDefectPixel x",    Pixel({0, 0}, {1025, 0, 0}), outOfRange,  Always("wb 0B020000=0,0,1025,0,0; wp 0B020000=0,0; rb 0B020000/20").Changes("GetDefectPixel")},
        {"IDefectPixel::SetDefectPixel y",    Pixel({0, 1}, {0, 1025, 0}), outOfRange,  Always("wb 0B020000=0,1,0,1025,0; wp 0B020000=1,0; rb 0B020000/20").Changes("GetDefectPixel second")},
        {"IDefectPixel::SetDefectPixel mode", Pixel({0, 0}, {0, 0, 3}),    outOfRange,  Always("wb 0B020000=0,0,0,0,3; wp 0B020000=0,0; rb 0B020000/20").Changes("GetDefectPixel")},
        {"IDefectPixel::SetDefectPixel pair 128",   Pixel({128, 0}, {9999, 0, 0}), "SDK4_ERR_CANTGETFEATURE", Never()},
        {"IDefectPixel::SetDefectPixel position 2", Pixel({0, 2}, {0, 0, 0}),      "SDK4_ERR_CANTGETFEATURE", Never()},
        {"IDefectPixel::SetDefectPixelAutoCompensation", On(&P::SetDefectPixelAutoCompensation), done, Always("w 0B030000=0")},
        {"IDefectPixel::SetDefectPixelAutoCompensation disabled", On(&P::SetDefectPixelAutoCompensation), disabled, Never(), Disabling("defectpixelautocompensation")},
        {"IDefectPixel::GetDefectPixelCount",  On(&P::GetDefectPixelCount),    "1",        ReadThrough("r 0B040000")},
        {"IDefectPixel::GetDefectPixelShow",   On(&P::GetDefectPixelShow),     "1",        ReadThrough("r 0B0A0000")},
        {"IDefectPixel::SetDefectPixelShow",   On(&P::SetDefectPixelShow, 0),  done,       Always("w 0B0A0000=0").Changes("GetDefectPixelShow")},
        {"IDefectPixel::SetDefectPixelShow 2", On(&P::SetDefectPixelShow, 2),  outOfRange, Never()},
        {"IDefectPixel::SetDefectPixelShow disabled", On(&P::SetDefectPixelShow, 0), disabled, Never(), Disabling("defectpixelshow")},

        {"IDigitalEnhancement::GetBrightness",       On(&D::GetBrightness),        "1",        ReadThrough("r 18010000")},
        {"IDigitalEnhancement::SetBrightness",       On(&D::SetBrightness, 16383), done,       Always("w 18010000=16383").Changes("GetBrightness")},
        {"IDigitalEnhancement::SetBrightness above", On(&D::SetBrightness, 16384), outOfRange, Always("w 18010000=16384; r 18010000").Changes("GetBrightness")},
        {"IDigitalEnhancement::GetContrast",         On(&D::GetContrast),          "1",        ReadThrough("r 18020000")},
        {"IDigitalEnhancement::SetContrast",         On(&D::SetContrast, 255),     done,       Always("w 18020000=255").Changes("GetContrast")},
        {"IDigitalEnhancement::SetContrast above",   On(&D::SetContrast, 256),     outOfRange, Always("w 18020000=256; r 18020000").Changes("GetContrast")},
        {"IDigitalEnhancement::GetSharpness",        On(&D::GetSharpness),         "1",        ReadThrough("r 18030000")},
        {"IDigitalEnhancement::SetSharpness",        On(&D::SetSharpness, 255),    done,       Always("w 18030000=255").Changes("GetSharpness")},
        {"IDigitalEnhancement::SetSharpness above",  On(&D::SetSharpness, 256),    outOfRange, Always("w 18030000=256; r 18030000").Changes("GetSharpness")},
        {"IDigitalEnhancement::GetHistogramEqualization",    On(&D::GetHistogramEqualization),     "0",        ReadThrough("r 180C0000")},
        {"IDigitalEnhancement::SetHistogramEqualization",    On(&D::SetHistogramEqualization, 3),  done,       Always("w 180C0000=3").Changes("GetHistogramEqualization")},
        {"IDigitalEnhancement::SetHistogramEqualization 1",  On(&D::SetHistogramEqualization, 1),  done,       Always("w 180C0000=1").Changes("GetHistogramEqualization, GetBrightness, GetContrast")},
        {"IDigitalEnhancement::SetHistogramEqualization 4",  On(&D::SetHistogramEqualization, 4),  outOfRange, Never()},
        {"IDigitalEnhancement::SetHistogramEqualization -1", On(&D::SetHistogramEqualization, -1), outOfRange, Never()},
    };
}

std::vector<Operation> MemoryOperations() {
    using L = ILookUpTable;
    return {
        {"ILookUpTable::GetLUTMode",                 On(&L::GetLUTMode),                  notImplemented, Never()},
        {"ILookUpTable::SetLUTMode",                 On(&L::SetLUTMode, 0),               notImplemented, Never()},
        {"ILookUpTable::GetLUTInterpolatorIndex",    On(&L::GetLUTInterpolatorIndex),     "-5",       ReadThrough("r 19010000"), With(0x19010000, 0xFFFFFFFB)},
        {"ILookUpTable::SetLUTInterpolatorIndex",    On(&L::SetLUTInterpolatorIndex, 12), done,       Always("w 19010000=12").Changes("GetLUTInterpolatorIndex")},
        {"ILookUpTable::SetLUTInterpolatorIndex 13", On(&L::SetLUTInterpolatorIndex, 13), outOfRange, Never()},
        {"ILookUpTable::SetLUTInterpolatorIndex -1", On(&L::SetLUTInterpolatorIndex, -1), outOfRange, Never()},
        {"ILookUpTable::GetNegativeImage",           On(&L::GetNegativeImage),            "1",        ReadThrough("r 19030000")},
        {"ILookUpTable::SetNegativeImage",           On(&L::SetNegativeImage, 0),         done,       Always("w 19030000=0").Changes("GetNegativeImage")},
        {"ILookUpTable::SetNegativeImage -1",        On(&L::SetNegativeImage, -1),        outOfRange, Never()},

        {"IMemory::GetVerticalFlip",         On(&IMemory::GetVerticalFlip),         "1",        ReadThrough("r 16020000")},
        {"IMemory::SetVerticalFlip",         On(&IMemory::SetVerticalFlip, 0),      done,       Always("w 16020000=0").Changes("GetVerticalFlip")},
        {"IMemory::SetVerticalFlip 2",       On(&IMemory::SetVerticalFlip, 2),      outOfRange, Never()},
        {"IMemory::GetHorizontalFlip",       On(&IMemory::GetHorizontalFlip),       "1",        ReadThrough("r 16030000")},
        {"IMemory::SetHorizontalFlip",       On(&IMemory::SetHorizontalFlip, 0),    done,       Always("w 16030000=0").Changes("GetHorizontalFlip")},
        {"IMemory::SetHorizontalFlip -1",    On(&IMemory::SetHorizontalFlip, -1),   outOfRange, Never()},
        {"IMemory::GetLastImageHold",        On(&IMemory::GetLastImageHold),        "1",        ReadThrough("r 16040000")},
        {"IMemory::SetLastImageHold",        On(&IMemory::SetLastImageHold, 0),     done,       Always("w 16040000=0").Changes("GetLastImageHold")},
        {"IMemory::SetLastImageHold 2",      On(&IMemory::SetLastImageHold, 2),     outOfRange, Never()},
        {"IMemory::GetImageSubtraction",     On(&IMemory::GetImageSubtraction),     "1",        ReadThrough("r 16060000")},
        {"IMemory::SetImageSubtraction",     On(&IMemory::SetImageSubtraction, 0),  done,       Always("w 16060000=0").Changes("GetImageSubtraction")},
        {"IMemory::SetImageSubtraction 2",   On(&IMemory::SetImageSubtraction, 2),  outOfRange, Never()},
        {"IMemory::GetRecursiveFilter",      On(&IMemory::GetRecursiveFilter),      "1",        ReadThrough("r 16070000")},
        {"IMemory::SetRecursiveFilter",      On(&IMemory::SetRecursiveFilter, 4),   done,       Always("w 16070000=4").Changes("GetRecursiveFilter")},
        {"IMemory::SetRecursiveFilter off",  On(&IMemory::SetRecursiveFilter, 0),   done,       Always("w 16070000=0").Changes("GetRecursiveFilter, GetAutoMotionDetection")},
        {"IMemory::SetRecursiveFilter 5",    On(&IMemory::SetRecursiveFilter, 5),   outOfRange, Never()},
        {"IMemory::StoreImage",              On(&IMemory::StoreImage, 1),           done,       Always("w 16050000=1")},
        {"IMemory::StoreImage 2",            On(&IMemory::StoreImage, 2),           outOfRange, Never()},
        {"IMemory::GetAutoMotionDetection",  On(&IMemory::GetAutoMotionDetection),  "1",        ReadThrough("r 16080000")},
        {"IMemory::SetAutoMotionDetection",  On(&IMemory::SetAutoMotionDetection, 0), done,     Always("w 16080000=0").Changes("GetAutoMotionDetection")},
        {"IMemory::SetAutoMotionDetection 2", On(&IMemory::SetAutoMotionDetection, 2), outOfRange, Never()},
        {"IMemory::SetAutoMotionDetection no filter", On(&IMemory::SetAutoMotionDetection, 2), disabled, Never(), After(On(&IMemory::SetRecursiveFilter, 0))},
    };
}
// clang-format on

} // namespace

std::vector<Operation> M2VXImagingOperations() {
    return OnM2VX({SensorOperations(), DrawingOperations(), CorrectionOperations(), MemoryOperations()});
}

} // namespace Test
