// Digital enhancement, look-up table, image memory, signal format.

#include "M2VXCameraBaseCtrl.h"
#include "M2VXControlImpl/SetterLog.h"

namespace SDK4::Control {

using enum CPropertyAccess::Gate;

unsigned int CM2VXBaseControl::GetBrightness() {
    SDK4_LOG_CALL();
    return access.Get(table.brightness, &CRT6Camera::GetBrightness);
}

void CM2VXBaseControl::SetBrightness(unsigned int brightness) {
    SDK4_LOG_SETTER(brightness);
    access.SetThenReport(table.brightness, brightness, &CRT6Camera::SetBrightness, &CRT6Camera::GetBrightness);
}

unsigned int CM2VXBaseControl::GetContrast() {
    SDK4_LOG_CALL();
    return access.Get(table.contrast, &CRT6Camera::GetContrast);
}

void CM2VXBaseControl::SetContrast(unsigned int contrast) {
    SDK4_LOG_SETTER(contrast);
    access.SetThenReport(table.contrast, contrast, &CRT6Camera::SetContrast, &CRT6Camera::GetContrast);
}

unsigned int CM2VXBaseControl::GetSharpness() {
    SDK4_LOG_CALL();
    return access.Get(table.sharpness, &CRT6Camera::GetSharpness);
}

void CM2VXBaseControl::SetSharpness(unsigned int sharpness) {
    SDK4_LOG_SETTER(sharpness);
    access.SetThenReport(table.sharpness, sharpness, &CRT6Camera::SetSharpness, &CRT6Camera::GetSharpness);
}

SDK4_ENUM_HISTOEQUAL CM2VXBaseControl::GetHistogramEqualization() {
    SDK4_LOG_CALL();
    return access.Get(table.histogramEqualization, &CM2VXCamera::GetHistogramEqualization);
}

void CM2VXBaseControl::SetHistogramEqualization(int mode) {
    SDK4_LOG_SETTER(mode);
    access.Set(table.histogramEqualization, mode, &CM2VXCamera::SetHistogramEqualization);
    table.FollowHistogramEqualization();
}

SDK4_ENUM_LUTMODE CM2VXBaseControl::GetLUTMode() {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

void CM2VXBaseControl::SetLUTMode(int /*mode*/) {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

int CM2VXBaseControl::GetLUTInterpolatorIndex() {
    SDK4_LOG_CALL();
    return access.Get(table.gammaIndex, &CRT6Camera::GetLUTInterpolatorIndex);
}

void CM2VXBaseControl::SetLUTInterpolatorIndex(int index) {
    SDK4_LOG_SETTER(index);
    access.Set(table.gammaIndex, index, &CRT6Camera::SetLUTInterpolatorIndex);
}

SDK4_ENUM_SWITCH CM2VXBaseControl::GetNegativeImage() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_SWITCH>(table.negativeImage, &CRT6Camera::GetNegativeImage);
}

void CM2VXBaseControl::SetNegativeImage(int negative) {
    SDK4_LOG_SETTER(negative);
    access.Set(table.negativeImage, negative, &CRT6Camera::SetNegativeImage);
}

SDK4_ENUM_SWITCH CM2VXBaseControl::GetVerticalFlip() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_SWITCH>(table.verticalFlip, &CRT6Camera::GetVerticalFlip);
}

void CM2VXBaseControl::SetVerticalFlip(int flip) {
    SDK4_LOG_SETTER(flip);
    access.Set(table.verticalFlip, flip, &CRT6Camera::SetVerticalFlip);
}

SDK4_ENUM_SWITCH CM2VXBaseControl::GetHorizontalFlip() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_SWITCH>(table.horizontalFlip, &CRT6Camera::GetHorizontalFlip);
}

void CM2VXBaseControl::SetHorizontalFlip(int flip) {
    SDK4_LOG_SETTER(flip);
    access.Set(table.horizontalFlip, flip, &CRT6Camera::SetHorizontalFlip);
}

SDK4_ENUM_SWITCH CM2VXBaseControl::GetLastImageHold() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_SWITCH>(table.lastImageHold, &CRT6Camera::GetLastImageHold);
}

void CM2VXBaseControl::SetLastImageHold(int hold) {
    SDK4_LOG_SETTER(hold);
    access.Set(table.lastImageHold, hold, &CRT6Camera::SetLastImageHold);
}

SDK4_ENUM_SWITCH CM2VXBaseControl::GetImageSubtraction() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_SWITCH>(table.imageSubtraction, &CRT6Camera::GetImageSubtraction);
}

void CM2VXBaseControl::SetImageSubtraction(int subtract) {
    SDK4_LOG_SETTER(subtract);
    access.Set(table.imageSubtraction, subtract, &CRT6Camera::SetImageSubtraction);
}

SDK4_ENUM_RECURSIVEFILTER CM2VXBaseControl::GetRecursiveFilter() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_RECURSIVEFILTER>(table.recursiveFilter, &CRT6Camera::GetRecursiveFilter);
}

void CM2VXBaseControl::SetRecursiveFilter(int strength) {
    SDK4_LOG_SETTER(strength);
    access.Set(table.recursiveFilter, strength, &CRT6Camera::SetRecursiveFilter);
    table.FollowRecursiveFilter();
}

void CM2VXBaseControl::StoreImage(int store) {
    SDK4_LOG_SETTER(store);
    access.Set(table.imageStore, store, &CRT6Camera::StoreImage);
}

SDK4_ENUM_SWITCH CM2VXBaseControl::GetAutoMotionDetection() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_SWITCH>(table.autoMotionDetection, &CM2VXCamera::GetAutoMotionDetection);
}

void CM2VXBaseControl::SetAutoMotionDetection(int detect) {
    SDK4_LOG_SETTER(detect);
    access.Set<Enabled>(table.autoMotionDetection, detect, &CM2VXCamera::SetAutoMotionDetection);
}

SDK4_ENUM_COLORCODING CM2VXBaseControl::GetColorCoding() {
    SDK4_LOG_CALL();
    return access.Get<SDK4_ENUM_COLORCODING>(table.colorCoding, &CRT6Camera::GetColorCoding);
}

void CM2VXBaseControl::SetColorCoding(SDK4_ENUM_COLORCODING /*coding*/) {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

SDK4_KSIZE CM2VXBaseControl::GetImageSize() {
    SDK4_LOG_CALL();
    return access.Get(table.imageSize, &CRT6Camera::GetImageSize);
}

} // namespace SDK4::Control
