#pragma once

#include "Settings.h"
#include "Settled.h"

#include <optional>
#include <string>
#include <vector>

namespace Host {

/// What became of a function that was to be restored.
enum class Fate {
    Done,
    Unchanged, ///< the camera held the value already
    Rounded,   ///< the camera made another value of it, as it may
    Clamped,   ///< the camera holds another value
    Refused,
    Skipped,
    Planned, ///< it would be set
};

struct Restored {
    Instance instance;
    Fate fate;
    Value saved;
    std::optional<Value> before; ///< what the camera held, if it is known
    std::optional<Value> held;   ///< what it holds now, if it is known
    std::string reason;          ///< the name of the code that refused it; why it was skipped
};

[[nodiscard]] const char* NameOf(Fate fate);
[[nodiscard]] inline bool IsFailure(Fate fate) { return fate == Fate::Clamped || fate == Fate::Refused; }

/// Sets a camera to saved settings.
class Restorer {
public:
    /// @param setting sets the functions
    /// @param reading reads them
    Restorer(const Camera& setting, const Camera& reading, Wait waiting, bool withOutputs)
        : setter(setting),
          reader(reading),
          wait(std::move(waiting)),
          outputs(withOutputs) {}

    /// Automatic modes off, then the values in the order of the table, until one setting no longer moves another; last
    /// the modes as they were saved. What fails stops nothing.
    /// @return what became of each function
    std::vector<Restored> Restore(const Settings& settings) const;

    /// What Restore would do. Writes no setting.
    [[nodiscard]] std::vector<Restored> Plan(const Settings& settings) const;

private:
    [[nodiscard]] std::string WhyNot(const Instance& instance) const;
    [[nodiscard]] Restored Compare(const Setting& setting) const;
    [[nodiscard]] Restored Set(const Setting& setting) const;
    void SwitchOff(const Settings& settings) const;
    /// Sets what is no mode; again, what did not fail.
    /// @return whether that changed anything
    bool SetValues(const Settings& settings, bool again, std::vector<Restored>& results) const;
    void SetModes(const Settings& settings, std::vector<Restored>& results) const;

    const Camera& setter;
    const Camera& reader;
    Wait wait;
    bool outputs;
};

} // namespace Host
