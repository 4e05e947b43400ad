#pragma once

#include "Host/Json.h"
#include "Host/Panel/Server.h"

#include <chrono>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace Host::Panel {

/// An answer with a document.
[[nodiscard]] Response Answer(const Json& document, unsigned int status = 200);
/// An answer with {"message": "..."}.
[[nodiscard]] Response Refusal(unsigned int status, const std::string& message);

/// Requests that wait for the camera. Each is answered once: by its work, or when its time is over. On any thread.
class Requests {
public:
    using Clock = std::chrono::steady_clock;
    using Respond = std::function<void(Response)>;
    using Id = std::uint64_t;

    /// @param key a newer request of the same key takes the place of one that has not begun; none if empty
    Id Add(Respond respond, const std::string& key, Clock::time_point end);
    /// @param isEndless whether it may take any time now
    /// @return false if the request is answered already, and is not to be carried out
    [[nodiscard]] bool Begin(Id id, bool isEndless);
    void Answer(Id id, const Response& response);
    /// Answers what is overdue.
    void Expire();

private:
    struct Waiting {
        Id id;
        Respond respond;
        std::string key;
        Clock::time_point end;
        bool begun = false;
    };
    /// Removes the requests for which @p isMeant, and answers them.
    template <typename IsMeant> void Refuse(const IsMeant& isMeant, const Response& response);

    std::mutex mutex;
    std::vector<Waiting> waiting;
    Id last = 0;
};

} // namespace Host::Panel
