#include "Host/Commands/Commands.h"

#include "Host/Describe.h"

#include <iostream>

namespace Host {

int Get(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    std::vector<Instance> wanted;
    for (const std::string& name : invocation.Texts(Parameter::Names)) {
        const auto found = camera.Find(name);
        if (found.front()->get == nullptr) {
            throw UsageError("\"" + name + "\" can only be written");
        }
        wanted.insert(wanted.end(), found.begin(), found.end());
    }
    Json document;
    bool refused = false;
    for (const Instance& instance : wanted) {
        const Reading reading = camera.TryRead(instance);
        if (reading.error != 0) {
            refused = true;
            PrintError(instance.Name() + ": " + reading.errorText);
            document.Add(instance.Name(), Json());
        } else if (invocation.Program().Json()) {
            document.Add(instance.Name(), ToJson(instance, reading.value));
        } else {
            std::cout << instance.Name() << '=' << instance.Print(reading.value) << '\n';
        }
    }
    if (invocation.Program().Json()) {
        std::cout << document.Print() << '\n';
    }
    return refused ? Refused : Success;
}

} // namespace Host
