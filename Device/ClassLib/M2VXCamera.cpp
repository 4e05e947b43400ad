#include "M2VXCamera.h"

#include "RegisterAccess.h"

namespace SDK4::Control {

using std::int32_t;
using std::uint32_t;

// clang-format off
uint32_t               CM2VXCamera::GetExposure()                                                           { SDK4_LOG_CALL(); return ReadWord(port, Register::Exposure); }
void                   CM2VXCamera::SetExposure(uint32_t exposure)                                          { SDK4_LOG_CALL(); WriteWord(port, Register::Exposure, exposure); }
uint32_t               CM2VXCamera::GetFODStatus()                                                          { SDK4_LOG_CALL(); return ReadWord(port, Register::FODStatus); }
uint32_t               CM2VXCamera::GetTwinModeShutterOffset()                                              { SDK4_LOG_CALL(); return ReadWord(port, Register::TwinModeShutterOffset); }
void                   CM2VXCamera::SetTwinModeShutterOffset(uint32_t offset)                               { SDK4_LOG_CALL(); WriteWord(port, Register::TwinModeShutterOffset, offset); }

SDK4_KDEFECTPIXEL      CM2VXCamera::GetDefectPixel(SDK4_KDEFECTPIXELSELECT select)                          { SDK4_LOG_CALL(); return ReadSelectedRecord<SDK4_KDEFECTPIXEL>(port, Register::DefectPixel, select); }
void                   CM2VXCamera::SetDefectPixel(SDK4_KDEFECTPIXELSELECT select, SDK4_KDEFECTPIXEL pixel) { SDK4_LOG_CALL(); WriteKeyedBlock(port, Register::DefectPixel, select, pixel); }
void                   CM2VXCamera::SetDefectPixelAutoCompensation()                                        { SDK4_LOG_CALL(); WriteWord(port, Register::DefectPixelAutoCompensation, 0u); }
uint32_t               CM2VXCamera::GetDefectPixelCount()                                                   { SDK4_LOG_CALL(); return ReadWord(port, Register::DefectPixelCount); }
uint32_t               CM2VXCamera::GetDefectPixelShow()                                                    { SDK4_LOG_CALL(); return ReadWord(port, Register::DefectPixelShow); }
void                   CM2VXCamera::SetDefectPixelShow(uint32_t show)                                       { SDK4_LOG_CALL(); WriteWord(port, Register::DefectPixelShow, show); }

uint32_t               CM2VXCamera::GetLensControl(uint32_t channel)                                        { SDK4_LOG(Info, "Call"); return ReadIndexedWord(port, Register::LensControl, channel); }
void                   CM2VXCamera::SetLensControl(uint32_t channel, uint32_t value)                        { SDK4_LOG(Info, "Call"); WriteIndexedWord(port, Register::LensControl, channel, value); }
uint32_t               CM2VXCamera::GetMotorControl(uint32_t channel)                                       { SDK4_LOG(Info, "Call"); return ReadIndexedWord(port, Register::MotorControl, channel); }
void                   CM2VXCamera::SetMotorControl(uint32_t channel, uint32_t value)                       { SDK4_LOG(Info, "Call"); WriteIndexedWord(port, Register::MotorControl, channel, value); }

uint32_t               CM2VXCamera::GetAutoMotionDetection()                                                { SDK4_LOG_CALL(); return ReadWord(port, Register::AutoMotionDetection); }
void                   CM2VXCamera::SetAutoMotionDetection(uint32_t detect)                                 { SDK4_LOG_CALL(); WriteWord(port, Register::AutoMotionDetection, detect); }
SDK4_KCIRCULARPOSITION CM2VXCamera::GetOverlayPosition(uint32_t index)                                      { SDK4_LOG_CALL(); return ReadIndexedRecord<SDK4_KCIRCULARPOSITION>(port, Register::OverlayPosition, index); }
void                   CM2VXCamera::SetOverlayPosition(uint32_t index, SDK4_KCIRCULARPOSITION position)     { SDK4_LOG_CALL(); WriteKeyedBlock(port, Register::OverlayPosition, index, position); }
SDK4_ENUM_HISTOEQUAL   CM2VXCamera::GetHistogramEqualization()                                              { SDK4_LOG_CALL(); return ReadWord<SDK4_ENUM_HISTOEQUAL>(port, Register::HistogramEqualization); }
void                   CM2VXCamera::SetHistogramEqualization(SDK4_ENUM_HISTOEQUAL mode)                     { SDK4_LOG_CALL(); WriteWord(port, Register::HistogramEqualization, mode); }

uint32_t               CM2VXCamera::GetShadingCorrectionMode()                                              { SDK4_LOG_CALL(); return ReadWord(port, Register::ShadingCorrectionMode); }
void                   CM2VXCamera::SetShadingCorrectionMode(uint32_t mode)                                 { SDK4_LOG_CALL(); WriteWord(port, Register::ShadingCorrectionMode, mode); }
int32_t                CM2VXCamera::GetShadingCorrection(uint32_t channel)                                  { SDK4_LOG_CALL(); return ReadIndexedWord<int32_t>(port, Register::ShadingCorrection, channel); }
void                   CM2VXCamera::SetShadingCorrection(uint32_t channel, int32_t value)                   { SDK4_LOG_CALL(); WriteIndexedWord(port, Register::ShadingCorrection, channel, value); }
uint32_t               CM2VXCamera::GetCircularBlankingMode()                                               { SDK4_LOG_CALL(); return ReadWord(port, Register::CircularBlankingMode); }
void                   CM2VXCamera::SetCircularBlankingMode(uint32_t mode)                                  { SDK4_LOG_CALL(); WriteWord(port, Register::CircularBlankingMode, mode); }
uint32_t               CM2VXCamera::GetCircularBlankingSize()                                               { SDK4_LOG_CALL(); return ReadWord(port, Register::CircularBlankingSize); }
void                   CM2VXCamera::SetCircularBlankingSize(uint32_t size)                                  { SDK4_LOG_CALL(); WriteWord(port, Register::CircularBlankingSize, size); }
SDK4_KCIRCULARPOSITION CM2VXCamera::GetCircularBlankingPosition()                                           { SDK4_LOG_CALL(); return ReadPair<SDK4_KCIRCULARPOSITION>(port, Register::CircularBlankingPosition); }
void                   CM2VXCamera::SetCircularBlankingPosition(SDK4_KCIRCULARPOSITION position)            { SDK4_LOG_CALL(); WritePair(port, Register::CircularBlankingPosition, position); }
SDK4_KMWCIRCLE         CM2VXCamera::GetMeasureWindow()                                                      { SDK4_LOG_CALL(); return ReadBlock<SDK4_KMWCIRCLE>(port, Register::MeasureWindow); }
void                   CM2VXCamera::SetMeasureWindow(SDK4_KMWCIRCLE circle)                                 { SDK4_LOG_CALL(); WriteBlock(port, Register::MeasureWindow, circle); }

uint32_t               CM2VXCamera::GetAutoGainStopMode()                                                   { SDK4_LOG_CALL(); return ReadWord(port, Register::AutoGainStopMode); }
void                   CM2VXCamera::SetAutoGainStopMode(uint32_t mode)                                      { SDK4_LOG_CALL(); WriteWord(port, Register::AutoGainStopMode, mode); }
uint32_t               CM2VXCamera::GetABC()                                                                { SDK4_LOG_CALL(); return ReadWord(port, Register::ABC); }
void                   CM2VXCamera::SetABC(uint32_t mode)                                                   { SDK4_LOG_CALL(); WriteWord(port, Register::ABC, mode); }
uint32_t               CM2VXCamera::GetABCStopMode()                                                        { SDK4_LOG_CALL(); return ReadWord(port, Register::ABCStopMode); }
void                   CM2VXCamera::SetABCStopMode(uint32_t mode)                                           { SDK4_LOG_CALL(); WriteWord(port, Register::ABCStopMode, mode); }
uint32_t               CM2VXCamera::GetABCThreshold(uint32_t index)                                         { SDK4_LOG_CALL(); return ReadIndexedWord(port, Register::ABCThreshold, index); }
void                   CM2VXCamera::SetABCThreshold(uint32_t index, uint32_t threshold)                     { SDK4_LOG_CALL(); WriteIndexedWord(port, Register::ABCThreshold, index, threshold); }
uint32_t               CM2VXCamera::GetABCXRLevel()                                                         { SDK4_LOG_CALL(); return ReadWord(port, Register::ABCXRLevel); }

uint32_t               CM2VXCamera::GetErrorRegisterStatus()                                                { SDK4_LOG_CALL(); return ReadWord(port, Register::ErrorRegisterStatus); }
uint32_t               CM2VXCamera::GetTestPattern(uint32_t index)                                          { SDK4_LOG_CALL(); return ReadIndexedWord(port, Register::PatternGenerator, index); }
void                   CM2VXCamera::SetTestPattern(uint32_t index, uint32_t pattern)                        { SDK4_LOG_CALL(); WriteIndexedWord(port, Register::PatternGenerator, index, pattern); }
int32_t                CM2VXCamera::GetTemperaturePCB()                                                     { SDK4_LOG_CALL(); return ReadWord<int32_t>(port, Register::Temperature); }
// clang-format on

} // namespace SDK4::Control
