#pragma once

#include "Common/ErrorExit.h"

namespace Host {

using enum Common::ExitCode;
using Common::UsageError;

/// The plug-in or a camera could not be opened. The text is for the user.
struct OpenError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A camera on the network cannot be opened now, but perhaps later.
struct CameraUnavailable : OpenError {
    using OpenError::OpenError;
};

/// Another program controls it.
struct CameraControlled : CameraUnavailable {
    using CameraUnavailable::CameraUnavailable;
};

} // namespace Host
