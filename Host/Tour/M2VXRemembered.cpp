#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

namespace {

void TourReads(Tour& tour, const Control& control) {
    auto& gain = Tour::Of<M2VX::IGain>(control);
    auto& analysis = Tour::Of<M2VX::ISignalAnalysis>(control);
    auto& pixels = Tour::Of<M2VX::IDefectPixel>(control);
    tour.Do(STEP(gain.GetGain()));
    tour.Do(STEP(analysis.GetMeasureWindow()));
    tour.Do(STEP(pixels.GetDefectPixel({.pair = 1, .position = 0})));
}

void TourFlags(Tour& tour, const Control& control) {
    auto& state = Tour::Of<IPropertyState>(control);
    auto& exposure = Tour::Of<M2VX::IExposure>(control);
    auto& gain = Tour::Of<M2VX::IGain>(control);
    tour.Note("The flags follow the modes that were read. What is disabled is not read either, but for gain and\n"
              "exposure, which the camera moves by itself.");
    tour.Do(STEP(state.GetEnabled("exposure")));
    tour.Do(STEP(exposure.GetExposure()));
    tour.Do(STEP(state.GetEnabled("automaticlevel")));
    tour.Refused(SDK4_ERR_DISABLED, STEP(gain.GetAutomaticLevel()));
}

void TourWrites(Tour& tour, const Control& control) {
    auto& gain = Tour::Of<M2VX::IGain>(control);
    auto& motor = Tour::Of<M2VX::IMotorControl>(control);
    auto& tests = Tour::Of<IInternalTests>(control);
    tour.Note("Setters reach the camera all the same, and remember what they wrote or read back.");
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(gain.SetGain(600)));
    tour.Do(STEP(gain.GetGain()));
    tour.Note("A motor moves by itself: what was written is not remembered, what was read at opening is.");
    tour.Do(STEP(motor.SetMotorControl(255, 7)));
    tour.Do(STEP(motor.GetMotorControl(255)));
    tour.Note("Status, temperature and lens have no property: they are always read.");
    tour.Do(STEP(tests.GetTemperature(0)));
}

void TourStale(Tour& tour, const Control& control) {
    auto& settings = Tour::Of<IBasicSettings>(control);
    auto& enhancement = Tour::Of<IDigitalEnhancement>(control);
    tour.Note("What is remembered is not refreshed when the camera changes by itself, nor by a settings load.");
    tour.Do(STEP(enhancement.SetContrast(111)));
    tour.Do(STEP(settings.LoadSettings(0)));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Note("Opened anew, the camera is asked again. The rest of the index does not matter: 0x13 is 3, too.");
    const Control anew = tour.OpenAgain(0x13);
    auto& contrast = Tour::Of<IDigitalEnhancement>(anew);
    tour.Do(STEP(contrast.GetContrast()));
}

} // namespace

void TourM2VXRemembered(Tour& tour) {
    auto& state = tour.Get<IPropertyState>();
    tour.Heading("Camera index 3", "the same camera, opened a second time by a control that remembers");
    tour.Do(STEP(state.RemoveCallback(nullptr)));
    tour.Note("The low four bits of the index decide: with 0 to 2 every call reads the camera, with more all settings\n"
              "are read once, now.");
    const Control reading = tour.OpenAgain(0);
    const Control remembering = tour.OpenAgain(3);
    tour.Note("Index 0: every read costs one access or two.");
    TourReads(tour, reading);
    tour.Note("Index 3: reads cost nothing.");
    TourReads(tour, remembering);
    TourFlags(tour, remembering);
    TourWrites(tour, remembering);
    TourStale(tour, remembering);
}

} // namespace Host
