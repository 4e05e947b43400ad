#include "Simulation/Nodes.h"

#include "Simulation/Addresses.h"

#include <algorithm>
#include <cstdio>

namespace Simulation {

namespace {

using Kind = FeatureKind::Kind;

constexpr std::size_t wordSize = sizeof(std::uint32_t);

std::string Element(const std::string& name, const std::string& content) {
    return "    <" + name + '>' + content + "</" + name + ">\n";
}

std::string Element(const std::string& name, std::int64_t number) { return Element(name, std::to_string(number)); }

std::string Node(const std::string& type, const std::string& name, const std::string& content) {
    return "  <" + type + " Name=\"" + name + "\">\n" + content + "  </" + type + ">\n";
}

std::size_t SelectorSize(const Register& entry) { return entry.powerUp.instances.front().selector.size(); }

std::string SelectorName(const Register& entry) { return entry.name + "_selector"; }

std::string WordName(const Register& entry, std::size_t word) {
    return WordCount(entry) == 1 ? entry.name : entry.name + '_' + std::to_string(word);
}

Limits LimitsOf(const Register& entry, std::size_t word) {
    return word < entry.limits.size() ? entry.limits[word] : Limits{};
}

/// Where the bytes are, and who may write them.
std::string Place(const Register& entry, std::size_t offset, std::size_t length, bool isReadOnly) {
    char address[16];
    std::snprintf(address, sizeof address, "0x%08X", static_cast<unsigned>(entry.address + offset));
    return Element("Address", address) + Element("Length", static_cast<std::int64_t>(length)) +
           Element("AccessMode", isReadOnly ? "RO" : "RW") + Element("pPort", "Device") +
           Element("Cachable", "NoCache");
}

std::string IntReg(const Register& entry, const std::string& name, const std::string& place, bool isSigned) {
    return Node("IntReg", name,
                place + Element("Sign", isSigned ? "Signed" : "Unsigned") +
                    Element("Endianess", entry.address < bootstrapEnd ? "BigEndian" : "LittleEndian"));
}

bool IsReadOnlyToHosts(const Register& entry) { return entry.role == Role::Fixed || entry.role == Role::Status; }

/// The node of one word.
std::string NumberNode(const FeatureKind& kind, const std::string& name, const std::string& common,
                       const std::string& word, const Limits& limits) {
    const std::string value = Element("pValue", word);
    if (kind.kind == Kind::Switch) {
        return Node("Boolean", name, common + value + Element("OnValue", 1) + Element("OffValue", 0));
    }
    if (!kind.names.empty()) {
        std::string entries;
        for (const CodeName& each : kind.names) {
            if (std::find(limits.codes.begin(), limits.codes.end(), each.code) != limits.codes.end()) {
                entries += "    <EnumEntry Name=\"" + std::string(each.name) + "\">\n  " +
                           Element("Value", std::int64_t{each.code}) + "    </EnumEntry>\n";
            }
        }
        return Node("Enumeration", name, common + entries + value);
    }
    const std::int64_t lowest = limits.codes.empty() ? limits.lowest : limits.codes.front();
    const std::int64_t highest = limits.codes.empty() ? limits.highest : limits.codes.back();
    return Node("Integer", name, common + value + Element("Min", lowest) + Element("Max", highest));
}

/// The nodes that choose an instance. A pair of words, row and column, is swapped when it is written alone.
std::string SelectorNodes(const Feature& feature, const Register& entry, const std::vector<std::string>& selected) {
    std::string word = SelectorName(entry);
    std::string nodes;
    if (entry.powerUp.swapped) {
        const std::string columns = std::to_string(ToWords(entry.powerUp.instances.back().selector)[1] + 1);
        const std::string pair = word;
        word = std::string(feature.node) + "Index";
        const std::string high = "4294967296";
        const auto quotient = [](const std::string& number, const std::string& divisor) {
            return "((" + number + "-(" + number + '%' + divisor + "))/" + divisor + ')'; // some divide as real numbers
        };
        nodes = Node("IntConverter", word,
                     Element("FormulaTo", "(FROM%" + columns + ")+" + quotient("FROM", columns) + '*' + high) +
                         Element("FormulaFrom", "(TO%" + high + ")*" + columns + '+' + quotient("TO", high)) +
                         Element("pValue", pair) + Element("Slope", "Varying"));
    }
    std::string content = Element("ToolTip", std::string("Selects one: ") + feature.toolTip) + Element("pValue", word) +
                          Element("Min", 0) +
                          Element("Max", static_cast<std::int64_t>(entry.powerUp.instances.size()) - 1);
    for (const std::string& each : selected) {
        content += Element("pSelected", each);
    }
    return Node("Integer", std::string(feature.node) + "Selector", content) + nodes;
}

} // namespace

std::size_t WordCount(const Register& entry) { return entry.powerUp.instances.front().value.size() / wordSize; }

std::string WordNodes(const Register& entry, const std::set<std::string>& wanted) {
    std::string nodes;
    const std::size_t selectorSize = SelectorSize(entry);
    if (wanted.contains(SelectorName(entry))) {
        nodes = IntReg(entry, SelectorName(entry), Place(entry, 0, selectorSize, false), false);
    }
    for (std::size_t word = 0; word < WordCount(entry); ++word) {
        const std::string name = WordName(entry, word);
        if (wanted.contains(name)) {
            nodes +=
                IntReg(entry, name, Place(entry, selectorSize + wordSize * word, wordSize, IsReadOnlyToHosts(entry)),
                       LimitsOf(entry, word).lowest < 0);
        }
    }
    return nodes;
}

Nodes FeatureNodes(const Feature& feature, const Register& entry) {
    const FeatureKind& kind = feature.kind;
    const std::string name = feature.node;
    const std::string toolTip = Element("ToolTip", feature.toolTip);
    if (kind.kind == Kind::Text) {
        const std::size_t prefix = entry.address < bootstrapEnd ? 0 : wordSize;
        const std::size_t length = SizeOf(entry) - prefix;
        return {{name}, Node("StringReg", name, toolTip + Place(entry, prefix, length, IsReadOnlyToHosts(entry)))};
    }
    if (kind.kind == Kind::Command) {
        return {{name}, Node("Command", name, toolTip + Element("pValue", entry.name) + Element("CommandValue", 1))};
    }
    const std::string common = toolTip + (kind.kind == Kind::Request ? Element("ImposedAccessMode", "WO") : "");
    std::vector<std::string> names;
    std::string xml;
    for (std::size_t word = 0; word < WordCount(entry); ++word) {
        names.push_back(kind.fields.empty() ? name : name + kind.fields[word]);
        xml += NumberNode(kind, names.back(), common, WordName(entry, word), LimitsOf(entry, word));
    }
    if (entry.powerUp.instances.size() == 1) {
        return {names, xml};
    }
    Nodes nodes{{name + "Selector"}, SelectorNodes(feature, entry, names) + xml};
    nodes.features.insert(nodes.features.end(), names.begin(), names.end());
    return nodes;
}

} // namespace Simulation
