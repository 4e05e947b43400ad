#include "Host/Commands/Commands.h"

#include "Host/Describe.h"
#include "Host/Format.h"
#include "Host/Settings/LiveSettings.h"
#include "Host/Settings/SettingsFile.h"

#include <iostream>
#include <vector>

namespace Host {

namespace {

/// @throws UsageError unless it is clear what the first file is compared with
void RequireOneOther(const Invocation& invocation) {
    const bool live = invocation.Has("--live MODEL");
    const Program& program = invocation.Program();
    const bool onNetwork = !program.Options().camera.address.empty() && !program.IsOpen();
    if (invocation.Has("[B]") && (live || onNetwork)) {
        throw UsageError(std::string("a second file or ") + (live ? "--live" : "--camera") + ", not both");
    }
    if (!invocation.Has("[B]") && !live && !onNetwork && !program.IsOpen()) { // a shell has its camera open
        throw UsageError("a second file is required, or --live MODEL");
    }
    if (invocation.Text("A") == standardStream && invocation.Text("[B]") == standardStream) {
        throw UsageError("standard input can be read once; give a file for one of the two");
    }
}

/// What is compared with the first file.
Settings SecondSettings(const Invocation& invocation) {
    if (invocation.Has("[B]")) {
        return ReadSettings(invocation.Text("[B]"), invocation.Program().IsOpen());
    }
    return TakeReadableSettings(invocation.Program().Open(invocation.Text("--live MODEL")));
}

std::string PrintOne(const Instance& instance, const Value* value) {
    return value == nullptr ? "-" : PrintWithUnit(instance, *value);
}

void Print(const Difference& difference) {
    std::cout << Pad(difference.instance.Name(), 24) << "  " << Pad(PrintOne(difference.instance, difference.first), 22)
              << "  " << PrintOne(difference.instance, difference.second) << '\n';
}

Json ToJson(const Difference& difference) {
    const auto json = [&](const Value* value) {
        return value == nullptr ? Json() : ToJson(difference.instance, *value);
    };
    return Json{
        {"name", difference.instance.Name()}, {"first", json(difference.first)}, {"second", json(difference.second)}};
}

/// Tells what is missing in a file and thus not compared.
/// @return whether everything could be compared
bool TellNotCompared(const Settings& settings, const Settings& other, const std::string& file) {
    const auto missing = LeftUncompared(settings, other);
    if (!missing.empty() && !file.empty()) { // of a camera it was told when it was read
        PrintError(Quoted(file) + " does not hold these, which are not compared: " + NamesOf(missing));
    }
    return missing.empty();
}

/// Whether one of the two is a camera of which another program has control.
bool IsControlledElsewhere(const Invocation& invocation) {
    return !invocation.Has("[B]") && !invocation.Open().Connection().HasControl();
}

} // namespace

int Diff(const Invocation& invocation) {
    RequireOneOther(invocation);
    const Program& program = invocation.Program();
    const Settings first = ReadSettings(invocation.Text("A"), program.IsOpen());
    const Settings second = SecondSettings(invocation);
    if (first.model != second.model) {
        throw UsageError("settings of different models: " + first.model + " and " + second.model);
    }
    const auto differences = Compare(first, second);
    const bool json = program.Json();
    Json document(Json::List{});
    for (const Difference& difference : differences) {
        json ? document.Add(ToJson(difference)) : Print(difference);
    }
    if (json) {
        std::cout << document.Print() << '\n';
    }
    const bool firstIsWhole = TellNotCompared(first, second, invocation.Text("A"));
    const bool secondIsWhole = TellNotCompared(second, first, invocation.Text("[B]"));
    if (!firstIsWhole || !secondIsWhole) {
        return IsControlledElsewhere(invocation) ? NotOpened : NotCompared;
    }
    return differences.empty() ? Success : Differs;
}

} // namespace Host
