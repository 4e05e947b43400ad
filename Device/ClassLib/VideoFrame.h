#pragma once

#include <SDK4/ISignalFormat.h>
#include <SDK4/ITiming.h>
#include <SDK4/IVideoFrame.h>

namespace SDK4 {

/// The video frames of a control. Every call goes to the interfaces of the control.
class CQDV12VideoFrame final : public IVideoFrame {
public:
    /// @param controlTiming null for a control without timing
    /// @param controlFormat must not be null
    CQDV12VideoFrame(Control::ITiming* controlTiming, Control::ISignalFormat* controlFormat)
        : timing(controlTiming),
          format(controlFormat) {}

    int GetType() override;
    unsigned int GetWidth() override;
    unsigned int GetHeight() override;
    unsigned int GetFormat() override;
    unsigned int GetTimePerFrame() override;

private:
    Control::ITiming* timing;
    Control::ISignalFormat* format;
};

} // namespace SDK4
