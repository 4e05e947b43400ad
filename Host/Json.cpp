#include "Json.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <stdexcept>

namespace Host {

namespace {

using Document = nlohmann::ordered_json;

Document ToDocument(const Json& json) {
    if (const auto* const list = json.Elements()) {
        Document document = Document::array();
        for (const Json& element : *list) {
            document.push_back(ToDocument(element));
        }
        return document;
    }
    if (const auto* const members = json.Members()) {
        Document document = Document::object();
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
    return json.Bool() != nullptr ? Document(*json.Bool()) : Document();
}

Json FromDocument(const Document& document) {
    if (document.is_array()) {
        Json::List list;
        for (const Document& element : document) {
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
    if (document.is_number_integer()) {
        return document.get<std::int64_t>();
    }
    if (document.is_number()) {
        throw std::runtime_error("the number " + document.dump() + " is no integer");
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

std::string Json::Print() const {
    return ToDocument(*this).dump(2, ' ', false, Document::error_handler_t::replace); // a camera's text may be anything
}

std::string Json::PrintInOneLine() const {
    return ToDocument(*this).dump(-1, ' ', false, Document::error_handler_t::replace);
}

Json Json::Parse(const std::string& text) { return FromDocument(Document::parse(text)); }

} // namespace Host
