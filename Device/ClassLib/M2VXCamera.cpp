#include "M2VXCamera.h"

#include "RegisterAccess.h"

namespace SDK4::Control {

using std::int32_t;
using std::uint32_t;

// clang-format off
uint32_t CM2VXCamera::GetExposure()                             { return Call(SDK4_HERE).Word(Exposure); }
void     CM2VXCamera::SetExposure(uint32_t exposure)            { Call(SDK4_HERE).SetWord(Exposure, exposure); }
uint32_t CM2VXCamera::GetFODStatus()                            { return Call(SDK4_HERE).Word(FODStatus); }
uint32_t CM2VXCamera::GetTwinModeShutterOffset()                { return Call(SDK4_HERE).Word(TwinModeShutterOffset); }
void     CM2VXCamera::SetTwinModeShutterOffset(uint32_t offset) { Call(SDK4_HERE).SetWord(TwinModeShutterOffset, offset); }

void     CM2VXCamera::SetDefectPixelAutoCompensation()  { Call(SDK4_HERE).SetWord(DefectPixelAutoCompensation, 0u); }
uint32_t CM2VXCamera::GetDefectPixelCount()             { return Call(SDK4_HERE).Word(DefectPixelCount); }
uint32_t CM2VXCamera::GetDefectPixelShow()              { return Call(SDK4_HERE).Word(DefectPixelShow); }
void     CM2VXCamera::SetDefectPixelShow(uint32_t show) { Call(SDK4_HERE).SetWord(DefectPixelShow, show); }

uint32_t CM2VXCamera::GetAutoMotionDetection()                { return Call(SDK4_HERE).Word(AutoMotionDetection); }
void     CM2VXCamera::SetAutoMotionDetection(uint32_t detect) { Call(SDK4_HERE).SetWord(AutoMotionDetection, detect); }
uint32_t CM2VXCamera::GetShadingCorrectionMode()              { return Call(SDK4_HERE).Word(ShadingCorrectionMode); }
void     CM2VXCamera::SetShadingCorrectionMode(uint32_t mode) { Call(SDK4_HERE).SetWord(ShadingCorrectionMode, mode); }
uint32_t CM2VXCamera::GetCircularBlankingMode()               { return Call(SDK4_HERE).Word(CircularBlankingMode); }
void     CM2VXCamera::SetCircularBlankingMode(uint32_t mode)  { Call(SDK4_HERE).SetWord(CircularBlankingMode, mode); }
uint32_t CM2VXCamera::GetCircularBlankingSize()               { return Call(SDK4_HERE).Word(CircularBlankingSize); }
void     CM2VXCamera::SetCircularBlankingSize(uint32_t size)  { Call(SDK4_HERE).SetWord(CircularBlankingSize, size); }

uint32_t CM2VXCamera::GetAutoGainStopMode()              { return Call(SDK4_HERE).Word(AutoGainStopMode); }
void     CM2VXCamera::SetAutoGainStopMode(uint32_t mode) { Call(SDK4_HERE).SetWord(AutoGainStopMode, mode); }
uint32_t CM2VXCamera::GetABC()                           { return Call(SDK4_HERE).Word(ABC); }
void     CM2VXCamera::SetABC(uint32_t mode)              { Call(SDK4_HERE).SetWord(ABC, mode); }
uint32_t CM2VXCamera::GetABCStopMode()                   { return Call(SDK4_HERE).Word(ABCStopMode); }
void     CM2VXCamera::SetABCStopMode(uint32_t mode)      { Call(SDK4_HERE).SetWord(ABCStopMode, mode); }
uint32_t CM2VXCamera::GetABCXRLevel()                    { return Call(SDK4_HERE).Word(ABCXRLevel); }

uint32_t CM2VXCamera::GetErrorRegisterStatus() { return Call(SDK4_HERE).Word(ErrorRegisterStatus); }
int32_t  CM2VXCamera::GetTemperaturePCB()      { return Call(SDK4_HERE).Word<int32_t>(Temperature); }

int32_t  CM2VXCamera::GetShadingCorrection(uint32_t channel)                { return Call(SDK4_HERE).Indexed<int32_t>(ShadingCorrection, channel); }
void     CM2VXCamera::SetShadingCorrection(uint32_t channel, int32_t value) { Call(SDK4_HERE).SetIndexed(ShadingCorrection, channel, value); }
uint32_t CM2VXCamera::GetABCThreshold(uint32_t index)                       { return Call(SDK4_HERE).Indexed(ABCThreshold, index); }
void     CM2VXCamera::SetABCThreshold(uint32_t index, uint32_t threshold)   { Call(SDK4_HERE).SetIndexed(ABCThreshold, index, threshold); }
uint32_t CM2VXCamera::GetTestPattern(uint32_t index)                        { return Call(SDK4_HERE).Indexed(PatternGenerator, index); }
void     CM2VXCamera::SetTestPattern(uint32_t index, uint32_t pattern)      { Call(SDK4_HERE).SetIndexed(PatternGenerator, index, pattern); }

uint32_t CM2VXCamera::GetLensControl(uint32_t channel)                  { SDK4_LOG(Info, "Call"); return Access().Indexed(LensControl, channel); }
void     CM2VXCamera::SetLensControl(uint32_t channel, uint32_t value)  { SDK4_LOG(Info, "Call"); Access().SetIndexed(LensControl, channel, value); }
uint32_t CM2VXCamera::GetMotorControl(uint32_t channel)                 { SDK4_LOG(Info, "Call"); return Access().Indexed(MotorControl, channel); }
void     CM2VXCamera::SetMotorControl(uint32_t channel, uint32_t value) { SDK4_LOG(Info, "Call"); Access().SetIndexed(MotorControl, channel, value); }

SDK4_KMWCIRCLE CM2VXCamera::GetMeasureWindow()                      { return Call(SDK4_HERE).Block<SDK4_KMWCIRCLE>(MeasureWindow); }
void           CM2VXCamera::SetMeasureWindow(SDK4_KMWCIRCLE circle) { Call(SDK4_HERE).SetBlock(MeasureWindow, circle); }

SDK4_ENUM_HISTOEQUAL CM2VXCamera::GetHistogramEqualization()          { return Call(SDK4_HERE).Word<SDK4_ENUM_HISTOEQUAL>(HistogramEqualization); }
void CM2VXCamera::SetHistogramEqualization(SDK4_ENUM_HISTOEQUAL mode) { Call(SDK4_HERE).SetWord(HistogramEqualization, mode); }

// Too wide for columns.
SDK4_KDEFECTPIXEL CM2VXCamera::GetDefectPixel(SDK4_KDEFECTPIXELSELECT select) { return Call(SDK4_HERE).Selected<SDK4_KDEFECTPIXEL>(DefectPixel, select); }
void CM2VXCamera::SetDefectPixel(SDK4_KDEFECTPIXELSELECT select, SDK4_KDEFECTPIXEL pixel) { Call(SDK4_HERE).SetRecord(DefectPixel, select, pixel); }
SDK4_KCIRCULARPOSITION CM2VXCamera::GetOverlayPosition(uint32_t index) { return Call(SDK4_HERE).Record<SDK4_KCIRCULARPOSITION>(OverlayPosition, index); }
void CM2VXCamera::SetOverlayPosition(uint32_t index, SDK4_KCIRCULARPOSITION position) { Call(SDK4_HERE).SetRecord(OverlayPosition, index, position); }
SDK4_KCIRCULARPOSITION CM2VXCamera::GetCircularBlankingPosition() { return Call(SDK4_HERE).Pair<SDK4_KCIRCULARPOSITION>(CircularBlankingPosition); }
void CM2VXCamera::SetCircularBlankingPosition(SDK4_KCIRCULARPOSITION position) { Call(SDK4_HERE).SetPair(CircularBlankingPosition, position); }
// clang-format on

} // namespace SDK4::Control
