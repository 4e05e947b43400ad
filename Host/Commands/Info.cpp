#include "Host/Commands/Commands.h"

#include "Host/Describe.h"
#include "Host/Format.h"
#include "Host/Functions/Names.h"

#include <algorithm>
#include <iostream>

namespace Host {

namespace {

constexpr std::string_view topics[] = {Topic::identity, Topic::network, Topic::image};

void Print(const std::string& name, const std::string& value) {
    std::cout << (value.empty() ? name : Pad(name, 22) + value) << '\n';
}

} // namespace

int Info(const Invocation& invocation) {
    const Camera camera = invocation.OpenCamera();
    const bool json = invocation.Program().Json();
    Json document{{"model", camera.Model()}, {"family", camera.Family()}};
    if (!json) {
        Print("model", camera.Model());
        Print("family", camera.Family());
    }
    for (const Instance& instance : camera.All()) {
        if (std::find(std::begin(topics), std::end(topics), instance->topic) == std::end(topics)) {
            continue;
        }
        const Reading reading = camera.TryRead(instance);
        if (json) {
            document.Add(instance.Name(), reading.error == 0 ? ToJson(instance, reading.value) : Json());
        } else {
            Print(instance.Name(),
                  reading.error == 0 ? PrintWithUnit(instance, reading.value) : DescribeState(instance, reading));
        }
    }
    if (json) {
        std::cout << document.Print() << '\n';
    }
    return Success;
}

} // namespace Host
