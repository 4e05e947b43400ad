#pragma once

#include "Host/Pictures/PictureSource.h"

#include <SDK4/IControlPort.h>

#include <memory>

struct _ArvDevice; // Aravis' own name for what its headers would declare

namespace Host {

/// Opens the stream of a GigE Vision camera: agrees with it on the largest packets that pass the network, and has the
/// system enlarge the socket's buffer as far as it allows. Lost packets are asked for again.
/// The camera gets its packet size back at the end.
/// @param device of which this program is in control; must outlive the stream
/// @param port   to the same camera
/// @throws std::runtime_error
[[nodiscard]] std::unique_ptr<PictureSource> OpenGigEStream(_ArvDevice& device, SDK4::IControlPort& port,
                                                            const PictureFormat& format);

} // namespace Host
