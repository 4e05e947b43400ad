#pragma once

#include "Host/ErrorReporting.h"
#include "Host/Function.h"

#include <SDK4/IPropertyState.h>

#include <string>
#include <string_view>
#include <vector>

namespace Host {

/// What reading a function tells.
struct Reading : Outcome {
    Value value;          ///< if it was read, of what has a getter
    std::string lockedBy; ///< "agc=1" while that keeps it from being set, else empty

    /// Whether the camera has the function at all.
    [[nodiscard]] bool IsImplemented() const {
        return code != SDK4_ERR_NOT_IMPLEMENTED && code != SDK4_ERR_INVALID_INTERFACE;
    }
    /// Whether it has no such value, or none for now.
    [[nodiscard]] bool IsAbsent() const { return !IsImplemented() || code == SDK4_ERR_DISABLED; }
};

/// An opened control, seen through the table of its family.
class Camera {
public:
    /// @throws OpenError for a control of a family that has no table
    Camera(IDynamicObject& opened, std::string modelName);

    [[nodiscard]] const std::string& Model() const { return model; }
    /// The design of the control: "Orvik" or "M2VX".
    [[nodiscard]] const std::string& Family() const { return family; }
    [[nodiscard]] const Functions& Table() const { return *functions; }

    /// Every instance of every row, in the order of the table. Rows of many instances stand for themselves (index 0)
    /// unless they are wanted one by one.
    [[nodiscard]] std::vector<Instance> All(bool oneByOne = true) const;

    /// The function of that name; all its instances for an indexed one without index.
    /// @throws UsageError for an unknown name, with the nearest known one
    [[nodiscard]] std::vector<Instance> Find(std::string_view name) const;
    /// Exactly one.
    /// @throws UsageError also for an indexed one without index
    [[nodiscard]] Instance FindOne(std::string_view name) const;

    /// Calls the getter. @throws X4Error
    [[nodiscard]] Value Read(const Instance& instance) const;
    /// Calls the setter. @throws X4Error
    void Write(const Instance& instance, const Value& value) const;

    /// Calls the setter, unless a mode locks the function. An M2VX control that reads through learns of a mode when it
    /// is set through it; of one that was set before, the host has to know.
    /// @throws X4Error
    void SetUnlessLocked(const Instance& instance, const Value& value) const;

    /// Reads a function. What refuses that, short of a camera that is lost, is told and not thrown.
    /// @throws ChannelLost
    [[nodiscard]] Reading TryRead(const Instance& instance) const;
    /// The same, and finds out what locks it. Nothing is written.
    [[nodiscard]] Reading Inspect(const Instance& instance) const;

    /// Whether a mode keeps the function from being set now: "agc=1", or empty. Reads the mode.
    [[nodiscard]] std::string LockedBy(const Instance& instance) const;

    /// What the function admits now; from the family where it publishes it, else from the row.
    [[nodiscard]] Limits LimitsOf(const Instance& instance) const;

    /// What happens to a value that it does not admit.
    [[nodiscard]] Refusal RefusalOf(const Instance& instance) const;

    /// Whether the camera may hold the one value where the other was asked for, as the row announces. Asked of a
    /// control through which other settings were set: it knows what is stale.
    [[nodiscard]] bool RoundsTo(const Instance& instance, const Value& asked, const Value& held) const;

    template <typename Interface> [[nodiscard]] Interface* As() const { return dynamic_cast<Interface*>(&control); }

private:
    [[nodiscard]] Reading Try(const Instance& instance, bool andItsLock) const;
    [[nodiscard]] Limits PublishedLimits(const Instance& instance) const;

    IDynamicObject& control;
    std::string model;
    std::string family;
    const Functions* functions;
    SDK4::Control::IPropertyState* properties; ///< null for a family that publishes nothing
};

/// Rows with more instances than this are not listed one by one unless asked for.
constexpr std::uint32_t fewInstances = 8;

} // namespace Host
