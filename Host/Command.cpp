#include "Host/Command.h"

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

void PrintError(const std::string& text) { Common::PrintError("qdv12host", text); }

} // namespace Host
