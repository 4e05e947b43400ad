#include "Host/Commands/Commands.h"

#include "Common/Number.h"
#include "Common/Text.h"
#include "Host/CurrentCall.h"
#include "Host/ErrorReporting.h"
#include "Host/Format.h"
#include "Simulation/Cameras.h"
#include "Simulation/SimulatedCamera.h"

#include <SDK4/IGigEVisionPort.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Host {

namespace {

constexpr std::uint32_t wordBytes = 4;

/// The registers of a camera by address: through the control, if it has an interface for them, else through its port.
class DeviceRegisters {
public:
    explicit DeviceRegisters(Session& session)
        : control(session.As<SDK4::Control::IGigEVisionPort>()),
          port(session.Port()) {}

    [[nodiscard]] std::uint32_t Read(std::uint32_t address) const {
        const CurrentCall call("peek");
        return control != nullptr ? control->ReadRegister(address) : port.ReadRegister(address);
    }
    void Write(std::uint32_t address, std::uint32_t value) const {
        const CurrentCall call("poke");
        control != nullptr ? control->WriteRegister(address, value) : port.WriteRegister(address, value);
    }

private:
    SDK4::Control::IGigEVisionPort* control;
    SDK4::IControlPort& port;
};

/// Prints words. A word that may be a part of a text is printed as text too.
class WordPrinter {
public:
    explicit WordPrinter(const Invocation& invocation)
        : output(invocation.Output()),
          camera(invocation.OpenCamera()),
          simulated(Simulation::MakeCamera(camera.Model())) {}

    void Print(std::uint32_t address, std::uint32_t value) {
        const std::string text = TextIn(address, value);
        const std::string function = FunctionAt(address);
        const std::string words = Common::Hex(address) + "  " + Common::Hex(value) + "  " + std::to_string(value);
        const std::string meaning = text.empty() ? function : '"' + text + '"';
        output.Add(meaning.empty() ? words : Pad(words, 36) + meaning,
                   Json{{"address", Common::Hex(address)},
                        {"value", value},
                        {"text", text.empty() ? Json() : Json(text)},
                        {"function", function.empty() ? Json() : Json(function)}});
        inText = text.size() == wordBytes;
    }
    /// Instead of a word that cannot be read.
    void Fail(std::uint32_t address, const std::string& reason) {
        PrintError(reason);
        output.Add("", Json{{"address", Common::Hex(address)}, {"value", Json()}, {"error", reason}});
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

std::uint32_t ParseRegisterAddress(const std::string& text) {
    const auto address = Common::ParseNumber(text);
    if (!address || *address < 0) {
        throw UsageError("invalid address \"" + text + "\": give a number such as 0x14010000");
    }
    if (*address % wordBytes != 0) {
        throw UsageError("invalid address \"" + text + "\": registers are at multiples of 4");
    }
    return static_cast<std::uint32_t>(*address);
}

std::uint32_t ParseWords(const std::string& text, std::uint32_t address) {
    const std::uint64_t room = ((std::uint64_t{1} << 32) - address) / wordBytes;
    const auto words = text.empty() ? std::optional(1U) : Common::ParseWhole<std::uint32_t>(text);
    if (!words || *words == 0) {
        throw UsageError("invalid number of words \"" + text + '"');
    }
    if (*words > room) {
        throw UsageError(std::to_string(*words) + " words from " + Common::Hex(address) +
                         " on exceed the address space");
    }
    return *words;
}

struct WordWrite {
    std::uint32_t address;
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
    return {ParseRegisterAddress(text.substr(0, equals)), static_cast<std::uint32_t>(*value)};
}

/// @return whether the camera holds the value
bool WriteAndPrint(const DeviceRegisters& registers, const WordWrite& write, WordPrinter& printer) {
    const std::uint32_t address = write.address;
    const std::uint32_t value = write.value;
    const Outcome written = Attempt([&] { registers.Write(address, value); });
    if (written.code != 0) {
        printer.Fail(address, written.reason);
        return false;
    }
    std::uint32_t held = 0;
    const Outcome read = Attempt([&] { held = registers.Read(address); });
    if (read.code != 0) {
        printer.Fail(address, "written, but what the camera now holds could not be read: " + read.reason);
        return false;
    }
    printer.Print(address, held);
    if (held != value) {
        PrintError(Common::Hex(address) + ": " + Common::Hex(value) + " was written, but the camera now holds " +
                   Common::Hex(held));
    }
    return held == value;
}

} // namespace

int Peek(const Invocation& invocation) {
    const std::uint32_t first = ParseRegisterAddress(invocation.Text(Parameter::Register));
    const std::uint32_t words = ParseWords(invocation.Text(Parameter::Words), first);
    const DeviceRegisters registers(invocation.Open());
    WordPrinter printer(invocation);
    bool refused = false;
    for (std::uint32_t i = 0; i < words; ++i) {
        const std::uint32_t address = first + i * wordBytes;
        std::uint32_t value = 0;
        const Outcome read = Attempt([&] { value = registers.Read(address); });
        read.code == 0 ? printer.Print(address, value) : printer.Fail(address, read.reason);
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
