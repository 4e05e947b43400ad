#include "Topics.h"

namespace Host {

using namespace SDK4::Control;

void TourFormat(Tour& tour) {
    auto& format = tour.Section<ISignalFormat>("ISignalFormat", "pixel coding and image size");
    tour.Do(STEP(format.GetColorCoding()));
    tour.Do(STEP(format.GetImageSize()));
    tour.Note("Colour models know codings that monochrome ones refuse.");
    tour.DoIf(tour.color, SDK4_ERR_INVALID_PARAMETER, STEP(format.SetColorCoding(SDK4_COLORCODING_BGR8)));
    tour.Do(STEP(format.SetColorCoding(SDK4_COLORCODING_MONO12PACKED)));
    tour.Note("The coding is served from the cache, the image size that depends on it is read again.");
    tour.Do(STEP(format.GetColorCoding()));
    tour.Do(STEP(format.GetImageSize()));

    auto& stream = tour.Section<IDSMediaType>("IDSMediaType, IVideoFrame", "the stream that the camera delivers");
    SDK4::IMediaType* media = nullptr;
    tour.Do(STEP(media = stream.GetMediaType()));
    if (auto* const video = dynamic_cast<SDK4::IVideoFrame*>(media)) {
        tour.Note("The description asks the control, so what is cached costs nothing here either.");
        tour.Do(STEP(video->GetType()));
        tour.Do(STEP(video->GetWidth()));
        tour.Do(STEP(video->GetHeight()));
        tour.Note("A pixel format of the GigE Vision standard, made from the colour coding.");
        tour.Do(STEP(video->GetFormat()));
        tour.Do(STEP(video->GetTimePerFrame()));
    }
}

void TourReadoutArea(Tour& tour) {
    auto& roa = tour.Section<IRoa>("IRoa", "the part of the sensor that is read out");
    tour.Note("One register holds all three limits: an index is written, then index and area are read.");
    tour.Do(STEP(roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_ACTIVE)));
    tour.Do(STEP(roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_MIN)));
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(roa.GetReadoutAreaLimits(3)));

    tour.Note("Each corner must lie within the limits. The smallest are cached by now, the largest are read once.");
    tour.Do(STEP(roa.SetReadoutArea({.startx = 0, .starty = 0, .endx = 1279, .endy = 1023})));
    tour.Do(STEP(roa.GetReadoutArea()));
    auto& format = tour.Get<ISignalFormat>();
    tour.Note("The image size follows the area; the control asks the camera for it.");
    tour.Do(STEP(format.GetImageSize()));
    tour.Note("What is outside is clamped, corner by corner, written, and reported.");
    tour.Refused(SDK4_ERR_OUTOFRANGE,
                 STEP(roa.SetReadoutArea({.startx = 0, .starty = 0, .endx = 100000, .endy = 479})));
    tour.Do(STEP(roa.GetReadoutArea()));
    tour.Note("A trap: the active area of before is still cached. Binning or a settings load would refresh it.");
    tour.Do(STEP(roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_ACTIVE)));
    tour.Note("This family has no frame mask.");
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(roa.GetFrameMask()));
    tour.Refused(SDK4_ERR_NOT_IMPLEMENTED, STEP(roa.SetFrameMask({})));
}

void TourStream(Tour& tour) {
    auto& stream = tour.Section<SDK4::IStreamControl>("IStreamControl", "starts and stops image acquisition");
    auto& format = tour.Get<ISignalFormat>();
    auto& roa = tour.Get<IRoa>();
    tour.Note("While images are acquired, their geometry and format are locked. Reading them is not.");
    tour.Do(STEP(stream.Start()));
    tour.Refused(SDK4_ERR_CANTSETFEATURE, STEP(format.SetColorCoding(SDK4_COLORCODING_MONO8)));
    tour.Refused(SDK4_ERR_CANTSETFEATURE, STEP(roa.SetReadoutArea({})));
    tour.Do(STEP(roa.GetReadoutArea()));
    tour.Do(STEP(stream.Stop()));
    tour.Do(STEP(format.SetColorCoding(SDK4_COLORCODING_MONO8)));
}

void TourBinning(Tour& tour) {
    auto& binning = tour.Section<IBinning>("IBinning", "binning of pixels, on monochrome cameras");
    tour.DoIf(!tour.color, SDK4_ERR_NOT_IMPLEMENTED, STEP(binning.GetBinning()));
    tour.DoIf(!tour.color, SDK4_ERR_NOT_IMPLEMENTED, STEP(binning.SetBinning({.horizontal = 2, .vertical = 2})));
    tour.Note("Factors beyond 8 are refused before anything else is looked at; they are not clamped.");
    tour.Refused(SDK4_ERR_INVALID_PARAMETER, STEP(binning.SetBinning({.horizontal = 9, .vertical = 1})));
    if (!tour.color) {
        auto& roa = tour.Get<IRoa>();
        tour.Note("Binning changes the geometry: area and limits are stale now.");
        tour.Do(STEP(roa.GetReadoutArea()));
        tour.Do(STEP(roa.GetReadoutAreaLimits(SDK4_ROADOMAIN_ACTIVE)));
        tour.Do(STEP(binning.SetBinning({.horizontal = 1, .vertical = 1})));
    }
}

} // namespace Host
