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
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
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

/// Whether broadcasts of a command are obeyed.
bool IsForAll(Common::Gvcp::Command command) {
    return command == Common::Gvcp::Command::Discovery || command == Common::Gvcp::Command::ForceIp;
}

class Server {
public:
    Server(DisturbedDevice& served, const IpConfiguration& first, const StreamOptions& streamOptions);

    /// @param record may be null
    void Run(Recorder* record, const std::function<void(const IpConfiguration&)>& toldWhenMoved);

private:
    struct Listener {
        udp::socket socket;
        Endpoint self;
        udp::endpoint peer{};
        std::array<std::uint8_t, 65536> buffer{};
        bool receives = false;
    };
    /// A socket on an address that the device is about to get.
    struct NextAddress {
        IpConfiguration ip;
        std::optional<udp::socket> socket; ///< none if the address remains
    };

    [[nodiscard]] udp::socket OwnSocket(std::uint32_t address);
    void ListenForBroadcasts(Listener& listener, std::uint32_t address);
    void ListenForSubnetBroadcasts();
    [[nodiscard]] bool PrepareMove(const IpConfiguration& to);
    void FinishMove();
    [[nodiscard]] udp::endpoint AnswerTo(const Listener& listener, std::span<const std::uint8_t> datagram) const;
    void Receive(Listener& listener);
    void Handle(const Listener& listener, std::span<const std::uint8_t> datagram);
    void Send(const udp::endpoint& to, const Bytes& datagram);
    void SendLater(const udp::endpoint& to, DelayedDatagram delayed);
    void Tick();

    asio::io_context context{1};
    DisturbedDevice& device;
    IpConfiguration ip;
    const StreamOptions stream;
    std::mutex mutex; ///< of the device
    std::optional<StreamSender> sender;
    Recorder* recorder = nullptr;
    std::function<void(const IpConfiguration&)> moved;
    Listener own;                                                  ///< on the device's address; sends all datagrams
    Listener everywhere{udp::socket(context), {0xFFFFFFFF, port}}; ///< broadcasts to all
    Listener subnet{udp::socket(context), {0, port}};              ///< broadcasts to the subnet
    std::optional<NextAddress> next;
    asio::steady_timer timer{context};
    asio::signal_set signals{context, SIGINT, SIGTERM};
};

Server::Server(DisturbedDevice& served, const IpConfiguration& first, const StreamOptions& streamOptions)
    : device(served),
      ip(first),
      stream(streamOptions),
      own{udp::socket(context), {first.address, port}} {
    try {
        own.socket = OwnSocket(ip.address);
    } catch (const asio::system_error& error) {
        throw std::runtime_error(Common::PrintAddress(ip.address) + ':' + std::to_string(port) +
                                 " cannot be used: " + error.code().message());
    }
    ListenForBroadcasts(everywhere, everywhere.self.address);
    ListenForSubnetBroadcasts();
    device.Undisturbed().MoveWith([this](const IpConfiguration& to) { return PrepareMove(to); });
}

udp::socket Server::OwnSocket(std::uint32_t address) {
    udp::socket socket(context, At(address)); // without address reuse, so that it fails for a second device
    socket.set_option(udp::socket::receive_buffer_size(controlBuffer));
    socket.set_option(udp::socket::broadcast(true));
    return socket;
}

void Server::ListenForBroadcasts(Listener& listener, std::uint32_t address) {
    udp::socket socket(context, udp::v4());
    socket.set_option(udp::socket::reuse_address(true)); // shared by all devices of the machine
    asio::error_code error;
    socket.bind(At(address), error);
    if (error) { // some interfaces have no broadcasts
        socket.close();
    }
    listener.socket = std::move(socket);
    listener.self.address = address;
}

void Server::ListenForSubnetBroadcasts() {
    if (ip.subnetMask != 0xFFFFFFFF) {
        ListenForBroadcasts(subnet, ip.address | ~ip.subnetMask);
    }
}

bool Server::PrepareMove(const IpConfiguration& to) {
    try {
        next.emplace(NextAddress{to, {}});
        if (to.address != own.self.address) {
            next->socket = OwnSocket(to.address);
        }
        return true;
    } catch (const asio::system_error&) { // no address of this machine, or in use
        next.reset();
        return false;
    }
}

void Server::FinishMove() {
    if (!next) {
        return;
    }
    const bool isElsewhere = next->socket.has_value();
    ip = next->ip;
    if (isElsewhere) {
        own.socket = std::move(*next->socket);
        own.self.address = ip.address;
        sender.reset();
        sender.emplace(device.Undisturbed(), mutex, ip.address, stream, recorder);
    }
    next.reset();
    ListenForSubnetBroadcasts();
    for (Listener* const listener : {&own, &subnet}) {
        if (!listener->receives) {
            Receive(*listener);
        }
    }
    if (isElsewhere) {
        moved(ip);
    }
}

void Server::Run(Recorder* record, const std::function<void(const IpConfiguration&)>& toldWhenMoved) {
    recorder = record;
    moved = toldWhenMoved;
    sender.emplace(device.Undisturbed(), mutex, own.self.address, stream, record);
    signals.async_wait([this](const asio::error_code&, int) { context.stop(); });
    for (Listener* const listener : {&own, &everywhere, &subnet}) {
        Receive(*listener);
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
    listener.receives = listener.socket.is_open();
    if (!listener.receives) {
        return;
    }
    listener.socket.async_receive_from(asio::buffer(listener.buffer), listener.peer,
                                       [this, &listener](const asio::error_code& error, std::size_t size) {
                                           if (!error) { // else an earlier datagram was not delivered, or it has moved
                                               Handle(listener, std::span(listener.buffer).first(size));
                                           }
                                           Receive(listener);
                                       });
}

udp::endpoint Server::AnswerTo(const Listener& listener, std::span<const std::uint8_t> datagram) const {
    const auto request = Common::Gvcp::Parse(datagram);
    const auto peer = listener.peer.address().to_v4().to_uint();
    const bool isElsewhere = ((peer ^ ip.address) & ip.subnetMask) != 0;
    return request && request->wantsBroadcast && IsForAll(request->command) && isElsewhere
               ? udp::endpoint(asio::ip::address_v4::broadcast(), listener.peer.port())
               : listener.peer;
}

void Server::Handle(const Listener& listener, std::span<const std::uint8_t> datagram) {
    const Endpoint from = EndpointOf(listener.peer);
    if (recorder != nullptr) {
        recorder->Record(from, listener.self, datagram);
    }
    const auto request = Common::Gvcp::Parse(datagram);
    const bool broadcast = &listener != &own;
    if (broadcast && (!request || !IsForAll(request->command))) {
        return;
    }
    std::vector<DelayedDatagram> answers;
    {
        const std::lock_guard lock(mutex);
        answers = device.Answer(from, datagram, std::chrono::steady_clock::now());
    }
    FinishMove();
    sender->Wake();
    const udp::endpoint to = AnswerTo(listener, datagram);
    for (DelayedDatagram& answer : answers) {
        if (answer.delay.count() == 0) {
            Send(to, answer.datagram);
        } else {
            SendLater(to, std::move(answer));
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
    own.socket.send_to(asio::buffer(datagram), to, 0, error);
    if (!error && recorder != nullptr) {
        recorder->Record(own.self, EndpointOf(to), datagram);
    }
}

} // namespace

void Serve(DisturbedDevice& device, const IpConfiguration& ip, const StreamOptions& stream,
           const std::function<Recorder*()>& begin, const std::function<void(const IpConfiguration&)>& moved) {
    Server server(device, ip, stream);
    server.Run(begin(), moved);
}

} // namespace Simulation::GigEVision
