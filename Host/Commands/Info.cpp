#include "Host/Commands/Commands.h"

#include "Host/Describe.h"
#include "Host/Format.h"
#include "Host/Functions/Names.h"

#include <algorithm>

namespace Host {

namespace {

constexpr std::string_view topics[] = {Topics::identity, Topics::network, Topics::image};

std::string Line(const std::string& name, const std::string& value) {
    return value.empty() ? name : Pad(name, 22) + value;
}

} // namespace

int Info(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    Output output = invocation.Output();
    output.Add(Line("model", camera.Model()), "model", camera.Model());
    output.Add(Line("family", camera.Family()), "family", camera.Family());
    for (const Instance& instance : camera.All()) {
        if (std::find(std::begin(topics), std::end(topics), instance->topic) == std::end(topics)) {
            continue;
        }
        const Reading reading = camera.TryRead(instance);
        const bool isRead = reading.code == 0;
        output.Add(
            Line(instance.Name(), isRead ? PrintWithUnit(instance, reading.value) : DescribeState(instance, reading)),
            instance.Name(), isRead ? ToJson(instance, reading.value) : Json());
    }
    output.End();
    return Success;
}

} // namespace Host
