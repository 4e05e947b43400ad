#include "Host/Commands/Commands.h"

namespace Host {

const std::vector<Command>& Commands() {
    static const Syntax camera{Parameter::Camera, "CAMERA",
                               "A model (simulated); or on the network gige:ADDRESS, gige:HOST, serial:NUMBER, "
                               "mac:ADDRESS, name:NAME; or a recorded one, replay:FILE"};
    static const Syntax cameras{camera.parameter, camera.name, camera.about, Required::Always, true};
    static const Syntax oneByOne{Parameter::OneByOne, "--one-by-one",
                                 "Of several cameras, begin with each when the last one is done"};
    static const Syntax names{Parameter::Names, "NAME", "Functions, named as in list; without an index, all instances",
                              Required::Always, true};
    static const Syntax listed{Parameter::Names, "NAME", "Functions to list, without an index all instances",
                               Required::Never, true};
    static const Syntax topic{Parameter::Topic, "--topic TOPIC",
                              "List the functions of a topic, such as exposure; may be repeated", Required::Never,
                              true};
    static const Syntax assignments{Parameter::Assignments, "NAME=VALUE", "Values to set, in this order",
                                    Required::Always, true};
    static const Syntax watched{Parameter::Names, "NAME[=VALUE]",
                                "Functions to watch (default: all), and values to set once watching has started",
                                Required::Never, true};
    static const Syntax seconds{Parameter::Seconds, "--seconds N", "End after N seconds"};
    static const Syntax interval{Parameter::Interval, "--interval S", "Read every S seconds (default: 0.1)"};
    static const Syntax keepTrying{Parameter::KeepTrying, "--keep-trying",
                                   "Wait for a camera on the network that is lost, cannot be opened, or is controlled "
                                   "by another program"};
    static const Syntax plugin{Parameter::Plugin, "PLUGIN", "The plug-in (default: that of --plugin)", Required::Never};
    static const Syntax all{Parameter::All, "--all", "List every instance of functions with many"};
    static const Syntax written{Parameter::File, "FILE", "A file for the settings; - is standard output"};
    static const Syntax read{Parameter::File, "FILE", "A file with settings; - is standard input"};
    static const Syntax first{Parameter::First, "A",
                              "A camera, or a file with settings (./NAME for the name of a model); - is standard "
                              "input"};
    static const Syntax second{Parameter::Second, "B", "The second one; in a shell, its camera by default",
                               Required::OutsideShell};
    static const Syntax only{Parameter::Only, "--only NAME[,NAME...]",
                             "Take only these functions; without an index all instances", Required::Never, true};
    static const Syntax except{Parameter::Except, "--except NAME[,NAME...]", "Take all but these functions",
                               Required::Never, true};
    static const Syntax changed{Parameter::Changed, "--changed",
                                "Print only what is not unchanged, and a summary of all"};
    static const Syntax outputs{Parameter::Outputs, "--outputs",
                                "Include I/O lines, motors and lenses, which act on connected devices"};
    static const Syntax network{Parameter::Network, "--network",
                                "Include network settings: packet size and delay, user name, DHCP, persistent address"};
    static const Syntax dryRun{Parameter::DryRun, "--dry-run", "Print what would be set; set nothing"};
    static const Syntax noControl{Parameter::NoControl, "--no-control",
                                  "Only read from a camera on the network; leave control to other programs"};
    static const Syntax picture{Parameter::File, "FILE",
                                "A PNG file; of several pictures the names are numbered; - is standard output",
                                Required::Never};
    static const Syntax before{Parameter::Assignments, "NAME=VALUE", "Values to set before the first picture",
                               Required::Never, true};
    static const Syntax count{Parameter::Count, "--count N", "Take N pictures (default: 1)"};
    static const Syntax every{Parameter::Every, "--every K", "Write the first of every K pictures (default: 1)"};
    static const Syntax raw{Parameter::Raw, "--raw",
                            "Write the bytes that the camera sent, and their format to FILE.json"};
    static const Syntax mac{Parameter::Mac, "MAC", "The MAC address of the camera, as discover prints it"};
    static const Syntax address{Parameter::Address, "ADDRESS", "Its new IPv4 address, until its next start"};
    static const Syntax mask{Parameter::Mask, "MASK", "Its subnet mask"};
    static const Syntax gateway{Parameter::Gateway, "GATEWAY", "Its default gateway (default: 0.0.0.0, none)",
                                Required::Never};
    static const Syntax port{Parameter::Port, "--port N", "The TCP port of the panel (default: a free one)"};
    static const Syntax at{
        Parameter::Register, "ADDRESS",
        "Address of a register, such as 0x14010000; or device:A,B,C (M2VX), which three words select"};
    static const Syntax words{Parameter::Words, "WORDS", "Number of words to read (default: 1)", Required::Never};
    static const Syntax registers{Parameter::Registers, "ADDRESS=VALUE",
                                  "Words to write, in this order; addresses as for peek", Required::Always, true};
    static const Syntax yes{Parameter::Yes, "--yes", "Write to a camera on the network"};
    // clang-format off
    static const std::vector<Command> commands = {
        {"check",    "Check whether a plug-in can be used",                            {plugin},                        Check},
        {"models",   "List the models that the plug-in serves",                        {},                              Models},
        {"discover", "List the GigE Vision cameras on the network",                    {},                              Discover},
        {"force-ip", "Give a camera on the network an address, whatever it has now",   {mac, address, mask, gateway},   ForceIp},
        {"info",     "Show the identity and the address of a camera",                  {cameras, noControl, oneByOne}, Info},
        {"list",     "List the functions of a camera: all, some, or those of a topic", {camera, listed, topic, all, noControl}, List},
        {"describe", "Explain functions: meaning, limits, locks, register, cost",      {camera, names, noControl},      Describe},
        {"get",      "Print the values of functions",                                  {cameras, names, noControl, oneByOne}, Get},
        {"set",      "Set functions, such as gain=100 exposure=1:2000",                {camera, assignments},           Set},
        {"save",     "Save the settings of a camera as JSON",                          {camera, written},               Save},
        {"diff",     "Compare settings of files or cameras; exit code 1 if they differ, 2 if they cannot be compared",
                                                                            {first, second, only, except, noControl}, Diff, true, NotCompared},
        {"restore",  "Restore saved settings",
                               {read, cameras, only, except, outputs, network, dryRun, changed, keepTrying, oneByOne}, Restore},
        {"grab",     "Take pictures and measure the last one",                         {camera, picture, before, count, every, raw}, Grab},
        {"watch",    "Print changes until interrupted",                                {camera, watched, seconds, interval, keepTrying, noControl}, Watch},
        {"start",    "Start acquisition, which locks some functions, without taking pictures", {},              Start, true, Refused, true},
        {"stop",     "Stop acquisition",                                               {},                              Stop, true, Refused, true},
        {"peek",     "Read registers by address",                                      {camera, at, words, noControl}, Peek},
        {"poke",     "Write registers by address, past every check",                   {camera, registers, yes},        Poke},
        {"selftest", "Test every function that can be set, then restore all settings", {cameras, outputs, oneByOne}, Selftest},
        {"panel",    "Serve a control panel for the browser of this machine",          {camera, port},                  ServePanel, false},
        {"shell",    "Run these commands at a prompt, on one camera",                  {camera},                        Shell, false},
    };
    // clang-format on
    return commands;
}

} // namespace Host
