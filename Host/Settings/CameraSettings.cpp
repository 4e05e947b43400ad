#include "Host/Settings/CameraSettings.h"

#include "Host/Command.h"
#include "Host/ErrorReporting.h"
#include "Host/Settings/UncachedCamera.h"

#include <stdexcept>

namespace Host {

namespace {

/// Functions of a camera that cannot be read, by reason.
struct Missing {
    std::vector<Instance> withoutAddress;
    std::vector<Instance> withoutControl;

    /// @return whether the cause is one of these
    bool Note(const Instance& instance, Cause cause) {
        if (cause != Cause::Any) {
            (cause == Cause::NoControl ? withoutControl : withoutAddress).push_back(instance);
        }
        return cause != Cause::Any;
    }
    void Report(Connection& connection) const {
        if (!withoutAddress.empty()) {
            PrintError(connection.Describe() +
                       " lacks the registers of these, which are left out: " + NamesOf(withoutAddress));
        }
        if (!withoutControl.empty()) {
            PrintError(connection.TakeDenial() + "; without control these cannot be read: " + NamesOf(withoutControl));
        }
    }
};

/// Reads through a separate control. Throws if the connection was lost meanwhile.
/// @param otherwise gets the functions that cannot be read for other reasons
Settings Take(Session& session, const Unreadable& otherwise, const std::function<bool(const Instance&)>& needs) {
    const UncachedCamera reader(session);
    Missing missing;
    std::vector<Instance> unread;
    const auto unreadable = [&](const Instance& instance, const Reading& reading) {
        if (reading.cause != Cause::NoSuchAddress) {
            unread.push_back(instance);
        }
        if (!missing.Note(instance, reading.cause)) {
            otherwise(instance, reading);
        }
    };
    Settings settings = TakeSettings(reader.Camera(), unreadable, true, needs);
    settings.unread = std::move(unread);
    session.Connection().RequireUnbroken();
    missing.Report(session.Connection());
    return settings;
}

} // namespace

Settings TakeAllSettings(Session& session) {
    session.Connection().RequireControl();
    const auto otherwise = [](const Instance& instance, const Reading& reading) {
        throw std::runtime_error(instance.Name() + ": " + reading.reason);
    };
    return Take(session, otherwise, [](const Instance&) { return true; });
}

Settings TakeReadableSettings(Session& session, const Selection& selection) {
    const auto otherwise = [](const Instance& instance, const Reading& reading) {
        PrintError(instance.Name() + ": " + reading.reason);
    };
    return Take(session, otherwise, [&](const Instance& instance) { return selection.Needs(instance); });
}

} // namespace Host
