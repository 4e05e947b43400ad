#include "Host/Describe.h"

#include "Common/Number.h"
#include "Common/Text.h"
#include "Host/ErrorReporting.h"

#include <algorithm>
#include <string_view>

namespace Host {

namespace {

Json ToJson(const Instance& instance, std::int64_t number) {
    for (const Code& code : instance->codes) {
        if (code.value == number) {
            return code.name;
        }
    }
    return number;
}

constexpr const char* hexMember = "hex"; ///< of the object that replaces a text that is not UTF-8

std::string Hexadecimal(const std::string& bytes) {
    constexpr const char* digits = "0123456789abcdef";
    std::string text;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        text += {digits[byte >> 4U], digits[byte & 0xFU]};
    }
    return text;
}

/// @return nothing if not hexadecimal, or with a NUL, which would end the text
std::optional<std::string> BytesOf(const std::string& hexadecimal) {
    std::string bytes;
    for (std::size_t i = 0; i < hexadecimal.size(); i += 2) {
        const std::string_view digits = std::string_view(hexadecimal).substr(i, 2);
        const auto byte = Common::ParseWhole<std::uint8_t>(digits, 16);
        if (digits.size() != 2 || byte.value_or(0) == 0) {
            return std::nullopt;
        }
        bytes += static_cast<char>(*byte);
    }
    return bytes;
}

/// A number or a text, as text.
std::optional<std::string> TextOf(const Json& element) {
    if (const auto* const number = element.Number()) {
        return std::to_string(*number);
    }
    return element.Text() == nullptr ? std::nullopt : std::optional(*element.Text());
}

std::optional<Value> TextFromJson(const Json& json) {
    const auto* const hexadecimal = json[hexMember].Text();
    const auto text = hexadecimal == nullptr ? TextOf(json) : BytesOf(*hexadecimal);
    return text ? std::optional(Value{{}, *text}) : std::nullopt;
}

bool IsRecord(const Instance& instance) { return instance->shape.fields.size() > 1; }

std::string Range(const Instance& instance, const FieldLimits& field) {
    const auto print = [&](std::int64_t number) { return Print(number, instance->shape, instance->codes); };
    const auto& admitted = field.admitted;
    const bool plain = std::all_of(admitted.begin(), admitted.end(),
                                   [&](std::int64_t number) { return print(number) == std::to_string(number); });
    const bool gapless = field.max - field.min + 1 == static_cast<std::int64_t>(admitted.size());
    if (admitted.empty() || (plain && gapless && admitted.size() > 2)) {
        return print(field.min) + ".." + print(field.max);
    }
    std::string text;
    for (const std::int64_t number : admitted) {
        text += (text.empty() ? "" : "|") + print(number);
    }
    return text;
}

} // namespace

std::string PrintWithUnit(const Instance& instance, const Value& value) {
    return instance.Print(value) + (instance->unit.empty() ? "" : " " + std::string(instance->unit));
}

Json TextToJson(const std::string& text) {
    return Common::IsUtf8(text) ? Json(text) : Json{{hexMember, Hexadecimal(text)}};
}

Json TextOrNull(const std::string& text) { return text.empty() ? Json() : Json(text); }

void AddLock(Json& document, const LockState& lock) {
    document.Add("lockedBy", TextOrNull(lock.by));
    document.Add("needs", TextOrNull(lock.needs));
}

Json NamesToJson(const std::vector<Instance>& instances) {
    Json names(Json::List{});
    for (const Instance& instance : instances) {
        names.Add(instance.Name());
    }
    return names;
}

Json ToJson(const Instance& instance, const Value& value) {
    if (instance->shape.fields.empty()) {
        return TextToJson(value.text);
    }
    if (!IsRecord(instance)) {
        return ToJson(instance, value.numbers.at(0));
    }
    Json record;
    for (std::size_t i = 0; i < value.numbers.size(); ++i) {
        record.Add(instance->shape.fields[i].name, ToJson(instance, value.numbers[i]));
    }
    return record;
}

std::optional<Value> FromJson(const Instance& instance, const Json& json) {
    if (instance->shape.fields.empty()) {
        return TextFromJson(json);
    }
    if (!IsRecord(instance)) {
        const auto text = TextOf(json);
        return text ? instance.Parse(*text) : std::nullopt;
    }
    std::string all;
    for (const Field& field : instance->shape.fields) {
        const auto text = TextOf(json[field.name]);
        if (!text) {
            return std::nullopt;
        }
        all += (all.empty() ? "" : ",") + *text;
    }
    return instance.Parse(all);
}

std::string DescribeLimits(const Instance& instance, const Limits& limits) {
    if (!instance->form.empty()) {
        return std::string(instance->form);
    }
    std::vector<std::string> ranges;
    for (const FieldLimits& field : limits) {
        ranges.push_back(Range(instance, field));
    }
    if (std::adjacent_find(ranges.begin(), ranges.end(), std::not_equal_to<>()) == ranges.end()) {
        ranges.resize(std::min<std::size_t>(ranges.size(), 1));
    }
    return Common::Join(ranges, ",");
}

std::string DescribeLock(const LockState& lock) {
    if (lock.by == Camera::acquisition) {
        return "locked while acquisition runs";
    }
    const std::string needs = lock.needs.empty() ? "" : ", needs " + lock.needs;
    return lock.by.empty() ? "" : "locked by " + lock.by + needs;
}

std::string DescribeRefusal(const std::string& reason, const LockState& lock) {
    return reason + (lock.by.empty() ? "" : " (" + DescribeLock(lock) + ")");
}

std::string DescribeState(const Instance& instance, const Reading& reading) {
    if (reading.cause == Cause::NoControl) {
        return reading.reason;
    }
    if (!reading.lock.by.empty()) {
        return DescribeLock(reading.lock);
    }
    if (reading.code != 0) {
        const char* const what = !reading.IsImplemented() ? "not implemented"
                                 : reading.IsAbsent()     ? "not available"
                                                          : "not readable";
        return what + std::string(" (") + reading.reason + ")";
    }
    return instance->set == nullptr ? "read-only" : instance->get == nullptr ? "write-only" : "";
}

std::string DescribeForm(const Instance& instance, const Limits& limits) {
    if (instance->shape.fields.empty() && instance->form.empty()) {
        return "escapes: \\\\, \\n, \\t, \\r and \\xHH";
    }
    std::string form;
    for (const Field& field : instance->shape.fields) {
        form += (form.empty() ? "" : std::string(1, instance->shape.separator)) + field.name;
    }
    const std::string admitted = DescribeLimits(instance, limits);
    return form + (form.empty() || admitted.empty() ? "" : ": ") + admitted;
}

} // namespace Host
