// Plays one input: a simulated device receives the datagrams of the input, from several senders.

#include "Tests/Fuzz/PacketFuzzer.h"

#include "Tests/Fuzz/Failures.h"
#include "Tests/Fuzz/Input.h"

#include "Simulation/Cameras.h"
#include "Simulation/GigEVision/Device.h"
#include "Simulation/GigEVision/SentBlocks.h"
#include "Simulation/Identity.h"

#include <array>
#include <chrono>
#include <span>
#include <vector>

namespace Fuzz {

namespace {

using Datagram = std::vector<std::uint8_t>;
using Simulation::GigEVision::Device;
using Simulation::GigEVision::Endpoint;

constexpr std::size_t headerSize = 8;
constexpr std::uint16_t forceIp = 0x0004;
constexpr std::size_t forceIpWords = 14;
constexpr std::size_t largestDatagram = 548; // 576 bytes of IPv4 minus the headers of IP and UDP

constexpr std::array<const char*, 2> models = {"Orvik-710C", "Cerix-MV7"};
constexpr std::array<Endpoint, 3> senders = {{{0x7F000001, 4711}, {0x7F000001, 4712}, {0xFFFFFFFF, 0xFFFF}}};
// Discovery, address, resend, registers, memory, action; events and answers, which no camera receives; invalid ones.
constexpr std::array<std::uint16_t, 16> commands = {0x0080, 0x0080,  0x0082, 0x0082, 0x0084, 0x0084, 0x0086, 0x0086,
                                                    0x0002, forceIp, 0x0040, 0x0100, 0x00C0, 0x0083, 0x0089, 0x0000};
constexpr std::array<std::uint32_t, 32> addresses = {
    0x0000,     0x0004,     0x0014,     0x0048,     0x00E8,     0x0200,     0x0400,     0x064C,
    0x0934,     0x0938,     0x0938,     0x0940,     0x0944,     0x0A00,     0x0A00,     0x0A00,
    0x0D04,     0x00010000, 0x00088134, 0x00088138, 0x0A030000, 0x14010000, 0x17020000, 0x1E030000,
    0x28050008, 0x28090000, 0x51010000, 0x51020000, 0x53020000, 0x64010000, 0xE0010000, 0xFFFFFFFC};
// Of the stream: port, packet size, delay, destination, source; acquisition mode and frame rate, exposure mode.
constexpr std::array<std::uint32_t, 8> streamAddresses = {0x0D00, 0x0D04,     0x0D08,     0x0D18,
                                                          0x0D1C, 0x00088130, 0x00088140, 0x0A020000};
constexpr std::array<std::uint32_t, 16> values = {0,   1,   2,   3,   4,      8,          16,         500,
                                                  512, 536, 540, 544, 0x1000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};

void Append(Datagram& datagram, std::uint32_t number, unsigned int bytes) {
    for (unsigned int shift = 8 * bytes; shift != 0; shift -= 8) {
        datagram.push_back(static_cast<std::uint8_t>(number >> (shift - 8)));
    }
}

std::uint32_t Raw(Input& input, unsigned int bytes) {
    std::uint32_t number = 0;
    for (; bytes != 0; --bytes) {
        number = number << 8 | input.Byte();
    }
    return number;
}

std::uint32_t PayloadWord(Input& input) {
    const std::uint8_t kind = input.Byte();
    if (kind >= 0x60 && kind < 0x70) {
        return streamAddresses[kind % streamAddresses.size()];
    }
    if (kind < 0x80) {
        return addresses[kind % addresses.size()] + (kind < 0x70 ? 0 : input.Byte());
    }
    return kind < 0xE0 ? values[kind % values.size()] : Raw(input, 4);
}

/// A request with a valid header and any content; one that forces an address is for the camera.
Datagram Request(Input& input, std::uint64_t mac) {
    static constexpr std::array<std::size_t, 8> lengths = {1, 2, 2, 2, 3, 4, 0, 9};
    const std::size_t length = input.Byte() < 0xF0 ? input.One(lengths) : input.Choice(140);
    Datagram datagram = {0x42, input.Byte() < 0xE0 ? std::uint8_t{1} : input.Byte()};
    const std::uint16_t command = input.One(commands);
    const std::size_t words = command == forceIp && length < 4 ? forceIpWords : length;
    Append(datagram, command, 2);
    Append(datagram, static_cast<std::uint32_t>(4 * words), 2);
    Append(datagram, 1 + input.Byte(), 2);
    for (std::size_t i = 0; i < words; ++i) {
        const bool isMac = words == forceIpWords && i < 2;
        Append(datagram, isMac ? static_cast<std::uint32_t>(mac >> 32 * (1 - i)) : PayloadWord(input), 4);
    }
    return datagram;
}

/// A damaged request, or random bytes.
Datagram Spoiled(Input& input, std::uint64_t mac) {
    if (input.Choice(4) == 0) {
        Datagram noise(input.Choice(2) == 0 ? input.Choice(16) : Raw(input, 2) % 2048);
        for (std::uint8_t& byte : noise) {
            byte = input.Byte();
        }
        return noise;
    }
    Datagram datagram = Request(input, mac);
    switch (input.Choice(3)) {
    case 0:
        datagram[Raw(input, 2) % datagram.size()] = input.Byte();
        break;
    case 1:
        datagram.resize(Raw(input, 2) % datagram.size());
        break;
    default:
        datagram.resize(datagram.size() + 1 + input.Byte());
    }
    return datagram;
}

std::uint16_t Half(std::span<const std::uint8_t> datagram, std::size_t at) {
    return static_cast<std::uint16_t>(datagram[at] << 8 | datagram[at + 1]);
}

void CheckAnswer(std::span<const std::uint8_t> request, std::span<const std::uint8_t> answer) {
    Require(answer.size() >= headerSize, "an answer has a header");
    Require(answer.size() <= largestDatagram, "an answer is no larger than the standard allows");
    Require(Half(answer, 4) == answer.size() - headerSize, "an answer is as long as it says");
    Require(request.size() >= headerSize && request[0] == 0x42, "what is no request gets no answer");
    Require(Half(request, 4) == request.size() - headerSize, "a request that is not as long as it says gets no answer");
    Require((request[1] & 1) != 0, "a request that asks for no answer gets none");
    Require(Half(answer, 2) == Half(request, 2) + 1, "an answer belongs to its command");
    Require(Half(answer, 6) == Half(request, 6) && Half(request, 6) != 0, "an answer belongs to its request");
    Require(Half(answer, 0) == 0 || Half(answer, 0) >= 0x8000, "a status is success or a failure");
}

/// What the stream makes of it.
void PlayStream(Device& device, Simulation::GigEVision::SentBlocks& sent) {
    namespace Gvsp = Simulation::GigEVision::Gvsp;
    auto& stream = device.Stream();
    if (const auto due = stream.TakeBlock()) {
        Require(due->id != 0, "there is no block 0");
        Require(due->target.receiver.port != 0, "a stream has a receiver");
        Require(due->exposed.settings.pixelFormat != 0, "a frame has a format");
        Simulation::Picture::Frame frame = sent.TakeFrame();
        frame.bytes.resize(5000);
        sent.Add(Gvsp::Block(due->id, due->timestamp, due->target.packetSize, std::move(frame)));
    }
    for (const auto& request : stream.TakeResends()) {
        std::size_t packets = 0;
        sent.Resend(request, [&](const Gvsp::Packet& packet) {
            Require(packet.Size() >= headerSize, "a packet has a header");
            ++packets;
        });
        Require(packets <= 7, "no more is sent again than a block has");
    }
    (void)stream.TakeTestPacket();
    (void)device.StreamDue();
}

} // namespace

std::size_t PlayDatagrams(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    const auto camera = Simulation::MakeCamera(input.One(models));
    const std::uint64_t mac = Simulation::MacNumberOf(camera->Registers());
    Simulation::GigEVision::Time now{};
    Device device(*camera, {0x7F000001, 0xFF000000}, now);
    Simulation::GigEVision::SentBlocks sent;
    std::size_t played = 0;
    Datagram datagram;
    for (; !input.AtEnd(); ++played) {
        const std::uint8_t kind = input.Byte();
        if (kind < 0x04) {
            now += std::chrono::milliseconds(50 * input.Byte());
        }
        if (kind == 0x10 && input.Byte() < 0x20) {
            device.Reboot(now);
        }
        if (kind < 0xF0 || datagram.empty()) { // else repeats the last one
            datagram = kind < 0xC0 ? Request(input, mac) : Spoiled(input, mac);
        }
        // In a buffer of exactly the datagram's size.
        const Datagram received(datagram);
        if (const auto answer = device.Answer(senders[kind % senders.size()], received, now)) {
            CheckAnswer(received, *answer);
        }
        PlayStream(device, sent);
    }
    now += Device::bootTime;
    const Datagram discovery = {0x42, 0x01, 0, 2, 0, 0, 0x12, 0x34};
    const auto answer = device.Answer({0x7F000002, 1}, discovery, now);
    Require(answer && answer->size() == 256 && (*answer)[0] == 0 && (*answer)[1] == 0, "the camera still serves");
    return played;
}

} // namespace Fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Fuzz::PlayDatagrams(bytes, size);
    return 0;
}
