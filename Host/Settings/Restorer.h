#pragma once

#include "Host/Settings/ReadWhenSettled.h"
#include "Host/Settings/Settings.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Host {

/// What became of a function that was to be restored; NameOf has the names in this order.
enum class RestoreStatus {
    Pending, ///< nothing yet, and nothing any more if the restore was stopped
    Done,
    Unchanged, ///< the camera held the value already
    Rounded,   ///< the camera made another value of it, as it may
    Clamped,   ///< the camera holds another value
    Refused,
    Skipped,
    Planned, ///< it would be set
    PutBack, ///< an automatic mode that is as it was before, since the restore was stopped
    LeftOff, ///< an automatic mode that could not be put back
};

struct RestoreResult {
    Instance instance;
    RestoreStatus status;
    Value saved;
    std::optional<Value> before; ///< what the camera held, if it is known
    std::optional<Value> held;   ///< what it holds now, if it is known
    std::string reason;          ///< the name of the code that refused it; why it was skipped
};

[[nodiscard]] const char* NameOf(RestoreStatus status);
[[nodiscard]] inline bool IsFailure(RestoreStatus status) {
    return status == RestoreStatus::Clamped || status == RestoreStatus::Refused || status == RestoreStatus::LeftOff;
}

/// Sets a camera to saved settings.
class Restorer {
public:
    struct Options {
        bool outputs = false;
        /// Told what became of a function as soon as it is known; again in the rare case that a later setting moves it
        /// to where it cannot be brought back from.
        std::function<void(const RestoreResult&)> report = [](const RestoreResult&) {};
        /// Asked before each function whether to stop.
        std::function<bool()> shouldStop = [] { return false; };
    };

    /// @param setting sets the functions
    /// @param reading reads them
    Restorer(const Settings& saved, const Camera& setting, const Camera& reading, Wait waiting, Options chosen)
        : settings(saved),
          setter(setting),
          reader(reading),
          wait(std::move(waiting)),
          options(std::move(chosen)) {}

    /// Automatic modes off, then the values in the order of the table, until one setting no longer moves another; last
    /// the modes as they were saved. What fails stops nothing. Once it is to stop, the modes whose turn did not come
    /// are put back to what they were.
    /// @throws ChannelLost, after which nothing can be put back
    void Restore();

    /// Finds out what Restore would do. Writes no setting.
    void Plan();

    /// What became of each function, in the order of the settings; also after an exception.
    [[nodiscard]] const std::vector<RestoreResult>& Results() const { return results; }
    /// Whether something was left undone because it was to stop.
    [[nodiscard]] bool IsStopped() const { return stopped; }
    /// Automatic modes that were on before, and are off although they were not restored.
    [[nodiscard]] std::vector<Instance> ModesLeftOff() const;

private:
    [[nodiscard]] std::string ReasonToSkip(const Instance& instance) const;
    [[nodiscard]] RestoreResult Compare(const FunctionValue& setting) const;
    [[nodiscard]] RestoreResult Set(const FunctionValue& setting) const;
    [[nodiscard]] bool MustStop();
    void ReadCurrent();
    void SwitchOff();
    /// Sets what is no mode; again, what did not fail.
    /// @return whether that changed anything
    bool SetValues(bool again);
    void SetModes();
    void PutBack(RestoreResult& mode);
    void Record(RestoreResult& result, RestoreResult now);

    const Settings& settings;
    const Camera& setter;
    const Camera& reader;
    Wait wait;
    Options options;
    std::vector<RestoreResult> results;
    bool stopped = false;
};

} // namespace Host
