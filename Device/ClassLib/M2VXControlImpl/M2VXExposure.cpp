// Exposure, gain, automatic brightness control.

#include "M2VXCameraBaseCtrl.h"
#include "M2VXControlImpl/Bounds.h"
#include "M2VXControlImpl/SetterLog.h"

namespace SDK4::Control {

using enum CPropertyAccess::Gate;

unsigned int CM2VXBaseControl::GetExposureMode() {
    SDK4_LOG_CALL();
    return access.Get(table.exposureMode, &CRT6Camera::GetExposureMode);
}

void CM2VXBaseControl::SetExposureMode(unsigned int mode) {
    SDK4_LOG_SETTER(mode);
    access.Set<Enabled>(table.exposureMode, mode, &CRT6Camera::SetExposureMode);
    table.FollowExposureMode();
}

unsigned int CM2VXBaseControl::GetExposure() {
    SDK4_LOG_CALL();
    return access.Get(table.exposure, &CM2VXCamera::GetExposure);
}

void CM2VXBaseControl::SetExposure(unsigned int exposure) {
    SDK4_LOG_SETTER(exposure);
    access.SetThenReport<Enabled>(table.exposure, exposure, &CM2VXCamera::SetExposure, &CM2VXCamera::GetExposure);
}

unsigned int CM2VXBaseControl::GetFODStatus() {
    SDK4_LOG_CALL();
    return family->GetFODStatus();
}

unsigned int CM2VXBaseControl::GetTwinModeShutterOffset() {
    SDK4_LOG_CALL();
    return family->GetTwinModeShutterOffset();
}

void CM2VXBaseControl::SetTwinModeShutterOffset(unsigned int offset) {
    SDK4_LOG_SETTER(offset);
    if (offset > table.exposure.GetUIntMax()) {
        SDK4_THROW(SDK4_ERR_OUTOFRANGE);
    }
    family->SetTwinModeShutterOffset(offset);
}

unsigned int CM2VXBaseControl::GetGain() {
    SDK4_LOG_CALL();
    return access.Get(table.gain, &CRT6Camera::GetGain);
}

void CM2VXBaseControl::SetGain(unsigned int gain) {
    SDK4_LOG_SETTER(gain);
    access.SetThenReport<Enabled>(table.gain, gain, &CRT6Camera::SetGain, &CRT6Camera::GetGain);
}

SDK4_ENUM_AGC CM2VXBaseControl::GetAGC() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_AGC>(table.agc, &CRT6Camera::GetAGC);
}

void CM2VXBaseControl::SetAGC(int mode) {
    SDK4_LOG_SETTER(mode);
    access.Set(table.agc, mode, &CRT6Camera::SetAGC);
    table.FollowAGC();
}

unsigned int CM2VXBaseControl::GetAutoGainStopMode() {
    SDK4_LOG_CALL();
    return access.Get(table.autoGainStopMode, &CM2VXCamera::GetAutoGainStopMode);
}

void CM2VXBaseControl::SetAutoGainStopMode(unsigned int mode) {
    SDK4_LOG_SETTER(mode);
    access.Set<Enabled>(table.autoGainStopMode, mode, &CM2VXCamera::SetAutoGainStopMode);
}

unsigned int CM2VXBaseControl::GetAutomaticLevel() {
    SDK4_LOG_CALL();
    return access.Get(table.automaticLevel, &CRT6Camera::GetAutoExposureLevel);
}

void CM2VXBaseControl::SetAutomaticLevel(unsigned int level) {
    SDK4_LOG_SETTER(level);
    access.SetThenReport<Enabled>(table.automaticLevel, level, &CRT6Camera::SetAutoExposureLevel,
                                  &CRT6Camera::GetAutoExposureLevel);
}

unsigned int CM2VXBaseControl::GetABC() {
    SDK4_LOG_CALL();
    return access.Get(table.abc, &CM2VXCamera::GetABC);
}

void CM2VXBaseControl::SetABC(unsigned int mode) {
    SDK4_LOG_SETTER(mode);
    access.Set(table.abc, mode, &CM2VXCamera::SetABC);
    table.FollowABC();
}

unsigned int CM2VXBaseControl::GetABCStopMode() {
    SDK4_LOG_CALL();
    return access.Get(table.abcStopMode, &CM2VXCamera::GetABCStopMode);
}

void CM2VXBaseControl::SetABCStopMode(unsigned int mode) {
    SDK4_LOG_SETTER(mode);
    access.Set(table.abcStopMode, mode, &CM2VXCamera::SetABCStopMode);
}

unsigned int CM2VXBaseControl::GetABCThreshold(unsigned int index) {
    SDK4_LOG_CALL();
    return access.Get(At(table.abcThreshold, index), &CM2VXCamera::GetABCThreshold, index);
}

void CM2VXBaseControl::SetABCThreshold(unsigned int index, unsigned int threshold) {
    SDK4_LOG_SETTER(index, threshold);
    access.SetThenReport(At(table.abcThreshold, index), threshold, &CM2VXCamera::SetABCThreshold,
                         &CM2VXCamera::GetABCThreshold, index);
}

unsigned int CM2VXBaseControl::GetABCXRLevel() {
    SDK4_LOG_CALL();
    return access.Get(table.abcXRLevel, &CM2VXCamera::GetABCXRLevel);
}

} // namespace SDK4::Control
