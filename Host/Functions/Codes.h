#pragma once

#include "Host/Value.h"

#include <SDK4/Enums.h>

/// Names of numbers and fields, for input and output.
namespace Host::Named {

// clang-format off
inline constexpr Code off[]   = {{SDK4_SWITCH_OFF, "off"}};
inline constexpr Code onOff[] = {{SDK4_SWITCH_OFF, "off"}, {SDK4_SWITCH_ON, "on"}};

inline constexpr std::int64_t resetRestart = SDK4_EXPOSUREMODE_RESETRESTART;
inline constexpr Code exposureModes[] = {
    {SDK4_EXPOSUREMODE_FREERUNNING,  "freerunning"},
    {SDK4_EXPOSUREMODE_FREERUNNING2, "freerunning2"},
    {SDK4_EXPOSUREMODE_RESETRESTART, "resetrestart"},
    {SDK4_EXPOSUREMODE_FRAMEONDEMAND, "frameondemand"},
};

inline constexpr Code colorCodings[] = {
    {SDK4_COLORCODING_MONO8,        "mono8"},
    {SDK4_COLORCODING_MONO10,       "mono10"},
    {SDK4_COLORCODING_MONO12,       "mono12"},
    {SDK4_COLORCODING_MONO14,       "mono14"},
    {SDK4_COLORCODING_MONO16,       "mono16"},
    {SDK4_COLORCODING_MONO10PACKED, "mono10packed"},
    {SDK4_COLORCODING_MONO12PACKED, "mono12packed"},
    {SDK4_COLORCODING_YUV422_8,     "yuv422_8"},
    {SDK4_COLORCODING_YUV422PACKED, "yuv422packed"},
    {SDK4_COLORCODING_RGB8,         "rgb8"},
    {SDK4_COLORCODING_BGR8,         "bgr8"},
    {SDK4_COLORCODING_RGBA8,        "rgba8"},
    {SDK4_COLORCODING_BGRA8,        "bgra8"},
    {SDK4_COLORCODING_RAW8,         "raw8"},
    {SDK4_COLORCODING_RAW12,        "raw12"},
    {SDK4_COLORCODING_RAW14,        "raw14"},
};

inline constexpr Field centredPosition[] = {{"posx", true}, {"posy", true}};
// clang-format on

} // namespace Host::Named
