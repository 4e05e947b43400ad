#pragma once

#include "Host/Session.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Host {

/// The options that every command takes.
struct Options {
    std::string plugin = DefaultPlugin();
    /// With index 2 every value is read from the camera, with either family. Nobody asks the port what it remembers.
    CameraOptions camera{.index = 2, .accesses = [](const Access&) {}};
    bool json = false;
    std::string logLevel;  ///< empty: off, or what the configuration says
    std::string logConfig; ///< a configuration file of log4cxx, or empty
};

/// What a run of the program has at hand. Plug-in and camera are opened when they are first asked for.
class Program {
public:
    explicit Program(Host::Options given) : options(std::move(given)) {}

    [[nodiscard]] const Host::Options& Options() const { return options; }
    /// Whether results go out as JSON.
    [[nodiscard]] bool Json() const { return options.json; }
    void SetJson(bool json) { options.json = json; }

    /// @throws OpenError
    [[nodiscard]] const Plugin& LoadedPlugin();
    /// Opens a camera, or gives back the one that is open.
    /// @throws as Session
    [[nodiscard]] Session& Open(const std::string& camera);
    [[nodiscard]] bool IsOpen() const { return session.has_value(); }
    [[nodiscard]] bool IsOpen(const std::string& camera) const { return IsOpen() && camera == opened; }
    /// Once a command has ended: tells on standard error who has control, if the command lacked it here and there.
    void ReportController();
    /// Has the state file, if there is one, hold the camera as it is now.
    void SaveState();
    /// Once all have ended, or one before it tells of its success: makes sure that its camera was there all the time,
    /// and has the state file, if there is one, hold it. Does so once.
    /// @throws ChannelLost
    void Finish();

private:
    Host::Options options;
    std::optional<Plugin> plugin; // before the session, which needs it to the end
    std::optional<Session> session;
    std::string opened; ///< the camera of the session, as it was given
    bool finished = false;
};

} // namespace Host
