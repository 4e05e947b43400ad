#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourM2VXDefectPixels(Tour& tour) {
    auto& pixels = tour.Section<M2VX::IDefectPixel>("M2VX::IDefectPixel", "the table of defect pixels");
    tour.Note("Pixels come in pairs. To read one, pair and position are written as one register pair, the pair number\n"
              "in the upper half; what is read back leads with both in the order of memory.");
    tour.Do(STEP(pixels.GetDefectPixelCount()));
    tour.Do(STEP(pixels.GetDefectPixel({.pair = 1, .position = 0})));
    tour.Note("To write one, a single block goes to the camera.");
    tour.Do(STEP(pixels.SetDefectPixel({.pair = 1, .position = 0}, {.xpos = 511, .ypos = 44, .mode = 1})));
    tour.Do(STEP(pixels.GetDefectPixel({.pair = 1, .position = 0})));
    tour.Refused(SDK4_ERR_OUTOFRANGE,
                 STEP(pixels.SetDefectPixel({.pair = 1, .position = 1}, {.xpos = 2000, .ypos = 44, .mode = 1})));
    tour.Refused(SDK4_ERR_CANTGETFEATURE, STEP(pixels.GetDefectPixel({.pair = 128, .position = 0})));
    tour.Note("The camera looks for more.");
    tour.Do(STEP(pixels.SetDefectPixelAutoCompensation()));
    tour.Do(STEP(pixels.GetDefectPixelCount()));
    tour.Do(STEP(pixels.GetDefectPixel({.pair = 2, .position = 1})));
    tour.Do(STEP(pixels.SetDefectPixelShow(SDK4_SWITCH_ON)));
    tour.Do(STEP(pixels.GetDefectPixelShow()));
}

void TourM2VXMotorAndLens(Tour& tour) {
    auto& motor = tour.Section<M2VX::IMotorControl>("M2VX::IMotorControl", "256 channels of the motor unit");
    tour.Do(STEP(motor.SetMotorControl(255, 40000)));
    tour.Do(STEP(motor.GetMotorControl(255)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(motor.SetMotorControl(0, 65536)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(motor.SetMotorControl(256, 0)));

    auto& lens = tour.Section<M2VX::ILensControl>("M2VX::ILensControl", "the lens unit; nothing is checked");
    tour.Do(STEP(lens.GetLensControl(1)));
    tour.Do(STEP(lens.SetLensControl(1, 121)));
    tour.Do(STEP(lens.GetLensControl(1)));
}

void TourM2VXTests(Tour& tour) {
    auto& tests = tour.Section<IInternalTests>("IInternalTests", "test pictures and temperature");
    tour.Note("Two test patterns in one register, which is plain on the other family.");
    tour.Do(STEP(tests.SetTestPattern(1, 6)));
    tour.Do(STEP(tests.GetTestPattern(1)));
    tour.Do(STEP(tests.GetTestPattern(0)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(tests.SetTestPattern(1, 7)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(tests.GetTestPattern(2)));
    tour.Do(STEP(tests.SetTestPattern(1, 0)));
    tour.Note("There is one sensor, whatever its number.");
    tour.Do(STEP(tests.GetTemperaturePCB()));
    tour.Do(STEP(tests.GetTemperature(5)));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(tests.GetPatternGenerator()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(tests.SetPatternGenerator(1)));
}

} // namespace Host
