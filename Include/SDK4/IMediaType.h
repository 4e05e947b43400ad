#pragma once

#include <SDK4/Export.h>

namespace SDK4 {

/// What kind of stream a camera delivers.
class SDK4_PUBLIC IMediaType {
public:
    /// 0: video frames. dynamic_cast then converts the object to IVideoFrame.
    virtual int GetType() = 0;
};

} // namespace SDK4
