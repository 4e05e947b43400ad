#pragma once

#include <SDK4/Export.h>

namespace SDK4 {

/// What kind of stream a camera delivers.
class SDK4_PUBLIC IMediaType {
public:
    /// 0: video frames. The object is an IVideoFrame then, to be had by dynamic_cast.
    virtual int GetType() = 0;
};

} // namespace SDK4
