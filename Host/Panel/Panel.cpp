#include "Host/Panel/Panel.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/ErrorReporting.h"

#include <algorithm>
#include <future>

namespace Host::Panel {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds answerTime{10000};   ///< after which a request is answered without the camera
constexpr milliseconds livePeriod{4};       ///< between two looks for a picture
constexpr milliseconds quietPeriod{20};     ///< between two polls without pictures
constexpr milliseconds tellingPeriod{50};   ///< between two messages of values
constexpr milliseconds attemptPeriod{2000}; ///< between attempts to reach a lost camera

constexpr const char* ready = "ready";
constexpr const char* lost = "lost";
constexpr const char* held = "held";

/// Passes a callback of the control on.
void OnPropertyChange(const char* property, const char* attribute, void* context) {
    (*static_cast<std::function<void(const char*, const char*)>*>(context))(property, attribute);
}

} // namespace

Panel::OpenedCamera::OpenedCamera(const Plugin& plugin, const std::string& name, const CameraOptions& options,
                                  TraceLog& trace)
    : session(plugin, name, options),
      camera(session.Camera()),
      board(session, camera, trace) {
    if (auto* const properties = camera.As<SDK4::Control::IPropertyState>()) {
        properties->AddCallback(OnPropertyChange, &told);
    }
}

Panel::OpenedCamera::~OpenedCamera() {
    if (auto* const properties = camera.As<SDK4::Control::IPropertyState>()) {
        properties->RemoveCallback(OnPropertyChange);
    }
}

Panel::Panel(const Plugin& loaded, std::string cameraName, CameraOptions chosen, std::uint16_t port, std::string token)
    : plugin(loaded),
      name(std::move(cameraName)),
      options(std::move(chosen)),
      live(std::make_unique<Live>([this](std::vector<Live::Delivery> made) { Deliver(std::move(made)); })) {
    options.accesses = [this, before = options.accesses](const Access& access) {
        trace.Add(access, Seconds());
        before(access);
    };
    cameraThread = std::make_unique<Worker>([this] { return server && !ending ? Poll() : Clock::now() + quietPeriod; });
    Run([this] { Open(); });
    Run([&] { server = std::make_unique<Server>(*this, port, std::move(token)); });
}

void Panel::Stop() {
    if (ending.exchange(true)) { // which ends a restore, and polling
        return;
    }
    Run([this] { live.reset(); });   // what it made is posted before the next task
    Run([this] { server.reset(); }); // which posts tasks until then
    cameraThread.reset();
}

void Panel::End() {
    Stop();
    if (opened) {
        opened->session.Connection().SaveState();
    }
}

void Panel::Run(const std::function<void()>& task) {
    std::promise<void> done;
    cameraThread->Post([&] {
        try {
            task();
            done.set_value();
        } catch (...) {
            done.set_exception(std::current_exception());
        }
    });
    done.get_future().get();
}

void Panel::Open() {
    opened = std::make_unique<OpenedCamera>(plugin, name, options, trace);
    opened->told = [this](const char* property, const char* attribute) {
        SendToAll({{"type", "callback"}, {"name", property}, {"attribute", attribute}});
    };
    for (auto& [id, client] : clients) { // versions begin again
        client.values = client.documents = 0;
    }
    auto& connection = opened->session.Connection();
    if (connection.HasControl()) {
        SetState(ready, "");
        return;
    }
    try {
        connection.RequireControl();
        SetState(ready, "");
    } catch (const OpenError& error) {
        SetState(held, error.what());
    }
}

Panel::Clock::time_point Panel::Poll() {
    try {
        const Outcome outcome = Attempt([&] { PollCamera(); });
        if (outcome.code != 0) {
            SetState(opened ? state : lost, outcome.reason);
        } else if (state == ready) {
            SetState(ready, "");
        }
    } catch (const ChannelLost& error) {
        Lose(error.Describe());
    }
    return Clock::now() + (live->Runs() ? livePeriod : quietPeriod);
}

void Panel::PollCamera() {
    const bool isWatched =
        std::any_of(clients.begin(), clients.end(), [](const auto& each) { return each.second.visible; });
    if (!opened && isWatched) {
        static_cast<void>(Camera());
    }
    if (!opened) {
        return;
    }
    PassTime(*opened);
    if (isWatched) {
        PollOpened(*opened);
    } else {
        live->Stop(); // nobody looks, and nothing is asked of the camera
    }
}

Panel::OpenedCamera& Panel::Camera() {
    if (!opened && Clock::now() >= nextAttempt) {
        nextAttempt = Clock::now() + attemptPeriod;
        Open();
    }
    if (!opened) {
        throw OpenError(message);
    }
    return *opened;
}

void Panel::PassTime(OpenedCamera& camera) {
    const auto now = Clock::now();
    camera.session.Connection().TimePassed(std::chrono::duration_cast<std::chrono::microseconds>(now - lastPoll));
    lastPoll = now;
}

void Panel::PollOpened(OpenedCamera& camera) {
    if (state == held && Clock::now() >= nextAttempt) {
        nextAttempt = Clock::now() + attemptPeriod;
        try {
            camera.session.Connection().RequireControl();
            SetState(ready, "");
            camera.board.Refresh();
        } catch (const OpenError& error) {
            SetState(held, error.what());
        }
    }
    std::set<std::string> shown;
    bool followed = false;
    for (const auto& [id, client] : clients) {
        if (client.visible) {
            shown.insert(client.functions.begin(), client.functions.end());
            followed |= client.trace;
        }
    }
    trace.SetFollowed(followed);
    {
        const TraceLog::Call call(trace, "pictures");
        live->Poll(camera.session, Wishes());
    }
    camera.board.Poll(shown);
    if (Clock::now() >= nextTelling) {
        nextTelling = Clock::now() + tellingPeriod;
        TellClients(camera);
    }
}

void Panel::TellClients(OpenedCamera& camera) {
    const FunctionBoard& board = camera.board;
    for (auto& [id, client] : clients) {
        if (!client.visible) {
            continue;
        }
        for (const Json& function : board.FunctionsSince(client.documents)) {
            Send(id, {{"type", "function"}, {"function", function}});
        }
        client.documents = board.Version();
        if (const Json values = board.ValuesSince(client.values); values.Members() != nullptr) {
            Send(id, {{"type", "values"}, {"time", Seconds()}, {"values", values}});
        }
        client.values = board.Version();
        if (client.trace && client.accesses < trace.Count()) {
            Send(id, trace.Since(client.accesses));
        }
        client.accesses = trace.Count();
    }
}

std::vector<Live::Wish> Panel::Wishes() const {
    std::vector<Live::Wish> wishes;
    for (const auto& [id, client] : clients) {
        if (client.visible && client.picture) {
            wishes.push_back({id, *client.picture, client.trigger, client.awaits});
        }
    }
    return wishes;
}

void Panel::Deliver(std::vector<Live::Delivery> deliveries) {
    cameraThread->Post([this, made = std::move(deliveries)] {
        for (const Live::Delivery& delivery : made) {
            const auto client = clients.find(delivery.client);
            if (client == clients.end()) {
                continue;
            }
            Send(delivery.client, delivery.description);
            if (delivery.jpeg && server) {
                client->second.awaits = false;
                server->SendBinary(delivery.client, delivery.jpeg);
            }
        }
    });
}

void Panel::Lose(const std::string& why) {
    live->Stop();
    opened.reset();
    nextAttempt = Clock::now() + attemptPeriod;
    SetState(lost, why);
}

void Panel::SetState(const std::string& newState, const std::string& why) {
    const bool isNew = state != newState || message != why;
    state = newState;
    message = why;
    if (isNew) {
        SendToAll(State());
    }
}

Json Panel::State() const { return {{"type", "state"}, {"state", state}, {"message", message}}; }

double Panel::Seconds() const { return std::chrono::duration<double>(Clock::now() - start).count(); }

void Panel::Send(ClientId client, const Json& document) {
    if (server) { // it has gone at the end
        server->SendText(client, document.PrintInOneLine());
    }
}

void Panel::SendToAll(const Json& document) {
    for (const auto& [id, client] : clients) {
        Send(id, document);
    }
}

void Panel::Opened(ClientId client) {
    cameraThread->Post([this, client] {
        clients[client].accesses = trace.Count();
        Send(client, State());
    });
}

void Panel::Closed(ClientId client) {
    cameraThread->Post([this, client] { clients.erase(client); });
}

void Panel::Received(ClientId client, std::string text) {
    cameraThread->Post([this, client, text = std::move(text)] { Understand(client, text); });
}

void Panel::Understand(ClientId id, const std::string& text) {
    const auto client = clients.find(id);
    if (client == clients.end() || ending) { // many may wait at the end
        return;
    }
    Json received;
    try {
        received = Json::Parse(text);
    } catch (const std::exception&) { // of no client that knows the interface
        return;
    }
    const auto* const type = received["type"].Text();
    if (type == nullptr) {
        return;
    }
    if (*type == "view") {
        client->second.Show(received);
    } else if (*type == "shown") {
        client->second.awaits = true;
    } else if (*type == "pixel") {
        TellPixel(id, received);
    }
}

void Panel::TellPixel(ClientId id, const Json& question) {
    const auto* const x = question["x"].Number();
    const auto* const y = question["y"].Number();
    if (x == nullptr || y == nullptr || *x < 0 || *y < 0 || *x > UINT32_MAX || *y > UINT32_MAX) {
        return;
    }
    live->Use([this, id, column = static_cast<std::uint32_t>(*x),
               line = static_cast<std::uint32_t>(*y)](const Picture* picture) {
        const PixelFormat* const format = picture == nullptr ? nullptr : FindPixelFormat(picture->format.pixelFormat);
        if (format == nullptr) {
            return;
        }
        Json samples(Json::List{});
        for (const unsigned int sample : SamplesAt(*picture, *format, column, line)) {
            samples.Add(sample);
        }
        Send(id, {{"type", "pixel"}, {"x", column}, {"y", line}, {"samples", samples}});
    });
}

void Panel::Handle(Request request, std::function<void(Response)> respond) {
    const bool sets = request.method == "PUT"; // only the newest value of a function counts
    const auto id = requests.Add(std::move(respond), sets ? request.path : "", Clock::now() + answerTime);
    cameraThread->Post([this, id, request = std::move(request)] {
        if (ending) {
            requests.Answer(id, Refusal(503, "the panel ends"));
        } else if (requests.Begin(id, request.path == restorePath)) {
            Carry(request, [this, id](const Response& response) { requests.Answer(id, response); });
        }
    });
}

} // namespace Host::Panel
