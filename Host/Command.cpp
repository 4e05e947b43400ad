#include "Host/Command.h"

#include <algorithm>

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

const Syntax* Command::Find(Parameter parameter) const {
    const auto found =
        std::find_if(syntax.begin(), syntax.end(), [&](const Syntax& each) { return each.parameter == parameter; });
    return found == syntax.end() ? nullptr : &*found;
}

bool Command::TakesCameras() const {
    const Syntax* const camera = Find(Parameter::Camera);
    return camera != nullptr && camera->several;
}

void PrintError(const std::string& text) { Common::PrintError("qdv12host", text); }

} // namespace Host
