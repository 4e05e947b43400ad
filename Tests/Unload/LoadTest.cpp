// A host that loads the library, uses cameras of both families and unloads it, a thousand times. The library must leave
// the process each time, and memory may grow only by what ARCHITECTURE.md says a released camera leaves.
//
// An ordinary host: C++17, the public headers, log4cxx. Built by more than one compiler. Run it with
// GLIBC_TUNABLES=glibc.malloc.tcache_count=0, so that freed memory counts as free at once.

#include <SDK4/SDK4.h>

#include <log4cxx/appenderskeleton.h>
#include <log4cxx/level.h>
#include <log4cxx/logger.h>
#include <log4cxx/spi/loggerrepository.h>

#include <dlfcn.h>
#include <link.h>
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace {

/// The bytes that a released camera may leave ("Who owns what" in ARCHITECTURE.md).
constexpr long orvikRemainder = 24 * 1024L, m2vxRemainder = 0;

constexpr int rounds = 1000;
constexpr int firstSteadyRound = 100; ///< by then log4cxx and the loader have allocated all that they keep

int failures = 0;

void Expect(bool holds, const char* what, int round) {
    if (!holds && ++failures <= 20) {
        std::printf("round %d: %s\n", round, what);
    }
}

long BytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<long>(info.uordblks + info.hblkhd);
}

long CountOfMappings() {
    std::ifstream maps("/proc/self/maps");
    return static_cast<long>(std::count(std::istreambuf_iterator<char>(maps), {}, '\n'));
}

/// A camera whose registers hold the written values, initially zero. Texts fill their register.
class Port final : public SDK4::IControlPort {
public:
    void WriteRegister(std::uint32_t address, std::uint32_t value) override { Store(address, &value, sizeof value); }
    std::uint32_t ReadRegister(std::uint32_t address) override { return Load<std::uint32_t>(address); }
    void WriteRegisterPair(std::uint32_t address, std::uint64_t value) override {
        Store(address, &value, sizeof value);
    }
    std::uint64_t ReadRegisterPair(std::uint32_t address) override { return Load<std::uint64_t>(address); }
    unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) override {
        auto* block = static_cast<unsigned char*>(std::malloc(length));
        Fill(address, block, length);
        return block;
    }
    void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) override {
        Store(address, buffer, length);
    }
    char* ReadString(std::uint32_t /*address*/, std::uint32_t length) override {
        text.assign(length, 'x');
        return text.data();
    }
    void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) override {
        Store(address, buffer, length);
    }
    void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override {
        Fill(address, buffer, *length);
    }
    void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override {
        Store(address, buffer, *length);
    }

private:
    void Store(std::uint32_t address, const void* buffer, std::size_t length) {
        memory[address].assign(static_cast<const char*>(buffer), length);
    }
    void Fill(std::uint32_t address, void* buffer, std::size_t length) {
        const bool isIdentityText = address == 0x64010000 || address == 0x64020000 || address == 0x65020000;
        std::memset(buffer, isIdentityText ? 'x' : 0, length);
        if (const auto found = memory.find(address); found != memory.end()) {
            std::memcpy(buffer, found->second.data(), std::min(found->second.size(), length));
        }
    }
    template <typename T> T Load(std::uint32_t address) {
        T value;
        Fill(address, &value, sizeof value);
        return value;
    }

    std::map<std::uint32_t, std::string> memory;
    std::string text;
};

struct Registry final : IModelRegistry {
    void RegisterModel(const char* /*modelName*/, const char* /*libraryKey*/) override { ++models; }
    int models = 0;
};

/// Formats log lines as a file appender would.
struct Sink final : log4cxx::AppenderSkeleton {
    void close() override {}
    bool requiresLayout() const override { return false; }
    void append(const log4cxx::spi::LoggingEventPtr& /*event*/, log4cxx::helpers::Pool& /*pool*/) override { ++lines; }
    long lines = 0;
};

log4cxx::LoggerPtr LibraryLogger() { return log4cxx::Logger::getLogger("SDK4QDV12Control"); }

std::size_t CountOfLoggers() { return LibraryLogger()->getLoggerRepository()->getCurrentLoggers().size(); }

bool IsMapped(const std::string& library) {
    const auto matches = [](dl_phdr_info* module, std::size_t /*size*/, void* name) {
        return module->dlpi_name == *static_cast<const std::string*>(name) ? 1 : 0;
    };
    return dl_iterate_phdr(matches, const_cast<std::string*>(&library)) != 0;
}

template <typename Call> std::int32_t CodeOf(const Call& call) {
    try {
        call();
    } catch (const SDK4::X4Error& error) {
        return error.code;
    } catch (...) {
        return 1;
    }
    return 0;
}

template <typename Interface> Interface& As(IDynamicObject& camera) { return dynamic_cast<Interface&>(camera); }

void UseOrvik(IDynamicObject& camera, int round) {
    using namespace SDK4::Control;
    auto& gain = As<IGain>(camera);
    gain.SetGain(7);
    Expect(gain.GetGain() == 7, "Orvik: the gain is not the one set", round);
    Expect(CodeOf([&] { gain.SetGain(512); }) == SDK4_ERR_OUTOFRANGE, "Orvik: no X4Error for a gain of 512", round);
    auto& identity = As<IGufi>(camera); // the caches of these texts stay after the release
    const std::string name = identity.GetDeviceName();
    Expect(name.size() > 15, "Orvik: the name fits without allocation", round);
    identity.GetSerialNumber();
    identity.GetSoftwareBuild();
    auto* media = As<IDSMediaType>(camera).GetMediaType();
    Expect(dynamic_cast<SDK4::IVideoFrame&>(*media).GetWidth() == 0, "Orvik: the frame has a width", round);
    As<IBasicSettings>(camera).LoadSettings(1);
    Expect(dynamic_cast<IPropertyState*>(&camera) == nullptr, "Orvik: has the other family's interface", round);
}

void UseM2VX(IDynamicObject& camera, int round) {
    using namespace SDK4::Control;
    auto& gain = As<M2VX::IGain>(camera);
    gain.SetGain(7);
    Expect(gain.GetGain() == 7, "M2VX: the gain is not the one set", round);
    Expect(CodeOf([&] { gain.SetGain(9999); }) == SDK4_ERR_OUTOFRANGE, "M2VX: no X4Error for a gain of 9999", round);
    Expect(std::strlen(As<IGufi>(camera).GetDeviceName()) > 15, "M2VX: the name fits without allocation", round);
    auto& properties = As<IPropertyState>(camera);
    properties.AddCallback([](const char*, const char*, void*) {}, nullptr); // and is not removed before the release
    properties.SetEnabled("sharpness", false);
    Expect(properties.GetUIntValue("gain") <= 9999, "M2VX: the property lost the gain", round);
    auto* media = As<IDSMediaType>(camera).GetMediaType();
    Expect(dynamic_cast<SDK4::IVideoFrame&>(*media).GetWidth() == 0, "M2VX: the frame has a width", round);
    Expect(dynamic_cast<IGain*>(&camera) == nullptr, "M2VX: has the other family's interface", round);
}

struct Case {
    const char* model;
    std::int32_t index;
    void (*use)(IDynamicObject& camera, int round);
    long allowed;    ///< allowed remaining bytes
    long opened = 0; ///< most bytes left after opening and releasing
    long used = 0;   ///< the same with operations in between
};

Case cases[] = {
    {"Orvik-31200M", 0, UseOrvik, orvikRemainder},
    {"Orvik-710C", 2, UseOrvik, orvikRemainder},
    {"Cerix7-MV", 0, UseM2VX, m2vxRemainder},
    {"Sollux G", 3, UseM2VX, m2vxRemainder},
};

using CreateFunction = void*(const char* model, void* port, std::int32_t index);

/// Opens and releases a camera. @return the bytes that remain in use
long BytesLeftBy(CreateFunction* create, const Case& camera, bool use, int round) {
    const long before = BytesInUse();
    {
        Port port;
        auto* object =
            static_cast<IDynamicObject*>(create(camera.model, static_cast<SDK4::IControlPort*>(&port), camera.index));
        Expect(object != nullptr, camera.model, round);
        if (object == nullptr) {
            return 0;
        }
        if (use) {
            camera.use(*object, round);
        }
        object->Release();
    }
    return BytesInUse() - before;
}

/// Loads, uses and unloads the library once. @return the bytes that remain in use, without those of the cameras
long Round(const char* path, int round) {
    const long before = BytesInUse();
    long leftByCameras = 0;
    void* library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        std::printf("%s\n", dlerror());
        std::exit(1);
    }
    Expect(IsMapped(path), "the library is not mapped", round);
    auto* init = reinterpret_cast<void (*)(void*)>(dlsym(library, "InitLibrary"));
    auto* create = reinterpret_cast<CreateFunction*>(dlsym(library, "CreateObject"));
    Registry registry;
    init(static_cast<IModelRegistry*>(&registry));
    Expect(registry.models == 13, "not thirteen models", round);
    for (Case& camera : cases) {
        const long opened = BytesLeftBy(create, camera, false, round);
        const long used = BytesLeftBy(create, camera, true, round);
        leftByCameras += opened + used;
        if (round >= firstSteadyRound) {
            camera.opened = std::max(camera.opened, opened);
            camera.used = std::max(camera.used, used);
        }
    }
    dlclose(library);
    Expect(!IsMapped(path), "the library is still mapped", round);
    return BytesInUse() - before - leftByCameras;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 || std::getenv("GLIBC_TUNABLES") == nullptr) {
        std::printf("usage: GLIBC_TUNABLES=glibc.malloc.tcache_count=0 %s LIBRARY\n", argv[0]);
        return 2;
    }
    const auto sink = std::make_shared<Sink>();
    LibraryLogger()->setAdditivity(false);
    LibraryLogger()->addAppender(sink);
    const std::size_t loggers = CountOfLoggers();

    long beside = 0, mappings = 0;
    for (int round = 1; round <= rounds; ++round) {
        LibraryLogger()->setLevel(round % 10 == 0 ? log4cxx::Level::getDebug() : log4cxx::Level::getOff());
        const long left = Round(argv[1], round);
        if (round == firstSteadyRound) {
            mappings = CountOfMappings();
        }
        if (round >= firstSteadyRound) {
            beside = round == firstSteadyRound ? left : std::max(beside, left);
        }
    }

    for (const Case& camera : cases) {
        std::printf("%-12s index %d: %ld bytes left by open and release, %ld after use, %ld stated\n", camera.model,
                    camera.index, camera.opened, camera.used, camera.allowed);
        Expect(camera.opened <= camera.allowed && camera.used <= camera.allowed,
               "a camera leaves more than ARCHITECTURE.md states", rounds);
    }
    std::printf("otherwise at most %ld bytes left per round; %ld log lines\n", beside, sink->lines);
    Expect(beside <= 0, "loading and unloading leaves memory behind", rounds);
    Expect(CountOfMappings() == mappings, "the process has other mappings than at the beginning", rounds);
    Expect(sink->lines > 0, "nothing was logged at debug level", rounds);
    Expect(CountOfLoggers() == loggers, "log4cxx knows more loggers than at the beginning", rounds);
    std::printf("%d rounds, %d failures\n", rounds, failures);
    return failures == 0 ? 0 : 1;
}
