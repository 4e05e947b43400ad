// Image memory, I/O lines, settings sets, test patterns and temperatures.

#include "Tests/Operations/Operations.h"

using namespace SDK4::Control;

namespace Test {

namespace {

/// A function of the image memory. After a write, the value is read back.
Accesses MemoryRead(const std::string& address) { return Cached("R " + address + "/4").AskingModel(); }
Accesses MemoryWrite(const std::string& written) { return Always("W " + written).AskingModel(); }

} // namespace

// clang-format off
std::vector<Operation> DeviceOperations() {
    using B = IBasicSettings; using T = IInternalTests;
    const SDK4_KDEVICESELECT device{1, 2, 3};
    const State without = WithoutMemory();
    const Accesses lacking = Kept("R 64030000/4");
    return {
        {"IMemory::GetVerticalFlip",     On(&IMemory::GetVerticalFlip),        "1",  MemoryRead("16020000")},
        {"IMemory::SetVerticalFlip",     On(&IMemory::SetVerticalFlip, 1),     done, MemoryWrite("16020000=1").Stales("GetVerticalFlip")},
        {"IMemory::GetHorizontalFlip",   On(&IMemory::GetHorizontalFlip),      "1",  MemoryRead("16030000")},
        {"IMemory::SetHorizontalFlip",   On(&IMemory::SetHorizontalFlip, 1),   done, MemoryWrite("16030000=1").Stales("GetHorizontalFlip")},
        {"IMemory::GetLastImageHold",    On(&IMemory::GetLastImageHold),       "1",  MemoryRead("16040000")},
        {"IMemory::SetLastImageHold",    On(&IMemory::SetLastImageHold, 1),    done, MemoryWrite("16040000=1").Stales("GetLastImageHold")},
        {"IMemory::GetImageSubtraction", On(&IMemory::GetImageSubtraction),    "1",  MemoryRead("16060000")},
        {"IMemory::SetImageSubtraction", On(&IMemory::SetImageSubtraction, 1), done, MemoryWrite("16060000=1").Stales("GetImageSubtraction")},
        {"IMemory::GetRecursiveFilter",  On(&IMemory::GetRecursiveFilter),     "1",  MemoryRead("16070000")},
        {"IMemory::SetRecursiveFilter",  On(&IMemory::SetRecursiveFilter, 4),  done, MemoryWrite("16070000=4").Stales("GetRecursiveFilter")},
        {"IMemory::StoreImage",          On(&IMemory::StoreImage, 1),          done, MemoryWrite("16050000=1")},
        {"IMemory::GetAutoMotionDetection", On(&IMemory::GetAutoMotionDetection),    notImplemented, Never()},
        {"IMemory::SetAutoMotionDetection", On(&IMemory::SetAutoMotionDetection, 1), notImplemented, Never()},
        {"IMemory::GetVerticalFlip lacking",     On(&IMemory::GetVerticalFlip),        notImplemented, lacking, without},
        {"IMemory::SetHorizontalFlip lacking",   On(&IMemory::SetHorizontalFlip, 1),   notImplemented, lacking, without},
        {"IMemory::GetLastImageHold lacking",    On(&IMemory::GetLastImageHold),       notImplemented, lacking, without},
        {"IMemory::SetImageSubtraction lacking", On(&IMemory::SetImageSubtraction, 9), notImplemented, lacking, without},
        {"IMemory::SetRecursiveFilter lacking",  On(&IMemory::SetRecursiveFilter, 1),  notImplemented, lacking, without},
        {"IMemory::StoreImage lacking",          On(&IMemory::StoreImage, 1),          notImplemented, lacking, without},

        {"IGPIO::GetIoMode",            On(&IGPIO::GetIoMode, 0),        "2",  Cached("w 66020000=0; R 66020000/8")},
        {"IGPIO::SetIoMode",            On(&IGPIO::SetIoMode, 0, 1),     done, Always("W 66020000=0,1")},
        {"IGPIO::GetIoPort",            On(&IGPIO::GetIoPort, 1),        "2",  Cached("w 66030000=1; R 66030000/8")},
        {"IGPIO::SetIoPort",            On(&IGPIO::SetIoPort, 1, 4),     done, Always("W 66030000=1,4")},
        {"IGPIO::GetIoPolarity",        On(&IGPIO::GetIoPolarity, 3),    "2",  Cached("w 660F0000=3; R 660F0000/8")},
        {"IGPIO::SetIoPolarity",        On(&IGPIO::SetIoPolarity, 3, 0), done, Always("W 660F0000=3,0")},
        {"IGPIO::GetIoDelay",           On(&IGPIO::GetIoDelay, 5),       "2",  Cached("w 66110000=5; R 66110000/8")},
        {"IGPIO::SetIoDelay",           On(&IGPIO::SetIoDelay, 5, 4000000000), done, Always("W 66110000=5,4000000000")},
        {"IGPIO::GetIoMode line 6",     On(&IGPIO::GetIoMode, 5),        "2",  Cached("w 66020000=5; R 66020000/8")},
        {"IGPIO::SetIoPort line 3",     On(&IGPIO::SetIoPort, 2, 3),     done, Always("W 66030000=2,3")},
        {"IGPIO::GetIoPolarity line 5", On(&IGPIO::GetIoPolarity, 4),    "2",  Cached("w 660F0000=4; R 660F0000/8")},
        {"IGPIO::GetIoMode no line",    On(&IGPIO::GetIoMode, 6),        invalid, Never()},
        {"IGPIO::SetIoMode no line",    On(&IGPIO::SetIoMode, 6, 0),     invalid, Never()},
        {"IGPIO::GetIoPort no line",    On(&IGPIO::GetIoPort, 6),        invalid, Never()},
        {"IGPIO::SetIoPort no line",    On(&IGPIO::SetIoPort, 0xFFFFFFFF, 0), invalid, Never()},
        {"IGPIO::GetIoPolarity no line", On(&IGPIO::GetIoPolarity, 6),   invalid, Never()},
        {"IGPIO::SetIoPolarity no line", On(&IGPIO::SetIoPolarity, 6, 0), invalid, Never()},
        {"IGPIO::GetIoDelay no line",   On(&IGPIO::GetIoDelay, 0x80000000), invalid, Never()},
        {"IGPIO::SetIoDelay no line",   On(&IGPIO::SetIoDelay, 6, 0),    invalid, Never()},

        {"IBasicSettings::Restart",             On(&B::Restart),         notImplemented, Never()},
        {"IBasicSettings::LoadSettings",        On(&B::LoadSettings, 0), done,    Always("W 51020000=0").Stales("all but GetPatternGenerator")},
        {"IBasicSettings::LoadSettings colour", On(&B::LoadSettings, 2), done,    Always("W 51020000=2").Stales("all but GetPatternGenerator"), Colour()},
        {"IBasicSettings::LoadSettings 3",      On(&B::LoadSettings, 3), invalid, Never()},
        {"IBasicSettings::SaveSettings",        On(&B::SaveSettings, 2), done,    Always("W 51030000=2")},
        {"IBasicSettings::SaveSettings 0",      On(&B::SaveSettings, 0), invalid, Never()},
        {"IBasicSettings::GetStartupSettings",  On(&B::GetStartupSettings),    "1",  Always("R 51040000/4")},
        {"IBasicSettings::SetStartupSettings",  On(&B::SetStartupSettings, 2), done, Always("W 51040000=2")},
        {"IBasicSettings::GetOperationMode",    On(&B::GetOperationMode),      "1",  Always("R 52020000/4")},
        {"IBasicSettings::SetUpdateFile",       On(&B::SetUpdateFile, firmware, 4), notImplemented, Never()},
        {"IBasicSettings::GetUpdateStatus",     On(&B::GetUpdateStatus),       notImplemented, Never()},
        {"IBasicSettings::GetDevice",           On(&B::GetDevice, device),     notImplemented, Never()},
        {"IBasicSettings::SetDevice",           On(&B::SetDevice, device, 4),  notImplemented, Never()},
        {"IBasicSettings::GetErrorRegisterStatus", On(&B::GetErrorRegisterStatus), notImplemented, Never()},

        {"IInternalTests::GetPatternGenerator",   On(&T::GetPatternGenerator),    "1",  Cached("R 5A010000/4")},
        {"IInternalTests::SetPatternGenerator",   On(&T::SetPatternGenerator, 3), done, Always("W 5A010000=3")},
        {"IInternalTests::SetPatternGenerator colour", On(&T::SetPatternGenerator, 2), invalid, Never(), Colour()},
        {"IInternalTests::GetTestPattern",        On(&T::GetTestPattern, 0),      notImplemented, Never()},
        {"IInternalTests::SetTestPattern",        On(&T::SetTestPattern, 0, 1),   notImplemented, Never()},
        {"IInternalTests::GetTemperaturePCB",     On(&T::GetTemperaturePCB),      notImplemented, Never()},
        {"IInternalTests::GetTemperature",        On(&T::GetTemperature, 0), "-5",    Always("w 5A030000=0; R 5A030000/8"), With(0x5A030000, 0xFFFFFFFB, 0)},
        {"IInternalTests::GetTemperature 1",      On(&T::GetTemperature, 1), invalid, Never()},
        {"IInternalTests::GetTemperature -1",     On(&T::GetTemperature, -1), invalid, Never()},
    };
}
// clang-format on

} // namespace Test
