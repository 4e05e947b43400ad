#include "Commands.h"

#include "Channel/Discovery.h"
#include "Format.h"
#include "Json.h"

#include <algorithm>
#include <iostream>

namespace Host {

namespace {

void Print(const FoundCamera& camera, bool served) {
    std::string line = Pad(camera.address, 17) + Pad(camera.mac, 19) + Pad(camera.model, 16) + Pad(camera.serial, 16) +
                       Pad(camera.userName, served ? 0 : 16) + (served ? "" : "(not served)");
    std::cout << line.erase(line.find_last_not_of(' ') + 1) << '\n';
}

} // namespace

int Discover(const Invocation& invocation) {
    const auto& served = invocation.Program().LoadedPlugin().Models();
    const auto found = DiscoverCameras();
    Json list(Json::List{});
    for (const FoundCamera& camera : found) {
        const bool known =
            std::any_of(served.begin(), served.end(), [&](const Model& model) { return model.name == camera.model; });
        if (invocation.Program().Json()) {
            list.Add(Json{{"address", camera.address},
                          {"mac", camera.mac},
                          {"model", camera.model},
                          {"serial", camera.serial},
                          {"userName", camera.userName},
                          {"served", known}});
        } else {
            Print(camera, known);
        }
    }
    if (invocation.Program().Json()) {
        std::cout << list.Print() << '\n';
    } else if (found.empty()) {
        std::cout << "no camera was found\n";
    }
    return AllWell;
}

} // namespace Host
