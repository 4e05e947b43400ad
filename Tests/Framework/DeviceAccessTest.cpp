// The classes for the registers of the property-based cameras: one row per method, on an empty camera, where a word
// that was never written reads as its position in the block, counted from 1.

#include "J40Camera.h"
#include "M2VXCamera.h"
#include "RT6Camera.h"
#include "SDK4Private.h"

#include "Tests/Support/LogCapture.h"
#include "Tests/Support/Observed.h"
#include "Tests/Support/RecordingPort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <type_traits>

using namespace SDK4::Control;
using namespace Test;

namespace {

using Operation = std::function<std::string()>;
using Open = std::function<Operation(SDK4::IControlPort*)>;

template <typename T> std::string AsText(const T& result) {
    if constexpr (std::is_convertible_v<T, const char*>) {
        return result == nullptr ? "null" : result;
    } else if constexpr (std::is_enum_v<T> || std::is_arithmetic_v<T>) {
        return std::to_string(result);
    } else {
        std::uint32_t words[sizeof(T) / 4];
        std::memcpy(words, &result, sizeof words);
        std::string text;
        for (const std::uint32_t word : words) {
            text += (text.empty() ? "" : ",") + std::to_string(word);
        }
        return text;
    }
}

/// A call of one operation of a device object, opened on a port.
template <typename Device, typename Result, typename... Parameters, typename... Arguments>
Open On(Result (Device::*operation)(Parameters...), Arguments... arguments) {
    return [=](SDK4::IControlPort* port) -> Operation {
        return [=, device = std::make_shared<Device>(port)] {
            if constexpr (std::is_void_v<Result>) {
                (*device.*operation)(static_cast<Parameters>(arguments)...);
                return std::string("done");
            } else {
                return AsText((*device.*operation)(static_cast<Parameters>(arguments)...));
            }
        };
    };
}

struct Row {
    std::string name;
    Open open;
    std::string accesses;
    std::string result;
    std::string log = "debug Call";
    std::vector<std::pair<std::uint32_t, Bytes>> memory{};
};

/// A record whose words count from @p first.
template <typename Record> Record Numbered(std::uint32_t first) {
    std::uint32_t words[sizeof(Record) / 4];
    for (std::uint32_t& word : words) {
        word = first++;
    }
    Record record;
    std::memcpy(&record, words, sizeof record);
    return record;
}

template <typename Getter> struct ResultOf;
template <typename Device, typename Result, typename... Parameters> struct ResultOf<Result (Device::*)(Parameters...)> {
    using type = Result;
};

/// Adds the rows of one class. Addresses are in the notation of RecordingPort.
struct Table {
    std::vector<Row>& rows;
    std::string device;
    std::string log = "debug Call";

    using Text = const std::string&;

    void Add(Text name, Open open, Text accesses, Text result,
             std::vector<std::pair<std::uint32_t, Bytes>> memory = {}) {
        rows.push_back({device + "::" + name, std::move(open), accesses, result, log, std::move(memory)});
    }

    static std::uint32_t Number(Text at) { return static_cast<std::uint32_t>(std::stoul(at, nullptr, 16)); }

    /// Plain words, written as 8 or -8. A signed one reads -5.
    template <typename Getter> void Read(Text name, Getter get, Text at) {
        if constexpr (std::is_same_v<typename ResultOf<Getter>::type, std::int32_t>) {
            Add("Get" + name, On(get), "r " + at, "-5", {{Number(at), Words({0xFFFFFFFB})}});
        } else {
            Add("Get" + name, On(get), "r " + at, "1");
        }
    }
    template <typename Device> void Write(Text name, void (Device::*set)(std::uint32_t), Text at) {
        Add(name, On(set, 8), "w " + at + "=8", "done");
    }
    template <typename Getter, typename Device, typename Value>
    void Word(Text name, Getter get, void (Device::*set)(Value), Text at) {
        Read(name, get, at);
        constexpr bool isSigned = std::is_same_v<Value, std::int32_t>;
        Add("Set" + name, On(set, isSigned ? -8 : 8), "w " + at + (isSigned ? "=4294967288" : "=8"), "done");
    }

    /// Indexed words, with index 7.
    template <typename Getter> void ReadIndexed(Text name, Getter get, Text at) {
        const bool isSigned = std::is_same_v<typename ResultOf<Getter>::type, std::int32_t>;
        Add("Get" + name, On(get, 7), "w " + at + "=7; rp " + at, isSigned ? "-5" : "2",
            {{Number(at), isSigned ? Words({0, 0xFFFFFFFB}) : Bytes{}}});
    }
    template <typename Getter, typename Device, typename Value>
    void Indexed(Text name, Getter get, void (Device::*set)(std::uint32_t, Value), Text at) {
        ReadIndexed(name, get, at);
        constexpr bool isSigned = std::is_same_v<Value, std::int32_t>;
        Add("Set" + name, On(set, 7, isSigned ? -8 : 8), "wp " + at + (isSigned ? "=7,4294967288" : "=7,8"), "done");
    }

    /// Records of two words.
    template <typename Getter> void ReadPair(Text name, Getter get, Text at) {
        Add("Get" + name, On(get), "rp " + at, "1,2");
    }
    template <typename Getter, typename Device, typename Record>
    void Pair(Text name, Getter get, void (Device::*set)(Record), Text at) {
        ReadPair(name, get, at);
        Add("Set" + name, On(set, Numbered<Record>(11)), "wp " + at + "=11,12", "done");
    }

    /// Records after the index 7, and whole blocks.
    template <typename Getter, typename Device, typename Record>
    void Indexed(Text name, Getter get, void (Device::*set)(std::uint32_t, Record), Text at, Text length, Text words,
                 Text written) {
        Add("Get" + name, On(get, 7), "w " + at + "=7; rb " + at + "/" + length, words);
        Add("Set" + name, On(set, 7, Numbered<Record>(11)), "wb " + at + "=7," + written, "done");
    }
    template <typename Getter, typename Device, typename Record>
    void Block(Text name, Getter get, void (Device::*set)(Record), Text at, Text length, Text words, Text written) {
        Add("Get" + name, On(get), "rb " + at + "/" + length, words);
        Add("Set" + name, On(set, Numbered<Record>(11)), "wb " + at + "=" + written, "done");
    }

    /// Identity texts: a word, then the text.
    template <typename Getter> void Identity(Text name, Getter get, Text at) {
        Add("Get" + name, On(get), "rs " + at + "/24", "who", {{Number(at), TextBlock(24, "who")}});
    }
};

// clang-format off
void AddRT6Camera(Table t) {
    using C = CRT6Camera;
    t.Identity("SerialNumber",        &C::GetSerialNumber,                                "64020000");
    t.Read    ("FunctionModelID",     &C::GetFunctionModelID,                             "64030000");
    t.ReadPair("FunctionModelVersion", &C::GetFunctionModelVersion,                       "64040000");
    t.ReadPair("Revision",            &C::GetRevision,                                    "65010000");
    t.Identity("SoftwareBuild",       &C::GetSoftwareBuild,                               "65020000");
    t.ReadPair("SoftwareVersion",     &C::GetSoftwareVersion,                             "65030000");
    t.ReadPair("FirmwareVersion",     &C::GetFirmwareVersion,                             "65040000");
    t.ReadPair("HardwareVersion",     &C::GetHardwareVersion,                             "65050000");
    t.Word    ("ExposureMode",        &C::GetExposureMode,     &C::SetExposureMode,       "0A020000");
    t.Word    ("Gain",                &C::GetGain,             &C::SetGain,               "14010000");
    t.Word    ("VerticalFlip",        &C::GetVerticalFlip,     &C::SetVerticalFlip,       "16020000");
    t.Word    ("HorizontalFlip",      &C::GetHorizontalFlip,   &C::SetHorizontalFlip,     "16030000");
    t.Word    ("LastImageHold",       &C::GetLastImageHold,    &C::SetLastImageHold,      "16040000");
    t.Write   ("StoreImage",                                   &C::StoreImage,            "16050000");
    t.Word    ("ImageSubtraction",    &C::GetImageSubtraction, &C::SetImageSubtraction,   "16060000");
    t.Word    ("RecursiveFilter",     &C::GetRecursiveFilter,  &C::SetRecursiveFilter,    "16070000");
    t.Indexed ("OverlayShow",         &C::GetOverlayShow,      &C::SetOverlayShow,        "17010000");
    t.Indexed ("OverlayPosition",     &C::GetOverlayPosition,  &C::SetOverlayPosition,    "17020000", "12", "2,3", "11,12");
    t.Indexed ("OverlayStyle",        &C::GetOverlayStyle,     &C::SetOverlayStyle,       "17030000", "12", "2,3", "11,12");
    t.Indexed ("OverlaySize",         &C::GetOverlaySize,      &C::SetOverlaySize,        "17040000", "12", "2,3", "11,12");
    t.Word    ("Brightness",          &C::GetBrightness,       &C::SetBrightness,         "18010000");
    t.Word    ("Contrast",            &C::GetContrast,         &C::SetContrast,           "18020000");
    t.Word    ("Sharpness",           &C::GetSharpness,        &C::SetSharpness,          "18030000");
    t.Word    ("LUTInterpolatorIndex", &C::GetLUTInterpolatorIndex, &C::SetLUTInterpolatorIndex, "19010000");
    t.Word    ("LUTMode",             &C::GetLUTMode,          &C::SetLUTMode,            "19020000");
    t.Word    ("NegativeImage",       &C::GetNegativeImage,    &C::SetNegativeImage,      "19030000");
    t.Word    ("MeasureFrameShow",    &C::GetMeasureFrameShow, &C::SetMeasureFrameShow,   "1E010000");
    t.Word    ("MeasureFrameColor",   &C::GetMeasureFrameColor, &C::SetMeasureFrameColor, "1E020000");
    t.Indexed ("MeasureWindow",       &C::GetMeasureWindow,    &C::SetMeasureWindow,      "1E030000", "20", "2,3,4,5", "11,12,13,14");
    t.ReadIndexed("MeasureValue",     &C::GetMeasureValue,                                "1E040000");
    t.Word    ("ColorCoding",         &C::GetColorCoding,      &C::SetColorCoding,        "28020000");
    t.Read    ("FrameDuration",       &C::GetFrameDuration,                               "28040000");
    t.Word    ("AGC",                 &C::GetAGC,              &C::SetAGC,                "46020000");
    t.Word    ("AutoExposureLevel",   &C::GetAutoExposureLevel, &C::SetAutoExposureLevel, "46030000");
    t.Word    ("ACC",                 &C::GetACC,              &C::SetACC,                "46050000");
    t.Add     ("GetDevice", On(&C::GetDevice, SDK4_KDEVICESELECT{11, 12, 13}),    "wb 50050000=11,12,13; rb 50050000/16", "4");
    t.Add     ("SetDevice", On(&C::SetDevice, SDK4_KDEVICESELECT{11, 12, 13}, 8), "wb 50050000=11,12,13,8", "done");
    t.Add     ("Restart", On(&C::Restart), "w 51010000=0", "done");
    t.Write   ("LoadSettings",                                 &C::LoadSettings,          "51020000");
    t.Write   ("SaveSettings",                                 &C::SaveSettings,          "51030000");
    t.Word    ("StartupSettings",     &C::GetStartupSettings,  &C::SetStartupSettings,    "51040000");
    t.Read    ("OperationMode",       &C::GetOperationMode,                               "52020000");
    static std::uint32_t image[] = {21, 22};
    t.Add     ("SetUpdateFile", On(&C::SetUpdateFile, static_cast<void*>(image), 8), "W 53020000=21,22", "done");
    t.Add     ("GetUpdateStatus", On(&C::GetUpdateStatus), "rp 53030000", "8589934593");
    t.Word    ("PatternGenerator",    &C::GetPatternGenerator, &C::SetPatternGenerator,   "5A010000");
    t.Indexed ("IoMode",              &C::GetIoMode,           &C::SetIoMode,             "66020000");
    t.Indexed ("IoPort",              &C::GetIoPort,           &C::SetIoPort,             "66030000");
    t.Indexed ("IoPolarity",          &C::GetIoPolarity,       &C::SetIoPolarity,         "660F0000");
    t.Indexed ("IoDelay",             &C::GetIoDelay,          &C::SetIoDelay,            "66110000");
    t.log = "debug Call; debug ImageWidth=1";
    t.ReadPair("ImageSize",           &C::GetImageSize,                                   "28030000");
}

void AddM2VXCamera(Table t) {
    using C = CM2VXCamera;
    t.Word    ("Exposure",               &C::GetExposure,              &C::SetExposure,               "0A030000");
    t.Read    ("FODStatus",              &C::GetFODStatus,                                            "0A0D0000");
    t.Word    ("TwinModeShutterOffset",  &C::GetTwinModeShutterOffset, &C::SetTwinModeShutterOffset,  "0A130000");
    t.Add     ("GetDefectPixel", On(&C::GetDefectPixel, SDK4_KDEFECTPIXELSELECT{5, 7}), "wp 0B020000=7,5; rb 0B020000/20", "3,4,5");
    t.Add     ("SetDefectPixel", On(&C::SetDefectPixel, SDK4_KDEFECTPIXELSELECT{5, 7}, SDK4_KDEFECTPIXEL{11, 12, 13}), "wb 0B020000=5,7,11,12,13", "done");
    t.Add     ("SetDefectPixelAutoCompensation", On(&C::SetDefectPixelAutoCompensation), "w 0B030000=0", "done");
    t.Read    ("DefectPixelCount",       &C::GetDefectPixelCount,                                     "0B040000");
    t.Word    ("DefectPixelShow",        &C::GetDefectPixelShow,       &C::SetDefectPixelShow,        "0B0A0000");
    t.Word    ("AutoMotionDetection",    &C::GetAutoMotionDetection,   &C::SetAutoMotionDetection,    "16080000");
    t.Indexed ("OverlayPosition",        &C::GetOverlayPosition,       &C::SetOverlayPosition,        "17020000", "12", "2,3", "11,12");
    t.Word    ("HistogramEqualization",  &C::GetHistogramEqualization, &C::SetHistogramEqualization,  "180C0000");
    t.Word    ("ShadingCorrectionMode",  &C::GetShadingCorrectionMode, &C::SetShadingCorrectionMode,  "1B010000");
    t.Indexed ("ShadingCorrection",      &C::GetShadingCorrection,     &C::SetShadingCorrection,      "1B020000");
    t.Word    ("CircularBlankingMode",   &C::GetCircularBlankingMode,  &C::SetCircularBlankingMode,   "1B030000");
    t.Word    ("CircularBlankingSize",   &C::GetCircularBlankingSize,  &C::SetCircularBlankingSize,   "1B040000");
    t.Pair    ("CircularBlankingPosition", &C::GetCircularBlankingPosition, &C::SetCircularBlankingPosition, "1B050000");
    t.Block   ("MeasureWindow",          &C::GetMeasureWindow,         &C::SetMeasureWindow,          "1E030000", "20", "1,2,3,4,5", "11,12,13,14,15");
    t.Word    ("AutoGainStopMode",       &C::GetAutoGainStopMode,      &C::SetAutoGainStopMode,       "46090000");
    t.Word    ("ABC",                    &C::GetABC,                   &C::SetABC,                    "47040000");
    t.Word    ("ABCStopMode",            &C::GetABCStopMode,           &C::SetABCStopMode,            "47050000");
    t.Indexed ("ABCThreshold",           &C::GetABCThreshold,          &C::SetABCThreshold,           "47090000");
    t.Read    ("ABCXRLevel",             &C::GetABCXRLevel,                                           "470A0000");
    t.Read    ("ErrorRegisterStatus",    &C::GetErrorRegisterStatus,                                  "52030000");
    t.Indexed ("TestPattern",            &C::GetTestPattern,           &C::SetTestPattern,            "5A010000");
    t.Read    ("TemperaturePCB",         &C::GetTemperaturePCB,                                       "5A030000");
    t.log = "info Call";
    t.Indexed ("LensControl",            &C::GetLensControl,           &C::SetLensControl,            "0C080000");
    t.Indexed ("MotorControl",           &C::GetMotorControl,          &C::SetMotorControl,           "6E140000");
}

void AddJ40Camera(Table t) {
    using C = CJ40Camera;
    t.Word    ("SoftTrigger",            &C::GetSoftTrigger,           &C::SetSoftTrigger,            "0A070000");
    t.Word    ("TriggerTimer",           &C::GetTriggerTimer,          &C::SetTriggerTimer,           "0A080000");
    t.Read    ("PixelClock",             &C::GetPixelClock,                                           "0A090000");
    t.Word    ("ReadoutTime",            &C::GetReadoutTime,           &C::SetReadoutTime,            "0A0A0000");
    t.Pair    ("Binning",                &C::GetBinning,               &C::SetBinning,                "0A0B0000");
    t.Word    ("SlowScan",               &C::GetSlowScan,              &C::SetSlowScan,               "0A0E0000");
    t.Pair    ("TriggerDelay",           &C::GetTriggerDelay,          &C::SetTriggerDelay,           "0A100000");
    t.Add     ("SetTriggerDelay", On(&C::SetTriggerDelay, SDK4_KEXPOSURE{-2, 0}), "wp 0A100000=4294967294,4294967295", "done");
    t.Block   ("ColorBalance",           &C::GetColorBalance,          &C::SetColorBalance,           "15010000", "12", "1,2,3", "11,12,13");
    t.Word    ("LightSource",            &C::GetLightSource,           &C::SetLightSource,            "15020000");
    t.Word    ("ColorSaturation",        &C::GetColorSaturation,       &C::SetColorSaturation,        "15040000");
    t.Block   ("ReadoutArea",            &C::GetReadoutArea,           &C::SetReadoutArea,            "28050000", "16", "1,2,3,4", "11,12,13,14");
    t.Block   ("FrameMask",              &C::GetFrameMask,             &C::SetFrameMask,              "28060000", "16", "1,2,3,4", "11,12,13,14");
    t.Add     ("GetReadoutAreaLimits", On(&C::GetReadoutAreaLimits, 7), "w 28090000=7; rb 28090000/20", "2,3,4,5");
    t.Word    ("AET",                    &C::GetAET,                   &C::SetAET,                    "46010000");
    t.Word    ("AutoWhiteset",           &C::GetAutoWhiteset,          &C::SetAutoWhiteset,           "46040000");
    t.ReadIndexed("Temperature",         &C::GetTemperature,                                          "5A030000");
    t.log = "debug Call; debug Return(-3,2)";
    t.Add     ("GetExposure", On(&C::GetExposure), "rp 0A030000", "4294967293,2", {{0x0A030000, Words({0xFFFFFFFD, 2})}});
    t.log = "debug Call(1000,2)";
    t.Add     ("SetExposure", On(&C::SetExposure, SDK4_KEXPOSURE{1000, 2}), "wp 0A030000=1000,2", "done");
    t.log = "debug Call(-1,4294967295)";
    t.Add     ("SetExposure", On(&C::SetExposure, SDK4_KEXPOSURE{-1, 0xFFFFFFFF}), "wp 0A030000=4294967295,4294967294", "done");
}

void AddIdentity(Table t) {
    using C = CGigEGufi;
    t.Identity("DeviceName",             &C::GetDeviceName,            "64010000");
    t.Identity("SerialNumber",           &C::GetSerialNumber,          "64020000");
    t.Read    ("FunctionModelID",        &C::GetFunctionModelID,       "64030000");
    t.ReadPair("FunctionModelVersion",   &C::GetFunctionModelVersion,  "64040000");
    t.ReadPair("Revision",               &C::GetRevision,              "65010000");
    t.Identity("SoftwareBuild",          &C::GetSoftwareBuild,         "65020000");
    t.ReadPair("SoftwareVersion",        &C::GetSoftwareVersion,       "65030000");
    t.ReadPair("FirmwareVersion",        &C::GetFirmwareVersion,       "65040000");
    t.ReadPair("HardwareVersion",        &C::GetHardwareVersion,       "65050000");
}

void AddAcquisition(Table t) {
    using C = CGigEAcqControl;
    t.Add     ("GetClassID", On(&C::GetClassID), "rs 0068/32", "model", {{0x0068, {'m', 'o', 'd', 'e', 'l', 0}}});
    t.Read    ("Width",                  &C::GetWidth,                 "00088120");
    t.Read    ("Height",                 &C::GetHeight,                "00088124");
    t.Read    ("PixelFormat",            &C::GetPixelFormat,           "00088128");
    t.Read    ("AcquisitionMode",        &C::GetAcquisitionMode,       "00088130");
    t.log = "debug Call(8)";
    t.Write   ("SetAcquisitionMode",     &C::SetAcquisitionMode,       "00088130");
    t.log = "info Call";
    t.Add     ("StartAcquisition", On(&C::StartAcquisition), "w 00088134=1", "done");
    t.Add     ("StopAcquisition",  On(&C::StopAcquisition),  "w 00088138=0", "done");
}

void AddFrontEnd(Table t) {
    const SDK4_AFE_PARAM param{{11, 12, 13, 14, 15, 16, 17, 18, 19, 20}};
    t.Add("GetAFE", On(&CAFE::GetAFE, SDK4_AFE_SELECT{5, 7}),        "wp 0A0C0000=7,5; rb 0A0C0000/48", "3,4,5,6,7,8,9,10,11,12");
    t.Add("SetAFE", On(&CAFE::SetAFE, SDK4_AFE_SELECT{5, 7}, param), "wb 0A0C0000=5,7,11,12,13,14,15,16,17,18,19,20", "done");
}

void AddSensorControl(Table t) {
    t.Add("GetCCDControl", On(&CClaryon::GetCCDControl), "r 6F010000", "1");
    t.Add("ReadCOM",       On(&CClaryon::ReadCOM),       "r 6F020000", "1");
    t.log = "debug Call(8)";
    t.Add("SetCCDControl", On(&CClaryon::SetCCDControl, 8), "w 6F010000=8", "done");
    t.Add("WriteCOM",      On(&CClaryon::WriteCOM, 8),      "w 6F020000=8", "done");
}
// clang-format on

const std::vector<Row>& Rows() {
    static const std::vector<Row> all = [] {
        std::vector<Row> rows;
        AddRT6Camera({rows, "CRT6Camera"});
        AddM2VXCamera({rows, "CM2VXCamera"});
        AddJ40Camera({rows, "CJ40Camera"});
        AddIdentity({rows, "CGigEGufi"});
        AddAcquisition({rows, "CGigEAcqControl"});
        AddFrontEnd({rows, "CAFE"});
        AddSensorControl({rows, "CClaryon"});
        return rows;
    }();
    return all;
}

std::string Joined(const Texts& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? "" : "; ") + text;
    }
    return joined;
}

} // namespace

TEST(DeviceAccess, EveryMethodMakesItsAccessesAndItsLogLines) {
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.name);
        RecordingPort port;
        for (const auto& [address, bytes] : row.memory) {
            port.Set(address, bytes);
        }
        LogCapture capture;
        const Operation operation = row.open(&port);
        EXPECT_EQ(port.TakeLog() + Joined(capture.TakeTexts()), "") << "opening makes no access";
        EXPECT_EQ(operation(), row.result);
        EXPECT_EQ(port.TakeLog(), row.accesses);
        ASSERT_FALSE(capture.Lines().empty());
        const LogCapture::Line& entry = capture.Lines().front();
        EXPECT_TRUE(entry.function.ends_with(row.name.substr(row.name.find("::") + 2))) << entry.function;
        EXPECT_EQ(entry.className, row.name.substr(0, row.name.find("::")));
        EXPECT_EQ(Joined(capture.TakeTexts()), row.log);
    }
}

TEST(DeviceAccess, ABlockThatThePortDoesNotDeliverIsRefusedAndAMissingTextIsNull) {
    for (const Row& row : Rows()) {
        const bool readsBlock = row.accesses.find("rb ") != std::string::npos;
        const bool readsText = row.accesses.find("rs ") != std::string::npos;
        if (!readsBlock && !readsText) {
            continue;
        }
        SCOPED_TRACE(row.name);
        RecordingPort port;
        port.refuseBlocks = true;
        LogCapture capture(log4cxx::Level::getWarn());
        std::string answer = "none";
        EXPECT_EQ(CodeOf([&] { answer = row.open(&port)(); }), readsBlock ? "SDK4_ERR_CANTGETFEATURE" : "");
        EXPECT_EQ(answer, readsBlock ? "none" : "null");
        EXPECT_EQ(port.TakeLog(), row.accesses);
        EXPECT_EQ(Joined(capture.TakeTexts()),
                  readsBlock ? "warn SDK4Exception [X4Error(SDK4_ERR_CANTGETFEATURE)]" : "");
    }
}

TEST(DeviceAccess, WhatThePortThrowsPassesThrough) {
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.name);
        const auto accesses = static_cast<unsigned int>(1 + std::count(row.accesses.begin(), row.accesses.end(), ';'));
        for (unsigned int nth = 1; nth <= accesses; ++nth) {
            RecordingPort port;
            port.FailAt(nth, [] { throw 42; });
            EXPECT_THROW(row.open(&port)(), int);
        }
    }
}
