#pragma once

#include "Host/Camera.h"
#include "Host/Json.h"
#include "Host/Panel/TraceLog.h"
#include "Host/Settings/UncachedCamera.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Host::Panel {

/// The functions of a camera as the clients of a panel see them: polled with at most a fifth of the time of the
/// channel. Every change gets a number, so that each client can be told what it has not seen.
class FunctionBoard {
public:
    using Clock = std::chrono::steady_clock;

    FunctionBoard(Session& opened, const Camera& setting, TraceLog& traced);

    /// Reads functions that are due, for some milliseconds.
    /// @param shown what clients show; the others are read every two seconds
    /// @throws ChannelLost
    void Poll(const std::set<std::string>& shown);
    /// Something was set, which may change everything else.
    void Refresh();
    /// Reads what the camera holds.
    [[nodiscard]] const Camera& Reader() const { return reader->Camera(); } // cppcheck-suppress returnTempReference
    /// Reads everything that has not been read, or is to be read again.
    void Complete();
    /// Reads one function, as FunctionToJson.
    [[nodiscard]] Json Describe(const Instance& instance, bool many = false) const;

    /// The number of the last change.
    [[nodiscard]] std::uint64_t Version() const { return version; }
    /// The values that changed after a version: an object of names. Null if there are none.
    [[nodiscard]] Json ValuesSince(std::uint64_t seen) const;
    /// The functions of which more than the value changed after a version.
    [[nodiscard]] std::vector<Json> FunctionsSince(std::uint64_t seen) const;
    /// All functions, as `describe --json` prints them without registers.
    [[nodiscard]] Json All() const;

private:
    struct Entry {
        Instance instance;
        bool many = false; ///< stands for many instances
        Json document{};
        Json value{};
        std::string printed{}; ///< the document without the value
        Clock::time_point read{};
        Clock::time_point described{};
        std::uint64_t valueVersion = 0;
        std::uint64_t documentVersion = 0;
        bool stale = true; ///< to be described soon
    };

    [[nodiscard]] Entry* Due(const std::set<std::string>& shown, Clock::time_point now);
    void ReadValue(Entry& entry);
    void Describe(Entry& entry);
    void SetValue(Entry& entry, Json value);
    /// A new control, because the image size is cached in any.
    void RenewReader();

    Session& session;
    const Camera& setter; ///< its published limits follow what was set
    std::unique_ptr<UncachedCamera> reader;
    Clock::time_point renewed{}; ///< when the reader was
    TraceLog& trace;
    std::vector<Entry> entries;
    std::size_t next = 0;
    std::uint64_t version = 0;
    Clock::time_point notBefore{};
};

} // namespace Host::Panel
