#include "Host/KeepTrying.h"

#include "Host/Channel/Availability.h"
#include "Host/Channel/ChannelErrors.h"

#include <utility>

namespace Host {

namespace {

constexpr std::chrono::milliseconds pauseBetweenTries{500};

} // namespace

KeepTrying::KeepTrying(const Invocation& command, Options chosen)
    : invocation(command),
      options(std::move(chosen)),
      keeps(command.Has(Parameter::KeepTrying)),
      since(Clock::now()) {
    if (!keeps) {
        return;
    }
    if (invocation.Program().IsOpen()) {
        throw UsageError("--keep-trying is not for a shell, which keeps its camera open; use it outside of a shell");
    }
    camera = ParseCameraName(invocation.Text(Parameter::Camera));
    if (!camera.IsOnNetwork()) {
        throw UsageError("--keep-trying applies to cameras on the network only");
    }
    invocation.Program().RecordSignals();
}

bool KeepTrying::Run(const std::function<void(Session&)>& work) {
    if (!keeps) {
        work(Open(invocation.Text(Parameter::Camera)));
        return true;
    }
    while (!options.shouldEnd()) {
        try {
            work(Reopen());
            return true;
        } catch (const Ending&) {
            throw;
        } catch (const ChannelLost& error) {
            Wait(error.Describe(), toldGone);
        } catch (const CameraControlled& error) {
            Wait(error.what(), toldControlled);
        } catch (const CameraUnavailable& error) {
            Wait(error.what(), toldGone);
        }
    }
    return false;
}

Session& KeepTrying::Open(const std::string& name) {
    Session& session = invocation.Program().Open(name);
    if (options.needsControl()) {
        session.Connection().RequireControl();
    }
    return session;
}

Session& KeepTrying::Reopen() {
    const std::string address = FindAddress(camera);
    RequireAvailable(address, options.needsControl());
    Session& session = Open("gige:" + address); // not to discover it again
    if (!model.empty() && session.Model() != model) {
        throw OpenError(session.Connection().Describe() + " is now " + session.Model() + ", it was " + model);
    }
    model = session.Model();
    if (toldGone || toldControlled) {
        toldGone = false;
        toldControlled = false;
        options.goesOn(std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - since));
    }
    return session;
}

void KeepTrying::Wait(const std::string& why, bool& isTold) {
    if (options.shouldEnd()) {
        return;
    }
    if (!toldGone && !toldControlled) {
        since = Clock::now();
    }
    if (!std::exchange(isTold, true)) {
        options.waits(why);
    }
    invocation.Program().Close();
    const auto end = Clock::now() + pauseBetweenTries;
    while (!options.shouldEnd() && Clock::now() < end) {
        Interrupts::Sleep(std::chrono::milliseconds(10));
    }
}

} // namespace Host
