#pragma once

#include "Simulation/GigEVision/Disturbances.h"
#include "Simulation/GigEVision/Recorder.h"
#include "Simulation/GigEVision/StreamSender.h"

#include <functional>

namespace Simulation::GigEVision {

/// Serves a device on the network until SIGINT or SIGTERM: on its address, and for discoveries on the broadcast
/// addresses. A thread of its own sends the stream. The device may be moved to another address of this machine.
/// @param begin is called once the address is bound; its result, which may be null, records the traffic
/// @param moved is called when another address is bound
/// @throws std::runtime_error if the address does not belong to this machine, or is in use
void Serve(DisturbedDevice& device, const IpConfiguration& ip, const StreamOptions& stream,
           const std::function<Recorder*()>& begin, const std::function<void(const IpConfiguration&)>& moved);

} // namespace Simulation::GigEVision
