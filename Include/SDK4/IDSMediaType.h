#pragma once

#include <SDK4/Export.h>
#include <SDK4/IMediaType.h>

namespace SDK4::Control {

/// Access to the description of the stream.
class SDK4_PUBLIC IDSMediaType {
public:
    /// The description, the same object on every call. It belongs to the library and gets every value from the control:
    /// do not delete it, and do not use it after Release of the control.
    virtual SDK4::IMediaType* GetMediaType() = 0;
};

} // namespace SDK4::Control
