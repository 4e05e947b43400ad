#include "Host/Settings/SettingsFile.h"

#include "Common/File.h"
#include "Common/Suggestion.h"
#include "Host/Describe.h"
#include "Host/Errors.h"
#include "Host/Functions/Tables.h"

#include <iostream>
#include <sstream>
#include <system_error>

namespace Host {

namespace {

constexpr const char* format = "qdv12host settings";
constexpr std::int64_t formatVersion = 1;
constexpr const char* missingMember = "missing";

[[noreturn]] void Fail(const std::string& file, const std::string& why) {
    throw UsageError(DescribeFile(file) + ": " + why);
}

Json Parse(const std::string& content, const std::string& file) {
    if (content.empty()) {
        Fail(file, "empty file");
    }
    Json document;
    try {
        document = Json::Parse(content);
    } catch (const std::exception& error) {
        Fail(file, std::string("damaged, or not a settings file: ") + error.what());
    }
    const auto* const named = document["format"].Text();
    if (named == nullptr || *named != format) {
        Fail(file, "not a settings file");
    }
    const auto* const version = document["version"].Number();
    if (version == nullptr || *version != formatVersion) {
        Fail(file, "unsupported format version " + (version == nullptr ? "unknown" : std::to_string(*version)) +
                       "; this program reads version " + std::to_string(formatVersion));
    }
    return document;
}

std::string TextOf(const Json& document, const char* member, const std::string& file) {
    const auto* const text = document[member].Text();
    if (text == nullptr) {
        Fail(file, "damaged: \"" + std::string(member) + "\" is missing");
    }
    return *text;
}

/// The functions of a family by the names used in files.
class KnownFunctions {
public:
    explicit KnownFunctions(const Functions& table) {
        for (const Function& function : table) {
            for (const Instance& instance : InstancesOf(function)) {
                instances.push_back(instance);
                names.push_back(instance.Name());
            }
        }
    }

    [[nodiscard]] const std::vector<Instance>& All() const { return instances; }
    /// @throws UsageError for an unknown name
    [[nodiscard]] const Instance& Find(const std::string& name, const std::string& file) const {
        const auto found = std::find(names.begin(), names.end(), name);
        if (found == names.end()) {
            Fail(file, "unknown function \"" + name + '"' + Common::Suggestion(name, names));
        }
        return instances[static_cast<std::size_t>(found - names.begin())];
    }

private:
    std::vector<Instance> instances;
    std::vector<std::string> names;
};

/// The values in the file, in the order of the table.
std::vector<FunctionValue> ValuesOf(const Json& document, const KnownFunctions& known, const std::string& file) {
    const auto* const members = document["values"].Members();
    if (members == nullptr) {
        Fail(file, "damaged: \"values\" is missing");
    }
    for (const Json::Member& member : *members) {
        static_cast<void>(known.Find(member.name, file));
    }
    std::vector<FunctionValue> values;
    for (const Instance& instance : known.All()) {
        const std::string name = instance.Name();
        const auto member =
            std::find_if(members->begin(), members->end(), [&](const Json::Member& each) { return each.name == name; });
        if (member == members->end()) {
            continue;
        }
        const auto value = FromJson(instance, member->value);
        if (!value) {
            Fail(file, "invalid value for " + name + ": " + member->value.PrintInOneLine());
        }
        values.push_back({instance, *value});
    }
    return values;
}

/// The functions that the file lists as missing.
std::vector<Instance> MissingIn(const Json& document, const KnownFunctions& known, const std::string& file) {
    std::vector<Instance> missing;
    const auto* const elements = document[missingMember].Elements();
    for (const Json& element : elements == nullptr ? Json::List() : *elements) {
        if (element.Text() == nullptr) {
            Fail(file, "damaged: invalid name of a missing function: " + element.PrintInOneLine());
        }
        missing.push_back(known.Find(*element.Text(), file));
    }
    return missing;
}

/// Adds functions without a value that no lock can have made unavailable: the program that saved the file may not have
/// known them.
void AddUnknown(Settings& settings, const KnownFunctions& known) {
    for (const Instance& instance : known.All()) {
        if (!instance->lock && settings.Find(instance) == nullptr && !settings.IsMissing(instance)) {
            settings.missing.push_back(instance);
        }
    }
}

} // namespace

Json SettingsToJson(const Settings& settings) {
    Json values(Json::Object{});
    for (const FunctionValue& setting : settings.values) {
        values.Add(setting.instance.Name(), ToJson(setting.instance, setting.value));
    }
    Json document{{"format", format},          {"version", formatVersion},        {"model", settings.model},
                  {"family", settings.family}, {"serialnumber", settings.serial}, {"date", settings.date},
                  {"values", values}};
    if (!settings.missing.empty()) {
        document.Add(missingMember, NamesToJson(settings.missing));
    }
    return document;
}

std::string ReadSettingsText(const std::string& file) {
    std::string content;
    if (file == standardStream) {
        std::ostringstream input;
        input << std::cin.rdbuf();
        content = input.str();
    } else {
        try {
            content = Common::ReadFile(file);
        } catch (const std::system_error& error) {
            Fail(file, error.code().message());
        }
    }
    return content;
}

Settings ReadSettings(const std::string& file, bool inShell) {
    if (file == standardStream && inShell) {
        throw UsageError("standard input is taken by the shell; give a file");
    }
    return ParseSettings(ReadSettingsText(file), file);
}

Settings ParseSettings(const std::string& content, const std::string& file) {
    const Json document = Parse(content, file);
    Settings settings{TextOf(document, "model", file),
                      TextOf(document, "family", file),
                      TextOf(document, "serialnumber", file),
                      TextOf(document, "date", file),
                      {}};
    const Functions* const table = TableOf(settings.family);
    if (table == nullptr) {
        Fail(file, "unknown camera family \"" + settings.family + '"');
    }
    const KnownFunctions known(*table);
    settings.values = ValuesOf(document, known, file);
    settings.missing = MissingIn(document, known, file);
    AddUnknown(settings, known);
    return settings;
}

void WriteSettings(const Settings& settings, const std::string& file) {
    WriteOutput(file, SettingsToJson(settings).Print() + '\n');
}

} // namespace Host
