#pragma once

#include "Tour.h"

#include <span>

namespace Host {

/// One topic: the sections that belong together.
using Topic = void (*)(Tour&);

/// The topics of a family in their order.
[[nodiscard]] std::span<const Topic> OrvikTopics();
[[nodiscard]] std::span<const Topic> M2VXTopics();

// Each topic leaves the camera as it found it, but for values that no later topic looks at.

// Of both families.
void TourNetwork(Tour& tour);

// Of the Orvik family.
void TourIdentity(Tour& tour);
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

// Of the M2VX family.
void TourM2VXIdentity(Tour& tour);
void TourM2VXProperties(Tour& tour);
void TourM2VXObserver(Tour& tour);
void TourM2VXGain(Tour& tour);
void TourM2VXExposure(Tour& tour);
void TourM2VXBrightness(Tour& tour);
void TourM2VXEnhancement(Tour& tour);
void TourM2VXMemory(Tour& tour);
void TourM2VXFormat(Tour& tour);
void TourM2VXOverlay(Tour& tour);
void TourM2VXMeasureWindow(Tour& tour);
void TourM2VXCorrection(Tour& tour);
void TourM2VXDefectPixels(Tour& tour);
void TourM2VXMotorAndLens(Tour& tour);
void TourM2VXTests(Tour& tour);
void TourM2VXSettings(Tour& tour);
void TourM2VXStream(Tour& tour);
void TourM2VXRemembered(Tour& tour);

} // namespace Host
