#include "Simulation/Orvik.h"

#include <SDK4/Enums.h>

namespace Simulation {

namespace {

constexpr std::uint32_t colorBit = 1U << 16;
constexpr std::uint32_t memoryBit = 1U << 17;
constexpr std::uint32_t histogramBit = 1U << 18;

} // namespace

std::uint32_t FunctionModelId(const OrvikModel& model) {
    return model.number | (model.color ? colorBit : 0) | (model.memory ? memoryBit : 0) |
           (model.histogram ? histogramBit : 0);
}

std::string SerialNumber(const OrvikModel& model) { return model.name.substr(model.name.find('-') + 1) + "-0042"; }

std::vector<Register> OrvikRegisters(const OrvikModel& model) {
    using enum Role;
    // Registers of functions that a model lacks can be read, and ignore writes.
    const auto color = model.color ? Setting : Fixed;
    const auto mono = model.color ? Fixed : Setting;
    const auto memory = model.memory ? Setting : Fixed;
    const auto store = model.memory ? Volatile : Fixed;

    const Limits onOff = Codes(0, 1);
    const Limits byte = Range(0, 255);
    Words codings = {SDK4_COLORCODING_MONO8, SDK4_COLORCODING_MONO14, SDK4_COLORCODING_MONO12PACKED};
    if (model.color) {
        codings.insert(codings.end(), {SDK4_COLORCODING_YUV422PACKED, SDK4_COLORCODING_RGB8, SDK4_COLORCODING_BGR8,
                                       SDK4_COLORCODING_RAW14});
    }

    const std::uint32_t right = model.width - 1;
    const std::uint32_t bottom = model.height - 1;
    const Words whole = {0, 0, right, bottom};
    const std::uint32_t coding = model.color ? SDK4_COLORCODING_RGB8 : SDK4_COLORCODING_MONO8;

    // clang-format off
    return {
        // name                address     role         kind and power-up value  valid values of each word
        {"acquisitionmode",    0x00088130, Volatile,    Word(0),                {Codes(0, 1)}}, // for GenICam: continuous, single frame
        {"startacquisition",   0x00088134, Volatile,    Word(0),                {Codes({1})}},
        {"stopacquisition",    0x00088138, Volatile,    Word(0)},
        {"acquisitionframerate", 0x00088140, Volatile,  Word(0)},               // mHz; for GenICam; 0: the frame duration's
        {"offset",             0x00088150, Volatile,    Record({0, 0})},        // for GenICam: moves the readout area

        {"exposuremode",       0x0A020000, Setting,     Word(1),                {Codes(1, 4)}}, // free running
        {"exposure",           0x0A030000, Setting,     Record({0, 20000}),     {Range(0, 7)}}, // base, counter
        {"softtrigger",        0x0A070000, Volatile,    Word(0)},
        {"triggertimer",       0x0A080000, Setting,     Word(0)},
        {"pixelclock",         0x0A090000, Status,      Word(160000000)},
        {"readouttime",        0x0A0A0000, Setting,     KeepingRequest(Word(0))}, // the fastest
        {"binning",            0x0A0B0000, mono,        Record({1, 1}),         {Range(1, 8), Range(1, 8)}},
        {"slowscan",           0x0A0E0000, Setting,     Word(0),                {Codes(0, 1)}},
        {"triggerdelay",       0x0A100000, Setting,     Record({0, 0}),         {Range(0, 7)}}, // base, counter

        {"gain",               0x14010000, Setting,     Word(0),                {Range(0, 511)}},
        {"colorbalance",       0x15010000, color,       Record({128, 128, 128}), {byte, byte, byte}},
        {"lightsource",        0x15020000, Setting,     Word(0),                {Codes(0, 3)}},
        {"saturation",         0x15040000, color,       Word(128),              {byte}},

        {"verticalflip",       0x16020000, memory,      Word(0),                {onOff}},
        {"horizontalflip",     0x16030000, memory,      Word(0),                {onOff}},
        {"lastimagehold",      0x16040000, memory,      Word(0),                {onOff}},
        {"storeimage",         0x16050000, store,       Word(0),                {onOff}},
        {"imagesubtraction",   0x16060000, memory,      Word(0),                {onOff}},
        {"recursivefilter",    0x16070000, memory,      Word(0),                {Codes(0, 4)}},

        {"overlayshow",        0x17010000, Setting,     Indexed({{0}, {0}}),    {onOff}}, // per line
        {"overlayposition",    0x17020000, Setting,     KeepingRequest(Indexed({{0, 0}, {0, 0}}))},
        {"overlaystyle",       0x17030000, Setting,     Indexed({{0, 0}, {1, 0}})},
        {"overlaysize",        0x17040000, Setting,     Indexed({{1, 10}, {1, 10}})},

        {"brightness",         0x18010000, Setting,     Word(0),                {Range(0, 2047)}},
        {"contrast",           0x18020000, Setting,     Word(64),               {Range(32, 255)}},
        {"sharpness",          0x18030000, Setting,     Word(0),                {byte}},
        {"lutindex",           0x19010000, Setting,     Word(0),                {Range(-8, 12)}},
        {"lutmode",            0x19020000, Setting,     Word(0),                {onOff}},
        {"negativeimage",      0x19030000, Setting,     Word(0),                {onOff}},

        {"measureframeshow",   0x1E010000, Setting,     Word(0),                {onOff}},
        {"measureframecolor",  0x1E020000, Setting,     Word(0)},
        {"measurewindow",      0x1E030000, Setting,     KeepingRequest(Indexed({{0, 0, 63, 63}, {64, 64, 127, 127}}))},

        {"colorcoding",        0x28020000, Setting,     Word(coding),           {Codes(codings)}},
        {"imagesize",          0x28030000, Status,      Record({model.width, model.height})},
        {"frameduration",      0x28040000, Status,      Word(0)},
        {"readoutarea",        0x28050000, Setting,     KeepingRequest(Record(whole))}, // requested in sensor pixels
        {"readoutarealimits",  0x28090000, Status,      Indexed({whole, whole, whole})}, // minimum, maximum, active

        {"aet",                0x46010000, Setting,     Word(0),                {Codes(0, 2)}},
        {"agc",                0x46020000, Setting,     Word(0),                {Codes(0, 2)}},
        {"autoexposurelevel",  0x46030000, Setting,     Word(128),              {byte}},
        {"awb",                0x46040000, color,       Word(0),                {Codes(0, 2)}},
        {"acc",                0x46050000, Setting,     Word(0),                {Codes(0, 4)}},

        {"restart",            0x51010000, Volatile,    Word(0)},
        {"loadsettings",       0x51020000, Volatile,    Word(0),                {Codes(0, 2)}},
        {"savesettings",       0x51030000, Volatile,    Word(0),                {Codes(1, 2)}},
        {"startupsettings",    0x51040000, NonVolatile, Word(0),                {Codes(0, 2)}},
        {"operationmode",      0x52020000, Status,      Word(1)},
        {"patterngenerator",   0x5A010000, Volatile,    Word(0),                {Codes(0, model.color ? 1 : 3)}},
        {"temperature",        0x5A030000, Status,      Indexed({{41}})},       // degrees Celsius

        {"devicename",         0x64010000, Fixed,       PrefixedText(24, model.name)},
        {"serialnumber",       0x64020000, Fixed,       PrefixedText(16, SerialNumber(model))},
        {"fumoid",             0x64030000, Fixed,       Word(FunctionModelId(model))},
        {"fumoversion",        0x64040000, Fixed,       Record({1, 0})},
        {"revision",           0x65010000, Fixed,       Record({2, 1})},
        {"softwarebuild",      0x65020000, Fixed,       PrefixedText(24, "build 1207")},
        {"softwareversion",    0x65030000, Fixed,       Record({3, 4})},
        {"firmwareversion",    0x65040000, Fixed,       Record({5, 2})},
        {"hardwareversion",    0x65050000, Fixed,       Record({1, 3})},

        {"iomode",             0x66020000, Setting,     Indexed({{0}, {0}, {0}, {1}, {1}, {1}}), {onOff}}, // per line
        {"ioport",             0x66030000, Setting,     Indexed({{0}, {0}, {0}, {0}, {0}, {0}}), {Codes(0, 4)}},
        {"iopolarity",         0x660F0000, Setting,     Indexed({{0}, {0}, {0}, {0}, {0}, {0}}), {onOff}},
        {"iodelay",            0x66110000, Setting,     Indexed({{0}, {0}, {0}, {0}, {0}, {0}})},

        // Internal state, inaccessible to hosts.
        {"warmth",             0xE0050000, Status,      Word(0)},               // tenths of a degree
    };
    // clang-format on
}

} // namespace Simulation
