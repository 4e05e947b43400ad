#include "Commands.h"

namespace Host {

const std::vector<Command>& Commands() {
    static const Parameter model{modelParameter, "A model that the plug-in serves"};
    static const Parameter names{"NAME...",
                                 "Functions, as list names them; without its number an indexed one is meant whole"};
    static const Parameter all{"--all", "Also list one by one what there are many of"};
    // clang-format off
    static const std::vector<Command> commands = {
        {"check",  "Find out whether a plug-in can be used, and why not", {{"[PLUGIN]", "The plug-in (default: that of --plugin)"}}, Check},
        {"models", "List the models that the plug-in serves",             {},             Models},
        {"info",   "Show who a camera is and how it is reached",          {model},        Info},
        {"list",   "List every function of a camera",                     {model, all},   List},
        {"get",    "Print what functions hold",                           {model, names}, Get},
        {"set",    "Set functions, such as gain=100 exposure=1:2000",     {model, {"NAME=VALUE...", "What to set, in this order"}}, Set},
        {"tour",   "Walk through every interface of a camera, with its port accesses", {model}, RunTour},
    };
    // clang-format on
    return commands;
}

} // namespace Host
