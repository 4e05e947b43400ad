#include "VideoFrame.h"

#include "Log.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace SDK4 {

namespace {

struct PixelFormat {
    int colorCoding;
    std::uint32_t code; ///< of the GigE Vision standard; bit 31 marks a format of the device's own
};

// clang-format off
constexpr PixelFormat pixelFormats[] = {
    {  0, 0x01080001}, // Mono8
    {  2, 0x01100003}, // Mono10
    {  4, 0x01100005}, // Mono12
    {  6, 0x01100025}, // Mono14
    {  8, 0x01100007}, // Mono16
    { 12, 0x010C0004}, // Mono10Packed
    { 14, 0x010C0006}, // Mono12Packed
    { 24, 0x81100005},
    { 26, 0x81100025},
    { 51, 0x02100032}, // YUV422_8
    { 52, 0x0210001F}, // YUV422Packed
    {101, 0x82180014},
    {102, 0x82200016},
    {110, 0x02180014}, // RGB8Packed
    {111, 0x02180015}, // BGR8Packed
    {112, 0x02200016}, // RGBA8Packed
    {113, 0x02200017}, // BGRA8Packed
    {150, 0x82080001},
    {151, 0x82100005},
    {153, 0x82100025},
    {155, 0x82100007},
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
