#include "RT6Camera.h"

#include "RegisterAccess.h"

namespace SDK4::Control {

using std::int32_t;
using std::uint32_t;
using std::uint64_t;

// clang-format off
char*          CRT6Camera::GetSerialNumber()         { return Call(SDK4_HERE).Text(SerialNumber); }
uint32_t       CRT6Camera::GetFunctionModelID()      { return Call(SDK4_HERE).Word(FunctionModelID); }
SDK4_KVERSION  CRT6Camera::GetFunctionModelVersion() { return Call(SDK4_HERE).Pair<SDK4_KVERSION>(FunctionModelVersion); }
SDK4_KREVISION CRT6Camera::GetRevision()             { return Call(SDK4_HERE).Pair<SDK4_KREVISION>(Revision); }
char*          CRT6Camera::GetSoftwareBuild()        { return Call(SDK4_HERE).Text(SoftwareBuild); }
SDK4_KVERSION  CRT6Camera::GetSoftwareVersion()      { return Call(SDK4_HERE).Pair<SDK4_KVERSION>(SoftwareVersion); }
SDK4_KVERSION  CRT6Camera::GetFirmwareVersion()      { return Call(SDK4_HERE).Pair<SDK4_KVERSION>(FirmwareVersion); }
SDK4_KVERSION  CRT6Camera::GetHardwareVersion()      { return Call(SDK4_HERE).Pair<SDK4_KVERSION>(HardwareVersion); }

uint32_t CRT6Camera::GetExposureMode()              { return Call(SDK4_HERE).Word(ExposureMode); }
void     CRT6Camera::SetExposureMode(uint32_t mode) { Call(SDK4_HERE).SetWord(ExposureMode, mode); }
uint32_t CRT6Camera::GetGain()                      { return Call(SDK4_HERE).Word(Gain); }
void     CRT6Camera::SetGain(uint32_t gain)         { Call(SDK4_HERE).SetWord(Gain, gain); }

uint32_t CRT6Camera::GetVerticalFlip()                      { return Call(SDK4_HERE).Word(VerticalFlip); }
void     CRT6Camera::SetVerticalFlip(uint32_t flip)         { Call(SDK4_HERE).SetWord(VerticalFlip, flip); }
uint32_t CRT6Camera::GetHorizontalFlip()                    { return Call(SDK4_HERE).Word(HorizontalFlip); }
void     CRT6Camera::SetHorizontalFlip(uint32_t flip)       { Call(SDK4_HERE).SetWord(HorizontalFlip, flip); }
uint32_t CRT6Camera::GetLastImageHold()                     { return Call(SDK4_HERE).Word(LastImageHold); }
void     CRT6Camera::SetLastImageHold(uint32_t hold)        { Call(SDK4_HERE).SetWord(LastImageHold, hold); }
void     CRT6Camera::StoreImage(uint32_t store)             { Call(SDK4_HERE).SetWord(Address::StoreImage, store); }
uint32_t CRT6Camera::GetImageSubtraction()                  { return Call(SDK4_HERE).Word(ImageSubtraction); }
void     CRT6Camera::SetImageSubtraction(uint32_t subtract) { Call(SDK4_HERE).SetWord(ImageSubtraction, subtract); }
uint32_t CRT6Camera::GetRecursiveFilter()                   { return Call(SDK4_HERE).Word(RecursiveFilter); }
void     CRT6Camera::SetRecursiveFilter(uint32_t strength)  { Call(SDK4_HERE).SetWord(RecursiveFilter, strength); }

uint32_t CRT6Camera::GetOverlayShow(uint32_t index)                { return Call(SDK4_HERE).Indexed(OverlayShow, index); }
void     CRT6Camera::SetOverlayShow(uint32_t index, uint32_t show) { Call(SDK4_HERE).SetIndexed(OverlayShow, index, show); }

SDK4_KPOSITION CRT6Camera::GetOverlayPosition(uint32_t index)                { return Call(SDK4_HERE).Record<SDK4_KPOSITION>(OverlayPosition, index); }
void CRT6Camera::SetOverlayPosition(uint32_t index, SDK4_KPOSITION position) { Call(SDK4_HERE).SetRecord(OverlayPosition, index, position); }
SDK4_KSTYLE CRT6Camera::GetOverlayStyle(uint32_t index)                      { return Call(SDK4_HERE).Record<SDK4_KSTYLE>(OverlayStyle, index); }
void CRT6Camera::SetOverlayStyle(uint32_t index, SDK4_KSTYLE style)          { Call(SDK4_HERE).SetRecord(OverlayStyle, index, style); }
SDK4_KOVERLAYSIZE CRT6Camera::GetOverlaySize(uint32_t index)                 { return Call(SDK4_HERE).Record<SDK4_KOVERLAYSIZE>(OverlaySize, index); }
void CRT6Camera::SetOverlaySize(uint32_t index, SDK4_KOVERLAYSIZE size)      { Call(SDK4_HERE).SetRecord(OverlaySize, index, size); }

uint32_t CRT6Camera::GetBrightness()                    { return Call(SDK4_HERE).Word(Brightness); }
void     CRT6Camera::SetBrightness(uint32_t brightness) { Call(SDK4_HERE).SetWord(Brightness, brightness); }
uint32_t CRT6Camera::GetContrast()                      { return Call(SDK4_HERE).Word(Contrast); }
void     CRT6Camera::SetContrast(uint32_t contrast)     { Call(SDK4_HERE).SetWord(Contrast, contrast); }
uint32_t CRT6Camera::GetSharpness()                     { return Call(SDK4_HERE).Word(Sharpness); }
void     CRT6Camera::SetSharpness(uint32_t sharpness)   { Call(SDK4_HERE).SetWord(Sharpness, sharpness); }

int32_t  CRT6Camera::GetLUTInterpolatorIndex()              { return Call(SDK4_HERE).Word<int32_t>(LUTInterpolatorIndex); }
void     CRT6Camera::SetLUTInterpolatorIndex(int32_t index) { Call(SDK4_HERE).SetWord(LUTInterpolatorIndex, index); }
uint32_t CRT6Camera::GetLUTMode()                           { return Call(SDK4_HERE).Word(LUTMode); }
void     CRT6Camera::SetLUTMode(uint32_t mode)              { Call(SDK4_HERE).SetWord(LUTMode, mode); }
uint32_t CRT6Camera::GetNegativeImage()                     { return Call(SDK4_HERE).Word(NegativeImage); }
void     CRT6Camera::SetNegativeImage(uint32_t negative)    { Call(SDK4_HERE).SetWord(NegativeImage, negative); }

uint32_t CRT6Camera::GetMeasureFrameShow()                { return Call(SDK4_HERE).Word(MeasureFrameShow); }
void     CRT6Camera::SetMeasureFrameShow(uint32_t show)   { Call(SDK4_HERE).SetWord(MeasureFrameShow, show); }
uint32_t CRT6Camera::GetMeasureFrameColor()               { return Call(SDK4_HERE).Word(MeasureFrameColor); }
void     CRT6Camera::SetMeasureFrameColor(uint32_t color) { Call(SDK4_HERE).SetWord(MeasureFrameColor, color); }

SDK4_KAREA CRT6Camera::GetMeasureWindow(uint32_t index)                  { return Call(SDK4_HERE).Record<SDK4_KAREA>(MeasureWindow, index); }
void       CRT6Camera::SetMeasureWindow(uint32_t index, SDK4_KAREA area) { Call(SDK4_HERE).SetRecord(MeasureWindow, index, area); }
uint32_t   CRT6Camera::GetMeasureValue(uint32_t index)                   { return Call(SDK4_HERE).Indexed(MeasureValue, index); }

uint32_t CRT6Camera::GetColorCoding()                { return Call(SDK4_HERE).Word(ColorCoding); }
void     CRT6Camera::SetColorCoding(uint32_t coding) { Call(SDK4_HERE).SetWord(ColorCoding, coding); }
uint32_t CRT6Camera::GetFrameDuration()              { return Call(SDK4_HERE).Word(FrameDuration); }

uint32_t CRT6Camera::GetAGC()                             { return Call(SDK4_HERE).Word(AGC); }
void     CRT6Camera::SetAGC(uint32_t mode)                { Call(SDK4_HERE).SetWord(AGC, mode); }
uint32_t CRT6Camera::GetAutoExposureLevel()               { return Call(SDK4_HERE).Word(AutoExposureLevel); }
void     CRT6Camera::SetAutoExposureLevel(uint32_t level) { Call(SDK4_HERE).SetWord(AutoExposureLevel, level); }
int32_t  CRT6Camera::GetACC()                             { return Call(SDK4_HERE).Word<int32_t>(ACC); }
void     CRT6Camera::SetACC(int32_t mode)                 { Call(SDK4_HERE).SetWord(ACC, mode); }

void CRT6Camera::SetDevice(SDK4_KDEVICESELECT select, uint32_t value) { Call(SDK4_HERE).SetRecord(Device, select, value); }
void CRT6Camera::SetUpdateFile(void* data, uint32_t length)           { Call(SDK4_HERE).SetBytes(UpdateFile, data, length); }

void     CRT6Camera::Restart()                        { Call(SDK4_HERE).SetWord(Address::Restart, 0u); }
void     CRT6Camera::LoadSettings(uint32_t set)       { Call(SDK4_HERE).SetWord(Address::LoadSettings, set); }
void     CRT6Camera::SaveSettings(uint32_t set)       { Call(SDK4_HERE).SetWord(Address::SaveSettings, set); }
uint32_t CRT6Camera::GetStartupSettings()             { return Call(SDK4_HERE).Word(StartupSettings); }
void     CRT6Camera::SetStartupSettings(uint32_t set) { Call(SDK4_HERE).SetWord(StartupSettings, set); }
uint32_t CRT6Camera::GetOperationMode()               { return Call(SDK4_HERE).Word(OperationMode); }
uint64_t CRT6Camera::GetUpdateStatus()                { return Call(SDK4_HERE).Pair<uint64_t>(UpdateStatus); }

uint32_t CRT6Camera::GetPatternGenerator()                 { return Call(SDK4_HERE).Word(PatternGenerator); }
void     CRT6Camera::SetPatternGenerator(uint32_t pattern) { Call(SDK4_HERE).SetWord(PatternGenerator, pattern); }

uint32_t CRT6Camera::GetIoMode(uint32_t line)                        { return Call(SDK4_HERE).Indexed(IoMode, line); }
void     CRT6Camera::SetIoMode(uint32_t line, uint32_t mode)         { Call(SDK4_HERE).SetIndexed(IoMode, line, mode); }
uint32_t CRT6Camera::GetIoPort(uint32_t line)                        { return Call(SDK4_HERE).Indexed(IoPort, line); }
void     CRT6Camera::SetIoPort(uint32_t line, uint32_t signal)       { Call(SDK4_HERE).SetIndexed(IoPort, line, signal); }
uint32_t CRT6Camera::GetIoPolarity(uint32_t line)                    { return Call(SDK4_HERE).Indexed(IoPolarity, line); }
void     CRT6Camera::SetIoPolarity(uint32_t line, uint32_t polarity) { Call(SDK4_HERE).SetIndexed(IoPolarity, line, polarity); }
uint32_t CRT6Camera::GetIoDelay(uint32_t line)                       { return Call(SDK4_HERE).Indexed(IoDelay, line); }
void     CRT6Camera::SetIoDelay(uint32_t line, uint32_t delay)       { Call(SDK4_HERE).SetIndexed(IoDelay, line, delay); }
// clang-format on

SDK4_KSIZE CRT6Camera::GetImageSize() {
    const auto size = Call(SDK4_HERE).Pair<SDK4_KSIZE>(ImageSize);
    SDK4_LOG(Debug, "ImageWidth=" << size.width);
    return size;
}

uint32_t CRT6Camera::GetDevice(SDK4_KDEVICESELECT select) {
    const RegisterAccess device = Call(SDK4_HERE);
    device.SetBlock(Device, select);
    return device.Block<uint32_t>(Device, sizeof select);
}

} // namespace SDK4::Control
