#include "Topics.h"

namespace Host {

std::span<const Topic> M2VXTopics() {
    static constexpr Topic topics[] = {
        TourM2VXIdentity, TourNetwork,           TourM2VXProperties,  TourM2VXObserver,     TourM2VXGain,
        TourM2VXExposure, TourM2VXBrightness,    TourM2VXEnhancement, TourM2VXMemory,       TourM2VXFormat,
        TourM2VXOverlay,  TourM2VXMeasureWindow, TourM2VXCorrection,  TourM2VXDefectPixels, TourM2VXMotorAndLens,
        TourM2VXTests,    TourM2VXSettings,      TourM2VXStream,      TourM2VXRemembered,
    };
    return topics;
}

} // namespace Host
