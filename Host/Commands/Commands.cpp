#include "Host/Commands/Commands.h"

namespace Host {

const std::vector<Command>& Commands() {
    static const Parameter model{modelParameter, "A model that the plug-in serves; may be left out with --camera"};
    static const Parameter names{"NAME...",
                                 "Functions, as list names them; without its number an indexed one is meant whole"};
    static const Parameter all{"--all", "Also list one by one what there are many of"};
    static const Parameter written{"FILE", "A file for the settings; - is standard output"};
    static const Parameter read{"FILE", "A file with settings; - is standard input"};
    static const Parameter outputs{"--outputs",
                                   "Also I/O lines, motors and lenses, which move what is wired to the camera"};
    static const Parameter dryRun{"--dry-run", "Say what would be set, and set nothing"};
    // clang-format off
    static const std::vector<Command> commands = {
        {"check",  "Find out whether a plug-in can be used, and why not", {{"[PLUGIN]", "The plug-in (default: that of --plugin)"}}, Check},
        {"models", "List the models that the plug-in serves",             {},             Models},
        {"discover", "List the GigE Vision cameras on the network",       {},             Discover},
        {"info",   "Show who a camera is and how it is reached",          {model},        Info},
        {"list",   "List every function of a camera",                     {model, all},   List},
        {"get",    "Print what functions hold",                           {model, names}, Get},
        {"set",    "Set functions, such as gain=100 exposure=1:2000",     {model, {"NAME=VALUE...", "What to set, in this order"}}, Set},
        {"save",   "Save the settings of a camera as JSON",               {model, written}, Save},
        {"diff",   "Compare saved settings with others; exit code 1 if they differ, 2 if that cannot be told",
                   {{"A", "A file with settings; - is standard input"}, {"[B]", "Another one"}, {"--live MODEL", "Instead of another one, a camera; with --camera also without this"}}, Diff, true, NotCompared},
        {"restore", "Set a camera to saved settings",                     {model, read, outputs, dryRun}, RunRestore},
        {"watch",  "Show what changes, until interrupted",
                   {model, {"[NAME=VALUE...]", "What to set when it has begun"}, {"--seconds N", "Ends after that time"}}, Watch},
        {"selftest", "Test every function that can be set, and put all settings back", {model, outputs}, RunSelftest},
        {"shell",  "Run these commands at a prompt, on one camera",       {model}, Shell, false},
    };
    // clang-format on
    return commands;
}

} // namespace Host
