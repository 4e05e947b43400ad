// The property table, by name, and the observer that is told of its changes.

#include "Topics.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Host {

using namespace SDK4::Control;

namespace {

/// Properties that share a name.
struct Entry {
    std::string name;
    int count;
};

std::vector<Entry> Names(IPropertyList& list) {
    std::vector<Entry> entries;
    for (int i = 0; i < list.GetNumberOfProperties(); ++i) {
        const std::string name = list.GetPropertyName(i); // a copy: the next call overwrites the text
        const auto found =
            std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) { return entry.name == name; });
        if (found == entries.end()) {
            entries.push_back({name, 1});
        } else {
            ++found->count;
        }
    }
    return entries;
}

std::string Row(const std::string& name, const std::string& count, const std::string& minimum,
                const std::string& maximum, const std::string& defaultValue, const std::string& kind) {
    return Pad(name, 30) + Pad(count, 9) + Pad(minimum, 9) + Pad(maximum, 12) + Pad(defaultValue, 9) + kind;
}

std::string Row(IPropertyState& state, const Entry& entry) {
    const char* const name = entry.name.c_str();
    std::string kind = state.IsUnsigned(name) ? "unsigned" : "signed";
    kind += state.IsEnumerated(name) ? ", single values" : "";
    kind += state.IsIndexed(name) ? ", indexed" : "";
    const auto row = [&](auto minimum, auto maximum, auto defaultValue) {
        return Row(entry.name, std::to_string(entry.count), std::to_string(minimum), std::to_string(maximum),
                   std::to_string(defaultValue), kind);
    };
    return state.IsUnsigned(name) ? row(state.GetUIntMin(name), state.GetUIntMax(name), state.GetUIntDefault(name))
                                  : row(state.GetIntMin(name), state.GetIntMax(name), state.GetIntDefault(name));
}

/// What the property is now, as the control itself says it while it is in the middle of a change. The observer is not
/// told which of several properties of one name has changed.
std::string Present(IPropertyState& state, const char* name, const std::string& attribute) {
    if (attribute == "enabled") {
        return Format(state.GetEnabled(name));
    }
    return state.IsUnsigned(name) ? Format(state.GetUIntValue(name)) : Format(state.GetIntValue(name));
}

void PrintChange(const char* name, const char* attribute, void* context) {
    auto& tour = *static_cast<Tour*>(context);
    auto& state = tour.Get<IPropertyState>();
    const std::string now = state.IsIndexed(name) ? "" : " = " + Present(state, name, attribute);
    tour.Tell(Pad("callback", 19) + Pad(name, 37) + attribute + now);
}

} // namespace

void TourM2VXProperties(Tour& tour) {
    auto& list = tour.Section<IPropertyList>("IPropertyList, IPropertyState", "the camera's settings as properties");
    auto& state = tour.Get<IPropertyState>();
    auto& correction = tour.Get<M2VX::IImageCorrection>();
    tour.Do(STEP(list.GetNumberOfProperties()));
    tour.Do(STEP(list.GetPropertyName(4)));
    tour.Do(STEP(list.GetPropertyName(1103)));
    tour.Do(STEP(list.GetPropertyName(1104)));

    tour.Note("Each name once, with the number of properties that share it.");
    tour.Line(Row("name", "entries", "minimum", "maximum", "default", "kind"));
    for (const Entry& entry : Names(list)) {
        tour.Line(Row(state, entry));
    }

    tour.Note("This family has all of them; what can be changed at the moment is another question.");
    tour.Do(STEP(state.GetImplemented("gain")));
    tour.Do(STEP(state.GetEnabled("gain")));
    tour.Note("Nothing here reads the camera. With index 0 a value is what a setter left there, and none of the\n"
              "camera's before: limits and flags are what matters.");
    tour.Do(STEP(state.GetUIntValue("circularblankingsize")));
    tour.Do(STEP(correction.GetCircularBlankingSize()));
    tour.Note("A name that no property has.");
    tour.Refused(SDK4_ERR_ERROR, STEP(state.GetUIntMax("colour")));
    tour.Do(STEP(state.GetEnabled("colour")));
}

void TourM2VXObserver(Tour& tour) {
    auto& state = tour.Section<IPropertyState>("IPropertyState", "an observer, told of every change");
    auto& gain = tour.Get<M2VX::IGain>();
    tour.Do(STEP(state.AddCallback(PrintChange, &tour)));
    tour.Note("From here on a callback stands where it came: behind the access that it follows.");
    tour.Do(STEP(gain.SetGain(300)));
    tour.Note("An unchanged value tells nothing.");
    tour.Do(STEP(gain.SetGain(300)));
    tour.Note("A host may disable a property: its setter refuses then.");
    tour.Do(STEP(state.SetEnabled("gain", false)));
    tour.Refused(SDK4_ERR_DISABLED, STEP(gain.SetGain(10)));
    tour.Do(STEP(state.SetEnabled("gain", true)));
    tour.Do(STEP(gain.SetGain(0)));
}

} // namespace Host
