#include "Host/Commands/Commands.h"

namespace Host {

namespace {

int Acquire(const Invocation& invocation, bool on) {
    Session& session = invocation.Open();
    session.Connection().RequireControl();
    session.Acquire(on);
    Output output = invocation.Output();
    output.Set(on ? "acquisition runs" : "acquisition is stopped", Json{{"acquisition", on}});
    output.End();
    return Success;
}

} // namespace

int Start(const Invocation& invocation) { return Acquire(invocation, true); }

int Stop(const Invocation& invocation) { return Acquire(invocation, false); }

} // namespace Host
