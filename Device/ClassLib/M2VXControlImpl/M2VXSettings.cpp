// Settings sets, device, test patterns, temperatures, motor and lens.

#include "M2VXCameraBaseCtrl.h"
#include "M2VXControlImpl/Bounds.h"
#include "M2VXControlImpl/SetterLog.h"

namespace SDK4::Control {

void CM2VXBaseControl::Restart() {
    SDK4_LOG_CALL();
    common->Restart();
}

void CM2VXBaseControl::LoadSettings(int set) {
    SDK4_LOG_SETTER(set);
    RefuseWhileRunning();
    access.Send(table.loadSettings, set, &CRT6Camera::LoadSettings);
}

void CM2VXBaseControl::SaveSettings(int set) {
    SDK4_LOG_SETTER(set);
    access.Send(table.saveSettings, set, &CRT6Camera::SaveSettings);
}

SDK4_ENUM_SETTINGS CM2VXBaseControl::GetStartupSettings() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_SETTINGS>(table.startupSettings, &CRT6Camera::GetStartupSettings);
}

void CM2VXBaseControl::SetStartupSettings(int set) {
    SDK4_LOG_SETTER(set);
    access.Set(table.startupSettings, set, &CRT6Camera::SetStartupSettings);
}

SDK4_ENUM_OPERATIONMODE CM2VXBaseControl::GetOperationMode() {
    SDK4_LOG_CALL();
    return static_cast<SDK4_ENUM_OPERATIONMODE>(common->GetOperationMode());
}

void CM2VXBaseControl::SetUpdateFile(void* /*data*/, unsigned int /*length*/) {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

std::uint64_t CM2VXBaseControl::GetUpdateStatus() {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

unsigned int CM2VXBaseControl::GetDevice(SDK4_KDEVICESELECT select) {
    SDK4_LOG_CALL();
    return common->GetDevice(select);
}

void CM2VXBaseControl::SetDevice(SDK4_KDEVICESELECT select, unsigned int value) {
    SDK4_LOG_SETTER(select, value);
    common->SetDevice(select, value);
}

unsigned int CM2VXBaseControl::GetErrorRegisterStatus() {
    SDK4_LOG_CALL();
    return family->GetErrorRegisterStatus();
}

SDK4_ENUM_PATTERN CM2VXBaseControl::GetPatternGenerator() {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

void CM2VXBaseControl::SetPatternGenerator(int /*pattern*/) {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

unsigned int CM2VXBaseControl::GetTestPattern(unsigned int index) {
    SDK4_LOG_CALL();
    return access.Get(At(table.testPattern, index), &CM2VXCamera::GetTestPattern, index);
}

void CM2VXBaseControl::SetTestPattern(unsigned int index, unsigned int pattern) {
    SDK4_LOG_SETTER(index, pattern);
    access.Set(At(table.testPattern, index), pattern, &CM2VXCamera::SetTestPattern, index);
}

int CM2VXBaseControl::GetTemperaturePCB() {
    SDK4_LOG_CALL();
    return family->GetTemperaturePCB();
}

// There is only one sensor; the number is ignored.
int CM2VXBaseControl::GetTemperature(int /*sensor*/) {
    SDK4_LOG_CALL();
    return family->GetTemperaturePCB();
}

unsigned int CM2VXBaseControl::GetMotorControl(unsigned int channel) {
    SDK4_LOG_CALL();
    return access.Get(At(table.motorControl, channel), &CM2VXCamera::GetMotorControl, channel);
}

void CM2VXBaseControl::SetMotorControl(unsigned int channel, unsigned int value) {
    SDK4_LOG_SETTER(channel, value);
    access.Send(At(table.motorControl, channel), value, &CM2VXCamera::SetMotorControl, channel);
}

unsigned int CM2VXBaseControl::GetLensControl(unsigned int channel) {
    SDK4_LOG_CALL();
    return family->GetLensControl(channel);
}

void CM2VXBaseControl::SetLensControl(unsigned int channel, unsigned int value) {
    SDK4_LOG_SETTER(channel, value);
    family->SetLensControl(channel, value);
}

} // namespace SDK4::Control
