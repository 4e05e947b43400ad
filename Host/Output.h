#pragma once

#include "Host/Json.h"

#include <iostream>
#include <string>
#include <utility>

namespace Host {

/// Prints the result of a command: lines of text immediately, or one JSON document at the end. Each result is passed as
/// both; an empty text prints no line.
class Output {
public:
    explicit Output(bool asJson, std::ostream& target = std::cout) : json(asJson), stream(target) {}

    /// A line that is not in the JSON document, such as a heading.
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
    /// The whole document.
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
