#include "Host/Command.h"

#include "Host/Text.h"

#include <iostream>

namespace Host {

const std::vector<std::string>& Invocation::Texts(Parameter parameter) const {
    static const std::vector<std::string> none;
    const auto found = given.find(parameter);
    return found == given.end() ? none : found->second;
}

std::string Invocation::Text(Parameter parameter) const {
    const auto& texts = Texts(parameter);
    return texts.empty() ? "" : texts.front();
}

Session& Invocation::Open() const { return program.Open(Text(Parameter::Camera)); }

void PrintError(const std::string& text) {
    std::cout.flush(); // keeps the order of results and errors where both go to the same place
    std::cerr << "qdv12host: " << InOneLine(text) << '\n';
}

} // namespace Host
