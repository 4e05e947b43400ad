#pragma once

#include "Host/Json.h"
#include "Host/Panel/Preview.h"
#include "Host/Panel/Server.h"
#include "Host/Panel/Worker.h"
#include "Host/Pictures/Acquisition.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Host::Panel {

/// Pictures for the clients of a panel. Acquisition runs as long as a client wishes pictures. The camera's thread calls
/// everything; another thread makes the pictures.
class Live {
public:
    /// What a client wishes to see.
    struct Wish {
        ClientId client = 0;
        PictureView view{};
        bool trigger = false; ///< trigger exposures that wait for it
        bool awaits = false;  ///< the client has shown the last picture
    };
    /// A picture for some clients, or a message why there is none.
    struct Delivery {
        ClientId client = 0;
        Json description{};
        std::shared_ptr<const std::string> jpeg{}; ///< null with a message
    };
    /// Gets deliveries, on any thread.
    using Deliver = std::function<void(std::vector<Delivery>)>;
    /// Gets the last picture, or null; valid during the call.
    using UsePicture = std::function<void(const Picture*)>;

    explicit Live(Deliver delivered) : deliver(std::move(delivered)) {}
    /// Ignores errors of the camera.
    ~Live() { Stop(); }
    Live(const Live&) = delete;
    Live& operator=(const Live&) = delete;

    /// Starts or stops acquisition as wished, and takes a picture that has come.
    /// @throws ChannelLost
    void Poll(Session& session, const std::vector<Wish>& wishes);

    /// Stops acquisition until the next Poll. Keeps the last picture. Ignores errors of the camera.
    void Stop();
    [[nodiscard]] bool Runs() const { return acquisition != nullptr; }

    /// Passes the last picture to another thread.
    void Use(UsePicture use);

private:
    using Clock = Worker::Clock;

    void Start(Session& session);
    void Take(const std::vector<Wish>& wishes);
    void Trigger(bool came, const std::vector<Wish>& wishes);
    /// Tells all clients why there is no picture, and waits before the next attempt.
    void Fail(const std::string& message, const std::vector<Wish>& wishes);
    void Make(const std::vector<Wish>& wishes);
    [[nodiscard]] double Rate();

    Deliver deliver;
    std::unique_ptr<Acquisition> acquisition;
    Clock::time_point notBefore{}; ///< the next attempt to start
    Clock::time_point lastCame{};
    Clock::time_point lastTrigger{};
    std::deque<Clock::time_point> recent; ///< when the frames of the last second came

    // Of the thread that makes pictures.
    std::optional<Picture> picture;
    std::string kept;    ///< the bytes of the picture, after acquisition
    std::string failure; ///< of the last frame, read while the thread is idle
    Worker maker;        // last: it uses the others
};

} // namespace Host::Panel
