#pragma once

#include "Host/Panel/Client.h"
#include "Host/Panel/FunctionBoard.h"
#include "Host/Panel/Live.h"
#include "Host/Panel/Requests.h"
#include "Host/Panel/Server.h"
#include "Host/Panel/TraceLog.h"
#include "Host/Panel/Worker.h"
#include "Host/Session.h"

#include <atomic>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace Host::Panel {

/// Serves one camera to the clients of a panel. One thread owns the plug-in and the camera; requests are queued for it.
class Panel final : public Service {
public:
    /// Opens the camera, and begins to serve.
    /// @param port 0 for a free one
    /// @throws as Session and Server
    Panel(const Plugin& loaded, std::string cameraName, CameraOptions chosen, std::uint16_t port, std::string token);
    ~Panel() override { Stop(); }

    /// Stops acquisition, and saves the state file of a simulated camera.
    /// @throws std::runtime_error if the file cannot be written
    void End();

    [[nodiscard]] std::uint16_t Port() const { return server->Port(); }
    /// To be called several times per second: answers requests that the camera has not answered in time.
    void Tick() { requests.Expire(); }

    void Handle(Request request, std::function<void(Response)> respond) override;
    void Opened(ClientId client) override;
    void Received(ClientId client, std::string text) override;
    void Closed(ClientId client) override;

private:
    using Clock = Worker::Clock;
    static constexpr const char* restorePath = "/api/settings/restore";

    /// An open camera.
    struct OpenedCamera {
        OpenedCamera(const Plugin& plugin, const std::string& name, const CameraOptions& options, TraceLog& trace);
        ~OpenedCamera();
        OpenedCamera(const OpenedCamera&) = delete;
        OpenedCamera& operator=(const OpenedCamera&) = delete;

        Session session;
        Host::Camera camera;
        FunctionBoard board;
        std::function<void(const char* name, const char* attribute)> told; ///< gets callbacks
    };

    void Stop();
    /// Runs a task on the camera's thread, and waits for it.
    /// @throws what the task throws
    void Run(const std::function<void()>& task);

    // The following are of the camera's thread.
    void Open();
    [[nodiscard]] Clock::time_point Poll();
    void PollCamera();
    void PollOpened(OpenedCamera& camera);
    void TellClients(OpenedCamera& camera);
    void PassTime(OpenedCamera& camera);
    void Lose(const std::string& why);
    void SetState(const std::string& newState, const std::string& why);
    [[nodiscard]] Json State() const;
    [[nodiscard]] std::vector<Live::Wish> Wishes() const;
    void Deliver(std::vector<Live::Delivery> deliveries);
    void Understand(ClientId id, const std::string& text);
    void TellPixel(ClientId id, const Json& question);
    void Send(ClientId client, const Json& document);
    void SendToAll(const Json& document);

    /// Answers a request; turns exceptions into answers.
    void Carry(const Request& request, const Requests::Respond& respond);
    [[nodiscard]] Response Dispatch(const Request& request);
    void TakePicture(const Requests::Respond& respond);
    [[nodiscard]] Response DescribeCamera();
    [[nodiscard]] Response DescribeFunction(const std::string& function);
    [[nodiscard]] Response Set(const std::string& function, const std::string& body);
    [[nodiscard]] Response Save();
    [[nodiscard]] Response Compare(const std::string& document);
    [[nodiscard]] Response Restore(const Request& request);
    /// The camera. One that was lost is opened again, if the last attempt is some time ago.
    /// @throws OpenError while it cannot be reached
    [[nodiscard]] OpenedCamera& Camera();
    [[nodiscard]] double Seconds() const;

    const Plugin& plugin;
    std::string name;
    CameraOptions options;
    Clock::time_point start = Clock::now();
    Requests requests;
    TraceLog trace;
    std::map<ClientId, Client> clients;
    std::string state = "lost"; ///< "ready", "lost", "held"
    std::string message = "the camera is being opened";
    Clock::time_point lastPoll = start;
    Clock::time_point nextTelling = start;
    Clock::time_point nextAttempt = start; ///< to open the camera, or to take control
    std::atomic<bool> ending = false;
    std::unique_ptr<OpenedCamera> opened;
    std::unique_ptr<Live> live;
    std::unique_ptr<Server> server;
    std::unique_ptr<Worker> cameraThread;
};

} // namespace Host::Panel
