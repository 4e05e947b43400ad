#include "Commands.h"

#include "Json.h"
#include "Settings/LiveSettings.h"

#include <iostream>

namespace Host {

int Save(const Invocation& invocation) {
    const std::string file = invocation.Text("FILE");
    const auto [settings, missing] = TakeLiveSettings(invocation.Open());
    WriteSettings(settings, file);
    const auto count = static_cast<std::int64_t>(settings.values.size());
    if (invocation.Program().Json()) {
        std::cout << Json{{"file", file}, {"functions", count}}.Print() << '\n';
    } else {
        std::cout << count << " functions of " << settings.model << " saved to " << file << '\n';
    }
    return missing.empty() ? AllWell : Refused;
}

} // namespace Host
