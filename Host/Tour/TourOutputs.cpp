#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourMemory(Tour& tour) {
    auto& memory = tour.Section<IMemory>("IMemory", "functions of the image memory, on cameras that have one");
    const auto onMemory = [&](const auto& step) { tour.DoIf(tour.memory, SDK4_ERR_NOT_IMPLEMENTED, step); };
    onMemory(STEP(memory.SetVerticalFlip(SDK4_SWITCH_ON)));
    onMemory(STEP(memory.GetVerticalFlip()));
    onMemory(STEP(memory.SetHorizontalFlip(SDK4_SWITCH_ON)));
    onMemory(STEP(memory.GetHorizontalFlip()));
    onMemory(STEP(memory.SetLastImageHold(SDK4_SWITCH_OFF)));
    onMemory(STEP(memory.GetLastImageHold()));
    onMemory(STEP(memory.StoreImage(SDK4_SWITCH_ON)));
    onMemory(STEP(memory.SetImageSubtraction(SDK4_SWITCH_ON)));
    onMemory(STEP(memory.GetImageSubtraction()));
    onMemory(STEP(memory.SetRecursiveFilter(4)));
    onMemory(STEP(memory.GetRecursiveFilter()));
    tour.Note("Motion detection belongs to the other camera family.");
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(memory.GetAutoMotionDetection()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(memory.SetAutoMotionDetection(SDK4_SWITCH_ON)));
}

void TourGPIO(Tour& tour) {
    auto& gpio = tour.Section<IGPIO>("IGPIO", "six general-purpose I/O lines, 0 to 5");
    tour.Do(STEP(gpio.GetIoMode(5)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(gpio.GetIoMode(6)));
    tour.Note("Per line: its direction, what it carries, its polarity, its delay.");
    tour.Do(STEP(gpio.SetIoMode(0, 1)));
    tour.Do(STEP(gpio.SetIoPort(0, 4)));
    tour.Do(STEP(gpio.GetIoPort(0)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(gpio.SetIoPort(0, 5)));
    tour.Do(STEP(gpio.SetIoPolarity(0, 1)));
    tour.Do(STEP(gpio.GetIoPolarity(0)));
    tour.Do(STEP(gpio.SetIoDelay(0, 1500)));
    tour.Do(STEP(gpio.GetIoDelay(0)));
}

void TourInternalTests(Tour& tour) {
    auto& tests = tour.Section<IInternalTests>("IInternalTests", "test pictures and temperatures");
    tour.Do(STEP(tests.SetPatternGenerator(1)));
    tour.Do(STEP(tests.GetPatternGenerator()));
    tour.Note("Monochrome models have more pictures than colour ones.");
    tour.DoIf(!tour.color, SDK4_ERR_INVALID_PARAMETER, STEP(tests.SetPatternGenerator(3)));
    tour.Do(STEP(tests.SetPatternGenerator(SDK4_PATTERN_OFF)));
    tour.Note("A temperature is never cached.");
    tour.Do(STEP(tests.GetTemperature(0)));
    tour.Do(STEP(tests.GetTemperature(0)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(tests.GetTemperature(1)));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(tests.GetTemperaturePCB()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(tests.GetTestPattern(0)));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(tests.SetTestPattern(0, 1)));
}

} // namespace Host
