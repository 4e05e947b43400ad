#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace Host {

/// A member of an object of JSON. A template, so that the document can hold members of its own kind.
template <typename Document> struct JsonMember {
    std::string name;
    Document value;
};

/// A JSON document. It is written and read by nlohmann-json, which costs seconds wherever it is included; so it is
/// included in Json.cpp alone.
class Json {
public:
    using Member = JsonMember<Json>;
    using List = std::vector<Json>;
    using Object = std::vector<Member>; ///< in the order of their adding

    Json() = default; ///< null
    Json(bool value) : content(value) {}
    Json(std::int64_t value) : content(value) {}
    Json(int value) : content(std::int64_t{value}) {}
    Json(unsigned int value) : content(std::int64_t{value}) {}
    Json(std::string value) : content(std::move(value)) {}
    Json(std::string_view value) : content(std::string(value)) {}
    Json(const char* value) : content(std::string(value)) {}
    Json(List value);
    Json(Object value);
    Json(std::initializer_list<Member> members);

    /// Adds to a list, or a member to an object; null becomes one.
    void Add(Json element);
    void Add(std::string name, Json value);

    /// A member of an object, or null where there is none.
    [[nodiscard]] const Json& operator[](std::string_view name) const;

    // What it holds, or null if that is something else.
    [[nodiscard]] const bool* Bool() const { return std::get_if<bool>(&content); }
    [[nodiscard]] const std::int64_t* Number() const { return std::get_if<std::int64_t>(&content); }
    [[nodiscard]] const std::string* Text() const { return std::get_if<std::string>(&content); }
    [[nodiscard]] const List* Elements() const { return std::get_if<List>(&content); }
    [[nodiscard]] const Object* Members() const { return std::get_if<Object>(&content); }

    /// The document as text, indented by two, without a line feed at the end.
    [[nodiscard]] std::string Print() const;
    [[nodiscard]] std::string PrintInOneLine() const;

    /// @throws std::runtime_error that says where a text is no JSON, or holds a number that is no integer, or a name
    ///         twice
    [[nodiscard]] static Json Parse(const std::string& text);

private:
    std::variant<std::monostate, bool, std::int64_t, std::string, List, Object> content;
};

} // namespace Host
