#pragma once

#include <SDK4/Export.h>
#include <SDK4/IMediaType.h>

namespace SDK4 {

/// The video frames that a camera delivers.
class SDK4_PUBLIC IVideoFrame : public IMediaType {
public:
    virtual unsigned int GetWidth() = 0;
    virtual unsigned int GetHeight() = 0;
    virtual unsigned int GetFormat() = 0;
    virtual unsigned int GetTimePerFrame() = 0;
};

} // namespace SDK4
