#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourEnhancement(Tour& tour) {
    auto& enhancement = tour.Section<IDigitalEnhancement>("IDigitalEnhancement", "brightness, contrast, sharpness");
    tour.Do(STEP(enhancement.SetBrightness(500)));
    tour.Do(STEP(enhancement.GetBrightness()));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Note("Contrast goes from 32 to 255.");
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(enhancement.SetContrast(31)));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Do(STEP(enhancement.SetSharpness(10)));
    tour.Do(STEP(enhancement.GetSharpness()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(enhancement.GetHistogramEqualization()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(enhancement.SetHistogramEqualization(1)));

    auto& acc = tour.Section<IACC>("IACC", "automatic contrast control");
    tour.Note(
        "While it is on, the camera moves brightness and contrast: locked to write, always read from the camera.");
    tour.Do(STEP(acc.SetACC(2)));
    tour.Do(STEP(acc.GetACC()));
    tour.Refused(SDK4_ERR_CANTSETFEATURE, STEP(enhancement.SetContrast(100)));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Do(STEP(acc.SetACC(SDK4_SWITCH_OFF)));
}

void TourColor(Tour& tour) {
    auto& color = tour.Section<IColor>("IColor", "colour balance, light source, saturation, white set");
    const auto onColor = [&](const auto& step) { tour.DoIf(tour.color, SDK4_ERR_NOT_IMPLEMENTED, step); };
    onColor(STEP(color.GetColorBalance()));
    onColor(STEP(color.SetColorBalance({.red = 120, .green = 100, .blue = 140})));
    onColor(STEP(color.SetColorSaturation(90)));
    onColor(STEP(color.GetColorSaturation()));
    onColor(STEP(color.SetAutoWhiteset(1)));
    onColor(STEP(color.GetAutoWhiteset()));
    if (tour.color) {
        tour.Note("The automatic white set owns the colour balance.");
        tour.Refused(SDK4_ERR_CANTSETFEATURE, STEP(color.SetColorBalance({})));
        tour.Do(STEP(color.SetAutoWhiteset(SDK4_WHITESET_OFF)));
        tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(color.SetColorBalance({.red = 256, .green = 1, .blue = 2})));
        tour.Do(STEP(color.GetColorBalance()));
    }
    tour.Do(STEP(color.SetLightSource(3)));
    tour.Do(STEP(color.GetLightSource()));
    if (tour.color) {
        auto& format = tour.Get<ISignalFormat>();
        tour.Note("Raw pixels know no light source: it is not available in a raw coding.");
        tour.Do(STEP(format.SetColorCoding(SDK4_COLORCODING_RAW14)));
        tour.Refused(SDK4_ERR_DISABLED, STEP(color.GetLightSource()));
        tour.Do(STEP(format.SetColorCoding(SDK4_COLORCODING_RGB8)));
    }
}

void TourLookUpTable(Tour& tour) {
    auto& lut = tour.Section<ILookUpTable>("ILookUpTable", "look-up table and negative image");
    tour.Do(STEP(lut.GetLUTMode()));
    tour.Do(STEP(lut.SetLUTMode(1)));
    tour.Note("A signed number, from -8 to 12.");
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(lut.SetLUTInterpolatorIndex(-9)));
    tour.Do(STEP(lut.GetLUTInterpolatorIndex()));
    tour.Do(STEP(lut.SetNegativeImage(SDK4_SWITCH_ON)));
    tour.Do(STEP(lut.GetNegativeImage()));
}

} // namespace Host
