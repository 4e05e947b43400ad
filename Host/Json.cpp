#include "Host/Json.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <set>
#include <stdexcept>

namespace Host {

namespace {

using OrderedJson = nlohmann::ordered_json;

OrderedJson ToDocument(const Json& json) {
    if (const auto* const list = json.Elements()) {
        OrderedJson document = OrderedJson::array();
        for (const Json& element : *list) {
            document.push_back(ToDocument(element));
        }
        return document;
    }
    if (const auto* const members = json.Members()) {
        OrderedJson document = OrderedJson::object();
        for (const Json::Member& member : *members) {
            document[member.name] = ToDocument(member.value);
        }
        return document;
    }
    if (const auto* const text = json.Text()) {
        return *text;
    }
    if (const auto* const number = json.Number()) {
        return *number;
    }
    if (const auto* const fraction = json.Fraction()) {
        return *fraction;
    }
    return json.Bool() != nullptr ? OrderedJson(*json.Bool()) : OrderedJson();
}

/// Also escapes DEL and C1, which the library does not. They occur only within texts.
std::string Dump(const Json& json, int indent) {
    const std::string text = ToDocument(json).dump(indent, ' ', false, OrderedJson::error_handler_t::replace);
    std::string escaped;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const unsigned code = static_cast<unsigned char>(text[i]);
        const unsigned next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0;
        const bool isC1 = code == 0xC2 && next < 0xA0;
        if (!isC1 && code != 0x7F) {
            escaped += text[i];
            continue;
        }
        char escape[8];
        std::snprintf(escape, sizeof escape, "\\u%04x", isC1 ? next : code);
        escaped += escape;
        i += isC1 ? 1 : 0;
    }
    return escaped;
}

Json FromDocument(const OrderedJson& document) {
    if (document.is_array()) {
        Json::List list;
        for (const OrderedJson& element : document) {
            list.push_back(FromDocument(element));
        }
        return list;
    }
    if (document.is_object()) {
        Json::Object members;
        for (const auto& [name, value] : document.items()) {
            members.push_back({name, FromDocument(value)});
        }
        return members;
    }
    if (document.is_string()) {
        return document.get<std::string>();
    }
    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    if (document.is_number_unsigned() && document.get<std::uint64_t>() > largest) {
        throw std::runtime_error(document.dump() + " is too large");
    }
    if (document.is_number_integer()) {
        return document.get<std::int64_t>();
    }
    if (document.is_number()) {
        throw std::runtime_error(document.dump() + " is not an integer");
    }
    return document.is_boolean() ? Json(document.get<bool>()) : Json();
}

} // namespace

Json::Json(List value) : content(std::move(value)) {}

Json::Json(Object value) : content(std::move(value)) {}

Json::Json(std::initializer_list<Member> members) : content(Object(members)) {}

void Json::Add(Json element) {
    if (Elements() == nullptr) {
        content = List();
    }
    std::get<List>(content).push_back(std::move(element));
}

void Json::Add(std::string name, Json value) {
    if (Members() == nullptr) {
        content = Object();
    }
    std::get<Object>(content).push_back({std::move(name), std::move(value)});
}

const Json& Json::operator[](std::string_view name) const {
    static const Json none;
    if (const auto* const members = Members()) {
        const auto found =
            std::find_if(members->begin(), members->end(), [&](const Member& member) { return member.name == name; });
        return found == members->end() ? none : found->value;
    }
    return none;
}

Json Json::Without(std::string_view name) const {
    Json rest(Object{});
    if (const auto* const members = Members()) {
        for (const Member& member : *members) {
            if (member.name != name) {
                rest.Add(member.name, member.value);
            }
        }
    }
    return rest;
}

std::string Json::Print() const { return Dump(*this, 2); }

std::string Json::PrintInOneLine() const { return Dump(*this, -1); }

Json Json::Parse(const std::string& text) {
    // Documents are processed recursively, so deep nesting would overflow the stack.
    constexpr int deepest = 64;
    std::vector<std::set<std::string>> names; // of the open objects
    return FromDocument(OrderedJson::parse(text, [&](int depth, OrderedJson::parse_event_t event,
                                                     const OrderedJson& parsed) {
        if (depth > deepest) {
            throw std::runtime_error("nested too deeply");
        }
        if (event == OrderedJson::parse_event_t::object_start) {
            names.emplace_back();
        } else if (event == OrderedJson::parse_event_t::object_end) {
            names.pop_back();
        } else if (event == OrderedJson::parse_event_t::key && !names.back().insert(parsed.get<std::string>()).second) {
            throw std::runtime_error("duplicate name " + parsed.dump());
        }
        return true;
    }));
}

} // namespace Host
