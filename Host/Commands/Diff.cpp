#include "Host/Commands/Commands.h"

#include "Common/Suggestion.h"
#include "Host/CameraName.h"
#include "Host/Describe.h"
#include "Host/Format.h"
#include "Host/Settings/CameraSettings.h"
#include "Host/Settings/ResultJson.h"
#include "Host/Settings/SettingsFile.h"
#include "Simulation/Cameras.h"

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

Side TakeFrom(Session& session) {
    Settings settings = TakeReadableSettings(session);
    session.Connection().SaveState();
    return {std::move(settings), "", session.Connection().HasControl()};
}

/// Each camera is closed before the next one is opened, except that of a shell.
Side Take(const Invocation& invocation, Parameter parameter) {
    Program& program = invocation.Program();
    const std::string given = invocation.Text(parameter);
    if (!invocation.Has(parameter) || program.IsOpen(given)) {
        return TakeFrom(program.Open(given));
    }
    if (!IsCamera(given)) {
        std::error_code ignored; // reading the file reports the error
        if (given != standardStream &&
            std::filesystem::status(given, ignored).type() == std::filesystem::file_type::not_found) {
            throw UsageError('"' + given + "\" is neither a file nor a camera" +
                             Common::Suggestion(given, Simulation::ModelNames()));
        }
        return {ReadSettings(given, program.IsOpen()), given};
    }
    Session session(program.LoadedPlugin(), given, program.Options().camera);
    return TakeFrom(session);
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
bool ReportUncompared(const Side& side, const Side& other) {
    const auto missing = Uncompared(side.settings, other.settings);
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
    const Side first = Take(invocation, Parameter::First);
    const Side second = Take(invocation, Parameter::Second);
    if (first.settings.model != second.settings.model) {
        throw UsageError("settings of different models: " + first.settings.model + " and " + second.settings.model);
    }
    const auto differences = Compare(first.settings, second.settings);
    Output output = invocation.Output();
    for (const Difference& difference : differences) {
        output.Add(Describe(difference), ToJson(difference));
    }
    output.End();
    const bool firstIsWhole = ReportUncompared(first, second);
    const bool secondIsWhole = ReportUncompared(second, first);
    if (!firstIsWhole || !secondIsWhole) {
        return first.hasControl && second.hasControl ? NotCompared : NotOpened;
    }
    return differences.empty() ? Success : Differs;
}

} // namespace Host
