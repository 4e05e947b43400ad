#include "Simulation/CameraState.h"

#include "Common/File.h"
#include "Simulation/Identity.h"

#include <nlohmann/json.hpp>

#include <limits>
#include <string>
#include <system_error>

namespace Simulation {

namespace {

using Json = nlohmann::json;

const char* const format = "simulated camera";
const char* const serialNumber = "serial number";
const char* const macAddress = "MAC address";
const char* const timeMember = "microseconds";
const char* const registersMember = "registers";
const char* const setsMember = "settings sets";
const char* const requestPrefix = "asked "; // before the register's name: its requested value
constexpr int version = 1;
constexpr std::uint64_t longestTime = 1000000000000000; // microseconds, some thirty years
const std::vector<Role> savedRoles = {Role::Status, Role::Setting, Role::NonVolatile, Role::Volatile};

std::string Model(const RegisterSpace& space) { return space.GetText("modelname"); }

/// Replaces values that only an injected fault can have set by the power-up value.
std::vector<Words> WithinLimits(const Register& entry, std::vector<Words> instances) {
    for (std::size_t i = 0; i < instances.size(); ++i) {
        if (!Admit(entry.limits, instances[i])) {
            instances[i] = ToWords(entry.powerUp.instances[i].value);
        }
    }
    return instances;
}

Json ToJson(const RegisterSpace& space, const RegisterSpace::Content& content) {
    Json registers = Json::object();
    for (const auto& [name, state] : content) {
        const Register& entry = *space.Find(name);
        registers[name] = WithinLimits(entry, state.values);
        if (entry.powerUp.keepsRequest) {
            registers[requestPrefix + name] = WithinLimits(entry, state.requests);
        }
    }
    return registers;
}

/// One line per register and per settings set, to keep the file readable.
std::string Formatted(const Json& value, int depth, const std::string& indent) {
    if (depth == 0 || value.empty() || !value.is_object()) {
        return value.dump();
    }
    std::string text;
    for (const auto& [name, member] : value.items()) {
        text += (text.empty() ? "{\n" : ",\n") + indent + "  " + Json(name).dump() + ": " +
                Formatted(member, depth - 1, indent + "  ");
    }
    return text + "\n" + indent + "}";
}

[[noreturn]] void Refuse(const std::filesystem::path& path, const std::string& reason) {
    throw StateError("camera state " + path.string() + ": " + reason);
}

/// @throws std::runtime_error with the reason; the caller knows the path
[[noreturn]] void Damaged(const std::string& reason) { throw std::runtime_error("damaged: " + reason); }

const Json& Member(const Json& object, const std::string& name) {
    const auto found = object.find(name);
    if (found == object.end()) {
        Damaged("\"" + name + "\" is missing");
    }
    return *found;
}

std::uint64_t Number(const Json& value, std::uint64_t highest, const std::string& where) {
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > highest) {
        Damaged("invalid value " + value.dump() + " of " + where);
    }
    return value.get<std::uint64_t>();
}

Words ReadWords(const Json& value, const Register& entry, std::size_t instance) {
    const Words powerUp = ToWords(entry.powerUp.instances[instance].value);
    if (!value.is_array() || value.size() != powerUp.size()) {
        Damaged("wrong number of words of register " + entry.name);
    }
    Words words;
    for (const Json& word : value) {
        words.push_back(static_cast<std::uint32_t>(
            Number(word, std::numeric_limits<std::uint32_t>::max(), "register " + entry.name)));
    }
    Words admitted = words;
    // The power-up value of a command may lie outside the limits.
    if (words != powerUp && (!Admit(entry.limits, admitted) || admitted != words)) {
        Damaged("invalid value " + value.dump() + " of register " + entry.name);
    }
    return words;
}

std::vector<Words> ReadInstances(const Json& stored, const Register& entry) {
    if (!stored.is_array() || stored.size() != entry.powerUp.instances.size()) {
        Damaged("wrong number of instances of register " + entry.name);
    }
    std::vector<Words> instances;
    for (std::size_t i = 0; i < stored.size(); ++i) {
        instances.push_back(ReadWords(stored[i], entry, i));
    }
    return instances;
}

/// Reads the registers with these roles. None may be missing, and no others are allowed.
RegisterSpace::Content ReadContent(const Json& registers, const RegisterSpace& space, const std::vector<Role>& roles) {
    RegisterSpace::Content content = space.Save(roles);
    std::size_t members = content.size();
    for (auto& [name, state] : content) {
        const Register& entry = *space.Find(name);
        state.values = ReadInstances(Member(registers, name), entry);
        if (entry.powerUp.keepsRequest) {
            state.requests = ReadInstances(Member(registers, requestPrefix + name), entry);
            ++members;
        }
    }
    if (registers.size() != members) {
        Damaged("unknown registers");
    }
    return content;
}

SettingsSets::Saved ReadSets(const Json& value, const RegisterSpace& space) {
    if (!value.is_object()) {
        Damaged(std::string("\"") + setsMember + "\" is not an object");
    }
    SettingsSets::Saved sets;
    for (const auto& [name, settings] : value.items()) {
        if (name != "1" && name != "2") {
            Damaged("unknown settings set \"" + name + '"');
        }
        sets[name == "1" ? 1 : 2] = ReadContent(settings, space, {Role::Setting});
    }
    return sets;
}

void CheckHeader(const Json& file, const RegisterSpace& space) {
    if (!file.is_object() || file.value("format", Json()) != format) {
        throw std::runtime_error("not a camera state file");
    }
    if (Member(file, "version") != version) {
        throw std::runtime_error("unknown format version " + Member(file, "version").dump() + ", expected " +
                                 std::to_string(version));
    }
    if (Member(file, "model") != Model(space)) {
        throw std::runtime_error("wrong model " + Member(file, "model").dump() + ", expected \"" + Model(space) + '"');
    }
}

/// Reads the serial number and the MAC address. Files of older versions lack the MAC address.
RegisterSpace::Content ReadIdentity(const Json& file, const RegisterSpace& space) {
    const auto text = [&](const char* name) {
        const Json& value = Member(file, name);
        if (!value.is_string()) {
            Damaged(std::string("\"") + name + "\" is not a string");
        }
        return value.get<std::string>();
    };
    try {
        RegisterSpace::Content identity = SerialNumberRegisters(space, text(serialNumber));
        if (file.contains(macAddress)) {
            identity.merge(MacAddressRegisters(text(macAddress)));
        }
        return identity;
    } catch (const IdentityError& error) {
        Damaged(error.what());
    }
}

void Apply(const Json& file, SimulatedCamera& camera) {
    RegisterSpace& space = camera.Registers();
    CheckHeader(file, space);
    const auto time = Number(Member(file, timeMember), longestTime, "the time");
    auto content = ReadContent(Member(file, registersMember), space, savedRoles);
    content.merge(ReadIdentity(file, space));
    auto sets = ReadSets(Member(file, setsMember), space);

    space.Load(content);
    space.Set("startacquisition", {0});
    camera.Sets().Replace(std::move(sets));
    camera.SetTime(std::chrono::microseconds(static_cast<std::int64_t>(time)));
}

} // namespace

void SaveState(const SimulatedCamera& camera, const std::filesystem::path& path) {
    const RegisterSpace& space = camera.Registers();
    Json sets = Json::object();
    for (const auto& [number, settings] : camera.Sets().All()) {
        sets[std::to_string(number)] = ToJson(space, settings);
    }
    const Json file = {{"format", format},
                       {"version", version},
                       {"model", Model(space)},
                       {serialNumber, SerialNumberOf(space)},
                       {macAddress, MacAddressOf(space)},
                       {timeMember, static_cast<std::uint64_t>(camera.Time().count())},
                       {registersMember, ToJson(space, space.Save(savedRoles))},
                       {setsMember, sets}};

    try {
        Common::ReplaceFile(path, Formatted(file, 3, "") + '\n');
    } catch (const std::system_error& error) {
        Refuse(path, "cannot be written: " + error.code().message());
    }
}

bool HasState(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::status(path, ignored).type() != std::filesystem::file_type::not_found;
}

void LoadState(SimulatedCamera& camera, const std::filesystem::path& path) {
    try {
        Apply(Json::parse(Common::ReadFile(path)), camera);
    } catch (const Json::exception& error) {
        Refuse(path, std::string("damaged: ") + error.what());
    } catch (const std::system_error& error) {
        Refuse(path, "cannot be read: " + error.code().message());
    } catch (const std::runtime_error& error) {
        Refuse(path, error.what());
    }
}

} // namespace Simulation
