// Exposure, gain, timing, trigger, geometry and pixel coding.

#include "Tests/Operations/Operations.h"

using namespace SDK4::Control;

namespace Test {

namespace {

constexpr std::uint32_t exposureMode = 0x0A020000, roaLimits = 0x28090000, aet = 0x46010000, agc = 0x46020000;

Call SetCoding(int coding) { return On(&ISignalFormat::SetColorCoding, static_cast<SDK4_ENUM_COLORCODING>(coding)); }

Call SetArea(SDK4_KAREA area) { return On(&IRoa::SetReadoutArea, area); }

State Limits(const std::vector<std::uint32_t>& min, const std::vector<std::uint32_t>& max) {
    return {{{roaLimits, Words(min), 0}, {roaLimits, Words(max), 1}, {roaLimits, Words({7, 7, 70, 70}), 2}}};
}

/// A write of the trigger delay reads the exposure mode first, which is then cached.
Accesses DelayWrite(const std::string& written) { return Settling("R 0A020000/4; " + written, written); }

/// The getters made stale by a change of the readout area.
const char* const moved = "GetImageSize, GetOverlayPosition line 1, GetOverlayPosition line 2, GetMeasureWindow, "
                          "GetMeasureWindow 2, GetReadoutTime, GetExposure, GetFrameDuration";

/// A write of the readout area reads its limits first, which are then cached.
Accesses AreaWrite(const std::string& written) {
    return Settling("w 28090000=0; R 28090000/20; w 28090000=1; R 28090000/20; W 28050000=" + written,
                    "W 28050000=" + written)
        .Stales(moved);
}

} // namespace

// clang-format off
std::vector<Operation> ImagingOperations() {
    using E = IExposure; using T = ITrigger;
    const State mode3 = With(exposureMode, 3);
    const State limits = Limits({0, 0, 63, 63}, {100, 100, 1023, 767});
    const SDK4_KBINNING two{2, 3}, eight{8, 8};
    const SDK4_KEXPOSURE time{3, 2097151};
    const std::string exposed = "GetExposure, GetFrameDuration", timed = "GetReadoutTime, " + exposed;
    const std::string binned = std::string("GetReadoutArea, GetReadoutAreaLimits active, GetReadoutAreaLimits max, GetReadoutAreaLimits min, ") + moved;
    return {
        {"IExposure::GetExposureMode",        On(&E::GetExposureMode),        "1",   Cached("R 0A020000/4")},
        {"IExposure::SetExposureMode",        On(&E::SetExposureMode, 4),     done,  Always("W 0A020000=4").Stales(exposed)},
        {"IExposure::SetExposureMode 5",      On(&E::SetExposureMode, 5),     invalid, Never()},
        {"IExposure::GetExposure",            On(&E::GetExposure),            "1,2", Cached("R 0A030000/8")},
        {"IExposure::SetExposure",            On(&E::SetExposure, time),      done,  Always("R 46010000/4; W 0A030000=3,2097151").Stales(exposed)},
        {"IExposure::SetExposure automatic",  On(&E::SetExposure, time),      locked, Always("R 46010000/4"), With(aet, 2)},
        {"IExposure::GetAutoExposureLevel",   On(&E::GetAutoExposureLevel),   "1",   Cached("R 46030000/4")},
        {"IExposure::SetAutoExposureLevel",   On(&E::SetAutoExposureLevel, 255), done, Always("W 46030000=255")},
        {"IExposure::SetAutoExposureLevel above", On(&E::SetAutoExposureLevel, 256), outOfRange, Always("W 46030000=255")},
        {"IExposure::GetAET",                 On(&E::GetAET),                 "0",   Always("R 46010000/4")},
        {"IExposure::SetAET",                 On(&E::SetAET, 0),              done,  Always("W 46010000=0").Stales(exposed)},
        {"IExposure::SetAET on",              On(&E::SetAET, 2),              done,  Always("W 46010000=2").Stales(exposed)},

        {"IGain::GetGain",                    On(&IGain::GetGain),                    "1",   Cached("R 14010000/4")},
        {"IGain::SetGain",                    On(&IGain::SetGain, 511),               done,  Always("R 46020000/4; W 14010000=511")},
        {"IGain::SetGain above",              On(&IGain::SetGain, 512),               outOfRange, Always("R 46020000/4; W 14010000=511")},
        {"IGain::SetGain greatest",           On(&IGain::SetGain, 0xFFFFFFFF),        outOfRange, Always("R 46020000/4; W 14010000=511")},
        {"IGain::SetGain automatic",          On(&IGain::SetGain, 512),               locked, Always("R 46020000/4"), With(agc, 1)},
        {"IGain::GetAGC",                     On(&IGain::GetAGC),                     "0",   Always("R 46020000/4")},
        {"IGain::SetAGC",                     On(&IGain::SetAGC, 0),                  done,  Always("W 46020000=0").Stales("GetGain")},
        {"IGain::SetAGC on",                  On(&IGain::SetAGC, 2),                  done,  Always("W 46020000=2").Stales("GetGain")},

        {"ITiming::GetPixelClock",            On(&ITiming::GetPixelClock),            "1",   Cached("R 0A090000/4")},
        {"ITiming::GetReadoutTime",           On(&ITiming::GetReadoutTime),           "1",   Cached("R 0A0A0000/4")},
        {"ITiming::SetReadoutTime",           On(&ITiming::SetReadoutTime, 4000000000), done, Always("W 0A0A0000=4000000000").Stales(timed)},
        {"ITiming::GetFrameDuration",         On(&ITiming::GetFrameDuration),         "1",   Cached("R 28040000/4")},

        {"ITrigger::GetSoftTrigger",          On(&T::GetSoftTrigger),          "1",   Always("R 0A070000/4")},
        {"ITrigger::SetSoftTrigger",          On(&T::SetSoftTrigger, 1),       done,  Settling("R 0A0A0000/4; W 0A070000=1", "W 0A070000=1")},
        {"ITrigger::GetTriggerTimer",         On(&T::GetTriggerTimer),         "1",   Always("R 0A080000/4")},
        {"ITrigger::SetTriggerTimer",         On(&T::SetTriggerTimer, 77),     done,  Always("W 0A080000=77")},
        {"ITrigger::GetTriggerDelay",         On(&T::GetTriggerDelay),         "1,2", Settling("R 0A020000/4; R 0A100000/8", "R 0A100000/8"), mode3},
        {"ITrigger::SetTriggerDelay",         On(&T::SetTriggerDelay, time),   done,  DelayWrite("W 0A100000=3,2097151"), mode3},
        {"ITrigger::GetTriggerDelay other mode", On(&T::GetTriggerDelay),      disabled, Cached("R 0A020000/4"), With(exposureMode, 4)},
        {"ITrigger::SetTriggerDelay other mode", On(&T::SetTriggerDelay, time), disabled, Cached("R 0A020000/4")},

        {"ISlowScan::GetSlowScan",            On(&ISlowScan::GetSlowScan),            notImplemented, Never()},
        {"ISlowScan::SetSlowScan",            On(&ISlowScan::SetSlowScan, 0),         notImplemented, Never()},

        {"ISignalFormat::GetColorCoding",     On(&ISignalFormat::GetColorCoding),     "0",   Cached("R 28020000/4")},
        {"ISignalFormat::SetColorCoding",     SetCoding(14), done,    Always("W 28020000=14").Stales("GetImageSize, GetFrameDuration")},
        {"ISignalFormat::SetColorCoding colour", SetCoding(110), done, Always("W 28020000=110").Stales("GetImageSize, GetFrameDuration"), Colour()},
        {"ISignalFormat::SetColorCoding not admitted", SetCoding(110), invalid, Never()},
        {"ISignalFormat::SetColorCoding streaming",    SetCoding(110), locked,  Never(), Streaming()},
        {"ISignalFormat::GetImageSize",       On(&ISignalFormat::GetImageSize),       "1,2", Kept("R 28030000/8")},

        {"IRoa::GetReadoutArea",              On(&IRoa::GetReadoutArea),              "1,2,3,4", Cached("R 28050000/16")},
        {"IRoa::GetReadoutAreaLimits min",    On(&IRoa::GetReadoutAreaLimits, 0),     "0,0,63,63",        Cached("w 28090000=0; R 28090000/20"), limits},
        {"IRoa::GetReadoutAreaLimits max",    On(&IRoa::GetReadoutAreaLimits, 1),     "100,100,1023,767", Cached("w 28090000=1; R 28090000/20"), limits},
        {"IRoa::GetReadoutAreaLimits active", On(&IRoa::GetReadoutAreaLimits, 2),     "7,7,70,70",        Cached("w 28090000=2; R 28090000/20"), limits},
        {"IRoa::GetReadoutAreaLimits 3",      On(&IRoa::GetReadoutAreaLimits, 3),     invalid, Never()},
        {"IRoa::GetReadoutAreaLimits -1",     On(&IRoa::GetReadoutAreaLimits, -1),    invalid, Never()},
        {"IRoa::SetReadoutArea",              SetArea({100, 0, 1023, 63}),    done,       AreaWrite("100,0,1023,63"), limits},
        {"IRoa::SetReadoutArea clamped",      SetArea({101, 50, 62, 4000000000}), outOfRange, AreaWrite("100,50,63,767"), limits},
        {"IRoa::SetReadoutArea limits crossed", SetArea({5, 5, 5, 5}),        outOfRange, AreaWrite("5,4,5,5"), Limits({0, 9, 0, 5}, {9, 4, 9, 5})},
        {"IRoa::SetReadoutArea streaming",    SetArea({0, 0, 0, 0}),          locked,     Never(), Streaming()},
        {"IRoa::GetFrameMask",                On(&IRoa::GetFrameMask),                        notImplemented, Never()},
        {"IRoa::SetFrameMask",                On(&IRoa::SetFrameMask, SDK4_KAREA{1, 2, 3, 4}), notImplemented, Never()},

        {"IBinning::GetBinning",              On(&IBinning::GetBinning),        "1,2",  Cached("R 0A0B0000/8").AskingModel()},
        {"IBinning::GetBinning colour",       On(&IBinning::GetBinning),        notImplemented, Kept("R 64030000/4"), Colour()},
        {"IBinning::SetBinning",              On(&IBinning::SetBinning, two),   done,   Always("W 0A0B0000=2,3").AskingModel().Stales(binned)},
        {"IBinning::SetBinning 8",            On(&IBinning::SetBinning, eight), done,   Always("W 0A0B0000=8,8").AskingModel().Stales(binned)},
        {"IBinning::SetBinning streaming",    On(&IBinning::SetBinning, two),   locked, Kept("R 64030000/4"), Streaming()},
        {"IBinning::SetBinning colour",       On(&IBinning::SetBinning, two),   notImplemented, Kept("R 64030000/4"), Colour()},
        {"IBinning::SetBinning 0,1",          On(&IBinning::SetBinning, SDK4_KBINNING{0, 1}), invalid, Never(), Streaming()},
        {"IBinning::SetBinning 1,0",          On(&IBinning::SetBinning, SDK4_KBINNING{1, 0}), invalid, Never(), Colour()},
        {"IBinning::SetBinning 9,1",          On(&IBinning::SetBinning, SDK4_KBINNING{9, 1}), invalid, Never()},
        {"IBinning::SetBinning 1,9",          On(&IBinning::SetBinning, SDK4_KBINNING{1, 9}), invalid, Never()},
    };
}
// clang-format on

} // namespace Test
