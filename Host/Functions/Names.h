#pragma once

#include <string_view>

/// Names of functions that several rows use: the rows of both families, and the rows that they lock.
namespace Host::Name {

// clang-format off
inline constexpr std::string_view acc                   = "acc";
inline constexpr std::string_view aet                   = "aet";
inline constexpr std::string_view agc                   = "agc";
inline constexpr std::string_view awb                   = "awb";
inline constexpr std::string_view abc                   = "abc";
inline constexpr std::string_view brightness            = "brightness";
inline constexpr std::string_view circularBlankingMode  = "circularblankingmode";
inline constexpr std::string_view colorCoding           = "colorcoding";
inline constexpr std::string_view contrast              = "contrast";
inline constexpr std::string_view exposure              = "exposure";
inline constexpr std::string_view exposureMode          = "exposuremode";
inline constexpr std::string_view gain                  = "gain";
inline constexpr std::string_view histogramEqualization = "histogramequalization";
inline constexpr std::string_view lutIndex              = "lutindex";
inline constexpr std::string_view measureFrameShow      = "measureframeshow";
inline constexpr std::string_view measureWindow         = "measurewindow";
inline constexpr std::string_view overlayPosition       = "overlayposition";
inline constexpr std::string_view overlayShow           = "overlayshow";
inline constexpr std::string_view overlaySize           = "overlaysize";
inline constexpr std::string_view overlayStyle          = "overlaystyle";
inline constexpr std::string_view recursiveFilter       = "recursivefilter";
inline constexpr std::string_view restart               = "restart";
inline constexpr std::string_view serialNumber          = "serialnumber";
inline constexpr std::string_view shadingCorrectionMode = "shadingcorrectionmode";
inline constexpr std::string_view verticalFlip          = "verticalflip";
// clang-format on

} // namespace Host::Name

/// Topics of functions.
namespace Host::Topics {

inline constexpr std::string_view identity = "identity";
inline constexpr std::string_view network = "network";
inline constexpr std::string_view image = "image";
inline constexpr std::string_view exposure = "exposure";
inline constexpr std::string_view processing = "processing";
inline constexpr std::string_view color = "color";
inline constexpr std::string_view overlay = "overlay";
inline constexpr std::string_view memory = "memory";
inline constexpr std::string_view settings = "settings";
inline constexpr std::string_view tests = "tests";
inline constexpr std::string_view outputs = "outputs";
inline constexpr std::string_view correction = "correction";

} // namespace Host::Topics
