#include "Simulation/GigEVision/Server.h"

#include "Common/Ipv4.h"

#include <asio/buffer.hpp>
#include <asio/io_context.hpp>
#include <asio/ip/udp.hpp>
#include <asio/signal_set.hpp>
#include <asio/steady_timer.hpp>

#include <array>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <stdexcept>
#include <utility>

namespace Simulation::GigEVision {

namespace {

using asio::ip::udp;
using Common::Gvcp::port;

constexpr std::chrono::milliseconds tick{50};
constexpr int controlBuffer = 4 << 20; // a receiver that misses packets may ask for them more than once

udp::endpoint At(std::uint32_t address) { return {asio::ip::address_v4(address), port}; }

Endpoint EndpointOf(const udp::endpoint& peer) { return {peer.address().to_v4().to_uint(), peer.port()}; }

class Server {
public:
    Server(DisturbedDevice& served, const IpConfiguration& ip);

    /// @param record may be null
    void Run(const StreamOptions& stream, Recorder* record);

private:
    struct Listener {
        udp::socket socket;
        Endpoint self;
        udp::endpoint peer{};
        std::array<std::uint8_t, 65536> buffer{};
    };

    void ListenForBroadcasts(std::uint32_t address);
    void Receive(Listener& listener);
    void Handle(const Listener& listener, std::span<const std::uint8_t> datagram);
    void Send(const udp::endpoint& to, const Bytes& datagram);
    void SendLater(const udp::endpoint& to, DelayedDatagram delayed);
    void Tick();

    asio::io_context context{1};
    DisturbedDevice& device;
    std::mutex mutex; ///< of the device
    std::optional<StreamSender> sender;
    Recorder* recorder = nullptr;
    std::deque<Listener> listeners; ///< the first is on the device's address and sends all datagrams
    asio::steady_timer timer{context};
    asio::signal_set signals{context, SIGINT, SIGTERM};
};

Server::Server(DisturbedDevice& served, const IpConfiguration& ip) : device(served) {
    try {
        // Without address reuse, so that binding fails for a second device on the address.
        listeners.push_back({udp::socket(context, At(ip.address)), {ip.address, port}});
        listeners.back().socket.set_option(udp::socket::receive_buffer_size(controlBuffer));
    } catch (const asio::system_error& error) {
        throw std::runtime_error(Common::PrintAddress(ip.address) + ':' + std::to_string(port) +
                                 " cannot be used: " + error.code().message());
    }
    ListenForBroadcasts(0xFFFFFFFF);
    if (ip.subnetMask != 0xFFFFFFFF) {
        ListenForBroadcasts(ip.address | ~ip.subnetMask);
    }
}

void Server::ListenForBroadcasts(std::uint32_t address) {
    udp::socket socket(context, udp::v4());
    socket.set_option(udp::socket::reuse_address(true)); // shared by all devices of the machine
    asio::error_code error;
    socket.bind(At(address), error);
    if (!error) { // some interfaces have no broadcasts
        listeners.push_back({std::move(socket), {address, port}});
    }
}

void Server::Run(const StreamOptions& stream, Recorder* record) {
    recorder = record;
    sender.emplace(device.Undisturbed(), mutex, listeners.front().self.address, stream, record);
    signals.async_wait([this](const asio::error_code&, int) { context.stop(); });
    for (Listener& listener : listeners) {
        Receive(listener);
    }
    Tick();
    context.run();
}

void Server::Tick() {
    {
        const std::lock_guard lock(mutex);
        device.PassTime(std::chrono::steady_clock::now());
    }
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
                                           if (!error) { // else an earlier datagram was not delivered
                                               Handle(listener, std::span(listener.buffer).first(size));
                                           }
                                           Receive(listener);
                                       });
}

void Server::Handle(const Listener& listener, std::span<const std::uint8_t> datagram) {
    const Endpoint from = EndpointOf(listener.peer);
    if (recorder != nullptr) {
        recorder->Record(from, listener.self, datagram);
    }
    const auto request = Common::Gvcp::Parse(datagram);
    const bool broadcast = &listener != &listeners.front();
    if (broadcast && (!request || request->command != Common::Gvcp::Command::Discovery)) {
        return;
    }
    std::vector<DelayedDatagram> answers;
    {
        const std::lock_guard lock(mutex);
        answers = device.Answer(from, datagram, std::chrono::steady_clock::now());
    }
    sender->Wake();
    for (DelayedDatagram& answer : answers) {
        if (answer.delay.count() == 0) {
            Send(listener.peer, answer.datagram);
        } else {
            SendLater(listener.peer, std::move(answer));
        }
    }
}

void Server::SendLater(const udp::endpoint& to, DelayedDatagram delayed) {
    const auto wait = std::make_shared<asio::steady_timer>(context, delayed.delay);
    wait->async_wait([this, wait, to, datagram = std::move(delayed.datagram)](const asio::error_code& error) {
        if (!error) {
            Send(to, datagram);
        }
    });
}

void Server::Send(const udp::endpoint& to, const Bytes& datagram) {
    asio::error_code error;
    listeners.front().socket.send_to(asio::buffer(datagram), to, 0, error);
    if (!error && recorder != nullptr) {
        recorder->Record(listeners.front().self, EndpointOf(to), datagram);
    }
}

} // namespace

void Serve(DisturbedDevice& device, const IpConfiguration& ip, const StreamOptions& stream,
           const std::function<Recorder*()>& begin) {
    Server server(device, ip);
    server.Run(stream, begin());
}

} // namespace Simulation::GigEVision
