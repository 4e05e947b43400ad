// Shading correction, circular blanking, defect pixels.

#include "M2VXCameraBaseCtrl.h"
#include "M2VXControlImpl/Bounds.h"
#include "M2VXControlImpl/SetterLog.h"

namespace SDK4::Control {

using enum CPropertyAccess::Gate;

unsigned int CM2VXBaseControl::GetShadingCorrectionMode() {
    SDK4_LOG_CALL();
    return access.Get(table.shadingCorrectionMode, &CM2VXCamera::GetShadingCorrectionMode);
}

void CM2VXBaseControl::SetShadingCorrectionMode(unsigned int mode) {
    SDK4_LOG_SETTER(mode);
    access.Set(table.shadingCorrectionMode, mode, &CM2VXCamera::SetShadingCorrectionMode);
    table.FollowShadingCorrectionMode();
}

int CM2VXBaseControl::GetShadingCorrection(unsigned int channel) {
    SDK4_LOG_CALL();
    return access.Get(At(table.shadingCorrection, channel), &CM2VXCamera::GetShadingCorrection, channel);
}

void CM2VXBaseControl::SetShadingCorrection(unsigned int channel, int correction) {
    SDK4_LOG_SETTER(channel, correction);
    access.SetThenReport<Enabled>(At(table.shadingCorrection, channel), correction, &CM2VXCamera::SetShadingCorrection,
                                  &CM2VXCamera::GetShadingCorrection, channel);
}

unsigned int CM2VXBaseControl::GetCircularBlankingMode() {
    SDK4_LOG_CALL();
    return access.Get(table.circularBlankingMode, &CM2VXCamera::GetCircularBlankingMode);
}

void CM2VXBaseControl::SetCircularBlankingMode(unsigned int mode) {
    SDK4_LOG_SETTER(mode);
    access.Set(table.circularBlankingMode, mode, &CM2VXCamera::SetCircularBlankingMode);
    table.FollowCircularBlankingMode();
}

unsigned int CM2VXBaseControl::GetCircularBlankingSize() {
    SDK4_LOG_CALL();
    return access.Get(table.circularBlankingSize, &CM2VXCamera::GetCircularBlankingSize);
}

void CM2VXBaseControl::SetCircularBlankingSize(unsigned int size) {
    SDK4_LOG_SETTER(size);
    access.SetThenReport<Enabled>(table.circularBlankingSize, size, &CM2VXCamera::SetCircularBlankingSize,
                                  &CM2VXCamera::GetCircularBlankingSize);
}

SDK4_KCIRCULARPOSITION CM2VXBaseControl::GetCircularBlankingPosition() {
    SDK4_LOG_CALL();
    return access.Get(table.circularBlankingPosition, &CM2VXCamera::GetCircularBlankingPosition);
}

void CM2VXBaseControl::SetCircularBlankingPosition(SDK4_KCIRCULARPOSITION position) {
    SDK4_LOG_SETTER(position);
    access.SetThenReport<Enabled>(table.circularBlankingPosition, position, &CM2VXCamera::SetCircularBlankingPosition,
                                  &CM2VXCamera::GetCircularBlankingPosition);
}

CompoundProperty<3>& CM2VXBaseControl::DefectPixelAt(SDK4_KDEFECTPIXELSELECT select) {
    if (select.pair >= CM2VXPropertyTable::defectPixelPairsOfCamera || select.position > 1) {
        SDK4_THROW(SDK4_ERR_CANTGETFEATURE);
    }
    auto& pair = table.defectPixels[select.pair];
    return select.position == 0 ? pair.first : pair.second;
}

SDK4_KDEFECTPIXEL CM2VXBaseControl::GetDefectPixel(SDK4_KDEFECTPIXELSELECT select) {
    SDK4_LOG_CALL();
    return access.Get(DefectPixelAt(select), &CM2VXCamera::GetDefectPixel, select);
}

void CM2VXBaseControl::SetDefectPixel(SDK4_KDEFECTPIXELSELECT select, SDK4_KDEFECTPIXEL pixel) {
    SDK4_LOG_SETTER(select, pixel);
    access.SetThenReport<Enabled>(DefectPixelAt(select), pixel, &CM2VXCamera::SetDefectPixel,
                                  &CM2VXCamera::GetDefectPixel, select);
}

void CM2VXBaseControl::SetDefectPixelAutoCompensation() {
    SDK4_LOG(Info, "Call()");
    access.Check<Enabled>(table.defectPixelAutoCompensation);
    family->SetDefectPixelAutoCompensation();
}

unsigned int CM2VXBaseControl::GetDefectPixelCount() {
    SDK4_LOG_CALL();
    return access.Get(table.defectPixelCount, &CM2VXCamera::GetDefectPixelCount);
}

unsigned int CM2VXBaseControl::GetDefectPixelShow() {
    SDK4_LOG_CALL();
    return access.Get(table.defectPixelShow, &CM2VXCamera::GetDefectPixelShow);
}

void CM2VXBaseControl::SetDefectPixelShow(unsigned int show) {
    SDK4_LOG_SETTER(show);
    access.Set<Enabled>(table.defectPixelShow, show, &CM2VXCamera::SetDefectPixelShow);
}

} // namespace SDK4::Control
