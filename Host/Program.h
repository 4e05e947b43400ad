#pragma once

#include "Host/Interrupts.h"
#include "Host/Session.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Host {

/// The options that every command takes.
struct Options {
    std::string plugin = DefaultPlugin();
    /// By default index 2, which is uncached with both families. The observer keeps the port from recording accesses
    /// that nobody reads.
    CameraOptions camera{.index = {}, .accesses = [](const Access&) {}};
    RecordingOptions record;
    bool json = false;
    std::string logLevel;  ///< empty: from the configuration, else off
    std::string logConfig; ///< a configuration file of log4cxx, or empty
};

/// State of one run of the program. Plug-in and camera are opened on first use.
class Program {
public:
    /// @throws UsageError for a recording that cannot be written
    explicit Program(Host::Options given);
    Program(const Program&) = delete; // the recorder's address is known
    Program& operator=(const Program&) = delete;

    [[nodiscard]] const Host::Options& Options() const { return options; }
    /// Whether results are printed as JSON.
    [[nodiscard]] bool Json() const { return options.json; }
    void SetJson(bool json) { options.json = json; }

    /// @throws OpenError
    [[nodiscard]] const Plugin& LoadedPlugin();
    /// Opens a camera, or returns the one that is open. Opens that one again if it was lost, and says so.
    /// @throws as Session
    [[nodiscard]] Session& Open(const std::string& camera);
    /// Whether a camera is open, or will be opened again.
    [[nodiscard]] bool IsOpen() const { return !opened.empty(); }
    /// Whether it is open now.
    [[nodiscard]] bool IsReady() const { return session.has_value(); }
    /// Whether this is the one, perhaps by another name.
    /// @throws as FindAddress
    [[nodiscard]] bool IsOpen(const std::string& camera);
    /// Closes the camera.
    void Close();
    /// Closes a camera that was lost, which the next Open opens again.
    void CloseLost();
    /// Stops acquisition if it runs, also after a signal: nobody else would.
    /// @throws ChannelError
    void StopAcquisition();
    /// Records signals from now on until the camera is closed at the end, for a command that asks for them.
    void RecordSignals() { signals.emplace(); }
    /// After a command: reports on standard error why there is no control, if something was not read without it.
    void ReportController();
    /// Saves the camera to the state file, if there is one.
    void SaveState();
    /// At the end, or before a command reports success: checks that the connection was never lost, and saves the state
    /// file. Later calls do nothing.
    /// @throws ChannelLost
    void Finish();
    /// The next command of a shell, for the recording.
    void Note(const std::string& command);
    /// At the end of the program: reports what a replay did not repeat.
    /// @return whether that is nothing, and the whole run was recorded, if it was to be
    [[nodiscard]] bool CheckRecordings();

private:
    Host::Options options;
    std::optional<Recorder> recorder;  // before the session, which writes to it until its end
    std::optional<Interrupts> signals; // before the session, which gives control back at its end
    std::optional<Plugin> plugin;      // before the session, which needs it until its end
    std::optional<Session> session;
    std::string opened; ///< the camera of the session, as given; also if it was lost
    bool finished = false;
    bool isReplayLost = false; ///< whether a recorded camera was lost, and is opened again by the next Open
};

} // namespace Host
