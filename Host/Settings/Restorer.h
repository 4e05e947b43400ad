#pragma once

#include "Host/Settings/ReadWhenSettled.h"
#include "Host/Settings/Settings.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Host {

/// The result of restoring a function. The names in NameOf have the same order.
enum class RestoreStatus {
    Pending, ///< not reached
    Done,
    Unchanged, ///< the camera held the value already
    Rounded,   ///< the camera rounded the value as announced
    Clamped,   ///< the camera holds another value
    Refused,
    Skipped,
    Planned, ///< would be set
    PutBack, ///< a mode that has its old value again, because the restore was stopped or the mode is not selected
    LeftOff, ///< an automatic mode that could not be reverted
};

struct RestoreResult {
    Instance instance;
    RestoreStatus status;
    Value saved;
    std::optional<Value> before; ///< value before, if known
    std::optional<Value> held;   ///< value now, if known
    std::string reason;          ///< name of the error code, or why it was skipped
    LockState lock{};            ///< what locks it, if it was refused
    bool moved = false;          ///< whether a mode that stays on may have changed it again since
};

/// What a restore has done.
struct RestoreProgress {
    std::vector<RestoreResult> results; ///< of each selected setting, in their order
    /// Modes that lock selected settings and are not selected themselves. Their saved value is that before.
    std::vector<RestoreResult> borrowed;
    bool stopped = false; ///< early

    /// The results that are known, and the modes that were reverted.
    [[nodiscard]] std::vector<RestoreResult> Known() const;
    /// Automatic modes that were on before and are now off without having been restored.
    [[nodiscard]] std::vector<Instance> ModesLeftOff() const;
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
        bool network = false;
        /// Which settings to restore.
        std::function<bool(const Instance&)> selects = [](const Instance&) { return true; };
        /// What an attempt did that ended as the camera was lost. Values before are those before that attempt.
        RestoreProgress earlier{};
        /// Gets each result as soon as it is known; a second time if a later setting changes the value and it cannot be
        /// set again.
        std::function<void(const RestoreResult&)> report = [](const RestoreResult&) {};
        /// Asked before each function whether to stop.
        std::function<bool()> shouldStop = [] { return false; };
    };

    /// @param setting sets the functions
    /// @param reading reads them
    Restorer(const Settings& saved, const Camera& setting, const Camera& reading, Wait waiting, Options chosen);

    /// Switches automatic modes off, sets the values in the order of the table until none changes another, then sets
    /// the saved modes. A failure does not stop it. When stopped, it reverts the modes that were not reached. Modes
    /// that are not selected are off too while they would change selected settings, and are reverted. A way to get an
    /// address is switched off after the others are set, and only if one of those in the file is on. So the camera
    /// always keeps one, unless the file has none.
    /// @throws ChannelLost, after which nothing can be reverted
    void Restore();

    /// Determines what Restore would do. Writes no setting.
    void Plan();

    /// Valid also after an exception.
    [[nodiscard]] const RestoreProgress& Progress() const { return progress; }

private:
    [[nodiscard]] std::string ReasonToSkip(const FunctionValue& setting) const;
    /// Whether the settings are those of the camera itself, not of another one of its model.
    [[nodiscard]] bool IsSameCamera() const;
    /// The other way to get an address that is on in the file but not on the camera; empty if there is none, or if the
    /// camera has another one.
    /// @param isPlan whether those of the file will be set, unless they are skipped
    [[nodiscard]] std::string AddressMissing(const FunctionValue& setting, bool isPlan) const;
    /// Skips what would leave the camera without any of them.
    void SkipLastAddress(RestoreResult& result, bool isPlan) const;
    [[nodiscard]] RestoreResult Compare(const FunctionValue& setting) const;
    /// Whether a mode that is on now changes the function.
    [[nodiscard]] bool IsMoved(const Instance& instance) const;
    [[nodiscard]] RestoreResult Set(const FunctionValue& setting) const;
    [[nodiscard]] bool MustStop();
    void ReadCurrent();
    /// Notes the modes that lock selected settings and are not selected.
    void Borrow();
    /// Whether a borrowed mode would change selected settings.
    [[nodiscard]] bool MovesSelected(const RestoreResult& mode) const;
    void SwitchModesOff();
    void SwitchOff(RestoreResult& mode);
    /// Sets everything except modes. If @p again, only what did not fail.
    /// @return whether that changed anything
    bool SetValues(bool again);
    [[nodiscard]] bool SetValue(std::size_t i, bool again);
    void SetModes();
    void ReturnBorrowed();
    void PutBack(RestoreResult& mode);
    void Record(RestoreResult& result, RestoreResult now);

    const Settings& settings;
    const Camera& setter;
    const Camera& reader;
    Wait wait;
    Options options;
    std::vector<FunctionValue> selected;
    RestoreProgress progress{};
};

} // namespace Host
