#pragma once

#include <SDK4/Export.h>
#include <SDK4/IMediaType.h>

namespace SDK4 {

/// The video frames that a camera delivers, as configured now. Every call goes to ISignalFormat or ITiming of the
/// control, with their errors and their caching.
class SDK4_PUBLIC IVideoFrame : public IMediaType {
public:
    /// Columns of a frame, in pixels.
    virtual unsigned int GetWidth() = 0;

    /// Lines of a frame, in pixels.
    virtual unsigned int GetHeight() = 0;

    /// The GigE Vision pixel format of the colour coding. Bit 31 marks a device-specific format.
    ///
    /// | coding | format                   | coding | format                   | coding | format                |
    /// |--------|--------------------------|--------|--------------------------|--------|-----------------------|
    /// | 0      | 0x01080001 Mono8         | 24     | 0x81100005               | 112    | 0x02200016 RGBA8      |
    /// | 2      | 0x01100003 Mono10        | 26     | 0x81100025               | 113    | 0x02200017 BGRA8      |
    /// | 4      | 0x01100005 Mono12        | 51     | 0x02100032 YUV422_8      | 150    | 0x82080001 raw        |
    /// | 6      | 0x01100025 Mono14        | 52     | 0x0210001F YUV422Packed  | 151    | 0x82100005 raw        |
    /// | 8      | 0x01100007 Mono16        | 101    | 0x82180014               | 153    | 0x82100025 raw        |
    /// | 12     | 0x010C0004 Mono10Packed  | 102    | 0x82200016               | 155    | 0x82100007            |
    /// | 14     | 0x010C0006 Mono12Packed  | 110    | 0x02180014 RGB8          |        |                       |
    /// |        |                          | 111    | 0x02180015 BGR8          |        |                       |
    ///
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other coding.
    virtual unsigned int GetFormat() = 0;

    /// Duration of a frame in nanoseconds: the frame duration in microseconds times 1000, modulo 2^32 (a frame of more
    /// than 4.29 s wraps). 0 for a family without ITiming.
    virtual unsigned int GetTimePerFrame() = 0;
};

} // namespace SDK4
