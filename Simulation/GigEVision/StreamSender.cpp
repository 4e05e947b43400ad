#include "Simulation/GigEVision/StreamSender.h"

#include "Simulation/GigEVision/SentBlocks.h"
#include "Simulation/GigEVision/StreamSocket.h"
#include "Simulation/Picture/Renderer.h"

#include <sys/prctl.h>

#include <algorithm>
#include <condition_variable>
#include <map>
#include <thread>
#include <utility>

namespace Simulation::GigEVision {

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;
using std::chrono::nanoseconds;

namespace {

constexpr microseconds burstTime{200}; ///< packets of this time are sent together: a sleep takes at least 50 us
// What is made up for after a sleep that took too long. More would overflow the usual socket buffer of a receiver.
constexpr nanoseconds longestDebt = microseconds(200);
constexpr int largestDebt = 32; ///< packets, if they take longer

/// Determines when the link is free for the next packets.
class Pace {
public:
    Pace(std::uint32_t megabytesPerSecond, const StreamTarget& target)
        : packetTime(target.packetDelay +
                     nanoseconds(megabytesPerSecond == 0 ? 0 : 1000U * target.packetSize / megabytesPerSecond)) {}

    [[nodiscard]] std::size_t PacketsAtOnce() const {
        const auto packets = packetTime.count() == 0 ? StreamSocket::mostPackets
                                                     : static_cast<std::size_t>(nanoseconds(burstTime) / packetTime);
        return std::clamp<std::size_t>(packets, 1, StreamSocket::mostPackets);
    }
    void Sent(std::size_t packets, Time now) {
        free = std::max(free, now - std::max(longestDebt, largestDebt * packetTime)) +
               packetTime * static_cast<std::int64_t>(packets);
    }
    [[nodiscard]] Time Free() const { return free; }

private:
    nanoseconds packetTime;
    Time free{};
};

/// A delayed packet.
struct HeldPacket {
    Endpoint to;
    Bytes bytes;
};

} // namespace

class StreamSender::Thread {
public:
    Thread(Device& guarded, std::mutex& mutexOfDevice, std::uint32_t address, const StreamOptions& how,
           Recorder* record)
        : device(guarded),
          mutex(mutexOfDevice),
          socket(address),
          options(how),
          drop(how.drop),
          random(how.seed),
          renderer(World(how.seed)),
          recorder(record) {
        device.SetStreamSource(socket.Self().port);
        thread = std::thread([this] { Run(); });
    }
    ~Thread() {
        {
            const std::lock_guard lock(mutex);
            ended = true;
        }
        changed.notify_one();
        thread.join();
    }
    Thread(const Thread&) = delete;
    Thread& operator=(const Thread&) = delete;

    void Wake() { changed.notify_one(); }

private:
    void Run() {
        prctl(PR_SET_TIMERSLACK, 1000, 0, 0, 0); // nanoseconds; the default of 50 us is too coarse for the pace
        while (const auto block = AwaitBlock()) {
            Send(*block);
        }
    }

    /// Serves requests until a block is ready. Returns nothing at the end.
    std::optional<DueBlock> AwaitBlock() {
        std::unique_lock lock(mutex);
        while (!ended) {
            device.PassTime(Clock::now());
            if (ServeRequests(lock)) {
                continue;
            }
            if (auto block = device.Stream().TakeBlock()) {
                return block;
            }
            WaitUntil(lock, device.StreamDue());
        }
        return std::nullopt;
    }

    void WaitUntil(std::unique_lock<std::mutex>& lock, std::optional<Time> time) {
        if (!held.empty()) {
            time = std::min(time.value_or(Time::max()), held.begin()->first);
        }
        if (time) {
            changed.wait_until(lock, *time);
        } else {
            changed.wait(lock);
        }
        lock.unlock();
        SendHeld();
        lock.lock();
    }

    void Send(const DueBlock& due) {
        Picture::Frame frame = sent.TakeFrame();
        renderer.Render(due.exposed.settings, due.exposed.number, frame);
        const Gvsp::Block& block =
            sent.Add(Gvsp::Block(due.id, due.timestamp, due.target.packetSize, std::move(frame)));
        Pace pace(options.megabytesPerSecond, due.target);
        for (std::uint32_t packet = 0; packet < block.PacketCount() && AwaitLink(pace, due.target);) {
            const std::uint32_t end =
                std::min(block.PacketCount(), packet + static_cast<std::uint32_t>(pace.PacketsAtOnce()));
            pace.Sent(end - packet, Clock::now());
            for (; packet < end; ++packet) {
                Put(due.target, block.At(packet));
            }
            Flush(due.target);
        }
    }

    /// Serves requests until the link is free.
    /// @return whether the rest of the block is still wanted
    bool AwaitLink(const Pace& pace, const StreamTarget& target) {
        std::unique_lock lock(mutex);
        for (;;) {
            const auto current = device.Stream().Target();
            if (ended || !current || !(current->receiver == target.receiver)) {
                return false;
            }
            if (!ServeRequests(lock)) {
                if (Clock::now() >= pace.Free()) {
                    return true;
                }
                WaitUntil(lock, pace.Free());
            }
        }
    }

    /// Serves the requests of receivers.
    /// @return whether there were any
    bool ServeRequests(std::unique_lock<std::mutex>& lock) {
        StreamChannel& stream = device.Stream();
        const auto target = stream.Target();
        const bool isTest = stream.TakeTestPacket();
        const auto resends = stream.TakeResends();
        if (!target || (!isTest && resends.empty())) {
            return false;
        }
        lock.unlock();
        if (isTest) {
            SendTestPacket(*target);
        }
        for (const ResendRequest& request : resends) {
            sent.Resend(request, [&](const Gvsp::Packet& packet) {
                Put(*target, packet);
                if (burst.size() == StreamSocket::mostPackets) {
                    Flush(*target);
                }
            });
        }
        Flush(*target);
        lock.lock();
        return true;
    }

    /// Sends a packet of the full size, never in fragments.
    void SendTestPacket(const StreamTarget& target) {
        const Bytes filling(target.packetSize - Gvsp::ipAndUdpSize);
        StreamTarget whole = target;
        whole.dontFragment = true;
        Put(whole, {{}, 0, filling});
        Flush(whole);
    }

    /// Adds the packet to the next Flush, unless it is lost or delayed.
    void Put(const StreamTarget& target, const Gvsp::Packet& packet) {
        if (drop.Occurs(random)) {
            return;
        }
        if (options.delay.count() == 0) {
            burst.push_back(packet);
            return;
        }
        Bytes bytes(packet.Head().begin(), packet.Head().end());
        bytes.insert(bytes.end(), packet.data.begin(), packet.data.end());
        std::uniform_int_distribution<std::int64_t> delay(0, microseconds(options.delay).count());
        held.emplace(Clock::now() + microseconds(delay(random)), HeldPacket{target.receiver, std::move(bytes)});
    }

    void Flush(const StreamTarget& target) {
        socket.SetDontFragment(target.dontFragment);
        SendNow(target.receiver, burst);
        burst.clear();
        SendHeld();
    }

    void SendHeld() {
        while (!held.empty() && held.begin()->first <= Clock::now()) {
            const HeldPacket& packet = held.begin()->second;
            const Gvsp::Packet whole{{}, 0, packet.bytes};
            SendNow(packet.to, {&whole, 1});
            held.erase(held.begin());
        }
    }

    void SendNow(const Endpoint& to, std::span<const Gvsp::Packet> packets) {
        socket.Send(to, packets);
        if (recorder != nullptr) {
            for (const Gvsp::Packet& packet : packets) {
                recorder->RecordStream(socket.Self(), to, packet.Head(), packet.data);
            }
        }
    }

    Device& device;
    std::mutex& mutex;
    StreamSocket socket;
    const StreamOptions options;
    RandomOccurrence drop;
    std::mt19937_64 random;
    Picture::Renderer renderer;
    Recorder* recorder;
    SentBlocks sent;
    std::vector<Gvsp::Packet> burst;
    std::multimap<Time, HeldPacket> held;
    std::condition_variable changed;
    bool ended = false;
    std::thread thread; // the last member, because it uses all others
};

StreamSender::StreamSender(Device& guarded, std::mutex& mutex, std::uint32_t address, const StreamOptions& options,
                           Recorder* recorder)
    : thread(std::make_unique<Thread>(guarded, mutex, address, options, recorder)) {}

StreamSender::~StreamSender() = default;

void StreamSender::Wake() { thread->Wake(); }

} // namespace Simulation::GigEVision
