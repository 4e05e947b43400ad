// Prints docs/functions.md: which model has which camera function, what it admits, which register is behind it. Nothing
// of it is written down here: the functions come from the host's table, limits and presence from the control of each
// model, registers from the accesses that a call comes to.

#include "Describe.h"
#include "Errors.h"
#include "Format.h"
#include "Logging.h"
#include "Program.h"

#include <algorithm>
#include <iostream>
#include <map>
#include <set>

namespace {

using namespace Host;

/// A line of the document, and the models of its family that have the function, by their limits.
struct Line {
    const Function* function;
    std::string registers;
    std::map<std::string, std::set<std::string>> modelsByLimits;
};

struct Family {
    std::vector<std::string> models;
    std::vector<Line> lines;
};

/// Brings the camera into the mode that the function needs, so that reading it is not refused.
void Unlock(const Camera& camera, const Instance& instance) {
    if (instance->lock && !camera.LockedBy(instance).empty()) {
        camera.Write(camera.FindOne(instance->lock->mode), {.numbers = {instance->lock->open.front()}, .text = {}});
    }
}

/// The registers that the host reaches by a call, without those that decide whether it may be called.
std::string RegistersOf(Session& session, const Camera& camera, const Instance& instance) {
    Unlock(camera, instance);
    (void)session.Port().Take();
    if (instance->get != nullptr) {
        (void)camera.TryRead(instance);
    } else {
        const Value one{.numbers = std::vector<std::int64_t>(instance->shape.fields.size(), 1), .text = "1"};
        camera.Write(instance, one);
    }
    std::vector<Access> accesses = session.Port().Take();
    return accesses.empty() ? "" : Hex(accesses.back().address);
}

void Look(Session& session, std::size_t row, const Instance& instance, Family& family) {
    const Camera camera = session.Functions();
    const Reading reading = camera.Look(instance);
    if (reading.error == SDK4_ERR_NOT_IMPLEMENTED || reading.error == SDK4_ERR_INVALID_INTERFACE) {
        return;
    }
    Line& line = family.lines[row];
    line.modelsByLimits[instance->set == nullptr ? "" : DescribeLimits(instance, camera.LimitsOf(instance))].insert(
        session.Model());
    if (line.registers.empty()) {
        line.registers = RegistersOf(session, camera, instance);
    }
}

/// A camera for each function: one call must not decide what the next one meets.
void AddModel(const Plugin& plugin, const std::string& model, std::map<std::string, Family>& families) {
    Session first(plugin, model, {.index = 2});
    const Camera camera = first.Functions();
    Family& family = families[camera.Family()];
    family.models.push_back(model);
    const std::vector<Instance> instances = [&] {
        std::vector<Instance> all;
        for (const Function& function : camera.Table()) {
            all.push_back({&function});
        }
        return all;
    }();
    if (family.lines.empty()) {
        for (const Instance& instance : instances) {
            family.lines.push_back({instance.function, {}, {}});
        }
    }
    for (std::size_t row = 0; row < instances.size(); ++row) {
        Session session(plugin, model, {.index = 2});
        Look(session, row, instances[row], family);
    }
}

/// Fewer words than a list of names: all, those with an "M" or a "C" for monochrome and colour, or all but a few.
std::string Models(const std::set<std::string>& having, const std::vector<std::string>& all) {
    const auto isColor = [](const std::string& model) { return model.ends_with('C'); };
    std::set<std::string> color, missing;
    for (const std::string& model : all) {
        (isColor(model) ? color : missing).insert(model);
    }
    if (having.size() == all.size()) {
        return "all";
    }
    if (having == color) {
        return "colour";
    }
    if (having == missing) {
        return "monochrome";
    }
    std::string names;
    for (const std::string& model : having) {
        names += (names.empty() ? "" : ", ") + model;
    }
    return names;
}

std::string Cell(std::string text) {
    for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2) {
        text.insert(at, 1, '\\');
    }
    return text;
}

/// What differs between more than two kinds of models is the camera's to tell.
std::string Limits(const Line& line, const Family& family) {
    if (line.modelsByLimits.size() > 2) {
        return "reported by the camera";
    }
    std::string text;
    for (const auto& [limits, models] : line.modelsByLimits) {
        const bool only = line.modelsByLimits.size() == 1;
        text += (text.empty() ? "" : "; ") + limits + (only ? "" : " (" + Models(models, family.models) + ")");
    }
    return text;
}

void Print(const Line& line, const Family& family) {
    std::set<std::string> having;
    for (const auto& [limits, models] : line.modelsByLimits) {
        having.insert(models.begin(), models.end());
    }
    const Function& function = *line.function;
    const char* const use = function.set == nullptr ? "read" : function.get == nullptr ? "write" : "read, write";
    const std::string name =
        std::string(function.name) + (function.indexed ? ".0-" + std::to_string(function.count - 1) : "");
    std::cout << "| `" << name << "` | " << function.interfaceName << " | " << use << " | " << function.unit << " | "
              << Cell(Limits(line, family)) << " | " << line.registers << " | "
              << (having.empty() ? "none" : Models(having, family.models)) << " |\n";
}

void Print(const std::string& name, const Family& family) {
    std::cout << "\n## " << name << "\n\nModels:";
    for (const std::string& model : family.models) {
        std::cout << " `" << model << "`";
    }
    std::cout
        << "\n\n| Function | Interface | Use | Unit | Limits | Register | Models |\n|---|---|---|---|---|---|---|\n";
    for (const Line& line : family.lines) {
        Print(line, family);
    }
}

} // namespace

int main() {
    ConfigureLogging("off", "");
    std::cout
        << "# Models and functions\n\nMade by `cmake --build --preset release --target functions` from the simulated "
           "cameras: names and limits as `qdv12host list`\nshows them, the register that a call reaches last. "
           "Functions that no model of a family has are refused with\n`SDK4_ERR_NOT_IMPLEMENTED`.\n";
    const Plugin plugin(DefaultPlugin());
    std::map<std::string, Family> families;
    for (const Model& model : plugin.Models()) {
        AddModel(plugin, model.name, families);
    }
    for (const char* const family : {"Orvik", "M2VX"}) {
        Print(family, families.at(family));
    }
    return AllWell;
}
