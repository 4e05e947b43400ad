#include "Host/Channel/GigEStream.h"

#include "Common/Bootstrap.h"
#include "Host/Channel/AravisErrors.h"
#include "Host/Channel/ReceiveSocket.h"
#include "Host/Channel/TestPackets.h"
#include "Host/Pictures/PixelFormat.h"

#include <arv.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Host {

namespace {

constexpr std::uint64_t bufferedBytes = std::uint64_t{256} << 20; ///< memory of all buffers together, ...
constexpr std::uint64_t fewestBuffers = 4;                        ///< ... but at least this number of buffers
constexpr std::uint64_t mostBuffers = 32;
constexpr std::uint64_t largestPicture = std::uint64_t{1} << 30;
constexpr std::uint64_t lateness = 1000; ///< a frame number lower by more than this means that the numbers wrapped

constexpr std::uint32_t smallestPacket = 576; ///< that every network passes

struct Unreference {
    void operator()(void* object) const { g_object_unref(object); }
};
using Buffer = std::unique_ptr<ArvBuffer, Unreference>;
using Stream = std::unique_ptr<ArvStream, Unreference>;

/// The address of the network card that faces the camera.
std::uint32_t OwnAddress(ArvDevice& device) {
    auto* const address = G_INET_SOCKET_ADDRESS(arv_gv_device_get_interface_address(ARV_GV_DEVICE(&device)));
    const guint8* const bytes = g_inet_address_to_bytes(g_inet_socket_address_get_address(address));
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 | bytes[3];
}

Stream Create(ArvDevice& device) {
    arv_gv_device_set_packet_size_adjustment(ARV_GV_DEVICE(&device), ARV_GV_PACKET_SIZE_ADJUSTMENT_ALWAYS);
    // A packet socket, which Aravis opens as root, has neither the counts nor the buffer limit of the UDP socket.
    arv_gv_device_set_stream_options(ARV_GV_DEVICE(&device), ARV_GV_STREAM_OPTION_PACKET_SOCKET_DISABLED);
    GError* failure = nullptr;
    Stream stream(arv_device_create_stream(&device, nullptr, nullptr, &failure));
    const std::unique_ptr<GError, decltype(&g_error_free)> error(failure, &g_error_free);
    if (stream == nullptr || error != nullptr) {
        throw std::runtime_error("the stream of pictures could not be opened: " +
                                 (error ? Reason(*error) : "unknown error"));
    }
    return stream;
}

/// Gives the camera the packet size back that it had before the negotiation.
class PacketSizeGuard {
public:
    explicit PacketSizeGuard(SDK4::IControlPort& ofCamera)
        : port(ofCamera),
          before(port.ReadRegister(Common::Bootstrap::streamPacketSize)) {}
    ~PacketSizeGuard() {
        try {
            port.WriteRegister(Common::Bootstrap::streamPacketSize, before);
        } catch (...) { // NOLINT(bugprone-empty-catch): the camera is lost, which the command reports
        }
    }
    PacketSizeGuard(const PacketSizeGuard&) = delete;
    PacketSizeGuard& operator=(const PacketSizeGuard&) = delete;

private:
    SDK4::IControlPort& port;
    std::uint32_t before;
};

class GigEStream final : public PictureSource {
public:
    GigEStream(ArvDevice& device, SDK4::IControlPort& port, std::uint64_t payload)
        : control(port),
          ownAddress(OwnAddress(device)),
          packetSizeOfCamera(port),
          stream(Create(device)),
          socket(arv_gv_stream_get_port(ARV_GV_STREAM(stream.get()))),
          packetSize(arv_gv_device_get_packet_size(ARV_GV_DEVICE(&device), nullptr)),
          wantedBuffer(2 * payload) {
        socket.Enlarge(wantedBuffer); // Aravis does this only after the first packet
        const std::uint64_t buffers = std::clamp(bufferedBytes / payload, fewestBuffers, mostBuffers);
        for (std::uint64_t i = 0; i < buffers; ++i) {
            arv_stream_push_buffer(stream.get(), arv_buffer_new_allocate(payload));
        }
    }

    [[nodiscard]] bool Await(std::chrono::milliseconds longest) override;
    [[nodiscard]] const Picture& Develop() override { return picture; }
    [[nodiscard]] StreamStatistics Statistics() const override;
    [[nodiscard]] std::string ExplainLosses() const override;

private:
    /// Counts a frame that arrived, completely or in part. @return whether it is complete
    bool Count(ArvBuffer* buffer);
    [[nodiscard]] std::uint64_t Info(const char* name) const {
        return arv_stream_get_info_uint64_by_name(stream.get(), name);
    }

    /// Why packets are missing that this machine did not drop, as test packets show.
    [[nodiscard]] std::string ExplainPath() const;

    SDK4::IControlPort& control;
    std::uint32_t ownAddress;
    PacketSizeGuard packetSizeOfCamera; // after the stream has ended
    Stream stream;
    ReceiveSocket socket;
    std::uint32_t packetSize;
    std::uint64_t wantedBuffer;
    std::uint64_t last = 0; ///< frame; 0 before the first
    std::uint64_t missing = 0;
    Buffer held; ///< of the picture that Next returned
    Picture picture{};
};

bool GigEStream::Count(ArvBuffer* buffer) {
    const ArvBufferStatus status = arv_buffer_get_status(buffer);
    if (status == ARV_BUFFER_STATUS_CLEARED || status == ARV_BUFFER_STATUS_ABORTED) {
        return false;
    }
    const std::uint64_t number = arv_buffer_get_frame_id(buffer);
    if (last != 0 && number > last) {
        missing += number - last - 1;
    } else if (last > number + lateness) { // 1 follows 65535
        missing += 65535 - std::min<std::uint64_t>(last, 65535) + number - 1;
    }
    last = number;
    missing += status == ARV_BUFFER_STATUS_SUCCESS ? 0 : 1;
    return status == ARV_BUFFER_STATUS_SUCCESS;
}

/// The format of an image; for any other payload an empty one, which matches no camera.
PictureFormat FormatOf(ArvBuffer* buffer) {
    if (arv_buffer_get_payload_type(buffer) != ARV_BUFFER_PAYLOAD_TYPE_IMAGE) {
        return {};
    }
    return {arv_buffer_get_image_pixel_format(buffer), static_cast<std::uint32_t>(arv_buffer_get_image_width(buffer)),
            static_cast<std::uint32_t>(arv_buffer_get_image_height(buffer))};
}

bool GigEStream::Await(std::chrono::milliseconds longest) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + longest;
    while (true) {
        const auto left = std::chrono::duration_cast<std::chrono::microseconds>(end - Clock::now()).count();
        Buffer came(arv_stream_timeout_pop_buffer(stream.get(), static_cast<guint64>(std::max<std::int64_t>(left, 0))));
        if (came == nullptr) {
            return false;
        }
        if (!Count(came.get())) {
            arv_stream_push_buffer(stream.get(), came.release());
            continue;
        }
        if (held != nullptr) {
            arv_stream_push_buffer(stream.get(), held.release());
        }
        held = std::move(came);
        std::size_t size = 0;
        const auto* const data = static_cast<const std::uint8_t*>(arv_buffer_get_data(held.get(), &size));
        picture = {FormatOf(held.get()),
                   arv_buffer_get_frame_id(held.get()),
                   std::chrono::nanoseconds(arv_buffer_get_timestamp(held.get())),
                   {data, size}};
        return true;
    }
}

StreamStatistics GigEStream::Statistics() const {
    return {missing, Info("n_resent_packets"), socket.Dropped(), packetSize, socket.BufferSize()};
}

std::string GigEStream::ExplainPath() const {
    TestPackets test(control, ownAddress);
    if (test.Try(packetSize) != 0) {
        return Info("n_received_packets") == 0
                   ? "test packets arrive, but the camera sent no pictures"
                   : "this machine dropped none of the packets that reached it: look at the network and the camera";
    }
    if (const std::uint32_t passing = test.Try(smallestPacket); passing != 0) {
        return "packets of " + std::to_string(packetSize) + " bytes do not arrive, those of " +
               std::to_string(passing) + " bytes do: the MTU of a network card or a switch is too small";
    }
    return "no packet came, not even a test packet: does a firewall let UDP from the camera through?";
}

std::string GigEStream::ExplainLosses() const {
    const std::uint64_t granted = socket.BufferSize();
    std::string text;
    if (const std::uint64_t dropped = socket.Dropped(); dropped > 0) {
        text = std::to_string(dropped) + " packets found no room in the socket buffer of " + std::to_string(granted) +
               " bytes" +
               (granted < wantedBuffer
                    ? " (net.core.rmem_max limits it; " + std::to_string(wantedBuffer) + " bytes were requested)"
                    : "");
    }
    if (Info("n_underruns") > 0) {
        text += (text.empty() ? "" : "; ") + std::string("frames came while earlier pictures were still being written");
    }
    return text.empty() ? ExplainPath() : text;
}

} // namespace

std::unique_ptr<PictureSource> OpenGigEStream(_ArvDevice& device, SDK4::IControlPort& port,
                                              const PictureFormat& format) {
    const std::uint64_t payload = PayloadSize(format.pixelFormat, format.width, format.height);
    if (payload == 0 || payload > largestPicture) {
        throw std::runtime_error("pictures of " + std::to_string(payload) + " bytes cannot be received");
    }
    return std::make_unique<GigEStream>(device, port, payload);
}

} // namespace Host
