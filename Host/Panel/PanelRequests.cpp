#include "Host/Channel/ChannelErrors.h"
#include "Host/Describe.h"
#include "Host/ErrorReporting.h"
#include "Host/Functions/Names.h"
#include "Host/Panel/Panel.h"
#include "Host/Pictures/Png.h"
#include "Host/Settings/Assign.h"
#include "Host/Settings/CameraSettings.h"
#include "Host/Settings/ResultJson.h"
#include "Host/Settings/Selection.h"
#include "Host/Settings/SettingsFile.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

namespace Host::Panel {

namespace {

constexpr std::string_view functions = "/api/functions/";
constexpr const char* document = "document"; ///< as messages name what a client sent

/// A request that cannot be carried out, with its answer.
struct Refused {
    unsigned int status;
    std::string message;
};

Json ParseBody(const std::string& body) {
    try {
        return body.empty() ? Json(Json::Object{}) : Json::Parse(body);
    } catch (const std::exception& error) {
        throw Refused{400, std::string("not JSON: ") + error.what()};
    }
}

/// Why a function is not set before the client has confirmed it; empty if it need not.
std::string WhyConfirm(const Instance& instance) {
    if (instance->restore == RestorePolicy::Output) {
        return "it acts on connected devices";
    }
    if (IsNetwork(instance->restore)) {
        return "it changes the network configuration of the camera";
    }
    return instance->name == Name::restart ? "the camera restarts" : "";
}

/// The value of a body, as get --json prints it or as set takes it.
Value ValueIn(const Camera& camera, const Instance& instance, const Json& body) {
    const Json& given = body["value"];
    if (instance->trigger) {
        return {};
    }
    auto value = FromJson(instance, given);
    if (!value && given.Text() != nullptr) {
        value = instance.Parse(*given.Text());
    }
    const std::string why = value ? instance.WhyInvalid(*value) : "";
    if (!value || !why.empty()) {
        const std::string form = value ? why : DescribeForm(instance, camera.LimitsOf(instance));
        throw Refused{400, "invalid value for " + instance.Name() + (form.empty() ? "" : " (" + form + ")")};
    }
    return *value;
}

Instance FindFunction(const Camera& camera, const std::string& name) {
    try {
        return camera.FindOne(name);
    } catch (const UsageError& error) {
        throw Refused{404, error.what()};
    }
}

/// The words of a query: "dry-run&outputs".
std::set<std::string> OptionsIn(const std::string& query) {
    std::set<std::string> options;
    std::istringstream words(query);
    for (std::string word; std::getline(words, word, '&');) {
        if (word != "dry-run" && word != "outputs" && word != "network") {
            throw Refused{400, "the query takes dry-run, outputs and network"};
        }
        options.insert(word);
    }
    return options;
}

/// For a path that is not served, or not with this method.
Response RefuseMethod(const Request& request) {
    constexpr const char* read = "GET, HEAD";
    static const std::map<std::string_view, const char*> allowed = {
        {"/api/camera", read},   {"/api/functions", read},          {"/api/picture.png", read},
        {"/api/settings", read}, {"/api/settings/compare", "POST"}, {"/api/settings/restore", "POST"}};
    const bool isFunction = request.path.starts_with(functions);
    const auto found = allowed.find(request.path);
    if (!isFunction && found == allowed.end()) {
        return Refusal(404, "there is no such page");
    }
    Response response = Refusal(405, "that does not take " + request.method);
    response.allowed = isFunction ? "GET, HEAD, PUT" : found->second;
    return response;
}

} // namespace

void Panel::Carry(const Request& request, const Requests::Respond& respond) {
    const auto answer = [&]() -> Response {
        try {
            return Dispatch(request);
        } catch (const Refused& refused) {
            return Refusal(refused.status, refused.message);
        } catch (const UsageError& error) {
            return Refusal(400, error.what());
        } catch (const OpenError& error) {
            return Refusal(503, error.what());
        } catch (const ChannelLost& error) {
            Lose(error.Describe());
            return Refusal(503, error.Describe());
        } catch (const SDK4::X4Error& error) {
            return Refusal(500, SDK4::ErrorName(error.code));
        } catch (const std::exception& error) {
            return Refusal(500, error.what());
        }
    };
    if (request.method == "GET" && request.path == "/api/picture.png") {
        TakePicture(respond);
    } else {
        respond(answer());
    }
}

Response Panel::Dispatch(const Request& request) {
    const auto is = [&](const char* method, const char* path) {
        return request.method == method && request.path == path;
    };
    if (request.path.starts_with(functions) && (request.method == "GET" || request.method == "PUT")) {
        const std::string function = request.path.substr(functions.size());
        return request.method == "GET" ? DescribeFunction(function) : Set(function, request.body);
    }
    if (is("GET", "/api/camera")) {
        return DescribeCamera();
    }
    if (is("GET", "/api/functions")) {
        Camera().board.Complete();
        return Answer(Camera().board.All());
    }
    if (is("GET", "/api/settings")) {
        return Save();
    }
    if (is("POST", "/api/settings/compare")) {
        return Compare(request.body);
    }
    if (is("POST", restorePath)) {
        return Restore(request);
    }
    return RefuseMethod(request);
}

void Panel::TakePicture(const Requests::Respond& respond) {
    live->Use([respond](const Picture* picture) {
        const PixelFormat* const format = picture == nullptr ? nullptr : FindPixelFormat(picture->format.pixelFormat);
        if (format == nullptr) {
            respond(Refusal(404, "there is no picture yet: a client must show pictures"));
            return;
        }
        try {
            respond({.status = 200, .body = EncodePng(*picture, *format), .type = "image/png", .file = "picture.png"});
        } catch (const std::exception& error) {
            respond(Refusal(500, error.what()));
        }
    });
}

Response Panel::DescribeCamera() {
    Json camera{{"camera", name}, {"state", state}, {"message", message}, {"version", QDV12_VERSION}};
    if (opened) {
        const Host::Camera& open = opened->camera;
        const Reading serial = open.TryRead(open.FindOne(Name::serialNumber));
        camera.Add("model", open.Model());
        camera.Add("family", open.Family());
        camera.Add("serial", serial.code == 0 ? TextToJson(serial.value.text) : Json());
        camera.Add("connection", opened->session.Connection().Describe());
    }
    return Answer(camera);
}

Response Panel::DescribeFunction(const std::string& function) {
    OpenedCamera& camera = Camera();
    const Instance instance = FindFunction(camera.camera, function);
    const TraceLog::Call call(trace, "describe " + instance.Name());
    return Answer(camera.board.Describe(instance));
}

Response Panel::Set(const std::string& function, const std::string& text) {
    OpenedCamera& camera = Camera();
    const Json body = ParseBody(text);
    const Instance instance = FindFunction(camera.camera, function);
    if (instance->set == nullptr) {
        throw Refused{400, instance.Name() + " is read-only"};
    }
    const FunctionValue assignment{instance, ValueIn(camera.camera, instance, body)};
    if (const std::string why = WhyConfirm(instance); !why.empty() && !body["confirm"].IsTrue()) {
        throw Refused{428, instance.Name() + ": " + why + "; \"confirm\": true is required"};
    }
    camera.session.Connection().RequireControl();
    if (live->Runs() && (instance->lockedInAcquisition || instance->name == Name::exposureMode)) {
        live->Stop(); // until the next poll; the mode determines whether exposures are triggered
    }
    const TraceLog::Call call(trace, "set " + instance.Name());
    const Assigned result = AssignOne(camera.camera, camera.board.Reader(), MakeWait(camera.session), assignment);
    camera.board.Refresh();
    const std::string problem = DescribeProblem(camera.camera, assignment, result);
    Json answer = ToJson(assignment, result);
    answer.Add("rounded", result.rounded);
    answer.Add("message", problem);
    return Answer(answer, result.IsAccepted(assignment.value) ? 200 : 422);
}

Response Panel::Save() {
    Response response = Answer(SettingsToJson(TakeAllSettings(Camera().session)));
    response.file = Camera().camera.Model() + ".json";
    std::replace(response.file.begin(), response.file.end(), ' ', '-');
    return response;
}

Response Panel::Compare(const std::string& text) {
    OpenedCamera& camera = Camera();
    Session& session = camera.session;
    const Settings given = ParseSettings(text, document);
    if (given.model != session.Model()) {
        throw Refused{400, "the document is of model " + given.model + ", but the camera is " + session.Model()};
    }
    const Settings current = TakeReadableSettings(session, Selection(camera.camera.Table(), {}, {}));
    Json differences(Json::List{});
    for (const Difference& difference : Host::Compare(given, current)) {
        differences.Add(ToJson(difference));
    }
    return Answer(differences);
}

Response Panel::Restore(const Request& request) {
    const auto chosen = OptionsIn(request.query); // a misspelt dry-run must not restore
    OpenedCamera& camera = Camera();
    const Settings given = ParseSettings(request.body, document);
    if (given.model != camera.session.Model()) {
        throw Refused{400, "the document is of model " + given.model + ", but the camera is " + camera.session.Model()};
    }
    const bool dryRun = chosen.contains("dry-run");
    if (!dryRun) {
        camera.session.Connection().RequireControl();
        live->Stop();
    }
    const auto report = [&](const RestoreResult& result) {
        if (!dryRun) {
            SendToAll({{"type", "restore"}, {"result", ToJson(result)}});
        }
    };
    Restorer restorer(given, camera.camera, camera.board.Reader(), MakeWait(camera.session),
                      {.outputs = chosen.contains("outputs"),
                       .network = chosen.contains("network"),
                       .report = report,
                       .shouldStop = [this] { return ending.load(); }});
    const TraceLog::Call call(trace, "restore");
    dryRun ? restorer.Plan() : restorer.Restore();
    camera.board.Refresh();
    Json results(Json::List{});
    for (const RestoreResult& result : restorer.Progress().Known()) {
        results.Add(ToJson(result));
    }
    return Answer(results);
}

} // namespace Host::Panel
