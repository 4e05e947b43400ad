#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourOverlay(Tour& tour) {
    auto& overlay = tour.Section<IOverlay>("IOverlay", "two lines that the camera draws into its image");
    tour.Note("Both lines share their registers: the first word of each block says which line is meant.");
    tour.Do(STEP(overlay.SetOverlayShow(SDK4_OVERLAYSELECT_LINE2, SDK4_SWITCH_ON)));
    tour.Do(STEP(overlay.GetOverlayShow(SDK4_OVERLAYSELECT_LINE1)));
    tour.Do(STEP(overlay.GetOverlayShow(SDK4_OVERLAYSELECT_LINE2)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(overlay.GetOverlayShow(2)));
    tour.Note("A position must lie in the readout area of the moment.");
    tour.Do(STEP(overlay.SetOverlayPosition(0, {.posx = 100, .posy = 50})));
    tour.Do(STEP(overlay.GetOverlayPosition(0)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(overlay.SetOverlayPosition(1, {.posx = 10, .posy = 9999})));
    tour.Do(STEP(overlay.GetOverlayPosition(1)));
    tour.Note("Style and size are passed on as they are.");
    tour.Do(STEP(overlay.SetOverlayStyle(0, {.color = 2, .style = 1})));
    tour.Do(STEP(overlay.GetOverlayStyle(0)));
    tour.Do(STEP(overlay.SetOverlaySize(0, {.width = 2, .length = 40})));
    tour.Do(STEP(overlay.GetOverlaySize(0)));
}

void TourSignalAnalysis(Tour& tour) {
    auto& analysis = tour.Section<ISignalAnalysis>("ISignalAnalysis", "the measure frame and its windows");
    tour.Do(STEP(analysis.SetMeasureFrameShow(SDK4_SWITCH_ON)));
    tour.Do(STEP(analysis.GetMeasureFrameShow()));
    tour.Do(STEP(analysis.SetMeasureFrameColor(1)));
    tour.Do(STEP(analysis.GetMeasureFrameColor()));
    tour.Note("The camera may move a window: after a write it is asked for what it made of it.");
    tour.Do(STEP(
        analysis.SetMeasureWindow(SDK4_MEASUREWINDOWSELECT_2, {.startx = 10, .starty = 10, .endx = 29, .endy = 29})));
    tour.Do(STEP(analysis.GetMeasureWindow(SDK4_MEASUREWINDOWSELECT_2)));
    tour.Do(STEP(analysis.GetMeasureWindow(SDK4_MEASUREWINDOWSELECT_1)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(analysis.GetMeasureWindow(2)));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(analysis.GetMeasureValue(0)));
}

} // namespace Host
