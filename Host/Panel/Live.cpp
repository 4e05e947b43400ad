#include "Host/Panel/Live.h"

#include "Host/ErrorReporting.h"

#include <algorithm>
#include <cmath>
#include <future>

namespace Host::Panel {

namespace {

using std::chrono::seconds;

Json ToJson(const Area& area) { return Json::List{area.left, area.top, area.width, area.height}; }

double ThreeDigits(double value) { return std::round(value * 1000) / 1000; }

Json ToJson(const std::array<std::uint64_t, Survey::bins>& counts) {
    Json::List list;
    for (const std::uint64_t count : counts) {
        list.emplace_back(static_cast<std::int64_t>(count));
    }
    return list;
}

/// What is the same for all clients.
Json DescribePicture(const Picture& picture, const PixelFormat& format, double rate, std::uint64_t missing) {
    const Survey survey = SurveyOf(picture, format);
    Json::List histogram;
    for (const auto& channel : survey.histogram) {
        histogram.push_back(ToJson(channel));
    }
    return {{"type", "picture"},
            {"number", static_cast<std::int64_t>(picture.number)},
            {"time", std::chrono::duration<double>(picture.time).count()},
            {"format", format.name},
            {"width", picture.format.width},
            {"height", picture.format.height},
            {"rate", ThreeDigits(rate)},
            {"missing", static_cast<std::int64_t>(missing)},
            {"minimum", survey.measures.minimum},
            {"maximum", survey.measures.maximum},
            {"mean", ThreeDigits(survey.measures.mean)},
            {"saturatedPercent", ThreeDigits(survey.measures.saturated)},
            {"sharpnessPerMille", ThreeDigits(survey.measures.sharpness)},
            {"fullScale", format.FullScale()},
            {"histogram", format.channels == 1 ? histogram.front() : Json(histogram)}};
}

/// The pictures for the clients that await one.
std::vector<Live::Delivery> Develop(const Picture& picture, const PixelFormat& format,
                                    const std::vector<Live::Wish>& wishes, const Json& description) {
    std::vector<Live::Delivery> made;
    for (const Live::Wish& wish : wishes) {
        if (wish.awaits) {
            Json own = description;
            own.Add("area", ToJson(AreaOf(wish.view, picture.format)));
            made.push_back({wish.client, std::move(own),
                            std::make_shared<const std::string>(EncodePreview(picture, format, wish.view))});
        }
    }
    return made;
}

} // namespace

void Live::Poll(Session& session, const std::vector<Wish>& wishes) {
    if (wishes.empty()) {
        Stop();
        return;
    }
    if (!maker.IsIdle()) {
        return;
    }
    if (!failure.empty()) { // for example a frame of another format: the format was changed
        Fail(failure, wishes);
        return;
    }
    const Outcome outcome = Attempt([&] { acquisition == nullptr ? Start(session) : Take(wishes); });
    if (outcome.code != 0) {
        Fail(outcome.reason, wishes);
    }
}

void Live::Take(const std::vector<Wish>& wishes) {
    bool came = false;
    while (acquisition->Source().Await(std::chrono::milliseconds(0))) { // the newest
        came = true;
        lastCame = Clock::now();
        recent.push_back(lastCame);
    }
    Trigger(came, wishes);
    if (came) {
        Make(wishes);
    } else if (Clock::now() > lastCame + acquisition->Patience()) {
        const bool waits = acquisition->IsTriggered();
        Fail(waits ? "exposures wait for a trigger" : "no picture comes: " + acquisition->Source().ExplainLosses(),
             wishes);
    }
}

void Live::Start(Session& session) {
    if (Clock::now() < notBefore) {
        return;
    }
    session.Connection().RequireControl();
    acquisition = std::make_unique<Acquisition>(session);
    lastCame = Clock::now();
    lastTrigger = {};
}

void Live::Trigger(bool came, const std::vector<Wish>& wishes) {
    const bool wished = std::any_of(wishes.begin(), wishes.end(), [](const Wish& wish) { return wish.trigger; });
    if (acquisition->IsTriggered() && wished && (came || Clock::now() > lastTrigger + acquisition->Patience())) {
        lastTrigger = Clock::now();
        acquisition->Trigger();
    }
}

void Live::Fail(const std::string& message, const std::vector<Wish>& wishes) {
    Stop();
    failure.clear();
    notBefore = Clock::now() + seconds(1);
    std::vector<Delivery> told;
    told.reserve(wishes.size());
    for (const Wish& wish : wishes) {
        told.push_back({wish.client, {{"type", "noPicture"}, {"message", message}}, nullptr});
    }
    deliver(std::move(told));
}

void Live::Make(const std::vector<Wish>& wishes) {
    const double rate = Rate();
    const std::uint64_t missing = acquisition->Source().Statistics().missing;
    maker.Post([this, rate, missing, wishes, taken = acquisition.get()] {
        try {
            picture.reset();
            picture = taken->Checked(taken->Source().Develop());
            if (const PixelFormat* const format = FindPixelFormat(picture->format.pixelFormat)) {
                deliver(Develop(*picture, *format, wishes, DescribePicture(*picture, *format, rate, missing)));
            } else {
                failure = "pixel format " + PixelFormatName(picture->format.pixelFormat) + " cannot be shown";
            }
        } catch (const std::exception& error) {
            failure = error.what();
        }
    });
}

double Live::Rate() {
    const auto now = Clock::now();
    while (!recent.empty() && recent.front() < now - seconds(2)) {
        recent.pop_front();
    }
    const std::chrono::duration<double> span = recent.empty() ? seconds(1) : recent.back() - recent.front();
    return recent.size() < 2 ? 0 : static_cast<double>(recent.size() - 1) / span.count();
}

void Live::Stop() {
    if (acquisition == nullptr) {
        return;
    }
    std::promise<void> done;
    maker.Post([&] { // the bytes belong to the source
        if (picture) {
            kept.assign(reinterpret_cast<const char*>(picture->bytes.data()), picture->bytes.size());
            picture->bytes = {reinterpret_cast<const std::uint8_t*>(kept.data()), kept.size()};
        }
        done.set_value();
    });
    done.get_future().wait();
    acquisition.reset();
    recent.clear();
}

void Live::Use(UsePicture use) {
    maker.Post([this, use = std::move(use)] { use(picture ? &*picture : nullptr); });
}

} // namespace Host::Panel
