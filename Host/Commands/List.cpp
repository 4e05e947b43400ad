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

/// Where the columns begin.
struct Columns {
    std::size_t value = 26;
    std::size_t defaultValue = 50;
    std::size_t limits = 66;
    std::size_t state = 92;
    std::size_t end = 0; ///< if it is not 0, cells are wrapped in their column
};

/// The columns for the terminal. A family without defaults has no column for them if there is little room.
Columns ColumnsFor(const std::vector<Listed>& listed, bool hasDefaults) {
    constexpr std::size_t roomy = 124;
    constexpr std::size_t narrowest = 60;
    const std::size_t width = TerminalWidth();
    if (width == 0 || width >= roomy) {
        return {};
    }
    Columns columns;
    columns.value = 0;
    for (const Listed& each : listed) {
        columns.value = std::max(columns.value, each.instance.Name().size() + (each.many ? 4 : 0) + 2);
    }
    columns.end = std::max(width, narrowest);
    const std::size_t rest = columns.end - columns.value;
    columns.defaultValue = columns.value + rest * 30 / 100;
    columns.limits = columns.defaultValue + (hasDefaults ? std::max<std::size_t>(rest * 15 / 100, 8) : 0);
    columns.state = columns.limits + rest * 28 / 100;
    return columns;
}

/// A cell that is too long moves the next ones no further than necessary. If there is little room, it is wrapped where
/// the next one begins.
std::string Row(const Columns& columns, const std::string& name, const std::string& value,
                const std::string& defaultValue, const std::string& limits, const std::string& state) {
    const bool hasDefault = columns.defaultValue != columns.limits;
    std::vector<std::pair<std::size_t, std::string>> cells{{columns.value, value},
                                                           {columns.defaultValue, hasDefault ? defaultValue : ""},
                                                           {columns.limits, limits},
                                                           {columns.state, state}};
    std::erase_if(cells, [](const auto& cell) { return cell.second.empty(); });
    std::vector<std::string> lines{name};
    for (auto cell = cells.begin(); cell != cells.end(); ++cell) {
        const auto& [begin, text] = *cell;
        if (columns.end == 0) {
            lines.front() = Pad(lines.front() + "  ", begin) + text;
            continue;
        }
        const auto parts = Wrap(text, (cell + 1 == cells.end() ? columns.end : cell[1].first) - begin - 1);
        lines.resize(std::max(lines.size(), parts.size()));
        for (std::size_t i = 0; i < parts.size(); ++i) {
            lines[i] = Pad(lines[i], begin) + parts[i];
        }
    }
    return Common::Join(lines, "\n");
}

std::string Describe(const Columns& columns, const Instance& instance, const FunctionState& found, bool many) {
    const std::string last = std::to_string(instance->count - 1);
    const std::string value = !HasValue(instance, found) ? "-"
                              : many                     ? std::to_string(instance->count) + " values"
                                                         : PrintWithUnit(instance, found.reading.value);
    const std::string row =
        Row(columns, instance.Name() + (many ? ".." + last : ""), value,
            found.defaultValue ? instance.Print(*found.defaultValue) : "",
            instance->set != nullptr ? DescribeLimits(instance, found.limits) : "", DescribeState(instance, found));
    return found.reading.code != 0 ? Dim(row) : found.reading.lock.by.empty() ? row : Yellow(row);
}

} // namespace

int List(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    Output output = invocation.Output();
    bool begins = true;
    const auto wanted = Wanted(camera, invocation);
    const Columns columns = ColumnsFor(wanted, camera.As<SDK4::Control::IPropertyState>() != nullptr);
    for (const auto& [instance, many] : wanted) {
        // Before the heading, because it throws if the camera is lost.
        const FunctionState found = InspectFunction(camera, instance);
        if (std::exchange(begins, false)) {
            output.Line(Row(columns, "NAME", "VALUE", "DEFAULT", "LIMITS", "STATE"));
        }
        output.Add(Describe(columns, instance, found, many), FunctionToJson(instance, found, many));
    }
    output.End();
    return Success;
}

} // namespace Host
