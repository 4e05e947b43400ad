#include "Host/Commands/Commands.h"

#include "Common/Suggestion.h"
#include "Common/Text.h"
#include "Host/Describe.h"
#include "Host/Format.h"
#include "Host/FunctionState.h"
#include "Host/Style.h"

#include <algorithm>
#include <utility>

namespace Host {

namespace {

/// A line of the list.
struct Listed {
    Instance instance;
    bool many = false; ///< whether it stands for all instances, of which only the first is read
};

/// Those of some topics, or all if none is given.
/// @throws UsageError for an unknown topic
std::vector<Listed> OfTopics(const Camera& camera, const std::vector<std::string>& wanted, bool oneByOne) {
    std::vector<Listed> listed;
    std::vector<std::string> topics;
    for (const Instance& instance : camera.All(oneByOne)) {
        const std::string topic(instance->topic);
        if (std::find(topics.begin(), topics.end(), topic) == topics.end()) {
            topics.push_back(topic);
        }
        if (wanted.empty() || std::find(wanted.begin(), wanted.end(), topic) != wanted.end()) {
            listed.push_back({instance, !oneByOne && instance->count > fewInstances});
        }
    }
    for (const std::string& topic : wanted) {
        if (std::find(topics.begin(), topics.end(), topic) == topics.end()) {
            throw UsageError("unknown topic \"" + topic + "\"; the topics of " + camera.Model() + " are " +
                             Common::Join(topics) + Common::Suggestion(topic, topics));
        }
    }
    return listed;
}

/// The named functions, each instance by itself, then those of the topics.
/// @throws UsageError for an unknown function or topic
std::vector<Listed> Wanted(const Camera& camera, const Invocation& invocation) {
    std::vector<Listed> wanted;
    for (const std::string& name : invocation.Texts(Parameter::Names)) {
        for (const Instance& instance : camera.Find(name)) {
            wanted.push_back({instance});
        }
    }
    if (wanted.empty() || invocation.Has(Parameter::Topic)) {
        const auto more = OfTopics(camera, invocation.Texts(Parameter::Topic), invocation.Has(Parameter::All));
        wanted.insert(wanted.end(), more.begin(), more.end());
    }
    return wanted;
}

/// A cell that is too long moves the next ones no further than necessary.
std::string Row(std::string name, const std::string& value, const std::string& defaultValue, const std::string& limits,
                const std::string& state) {
    const auto add = [&](std::size_t column, const std::string& cell) {
        name = cell.empty() ? name : Pad(name + "  ", column) + cell;
    };
    add(26, value);
    add(50, defaultValue);
    add(66, limits);
    add(92, state);
    return name;
}

std::string Describe(const Instance& instance, const FunctionState& found, bool many) {
    const std::string last = std::to_string(instance->count - 1);
    const std::string value = !HasValue(instance, found) ? "-"
                              : many                     ? std::to_string(instance->count) + " values"
                                                         : PrintWithUnit(instance, found.reading.value);
    const std::string row =
        Row(instance.Name() + (many ? ".." + last : ""), value,
            found.defaultValue ? instance.Print(*found.defaultValue) : "",
            instance->set != nullptr ? DescribeLimits(instance, found.limits) : "", DescribeState(instance, found));
    return found.reading.code != 0 ? Dim(row) : found.reading.lock.by.empty() ? row : Yellow(row);
}

} // namespace

int List(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    Output output = invocation.Output();
    bool begins = true;
    for (const auto& [instance, many] : Wanted(camera, invocation)) {
        // Before the heading, because it throws if the camera is lost.
        const FunctionState found = InspectFunction(camera, instance);
        if (std::exchange(begins, false)) {
            output.Line(Row("NAME", "VALUE", "DEFAULT", "LIMITS", "STATE"));
        }
        output.Add(Describe(instance, found, many), FunctionToJson(instance, found, many));
    }
    output.End();
    return Success;
}

} // namespace Host
