#include "Orvik.h"

namespace Simulation {

namespace {

constexpr std::uint32_t colorBit = 1U << 16;
constexpr std::uint32_t memoryBit = 1U << 17;
constexpr std::uint32_t histogramBit = 1U << 18;

std::uint32_t FunctionModelId(const OrvikModel& model) {
    return model.number | (model.color ? colorBit : 0) | (model.memory ? memoryBit : 0) |
           (model.histogram ? histogramBit : 0);
}

} // namespace

std::vector<Register> OrvikRegisters(const OrvikModel& model) {
    const auto setting = Role::Setting;
    const auto kept = Role::Kept;

    const std::uint32_t right = model.width - 1;
    const std::uint32_t bottom = model.height - 1;
    const Words whole = {0, 0, right, bottom};
    const Words least = {0, 0, 63, 63}; // areas are 64 pixels at least, both ways
    const Words most = {right - 63, bottom - 63, right, bottom};
    const std::uint32_t readoutTime = model.width * model.height / 320U; // microseconds at 320 pixels each
    const std::uint32_t coding = model.color ? 110 : 0;                  // RGB8 or Mono8
    const std::string serial = model.name.substr(model.name.find('-') + 1) + "-0042";

    // clang-format off
    return {
        // name                address     role     kind and power-up value
        {"startacquisition",   0x00088134, kept,    Word(0)},
        {"stopacquisition",    0x00088138, kept,    Word(0)},

        {"exposuremode",       0x0A020000, setting, Word(1)},                       // free running
        {"exposure",           0x0A030000, setting, Record({0, 20000})},            // base, counter
        {"softtrigger",        0x0A070000, kept,    Word(0)},
        {"triggertimer",       0x0A080000, setting, Word(0)},
        {"pixelclock",         0x0A090000, kept,    Word(160000000)},
        {"readouttime",        0x0A0A0000, setting, Word(readoutTime)},
        {"binning",            0x0A0B0000, setting, Record({1, 1})},
        {"slowscan",           0x0A0E0000, setting, Word(0)},
        {"triggerdelay",       0x0A100000, setting, Record({0, 0})},                // base, counter

        {"gain",               0x14010000, setting, Word(0)},
        {"colorbalance",       0x15010000, setting, Record({128, 128, 128})},
        {"lightsource",        0x15020000, setting, Word(0)},
        {"saturation",         0x15040000, setting, Word(128)},

        {"verticalflip",       0x16020000, setting, Word(0)},
        {"horizontalflip",     0x16030000, setting, Word(0)},
        {"lastimagehold",      0x16040000, setting, Word(0)},
        {"storeimage",         0x16050000, kept,    Word(0)},
        {"imagesubtraction",   0x16060000, setting, Word(0)},
        {"recursivefilter",    0x16070000, setting, Word(0)},

        {"overlayshow",        0x17010000, setting, Indexed({{0}, {0}})},           // per line
        {"overlayposition",    0x17020000, setting, Indexed({{0, 0}, {0, 0}})},
        {"overlaystyle",       0x17030000, setting, Indexed({{0, 0}, {1, 0}})},
        {"overlaysize",        0x17040000, setting, Indexed({{1, 10}, {1, 10}})},

        {"brightness",         0x18010000, setting, Word(0)},
        {"contrast",           0x18020000, setting, Word(64)},
        {"sharpness",          0x18030000, setting, Word(0)},
        {"lutindex",           0x19010000, setting, Word(0)},
        {"lutmode",            0x19020000, setting, Word(0)},
        {"negativeimage",      0x19030000, setting, Word(0)},

        {"measureframeshow",   0x1E010000, setting, Word(0)},
        {"measureframecolor",  0x1E020000, setting, Word(0)},
        {"measurewindow",      0x1E030000, setting, Indexed({{0, 0, 63, 63}, {64, 64, 127, 127}})},

        {"colorcoding",        0x28020000, setting, Word(coding)},
        {"imagesize",          0x28030000, setting, Record({model.width, model.height})},
        {"frameduration",      0x28040000, setting, Word(readoutTime + 100)},
        {"readoutarea",        0x28050000, setting, Record(whole)},
        {"readoutarealimits",  0x28090000, setting, Indexed({least, most, whole})},               // least, most, active

        {"aet",                0x46010000, setting, Word(0)},
        {"agc",                0x46020000, setting, Word(0)},
        {"autoexposurelevel",  0x46030000, setting, Word(128)},
        {"awb",                0x46040000, setting, Word(0)},
        {"acc",                0x46050000, setting, Word(0)},

        {"restart",            0x51010000, kept,    Word(0)},
        {"loadsettings",       0x51020000, kept,    Word(0)},
        {"savesettings",       0x51030000, kept,    Word(0)},
        {"startupsettings",    0x51040000, kept,    Word(0)},
        {"operationmode",      0x52020000, kept,    Word(1)},
        {"patterngenerator",   0x5A010000, kept,    Word(0)},                       // no settings set holds the pattern
        {"temperature",        0x5A030000, kept,    Indexed({{41}})},               // degrees Celsius

        {"devicename",         0x64010000, kept,    LedText(24, model.name)},
        {"serialnumber",       0x64020000, kept,    LedText(16, serial)},
        {"fumoid",             0x64030000, kept,    Word(FunctionModelId(model))},
        {"fumoversion",        0x64040000, kept,    Record({1, 0})},
        {"revision",           0x65010000, kept,    Record({2, 1})},
        {"softwarebuild",      0x65020000, kept,    LedText(24, "build 1207")},
        {"softwareversion",    0x65030000, kept,    Record({3, 4})},
        {"firmwareversion",    0x65040000, kept,    Record({5, 2})},
        {"hardwareversion",    0x65050000, kept,    Record({1, 3})},

        {"iomode",             0x66020000, setting, Indexed({{0}, {0}, {0}, {1}, {1}, {1}})}, // per line
        {"ioport",             0x66030000, setting, Indexed({{0}, {0}, {0}, {0}, {0}, {0}})},
        {"iopolarity",         0x660F0000, setting, Indexed({{0}, {0}, {0}, {0}, {0}, {0}})},
        {"iodelay",            0x66110000, setting, Indexed({{0}, {0}, {0}, {0}, {0}, {0}})},
    };
    // clang-format on
}

} // namespace Simulation
