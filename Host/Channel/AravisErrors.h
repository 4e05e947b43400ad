#pragma once

#include <string>

struct _GError; // declared here to keep GLib headers out

namespace Host {

/// The reason in one line, with the status of the camera: "the camera is busy (0x8007)".
[[nodiscard]] std::string Reason(const _GError& error);

/// Suppresses the messages of Aravis and GLib on standard error.
void SilenceAravis();

} // namespace Host
