#pragma once

#include <SDK4/Export.h>
#include <SDK4/IMediaType.h>

namespace SDK4::Control {

/// Hands out the description of the stream.
class SDK4_PUBLIC IDSMediaType {
public:
    virtual SDK4::IMediaType* GetMediaType() = 0;
};

} // namespace SDK4::Control
