#include "Host/Commands/Commands.h"

#include "Common/Number.h"
#include "Common/Text.h"
#include "Host/Describe.h"
#include "Host/DescribeCalls.h"
#include "Host/Format.h"
#include "Host/FunctionState.h"

namespace Host {

namespace {

/// The instances that a name stands for, and what calls of them cost.
struct Described {
    std::vector<Instance> instances;
    std::vector<FunctionState> states{}; ///< only the first if there are many instances
    std::optional<CallTrace> trace{};

    [[nodiscard]] bool IsMany() const { return instances.size() > fewInstances; }
};

Described Inspect(const Camera& camera, const Plugin& plugin, const std::vector<Instance>& instances) {
    Described described{instances};
    for (const Instance& instance : instances) {
        if (described.states.empty() || !described.IsMany()) {
            described.states.push_back(InspectFunction(camera, instance));
        }
    }
    described.trace = TraceCalls(plugin, camera.Model(), instances.front());
    return described;
}

std::string Heading(const Described& described) {
    const Instance& first = described.instances.front();
    const std::size_t count = described.instances.size();
    return first.Name() + (count == 1 ? "" : ".." + std::to_string(count - 1));
}

std::string Values(const Described& described) {
    if (!HasValue(described.instances.front(), described.states.front())) {
        return "";
    }
    if (described.IsMany()) {
        return std::to_string(described.instances.size()) + " values";
    }
    std::string text;
    for (std::size_t i = 0; i < described.states.size(); ++i) {
        const Reading& reading = described.states[i].reading;
        text += (i == 0 ? "" : "; ") + (reading.code == 0 ? described.instances[i].Print(reading.value) : "-");
    }
    return text;
}

/// "off=0, 1, 2" for what a function admits, else its codes.
std::string DescribeCodes(const Instance& instance, const Limits& limits) {
    std::vector<std::string> texts;
    for (const Code& code : instance->codes) {
        if (limits.empty() || limits.front().Admits(code.value)) {
            texts.push_back(code.name + ("=" + std::to_string(code.value)));
        }
    }
    return Common::Join(texts);
}

std::string LimitsOf(const Instance& instance, const FunctionState& state) {
    const bool isKnown = state.reading.IsAccessible() && state.limitsOutcome.code == 0;
    if (instance->set == nullptr || instance->trigger || !isKnown) {
        return "";
    }
    if (instance->shape.fields.empty()) {
        return std::string(instance->form);
    }
    const std::string form = DescribeForm(instance, state.limits);
    return form + (!state.limits.empty() ? "" : form.empty() ? "not checked" : ", not checked");
}

/// What the function needs, if it has that.
std::string OpenLock(const Reading& reading) {
    const bool isOpen = reading.code == 0 && reading.lock.by.empty() && !reading.lock.needs.empty();
    return isOpen ? "needs " + reading.lock.needs + "; not locked now" : "";
}

std::string Block(const Described& described) {
    const Instance& instance = described.instances.front();
    const FunctionState& state = described.states.front();
    const Reading& reading = state.reading;
    std::string text = Heading(described);
    const auto add = [&](const char* label, const std::string& line) {
        text += line.empty() ? "" : "\n    " + Pad(label, 10) + line;
    };
    add("meaning", std::string(instance->meaning));
    add("value", Values(described));
    add("unit", std::string(instance->unit));
    add("limits", LimitsOf(instance, state));
    add("codes", DescribeCodes(instance, state.limits));
    add("default", state.defaultValue ? instance.Print(*state.defaultValue) : "");
    add(reading.lock.by.empty() ? "state" : "lock", DescribeState(instance, state));
    add("lock", OpenLock(reading));
    if (const auto& trace = described.trace) {
        add("register", trace->Register() ? Common::Hex(*trace->Register()) : "");
        add("get", trace->get ? DescribeCosts(*trace->get) : "");
        add("set", trace->set ? DescribeCosts(*trace->set) : "");
        add("cache", DescribeCaching(*trace));
    }
    add("restore", DescribeRestoring(*instance.function));
    return text;
}

Json ToJson(const Described& described, std::size_t i) {
    Json document = FunctionToJson(described.instances[i], described.states[i], described.IsMany());
    if (described.trace) {
        AddCalls(document, *described.trace);
    }
    return document;
}

} // namespace

int Describe(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    const Plugin& plugin = invocation.Program().LoadedPlugin();
    std::vector<std::vector<Instance>> wanted;
    for (const std::string& name : invocation.Texts(Parameter::Names)) {
        wanted.push_back(camera.Find(name));
    }
    Output output = invocation.Output();
    for (const auto& instances : wanted) {
        const Described described = Inspect(camera, plugin, instances);
        for (std::size_t i = 0; i < described.states.size(); ++i) {
            output.Add(i == 0 ? Block(described) : "", ToJson(described, i));
        }
    }
    output.End();
    return Success;
}

} // namespace Host
