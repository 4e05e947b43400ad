#pragma once

#include "Host/Json.h"

#include <iostream>
#include <string>
#include <utility>

namespace Host {

/// What a command prints as its result: lines of text as they come, or one JSON document at the end. Each result is
/// given as both; a text that is empty is no line.
class Output {
public:
    explicit Output(bool asJson, std::ostream& target = std::cout) : json(asJson), stream(target) {}

    /// What is for people alone, such as a heading.
    void Line(const std::string& text) const {
        if (!json && !text.empty()) {
            stream << text << '\n';
        }
    }
    /// An element of a list.
    void Add(const std::string& text, Json element) {
        Line(text);
        document.Add(std::move(element));
    }
    /// A member of an object.
    void Add(const std::string& text, std::string name, Json value) {
        Line(text);
        document.Add(std::move(name), std::move(value));
    }
    /// All there is.
    void Set(const std::string& text, Json whole) {
        Line(text);
        document = std::move(whole);
    }
    /// Prints the document.
    void End() const {
        if (json) {
            stream << document.Print() << '\n';
        }
    }

private:
    bool json;
    std::ostream& stream;
    Json document = Json::List();
};

} // namespace Host
