#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourIdentity(Tour& tour) {
    auto& control = tour.Section<SDK4::IControl>("IControl", "which design of control this is");
    tour.Do(STEP(control.GetClassID()));

    auto& gufi = tour.Section<IGufi>("IGufi", "who the camera is");
    tour.Note("A text lies behind a leading word. The first read goes to the camera, ...");
    tour.Do(STEP(gufi.GetDeviceName()));
    tour.Note("... the second is answered from the control's cache and costs nothing.");
    tour.Do(STEP(gufi.GetDeviceName()));
    tour.Note("So it is with the rest.");
    tour.Do(STEP(gufi.GetSerialNumber()));
    tour.Do(STEP(gufi.GetSoftwareBuild()));
    tour.Note("Bits 16, 17 and 18 say: a colour camera, has image memory, has histograms.");
    unsigned int id = 0;
    tour.Do(STEP(id = gufi.GetFunctionModelID()));
    tour.color = (id & 1U << 16) != 0;
    tour.memory = (id & 1U << 17) != 0;
    tour.Note("Versions are two numbers each.");
    tour.Do(STEP(gufi.GetFunctionModelVersion()));
    tour.Do(STEP(gufi.GetRevision()));
    tour.Do(STEP(gufi.GetSoftwareVersion()));
    tour.Do(STEP(gufi.GetHardwareVersion()));
    tour.Do(STEP(gufi.GetFirmwareVersion()));
}

} // namespace Host
