#pragma once

/// Marks a type that crosses the border between host and library: its type information stays visible when the rest
/// of a module is compiled with hidden visibility, so that casts and catches work on both sides.
#if defined(__GNUC__)
#define SDK4_PUBLIC __attribute__((visibility("default")))
#else
#define SDK4_PUBLIC
#endif
