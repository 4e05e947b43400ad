#include "Host/EachCamera.h"

#include "Common/Text.h"
#include "Host/ChildProcess.h"
#include "Host/Command.h"
#include "Host/Format.h"
#include "Host/Interrupts.h"
#include "Host/Json.h"
#include "Host/Style.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <iostream>
#include <optional>
#include <utility>

namespace Host {

namespace {

constexpr int bySignal = 128; ///< added to the number of the signal that ended a program

/// While one exists, signals that end this program are read instead.
class SignalReader {
public:
    SignalReader() {
        sigset_t ending;
        sigemptyset(&ending);
        for (const int each : {SIGINT, SIGTERM, SIGHUP}) {
            sigaddset(&ending, each);
        }
        sigprocmask(SIG_BLOCK, &ending, &before);
        from.emplace(signalfd(-1, &ending, SFD_CLOEXEC));
    }
    ~SignalReader() { sigprocmask(SIG_SETMASK, &before, nullptr); }
    SignalReader(const SignalReader&) = delete;
    SignalReader& operator=(const SignalReader&) = delete;

    [[nodiscard]] int Number() const { return from->Number(); }
    [[nodiscard]] const sigset_t& Before() const { return before; }
    [[nodiscard]] int Read() const {
        signalfd_siginfo info{};
        return read(from->Number(), &info, sizeof info) == sizeof info ? static_cast<int>(info.ssi_signo) : 0;
    }

private:
    sigset_t before{};
    std::optional<Descriptor> from;
};

/// The run of the command on one camera.
struct CameraRun {
    std::string camera;  ///< as messages name it
    std::string label{}; ///< in front of its lines
    std::optional<ChildProcess> process{};
    bool started = false;
    std::string output{};     ///< what was read of a line; with JSON, of the document
    std::string unfinished{}; ///< the same of a line of standard error
    std::vector<std::string> errors{};
    int code = NotOpened;

    void Fail(const std::string& error) {
        PrintError(camera + ": " + error);
        errors.push_back(error);
    }
};

/// Takes the complete lines off the beginning of a text.
template <typename Take> void TakeLines(std::string& text, const Take& take) {
    std::size_t begin = 0;
    for (auto end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
        take(text.substr(begin, end - begin));
        begin = end + 1;
    }
    text.erase(0, begin);
}

/// Reads what is there. At the end, closes the descriptor and completes the last line.
void ReadSome(Descriptor& from, std::string& text) {
    std::array<char, 1U << 16U> some{};
    const ssize_t got = read(from.Number(), some.data(), some.size());
    text.append(some.data(), got > 0 ? static_cast<std::size_t>(got) : 0);
    if (got <= 0) {
        from.Close();
        text += text.empty() ? "" : "\n";
    }
}

void PassOutput(CameraRun& run, bool json) {
    ReadSome(run.process->Output(), run.output);
    if (!json) {
        TakeLines(run.output, [&](const std::string& line) { std::cout << run.label << line << '\n'; });
        std::cout.flush(); // a reader waits for each result
    }
}

void PassErrors(CameraRun& run) {
    static const std::string own = "qdv12host: ";
    ReadSome(run.process->Errors(), run.unfinished);
    TakeLines(run.unfinished, [&](const std::string& line) {
        line.starts_with(own) ? run.Fail(line.substr(own.size())) : void(std::cerr << run.label << line << '\n');
    });
}

/// @param received the last signal that was passed on
void EndRun(CameraRun& run, int received) {
    const int status = run.process->Wait();
    run.process.reset();
    run.code = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        run.code = bySignal + signal;
        const std::string death =
            "its process was ended by signal " + std::to_string(signal) + " (" + strsignal(signal) + ")";
        signal == received ? run.errors.push_back(death) : run.Fail(death);
    }
}

class Runs {
public:
    Runs(const EachCamera& what, const std::function<int(const std::string& camera)>& action)
        : each(what),
          run(action) {
        std::size_t width = 0;
        for (const std::string& camera : each.cameras) {
            runs.push_back({.camera = Common::InOneLine(camera)});
            width = std::max(width, Common::Width(runs.back().camera));
        }
        for (CameraRun& one : runs) {
            one.label = Pad(one.camera, width) + "  ";
        }
    }

    /// Runs all to their end.
    void Run() {
        for (std::size_t next = 0; next < runs.size() || IsRunning();) {
            while (next < runs.size() && received == 0 && (!each.oneByOne || !IsRunning())) {
                Start(next++);
            }
            next = received == 0 ? next : runs.size();
            Wait();
        }
    }
    /// The last signal that this program got; 0 if none.
    [[nodiscard]] int Received() const { return received; }
    [[nodiscard]] std::vector<CameraRun>& All() { return runs; }

private:
    [[nodiscard]] bool IsRunning() const {
        return std::any_of(runs.begin(), runs.end(), [](const CameraRun& one) { return one.process.has_value(); });
    }

    void Start(std::size_t which) {
        CameraRun& one = runs[which];
        one.started = true;
        try {
            one.process.emplace([&] { return run(each.cameras[which]); }, each.input, signals.Before());
        } catch (const std::exception& error) {
            one.Fail(error.what());
        }
    }

    /// Waits for output, the end of a run, or a signal.
    void Wait() {
        std::vector<pollfd> awaited{{signals.Number(), POLLIN, 0}};
        std::vector<CameraRun*> owners;
        for (CameraRun& one : runs) {
            if (one.process) { // closed descriptors are negative, and ignored
                awaited.push_back({one.process->Output().Number(), POLLIN, 0});
                awaited.push_back({one.process->Errors().Number(), POLLIN, 0});
                owners.push_back(&one);
            }
        }
        if (owners.empty()) {
            return;
        }
        poll(awaited.data(), awaited.size(), -1);
        if (awaited[0].revents != 0) {
            PassSignal();
        }
        for (std::size_t i = 0; i < owners.size(); ++i) {
            Pass(*owners[i], awaited[2 * i + 1].revents != 0, awaited[2 * i + 2].revents != 0);
        }
    }

    void Pass(CameraRun& one, bool output, bool errors) const {
        if (output) {
            PassOutput(one, each.json);
        }
        if (errors) {
            PassErrors(one);
        }
        if (one.process->Output().Number() < 0 && one.process->Errors().Number() < 0) {
            EndRun(one, received);
        }
    }

    void PassSignal() {
        received = signals.Read();
        for (const CameraRun& one : runs) {
            if (one.process) {
                one.process->Signal(received);
            }
        }
    }

    const EachCamera& each;
    const std::function<int(const std::string& camera)>& run;
    std::vector<CameraRun> runs;
    SignalReader signals;
    int received = 0;
};

/// The document of a run, or null if it printed none.
Json DocumentOf(const CameraRun& run) {
    try {
        return run.output.empty() ? Json() : Json::Parse(run.output);
    } catch (const std::exception&) { // it died meanwhile
        return {};
    }
}

void PrintRuns(const std::vector<CameraRun>& runs) {
    Output output(true);
    for (const CameraRun& run : runs) {
        Json errors(Json::List{});
        for (const std::string& error : run.errors) {
            errors.Add(error);
        }
        output.Add(
            "", Json{{"camera", run.camera}, {"exitCode", run.code}, {"errors", errors}, {"result", DocumentOf(run)}});
    }
    output.End();
}

void PrintSummary(const std::vector<CameraRun>& runs) {
    const std::size_t width = std::max(Common::Width(runs.front().label), Common::Width("CAMERA  "));
    std::cout << '\n' << Pad("CAMERA", width) << "EXIT CODE  ERRORS  FIRST ERROR\n";
    for (const CameraRun& run : runs) {
        const std::string code = Pad(std::to_string(run.code), 9);
        std::cout << Pad(run.label, width) << (run.code == Success ? Green(code) : Red(code)) << "  "
                  << (run.errors.empty() ? "0" : Pad(std::to_string(run.errors.size()), 6) + "  " + run.errors.front())
                  << '\n';
    }
}

} // namespace

int EachCamera::Run(const std::function<int(const std::string& camera)>& run) const {
    static_cast<void>(Green("")); // whether lines are coloured is decided here, since the runs print to pipes
    int worst = Success;
    int received = 0;
    {
        const IgnoredPipeSignal pipes; // the runs are completed
        Runs all(*this, run);
        all.Run();
        received = all.Received();
        for (CameraRun& one : all.All()) {
            if (!one.started) {
                one.code = bySignal + received;
                one.errors.emplace_back("not started");
            }
            worst = std::max(worst, one.code);
        }
        json ? PrintRuns(all.All()) : PrintSummary(all.All());
        std::cout.flush();
    }
    if (received != 0 && worst == bySignal + received) { // ends as one run would
        static_cast<void>(raise(received));
    }
    return worst;
}

} // namespace Host
