#pragma once

#include <cstdint>
#include <type_traits>

// The value records: plain sequences of 32-bit fields without padding. A record is transferred as its bytes, in field
// order.

/// An area in sensor pixels, both corners inclusive: readout area, its limits, frame mask, measure windows.
struct SDK4_KAREA {
    std::uint32_t startx; ///< first column
    std::uint32_t starty; ///< first line
    std::uint32_t endx;   ///< last column
    std::uint32_t endy;   ///< last line
};

/// An image size in pixels.
struct SDK4_KSIZE {
    std::uint32_t width;  ///< columns
    std::uint32_t height; ///< lines
};

/// The gains of the three colour channels, in steps of the camera.
struct SDK4_KRGB {
    std::uint32_t red;   ///< gain of the red channel
    std::uint32_t green; ///< gain of the green channel
    std::uint32_t blue;  ///< gain of the blue channel
};

/// An overlay position in pixels from the upper left corner of the readout area.
struct SDK4_KPOSITION {
    std::uint32_t posx; ///< columns to the right
    std::uint32_t posy; ///< lines down
};

/// How an overlay is drawn; the codes are the camera's.
struct SDK4_KSTYLE {
    std::uint32_t color; ///< code of the colour
    std::uint32_t style; ///< code of the shape
};

/// The size of an overlay in pixels: stroke width and length.
struct SDK4_KOVERLAYSIZE {
    std::uint32_t width;  ///< stroke width
    std::uint32_t length; ///< length of a stroke
};

/// A time as a base selector and a count of that base: exposure time, trigger delay.
struct SDK4_KEXPOSURE {
    std::int32_t
        base; ///< time base, 0 to 7, see the documentation of the camera; simulated cameras use 10^n microseconds
    std::uint32_t counter; ///< count of the base
};

/// Binning factors, 1 to 8 each.
struct SDK4_KBINNING {
    std::uint32_t horizontal; ///< columns combined into one
    std::uint32_t vertical;   ///< lines combined into one
};

/// A version number as the camera reports it.
struct SDK4_KVERSION {
    std::uint32_t value1; ///< first word
    std::uint32_t value2; ///< second word
};

/// A revision number as the camera reports it.
struct SDK4_KREVISION {
    std::uint32_t value1; ///< first word
    std::uint32_t value2; ///< second word
};

/// A position relative to the image centre or, for the circular blanking, its centre in pixels.
struct SDK4_KCIRCULARPOSITION {
    std::int32_t xpos; ///< columns to the right
    std::int32_t ypos; ///< lines down
};

/// The circular measure window: sizes in pixels, centre relative to the image centre, vertical stretch (128 is none).
struct SDK4_KMWCIRCLE {
    std::uint32_t radius;   ///< of the circle
    std::uint32_t width;    ///< of the stroke that shows it
    std::int32_t xpos;      ///< columns to the right
    std::int32_t ypos;      ///< lines down
    std::uint32_t vstretch; ///< vertical stretch, 128 is none
};

/// One entry of the defect-pixel table.
struct SDK4_KDEFECTPIXEL {
    std::uint32_t xpos; ///< column
    std::uint32_t ypos; ///< line
    std::uint32_t mode; ///< how the pixel is replaced, 0 to 2
};

/// Selects one entry of the defect-pixel table, which is organised in pairs.
struct SDK4_KDEFECTPIXELSELECT {
    std::uint32_t pair;     ///< 0 to 127
    std::uint32_t position; ///< 0 or 1 within the pair
};

/// Selects a device register of the camera; the three words are passed on unchanged.
struct SDK4_KDEVICESELECT {
    std::uint32_t value1; ///< first word
    std::uint32_t value2; ///< second word
    std::uint32_t value3; ///< third word
};

/// Selects a parameter block of the analogue front end; the two words are passed on unchanged.
struct SDK4_AFE_SELECT {
    std::uint32_t value1; ///< first word
    std::uint32_t value2; ///< second word
};

/// A parameter block of the analogue front end; the ten words are passed on unchanged.
struct SDK4_AFE_PARAM {
    std::uint32_t values[10]; ///< in the camera's order
};

#define SDK4_ASSERT_RECORD(record, size)                                                                               \
    static_assert(sizeof(record) == (size), #record " travels as its bytes: no padding");                              \
    static_assert(std::is_trivially_copyable<record>::value && std::is_standard_layout<record>::value,                 \
                  #record " travels as its bytes: plain data")

// clang-format off
SDK4_ASSERT_RECORD(SDK4_KAREA,              16);
SDK4_ASSERT_RECORD(SDK4_KSIZE,               8);
SDK4_ASSERT_RECORD(SDK4_KRGB,               12);
SDK4_ASSERT_RECORD(SDK4_KPOSITION,           8);
SDK4_ASSERT_RECORD(SDK4_KSTYLE,              8);
SDK4_ASSERT_RECORD(SDK4_KOVERLAYSIZE,        8);
SDK4_ASSERT_RECORD(SDK4_KEXPOSURE,           8);
SDK4_ASSERT_RECORD(SDK4_KBINNING,            8);
SDK4_ASSERT_RECORD(SDK4_KVERSION,            8);
SDK4_ASSERT_RECORD(SDK4_KREVISION,           8);
SDK4_ASSERT_RECORD(SDK4_KCIRCULARPOSITION,   8);
SDK4_ASSERT_RECORD(SDK4_KMWCIRCLE,          20);
SDK4_ASSERT_RECORD(SDK4_KDEFECTPIXEL,       12);
SDK4_ASSERT_RECORD(SDK4_KDEFECTPIXELSELECT,  8);
SDK4_ASSERT_RECORD(SDK4_KDEVICESELECT,      12);
SDK4_ASSERT_RECORD(SDK4_AFE_SELECT,          8);
SDK4_ASSERT_RECORD(SDK4_AFE_PARAM,          40);
// clang-format on

#undef SDK4_ASSERT_RECORD
