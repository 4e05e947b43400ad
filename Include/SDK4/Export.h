#pragma once

/// Marks a type that host and library share. Its type information stays visible in modules compiled with hidden
/// visibility, so that casts and catches work on both sides.
#if defined(__GNUC__)
#define SDK4_PUBLIC __attribute__((visibility("default")))
#else
#define SDK4_PUBLIC
#endif
