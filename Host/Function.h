#pragma once

#include "Host/Value.h"

#include <SDK4/IDynamicObject.h>
#include <SDK4/X4Error.h>

#include <cstdint>
#include <deque>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Host {

/// What a field admits: everything between the bounds, or single values where there are any.
struct FieldLimits {
    std::int64_t min = 0;
    std::int64_t max = 0;
    std::vector<std::int64_t> admitted{};
    std::optional<std::int64_t> defaultValue{}; ///< the default, where the family publishes one

    [[nodiscard]] bool Admits(std::int64_t number) const;
};
/// One per field of the value, or none at all: then every value is passed on to the camera.
using Limits = std::vector<FieldLimits>;

/// What may become of a function when settings are restored.
enum class RestorePolicy {
    Never,   ///< what the camera reports, or does when written
    Setting, ///< written in the order of the table
    Mode,    ///< moves other settings by itself: off first, the saved mode last
    Output,  ///< reaches what is wired to the camera: I/O lines, motor, lens
    Network, ///< how the camera is reached
};

/// Another function decides whether this one can be set: its value must be one of those.
struct Lock {
    std::string_view mode;
    std::vector<std::int64_t> open;
    bool moves; ///< while it is closed the camera moves the value by itself

    /// Whether a value of the mode leaves the function open.
    [[nodiscard]] bool IsOpen(const Value& value) const;
};

/// How a value is refused that is not admitted.
struct Refusal {
    std::int32_t code;
    bool keeps; ///< the camera holds what it held; otherwise the nearest admitted value
};

/// One row of the table: a camera function as one family of cameras has it. Rows are made by FunctionTable.
struct Function {
    using Getter = Value (*)(IDynamicObject& control, std::uint32_t index);
    using Setter = void (*)(IDynamicObject& control, std::uint32_t index, const Value& value);
    /// Limits that the camera tells, or that its model decides.
    using LimitsReader = Host::Limits (*)(IDynamicObject& control, std::string_view model);

    /// Whether the camera may hold the one value where the other, which it admits, was asked for.
    using RoundingRule = bool (*)(IDynamicObject& control, const Value& asked, const Value& held);

    std::string_view name;
    std::string_view topic; ///< what it belongs to: "identity", "exposure", ...
    std::string interfaceName;
    Shape shape;
    Getter get = nullptr; ///< null: can only be written
    Setter set = nullptr; ///< null: can only be read
    std::string_view unit;
    bool indexed = false;
    std::uint32_t count = 1; ///< how many there are of it, from index 0
    Host::Limits limits;     ///< for a family that does not publish them
    LimitsReader limitsReader = nullptr;
    Host::Codes codes; ///< names of its numbers; some may have none
    std::optional<Lock> lock;
    std::optional<Refusal> refusal; ///< where it is not the family's usual one
    RestorePolicy restore = RestorePolicy::Never;
    RoundingRule rounding = nullptr; ///< null: the camera holds what it accepts
    bool trigger = false;            ///< has no value: writing it, whatever is written, is the command
    std::string_view property;       ///< what IPropertyState calls it, if it knows it
    std::string_view presence; ///< the function whose reading tells whether the camera has this one, which none reads

    // What a row says beyond its name, getter and setter.
    Function& Unit(std::string_view text) { return Set(unit, text); }
    Function& Hexadecimal() { return Set(shape.hexadecimal, true); }
    /// Where they are called otherwise than in the record.
    Function& Fields(std::span<const Field> fields) { return Set(shape.fields, fields); }
    Function& Range(std::int64_t min, std::int64_t max); ///< of every field
    Function& LimitsFrom(LimitsReader reader) { return Set(limitsReader, reader); }
    Function& OneOf(std::int64_t first, std::int64_t last); ///< single values without a gap
    Function& OneOf(Host::Codes named);                     ///< single values, all of which have names
    Function& OnOff();
    Function& Named(Host::Codes names) { return Set(codes, names); } ///< names of some of its values
    /// Refuses with that code and keeps its value.
    Function& Keeps(std::int32_t code = SDK4_ERR_OUTOFRANGE) { return Set(refusal, Refusal{code, true}); }
    Function& Rounds(RoundingRule rule) { return Set(rounding, rule); }
    Function& MovedBy(std::string_view mode, std::initializer_list<std::int64_t> open = {0}) {
        return Set(lock, Lock{mode, open, true});
    }
    Function& Needs(std::string_view mode, std::initializer_list<std::int64_t> open = {1}) {
        return Set(lock, Lock{mode, open, false});
    }
    Function& Instances(std::uint32_t number) { return Set(count, number); }
    Function& PublishedAs(std::string_view propertyName) { return Set(property, propertyName); }
    Function& PresentWith(std::string_view other) { return Set(presence, other); }

private:
    template <typename Member> Function& Set(Member& member, const std::type_identity_t<Member>& value) {
        member = value;
        return *this;
    }
};

/// The rows of a family, in dependency order: a function stands behind those that limit or disable it.
using Functions = std::deque<Function>;

/// A function, or one of the several that a row stands for. Its name ends in the index then: "iomode.3".
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
};

/// What a function holds, or is to hold.
struct FunctionValue {
    Instance instance;
    Value value;
};

/// All instances of a row.
[[nodiscard]] std::vector<Instance> InstancesOf(const Function& function);

} // namespace Host
