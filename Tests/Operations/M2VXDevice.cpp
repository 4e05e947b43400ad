// The M2VX family: the control itself, the camera's identity and network, settings sets, motors and lenses, properties.

#include "Tests/Operations/Operations.h"

using namespace SDK4;
using namespace SDK4::Control;

namespace Test {

namespace {

const std::string running = "SDK4_ERR_ACQUISITIONRUNNING", unknown = "SDK4_ERR_ERROR";

State Text24(std::uint32_t address, const char* text) { return {{{address, TextBlock(24, text)}}}; }

Call GetUIntValue(const char* name) {
    return [name](IDynamicObject& camera) { return Text(Part<IPropertyState>(camera).GetUIntValue(name)); };
}
Call GetUIntValue(int index, const char* name) {
    return [=](IDynamicObject& camera) { return Text(Part<IPropertyState>(camera).GetUIntValue(index, name)); };
}
Call GetIntValue(const char* name) {
    return [name](IDynamicObject& camera) { return Text(Part<IPropertyState>(camera).GetIntValue(name)); };
}
Call GetIntValue(int index, const char* name) {
    return [=](IDynamicObject& camera) { return Text(Part<IPropertyState>(camera).GetIntValue(index, name)); };
}

// clang-format off
std::vector<Operation> ControlOperations() {
    const char* const serial = "a serial of 20 char";
    return {
        {"IControl::GetClassID",         On(&IControl::GetClassID),         "M2VX",         Never()},
        {"IStreamControl::Start",        On(&IStreamControl::Start),        done,           Always("w 00088134=1")},
        {"IStreamControl::Stop",         On(&IStreamControl::Stop),         done,           Always("w 00088138=0")},
        {"IDSMediaType::GetMediaType",   On(&IDSMediaType::GetMediaType),   "a media type", Never()},
        {"IVideoFrame::GetType",         On(&IVideoFrame::GetType),         "0",            Never()},
        {"IVideoFrame::GetWidth",        On(&IVideoFrame::GetWidth),        "1",            ReadThrough("rp 28030000")},
        {"IVideoFrame::GetHeight",       On(&IVideoFrame::GetHeight),       "2",            ReadThrough("rp 28030000")},
        {"IVideoFrame::GetFormat",       On(&IVideoFrame::GetFormat),       "17825829",     ReadThrough("r 28020000")}, // 0x01100025
        {"IVideoFrame::GetTimePerFrame", On(&IVideoFrame::GetTimePerFrame), "0",            Never()},

        {"IGufi::GetDeviceName",           On(&IGufi::GetDeviceName),   "  CAM 1 ", Always("rs 64010000/24"), Text24(0x64010000, "  CAM 1 ")},
        {"IGufi::GetSerialNumber",         On(&IGufi::GetSerialNumber), serial, Always("rs 64020000/24"), Text24(0x64020000, serial)},
        {"IGufi::GetFunctionModelID",      On(&IGufi::GetFunctionModelID),      "7",   Always("r 64030000"), With(0x64030000, 7)},
        {"IGufi::GetFunctionModelVersion", On(&IGufi::GetFunctionModelVersion), "1,2", Always("rp 64040000")},
        {"IGufi::GetRevision",             On(&IGufi::GetRevision),             "1,2", Always("rp 65010000")},
        {"IGufi::GetSoftwareBuild",        On(&IGufi::GetSoftwareBuild),        notImplemented, Never()},
        {"IGufi::GetSoftwareVersion",      On(&IGufi::GetSoftwareVersion),      "1,2", Always("rp 65030000")},
        {"IGufi::GetHardwareVersion",      On(&IGufi::GetHardwareVersion),      notImplemented, Never()},
        {"IGufi::GetFirmwareVersion",      On(&IGufi::GetFirmwareVersion),      "1,2", Always("rp 65040000")},

        {"IGigECamera::SetPacketSize running",  On(&IGigECamera::SetPacketSize, 1), running, Never(), Streaming()},
        {"IGigECamera::SetPacketDelay running", On(&IGigECamera::SetPacketDelay, 1), running, Never(), Streaming()},

        {"ISignalFormat::GetColorCoding", On(&ISignalFormat::GetColorCoding), "6",   ReadThrough("r 28020000")},
        {"ISignalFormat::SetColorCoding", On(&ISignalFormat::SetColorCoding, SDK4_COLORCODING_MONO14), notImplemented, Never()},
        {"ISignalFormat::GetImageSize",   On(&ISignalFormat::GetImageSize),   "1,2", ReadThrough("rp 28030000")},
    };
}

std::vector<Operation> SettingsOperations() {
    using B = IBasicSettings; using T = IInternalTests; using M = M2VX::IMotorControl; using L = M2VX::ILensControl;
    const SDK4_KDEVICESELECT device{1, 2, 3};
    return {
        {"IBasicSettings::Restart",               On(&B::Restart),               done,       Always("w 51010000=0")},
        {"IBasicSettings::LoadSettings",          On(&B::LoadSettings, 0),       done,       Always("w 51020000=0")},
        {"IBasicSettings::LoadSettings 3",        On(&B::LoadSettings, 3),       outOfRange, Never()},
        {"IBasicSettings::LoadSettings running",  On(&B::LoadSettings, 3),       running,    Never(), Streaming()},
        {"IBasicSettings::SaveSettings",          On(&B::SaveSettings, 2),       done,       Always("w 51030000=2")},
        {"IBasicSettings::SaveSettings running",  On(&B::SaveSettings, 1),       done,       Always("w 51030000=1"), Streaming()},
        {"IBasicSettings::SaveSettings 0",        On(&B::SaveSettings, 0),       outOfRange, Never()},
        {"IBasicSettings::GetStartupSettings",    On(&B::GetStartupSettings),    "1",        ReadThrough("r 51040000")},
        {"IBasicSettings::SetStartupSettings",    On(&B::SetStartupSettings, 2), done,       Sets("w 51040000=2")},
        {"IBasicSettings::SetStartupSettings 3",  On(&B::SetStartupSettings, 3), outOfRange, Never()},
        {"IBasicSettings::SetStartupSettings -1", On(&B::SetStartupSettings, -1), outOfRange, Never()},
        {"IBasicSettings::GetOperationMode",      On(&B::GetOperationMode),      "1",        Always("r 52020000")},
        {"IBasicSettings::SetUpdateFile",         On(&B::SetUpdateFile, firmware, 4), notImplemented, Never()},
        {"IBasicSettings::SetUpdateFile null",    On(&B::SetUpdateFile, nullptr, 0), notImplemented, Never()},
        {"IBasicSettings::GetUpdateStatus",       On(&B::GetUpdateStatus),       notImplemented, Never()},
        {"IBasicSettings::GetDevice",             On(&B::GetDevice, device),     "4",        Always("wb 50050000=1,2,3; rb 50050000/16")},
        {"IBasicSettings::SetDevice",             On(&B::SetDevice, device, 9),  done,       Always("wb 50050000=1,2,3,9")},
        {"IBasicSettings::GetErrorRegisterStatus", On(&B::GetErrorRegisterStatus), "1",      Always("r 52030000")},

        {"IInternalTests::GetPatternGenerator", On(&T::GetPatternGenerator),    notImplemented, Never()},
        {"IInternalTests::SetPatternGenerator", On(&T::SetPatternGenerator, 0), notImplemented, Never()},
        {"IInternalTests::GetTestPattern",      On(&T::GetTestPattern, 0),      "5",        ReadThrough("w 5A010000=0; rp 5A010000")},
        {"IInternalTests::GetTestPattern 1",    On(&T::GetTestPattern, 1),      "15",       ReadThrough("w 5A010000=1; rp 5A010000")},
        {"IInternalTests::GetTestPattern 2",    On(&T::GetTestPattern, 2),      invalid,    Never()},
        {"IInternalTests::SetTestPattern",      On(&T::SetTestPattern, 1, 6),   done,       Sets("wp 5A010000=1,6", "1")},
        {"IInternalTests::SetTestPattern value 7", On(&T::SetTestPattern, 1, 7), outOfRange, Never()},
        {"IInternalTests::SetTestPattern 2",    On(&T::SetTestPattern, 2, 7),   invalid,    Never()},
        {"IInternalTests::GetTemperaturePCB",   On(&T::GetTemperaturePCB),      "-5",       Always("r 5A030000"), With(0x5A030000, 0xFFFFFFFB)},
        {"IInternalTests::GetTemperature",      On(&T::GetTemperature, 0),      "-5",       Always("r 5A030000"), With(0x5A030000, 0xFFFFFFFB)},
        {"IInternalTests::GetTemperature 5",    On(&T::GetTemperature, 5),      "1",        Always("r 5A030000")},

        {"IMotorControl::GetMotorControl",       On(&M::GetMotorControl, 0),          "5",        ReadThrough("w 6E140000=0; rp 6E140000")},
        {"IMotorControl::GetMotorControl 255",   On(&M::GetMotorControl, 255),        "2555",     ReadThrough("w 6E140000=255; rp 6E140000")},
        {"IMotorControl::GetMotorControl 256",   On(&M::GetMotorControl, 256),        invalid,    Never()},
        {"IMotorControl::SetMotorControl",       On(&M::SetMotorControl, 0, 65535),   done,       Always("wp 6E140000=0,65535")},
        {"IMotorControl::SetMotorControl above", On(&M::SetMotorControl, 255, 65536), outOfRange, Never()},
        {"IMotorControl::SetMotorControl 256",   On(&M::SetMotorControl, 256, 0),     invalid,    Never()},
        {"ILensControl::GetLensControl", On(&L::GetLensControl, 1000),                "2",        Always("w 0C080000=1000; rp 0C080000")},
        {"ILensControl::SetLensControl", On(&L::SetLensControl, 1000, 4000000000),    done,       Always("wp 0C080000=1000,4000000000")},
    };
}

void Ignore(const char*, const char*, void*) {}

std::vector<Operation> PropertyOperations() {
    using P = IPropertyState;
    const State pixel = After(On(&M2VX::IDefectPixel::SetDefectPixel, SDK4_KDEFECTPIXELSELECT{0, 1}, SDK4_KDEFECTPIXEL{9, 8, 1}));
    const State gain7 = After(On(&M2VX::IGain::SetGain, 7)), threshold = After(On(&M2VX::IABC::SetABCThreshold, 1, 9)),
                gamma3 = After(On(&ILookUpTable::SetLUTInterpolatorIndex, 3)), correction = After(On(&M2VX::IImageCorrection::SetShadingCorrection, 2, -3));
    return {
        {"IPropertyState::GetUIntMin",            On(&P::GetUIntMin, "exposure"),      "1",    Never()},
        {"IPropertyState::GetUIntMin unknown",    On(&P::GetUIntMin, "Exposure"),      unknown, Never()},
        {"IPropertyState::GetUIntMax",            On(&P::GetUIntMax, "overlaystyle.color"), "3", Never()},
        {"IPropertyState::GetUIntMax null",       On(&P::GetUIntMax, nullptr),         unknown, Never()},
        {"IPropertyState::GetUIntDefault",        On(&P::GetUIntDefault, "exposure"),  "33",   Never()},
        {"IPropertyState::GetUIntDefault unknown", On(&P::GetUIntDefault, ""),         unknown, Never()},
        {"IPropertyState::GetUIntValue",          GetUIntValue("gain"),                "7",    Never(), gain7},
        {"IPropertyState::GetUIntValue unknown",  GetUIntValue("overlayposition"),     unknown, Never()},
        {"IPropertyState::GetUIntValue index 1",  GetUIntValue(1, "abcthreshold"),     "9",    Never(), threshold},
        {"IPropertyState::GetUIntValue index 0 not indexed", GetUIntValue(0, "gain"),  "7",    Never(), gain7},
        {"IPropertyState::GetUIntValue first pair", GetUIntValue(1, "defectpixel.xpos"), "9",  Never(), pixel},
        {"IPropertyState::GetUIntValue no such index", GetUIntValue(2, "abcthreshold"), unknown, Never()},
        {"IPropertyState::GetUIntValue motor unindexed", GetUIntValue(1, "motorcontrol"), unknown, Never()},
        {"IPropertyState::GetUIntValue index, null", GetUIntValue(0, nullptr),         unknown, Never()},
        {"IPropertyState::GetIntMin",             On(&P::GetIntMin, "measurewindow.xpos"), "-511", Never()},
        {"IPropertyState::GetIntMin unknown",     On(&P::GetIntMin, "x"),              unknown, Never()},
        {"IPropertyState::GetIntMin of the unsigned", On(&P::GetIntMin, "agc"),        "0",    Never()},
        {"IPropertyState::GetIntMax",             On(&P::GetIntMax, "gammaindex"),     "12",   Never()},
        {"IPropertyState::GetIntMax null",        On(&P::GetIntMax, nullptr),          unknown, Never()},
        {"IPropertyState::GetIntDefault",         On(&P::GetIntDefault, "gammaindex"), "0",    Never()},
        {"IPropertyState::GetIntDefault of the unsigned", On(&P::GetIntDefault, "exposure"), "0", Never()},
        {"IPropertyState::GetIntDefault unknown", On(&P::GetIntDefault, "x"),          unknown, Never()},
        {"IPropertyState::GetIntValue",           GetIntValue("gammaindex"),           "3",    Never(), gamma3},
        {"IPropertyState::GetIntValue of the unsigned", GetIntValue("gain"),           "0",    Never(), gain7},
        {"IPropertyState::GetIntValue unknown",   GetIntValue("x"),                    unknown, Never()},
        {"IPropertyState::GetIntValue index 2",   GetIntValue(2, "shadingcorrection"), "-3",   Never(), correction},
        {"IPropertyState::GetIntValue no such index", GetIntValue(4, "shadingcorrection"), unknown, Never()},
        {"IPropertyState::GetEnabled",            On(&P::GetEnabled, "gain"),          "1",    Never()},
        {"IPropertyState::GetEnabled off",        On(&P::GetEnabled, "gain"),          "0",    Never(), Disabling("gain")},
        {"IPropertyState::GetEnabled null",       On(&P::GetEnabled, nullptr),         "0",    Never()},
        {"IPropertyState::SetEnabled",            On(&P::SetEnabled, "sharpness", false), done, Never().Changes("GetSharpness")},
        {"IPropertyState::SetEnabled auto-update", On(&P::SetEnabled, "gain", false),  done,   Never()},
        {"IPropertyState::SetEnabled unknown",    On(&P::SetEnabled, "x", true),       unknown, Never()},
        {"IPropertyState::SetEnabled null",       On(&P::SetEnabled, nullptr, true),   unknown, Never()},
        {"IPropertyState::GetImplemented",        On(&P::GetImplemented, "loadsettings"), "1", Never()},
        {"IPropertyState::GetImplemented disabled", On(&P::GetImplemented, "gain"),    "1",    Never(), Disabling("gain")},
        {"IPropertyState::GetImplemented unknown", On(&P::GetImplemented, "x"),        "0",    Never()},
        {"IPropertyState::IsUnsigned",            On(&P::IsUnsigned, "measurewindow.vstretch"), "1", Never()},
        {"IPropertyState::IsUnsigned signed",     On(&P::IsUnsigned, "measurewindow.ypos"), "0", Never()},
        {"IPropertyState::IsIndexed",             On(&P::IsIndexed, "defectpixel.mode"), "1",  Never()},
        {"IPropertyState::IsIndexed motor",       On(&P::IsIndexed, "motorcontrol"),   "0",    Never()},
        {"IPropertyState::IsEnumerated",          On(&P::IsEnumerated, "overlaysize.width"), "1", Never()},
        {"IPropertyState::IsEnumerated null",     On(&P::IsEnumerated, nullptr),       "0",    Never()},
        {"IPropertyState::AddCallback",           On(&P::AddCallback, Ignore, nullptr), done,  Never()},
        {"IPropertyState::AddCallback null",      On(&P::AddCallback, nullptr, nullptr), done, Never()},
        {"IPropertyState::RemoveCallback",        On(&P::RemoveCallback, Ignore),      done,   Never()},
        {"IPropertyList::GetNumberOfProperties",  On(&IPropertyList::GetNumberOfProperties), "1104", Never()},
        {"IPropertyList::GetPropertyName",        On(&IPropertyList::GetPropertyName, 19), "overlayposition.posx", Never()},
        {"IPropertyList::GetPropertyName -1",     On(&IPropertyList::GetPropertyName, -1), "null", Never()},
        {"IPropertyList::GetPropertyName 1104",   On(&IPropertyList::GetPropertyName, 1104), "null", Never()},
    };
}
// clang-format on

} // namespace

std::vector<Operation> M2VXDeviceOperations() {
    return OnM2VX({ControlOperations(), NetworkOperations(), SettingsOperations(), PropertyOperations()});
}

} // namespace Test
