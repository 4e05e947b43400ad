// Prints docs/generated/functions.md: which model has which camera function, what it admits, which register is behind
// it. Nothing of it is written down here: the functions come from the host's table, limits and presence from the
// control of each model, registers from the accesses that a call comes to.

#include "Common/Number.h"
#include "Common/Text.h"
#include "Host/CallTrace.h"
#include "Host/Describe.h"
#include "Host/Errors.h"
#include "Host/Format.h"
#include "Host/Logging.h"
#include "Host/Program.h"

#include <algorithm>
#include <iostream>
#include <map>
#include <set>

namespace {

using namespace Host;

/// A line of the document, and the models of its family that have the function, by their limits.
struct Line {
    const Function* function;
    std::string reached;
    std::map<std::string, std::set<std::string>> modelsByLimits;
};

struct Family {
    std::vector<std::string> models;
    std::vector<Line> lines;
};

/// Enters the model of the camera, if it has the function.
/// @return whether it has
bool Enter(Session& session, Line& line) {
    const Camera camera = session.Camera();
    const Instance instance{line.function};
    const Reading reading = camera.Inspect(instance);
    if (!reading.IsImplemented()) {
        return false;
    }
    const bool settable = instance->set != nullptr;
    const std::string limits = settable ? DescribeLimits(instance, camera.LimitsOf(instance)) : "";
    line.modelsByLimits[limits].insert(session.Model());
    return true;
}

/// Cameras of their own for each function: one call must not decide what the next one meets.
void AddModel(const Plugin& plugin, const std::string& model, std::map<std::string, Family>& families) {
    Session first(plugin, model, {.index = 2});
    const Camera camera = first.Camera();
    Family& family = families[camera.Family()];
    family.models.push_back(model);
    if (family.lines.empty()) {
        for (const Function& function : camera.Table()) {
            family.lines.push_back({&function, {}, {}});
        }
    }
    for (Line& line : family.lines) {
        Session looked(plugin, model, {.index = 2});
        if (Enter(looked, line) && line.reached.empty()) {
            const auto trace = TraceCalls(plugin, model, {line.function});
            line.reached = trace && trace->Register() ? Common::Hex(*trace->Register()) : "";
        }
    }
}

/// Fewer words than a list of names: all, those with an "M" or a "C" for monochrome and colour, or all but a few.
std::string Models(const std::set<std::string>& having, const std::vector<std::string>& all) {
    const auto isColor = [](const std::string& model) { return model.ends_with('C'); };
    std::set<std::string> color, monochrome;
    for (const std::string& model : all) {
        (isColor(model) ? color : monochrome).insert(model);
    }
    if (having.size() == all.size()) {
        return "all";
    }
    if (having == color) {
        return "colour";
    }
    if (having == monochrome) {
        return "monochrome";
    }
    return Common::Join(having);
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
    std::cout << "| `" << name << "` | " << function.meaning << " | " << function.interfaceName << " | " << use << " | "
              << function.unit << " | " << Cell(Limits(line, family)) << " | " << line.reached << " | "
              << (having.empty() ? "none" : Models(having, family.models)) << " |\n";
}

void Print(const std::string& name, const Family& family) {
    std::cout << "\n## " << name << "\n\nModels:";
    for (const std::string& model : family.models) {
        std::cout << " `" << model << "`";
    }
    std::cout << "\n\n| Function | Meaning | Interface | Use | Unit | Limits | Register | Models "
                 "|\n|---|---|---|---|---|---|---|---|\n";
    for (const Line& line : family.lines) {
        Print(line, family);
    }
}

} // namespace

int main() {
    ConfigureLogging("off", "");
    std::cout
        << "# Models and functions\n\nWritten by `cmake --build --preset release --target functions`, with the "
           "simulated cameras.\n\n"
           "- Function: the name in `qdv12host`. `iomode.0-5` has the instances 0 to 5.\n"
           "- Interface: in the namespace `SDK4::Control`.\n"
           "- Limits: as `qdv12host list` prints them, fields in order. If none are given, the value is not checked.\n"
           "- Register: the last one that a call accesses.\n"
           "- Models: `colour` and `monochrome` are the models that end with C and M. A model that lacks the function "
           "refuses it\n"
           "  with `SDK4_ERR_NOT_IMPLEMENTED`.\n";
    const Plugin plugin(DefaultPlugin());
    std::map<std::string, Family> families;
    for (const Model& model : plugin.Models()) {
        AddModel(plugin, model.name, families);
    }
    for (const char* const family : {"Orvik", "M2VX"}) {
        Print(family, families.at(family));
    }
    return Success;
}
