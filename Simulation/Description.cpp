#include "Simulation/Description.h"

#include "Descriptions.h"

#include <algorithm>
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

} // namespace

std::string Description(const OrvikModel& model) {
    return Fill(orvikDescription, {{"$TYPE", TypeName(model.name)},
                                   {"$LASTCOLUMN", std::to_string(model.width - 1)},
                                   {"$LASTLINE", std::to_string(model.height - 1)}});
}

std::string Description(const M2VXModel& model) { return Fill(m2vxDescription, {{"$TYPE", TypeName(model.name)}}); }

} // namespace Simulation
