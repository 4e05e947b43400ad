#include "Host/Panel/Requests.h"

#include <algorithm>
#include <utility>

namespace Host::Panel {

Response Answer(const Json& document, unsigned int status) {
    return {.status = status, .body = document.Print() + '\n'};
}

Response Refusal(unsigned int status, const std::string& message) { return Answer(Json{{"message", message}}, status); }

template <typename IsMeant> void Requests::Refuse(const IsMeant& isMeant, const Response& response) {
    std::vector<Respond> refused;
    {
        const std::lock_guard lock(mutex);
        std::erase_if(waiting, [&](Waiting& each) {
            const bool meant = isMeant(each);
            if (meant) {
                refused.push_back(std::move(each.respond));
            }
            return meant;
        });
    }
    for (const Respond& respond : refused) {
        respond(response);
    }
}

Requests::Id Requests::Add(Respond respond, const std::string& key, Clock::time_point end) {
    if (!key.empty()) {
        Refuse([&](const Waiting& each) { return each.key == key && !each.begun; },
               Refusal(409, "a newer value came before this one was set"));
    }
    const std::lock_guard lock(mutex);
    waiting.push_back({++last, std::move(respond), key, end});
    return last;
}

bool Requests::Begin(Id id, bool isEndless) {
    const std::lock_guard lock(mutex);
    const auto found = std::find_if(waiting.begin(), waiting.end(), [&](const Waiting& each) { return each.id == id; });
    if (found == waiting.end()) {
        return false;
    }
    found->begun = true;
    found->end = isEndless ? Clock::time_point::max() : found->end;
    return true;
}

void Requests::Answer(Id id, const Response& response) {
    Refuse([&](const Waiting& each) { return each.id == id; }, response);
}

void Requests::Expire() {
    const auto now = Clock::now();
    Refuse([&](const Waiting& each) { return now > each.end; }, Refusal(504, "the camera has not answered in time"));
}

} // namespace Host::Panel
