#pragma once

#include "Tour.h"

#include <span>

namespace Host {

/// One topic: the sections that belong together.
using Topic = void (*)(Tour&);

/// The topics of the Orvik family in their order.
[[nodiscard]] std::span<const Topic> OrvikTopics();

// Each topic leaves the camera as it found it, but for values that no later topic looks at.
void TourIdentity(Tour& tour);
void TourNetwork(Tour& tour);
void TourRawAccess(Tour& tour);
void TourExposure(Tour& tour);
void TourGain(Tour& tour);
void TourTiming(Tour& tour);
void TourTrigger(Tour& tour);
void TourFormat(Tour& tour);
void TourReadoutArea(Tour& tour);
void TourStream(Tour& tour);
void TourBinning(Tour& tour);
void TourEnhancement(Tour& tour);
void TourColor(Tour& tour);
void TourLookUpTable(Tour& tour);
void TourOverlay(Tour& tour);
void TourSignalAnalysis(Tour& tour);
void TourMemory(Tour& tour);
void TourGPIO(Tour& tour);
void TourInternalTests(Tour& tour);
void TourSettings(Tour& tour);
void TourWithoutCaches(Tour& tour);

} // namespace Host
