#include "Simulation/M2VX.h"

#include <SDK4/Enums.h>

#include <algorithm>
#include <iterator>

namespace Simulation {

namespace {

/// The table of defect pixels: 128 pairs, the first two in use.
Value DefectPixels() {
    std::vector<Words> entries(256, Words{0, 0, 0});
    std::transform(std::begin(factoryDefects), std::end(factoryDefects), entries.begin(),
                   [](const auto& pixel) { return Words(std::begin(pixel), std::end(pixel)); });
    return Table(2, entries);
}

} // namespace

std::string SerialNumber(const M2VXModel& model) { return "M" + std::to_string(model.number) + "-0042"; }

std::vector<Register> M2VXRegisters(const M2VXModel& model) {
    using enum Role;
    const Limits onOff = Codes(0, 1);
    const Limits axis = Range(0, 65535);
    const Limits inCircle = Range(-500, 499);
    const std::vector<Limits> overlaySize = {Codes(0, 3), Range(1, 1024)};
    const std::vector<Limits> defectPixel = {Range(0, 1024), Range(0, 1024), Codes(0, 2)};
    const Words frontEnd = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};

    // clang-format off
    return {
        // name                      address     role         kind and power-up value  valid values of each word
        {"width",                    0x00088120, Status,      Word(1024)},
        {"height",                   0x00088124, Status,      Word(1024)},
        {"pixelformat",              0x00088128, Status,      Word(0x01100025)},      // Mono14
        {"acquisitionmode",          0x00088130, Volatile,    Word(0)},
        {"startacquisition",         0x00088134, Volatile,    Word(0),                {Codes({1})}},
        {"stopacquisition",          0x00088138, Volatile,    Word(0)},
        {"acquisitionframerate",     0x00088140, Volatile,    Word(0)},               // mHz; for GenICam; 0: the frame duration's

        {"exposuremode",             0x0A020000, Setting,     Word(1),                {Codes(1, 4)}}, // free running
        {"exposure",                 0x0A030000, Setting,     KeepingRequest(Word(33)), {Range(1, 2000)}},
        {"afe",                      0x0A0C0000, NonVolatile, Table(2, std::vector<Words>(4, frontEnd))},
        {"fodstatus",                0x0A0D0000, Status,      Word(1)},
        {"twinmodeshutteroffset",    0x0A130000, Setting,     Word(0),                {Range(0, 2000)}},

        {"defectpixel",              0x0B020000, NonVolatile, DefectPixels(), defectPixel},
        {"autocompensation",         0x0B030000, Volatile,    Word(0)},
        {"defectpixelcount",         0x0B040000, Status,      Word(2)},               // pairs
        {"defectpixelshow",          0x0B0A0000, Setting,     Word(0),                {onOff}},
        {"lenscontrol",              0x0C080000, NonVolatile, Indexed({{0}, {120}, {64}, {0}}), {axis}},

        {"gain",                     0x14010000, Setting,     Word(0),                {Range(0, 568)}},
        {"verticalflip",             0x16020000, Setting,     Word(0),                {onOff}},
        {"horizontalflip",           0x16030000, Setting,     Word(0),                {onOff}},
        {"lastimagehold",            0x16040000, Setting,     Word(0),                {onOff}},
        {"storeimage",               0x16050000, Volatile,    Word(0),                {onOff}},
        {"imagesubtraction",         0x16060000, Setting,     Word(0),                {onOff}},
        {"recursivefilter",          0x16070000, Setting,     Word(0),                {Codes(0, 4)}},
        {"automotiondetection",      0x16080000, Setting,     Word(0),                {onOff}},

        {"overlayshow",              0x17010000, Setting,     Indexed({{0}, {0}, {0}}), {onOff}}, // per overlay
        {"overlayposition",          0x17020000, Setting,     Indexed({{0, 0}, {0, 0}, {0, 0}}), {inCircle, inCircle}},
        {"overlaystyle",             0x17030000, Setting,     Indexed({{0, 0}, {1, 0}, {2, 1}}), {Codes(0, 3), onOff}},
        {"overlaysize",              0x17040000, Setting,     Indexed({{1, 10}, {1, 10}, {1, 10}}), overlaySize},

        {"brightness",               0x18010000, Setting,     Word(0),                {Range(0, 16383)}},
        {"contrast",                 0x18020000, Setting,     Word(64),               {Range(0, 255)}},
        {"sharpness",                0x18030000, Setting,     Word(0),                {Range(0, 255)}},
        {"histogramequalization",    0x180C0000, Setting,     Word(0),                {Codes(0, 3)}},
        {"gammaindex",               0x19010000, Setting,     Word(0),                {Range(0, 12)}},
        {"lutmode",                  0x19020000, Setting,     Word(0),                {onOff}},
        {"negativeimage",            0x19030000, Setting,     Word(0),                {onOff}},

        {"shadingcorrectionmode",    0x1B010000, Setting,     Word(0),                {onOff}},
        {"shadingcorrection",        0x1B020000, Setting,     Indexed({{0}, {0}, {0}, {0}}), {Range(-128, 127)}},
        {"circularblankingmode",     0x1B030000, Setting,     Word(0),                {onOff}},
        {"circularblankingsize",     0x1B040000, Setting,     Word(70),               {Range(1, 512)}},
        {"circularblankingposition", 0x1B050000, Setting,     Record({512, 512}),     {Range(0, 1023), Range(0, 1023)}},

        {"measureframeshow",         0x1E010000, Setting,     Word(0),                {onOff}},
        {"measureframecolor",        0x1E020000, Setting,     Word(0)},
        {"measurewindow",            0x1E030000, Setting,     Record({100, 2, 0, 0, 128}), // radius, width, x, y, stretch
                                     {Range(0, 511), Range(1, 3), Range(-511, 511), Range(-511, 511), Range(1, 512)}},
        {"measurevalue",             0x1E040000, Status,      Indexed({{37}})},

        {"colorcoding",              0x28020000, Status,      Word(SDK4_COLORCODING_MONO14)}, // the only one
        {"imagesize",                0x28030000, Status,      Record({1024, 1024})},
        {"frameduration",            0x28040000, Status,      Word(33333)},

        {"agc",                      0x46020000, Setting,     Word(0),                {Codes(0, 2)}},
        {"automaticlevel",           0x46030000, Setting,     Word(30),               {Range(0, 100)}},
        {"acc",                      0x46050000, Setting,     Word(0),                {Codes(0, 4)}},
        {"autogainstopmode",         0x46090000, Setting,     Word(0),                {onOff}},
        {"abc",                      0x47040000, Setting,     Word(0),                {Codes(0, 2)}},
        {"abcstopmode",              0x47050000, Setting,     Word(0),                {onOff}},
        {"abcthreshold",             0x47090000, Setting,     Indexed({{358}, {255}}), {Range(0, 1023)}},
        {"abcxrlevel",               0x470A0000, Status,      Word(301)},             // measured

        {"device",                   0x50050000, NonVolatile, Selected({{{1, 0, 0}, {1207}}, {{1, 1, 0}, {64}}})},
        {"restart",                  0x51010000, Volatile,    Word(0)},
        {"loadsettings",             0x51020000, Volatile,    Word(0),                {Codes(0, 2)}},
        {"savesettings",             0x51030000, Volatile,    Word(0),                {Codes(1, 2)}},
        {"startupsettings",          0x51040000, NonVolatile, Word(0),                {Codes(0, 2)}},
        {"operationmode",            0x52020000, Status,      Word(1)},
        {"errorregister",            0x52030000, Status,      Word(0)},
        {"updatefile",               0x53020000, Volatile,    Word(0)},
        {"updatestatus",             0x53030000, Status,      Record({0, 0})},
        {"testpattern",              0x5A010000, Volatile,    Indexed({{0}, {0}}),    {Codes(0, 6)}},
        {"temperature",              0x5A030000, Status,      Word(38)},              // degrees Celsius

        {"devicename",               0x64010000, Fixed,       PrefixedText(24, model.name)},
        {"serialnumber",             0x64020000, Fixed,       PrefixedText(24, SerialNumber(model))},
        {"fumoid",                   0x64030000, Fixed,       Word(model.number)},
        {"fumoversion",              0x64040000, Fixed,       Record({1, 0})},
        {"revision",                 0x65010000, Fixed,       Record({2, 1})},
        {"softwarebuild",            0x65020000, Fixed,       PrefixedText(24, "build 0815")},
        {"softwareversion",          0x65030000, Fixed,       Record({3, 4})},
        {"firmwareversion",          0x65040000, Fixed,       Record({5, 2})},
        {"hardwareversion",          0x65050000, Fixed,       Record({1, 3})},

        {"iomode",                   0x66020000, Setting,     Indexed({{0}, {0}, {0}, {1}, {1}, {1}}), {onOff}}, // per line
        {"ioport",                   0x66030000, Setting,     Indexed({{0}, {0}, {0}, {0}, {0}, {0}}), {Codes(0, 4)}},
        {"iopolarity",               0x660F0000, Setting,     Indexed({{0}, {0}, {0}, {0}, {0}, {0}}), {onOff}},
        {"iodelay",                  0x66110000, Setting,     Indexed({{0}, {0}, {0}, {0}, {0}, {0}})},

        {"motorcontrol",             0x6E140000, NonVolatile, Indexed(std::vector<Words>(256, Words{0})), {axis}},
        {"ccdcontrol",               0x6F010000, Volatile,    Word(0)},
        {"com",                      0x6F020000, Volatile,    Word(0)},

        // Internal state, inaccessible to hosts.
        {"gain searched",            0xE0020000, Status,      Word(1)},
        {"level searched",           0xE0030000, Status,      Word(1)},
        {"motor target",             0xE0040000, Status,      Indexed(std::vector<Words>(256, Words{0, 0}))},
        {"motors moving",            0xE0050000, Status,      Word(0)},
        {"lens target",              0xE0060000, Status,      Indexed(std::vector<Words>(4, Words{0, 0}))},
        {"lenses moving",            0xE0070000, Status,      Word(0)},
        {"warmth",                   0xE0080000, Status,      Word(0)},               // tenths of a degree
    };
    // clang-format on
}

} // namespace Simulation
