#pragma once

#include <string>

struct _GError; // GLib's own name for what its headers would declare

namespace Host {

/// What went wrong, in words of one line: of a status that the camera answered with its number, "the camera is busy
/// (0x8007)".
[[nodiscard]] std::string Reason(const _GError& error);

/// Drops what Aravis and GLib print on standard error beside the errors that they return.
void SilenceAravis();

} // namespace Host
