// A host with pictures: finds an Orvik camera on the network by Aravis, gives the plug-in a port to it, sets the
// exposure time, and receives pictures. The plug-in sets the camera up and starts it; the pictures come by Aravis
// alone.
//
//     live-host ADDRESS [PICTURES]

#include "ArvPort.h"

#include <SDK4/SDK4.h>

#include <dlfcn.h>
#include <log4cxx/logger.h>

#include <cstdio>
#include <exception>
#include <numeric>

namespace {

using namespace SDK4::Control;

struct Close {
    void operator()(void* library) const { dlclose(library); }
};
struct Release {
    void operator()(IDynamicObject* camera) const { camera->Release(); }
};
struct Unreference {
    void operator()(void* object) const { g_object_unref(object); }
};
struct Stop {
    void operator()(SDK4::IStreamControl* stream) const {
        try {
            stream->Stop();
        } catch (...) {
            std::fprintf(stderr, "acquisition may still run\n");
        }
    }
};
using Stream = std::unique_ptr<ArvStream, Unreference>;
using Buffer = std::unique_ptr<ArvBuffer, Unreference>;

/// What the camera calls itself: bootstrap register 0x0068 of the standard.
std::string ModelOf(ArvPort& port) { return port.ReadString(0x0068, 32); }

/// Opens the stream, with buffers for pictures as the camera is set to now.
Stream OpenStream(ArvDevice* device, SDK4::IVideoFrame& frame) {
    // Packets as large as the network takes them.
    arv_gv_device_set_packet_size_adjustment(ARV_GV_DEVICE(device), ARV_GV_PACKET_SIZE_ADJUSTMENT_ALWAYS);
    GError* error = nullptr;
    Stream stream(arv_device_create_stream(device, nullptr, nullptr, &error));
    ThrowIf(error);
    const std::size_t bitsPerPixel = frame.GetFormat() >> 16 & 0xFF; // so the standard numbers its formats
    const std::size_t size = (std::size_t{frame.GetWidth()} * frame.GetHeight() * bitsPerPixel + 7) / 8;
    for (int i = 0; i < 8; ++i) {
        arv_stream_push_buffer(stream.get(), arv_buffer_new_allocate(size));
    }
    return stream;
}

/// Receives a picture, and gives its buffer back to the stream.
void Receive(ArvStream* stream) {
    Buffer buffer(arv_stream_timeout_pop_buffer(stream, 5'000'000)); // microseconds
    if (!buffer) {
        throw std::runtime_error("no picture came");
    }
    if (arv_buffer_get_status(buffer.get()) == ARV_BUFFER_STATUS_SUCCESS) {
        std::size_t size = 0;
        const auto* const data = static_cast<const unsigned char*>(arv_buffer_get_data(buffer.get(), &size));
        const double sum = std::accumulate(data, data + size, 0.0);
        std::printf("picture %u: %d x %d, mean %.1f\n", static_cast<unsigned>(arv_buffer_get_frame_id(buffer.get())),
                    arv_buffer_get_image_width(buffer.get()), arv_buffer_get_image_height(buffer.get()),
                    sum / static_cast<double>(size));
    } else {
        std::printf("picture %u: packets are missing\n", static_cast<unsigned>(arv_buffer_get_frame_id(buffer.get())));
    }
    arv_stream_push_buffer(stream, buffer.release());
}

void Run(const char* address, int pictures) {
    const std::unique_ptr<void, Close> library(dlopen(QDV12_PLUGIN, RTLD_NOW | RTLD_LOCAL));
    if (!library) {
        throw std::runtime_error(dlerror());
    }
    using CreateObject = void*(const char* model, void* port, std::int32_t index);
    auto* const create = reinterpret_cast<CreateObject*>(dlsym(library.get(), "CreateObject"));

    // Aravis takes control of the camera, and keeps it until the device goes: last, but for the library.
    GError* error = nullptr;
    const std::unique_ptr<ArvDevice, Unreference> device(arv_open_device(address, &error));
    ThrowIf(error);
    if (!device || !ARV_IS_GV_DEVICE(device.get())) {
        throw std::runtime_error("no GigE Vision camera at this address");
    }
    ArvPort port(device.get());
    const std::string model = ModelOf(port); // the control keeps the text
    const std::unique_ptr<IDynamicObject, Release> camera(
        static_cast<IDynamicObject*>(create(model.c_str(), static_cast<SDK4::IControlPort*>(&port), 0)));
    if (!camera) {
        throw std::runtime_error("the plug-in does not serve " + model);
    }

    // An interface that the camera's family lacks ends in std::bad_cast: these are of an Orvik camera.
    dynamic_cast<ISignalFormat&>(*camera).SetColorCoding(SDK4_COLORCODING_MONO8); // a byte for each pixel
    dynamic_cast<IExposure&>(*camera).SetExposure({1, 500});
    auto& frame = dynamic_cast<SDK4::IVideoFrame&>(*dynamic_cast<IDSMediaType&>(*camera).GetMediaType());
    const Stream stream = OpenStream(device.get(), frame); // size and format do not change until acquisition stops

    auto& control = dynamic_cast<SDK4::IStreamControl&>(*camera);
    control.Start();
    const std::unique_ptr<SDK4::IStreamControl, Stop> running(&control);
    for (int i = 0; i < pictures; ++i) {
        Receive(stream.get());
    }
}

} // namespace

int main(int argc, char** argv) {
    // The plug-in takes log4cxx from its host, which decides what is logged.
    log4cxx::Logger::getRootLogger()->setLevel(log4cxx::Level::getOff());
    try {
        if (argc < 2) {
            throw std::runtime_error("usage: live-host ADDRESS [PICTURES]");
        }
        Run(argv[1], argc < 3 ? 3 : std::atoi(argv[2]));
        return 0;
    } catch (const SDK4::X4Error& error) {
        std::fprintf(stderr, "refused: %s\n", SDK4::ErrorName(error.code));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}
