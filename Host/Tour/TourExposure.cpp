#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourExposure(Tour& tour) {
    auto& exposure = tour.Section<IExposure>("IExposure", "exposure mode, exposure time, automatic exposure");
    tour.Do(STEP(exposure.GetExposureMode()));
    tour.Note("A mode that does not exist is refused before the camera is touched.");
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(exposure.SetExposureMode(9)));

    tour.Note("A camera may round an exposure time: after a write, the next read asks the camera once.");
    tour.Do(STEP(exposure.SetExposure({.base = 0, .counter = 5000})));
    tour.Do(STEP(exposure.GetExposure()));
    tour.Do(STEP(exposure.GetExposure()));

    tour.Note("A number out of range is clamped, written, and reported. The camera now holds the nearest one, ...");
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(exposure.SetAutoExposureLevel(300)));
    tour.Note("... and the control knows that without asking.");
    tour.Do(STEP(exposure.GetAutoExposureLevel()));

    tour.Note("Automatic exposure owns the exposure time: writing it is locked, and every read asks the camera.");
    tour.Do(STEP(exposure.SetAET(1)));
    tour.Refused(SDK4_ERR_CANTSETFEATURE, STEP(exposure.SetExposure({.base = 0, .counter = 100})));
    tour.Do(STEP(exposure.GetExposure()));
    tour.Do(STEP(exposure.GetExposure()));
    tour.Do(STEP(exposure.SetAET(SDK4_AET_OFF)));
    tour.Do(STEP(exposure.GetAET()));
    tour.Do(STEP(exposure.SetExposure({.base = 0, .counter = 20000})));
}

void TourGain(Tour& tour) {
    auto& gain = tour.Section<IGain>("IGain", "gain and automatic gain control");
    tour.Note("A written gain is served from the cache.");
    tour.Do(STEP(gain.SetGain(100)));
    tour.Do(STEP(gain.GetGain()));
    tour.Note("Out of range: clamped to 511, written, reported.");
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(gain.SetGain(512)));
    tour.Do(STEP(gain.GetGain()));
    tour.Note("The automatic mode locks the gain.");
    tour.Do(STEP(gain.SetAGC(1)));
    tour.Do(STEP(gain.GetAGC()));
    tour.Refused(SDK4_ERR_CANTSETFEATURE, STEP(gain.SetGain(5)));
    tour.Do(STEP(gain.SetAGC(SDK4_AGC_OFF)));
}

void TourTiming(Tour& tour) {
    auto& timing = tour.Section<ITiming>("ITiming", "timing of the sensor");
    tour.Do(STEP(timing.GetPixelClock()));
    tour.Do(STEP(timing.GetReadoutTime()));
    tour.Do(STEP(timing.GetFrameDuration()));
    tour.Do(STEP(timing.GetFrameDuration()));
    tour.Note("Frame duration depends on readout time: writing the one makes the other stale, so it is read again.");
    tour.Do(STEP(timing.SetReadoutTime(12000)));
    tour.Do(STEP(timing.GetFrameDuration()));

    auto& slowScan = tour.Section<ISlowScan>("ISlowScan", "slow readout, which this family does not serve");
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(slowScan.GetSlowScan()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(slowScan.SetSlowScan(SDK4_SWITCH_ON)));
}

void TourTrigger(Tour& tour) {
    auto& trigger = tour.Section<ITrigger>("ITrigger", "software trigger, trigger timer and delay");
    auto& exposure = tour.Get<IExposure>();
    tour.Note("The trigger delay is available in exposure mode reset-restart only.");
    tour.Refused(SDK4_ERR_DISABLED, STEP(trigger.GetTriggerDelay()));
    tour.Do(STEP(exposure.SetExposureMode(SDK4_EXPOSUREMODE_RESETRESTART)));
    tour.Do(STEP(trigger.SetTriggerDelay({.base = 1, .counter = 250})));
    tour.Do(STEP(trigger.GetTriggerDelay()));
    tour.Do(STEP(trigger.SetTriggerTimer(10)));
    tour.Do(STEP(trigger.GetTriggerTimer()));
    tour.Note("A software trigger first waits for one readout time.");
    tour.Do(STEP(trigger.SetSoftTrigger(1)));
    tour.Do(STEP(trigger.GetSoftTrigger()));
    tour.Do(STEP(exposure.SetExposureMode(SDK4_EXPOSUREMODE_FREERUNNING)));
}

} // namespace Host
