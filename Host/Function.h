#pragma once

#include "Host/Value.h"

#include <SDK4/IControlPort.h>
#include <SDK4/IDynamicObject.h>
#include <SDK4/X4Error.h>

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Host {

/// The limits of a field: a range, or single values if there are any.
struct FieldLimits {
    std::int64_t min = 0;
    std::int64_t max = 0;
    std::vector<std::int64_t> admitted{};
    std::optional<std::int64_t> defaultValue{}; ///< if the family publishes it

    [[nodiscard]] bool Admits(std::int64_t number) const;
};
/// Limits of a field that admits the values alone, which ascend.
[[nodiscard]] FieldLimits SingleValues(std::vector<std::int64_t> admitted);
/// One per field of the value, or empty if the value is not checked.
using Limits = std::vector<FieldLimits>;

/// How a function is restored.
enum class RestorePolicy {
    Never,   ///< not a setting: a report or a command
    Setting, ///< written in the order of the table
    Mode,    ///< adjusts other settings: off first, the saved mode last
    Output,  ///< acts on connected devices: I/O lines, motor, lens
    Network, ///< network configuration
    Address, ///< the same, a way to get an address, or off
};
[[nodiscard]] inline bool IsNetwork(RestorePolicy policy) {
    return policy == RestorePolicy::Network || policy == RestorePolicy::Address;
}

/// A camera as the rows of the table reach it.
struct OpenedCamera {
    IDynamicObject& control;
    SDK4::IControlPort& port; ///< for what the control cannot read
};

/// A function is locked unless another one, the mode, has one of the values in `open`.
struct Lock {
    std::string_view mode;
    std::vector<std::int64_t> open;
    bool moves; ///< the camera adjusts the value while locked

    /// Whether a value of the mode leaves the function unlocked.
    [[nodiscard]] bool IsOpen(const Value& value) const;
};

/// How a value outside the limits is refused.
struct Refusal {
    std::int32_t code;
    bool keeps; ///< the camera keeps its value; otherwise it holds the nearest admitted one
};

/// One row of the table: a camera function of one family. Rows are made by FunctionTable.
struct Function {
    using Getter = Value (*)(const OpenedCamera& camera, std::uint32_t index);
    using Setter = void (*)(const OpenedCamera& camera, std::uint32_t index, const Value& value);
    /// Reads limits from the camera or derives them from its model.
    using LimitsReader = Host::Limits (*)(IDynamicObject& control, std::string_view model);

    /// Whether the camera may hold @p held after the admitted value @p asked was set.
    using RoundingRule = bool (*)(IDynamicObject& control, const Value& asked, const Value& held);

    /// A sentence about a value, or an empty text.
    using Opinion = std::string (*)(const Value& value);

    std::string_view name;
    std::string_view topic;   ///< "identity", "exposure", ...
    std::string_view meaning; ///< what it is or does, in a few words
    std::string interfaceName;
    Shape shape;
    Getter get = nullptr; ///< null: write-only
    Setter set = nullptr; ///< null: read-only
    std::string_view unit;
    bool indexed = false;
    std::uint32_t count = 1; ///< number of instances, from index 0
    Host::Limits limits;     ///< if the family does not publish them
    LimitsReader limitsReader = nullptr;
    Host::Codes codes; ///< names of its numbers; some may have none
    std::optional<Lock> lock;
    bool lockedInAcquisition = false; ///< locked while acquisition runs
    std::optional<Refusal> refusal;   ///< if different from the rest of the family
    RestorePolicy restore = RestorePolicy::Never;
    RoundingRule rounding = nullptr; ///< null: the camera does not round
    bool trigger = false;            ///< a command without a value
    std::string_view property;       ///< its name in IPropertyState, if different
    std::string_view form;           ///< of a text, as "off|ADDRESS"; empty: any text
    Opinion invalid = nullptr;       ///< why a text is not of that form
    Opinion caution = nullptr;       ///< what to know after it was set on a camera on the network
    bool distinct = false;           ///< no two cameras may have the same value, except off
    std::string_view presence;       ///< for a write-only function: a readable one that the camera has or lacks with it

    Function& Means(std::string_view text) { return Set(meaning, text); }

    // Optional attributes of a row.
    Function& Unit(std::string_view text) { return Set(unit, text); }
    Function& Hexadecimal() { return Set(shape.hexadecimal, true); }
    /// Field names that differ from those of the record.
    Function& Fields(std::span<const Field> fields) { return Set(shape.fields, fields); }
    Function& Range(std::int64_t min, std::int64_t max); ///< for every field
    Function& LimitsFrom(LimitsReader reader) { return Set(limitsReader, reader); }
    Function& OneOf(std::int64_t first, std::int64_t last); ///< all values from first to last
    Function& OneOf(Host::Codes named);                     ///< only the named values
    Function& OnOff();
    Function& Named(Host::Codes names) { return Set(codes, names); } ///< names for some values
    /// Refused with that code; the camera keeps its value.
    Function& Keeps(std::int32_t code = SDK4_ERR_OUTOFRANGE) { return Set(refusal, Refusal{code, true}); }
    Function& Rounds(RoundingRule rule) { return Set(rounding, rule); }
    Function& MovedBy(std::string_view mode, const std::vector<std::int64_t>& open = {0}) {
        return Set(lock, Lock{mode, open, true});
    }
    Function& Needs(std::string_view mode, const std::vector<std::int64_t>& open = {1}) {
        return Set(lock, Lock{mode, open, false});
    }
    Function& LockedInAcquisition(bool locked = true) { return Set(lockedInAcquisition, locked); }
    Function& Instances(std::uint32_t number) { return Set(count, number); }
    Function& PublishedAs(std::string_view propertyName) { return Set(property, propertyName); }
    Function& Form(std::string_view text, Opinion whyInvalid) {
        Set(form, text);
        return Set(invalid, whyInvalid);
    }
    Function& Caution(Opinion about) { return Set(caution, about); }
    Function& Distinct() { return Set(distinct, true); }
    Function& PresentWith(std::string_view other) { return Set(presence, other); }

private:
    template <typename Member> Function& Set(Member& member, const std::type_identity_t<Member>& value) {
        member = value;
        return *this;
    }
};

/// The rows of a family, in dependency order: a function comes after those that limit or disable it.
using Functions = std::deque<Function>;

/// A function, or one instance of an indexed function, whose name then ends in the index: "iomode.3".
struct Instance {
    const Function* function = nullptr;
    std::uint32_t index = 0;

    bool operator==(const Instance&) const = default;
    const Function* operator->() const { return function; }
    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string Print(const Value& value) const {
        return Host::Print(value, function->shape, function->codes);
    }
    [[nodiscard]] std::optional<Value> Parse(std::string_view text) const {
        return ParseValue(text, function->shape, function->codes);
    }
    /// Why a parsed value cannot be set on any camera; empty if it can.
    [[nodiscard]] std::string WhyInvalid(const Value& value) const {
        return function->invalid == nullptr ? "" : function->invalid(value);
    }
};

/// A function and a value of it.
struct FunctionValue {
    Instance instance;
    Value value;
};

/// All instances of a row.
[[nodiscard]] std::vector<Instance> InstancesOf(const Function& function);

/// The function of that name, or all its instances if the index is omitted.
/// @throws UsageError for an unknown name, with a suggestion
[[nodiscard]] std::vector<Instance> FindIn(const Functions& table, std::string_view name);

} // namespace Host
