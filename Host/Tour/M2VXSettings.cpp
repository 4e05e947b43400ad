#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourM2VXSettings(Tour& tour) {
    auto& settings = tour.Section<IBasicSettings>("IBasicSettings", "settings sets, start-up, device registers");
    auto& enhancement = tour.Get<IDigitalEnhancement>();
    auto& state = tour.Get<IPropertyState>();
    tour.Note("Set 1 keeps a contrast of 200.");
    tour.Do(STEP(enhancement.SetContrast(200)));
    tour.Do(STEP(settings.SaveSettings(1)));
    tour.Do(STEP(enhancement.SetContrast(50)));
    tour.Note("Loading it tells the observer nothing: the control does not ask what the camera has loaded.");
    tour.Do(STEP(settings.LoadSettings(1)));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Do(STEP(state.GetUIntValue("contrast")));
    tour.Note("Set 0 holds the factory's settings: it can be loaded, not saved.");
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(settings.SaveSettings(0)));
    tour.Do(STEP(settings.LoadSettings(0)));
    tour.Do(STEP(enhancement.GetContrast()));
    tour.Note("The camera starts with the set that it is told.");
    tour.Do(STEP(settings.SetStartupSettings(1)));
    tour.Do(STEP(settings.GetStartupSettings()));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(settings.SetStartupSettings(3)));
    tour.Do(STEP(settings.Restart()));
    tour.Do(STEP(enhancement.GetContrast()));

    tour.Note("Device registers lie behind a selection of three words; what they mean is the camera's business.");
    tour.Do(STEP(settings.GetDevice({.value1 = 1, .value2 = 1, .value3 = 0})));
    tour.Do(STEP(settings.SetDevice({.value1 = 1, .value2 = 1, .value3 = 0}, 65)));
    tour.Do(STEP(settings.GetDevice({.value1 = 1, .value2 = 0, .value3 = 0})));
    tour.Do(STEP(settings.GetOperationMode()));
    tour.Do(STEP(settings.GetErrorRegisterStatus()));
    tour.Note("This family is not updated through the library.");
    char firmware[] = "firmware";
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(settings.SetUpdateFile(firmware, sizeof firmware)));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(settings.GetUpdateStatus()));
}

} // namespace Host
