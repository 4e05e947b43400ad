#pragma once

#include <SDK4/SDK4.h>

#include <cstdint>
#include <span>
#include <string>

namespace Host {

// How the results of camera functions read: numbers in decimal, large ones in hexadecimal too; texts in quotes;
// records field by field.
[[nodiscard]] std::string Format(bool value);
[[nodiscard]] std::string Format(int value);
[[nodiscard]] std::string Format(unsigned int value);
[[nodiscard]] std::string Format(std::uint64_t value);
[[nodiscard]] std::string Format(const char* text);
[[nodiscard]] std::string Format(const SDK4::IMediaType* media);
[[nodiscard]] std::string Format(const SDK4_KAREA& area);
[[nodiscard]] std::string Format(const SDK4_KSIZE& size);
[[nodiscard]] std::string Format(const SDK4_KRGB& gains);
[[nodiscard]] std::string Format(const SDK4_KPOSITION& position);
[[nodiscard]] std::string Format(const SDK4_KSTYLE& style);
[[nodiscard]] std::string Format(const SDK4_KOVERLAYSIZE& size);
[[nodiscard]] std::string Format(const SDK4_KEXPOSURE& exposure);
[[nodiscard]] std::string Format(const SDK4_KBINNING& binning);
[[nodiscard]] std::string Format(const SDK4_KVERSION& version);
[[nodiscard]] std::string Format(const SDK4_KREVISION& revision);
[[nodiscard]] std::string Format(const SDK4_KCIRCULARPOSITION& position);
[[nodiscard]] std::string Format(const SDK4_KMWCIRCLE& window);
[[nodiscard]] std::string Format(const SDK4_KDEFECTPIXEL& pixel);

/// What went over the port: a text in quotes where the bytes are one, else their words.
[[nodiscard]] std::string FormatBytes(std::span<const std::uint8_t> bytes);

/// "0x" and eight digits.
[[nodiscard]] std::string Hex(std::uint32_t value);

/// An escaped text, filled up with blanks to the width, in columns of a terminal.
[[nodiscard]] std::string Pad(std::string text, std::size_t width);

} // namespace Host
