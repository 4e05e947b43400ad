#include "Host/Commands/Commands.h"

#include "Host/Describe.h"

namespace Host {

int Get(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    std::vector<Instance> wanted;
    for (const std::string& name : invocation.Texts(Parameter::Names)) {
        const auto found = camera.FindReadable(name);
        wanted.insert(wanted.end(), found.begin(), found.end());
    }
    Output output = invocation.Output();
    bool refused = false;
    for (const Instance& instance : wanted) {
        const Reading reading = camera.TryRead(instance);
        if (reading.code != 0) {
            refused = true;
            PrintError(instance.Name() + ": " + DescribeRefusal(reading.reason, camera.WhatRefused(instance)));
            output.Add("", instance.Name(), Json());
        } else {
            output.Add(instance.Name() + '=' + instance.Print(reading.value), instance.Name(),
                       ToJson(instance, reading.value));
        }
    }
    output.End();
    return refused ? Refused : Success;
}

} // namespace Host
