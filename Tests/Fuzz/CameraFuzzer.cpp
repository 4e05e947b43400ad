// Plays one input: opens a camera, calls it and releases it. The input determines the camera's answers. For libFuzzer
// and Replay.cpp.

#include "Tests/Fuzz/Session.h"

#include <log4cxx/appenderskeleton.h>
#include <log4cxx/logger.h>
#include <log4cxx/spi/loggingevent.h>

#include <unistd.h>

#include <array>
#include <climits>

extern "C" void* CreateObject(const char* model, void* port, std::int32_t index);

/// Replaces the C library's: a software trigger waits for the time that the camera reports.
extern "C" int usleep(useconds_t /*microseconds*/) { return 0; }

namespace Fuzz {

namespace {

constexpr std::array<const char*, 5> models = {"Orvik-31200M", "Orvik-710C", "Cerix7-MV", "Cerix-MV7", "Sollux G"};
constexpr std::array<std::int32_t, 8> indices = {0, 2, 3, 0x13, 1, 0x12, -1, INT_MIN};

/// Discards all lines.
class NullAppender final : public log4cxx::AppenderSkeleton {
public:
    void close() override {}
    bool requiresLayout() const override { return false; }

protected:
    void append(const log4cxx::spi::LoggingEventPtr& event, log4cxx::helpers::Pool& /*pool*/) override {
        Require(!event->getMessage().empty(), "a line says something");
    }
};

log4cxx::LoggerPtr Logger() {
    static const log4cxx::LoggerPtr logger = [] {
        auto own = log4cxx::Logger::getLogger("SDK4QDV12Control");
        own->setAdditivity(false);
        own->addAppender(std::make_shared<NullAppender>());
        return own;
    }();
    return logger;
}

void Play(Input& input) {
    const char* model = input.One(models);
    const std::int32_t index = input.One(indices);
    // Debug lines are slow, so they are rare, and sessions with them make fewer calls.
    const bool debug = input.Byte() >= 0xF0;
    Logger()->setLevel(debug ? log4cxx::Level::getDebug() : log4cxx::Level::getOff());

    Session session{input};
    session.failures.Watch(
        [&] { session.camera = static_cast<IDynamicObject*>(CreateObject(model, &session.port, index)); });
    if (session.camera == nullptr) {
        return;
    }
    session.port.opening = false;
    for (unsigned int calls = debug ? 16 : 256; calls > 0 && !input.AtEnd(); --calls) {
        CallAny(session);
    }
    const unsigned long before = session.port.Accesses();
    session.failures.Watch([&] { session.camera->Release(); });
    Require(session.port.Accesses() == before, "a camera that is released is left alone");
}

} // namespace

} // namespace Fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Fuzz::Input input(bytes, size);
    Fuzz::Play(input);
    return 0;
}
