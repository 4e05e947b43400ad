#pragma once

#include "Simulation/GigEVision/Disturbances.h"
#include "Simulation/GigEVision/Recorder.h"
#include "Simulation/GigEVision/StreamSender.h"

#include <functional>

namespace Simulation::GigEVision {

/// Puts a device on the network until SIGINT or SIGTERM: on its address, and on the broadcast addresses, where
/// discoveries arrive. Its stream is sent by a thread of its own.
/// @param begin is called once the address is this device's; its result, if any, records what is received and sent
/// @throws std::runtime_error if the address is not this machine's, or is in use
void Serve(DisturbedDevice& device, const IpConfiguration& ip, const StreamOptions& stream,
           const std::function<Recorder*()>& begin);

} // namespace Simulation::GigEVision
