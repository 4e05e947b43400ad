#include "VideoFrame.h"

#include "Log.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace SDK4 {

namespace {

struct PixelFormat {
    int colorCoding;
    std::uint32_t code; ///< of the GigE Vision standard; bit 31 marks a device-specific format
};

// clang-format off
constexpr PixelFormat pixelFormats[] = {
    {SDK4_COLORCODING_MONO8,        0x01080001},
    {SDK4_COLORCODING_MONO10,       0x01100003},
    {SDK4_COLORCODING_MONO12,       0x01100005},
    {SDK4_COLORCODING_MONO14,       0x01100025},
    {SDK4_COLORCODING_MONO16,       0x01100007},
    {SDK4_COLORCODING_MONO10PACKED, 0x010C0004},
    {SDK4_COLORCODING_MONO12PACKED, 0x010C0006},
    {24,                            0x81100005}, // not named by the interface
    {26,                            0x81100025}, // not named by the interface
    {SDK4_COLORCODING_YUV422_8,     0x02100032},
    {SDK4_COLORCODING_YUV422PACKED, 0x0210001F},
    {101,                           0x82180014}, // not named by the interface
    {102,                           0x82200016}, // not named by the interface
    {SDK4_COLORCODING_RGB8,         0x02180014},
    {SDK4_COLORCODING_BGR8,         0x02180015},
    {SDK4_COLORCODING_RGBA8,        0x02200016},
    {SDK4_COLORCODING_BGRA8,        0x02200017},
    {SDK4_COLORCODING_RAW8,         0x82080001},
    {SDK4_COLORCODING_RAW12,        0x82100005},
    {SDK4_COLORCODING_RAW14,        0x82100025},
    {155,                           0x82100007}, // not named by the interface
};
// clang-format on

} // namespace

int CQDV12VideoFrame::GetType() {
    SDK4_LOG_CALL();
    return 0;
}

unsigned int CQDV12VideoFrame::GetWidth() {
    SDK4_LOG_CALL();
    return format->GetImageSize().width;
}

unsigned int CQDV12VideoFrame::GetHeight() {
    SDK4_LOG_CALL();
    return format->GetImageSize().height;
}

unsigned int CQDV12VideoFrame::GetFormat() {
    SDK4_LOG_CALL();
    const int coding = format->GetColorCoding();
    const auto* found = std::find_if(std::begin(pixelFormats), std::end(pixelFormats),
                                     [coding](const PixelFormat& entry) { return entry.colorCoding == coding; });
    if (found == std::end(pixelFormats)) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_INVALID_PARAMETER);
    }
    return found->code;
}

unsigned int CQDV12VideoFrame::GetTimePerFrame() {
    SDK4_LOG_CALL();
    return timing == nullptr ? 0 : timing->GetFrameDuration() * 1000; // wraps above 4294967 microseconds
}

} // namespace SDK4
