#include "Host/Commands/Commands.h"

#include "Common/Text.h"
#include "Host/Describe.h"
#include "Host/Settings/CameraSettings.h"
#include "Host/Settings/SettingsFile.h"

#include <iostream>

namespace Host {

int Save(const Invocation& invocation) {
    const std::string file = invocation.Text(Parameter::File);
    const Settings settings = TakeAllSettings(invocation.Open());
    WriteSettings(settings, file);
    if (!std::cout) {
        return Refused; // reported at the end
    }
    invocation.Program().Finish();
    const bool toStandardOutput = file == standardStream;
    const auto count = static_cast<std::int64_t>(settings.values.size());
    Output output(invocation.Program().Json(), toStandardOutput ? std::cerr : std::cout);
    output.Set(std::to_string(count) + " functions of " + settings.model + " saved to " +
                   (toStandardOutput ? "standard output" : Common::InOneLine(file)),
               Json{{"file", file}, {"functions", count}, {"missing", NamesToJson(settings.missing)}});
    output.End();
    return Success;
}

} // namespace Host
