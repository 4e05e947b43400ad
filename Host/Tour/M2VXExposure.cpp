// Exposure, gain and automatic brightness control: modes that switch other properties on and off.

#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourM2VXGain(Tour& tour) {
    auto& gain = tour.Section<M2VX::IGain>("M2VX::IGain", "gain and automatic gain control");
    auto& state = tour.Get<IPropertyState>();
    tour.Do(STEP(state.GetUIntMax("gain")));
    tour.Note("Out of range: written as it is, read back, stored, reported. The camera has clamped it.");
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(gain.SetGain(600)));
    tour.Note("A getter reads the camera every time.");
    tour.Do(STEP(gain.GetGain()));
    tour.Do(STEP(gain.GetGain()));

    tour.Note("The automatic owns the gain: its property is disabled, writing it is refused without an access.");
    tour.Do(STEP(gain.SetAGC(1)));
    tour.Refused(SDK4_ERR_DISABLED, STEP(gain.SetGain(5)));
    tour.Do(STEP(gain.GetGain()));
    tour.Do(STEP(gain.SetAutoGainStopMode(1)));
    tour.Do(STEP(gain.GetAutoGainStopMode()));
    tour.Note("In mode 2 it aims at a level.");
    tour.Refused(SDK4_ERR_DISABLED, STEP(gain.SetAutomaticLevel(50)));
    tour.Do(STEP(gain.SetAGC(2)));
    tour.Do(STEP(gain.SetAutomaticLevel(50)));
    tour.Do(STEP(gain.GetGain()));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(gain.SetAutomaticLevel(101)));
    tour.Do(STEP(gain.GetAutomaticLevel()));
    tour.Note("A mode that does not exist is refused without an access.");
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(gain.SetAGC(3)));
    tour.Do(STEP(gain.GetAGC()));
    tour.Do(STEP(gain.SetAGC(SDK4_AGC_OFF)));
    tour.Do(STEP(gain.SetGain(0)));
}

void TourM2VXExposure(Tour& tour) {
    auto& exposure = tour.Section<M2VX::IExposure>("M2VX::IExposure", "exposure mode and exposure time");
    auto& state = tour.Get<IPropertyState>();
    tour.Note("With index 0 the control has not asked for the mode: everything counts as enabled until one is set.");
    tour.Do(STEP(exposure.GetExposureMode()));
    tour.Do(STEP(state.GetEnabled("exposure")));
    tour.Do(STEP(exposure.SetExposureMode(SDK4_EXPOSUREMODE_FREERUNNING)));
    tour.Refused(SDK4_ERR_DISABLED, STEP(exposure.SetExposure(100)));
    tour.Note("An exposure time can be set in mode reset-restart only.");
    tour.Do(STEP(exposure.SetExposureMode(SDK4_EXPOSUREMODE_RESETRESTART)));
    tour.Do(STEP(exposure.SetExposure(100)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(exposure.SetExposure(5000)));
    tour.Do(STEP(exposure.GetExposure()));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(exposure.SetExposureMode(7)));
    tour.Do(STEP(exposure.SetExposureMode(SDK4_EXPOSUREMODE_FREERUNNING)));

    tour.Note("Status and shutter offset have no property. An offset above the longest exposure is not written.");
    tour.Do(STEP(exposure.GetFODStatus()));
    tour.Do(STEP(exposure.SetTwinModeShutterOffset(12)));
    tour.Do(STEP(exposure.GetTwinModeShutterOffset()));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(exposure.SetTwinModeShutterOffset(2001)));
}

void TourM2VXBrightness(Tour& tour) {
    auto& abc = tour.Section<M2VX::IABC>("M2VX::IABC", "automatic brightness control");
    tour.Note("Mode 1 needs the thresholds, mode 2 the stop mode too. The two thresholds share a name.");
    tour.Do(STEP(abc.SetABC(1)));
    tour.Do(STEP(abc.SetABC(2)));
    tour.Do(STEP(abc.GetABC()));
    tour.Do(STEP(abc.SetABCStopMode(1)));
    tour.Do(STEP(abc.GetABCStopMode()));
    tour.Note("One register holds both thresholds: index and value travel as one pair.");
    tour.Do(STEP(abc.SetABCThreshold(1, 200)));
    tour.Do(STEP(abc.GetABCThreshold(1)));
    tour.Do(STEP(abc.GetABCThreshold(0)));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(abc.SetABCThreshold(0, 2000)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(abc.SetABCThreshold(2, 0)));
    tour.Do(STEP(abc.GetABCXRLevel()));
    tour.Note(
        "A trap: the setter of a threshold does not ask whether it is enabled. It reaches the camera, then fails.");
    tour.Do(STEP(abc.SetABC(0)));
    tour.Refused(SDK4_ERR_DISABLED, STEP(abc.SetABCThreshold(0, 358)));
    tour.Do(STEP(abc.GetABCThreshold(0)));
}

} // namespace Host
