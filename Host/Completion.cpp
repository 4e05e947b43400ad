#include "Host/Completion.h"

#include "Host/CameraName.h"
#include "Host/Command.h"
#include "Host/CommandLine.h"
#include "Host/Functions/Tables.h"
#include "Host/Logging.h"
#include "Simulation/Cameras.h"
#include "Simulation/FaultKinds.h"

#include <algorithm>
#include <optional>

namespace Host {

namespace {

using Common::Candidates;
using Common::Cursor;

constexpr std::size_t mostValues = 32; ///< of a function that are worth listing

/// The functions of a camera, or those that any camera may have.
class CompletedFunctions {
public:
    explicit CompletedFunctions(const Camera* opened) : camera(opened) {
        if (camera != nullptr) {
            all = camera->All();
            return;
        }
        for (const char* family : {"Orvik", "M2VX"}) {
            for (const Function& function : *TableOf(family)) {
                const auto instances = InstancesOf(function);
                all.insert(all.end(), instances.begin(), instances.end());
            }
        }
    }

    /// Those to list: of functions with many instances, the first.
    [[nodiscard]] std::vector<Instance> Listed() const {
        std::vector<Instance> listed;
        std::copy_if(all.begin(), all.end(), std::back_inserter(listed),
                     [](const Instance& instance) { return instance.index == 0 || instance->count <= fewInstances; });
        return listed;
    }

    /// "agc=off", "agc=1": the values of a function that are codes.
    void AddAssignments(const std::string& name, std::vector<std::string>& texts) const {
        for (const Instance& instance : all) {
            if (instance.Name() != name || instance->set == nullptr || instance->shape.fields.size() != 1) {
                continue;
            }
            std::vector<std::int64_t> numbers = AdmittedBy(instance);
            for (const Code& code : instance->codes) {
                numbers.push_back(code.value);
            }
            for (const std::int64_t number : numbers) {
                texts.push_back(name + '=' + Print(number, instance->shape, instance->codes));
            }
        }
    }

private:
    [[nodiscard]] std::vector<std::int64_t> AdmittedBy(const Instance& instance) const {
        Limits limits = instance->limits;
        if (camera != nullptr) {
            static_cast<void>(Attempt([&] { limits = camera->LimitsOf(instance); }));
        }
        return limits.empty() || limits.front().admitted.size() > mostValues ? std::vector<std::int64_t>()
                                                                             : limits.front().admitted;
    }

    const Camera* camera;
    std::vector<Instance> all;
};

std::vector<std::string> Names(const CompletedFunctions& functions) {
    std::vector<std::string> names;
    for (const Instance& instance : functions.Listed()) {
        if (instance->get != nullptr) {
            names.push_back(instance.Name());
        }
    }
    return names;
}

std::vector<std::string> Assignments(const CompletedFunctions& functions, const std::string& word) {
    std::vector<std::string> texts;
    if (const std::size_t equals = word.find('='); equals != std::string::npos) {
        functions.AddAssignments(word.substr(0, equals), texts);
        return texts;
    }
    for (const Instance& instance : functions.Listed()) {
        if (instance->set != nullptr) {
            texts.push_back(instance.Name() + (instance->trigger ? "" : "="));
        }
    }
    return texts;
}

std::vector<std::string> Topics(const CompletedFunctions& functions) {
    std::vector<std::string> topics;
    for (const Instance& instance : functions.Listed()) {
        topics.emplace_back(instance->topic);
    }
    return topics;
}

/// What a command takes at the position of an operand.
Candidates ForOperand(const Syntax& syntax, const CompletedFunctions& functions, const std::string& word) {
    switch (syntax.parameter) {
    case Parameter::Camera:
        return {CameraBeginnings(), false};
    case Parameter::First:
    case Parameter::Second:
        return {CameraBeginnings(), true};
    case Parameter::Names:
        return {word.find('=') == std::string::npos ? Names(functions) : Assignments(functions, word), false};
    case Parameter::Assignments:
        return {Assignments(functions, word), false};
    case Parameter::File:
    case Parameter::Plugin:
        return {{}, true};
    default:
        return {};
    }
}

/// @param given how many operands are before the cursor
Candidates ForOperands(const Command& command, std::size_t given, const Cursor& cursor,
                       const CompletedFunctions& functions, bool inShell) {
    std::vector<Syntax> operands;
    std::copy_if(command.syntax.begin(), command.syntax.end(), std::back_inserter(operands),
                 [&](const Syntax& syntax) { return syntax.IsOperand() && syntax.IsTaken(inShell); });
    Candidates candidates;
    for (auto operand = operands.begin(); operand != operands.end(); ++operand) {
        if (given > 0 && !operand->several) {
            --given;
            continue;
        }
        const bool isLast = operand + 1 == operands.end();
        if (given == 0 || isLast || !cursor.word.empty()) { // another camera is less likely than a function
            const Candidates more = ForOperand(*operand, functions, cursor.word);
            candidates.words.insert(candidates.words.end(), more.words.begin(), more.words.end());
            candidates.files = candidates.files || more.files;
        }
        if (given == 0 && operand->IsRequired(inShell)) {
            break;
        }
    }
    return candidates;
}

std::vector<std::string> CommandNames(bool inShell) {
    std::vector<std::string> names{"help"};
    if (inShell) {
        names.emplace_back("quit");
    }
    for (const Command& command : Commands()) {
        if (command.IsOffered(inShell)) {
            names.emplace_back(command.name);
        }
    }
    return names;
}

/// The names behind those that the word has already: gain,exposure.
std::vector<std::string> ListsOfNames(const CompletedFunctions& functions, const std::string& word) {
    const std::string before = word.substr(0, word.rfind(',') + 1);
    std::vector<std::string> lists;
    for (const Instance& instance : functions.Listed()) {
        if (instance->restore != RestorePolicy::Never && instance->get != nullptr && instance->set != nullptr) {
            lists.push_back(before + instance.Name());
        }
    }
    return lists;
}

Candidates ForOption(const Cursor& cursor, const CompletedFunctions& functions, const std::string& model) {
    if (cursor.option->name == "--fault") {
        return {Simulation::FaultsFor(cursor.word, model), false};
    }
    if (cursor.option->value.starts_with("NAME")) {
        return {ListsOfNames(functions, cursor.word), false};
    }
    return cursor.option->value == "TOPIC" ? Candidates{Topics(functions), false}
                                           : Common::ValuesOf(*cursor.option, Simulation::ModelNames());
}

Candidates CandidatesAt(const Cursor& cursor, const Camera* camera, const std::string& model, bool inShell) {
    const CompletedFunctions functions(camera);
    const std::string name = cursor.operands.empty() ? "" : cursor.operands.front();
    if (cursor.option != nullptr) {
        return ForOption(cursor, functions, model);
    }
    if (cursor.word.starts_with("--")) {
        return {Common::NamesOf(OptionsOf(name, inShell)), false};
    }
    const auto& commands = Commands();
    const auto command =
        std::find_if(commands.begin(), commands.end(), [&](const Command& each) { return each.name == name; });
    if (command != commands.end()) {
        return ForOperands(*command, cursor.operands.size() - 1, cursor, functions, inShell);
    }
    const bool wantsCommand = cursor.operands.empty() || (name == "help" && cursor.operands.size() == 1);
    return wantsCommand ? Candidates{CommandNames(inShell), false} : Candidates{};
}

/// The model whose functions are meant, or empty.
std::string ModelFor(const Cursor& cursor) {
    if (const auto forced = cursor.values.find("--force-model"); forced != cursor.values.end()) {
        return forced->second;
    }
    const auto models = Simulation::ModelNames();
    const auto found = std::find_first_of(cursor.operands.begin(), cursor.operands.end(), models.begin(), models.end());
    return found == cursor.operands.end() ? "" : *found;
}

} // namespace

Candidates Complete(const std::string& line, const std::string& replaced) {
    auto words = Common::WordsToCursor(line, Common::Special::Backslash);
    words.erase(words.begin()); // the program
    const auto options = OptionsOf(anyCommand, false);
    const Cursor cursor = Common::FindCursor(words, options);
    const std::string model = ModelFor(cursor);
    std::optional<Plugin> plugin;
    std::optional<Session> session; // after the plug-in, which it needs
    std::optional<Camera> camera;
    try {
        if (!model.empty()) {
            ConfigureLogging("off");
            const auto path = cursor.values.find("--plugin");
            plugin.emplace(path == cursor.values.end() ? DefaultPlugin() : path->second);
            session.emplace(*plugin, model, CameraOptions{.index = 2, .accesses = [](const Access&) {}});
            camera.emplace(session->Camera());
        }
    } catch (const std::exception&) { // the functions of both families, then
        camera.reset();
    }
    return Common::Matching(CandidatesAt(cursor, camera ? &*camera : nullptr, model, false), cursor, replaced);
}

Candidates CompleteInShell(const std::string& line, const std::string& replaced, const Camera& camera) {
    const auto options = OptionsOf(anyCommand, true);
    const Cursor cursor = Common::FindCursor(Common::WordsToCursor(line, Common::Special::Hash), options);
    return Common::Matching(CandidatesAt(cursor, &camera, camera.Model(), true), cursor, replaced);
}

} // namespace Host
