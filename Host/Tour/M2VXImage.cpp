#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourM2VXEnhancement(Tour& tour) {
    auto& enhancement = tour.Section<IDigitalEnhancement>("IDigitalEnhancement", "brightness, contrast, sharpness");
    tour.Do(STEP(enhancement.SetBrightness(500)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(enhancement.SetBrightness(20000)));
    tour.Do(STEP(enhancement.GetBrightness()));
    tour.Do(STEP(enhancement.SetContrast(80)));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Do(STEP(enhancement.SetSharpness(10)));
    tour.Do(STEP(enhancement.GetSharpness()));
    tour.Note("Histogram equalisation 1 and 2 own brightness and contrast.");
    tour.Do(STEP(enhancement.SetHistogramEqualization(2)));
    tour.Do(STEP(enhancement.GetHistogramEqualization()));
    tour.Note("A trap, as with the thresholds: the value reaches the camera, then the call fails.");
    tour.Refused(SDK4_ERR_DISABLED, STEP(enhancement.SetBrightness(77)));
    tour.Do(STEP(enhancement.GetBrightness()));
    tour.Do(STEP(enhancement.SetHistogramEqualization(SDK4_HISTOEQUAL_OFF)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(enhancement.SetHistogramEqualization(4)));

    auto& lut = tour.Section<ILookUpTable>("ILookUpTable", "gamma curve and negative image");
    tour.Note("0 to 12; what is outside is not written.");
    tour.Do(STEP(lut.SetLUTInterpolatorIndex(3)));
    tour.Do(STEP(lut.GetLUTInterpolatorIndex()));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(lut.SetLUTInterpolatorIndex(-1)));
    tour.Do(STEP(lut.SetNegativeImage(SDK4_SWITCH_ON)));
    tour.Do(STEP(lut.GetNegativeImage()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(lut.GetLUTMode()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(lut.SetLUTMode(0)));
}

void TourM2VXMemory(Tour& tour) {
    auto& memory = tour.Section<IMemory>("IMemory", "functions of the image memory");
    tour.Do(STEP(memory.SetVerticalFlip(SDK4_SWITCH_ON)));
    tour.Do(STEP(memory.GetVerticalFlip()));
    tour.Do(STEP(memory.SetHorizontalFlip(SDK4_SWITCH_ON)));
    tour.Do(STEP(memory.GetHorizontalFlip()));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(memory.SetHorizontalFlip(2)));
    tour.Do(STEP(memory.SetLastImageHold(SDK4_SWITCH_OFF)));
    tour.Do(STEP(memory.GetLastImageHold()));
    tour.Do(STEP(memory.StoreImage(SDK4_SWITCH_ON)));
    tour.Do(STEP(memory.SetImageSubtraction(SDK4_SWITCH_ON)));
    tour.Do(STEP(memory.GetImageSubtraction()));
    tour.Note("Motion detection works on the recursive filter, and is disabled without it.");
    tour.Do(STEP(memory.SetRecursiveFilter(4)));
    tour.Do(STEP(memory.GetRecursiveFilter()));
    tour.Do(STEP(memory.SetAutoMotionDetection(SDK4_SWITCH_ON)));
    tour.Do(STEP(memory.GetAutoMotionDetection()));
    tour.Do(STEP(memory.SetRecursiveFilter(SDK4_RECURSIVEFILTER_OFF)));
    tour.Refused(SDK4_ERR_DISABLED, STEP(memory.SetAutoMotionDetection(SDK4_SWITCH_OFF)));
}

} // namespace Host
