#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

namespace {

void TourAddresses(Tour& tour, IGigECamera& camera) {
    tour.Do(STEP(camera.GetCurrentIPConfig()));
    tour.Do(STEP(camera.GetCurrentIPAddress()));
    tour.Do(STEP(camera.GetCurrentSubnetmask()));
    tour.Do(STEP(camera.GetCurrentDefaultGateway()));
    tour.Note("A persistent address outside the subnet in use would lose the camera: it is ignored, without an error.");
    tour.Do(STEP(camera.EnablePersistentIP("192.168.2.5", "255.255.255.0", "192.168.2.1")));
    tour.Do(STEP(camera.EnablePersistentIP("192.168.1.20", "255.255.255.0", "192.168.1.1")));
    tour.Note("Switched only where the camera supports it: bit 0 persistent address, bit 1 DHCP.");
    tour.Do(STEP(camera.DisablePersistentIP()));
    tour.Do(STEP(camera.DisableDHCP()));
    tour.Do(STEP(camera.EnableDHCP()));
}

void TourPackets(Tour& tour, IGigECamera& camera) {
    tour.Note("Packet sizes are multiples of 4, from 1404 to 65532. A size outside is clamped, written, and reported.");
    tour.Do(STEP(camera.SetPacketSize(1501)));
    tour.Do(STEP(camera.GetPacketSize()));
    tour.Refused(SDK4_ERR_OUTOFRANGE, STEP(camera.SetPacketSize(1000)));
    tour.Do(STEP(camera.GetPacketSize()));
    tour.Note("The packet delay is passed on as it is.");
    tour.Do(STEP(camera.SetPacketDelay(200)));
    tour.Do(STEP(camera.GetPacketDelay()));
}

} // namespace

void TourNetwork(Tour& tour) {
    auto& camera = tour.Section<IGigECamera>("IGigECamera", "how the camera sits on the network");
    tour.Note("These are the bootstrap registers of the GigE Vision standard. They are never cached.");
    tour.Do(STEP(camera.GetGigEVersion()));
    tour.Do(STEP(camera.GetMacAddress()));
    TourAddresses(tour, camera);
    TourPackets(tour, camera);
    tour.Note("Where the description of the camera's registers is to be found.");
    tour.Do(STEP(camera.GetFirstUrl()));
    tour.Do(STEP(camera.GetSecondUrl()));
    tour.Note("The camera keeps 15 characters of its user-defined name.");
    tour.Do(STEP(camera.SetUserDefinedName("on the left of the door")));
    tour.Do(STEP(camera.GetUserDefinedName()));
}

void TourRawAccess(Tour& tour) {
    auto& raw = tour.Section<IGigEVisionPort>("IGigEVisionPort", "raw access to registers and memory");
    tour.Do(STEP(raw.ReadRegister(0x0934)));
    unsigned char buffer[24] = {};
    unsigned int length = sizeof buffer;
    tour.Do(STEP(raw.ReadMem(0x64010000, buffer, &length)));

    tour.Note("Raw access goes past the caches: a value that the control has cached does not follow.");
    auto& gain = tour.Get<IGain>();
    tour.Do(STEP(gain.GetGain()));
    tour.Do(STEP(raw.WriteRegister(0x14010000, 77)));
    tour.Do(STEP(gain.GetGain()));
    unsigned char zero[4] = {};
    length = sizeof zero;
    tour.Do(STEP(raw.WriteMem(0x14010000, zero, &length)));
}

} // namespace Host
