#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourM2VXIdentity(Tour& tour) {
    auto& control = tour.Section<SDK4::IControl>("IControl", "which design of control this is");
    tour.Do(STEP(control.GetClassID()));
    tour.Note("It was opened with index 0: ten network registers were read for the log, no setting.");

    auto& gufi = tour.Section<IGufi>("IGufi", "who the camera is");
    tour.Note("Identity is read from the camera every time. A text lies behind a leading word.");
    tour.Do(STEP(gufi.GetDeviceName()));
    tour.Do(STEP(gufi.GetDeviceName()));
    tour.Do(STEP(gufi.GetSerialNumber()));
    tour.Do(STEP(gufi.GetFunctionModelID()));
    tour.Note("Versions are two numbers each.");
    tour.Do(STEP(gufi.GetFunctionModelVersion()));
    tour.Do(STEP(gufi.GetRevision()));
    tour.Do(STEP(gufi.GetSoftwareVersion()));
    tour.Do(STEP(gufi.GetFirmwareVersion()));
    tour.Note("What this family does not tell.");
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(gufi.GetSoftwareBuild()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(gufi.GetHardwareVersion()));
}

void TourM2VXFormat(Tour& tour) {
    auto& format = tour.Section<ISignalFormat>("ISignalFormat", "pixel coding and image size");
    tour.Do(STEP(format.GetColorCoding()));
    tour.Do(STEP(format.GetImageSize()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(format.SetColorCoding(SDK4_COLORCODING_MONO8)));

    auto& stream = tour.Section<IDSMediaType>("IDSMediaType, IVideoFrame", "the stream that the camera delivers");
    SDK4::IMediaType* media = nullptr;
    tour.Do(STEP(media = stream.GetMediaType()));
    if (auto* const video = dynamic_cast<SDK4::IVideoFrame*>(media)) {
        tour.Do(STEP(video->GetType()));
        tour.Do(STEP(video->GetWidth()));
        tour.Do(STEP(video->GetHeight()));
        tour.Note("A pixel format of the GigE Vision standard, made from the colour coding.");
        tour.Do(STEP(video->GetFormat()));
        tour.Note("This family does not tell how long a frame lasts.");
        tour.Do(STEP(video->GetTimePerFrame()));
    }
}

void TourM2VXStream(Tour& tour) {
    auto& stream = tour.Section<SDK4::IStreamControl>("IStreamControl", "starts and stops image acquisition");
    auto& camera = tour.Get<IGigECamera>();
    auto& settings = tour.Get<IBasicSettings>();
    auto& gain = tour.Get<M2VX::IGain>();
    tour.Note("While images are acquired, neither the packets nor all settings at once can be changed, ...");
    tour.Do(STEP(stream.Start()));
    tour.Refused(SDK4_ERR_ACQUISITIONRUNNING, STEP(camera.SetPacketSize(8000)));
    tour.Refused(SDK4_ERR_ACQUISITIONRUNNING, STEP(camera.SetPacketDelay(100)));
    tour.Refused(SDK4_ERR_ACQUISITIONRUNNING, STEP(settings.LoadSettings(0)));
    tour.Note("... but be read, and saved; and single settings can be changed.");
    tour.Do(STEP(camera.GetPacketSize()));
    tour.Do(STEP(settings.SaveSettings(2)));
    tour.Do(STEP(gain.SetGain(20)));
    tour.Do(STEP(stream.Stop()));
    tour.Do(STEP(camera.SetPacketSize(8000)));
    tour.Do(STEP(settings.LoadSettings(0)));
}

} // namespace Host
