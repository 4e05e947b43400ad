#include "Host/Pictures/Png.h"

#include <png.h>

#include <csetjmp>
#include <stdexcept>
#include <vector>

namespace Host {

namespace {

constexpr int fastestCompression = 1; ///< with the filter SUB: ten times as fast as the default, files a quarter larger

/// The data of libpng. It reports errors by a jump into Write, so Write has no objects with destructors.
struct Encoder {
    const Picture& picture;
    const PixelFormat& format;
    std::string content{};
    std::vector<std::uint16_t> samples =
        std::vector<std::uint16_t>(std::size_t{picture.format.width} * format.channels);
    std::vector<png_byte> row = std::vector<png_byte>(samples.size() * (format.bits > 8 ? 2 : 1));
    png_structp png = png_create_write_struct(
        PNG_LIBPNG_VER_STRING, nullptr, [](png_structp failed, const char*) { png_longjmp(failed, 1); },
        [](png_structp, const char*) {});
    png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);

    Encoder(const Picture& encoded, const PixelFormat& itsFormat) : picture(encoded), format(itsFormat) {}
    ~Encoder() { png_destroy_write_struct(&png, &info); }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    /// Fills the row with a line of the picture.
    void FillRow(std::uint32_t line) {
        ReadLine(format, picture.bytes, picture.format.width, line, samples);
        if (format.bits == 8) {
            for (std::size_t i = 0; i < samples.size(); ++i) {
                row[i] = static_cast<png_byte>(samples[i]);
            }
            return;
        }
        for (std::size_t i = 0; i < samples.size(); ++i) { // by repeating the high bits: full scale stays full scale
            const unsigned int wide = unsigned{samples[i]} << (16 - format.bits) | samples[i] >> (2 * format.bits - 16);
            row[2 * i] = static_cast<png_byte>(wide >> 8);
            row[2 * i + 1] = static_cast<png_byte>(wide & 0xFFU);
        }
    }
};

void Append(png_structp png, png_bytep data, std::size_t size) {
    bool appended = true;
    try {
        static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(data), size);
    } catch (const std::exception&) { // must not pass through libpng
        appended = false;
    }
    if (!appended) {
        png_error(png, "no memory");
    }
}

/// @return whether it succeeded
bool Write(Encoder& encoder) {
    png_structp const png = encoder.png;
    if (encoder.info == nullptr || setjmp(png_jmpbuf(png)) != 0) { // NOLINT(cert-err52-cpp): as libpng reports errors
        return false;
    }
    png_set_write_fn(png, &encoder.content, Append, nullptr);
    png_set_user_limits(png, 0x7FFFFFFF, 0x7FFFFFFF);
    png_set_compression_level(png, fastestCompression);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
    const PictureFormat& size = encoder.picture.format;
    png_set_IHDR(png, encoder.info, size.width, size.height, encoder.format.bits > 8 ? 16 : 8,
                 encoder.format.channels == 3 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_GRAY, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (encoder.format.bits > 8) {
        png_color_8 significant{};
        significant.gray = static_cast<png_byte>(encoder.format.bits);
        png_set_sBIT(png, encoder.info, &significant);
    }
    png_write_info(png, encoder.info);
    for (std::uint32_t y = 0; y < size.height; ++y) {
        encoder.FillRow(y);
        png_write_row(png, encoder.row.data());
    }
    png_write_end(png, nullptr);
    return true;
}

} // namespace

std::string EncodePng(const Picture& picture, const PixelFormat& format) {
    Encoder encoder(picture, format);
    if (!Write(encoder)) {
        throw std::runtime_error("a picture of " + std::to_string(picture.format.width) + " x " +
                                 std::to_string(picture.format.height) + " cannot be written as PNG");
    }
    return std::move(encoder.content);
}

} // namespace Host
