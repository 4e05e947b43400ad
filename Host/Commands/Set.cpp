#include "Host/Commands/Commands.h"

#include "Host/Assignment.h"
#include "Host/Describe.h"
#include "Host/Settings/Assign.h"

namespace Host {

int Set(const Invocation& invocation) {
    Session& session = invocation.Open();
    session.Connection().RequireControl();
    const auto assignments = ParseAssignments(session.Camera(), invocation.Texts(Parameter::Assignments));
    Output output = invocation.Output();
    const bool refused = Assign(session, assignments, [&](const FunctionValue& assignment, const Assigned& result) {
        const Instance& instance = assignment.instance;
        output.Add(result.held ? instance.Name() + '=' + instance.Print(*result.held) : "", ToJson(assignment, result));
    });
    output.End();
    return refused ? Refused : Success;
}

} // namespace Host
