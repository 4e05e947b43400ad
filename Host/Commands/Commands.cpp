#include "Host/Commands/Commands.h"

namespace Host {

const std::vector<Command>& Commands() {
    static const Syntax camera{Parameter::Camera, "CAMERA",
                               "A model that the plug-in serves, which is simulated, or gige:ADDRESS on the network"};
    static const Syntax names{Parameter::Names, "NAME",
                              "Functions, as list names them; without its number an indexed one is meant whole",
                              Required::Always, true};
    static const Syntax assignments{Parameter::Assignments, "NAME=VALUE", "What to set, in this order",
                                    Required::Always, true};
    static const Syntax later{Parameter::Assignments, "NAME=VALUE", "What to set when it has begun", Required::Never,
                              true};
    static const Syntax seconds{Parameter::Seconds, "--seconds N", "Ends after that time"};
    static const Syntax plugin{Parameter::Plugin, "PLUGIN", "The plug-in (default: that of --plugin)", Required::Never};
    static const Syntax all{Parameter::All, "--all", "Also list one by one what there are many of"};
    static const Syntax written{Parameter::File, "FILE", "A file for the settings; - is standard output"};
    static const Syntax read{Parameter::File, "FILE", "A file with settings; - is standard input"};
    static const Syntax first{Parameter::First, "A",
                              "A camera, or a file with settings (./NAME if it is called like a model); - is standard "
                              "input"};
    static const Syntax second{Parameter::Second, "B", "Another one; in a shell, if left out, its camera",
                               Required::OutsideShell};
    static const Syntax outputs{Parameter::Outputs, "--outputs",
                                "Also I/O lines, motors and lenses, which move what is wired to the camera"};
    static const Syntax dryRun{Parameter::DryRun, "--dry-run", "Say what would be set, and set nothing"};
    // clang-format off
    static const std::vector<Command> commands = {
        {"check",    "Find out whether a plug-in can be used, and why not", {plugin},                        Check},
        {"models",   "List the models that the plug-in serves",             {},                              Models},
        {"discover", "List the GigE Vision cameras on the network",         {},                              Discover},
        {"info",     "Show who a camera is and how it is reached",          {camera},                        Info},
        {"list",     "List every function of a camera",                     {camera, all},                   List},
        {"get",      "Print what functions hold",                           {camera, names},                 Get},
        {"set",      "Set functions, such as gain=100 exposure=1:2000",     {camera, assignments},           Set},
        {"save",     "Save the settings of a camera as JSON",               {camera, written},               Save},
        {"diff",     "Compare settings of files or cameras; exit code 1 if they differ, 2 if that cannot be told",
                                                                            {first, second},                 Diff, true, NotCompared},
        {"restore",  "Set a camera to saved settings",                      {read, camera, outputs, dryRun}, Restore},
        {"watch",    "Show what changes, until interrupted",                {camera, later, seconds},        Watch},
        {"selftest", "Test every function that can be set, and put all settings back", {camera, outputs},    Selftest},
        {"shell",    "Run these commands at a prompt, on one camera",       {camera},                        Shell, false},
    };
    // clang-format on
    return commands;
}

} // namespace Host
