#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace Host {

/// A member of a JSON object. A template, because Json is incomplete here.
template <typename Document> struct JsonMember {
    std::string name;
    Document value;
};

/// A JSON document. It hides nlohmann-json, which is slow to compile and is included in Json.cpp only.
class Json {
public:
    using Member = JsonMember<Json>;
    using List = std::vector<Json>;
    using Object = std::vector<Member>; ///< in insertion order

    Json() = default; ///< null
    Json(bool value) : content(value) {}
    Json(std::int64_t value) : content(value) {}
    Json(int value) : content(std::int64_t{value}) {}
    Json(unsigned int value) : content(std::int64_t{value}) {}
    Json(double value) : content(value) {} ///< for printing alone: none is read back
    Json(std::string value) : content(std::move(value)) {}
    Json(std::string_view value) : content(std::string(value)) {}
    Json(const char* value) : content(std::string(value)) {}
    Json(List value);
    Json(Object value);
    Json(std::initializer_list<Member> members);

    /// Adds an element to a list, or a member to an object. Null becomes a list or an object.
    void Add(Json element);
    void Add(std::string name, Json value);

    /// A member of an object, or JSON null if there is none.
    [[nodiscard]] const Json& operator[](std::string_view name) const;

    /// An object without a member.
    [[nodiscard]] Json Without(std::string_view name) const;

    // The content, or a null pointer if it has another type.
    [[nodiscard]] const bool* Bool() const { return std::get_if<bool>(&content); }
    [[nodiscard]] bool IsTrue() const { return Bool() != nullptr && *Bool(); }
    [[nodiscard]] const std::int64_t* Number() const { return std::get_if<std::int64_t>(&content); }
    [[nodiscard]] const double* Fraction() const { return std::get_if<double>(&content); }
    [[nodiscard]] const std::string* Text() const { return std::get_if<std::string>(&content); }
    [[nodiscard]] const List* Elements() const { return std::get_if<List>(&content); }
    [[nodiscard]] const Object* Members() const { return std::get_if<Object>(&content); }

    /// The document as text, indented by two, without a line feed at the end.
    [[nodiscard]] std::string Print() const;
    [[nodiscard]] std::string PrintInOneLine() const;

    /// @throws std::runtime_error for invalid JSON, with the position; for a number that is not an integer; for a
    ///         duplicate name
    [[nodiscard]] static Json Parse(const std::string& text);

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, List, Object> content;
};

} // namespace Host
