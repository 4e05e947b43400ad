#include "Simulation/Description.h"

#include "Descriptions.h"
#include "Simulation/BootstrapRegisters.h"
#include "Simulation/Nodes.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace Simulation {

namespace {

/// Replaces each placeholder by its value.
std::string Fill(std::string text, const std::vector<std::pair<std::string, std::string>>& values) {
    for (const auto& [placeholder, value] : values) {
        const std::size_t at = text.find(placeholder);
        text.replace(at, placeholder.size(), value);
    }
    return text;
}

/// The model's name as a type name: letters, digits and underscores.
std::string TypeName(std::string model) {
    const auto isOther = [](char character) { return character == ' ' || character == '-'; };
    std::replace_if(model.begin(), model.end(), isOther, '_');
    return model;
}

/// What stands between two tags.
std::set<std::string> Contents(const std::string& xml) {
    std::set<std::string> contents;
    for (std::size_t end = xml.find('<'); end != std::string::npos; end = xml.find('<', end + 1)) {
        const std::size_t start = xml.rfind('>', end) + 1;
        contents.insert(xml.substr(start, end - start));
    }
    return contents;
}

/// Whether the family has the function, but not this model: then the register is fixed, though hosts could write it.
bool Lacks(const Register& entry) { return entry.role == Role::Fixed && !entry.limits.empty(); }

bool Fits(const Feature& feature, const Register& entry) {
    const bool isText = feature.kind.kind == FeatureKind::Kind::Text;
    const std::size_t words = std::max<std::size_t>(feature.kind.fields.size(), 1);
    return feature.registerName == entry.name && !Lacks(entry) && (isText || words == WordCount(entry));
}

/// Enters the names of features at the end of their category.
void Enter(std::string& description, const std::string& category, const std::vector<std::string>& features) {
    std::size_t at = description.find("</Category>", description.find("<Category Name=\"" + category + '"'));
    at = description.rfind('\n', at) + 1;
    for (const std::string& feature : features) {
        const std::string line = "    <pFeature>" + feature + "</pFeature>\n";
        description.insert(at, line);
        at += line.size();
    }
}

/// Adds the functions of the registers.
void AddFeatures(std::string& description, const std::vector<Register>& registers) {
    std::string xml;
    for (const Feature& feature : Features()) {
        for (const Register& entry : registers) {
            if (Fits(feature, entry)) {
                const Nodes nodes = FeatureNodes(feature, entry);
                Enter(description, feature.category, nodes.features);
                xml += nodes.xml;
            }
        }
    }
    description.insert(description.find("$REGISTERS"), xml);
}

std::string Complete(const std::string& family, const std::string& model, const std::vector<Register>& own) {
    std::vector<Register> registers = BootstrapRegisters({});
    registers.insert(registers.end(), own.begin(), own.end());
    std::string description = Fill(family, {{"$TYPE", TypeName(model)}, {"$COMMON\n", commonDescription}});
    AddFeatures(description, registers);
    const std::set<std::string> wanted = Contents(description);
    std::string words;
    for (const Register& entry : registers) {
        words += WordNodes(entry, wanted);
    }
    return Fill(description, {{"$REGISTERS", words}});
}

} // namespace

std::string Description(const OrvikModel& model) {
    const std::string family =
        Fill(orvikDescription, {{"$WIDTH", std::to_string(model.width)}, {"$HEIGHT", std::to_string(model.height)}});
    return Complete(family, model.name, OrvikRegisters(model));
}

std::string Description(const M2VXModel& model) { return Complete(m2vxDescription, model.name, M2VXRegisters(model)); }

} // namespace Simulation
