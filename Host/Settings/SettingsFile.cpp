#include "Settings.h"

#include "Describe.h"
#include "Errors.h"
#include "Functions/Tables.h"
#include "Nearest.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

namespace Host {

namespace {

constexpr const char* format = "qdv12host settings";
constexpr std::int64_t formatVersion = 1;

[[noreturn]] void Fail(const std::filesystem::path& file, const std::string& why) {
    throw UsageError("\"" + file.string() + "\": " + why);
}

std::string Content(const std::filesystem::path& file) {
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) {
        Fail(file, std::strerror(EISDIR));
    }
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    if (!stream || !(content << stream.rdbuf())) {
        Fail(file, stream ? "is empty" : std::strerror(errno));
    }
    return content.str();
}

Json Parse(const std::filesystem::path& file) {
    Json document;
    try {
        document = Json::Parse(Content(file));
    } catch (const UsageError&) {
        throw;
    } catch (const std::exception& error) {
        Fail(file, std::string("damaged, or no settings: ") + error.what());
    }
    const auto* const named = document["format"].Text();
    if (named == nullptr || *named != format) {
        Fail(file, "no settings of a camera");
    }
    const auto* const version = document["version"].Number();
    if (version == nullptr || *version != formatVersion) {
        Fail(file, "format version " + (version == nullptr ? "unknown" : std::to_string(*version)) +
                       "; this program reads version " + std::to_string(formatVersion));
    }
    return document;
}

std::string TextOf(const Json& document, const char* member, const std::filesystem::path& file) {
    const auto* const text = document[member].Text();
    if (text == nullptr) {
        Fail(file, "damaged: no \"" + std::string(member) + "\"");
    }
    return *text;
}

/// The values that the file holds, in the order of the table.
std::vector<Setting> ValuesOf(const Json& document, const Functions& table, const std::filesystem::path& file) {
    const auto* const members = document["values"].Members();
    if (members == nullptr) {
        Fail(file, "damaged: no \"values\"");
    }
    std::vector<Setting> values;
    std::vector<std::string> known;
    for (const Function& function : table) {
        for (const Instance& instance : InstancesOf(function)) {
            known.push_back(instance.Name());
            const auto member = std::find_if(members->begin(), members->end(),
                                             [&](const Json::Member& each) { return each.name == known.back(); });
            if (member == members->end()) {
                continue;
            }
            const auto value = FromJson(instance, member->value);
            if (!value) {
                Fail(file, "no value of " + known.back() + ": " + member->value.Print());
            }
            values.push_back({instance, *value});
        }
    }
    for (const Json::Member& member : *members) {
        if (std::find(known.begin(), known.end(), member.name) == known.end()) {
            Fail(file, "unknown function \"" + member.name + '"' + Suggestion(member.name, known));
        }
    }
    return values;
}

} // namespace

Settings ReadSettings(const std::filesystem::path& file) {
    const Json document = Parse(file);
    Settings settings{TextOf(document, "model", file),
                      TextOf(document, "family", file),
                      TextOf(document, "serialnumber", file),
                      TextOf(document, "date", file),
                      {}};
    const Functions* const table = TableOf(settings.family);
    if (table == nullptr) {
        Fail(file, "the functions of a control \"" + settings.family + "\" are not known");
    }
    settings.values = ValuesOf(document, *table, file);
    return settings;
}

void WriteSettings(const Settings& settings, const std::filesystem::path& file) {
    Json values(Json::Object{});
    for (const Setting& setting : settings.values) {
        values.Add(setting.instance.Name(), ToJson(setting.instance, setting.value));
    }
    const Json document{{"format", format},          {"version", formatVersion},        {"model", settings.model},
                        {"family", settings.family}, {"serialnumber", settings.serial}, {"date", settings.date},
                        {"values", values}};
    std::error_code error;
    if (std::filesystem::exists(file, error) && !std::filesystem::is_regular_file(file, error)) {
        Fail(file, "is there and no file");
    }
    const std::filesystem::path target = std::filesystem::weakly_canonical(file, error); // a link stays one
    const std::filesystem::path part = target.string() + ".part";
    std::ofstream stream(part, std::ios::binary);
    stream << document.Print() << '\n';
    stream.close();
    if (!stream) {
        const std::string why = std::strerror(errno);
        std::filesystem::remove(part, error);
        Fail(file, "cannot be written: " + why);
    }
    std::filesystem::rename(part, target, error);
    if (error) {
        const std::string why = error.message();
        std::filesystem::remove(part, error);
        Fail(file, "cannot be written: " + why);
    }
}

} // namespace Host
