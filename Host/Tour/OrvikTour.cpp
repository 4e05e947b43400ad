#include "Topics.h"

namespace Host {

std::span<const Topic> OrvikTopics() {
    static constexpr Topic topics[] = {
        TourIdentity,      TourNetwork,     TourRawAccess,     TourExposure,       TourGain,    TourTiming,
        TourTrigger,       TourFormat,      TourReadoutArea,   TourStream,         TourBinning, TourEnhancement,
        TourColor,         TourLookUpTable, TourOverlay,       TourSignalAnalysis, TourMemory,  TourGPIO,
        TourInternalTests, TourSettings,    TourWithoutCaches,
    };
    return topics;
}

} // namespace Host
