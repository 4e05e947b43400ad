#include "Host/Settings/CameraSettings.h"

#include "Host/Command.h"
#include "Host/ErrorReporting.h"
#include "Host/Settings/UncachedCamera.h"

#include <stdexcept>

namespace Host {

namespace {

/// Reads through a control of its own; what was read counts only if it was one camera all the time.
Settings Take(Session& session, const Unreadable& unreadable) {
    const UncachedCamera reader(session);
    Settings settings = TakeSettings(reader.Camera(), unreadable);
    session.Connection().RequireUnbroken();
    return settings;
}

/// What cannot be read of one camera, by the reason.
struct Missing {
    std::vector<Instance> withoutAddress;
    std::vector<Instance> withoutControl;

    /// @return whether it is for one of these reasons
    bool Note(const Instance& instance, Cause cause) {
        if (cause != Cause::Any) {
            (cause == Cause::NoControl ? withoutControl : withoutAddress).push_back(instance);
        }
        return cause != Cause::Any;
    }
    void Report(Connection& connection) const {
        if (!withoutAddress.empty()) {
            PrintError(connection.Describe() +
                       " has no address for these, which are left out: " + NamesOf(withoutAddress));
        }
        if (!withoutControl.empty()) {
            PrintError(connection.TakeDenial() + "; without control these cannot be read: " + NamesOf(withoutControl));
        }
    }
};

} // namespace

Settings TakeAllSettings(Session& session) {
    session.Connection().RequireControl();
    Missing missing;
    Settings settings = Take(session, [&](const Instance& instance, const Reading& reading) {
        if (!missing.Note(instance, reading.cause)) {
            throw std::runtime_error(instance.Name() + ": " + reading.reason);
        }
    });
    missing.Report(session.Connection());
    return settings;
}

Settings TakeReadableSettings(Session& session) {
    Missing missing;
    Settings settings = Take(session, [&](const Instance& instance, const Reading& reading) {
        if (!missing.Note(instance, reading.cause)) {
            PrintError(instance.Name() + ": " + reading.reason);
        }
    });
    missing.Report(session.Connection());
    return settings;
}

} // namespace Host
