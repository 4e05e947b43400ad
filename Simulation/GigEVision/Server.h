#pragma once

#include "Simulation/GigEVision/Disturbances.h"
#include "Simulation/GigEVision/Recorder.h"

#include <asio.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>

namespace Simulation::GigEVision {

/// Puts a device on the network: on its address, and on the broadcast addresses, where discoveries arrive.
class Server {
public:
    /// @throws asio::system_error if the address is not this machine's, or is in use
    Server(DisturbedDevice& served, const Network& place);

    /// Has all recorded that is received and sent.
    void RecordTo(Recorder& record) { recorder = &record; }

    /// Serves until SIGINT or SIGTERM.
    /// @throws RecordError
    void Run();

private:
    struct Listener {
        asio::ip::udp::socket socket;
        Sender self;
        asio::ip::udp::endpoint peer{};
        std::array<std::uint8_t, 65536> buffer{};
    };

    void ListenForBroadcasts(std::uint32_t address);
    void Receive(Listener& listener);
    void Take(const Listener& listener, std::span<const std::uint8_t> datagram);
    void Send(const asio::ip::udp::endpoint& to, const Bytes& datagram);
    void SendLater(const asio::ip::udp::endpoint& to, Sending sending);
    void Tick();

    asio::io_context context{1};
    DisturbedDevice& device;
    Recorder* recorder = nullptr;
    std::deque<Listener> listeners; ///< the first is on the device's address, and all is sent from there
    asio::steady_timer timer{context};
    asio::signal_set signals{context, SIGINT, SIGTERM};
};

} // namespace Simulation::GigEVision
