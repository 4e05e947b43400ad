#include "Host/Pictures/Acquisition.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/Interrupts.h"
#include "Host/Pictures/PixelFormat.h"

#include <SDK4/IDSMediaType.h>
#include <SDK4/IExposure.h>
#include <SDK4/ITiming.h>
#include <SDK4/IVideoFrame.h>

#include <stdexcept>
#include <utility>

namespace Host {

using std::chrono::milliseconds;

namespace {

constexpr milliseconds slice{100};                 ///< a signal is noticed after this time
constexpr milliseconds reserve{2000};              ///< added to the duration of the frames
constexpr int patientFrames = 3;                   ///< the frame durations to wait for a picture
constexpr milliseconds unknownFrameDuration{1000}; ///< for a control without timing

template <typename Interface> Interface& Require(const Session& session) {
    if (auto* const found = session.As<Interface>()) {
        return *found;
    }
    throw std::runtime_error("the control of " + session.Model() + " delivers no pictures");
}

PictureFormat FormatOf(const Session& session) {
    auto* const frame = dynamic_cast<SDK4::IVideoFrame*>(Require<SDK4::Control::IDSMediaType>(session).GetMediaType());
    if (frame == nullptr) {
        throw std::runtime_error("the media type of " + session.Model() + " is none of video frames");
    }
    return {frame->GetFormat(), frame->GetWidth(), frame->GetHeight()};
}

/// The media type has the duration too, but its 32 bits of nanoseconds are too small for long exposures.
milliseconds PatienceWith(const Session& session) {
    auto* const timing = session.As<SDK4::Control::ITiming>();
    const milliseconds frame =
        timing == nullptr ? unknownFrameDuration : milliseconds(timing->GetFrameDuration() / 1000);
    return reserve + patientFrames * frame;
}

SDK4::Control::ITrigger* TriggerOf(const Session& session) {
    auto* const exposure = session.As<SDK4::Control::IExposure>();
    const bool waits = exposure != nullptr && exposure->GetExposureMode() >= SDK4_EXPOSUREMODE_RESETRESTART;
    return waits ? session.As<SDK4::Control::ITrigger>() : nullptr;
}

std::string Describe(const PictureFormat& format) {
    return std::to_string(format.width) + " x " + std::to_string(format.height) + ' ' +
           PixelFormatName(format.pixelFormat);
}

/// The bytes of the picture in a frame.
/// @throws std::runtime_error if the frame has another format or is too short
std::span<const std::uint8_t> RequireFitting(const Picture& came, const PictureFormat& announced) {
    if (came.format != announced) {
        throw std::runtime_error("the camera sent a frame of " + Describe(came.format) + " instead of " +
                                 Describe(announced));
    }
    const std::uint64_t size = PayloadSize(announced.pixelFormat, announced.width, announced.height);
    if (came.bytes.size() < size) {
        throw std::runtime_error("the camera sent a frame of " + std::to_string(came.bytes.size()) + " bytes; " +
                                 Describe(announced) + " takes " + std::to_string(size));
    }
    return came.bytes.first(size);
}

} // namespace

Acquisition::Acquisition(Session& opened)
    : session(opened),
      trigger(TriggerOf(opened)),
      format(FormatOf(opened)),
      patience(PatienceWith(opened)) {
    session.Acquire(false); // the camera may still run for a program that crashed
    source = session.Connection().OpenStream(format);
    runs = true; // a camera may start and its acknowledge get lost
    try {
        session.Acquire(true);
    } catch (...) {
        Abandon();
        throw;
    }
}

Acquisition::~Acquisition() { Abandon(); }

void Acquisition::Abandon() {
    try {
        Stop();
    } catch (...) { // NOLINT(bugprone-empty-catch): the first error is the one to report
    }
}

void Acquisition::Stop() {
    if (std::exchange(runs, false)) {
        session.Acquire(false);
    }
}

void Acquisition::Trigger() {
    if (trigger != nullptr) {
        trigger->SetSoftTrigger(1);
    }
}

Picture Acquisition::Checked(const Picture& came) const {
    Picture checked = came;
    checked.bytes = RequireFitting(came, format);
    return checked;
}

const Picture* Acquisition::Next() {
    Trigger();
    for (milliseconds waited{0}; waited < patience && !Interrupts::Received(); waited += slice) {
        if (const Picture* const came = source->Next(slice)) {
            picture = Checked(*came);
            return &picture;
        }
    }
    try {
        session.Connection().RequireUnbroken();
    } catch (ChannelLost& error) {
        error.SetFunction("waiting for a picture");
        throw;
    }
    return nullptr;
}

} // namespace Host
