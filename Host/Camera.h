#pragma once

#include "Host/ErrorReporting.h"
#include "Host/Function.h"

#include <SDK4/IPropertyState.h>

#include <string>
#include <string_view>
#include <vector>

namespace Host {

/// What locks a function.
struct LockState {
    std::string by;    ///< what locks it now: "agc=1"; empty if nothing does
    std::string needs; ///< what setting it takes, also if that is so: "agc=off"; empty for nothing
};

/// The result of reading a function.
struct Reading : Outcome {
    Value value;    ///< if the function has a getter and was read
    LockState lock; ///< if it was asked for

    /// Whether the camera has the function.
    [[nodiscard]] bool IsImplemented() const {
        return code != SDK4_ERR_NOT_IMPLEMENTED && code != SDK4_ERR_INVALID_INTERFACE;
    }
    /// Whether it was read, or could be in another mode.
    [[nodiscard]] bool IsAccessible() const { return code == 0 || code == SDK4_ERR_DISABLED; }
    /// Whether the camera lacks the function, or it is not available now.
    [[nodiscard]] bool IsAbsent() const { return !IsImplemented() || code == SDK4_ERR_DISABLED; }
};

/// An opened control with the function table of its family.
class Camera {
public:
    static constexpr std::string_view acquisition = "acquisition"; ///< in LockState::by, while it runs

    /// @param openedOn the port that the control uses
    /// @param isAcquiring whether acquisition runs through the control; it outlives this object
    /// @throws OpenError for an unknown family
    Camera(IDynamicObject& opened, SDK4::IControlPort& openedOn, std::string modelName,
           const bool& isAcquiring = neverAcquires);

    [[nodiscard]] const std::string& Model() const { return model; }
    /// The family of the control: "Orvik" or "M2VX".
    [[nodiscard]] const std::string& Family() const { return family; }
    [[nodiscard]] const Functions& Table() const { return *functions; }

    /// Every instance of every row, in the order of the table. Unless @p oneByOne, rows with many instances are listed
    /// once, with index 0.
    [[nodiscard]] std::vector<Instance> All(bool oneByOne = true) const;

    /// As FindIn its table.
    [[nodiscard]] std::vector<Instance> Find(std::string_view name) const;
    /// The same, of a function with a getter.
    /// @throws UsageError also for a write-only function
    [[nodiscard]] std::vector<Instance> FindReadable(std::string_view name) const;
    /// The one function of that name.
    /// @throws UsageError for an unknown name or a missing index
    [[nodiscard]] Instance FindOne(std::string_view name) const;

    /// Calls the getter. @throws X4Error
    [[nodiscard]] Value Read(const Instance& instance) const;
    /// Calls the setter. @throws X4Error
    void Write(const Instance& instance, const Value& value) const;

    /// Calls the setter, unless a mode locks the function. The check is needed because an uncached M2VX control does
    /// not know modes that were set before it was opened.
    /// @throws X4Error
    void SetUnlessLocked(const Instance& instance, const Value& value) const;

    /// Reads a function. Returns errors instead of throwing them, except a lost camera.
    /// @throws ChannelLost
    [[nodiscard]] Reading TryRead(const Instance& instance) const;
    /// The same, and determines what locks it, also if it therefore cannot be read. No setting is written.
    [[nodiscard]] Reading Inspect(const Instance& instance) const;

    /// What locks the function, after a call was refused; empty if nothing is known to do.
    /// @throws ChannelLost
    [[nodiscard]] LockState WhatRefused(const Instance& instance) const;

    /// What locks the function. Reads the mode that does.
    [[nodiscard]] LockState LockOf(const Instance& instance) const;
    /// What locks it now, or empty.
    [[nodiscard]] std::string LockedBy(const Instance& instance) const { return LockOf(instance).by; }

    /// The current limits: those that the control publishes, else those of the row.
    [[nodiscard]] Limits LimitsOf(const Instance& instance) const;

    /// How a value outside the limits is refused.
    [[nodiscard]] Refusal RefusalOf(const Instance& instance) const;

    /// Whether the camera may hold @p held after @p asked was set, by the rounding rule of the row. Use the control
    /// that set the values, because its caches were invalidated.
    [[nodiscard]] bool RoundsTo(const Instance& instance, const Value& asked, const Value& held) const;

    template <typename Interface> [[nodiscard]] Interface* As() const { return dynamic_cast<Interface*>(&control); }

private:
    static constexpr bool neverAcquires = false;

    [[nodiscard]] std::string NeedsOf(const Instance& instance) const;
    [[nodiscard]] Limits PublishedLimits(const Instance& instance) const;

    IDynamicObject& control;
    SDK4::IControlPort& port;
    std::string model;
    std::string family;
    const bool& acquires;
    const Functions* functions;
    SDK4::Control::IPropertyState* properties; ///< null for a family without published properties
};

/// Rows with more instances than this are listed as one by default.
constexpr std::uint32_t fewInstances = 8;

} // namespace Host
