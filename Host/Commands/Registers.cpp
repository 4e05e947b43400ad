#include "Host/Commands/Commands.h"

#include "Common/Number.h"
#include "Common/Text.h"
#include "Host/CurrentCall.h"
#include "Host/ErrorReporting.h"
#include "Host/Format.h"
#include "Simulation/Cameras.h"
#include "Simulation/SimulatedCamera.h"

#include <SDK4/IBasicSettings.h>
#include <SDK4/IGigEVisionPort.h>
#include <SDK4/X4Error.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Host {

namespace {

constexpr std::uint32_t wordBytes = 4;
constexpr std::string_view devicePrefix = "device:";

/// What peek reads: a word at an address, or a device register, which three words select.
struct Location {
    std::uint32_t address = 0;
    std::optional<SDK4_KDEVICESELECT> device{};

    /// "0x14010000", "device:1,0,0"
    [[nodiscard]] std::string Name() const {
        return device ? std::string(devicePrefix) + std::to_string(device->value1) + ',' +
                            std::to_string(device->value2) + ',' + std::to_string(device->value3)
                      : Common::Hex(address);
    }
};

/// The registers of a camera: by address through the control, if it has an interface for that, else through its port.
class DeviceRegisters {
public:
    explicit DeviceRegisters(Session& session)
        : control(session.As<SDK4::Control::IGigEVisionPort>()),
          devices(session.As<SDK4::Control::IBasicSettings>()),
          port(session.Port()) {}

    [[nodiscard]] std::uint32_t Read(const Location& from) const {
        const CurrentCall call("peek");
        if (from.device) {
            return Devices().GetDevice(*from.device);
        }
        return control != nullptr ? control->ReadRegister(from.address) : port.ReadRegister(from.address);
    }
    void Write(const Location& to, std::uint32_t value) const {
        const CurrentCall call("poke");
        if (to.device) {
            Devices().SetDevice(*to.device, value);
        } else {
            control != nullptr ? control->WriteRegister(to.address, value) : port.WriteRegister(to.address, value);
        }
    }

private:
    [[nodiscard]] SDK4::Control::IBasicSettings& Devices() const {
        if (devices == nullptr) {
            throw SDK4::X4Error(SDK4_ERR_INVALID_INTERFACE);
        }
        return *devices;
    }

    SDK4::Control::IGigEVisionPort* control;
    SDK4::Control::IBasicSettings* devices;
    SDK4::IControlPort& port;
};

/// Prints words. A word that may be a part of a text is printed as text too.
class WordPrinter {
public:
    explicit WordPrinter(const Invocation& invocation)
        : output(invocation.Output()),
          camera(invocation.OpenCamera()),
          simulated(Simulation::MakeCamera(camera.Model())) {}

    void Print(const Location& at, std::uint32_t value) {
        const std::string text = at.device ? "" : TextIn(at.address, value);
        const std::string function = at.device ? "" : FunctionAt(at.address);
        const std::string words = at.Name() + "  " + Common::Hex(value) + "  " + std::to_string(value);
        const std::string meaning = text.empty() ? function : '"' + text + '"';
        output.Add(meaning.empty() ? words : Pad(words, 36) + meaning,
                   Json{{"address", at.Name()},
                        {"value", value},
                        {"text", text.empty() ? Json() : Json(text)},
                        {"function", function.empty() ? Json() : Json(function)}});
        inText = text.size() == wordBytes;
    }
    /// Instead of a word that cannot be read.
    void Fail(const Location& at, const std::string& reason) {
        PrintError(at.device ? at.Name() + ": " + reason : reason);
        output.Add("", Json{{"address", at.Name()}, {"value", Json()}, {"error", reason}});
        inText = false;
    }
    void End() const { output.End(); }

private:
    /// Four printable characters, or fewer and zeros behind such a word.
    [[nodiscard]] std::string TextIn(std::uint32_t address, std::uint32_t value) const {
        constexpr std::uint32_t firstOfVendor = 0xA000; // words are big-endian below it, little-endian from there on
        std::string bytes(wordBytes, '\0');
        for (std::uint32_t i = 0; i < wordBytes; ++i) {
            bytes.at(address < firstOfVendor ? wordBytes - 1 - i : i) = static_cast<char>(value >> 8 * i & 0xFFU);
        }
        const auto end = std::find_if(bytes.begin(), bytes.end(), [](char byte) { return byte < ' ' || byte > '~'; });
        const bool padded = std::all_of(end, bytes.end(), [](char byte) { return byte == '\0'; });
        return end == bytes.end() || (inText && padded) ? std::string(bytes.begin(), end) : "";
    }
    /// The function whose register begins there, as far as the simulated camera of the model knows.
    [[nodiscard]] std::string FunctionAt(std::uint32_t address) const {
        const auto* const known = simulated ? simulated->Registers().At(address) : nullptr;
        const bool isFunction =
            known != nullptr && std::any_of(camera.Table().begin(), camera.Table().end(),
                                            [&](const Function& function) { return function.name == known->name; });
        return isFunction ? known->name : "";
    }

    Output output;
    Camera camera;
    std::unique_ptr<Simulation::SimulatedCamera> simulated;
    bool inText = false; ///< whether the last word was a part of a text
};

/// @throws UsageError
Location ParseLocation(const std::string& text) {
    static constexpr Field selectWords[] = {{"value1"}, {"value2"}, {"value3"}};
    if (text.starts_with(devicePrefix)) {
        const auto select = ParseValue(text.substr(devicePrefix.size()), Shape{selectWords});
        if (!select) {
            throw UsageError("invalid device register \"" + text + "\": three words select one, as in device:1,0,0");
        }
        const auto word = [&](std::size_t i) { return static_cast<std::uint32_t>(select->numbers.at(i)); };
        return {.device = SDK4_KDEVICESELECT{word(0), word(1), word(2)}};
    }
    const auto address = Common::ParseNumber(text);
    if (!address || *address < 0) {
        throw UsageError("invalid address \"" + text + "\": give a number such as 0x14010000");
    }
    if (*address % wordBytes != 0) {
        throw UsageError("invalid address \"" + text + "\": registers are at multiples of 4");
    }
    return {.address = static_cast<std::uint32_t>(*address)};
}

std::uint32_t ParseWords(const std::string& text, const Location& first) {
    const std::uint64_t room = first.device ? 1 : ((std::uint64_t{1} << 32) - first.address) / wordBytes;
    const auto words = text.empty() ? std::optional(1U) : Common::ParseWhole<std::uint32_t>(text);
    if (!words || *words == 0) {
        throw UsageError("invalid number of words \"" + text + '"');
    }
    if (*words > room) {
        throw UsageError(std::to_string(*words) + " words from " + first.Name() +
                         (first.device ? " on: a device register has one" : " on exceed the address space"));
    }
    return *words;
}

struct WordWrite {
    Location to;
    std::uint32_t value;
};

WordWrite ParseWordWrite(const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) {
        throw UsageError("no value for \"" + text + "\": ADDRESS=VALUE is required");
    }
    const std::string given = text.substr(equals + 1);
    const auto value = Common::ParseNumber(given);
    if (!value || *value < std::numeric_limits<std::int32_t>::min()) {
        throw UsageError("invalid value \"" + given + "\": registers hold 32 bits");
    }
    return {ParseLocation(text.substr(0, equals)), static_cast<std::uint32_t>(*value)};
}

/// @return whether the camera holds the value
bool WriteAndPrint(const DeviceRegisters& registers, const WordWrite& write, WordPrinter& printer) {
    const Location& to = write.to;
    const std::uint32_t value = write.value;
    const Outcome written = Attempt([&] { registers.Write(to, value); });
    if (written.code != 0) {
        printer.Fail(to, written.reason);
        return false;
    }
    std::uint32_t held = 0;
    const Outcome read = Attempt([&] { held = registers.Read(to); });
    if (read.code != 0) {
        printer.Fail(to, "written, but what the camera now holds could not be read: " + read.reason);
        return false;
    }
    printer.Print(to, held);
    if (held != value) {
        PrintError(to.Name() + ": " + Common::Hex(value) + " was written, but the camera now holds " +
                   Common::Hex(held));
    }
    return held == value;
}

} // namespace

int Peek(const Invocation& invocation) {
    const Location first = ParseLocation(invocation.Text(Parameter::Register));
    const std::uint32_t words = ParseWords(invocation.Text(Parameter::Words), first);
    const DeviceRegisters registers(invocation.Open());
    WordPrinter printer(invocation);
    bool refused = false;
    for (std::uint32_t i = 0; i < words; ++i) {
        const Location at{first.address + i * wordBytes, first.device};
        std::uint32_t value = 0;
        const Outcome read = Attempt([&] { value = registers.Read(at); });
        read.code == 0 ? printer.Print(at, value) : printer.Fail(at, read.reason);
        refused |= read.code != 0;
    }
    printer.End();
    return refused ? Refused : Success;
}

int Poke(const Invocation& invocation) {
    std::vector<WordWrite> writes;
    for (const std::string& text : invocation.Texts(Parameter::Registers)) {
        writes.push_back(ParseWordWrite(text));
    }
    Session& session = invocation.Open();
    if (session.Connection().IsOnNetwork() && !invocation.Has(Parameter::Yes)) {
        throw UsageError("poke bypasses every check of the library; add --yes to write to a camera on the network");
    }
    session.Connection().RequireControl();
    const DeviceRegisters registers(session);
    WordPrinter printer(invocation);
    bool refused = false;
    for (const WordWrite& write : writes) {
        refused |= !WriteAndPrint(registers, write, printer);
    }
    printer.End();
    return refused ? Refused : Success;
}

} // namespace Host
