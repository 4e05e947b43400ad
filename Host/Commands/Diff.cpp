#include "Commands.h"

#include "Describe.h"
#include "Format.h"
#include "Settings/ReadThrough.h"
#include "Settings/Settings.h"

#include <iostream>

namespace Host {

namespace {

/// What is compared with the first file.
Settings SecondSettings(const Invocation& invocation) {
    const std::string live = invocation.Text("--live MODEL");
    if (invocation.Has("[B]")) {
        if (!live.empty()) {
            throw UsageError("a second file or --live, not both");
        }
        return ReadSettings(invocation.Text("[B]"));
    }
    if (live.empty() && !invocation.Program().IsOpen()) { // a shell has its camera open
        throw UsageError("a second file is wanted, or --live MODEL");
    }
    const ReadThrough reader(invocation.Program().Open(live));
    return TakeSettings(reader.Camera());
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
    const Settings first = ReadSettings(invocation.Text("A"));
    const Settings second = SecondSettings(invocation);
    if (first.model != second.model) {
        throw UsageError("settings of different models: " + first.model + " and " + second.model);
    }
    const auto differences = Compare(first, second);
    const bool json = invocation.Program().Json();
    Json document(Json::List{});
    for (const Difference& difference : differences) {
        json ? document.Add(ToJson(difference)) : Print(difference);
    }
    if (json) {
        std::cout << document.Print() << '\n';
    }
    return differences.empty() ? AllWell : Refused;
}

} // namespace Host
