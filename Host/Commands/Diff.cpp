#include "Commands.h"

#include "Describe.h"
#include "Format.h"
#include "Settings/LiveSettings.h"

#include <iostream>
#include <vector>

namespace Host {

namespace {

/// @throw UsageError unless it is clear what the first file is compared with
void RequireOneOther(const Invocation& invocation) {
    const bool live = invocation.Has("--live MODEL");
    const Program& program = invocation.Program();
    const bool onNetwork = !program.Options().camera.address.empty() && !program.IsOpen();
    if (invocation.Has("[B]") && (live || onNetwork)) {
        throw UsageError(std::string("a second file or ") + (live ? "--live" : "--camera") + ", not both");
    }
    if (!invocation.Has("[B]") && !live && !onNetwork && !program.IsOpen()) { // a shell has its camera open
        throw UsageError("a second file is wanted, or --live MODEL");
    }
}

/// What is compared with the first file.
LiveSettings SecondSettings(const Invocation& invocation) {
    if (invocation.Has("[B]")) {
        return {ReadSettings(invocation.Text("[B]")), {}};
    }
    return TakeLiveSettings(invocation.Program().Open(invocation.Text("--live MODEL")));
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

} // namespace

int Diff(const Invocation& invocation) {
    RequireOneOther(invocation);
    const Settings first = ReadSettings(invocation.Text("A"));
    const LiveSettings live = SecondSettings(invocation);
    const Settings& second = live.settings;
    if (first.model != second.model) {
        throw UsageError("settings of different models: " + first.model + " and " + second.model);
    }
    auto differences = Compare(first, second);
    std::erase_if(differences, [&](const Difference& each) { return live.Misses(each.instance); });
    const bool json = invocation.Program().Json();
    Json document(Json::List{});
    for (const Difference& difference : differences) {
        json ? document.Add(ToJson(difference)) : Print(difference);
    }
    if (json) {
        std::cout << document.Print() << '\n';
    }
    return differences.empty() && live.missing.empty() ? AllWell : Refused;
}

} // namespace Host
