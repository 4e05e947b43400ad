// Other programs receive the pictures of a simulated camera: they get exactly what the renderer makes of the settings.

#include "Simulation/Cameras.h"
#include "Simulation/Picture/Renderer.h"
#include "Tests/Support/Files.h"
#include "Tests/Support/Running.h"

#include <arv.h>

#include <filesystem>
#include <memory>

namespace Network {

namespace {

using Simulation::Bytes;
using Test::Content;
using Test::Running;
using Test::TemporaryFile;

/// A camera with settings, among them a test pattern: all its pictures are alike.
struct Scenery {
    std::string model;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> settings; ///< addresses and what is written there
    std::string caps; ///< without them aravissrc selects the first format that the next element accepts
};

const Scenery mono{
    "Orvik-710M", {{0x28050008, 639}, {0x2805000C, 479}, {0x5A010000, 1}, {0x16030000, 1}}, "video/x-raw,format=GRAY8"};
const Scenery color{"Orvik-710C", {{0x28050008, 639}, {0x2805000C, 479}, {0x5A010000, 1}}, "video/x-raw,format=RGB"};

/// The picture of the camera.
Bytes Expected(const Scenery& scenery) {
    const auto camera = Simulation::MakeCamera(scenery.model);
    for (const auto& [address, value] : scenery.settings) {
        camera->WriteRegister(address, value);
    }
    Simulation::Picture::Frame frame;
    Simulation::Picture::Renderer renderer(Simulation::World(0));
    renderer.Render(Simulation::Picture::SettingsOf(camera->Registers()), 1, frame);
    return frame.bytes;
}

template <typename Object> using Owned = std::unique_ptr<Object, decltype(&g_object_unref)>;

class ReceiverTest : public testing::Test {
protected:
    void SwitchOn(const Scenery& scenery) {
        simulator.reset(); // the address must be free
        simulator = std::make_unique<Running>(
            QDV12_SIMULATOR, std::vector<std::string>{scenery.model, "--address", "192.168.1.10", "--link", "30"},
            Running::both);
        simulator->ReadUntil("\n");
        camera = {arv_camera_new("192.168.1.10", nullptr), &g_object_unref};
        ASSERT_NE(camera, nullptr) << simulator->Read();
        for (const auto& [address, value] : scenery.settings) {
            EXPECT_TRUE(arv_device_write_register(arv_camera_get_device(camera.get()), address, value, nullptr));
        }
    }

    std::unique_ptr<Running> simulator;
    Owned<ArvCamera> camera{nullptr, &g_object_unref};
};

TEST_F(ReceiverTest, StartsAndStopsOnOneStream) {
    SwitchOn(mono);
    const Bytes expected = Expected(mono);
    const Owned<ArvStream> stream(arv_camera_create_stream(camera.get(), nullptr, nullptr, nullptr), &g_object_unref);
    ASSERT_NE(stream, nullptr);
    g_object_set(stream.get(), "frame-retention", 5'000'000, nullptr); // microseconds: the machine may be busy
    for (int i = 0; i < 10; ++i) {
        arv_stream_push_buffer(stream.get(), arv_buffer_new_allocate(expected.size()));
    }
    for (int round = 0; round < 3; ++round) {
        arv_camera_start_acquisition(camera.get(), nullptr);
        for (int i = 0; i < 5; ++i) {
            ArvBuffer* const buffer = arv_stream_timeout_pop_buffer(stream.get(), 5'000'000);
            ASSERT_NE(buffer, nullptr) << "round " << round << ", frame " << i;
            EXPECT_EQ(arv_buffer_get_status(buffer), ARV_BUFFER_STATUS_SUCCESS) << "round " << round << ", frame " << i;
            std::size_t size = 0;
            const auto* const data = static_cast<const std::uint8_t*>(arv_buffer_get_data(buffer, &size));
            EXPECT_TRUE(Bytes(data, data + size) == expected) << "round " << round << ", frame " << i;
            arv_stream_push_buffer(stream.get(), buffer);
        }
        arv_camera_stop_acquisition(camera.get(), nullptr);
    }
}

TEST_F(ReceiverTest, ShowsThePictureInGStreamer) {
    if (Running("gst-launch-1.0", {"--version"}, Running::both).End() != 0) {
        GTEST_SKIP() << "GStreamer is not installed";
    }
    for (const Scenery& scenery : {mono, color}) {
        SwitchOn(scenery);
        camera.reset(); // gives control back
        const std::string png = TemporaryFile("png");
        const std::string raw = TemporaryFile("raw");
        Running receiver("gst-launch-1.0",
                         {"aravissrc", "camera-name=192.168.1.10", "num-buffers=1", "!", scenery.caps, "!", "pngenc",
                          "!", "filesink", "location=" + png},
                         Running::both);
        EXPECT_EQ(receiver.End(), 0) << receiver.Read();
        Running decoder("gst-launch-1.0",
                        {"filesrc", "location=" + png, "!", "pngdec", "!", "filesink", "location=" + raw},
                        Running::both);
        EXPECT_EQ(decoder.End(), 0) << decoder.Read();
        const std::string shown = Content(raw);
        EXPECT_TRUE(Bytes(shown.begin(), shown.end()) == Expected(scenery)) << scenery.model;
        std::filesystem::remove(png);
        std::filesystem::remove(raw);
    }
}

} // namespace

} // namespace Network
