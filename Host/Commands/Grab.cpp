#include "Host/Commands/Commands.h"

#include "Common/Number.h"
#include "Common/Text.h"
#include "Host/Assignment.h"
#include "Host/Interrupts.h"
#include "Host/OutputFile.h"
#include "Host/Pictures/Acquisition.h"
#include "Host/Pictures/Measure.h"
#include "Host/Pictures/Png.h"
#include "Host/Progress.h"
#include "Host/Settings/Assign.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <iostream>

namespace Host {

namespace {

/// The pictures to take and to write.
struct Order {
    std::uint64_t count = 1;
    std::uint64_t every = 1;
    bool raw = false;
    std::string file; ///< empty: nothing is written
    std::vector<std::string> assignments;

    [[nodiscard]] bool IsWritten(std::uint64_t picture) const { return !file.empty() && (picture - 1) % every == 0; }
    [[nodiscard]] std::uint64_t Files() const { return (count - 1) / every + 1; }
};

/// @throws UsageError
std::uint64_t NumberOf(const Invocation& invocation, Parameter parameter) {
    if (!invocation.Has(parameter)) {
        return 1;
    }
    const std::string text = invocation.Text(parameter);
    const auto number = Common::ParseWhole<std::uint64_t>(text);
    if (!number || *number < 1 || *number > 1'000'000'000) {
        throw UsageError("invalid number of pictures \"" + text + "\"");
    }
    return *number;
}

/// An assignment has a "=", which is why a FILE with one in its name needs a folder before it.
bool IsAssignment(const std::string& text) { return text.substr(0, text.find('/')).find('=') != std::string::npos; }

/// @throws UsageError
void CheckFile(const Order& order) {
    if (!order.raw && order.file != standardStream && !order.file.ends_with(".png")) {
        throw UsageError(DescribeFile(order.file) + ": pictures are written as .png; --raw writes them as they come");
    }
    CheckOutput(order.file);
}

/// FILE may be left out, and may stand behind assignments.
/// @throws UsageError
Order OrderOf(const Invocation& invocation) {
    Order order{.count = NumberOf(invocation, Parameter::Count),
                .every = NumberOf(invocation, Parameter::Every),
                .raw = invocation.Has(Parameter::Raw),
                .file = "",
                .assignments = invocation.Texts(Parameter::File)};
    const auto& others = invocation.Texts(Parameter::Assignments);
    order.assignments.insert(order.assignments.end(), others.begin(), others.end());
    const auto file = std::find_if_not(order.assignments.begin(), order.assignments.end(), IsAssignment);
    if (file != order.assignments.end()) {
        order.file = *file;
        order.assignments.erase(file);
        CheckFile(order);
    } else if (order.raw || invocation.Has(Parameter::Every)) {
        throw UsageError("--raw and --every say what is written: FILE is required");
    }
    return order;
}

/// Writes the pictures of an order.
class Writer {
public:
    Writer(const Order& given, std::string ofModel) : order(given), model(std::move(ofModel)) {}

    /// @throws UsageError; std::runtime_error
    void Write(const Picture& picture) {
        const std::string file = NextFile();
        if (!order.raw) {
            const PixelFormat* const format = FindPixelFormat(picture.format.pixelFormat);
            if (format == nullptr) {
                throw std::runtime_error("pixel format " + PixelFormatName(picture.format.pixelFormat) +
                                         " cannot be written as PNG; --raw writes it as it is");
            }
            WriteOutput(file, EncodePng(picture, *format));
        } else {
            WriteOutput(file, {reinterpret_cast<const char*>(picture.bytes.data()), picture.bytes.size()});
            if (file != standardStream) {
                WriteOutput(file + ".json", Describe(picture).Print() + '\n');
            }
        }
        ++written;
    }
    [[nodiscard]] std::uint64_t Written() const { return written; }

private:
    /// FILE for one picture; for several, "shot.png" becomes "shot-0001.png".
    [[nodiscard]] std::string NextFile() const {
        if (order.file == standardStream || order.Files() == 1) {
            return order.file;
        }
        constexpr std::size_t fewestDigits = 4;
        const std::string number = std::to_string(written + 1);
        const std::size_t digits = std::max(fewestDigits, std::to_string(order.Files()).size());
        const std::filesystem::path path(order.file);
        std::filesystem::path name = path.stem();
        name += '-' + std::string(digits - number.size(), '0') + number;
        name += path.extension();
        return (path.parent_path() / name).string();
    }

    [[nodiscard]] Json Describe(const Picture& picture) const {
        return Json{{"model", model},
                    {"format", PixelFormatName(picture.format.pixelFormat)},
                    {"pixelFormat", Common::Hex(picture.format.pixelFormat)},
                    {"width", picture.format.width},
                    {"height", picture.format.height},
                    {"bytes", static_cast<std::int64_t>(picture.bytes.size())},
                    {"frame", static_cast<std::int64_t>(picture.number)},
                    {"nanoseconds", std::int64_t{picture.time.count()}}};
    }

    const Order& order;
    std::string model;
    std::uint64_t written = 0;
};

/// What was received.
struct Result {
    PictureFormat format{};
    std::uint64_t frames = 0;
    std::chrono::nanoseconds first{0};
    std::chrono::nanoseconds last{0};
    StreamStatistics stream{};
    std::optional<Measures> measures{}; ///< of the last picture
    std::string losses{};               ///< why pictures may have been lost

    /// Pictures per second, by the camera's clock; 0 for a single picture.
    [[nodiscard]] double Rate() const {
        return last > first ? static_cast<double>(frames - 1) / std::chrono::duration<double>(last - first).count() : 0;
    }
};

/// Takes the pictures.
Result Take(Acquisition& acquisition, const Order& order, Writer& writer) {
    Result result{.format = acquisition.Format()};
    const Picture* picture = nullptr;
    {
        Progress progress(order.count);
        while (result.frames < order.count) {
            progress.Step(std::to_string(result.frames) + " of " + std::to_string(order.count));
            const Picture* const next = acquisition.Next();
            if (next == nullptr) {
                break;
            }
            picture = next;
            result.first = result.frames == 0 ? picture->time : result.first;
            result.last = picture->time;
            if (order.IsWritten(++result.frames)) {
                writer.Write(*picture);
            }
            if (!std::cout) { // reported at the end
                break;
            }
        }
    }
    acquisition.Stop();
    const PixelFormat* const format = FindPixelFormat(result.format.pixelFormat);
    if (picture != nullptr && format != nullptr) {
        result.measures = Measure(*picture, *format);
    }
    result.stream = acquisition.Source().Statistics();
    if ((result.frames < order.count || result.stream.missing > 0) && !Interrupts::Received()) {
        result.losses = acquisition.Source().ExplainLosses();
    }
    return result;
}

double Rounded(double value) { return std::round(value * 1000) / 1000; }

std::string OneDigit(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", value);
    return text;
}

std::string Describe(const Result& result) {
    std::string text = std::to_string(result.frames) + (result.frames == 1 ? " picture of " : " pictures of ") +
                       std::to_string(result.format.width) + " x " + std::to_string(result.format.height) + ' ' +
                       PixelFormatName(result.format.pixelFormat) + " (" +
                       (result.Rate() > 0 ? OneDigit(result.Rate()) + " per second, " : "") +
                       std::to_string(result.stream.missing) + " missing, " + std::to_string(result.stream.resent) +
                       " packets resent)";
    if (const auto& last = result.measures) {
        text += "; last: " + std::to_string(last->minimum) + " to " + std::to_string(last->maximum) + ", mean " +
                OneDigit(last->mean) + ", saturated " + OneDigit(last->saturated) + " %, sharpness " +
                OneDigit(last->sharpness) + " per mille";
    }
    return text;
}

Json ToJson(const Result& result, const std::string& file, std::uint64_t written) {
    Json document{{"file", file.empty() ? Json() : Json(file)},
                  {"written", static_cast<std::int64_t>(written)},
                  {"format", PixelFormatName(result.format.pixelFormat)},
                  {"width", result.format.width},
                  {"height", result.format.height},
                  {"frames", static_cast<std::int64_t>(result.frames)},
                  {"framesPerSecond", Rounded(result.Rate())},
                  {"missing", static_cast<std::int64_t>(result.stream.missing)},
                  {"packetsResent", static_cast<std::int64_t>(result.stream.resent)},
                  {"packetsDropped", static_cast<std::int64_t>(result.stream.dropped)},
                  {"packetSize", result.stream.packetSize},
                  {"socketBuffer", static_cast<std::int64_t>(result.stream.socketBuffer)}};
    Json last;
    if (const auto& measures = result.measures) {
        last = Json{{"minimum", measures->minimum},
                    {"maximum", measures->maximum},
                    {"mean", Rounded(measures->mean)},
                    {"saturatedPercent", Rounded(measures->saturated)},
                    {"sharpnessPerMille", Rounded(measures->sharpness)}};
    }
    document.Add("last", last);
    return document;
}

/// Reports an interruption, or missing pictures and the reason.
/// @return whether there was anything to report
bool ReportLosses(const Result& result, const Order& order, const Acquisition& acquisition) {
    const std::string why = result.losses.empty() ? "" : ": " + result.losses;
    if (Interrupts::Received()) {
        PrintError("interrupted; acquisition is stopped");
        return true;
    }
    if (result.frames < order.count && std::cout) {
        PrintError("no picture came within " + OneDigit(std::chrono::duration<double>(acquisition.Patience()).count()) +
                   " s" + why);
        return true;
    }
    if (result.stream.missing > 0) {
        const bool one = result.stream.missing == 1;
        PrintError(std::to_string(result.stream.missing) + (one ? " frame is missing" : " frames are missing") + why);
        return true;
    }
    return false;
}

} // namespace

int Grab(const Invocation& invocation) {
    const Order order = OrderOf(invocation);
    Session& session = invocation.Open();
    session.Connection().RequireControl();
    const auto assignments = ParseAssignments(session.Camera(), order.assignments);
    const Interrupts interrupts;
    const IgnoredPipeSignal pipes;
    const bool refused = Assign(session, assignments, [](const FunctionValue&, const Assigned&) {});
    Writer writer(order, session.Model());
    Acquisition acquisition(session);
    const Result result = Take(acquisition, order, writer);
    Output output(invocation.Program().Json(), order.file == standardStream ? std::cerr : std::cout);
    output.Set(Describe(result), ToJson(result, order.file, writer.Written()));
    output.End();
    const bool lost = ReportLosses(result, order, acquisition);
    return refused || lost ? Refused : Success;
}

} // namespace Host
