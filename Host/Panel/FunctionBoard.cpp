#include "Host/Panel/FunctionBoard.h"

#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/FunctionState.h"

#include <algorithm>

namespace Host::Panel {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds shownPeriod{100};   ///< between two reads of a function that a client shows
constexpr milliseconds hiddenPeriod{2000}; ///< of another one
constexpr milliseconds longestPoll{4};
constexpr milliseconds longestCompletion{2000}; ///< of what was read before, for cameras that answer slowly
constexpr int restAfterPoll = 4;                ///< times its duration, which leaves four fifths of the channel

} // namespace

FunctionBoard::FunctionBoard(Session& opened, const Camera& setting, TraceLog& traced)
    : session(opened),
      setter(setting),
      trace(traced) {
    RenewReader();
    for (const Instance& instance : setter.All(false)) {
        entries.push_back({.instance = instance, .many = instance->count > fewInstances});
    }
}

FunctionBoard::Entry* FunctionBoard::Due(const std::set<std::string>& shown, Clock::time_point now) {
    Entry* hidden = nullptr;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        Entry& entry = entries[(next + i) % entries.size()];
        const bool isShown = shown.contains(entry.instance.Name());
        const bool isDue =
            entry.stale || now >= entry.described + hiddenPeriod ||
            (isShown && !entry.many && entry.instance->get != nullptr && now >= entry.read + shownPeriod);
        if (isDue && isShown) {
            next = (next + i + 1) % entries.size();
            return &entry;
        }
        hidden = isDue && hidden == nullptr ? &entry : hidden;
    }
    return hidden;
}

void FunctionBoard::Poll(const std::set<std::string>& shown) {
    if (Clock::now() >= renewed + hiddenPeriod) {
        RenewReader();
    }
    const auto start = Clock::now();
    auto end = start;
    while (end >= notBefore && end < start + longestPoll) {
        Entry* const entry = Due(shown, end);
        if (entry == nullptr) {
            break;
        }
        entry->stale || end >= entry->described + hiddenPeriod ? Describe(*entry) : ReadValue(*entry);
        end = Clock::now();
    }
    if (end > start) {
        notBefore = end + restAfterPoll * (end - start);
    }
}

void FunctionBoard::RenewReader() {
    const TraceLog::Call call(trace, "open");
    reader = std::make_unique<UncachedCamera>(session); // the old one stays if that fails
    renewed = Clock::now();
}

void FunctionBoard::Refresh() {
    RenewReader();
    for (Entry& entry : entries) {
        entry.stale = true;
    }
    notBefore = {};
}

void FunctionBoard::Complete() {
    const auto start = Clock::now();
    if (start >= renewed + hiddenPeriod) {
        RenewReader();
    }
    for (Entry& entry : entries) {
        const bool isOld = start >= entry.described + hiddenPeriod && Clock::now() < start + longestCompletion;
        if (entry.stale || isOld) {
            Describe(entry);
        }
    }
}

void FunctionBoard::ReadValue(Entry& entry) {
    const TraceLog::Call call(trace, "get " + entry.instance.Name());
    const Reading reading = Reader().TryRead(entry.instance);
    entry.read = Clock::now();
    SetValue(entry, reading.code == 0 ? ToJson(entry.instance, reading.value) : Json());
}

Json FunctionBoard::Describe(const Instance& instance, bool many) const {
    FunctionState state = InspectFunction(Reader(), instance);
    if (setter.As<SDK4::Control::IPropertyState>() != nullptr && state.reading.code == 0) {
        static_cast<void>(Attempt([&] {                   // reads the mode that locks it
            state.reading.lock = setter.LockOf(instance); // the properties of the other control do not follow
            state.limits = setter.LimitsOf(instance);
        }));
    }
    return FunctionToJson(instance, state, many);
}

void FunctionBoard::Describe(Entry& entry) {
    const TraceLog::Call call(trace, "describe " + entry.instance.Name());
    if (entry.described == Clock::time_point() && entry.instance->get != nullptr &&
        Reader().TryRead(entry.instance).code == 0) { // the last access of a getter is to its register
        trace.NameLast(std::string(entry.instance->name));
    }
    Json document = Describe(entry.instance, entry.many);
    entry.read = entry.described = Clock::now();
    entry.stale = false;
    SetValue(entry, document["value"]);
    Json rest = document.Without("value");
    if (std::string printed = rest.PrintInOneLine(); printed != entry.printed) {
        entry.printed = std::move(printed);
        entry.documentVersion = ++version;
    }
    entry.document = std::move(rest);
}

void FunctionBoard::SetValue(Entry& entry, Json value) {
    if (entry.valueVersion == 0 || value.PrintInOneLine() != entry.value.PrintInOneLine()) {
        entry.value = std::move(value);
        entry.valueVersion = ++version;
    }
}

Json FunctionBoard::ValuesSince(std::uint64_t seen) const {
    Json values;
    for (const Entry& entry : entries) {
        if (entry.valueVersion > seen && !entry.many) {
            values.Add(entry.instance.Name(), entry.value);
        }
    }
    return values;
}

std::vector<Json> FunctionBoard::FunctionsSince(std::uint64_t seen) const {
    std::vector<Json> changed;
    for (const Entry& entry : entries) {
        if (entry.documentVersion > seen) {
            Json function = entry.document;
            function.Add("value", entry.value);
            changed.push_back(std::move(function));
        }
    }
    return changed;
}

Json FunctionBoard::All() const {
    Json all(Json::List{});
    for (Json& function : FunctionsSince(0)) {
        all.Add(std::move(function));
    }
    return all;
}

} // namespace Host::Panel
