#include "Command.h"

#include <cstdio>
#include <iostream>

namespace Host {

namespace {

/// "a\nb", with the line feed as two characters.
std::string InOneLine(const std::string& text) {
    std::string line;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '\n') {
            line += "\\n";
        } else if (byte < ' ' || byte == 0x7F) {
            char escape[5];
            std::snprintf(escape, sizeof escape, "\\x%02X", byte);
            line += escape;
        } else {
            line += character;
        }
    }
    return line;
}

} // namespace

const std::vector<std::string>& Invocation::Texts(const std::string& parameter) const {
    static const std::vector<std::string> none;
    const auto found = given.find(parameter);
    return found == given.end() ? none : found->second;
}

std::string Invocation::Text(const std::string& parameter) const {
    const auto& texts = Texts(parameter);
    return texts.empty() ? "" : texts.front();
}

Session& Invocation::Open() const { return program.Open(Text(modelParameter)); }

void Complain(const std::string& text) {
    std::cout.flush(); // keeps the order of results and errors where both go to the same place
    std::cerr << "qdv12host: " << InOneLine(text) << '\n';
}

} // namespace Host
