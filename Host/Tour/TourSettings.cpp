#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

namespace {

void TourUnserved(Tour& tour, IBasicSettings& settings) {
    tour.Note("What this family does not serve.");
    char firmware[] = "firmware";
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(settings.Restart()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(settings.SetUpdateFile(firmware, sizeof firmware)));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(settings.GetUpdateStatus()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(settings.GetDevice({})));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(settings.SetDevice({}, 1)));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(settings.GetErrorRegisterStatus()));
}

} // namespace

void TourSettings(Tour& tour) {
    auto& settings = tour.Section<IBasicSettings>("IBasicSettings", "settings sets and start-up");
    auto& enhancement = tour.Get<IDigitalEnhancement>();
    tour.Note("Set 1 keeps a contrast of 200.");
    tour.Do(STEP(enhancement.SetContrast(200)));
    tour.Do(STEP(settings.SaveSettings(1)));
    tour.Note("The contrast changes; it is cached.");
    tour.Do(STEP(enhancement.SetContrast(50)));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Note("Loading set 1 makes all that it may have changed stale: values are read afresh, once.");
    tour.Do(STEP(settings.LoadSettings(1)));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Note("Set 0 holds the factory's settings: it can be loaded, not saved.");
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(settings.SaveSettings(0)));
    tour.Do(STEP(settings.LoadSettings(0)));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Note("Which set the camera starts with, and how it works now, is never cached.");
    tour.Do(STEP(settings.SetStartupSettings(1)));
    tour.Do(STEP(settings.GetStartupSettings()));
    tour.Do(STEP(settings.GetOperationMode()));
    TourUnserved(tour, settings);
}

void TourWithoutCaches(Tour& tour) {
    tour.Heading("Camera index 2", "the same camera, opened a second time without caches");
    const Control second = tour.OpenAgain(2);
    auto& gain = Tour::Of<IGain>(second);
    tour.Note("Every read asks the camera, also after a write.");
    tour.Do(STEP(gain.SetGain(42)));
    tour.Do(STEP(gain.GetGain()));
    tour.Do(STEP(gain.GetGain()));
    tour.Note("An automatic mode that goes off leaves its value cached, here too.");
    tour.Do(STEP(gain.SetAGC(SDK4_AGC_OFF)));
    tour.Do(STEP(gain.GetGain()));
    tour.Do(STEP(gain.GetGain()));
}

} // namespace Host
