#include "Host/Settings/ReadWhenSettled.h"

namespace Host {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds motorTravelTime{4000}; ///< of the slowest motor
constexpr milliseconds pollPeriod{100};       ///< between two reads

} // namespace

Wait MakeWait(Session& session) {
    return [&session](milliseconds time) { session.Connection().Wait(time); };
}

Reading ReadWhenSettled(const Camera& reader, const Instance& instance, const Value& expected, const Wait& wait) {
    Reading reading = reader.TryRead(instance);
    if (instance->restore == RestorePolicy::Output) {
        for (milliseconds waited{0}; reading.code == 0 && reading.value != expected && waited < motorTravelTime;
             waited += pollPeriod) {
            wait(pollPeriod);
            reading = reader.TryRead(instance);
        }
    }
    return reading;
}

} // namespace Host
