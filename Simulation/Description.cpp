#include "Simulation/Description.h"

#include "Descriptions.h"
#include "Simulation/Addresses.h"
#include "Simulation/BootstrapRegisters.h"

#include <algorithm>
#include <cstdio>
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

std::string WordNode(const std::string& name, std::uint32_t address, Role role) {
    const char* const access = role == Role::Fixed || role == Role::Status ? "RO" : "RW";
    const char* const byteOrder = address < bootstrapEnd ? "BigEndian" : "LittleEndian";
    char node[400];
    std::snprintf(node, sizeof node,
                  "  <IntReg Name=\"%s\">\n    <Address>0x%08X</Address>\n    <Length>4</Length>\n"
                  "    <AccessMode>%s</AccessMode>\n    <pPort>Device</pPort>\n    <Cachable>NoCache</Cachable>\n"
                  "    <Sign>Unsigned</Sign>\n    <Endianess>%s</Endianess>\n  </IntReg>\n",
                  name.c_str(), address, access, byteOrder);
    return node;
}

/// The nodes of the words that the description refers to. The name is that of the register; where it has several words,
/// their number follows: "gain", "readoutarea_2".
std::string WordNodes(const std::string& description, const std::vector<Register>& registers) {
    const std::set<std::string> wanted = Contents(description);
    std::string nodes;
    for (const Register& entry : registers) {
        const Instance& content = entry.powerUp.instances.front();
        const std::size_t words = content.selector.empty() ? content.value.size() / sizeof(std::uint32_t) : 0;
        for (std::uint32_t word = 0; word < words; ++word) {
            const std::string name = words == 1 ? entry.name : entry.name + '_' + std::to_string(word);
            if (wanted.contains(name)) {
                nodes += WordNode(name, entry.address + 4 * word, entry.role);
            }
        }
    }
    return nodes;
}

std::string Complete(const std::string& family, const std::string& model, const std::vector<Register>& own) {
    const std::string description = Fill(family, {{"$TYPE", TypeName(model)}, {"$COMMON\n", commonDescription}});
    const std::string nodes = WordNodes(description, BootstrapRegisters({})) + WordNodes(description, own);
    return Fill(description, {{"$REGISTERS", nodes}});
}

} // namespace

std::string Description(const OrvikModel& model) {
    const std::string family =
        Fill(orvikDescription, {{"$WIDTH", std::to_string(model.width)}, {"$HEIGHT", std::to_string(model.height)}});
    return Complete(family, model.name, OrvikRegisters(model));
}

std::string Description(const M2VXModel& model) { return Complete(m2vxDescription, model.name, M2VXRegisters(model)); }

} // namespace Simulation
