#include "OrvikControlImpl/Predicates.h"

#include "Log.h"
#include "OrvikControlImpl/KStreamControl.h"
#include "OrvikControlImpl/Names.h"

#include <SDK4/Enums.h>

#include <cstdint>

namespace SDK4::Control {

namespace {

// Capability bits of the function-model id.
constexpr std::uint32_t colorBit = 0x00010000;
constexpr std::uint32_t memoryBit = 0x00020000;
constexpr std::uint32_t histogramBit = 0x00040000;

bool HasModelBit(const CFeatureList& features, std::uint32_t bit) {
    return (features.GetValue<unsigned int>(Name::FunctionModelId) & bit) != 0;
}

int ReadExposureMode(const CFeatureList& features) { return features.GetValue<int>(Name::ExposureMode); }

} // namespace

bool CTLParamsLocked::GetValue() { return stream->IsRunning(); }

SDK4_KPOSITION CMaxOverlayPosition::GetValue() {
    SDK4_LOG_CALL();
    const auto area = features->GetValue<SDK4_KAREA>(Name::ReadoutArea);
    return {area.endx - area.startx, area.endy - area.starty};
}

bool CIsNotColorCodingRaw::GetValue() {
    const int coding = features->GetValue<int>(Name::ColorCoding);
    return coding != SDK4_COLORCODING_RAW8 && coding != SDK4_COLORCODING_RAW12 && coding != SDK4_COLORCODING_RAW14;
}

bool CIsAutomaticOn::GetValue() { return features->GetValue<int>(watched) != 0; }

bool CIsColorCamera::GetValue() { return HasModelBit(*features, colorBit); }
bool CIsMemoryCamera::GetValue() { return HasModelBit(*features, memoryBit); }
bool CIsHistogramCamera::GetValue() { return HasModelBit(*features, histogramBit); }
bool CIsMonoCamera::GetValue() { return !HasModelBit(*features, colorBit); }

bool CIsNotExposuremodeFrameOndemand::GetValue() {
    return ReadExposureMode(*features) != SDK4_EXPOSUREMODE_FRAMEONDEMAND;
}

bool CIsExposureModeFreeRunning::GetValue() {
    const int mode = ReadExposureMode(*features);
    return mode == SDK4_EXPOSUREMODE_FREERUNNING || mode == SDK4_EXPOSUREMODE_FREERUNNING2;
}

bool CIsExposureModeResetRestart::GetValue() { return ReadExposureMode(*features) == SDK4_EXPOSUREMODE_RESETRESTART; }

void AddPredicates(CFeatureList* features, const KStreamControl* stream) {
    // clang-format off
    features->AddEntry(new CTLParamsLocked                (Name::TLParamsLocked,                 features, stream));
    features->AddEntry(new CMaxOverlayPosition            (Name::OverlayPositionMax,             features));
    features->AddEntry(new CIsNotColorCodingRaw           (Name::IsNotColorCodingRaw,            features));
    features->AddEntry(new CIsNotExposuremodeFrameOndemand(Name::IsNotExposureModeFrameOnDemand, features));
    features->AddEntry(new CIsAutomaticOn                 (Name::IsAetOn,                        features, Name::Aet));
    features->AddEntry(new CIsAutomaticOn                 (Name::IsAgcOn,                        features, Name::Agc));
    features->AddEntry(new CIsAutomaticOn                 (Name::IsAccOn,                        features, Name::Acc));
    features->AddEntry(new CIsAutomaticOn                 (Name::IsAwbOn,                        features, Name::Awb));
    features->AddEntry(new CIsColorCamera                 (Name::IsColorCamera,                  features));
    features->AddEntry(new CIsMemoryCamera                (Name::IsMemoryCamera,                 features));
    features->AddEntry(new CIsHistogramCamera             (Name::IsHistogramCamera,              features));
    features->AddEntry(new CIsMonoCamera                  (Name::IsMonoCamera,                   features));
    features->AddEntry(new CIsExposureModeFreeRunning     (Name::IsExposureModeFreeRunning,      features));
    features->AddEntry(new CIsExposureModeResetRestart    (Name::IsExposureModeResetRestart,     features));
    // clang-format on
}

} // namespace SDK4::Control
