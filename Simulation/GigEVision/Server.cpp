#include "Simulation/GigEVision/Server.h"

#include <csignal>
#include <memory>
#include <utility>

namespace Simulation::GigEVision {

namespace {

using asio::ip::udp;

constexpr std::chrono::milliseconds tick{50};

udp::endpoint EndpointOf(std::uint32_t address) { return {asio::ip::address_v4(address), port}; }

Sender SenderOf(const udp::endpoint& endpoint) { return {endpoint.address().to_v4().to_uint(), endpoint.port()}; }

} // namespace

Server::Server(DisturbedDevice& served, const Network& place) : device(served) {
    // Without reuse, so that a second device on the address does not go unnoticed.
    listeners.push_back({udp::socket(context, EndpointOf(place.address)), {place.address, port}});
    ListenForBroadcasts(0xFFFFFFFF);
    if (place.mask != 0xFFFFFFFF) {
        ListenForBroadcasts(place.address | ~place.mask);
    }
}

void Server::ListenForBroadcasts(std::uint32_t address) {
    udp::socket socket(context, udp::v4());
    socket.set_option(udp::socket::reuse_address(true)); // all devices of a machine hear them
    asio::error_code error;
    socket.bind(EndpointOf(address), error);
    if (!error) { // an interface need not have broadcasts
        listeners.push_back({std::move(socket), {address, port}});
    }
}

void Server::Run() {
    signals.async_wait([this](const asio::error_code&, int) { context.stop(); });
    for (Listener& listener : listeners) {
        Receive(listener);
    }
    Tick();
    context.run();
}

void Server::Tick() {
    device.PassTime(std::chrono::steady_clock::now());
    timer.expires_after(tick);
    timer.async_wait([this](const asio::error_code& error) {
        if (!error) {
            Tick();
        }
    });
}

void Server::Receive(Listener& listener) {
    listener.socket.async_receive_from(asio::buffer(listener.buffer), listener.peer,
                                       [this, &listener](const asio::error_code& error, std::size_t size) {
                                           if (!error) { // else a datagram that was sent before did not arrive
                                               Take(listener, std::span(listener.buffer).first(size));
                                           }
                                           Receive(listener);
                                       });
}

void Server::Take(const Listener& listener, std::span<const std::uint8_t> datagram) {
    const Sender from = SenderOf(listener.peer);
    if (recorder != nullptr) {
        recorder->Record(from, listener.self, datagram);
    }
    const auto request = Parse(datagram);
    const bool broadcast = &listener != &listeners.front();
    if (broadcast && (!request || request->command != Command::Discovery)) {
        return;
    }
    for (Sending& sending : device.Answer(from, datagram, std::chrono::steady_clock::now())) {
        if (sending.delay.count() == 0) {
            Send(listener.peer, sending.datagram);
        } else {
            SendLater(listener.peer, std::move(sending));
        }
    }
}

void Server::SendLater(const udp::endpoint& to, Sending sending) {
    const auto wait = std::make_shared<asio::steady_timer>(context, sending.delay);
    wait->async_wait([this, wait, to, datagram = std::move(sending.datagram)](const asio::error_code& error) {
        if (!error) {
            Send(to, datagram);
        }
    });
}

void Server::Send(const udp::endpoint& to, const Bytes& datagram) {
    asio::error_code error;
    listeners.front().socket.send_to(asio::buffer(datagram), to, 0, error);
    if (!error && recorder != nullptr) {
        recorder->Record(listeners.front().self, SenderOf(to), datagram);
    }
}

} // namespace Simulation::GigEVision
