#include "Host/Commands/Commands.h"

#include "Common/Suggestion.h"
#include "Host/CameraName.h"
#include "Host/Describe.h"
#include "Host/Format.h"
#include "Host/Functions/Tables.h"
#include "Host/Settings/CameraSettings.h"
#include "Host/Settings/ResultJson.h"
#include "Host/Settings/SettingsFile.h"
#include "Simulation/Cameras.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace Host {

namespace {

/// One side of the comparison.
struct Side {
    Settings settings;
    std::string file;       ///< empty for a camera
    bool hasControl = true; ///< for a camera: whether this program has control
};

/// @param family whose functions are selected
/// @throws UsageError for an unknown name, or if no function that is saved is selected
Selection SelectionOf(const Invocation& invocation, const std::string& family) {
    const Functions& table = *TableOf(family);
    Selection selection(table, invocation.Texts(Parameter::Only), invocation.Texts(Parameter::Except));
    const bool takesAny = std::any_of(table.begin(), table.end(), [&](const Function& function) {
        const auto instances = InstancesOf(function);
        return function.restore != RestorePolicy::Never &&
               std::any_of(instances.begin(), instances.end(), [&](const auto& each) { return selection.Takes(each); });
    });
    if (!takesAny) {
        throw UsageError("--only and --except leave no setting to compare");
    }
    return selection;
}

Side TakeFrom(Session& session, const Invocation& invocation) {
    Settings settings = TakeReadableSettings(session, SelectionOf(invocation, session.Camera().Family()));
    session.Connection().SaveState();
    return {std::move(settings), "", session.Connection().HasControl()};
}

/// Each camera is closed before the next one is opened, except that of a shell.
/// @param other the parameter of the other side
Side Take(const Invocation& invocation, Parameter parameter, Parameter other) {
    Program& program = invocation.Program();
    const std::string given = invocation.Text(parameter);
    if (!invocation.Has(parameter) || program.IsOpen(given)) {
        return TakeFrom(program.Open(given), invocation);
    }
    if (!IsCamera(given)) {
        std::error_code ignored; // reading the file reports the error
        if (given != standardStream &&
            std::filesystem::status(given, ignored).type() == std::filesystem::file_type::not_found) {
            throw UsageError('"' + given + "\" is neither a file nor a camera" +
                             Common::Suggestion(given, Simulation::ModelNames()));
        }
        Side side{ReadSettings(given, program.IsOpen()), given};
        static_cast<void>(SelectionOf(invocation, side.settings.family).ReportAbsent(side.settings, given));
        return side;
    }
    CameraOptions options = program.Options().camera;
    if (program.IsOpen()) {
        options = OptionsBeside("", given, options);
        options.recorder = nullptr; // which a shell has for its own camera
    } else if (IsCamera(invocation.Text(other))) {
        options = OptionsBeside(invocation.Text(other), given, options);
    }
    Session session(program.LoadedPlugin(), given, options);
    return TakeFrom(session, invocation);
}

std::string PrintOne(const Instance& instance, const Value* value) {
    return value == nullptr ? "-" : PrintWithUnit(instance, *value);
}

std::string Describe(const Difference& difference) {
    return Pad(difference.instance.Name(), 24) + "  " + Pad(PrintOne(difference.instance, difference.first), 22) +
           "  " + PrintOne(difference.instance, difference.second);
}

/// Reports what is missing in a file and therefore not compared.
/// @return whether everything could be compared
bool ReportUncompared(const Side& side, const Side& other, const Selection& selection) {
    auto missing = Uncompared(side.settings, other.settings);
    std::erase_if(missing, [&](const Instance& instance) { return !selection.Takes(instance); });
    if (!missing.empty() && !side.file.empty()) { // for a camera, this was reported when it was read
        PrintError(DescribeFile(side.file) + " has no values of these, which are not compared: " + NamesOf(missing));
    }
    return missing.empty();
}

} // namespace

int Diff(const Invocation& invocation) {
    if (invocation.Text(Parameter::First) == standardStream && invocation.Text(Parameter::Second) == standardStream) {
        throw UsageError("standard input can be read only once; use a file for A or B");
    }
    if (invocation.Program().Options().camera.recorder != nullptr && IsCamera(invocation.Text(Parameter::First)) &&
        IsCamera(invocation.Text(Parameter::Second))) {
        throw UsageError(oneCamera);
    }
    const Side first = Take(invocation, Parameter::First, Parameter::Second);
    const Side second = Take(invocation, Parameter::Second, Parameter::First);
    if (first.settings.model != second.settings.model) {
        throw UsageError("settings of different models: " + first.settings.model + " and " + second.settings.model);
    }
    const Selection selection = SelectionOf(invocation, first.settings.family);
    auto differences = Compare(first.settings, second.settings);
    std::erase_if(differences, [&](const Difference& each) { return !selection.Takes(each.instance); });
    Output output = invocation.Output();
    for (const Difference& difference : differences) {
        output.Add(Describe(difference), ToJson(difference));
    }
    output.End();
    const bool firstIsWhole = ReportUncompared(first, second, selection);
    const bool secondIsWhole = ReportUncompared(second, first, selection);
    if (!firstIsWhole || !secondIsWhole) {
        return first.hasControl && second.hasControl ? NotCompared : NotOpened;
    }
    return differences.empty() ? Success : Differs;
}

} // namespace Host
