#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourM2VXOverlay(Tour& tour) {
    auto& overlay = tour.Section<M2VX::IOverlay>("M2VX::IOverlay", "three overlays, 0 to 2");
    auto& state = tour.Get<IPropertyState>();
    tour.Note("The overlays share their registers: the first word of each block says which one is meant.");
    tour.Do(STEP(overlay.SetOverlayShow(2, SDK4_SWITCH_ON)));
    tour.Do(STEP(overlay.GetOverlayShow(2)));
    tour.Do(STEP(overlay.GetOverlayShow(0)));
    tour.Note("A position is relative to the image centre; both parts are properties of their own.");
    tour.Do(STEP(overlay.SetOverlayPosition(1, {.xpos = -20, .ypos = 30})));
    tour.Do(STEP(overlay.GetOverlayPosition(1)));
    tour.Note("The overlays' properties share a name. An index tells them apart, without one the first is meant.");
    tour.Do(STEP(state.IsIndexed("overlayposition.posx")));
    tour.Do(STEP(state.GetIntValue(1, "overlayposition.posx")));
    tour.Do(STEP(state.GetIntValue("overlayposition.posx")));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(overlay.SetOverlayPosition(1, {.xpos = -501, .ypos = 30})));
    tour.Note("Style and size are not written when they are out of range.");
    tour.Do(STEP(overlay.SetOverlayStyle(0, {.color = 2, .style = 1})));
    tour.Do(STEP(overlay.GetOverlayStyle(0)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(overlay.SetOverlayStyle(0, {.color = 4, .style = 1})));
    tour.Do(STEP(overlay.SetOverlaySize(0, {.width = 2, .length = 40})));
    tour.Do(STEP(overlay.GetOverlaySize(0)));
    tour.Note("There is no overlay 3, and no number above it.");
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(overlay.GetOverlayShow(3)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(overlay.GetOverlayShow(4)));
}

void TourM2VXMeasureWindow(Tour& tour) {
    auto& analysis = tour.Section<M2VX::ISignalAnalysis>("M2VX::ISignalAnalysis", "the circular measure window");
    tour.Do(STEP(analysis.SetMeasureFrameShow(SDK4_SWITCH_ON)));
    tour.Do(STEP(analysis.GetMeasureFrameShow()));
    tour.Note("Five words in one block, without an index; a window with a part out of range comes back clamped.");
    tour.Do(STEP(analysis.GetMeasureWindow()));
    tour.Do(STEP(analysis.SetMeasureWindow({.radius = 80, .width = 1, .xpos = -40, .ypos = 0, .vstretch = 128})));
    tour.Refused(SDK4_ERR_OUTOFRANGE,
                 STEP(analysis.SetMeasureWindow({.radius = 80, .width = 0, .xpos = -600, .ypos = 0, .vstretch = 128})));
    tour.Do(STEP(analysis.GetMeasureWindow()));
}

void TourM2VXCorrection(Tour& tour) {
    auto& correction = tour.Section<M2VX::IImageCorrection>("M2VX::IImageCorrection", "shading and blanking");
    tour.Note("Four channels, signed; disabled while the mode is off.");
    tour.Do(STEP(correction.SetShadingCorrectionMode(0)));
    tour.Refused(SDK4_ERR_DISABLED, STEP(correction.SetShadingCorrection(3, -1)));
    tour.Do(STEP(correction.SetShadingCorrectionMode(1)));
    tour.Do(STEP(correction.GetShadingCorrectionMode()));
    tour.Do(STEP(correction.SetShadingCorrection(3, -1)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(correction.SetShadingCorrection(3, -200)));
    tour.Do(STEP(correction.GetShadingCorrection(3)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(correction.GetShadingCorrection(4)));

    tour.Note("Outside a circle the image is blanked, if the mode says so.");
    tour.Do(STEP(correction.SetCircularBlankingMode(0)));
    tour.Refused(SDK4_ERR_DISABLED, STEP(correction.SetCircularBlankingSize(100)));
    tour.Do(STEP(correction.SetCircularBlankingMode(1)));
    tour.Do(STEP(correction.GetCircularBlankingMode()));
    tour.Do(STEP(correction.SetCircularBlankingSize(100)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(correction.SetCircularBlankingSize(0)));
    tour.Do(STEP(correction.GetCircularBlankingSize()));
    tour.Do(STEP(correction.SetCircularBlankingPosition({.xpos = 500, .ypos = 520})));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(correction.SetCircularBlankingPosition({.xpos = 500, .ypos = 1024})));
    tour.Do(STEP(correction.GetCircularBlankingPosition()));
}

} // namespace Host
