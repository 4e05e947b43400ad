#include "Host/Panel/Preview.h"

#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <memory>

namespace {

using namespace Host::Panel;
using Host::Picture;

/// What a client sees of a JPEG.
struct Decoded {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> grey; ///< or the luminance

    explicit Decoded(const std::string& jpeg) {
        const std::unique_ptr<void, decltype(&tjDestroy)> decoder(tjInitDecompress(), &tjDestroy);
        const auto* const bytes = reinterpret_cast<const unsigned char*>(jpeg.data());
        int subsampling = 0;
        int colors = 0;
        EXPECT_EQ(tjDecompressHeader3(decoder.get(), bytes, jpeg.size(), &width, &height, &subsampling, &colors), 0);
        grey.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
        EXPECT_EQ(tjDecompress2(decoder.get(), bytes, jpeg.size(), grey.data(), width, 0, height, TJPF_GRAY, 0), 0);
    }
    [[nodiscard]] int At(std::size_t x, std::size_t y) const { return grey[y * static_cast<std::size_t>(width) + x]; }
};

/// A picture of 400 x 200 pixels of 16 bits, of which the low 12, or 14, are used: black on the left, white on the
/// right.
class HalfWhite {
public:
    explicit HalfWhite(const char* formatName) {
        for (const std::uint32_t code : {0x01080001U, 0x01100025U, 0x02180014U}) {
            const auto* const known = Host::FindPixelFormat(code);
            if (known != nullptr && known->name == std::string(formatName)) {
                format = known;
            }
        }
        picture.format = {format->code, 400, 200};
        const std::size_t bytesPerPixel = format->layout == Host::PixelLayout::Mono16 ? 2 : format->channels;
        bytes.resize(bytesPerPixel * 400 * 200);
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            const bool isWhite = i / bytesPerPixel % 400 >= 200;
            const bool isHigh = bytesPerPixel == 2 && i % 2 == 1;
            bytes[i] = !isWhite ? 0 : isHigh ? static_cast<std::uint8_t>(format->FullScale() >> 8) : 0xFF;
        }
        picture.bytes = bytes;
    }

    const Host::PixelFormat* format = nullptr;
    Picture picture;

private:
    std::vector<std::uint8_t> bytes;
};

class PanelPreview : public testing::TestWithParam<const char*> {};

TEST_P(PanelPreview, FitsTheRoomAndKeepsTheTones) {
    const HalfWhite shown(GetParam());
    const Decoded small(EncodePreview(shown.picture, *shown.format, {100, 100, {}}));
    EXPECT_EQ(std::pair(small.width, small.height), std::pair(100, 50));
    EXPECT_LT(small.At(10, 25), 8);
    EXPECT_GT(small.At(90, 25), 247);

    const Decoded whole(EncodePreview(shown.picture, *shown.format, {1000, 1000, {}}));
    EXPECT_EQ(std::pair(whole.width, whole.height), std::pair(400, 200)) << "never enlarged";

    const Decoded edge(EncodePreview(shown.picture, *shown.format, {64, 64, Area{184, 8, 32, 16}}));
    EXPECT_EQ(std::pair(edge.width, edge.height), std::pair(32, 16));
    EXPECT_LT(edge.At(4, 8), 24);
    EXPECT_GT(edge.At(28, 8), 231);
}
INSTANTIATE_TEST_SUITE_P(Formats, PanelPreview, testing::Values("mono8", "mono14", "rgb8"));

TEST(PanelPreview, TakesAnyArea) {
    const HalfWhite shown("mono8");
    for (const Area area : {Area{0, 0, 0, 0}, Area{399, 199, 1, 1}, Area{5000, 5000, 5000, 5000},
                            Area{0, 0, UINT32_MAX, UINT32_MAX}, Area{UINT32_MAX, 0, UINT32_MAX, 1}}) {
        const Area part = AreaOf({10, 10, area}, shown.picture.format);
        EXPECT_LE(part.left + part.width, 400U);
        EXPECT_LE(part.top + part.height, 200U);
        const Decoded decoded(EncodePreview(shown.picture, *shown.format, {0, UINT32_MAX, area}));
        EXPECT_EQ(decoded.width, 1) << "a room without width";
    }
}

TEST(PanelPreview, SurveysTheTones) {
    const HalfWhite shown("mono14");
    const auto survey = SurveyOf(shown.picture, *shown.format);
    EXPECT_DOUBLE_EQ(survey.measures.saturated, 50);
    ASSERT_EQ(survey.histogram.size(), 1U);
    EXPECT_EQ(survey.histogram[0].front(), 40000U);
    EXPECT_EQ(survey.histogram[0].back(), 40000U);
    EXPECT_EQ(SamplesAt(shown.picture, *shown.format, 399, 199), std::vector<std::uint16_t>{0x3FFF});
    EXPECT_TRUE(SamplesAt(shown.picture, *shown.format, 400, 0).empty());
}

} // namespace
