#include "RT6Camera.h"

#include "RegisterAccess.h"

namespace SDK4::Control {

using std::int32_t;
using std::uint32_t;
using std::uint64_t;

// clang-format off
char*             CRT6Camera::GetSerialNumber()                                           { SDK4_LOG_CALL(); return ReadIdentityText(port, Register::SerialNumber); }
uint32_t          CRT6Camera::GetFunctionModelID()                                        { SDK4_LOG_CALL(); return ReadWord(port, Register::FunctionModelID); }
SDK4_KVERSION     CRT6Camera::GetFunctionModelVersion()                                   { SDK4_LOG_CALL(); return ReadPair<SDK4_KVERSION>(port, Register::FunctionModelVersion); }
SDK4_KREVISION    CRT6Camera::GetRevision()                                               { SDK4_LOG_CALL(); return ReadPair<SDK4_KREVISION>(port, Register::Revision); }
char*             CRT6Camera::GetSoftwareBuild()                                          { SDK4_LOG_CALL(); return ReadIdentityText(port, Register::SoftwareBuild); }
SDK4_KVERSION     CRT6Camera::GetSoftwareVersion()                                        { SDK4_LOG_CALL(); return ReadPair<SDK4_KVERSION>(port, Register::SoftwareVersion); }
SDK4_KVERSION     CRT6Camera::GetFirmwareVersion()                                        { SDK4_LOG_CALL(); return ReadPair<SDK4_KVERSION>(port, Register::FirmwareVersion); }
SDK4_KVERSION     CRT6Camera::GetHardwareVersion()                                        { SDK4_LOG_CALL(); return ReadPair<SDK4_KVERSION>(port, Register::HardwareVersion); }

uint32_t          CRT6Camera::GetExposureMode()                                           { SDK4_LOG_CALL(); return ReadWord(port, Register::ExposureMode); }
void              CRT6Camera::SetExposureMode(uint32_t mode)                              { SDK4_LOG_CALL(); WriteWord(port, Register::ExposureMode, mode); }
uint32_t          CRT6Camera::GetGain()                                                   { SDK4_LOG_CALL(); return ReadWord(port, Register::Gain); }
void              CRT6Camera::SetGain(uint32_t gain)                                      { SDK4_LOG_CALL(); WriteWord(port, Register::Gain, gain); }

uint32_t          CRT6Camera::GetVerticalFlip()                                           { SDK4_LOG_CALL(); return ReadWord(port, Register::VerticalFlip); }
void              CRT6Camera::SetVerticalFlip(uint32_t flip)                              { SDK4_LOG_CALL(); WriteWord(port, Register::VerticalFlip, flip); }
uint32_t          CRT6Camera::GetHorizontalFlip()                                         { SDK4_LOG_CALL(); return ReadWord(port, Register::HorizontalFlip); }
void              CRT6Camera::SetHorizontalFlip(uint32_t flip)                            { SDK4_LOG_CALL(); WriteWord(port, Register::HorizontalFlip, flip); }
uint32_t          CRT6Camera::GetLastImageHold()                                          { SDK4_LOG_CALL(); return ReadWord(port, Register::LastImageHold); }
void              CRT6Camera::SetLastImageHold(uint32_t hold)                             { SDK4_LOG_CALL(); WriteWord(port, Register::LastImageHold, hold); }
void              CRT6Camera::StoreImage(uint32_t store)                                  { SDK4_LOG_CALL(); WriteWord(port, Register::StoreImage, store); }
uint32_t          CRT6Camera::GetImageSubtraction()                                       { SDK4_LOG_CALL(); return ReadWord(port, Register::ImageSubtraction); }
void              CRT6Camera::SetImageSubtraction(uint32_t subtract)                      { SDK4_LOG_CALL(); WriteWord(port, Register::ImageSubtraction, subtract); }
uint32_t          CRT6Camera::GetRecursiveFilter()                                        { SDK4_LOG_CALL(); return ReadWord(port, Register::RecursiveFilter); }
void              CRT6Camera::SetRecursiveFilter(uint32_t strength)                       { SDK4_LOG_CALL(); WriteWord(port, Register::RecursiveFilter, strength); }

uint32_t          CRT6Camera::GetOverlayShow(uint32_t index)                              { SDK4_LOG_CALL(); return ReadIndexedWord(port, Register::OverlayShow, index); }
void              CRT6Camera::SetOverlayShow(uint32_t index, uint32_t show)               { SDK4_LOG_CALL(); WriteIndexedWord(port, Register::OverlayShow, index, show); }
SDK4_KPOSITION    CRT6Camera::GetOverlayPosition(uint32_t index)                          { SDK4_LOG_CALL(); return ReadIndexedRecord<SDK4_KPOSITION>(port, Register::OverlayPosition, index); }
void              CRT6Camera::SetOverlayPosition(uint32_t index, SDK4_KPOSITION position) { SDK4_LOG_CALL(); WriteKeyedBlock(port, Register::OverlayPosition, index, position); }
SDK4_KSTYLE       CRT6Camera::GetOverlayStyle(uint32_t index)                             { SDK4_LOG_CALL(); return ReadIndexedRecord<SDK4_KSTYLE>(port, Register::OverlayStyle, index); }
void              CRT6Camera::SetOverlayStyle(uint32_t index, SDK4_KSTYLE style)          { SDK4_LOG_CALL(); WriteKeyedBlock(port, Register::OverlayStyle, index, style); }
SDK4_KOVERLAYSIZE CRT6Camera::GetOverlaySize(uint32_t index)                              { SDK4_LOG_CALL(); return ReadIndexedRecord<SDK4_KOVERLAYSIZE>(port, Register::OverlaySize, index); }
void              CRT6Camera::SetOverlaySize(uint32_t index, SDK4_KOVERLAYSIZE size)      { SDK4_LOG_CALL(); WriteKeyedBlock(port, Register::OverlaySize, index, size); }

uint32_t          CRT6Camera::GetBrightness()                                             { SDK4_LOG_CALL(); return ReadWord(port, Register::Brightness); }
void              CRT6Camera::SetBrightness(uint32_t brightness)                          { SDK4_LOG_CALL(); WriteWord(port, Register::Brightness, brightness); }
uint32_t          CRT6Camera::GetContrast()                                               { SDK4_LOG_CALL(); return ReadWord(port, Register::Contrast); }
void              CRT6Camera::SetContrast(uint32_t contrast)                              { SDK4_LOG_CALL(); WriteWord(port, Register::Contrast, contrast); }
uint32_t          CRT6Camera::GetSharpness()                                              { SDK4_LOG_CALL(); return ReadWord(port, Register::Sharpness); }
void              CRT6Camera::SetSharpness(uint32_t sharpness)                            { SDK4_LOG_CALL(); WriteWord(port, Register::Sharpness, sharpness); }

int32_t           CRT6Camera::GetLUTInterpolatorIndex()                                   { SDK4_LOG_CALL(); return ReadWord<int32_t>(port, Register::LUTInterpolatorIndex); }
void              CRT6Camera::SetLUTInterpolatorIndex(int32_t index)                      { SDK4_LOG_CALL(); WriteWord(port, Register::LUTInterpolatorIndex, index); }
uint32_t          CRT6Camera::GetLUTMode()                                                { SDK4_LOG_CALL(); return ReadWord(port, Register::LUTMode); }
void              CRT6Camera::SetLUTMode(uint32_t mode)                                   { SDK4_LOG_CALL(); WriteWord(port, Register::LUTMode, mode); }
uint32_t          CRT6Camera::GetNegativeImage()                                          { SDK4_LOG_CALL(); return ReadWord(port, Register::NegativeImage); }
void              CRT6Camera::SetNegativeImage(uint32_t negative)                         { SDK4_LOG_CALL(); WriteWord(port, Register::NegativeImage, negative); }

uint32_t          CRT6Camera::GetMeasureFrameShow()                                       { SDK4_LOG_CALL(); return ReadWord(port, Register::MeasureFrameShow); }
void              CRT6Camera::SetMeasureFrameShow(uint32_t show)                          { SDK4_LOG_CALL(); WriteWord(port, Register::MeasureFrameShow, show); }
uint32_t          CRT6Camera::GetMeasureFrameColor()                                      { SDK4_LOG_CALL(); return ReadWord(port, Register::MeasureFrameColor); }
void              CRT6Camera::SetMeasureFrameColor(uint32_t color)                        { SDK4_LOG_CALL(); WriteWord(port, Register::MeasureFrameColor, color); }
SDK4_KAREA        CRT6Camera::GetMeasureWindow(uint32_t index)                            { SDK4_LOG_CALL(); return ReadIndexedRecord<SDK4_KAREA>(port, Register::MeasureWindow, index); }
void              CRT6Camera::SetMeasureWindow(uint32_t index, SDK4_KAREA area)           { SDK4_LOG_CALL(); WriteKeyedBlock(port, Register::MeasureWindow, index, area); }
uint32_t          CRT6Camera::GetMeasureValue(uint32_t index)                             { SDK4_LOG_CALL(); return ReadIndexedWord(port, Register::MeasureValue, index); }

uint32_t          CRT6Camera::GetColorCoding()                                            { SDK4_LOG_CALL(); return ReadWord(port, Register::ColorCoding); }
void              CRT6Camera::SetColorCoding(uint32_t coding)                             { SDK4_LOG_CALL(); WriteWord(port, Register::ColorCoding, coding); }
uint32_t          CRT6Camera::GetFrameDuration()                                          { SDK4_LOG_CALL(); return ReadWord(port, Register::FrameDuration); }

uint32_t          CRT6Camera::GetAGC()                                                    { SDK4_LOG_CALL(); return ReadWord(port, Register::AGC); }
void              CRT6Camera::SetAGC(uint32_t mode)                                       { SDK4_LOG_CALL(); WriteWord(port, Register::AGC, mode); }
uint32_t          CRT6Camera::GetAutoExposureLevel()                                      { SDK4_LOG_CALL(); return ReadWord(port, Register::AutoExposureLevel); }
void              CRT6Camera::SetAutoExposureLevel(uint32_t level)                        { SDK4_LOG_CALL(); WriteWord(port, Register::AutoExposureLevel, level); }
int32_t           CRT6Camera::GetACC()                                                    { SDK4_LOG_CALL(); return ReadWord<int32_t>(port, Register::ACC); }
void              CRT6Camera::SetACC(int32_t mode)                                        { SDK4_LOG_CALL(); WriteWord(port, Register::ACC, mode); }

void              CRT6Camera::SetDevice(SDK4_KDEVICESELECT select, uint32_t value)        { SDK4_LOG_CALL(); WriteKeyedBlock(port, Register::Device, select, value); }
void              CRT6Camera::Restart()                                                   { SDK4_LOG_CALL(); WriteWord(port, Register::Restart, 0u); }
void              CRT6Camera::LoadSettings(uint32_t set)                                  { SDK4_LOG_CALL(); WriteWord(port, Register::LoadSettings, set); }
void              CRT6Camera::SaveSettings(uint32_t set)                                  { SDK4_LOG_CALL(); WriteWord(port, Register::SaveSettings, set); }
uint32_t          CRT6Camera::GetStartupSettings()                                        { SDK4_LOG_CALL(); return ReadWord(port, Register::StartupSettings); }
void              CRT6Camera::SetStartupSettings(uint32_t set)                            { SDK4_LOG_CALL(); WriteWord(port, Register::StartupSettings, set); }
uint32_t          CRT6Camera::GetOperationMode()                                          { SDK4_LOG_CALL(); return ReadWord(port, Register::OperationMode); }
uint64_t          CRT6Camera::GetUpdateStatus()                                           { SDK4_LOG_CALL(); return port->ReadRegisterPair(Register::UpdateStatus); }

uint32_t          CRT6Camera::GetPatternGenerator()                                       { SDK4_LOG_CALL(); return ReadWord(port, Register::PatternGenerator); }
void              CRT6Camera::SetPatternGenerator(uint32_t pattern)                       { SDK4_LOG_CALL(); WriteWord(port, Register::PatternGenerator, pattern); }
uint32_t          CRT6Camera::GetIoMode(uint32_t line)                                    { SDK4_LOG_CALL(); return ReadIndexedWord(port, Register::IoMode, line); }
void              CRT6Camera::SetIoMode(uint32_t line, uint32_t mode)                     { SDK4_LOG_CALL(); WriteIndexedWord(port, Register::IoMode, line, mode); }
uint32_t          CRT6Camera::GetIoPort(uint32_t line)                                    { SDK4_LOG_CALL(); return ReadIndexedWord(port, Register::IoPort, line); }
void              CRT6Camera::SetIoPort(uint32_t line, uint32_t signal)                     { SDK4_LOG_CALL(); WriteIndexedWord(port, Register::IoPort, line, signal); }
uint32_t          CRT6Camera::GetIoPolarity(uint32_t line)                                { SDK4_LOG_CALL(); return ReadIndexedWord(port, Register::IoPolarity, line); }
void              CRT6Camera::SetIoPolarity(uint32_t line, uint32_t polarity)             { SDK4_LOG_CALL(); WriteIndexedWord(port, Register::IoPolarity, line, polarity); }
uint32_t          CRT6Camera::GetIoDelay(uint32_t line)                                   { SDK4_LOG_CALL(); return ReadIndexedWord(port, Register::IoDelay, line); }
void              CRT6Camera::SetIoDelay(uint32_t line, uint32_t delay)                   { SDK4_LOG_CALL(); WriteIndexedWord(port, Register::IoDelay, line, delay); }
// clang-format on

SDK4_KSIZE CRT6Camera::GetImageSize() {
    SDK4_LOG_CALL();
    const auto size = ReadPair<SDK4_KSIZE>(port, Register::ImageSize);
    SDK4_LOG(Debug, "ImageWidth=" << size.width);
    return size;
}

uint32_t CRT6Camera::GetDevice(SDK4_KDEVICESELECT select) {
    SDK4_LOG_CALL();
    WriteBlock(port, Register::Device, select);
    return ReadBlock<uint32_t>(port, Register::Device, sizeof select);
}

void CRT6Camera::SetUpdateFile(void* data, uint32_t length) {
    SDK4_LOG_CALL();
    uint64_t count = length;
    port->WriteMem(Register::UpdateFile, static_cast<std::uint8_t*>(data), &count);
}

} // namespace SDK4::Control
