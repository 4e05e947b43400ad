#include "M2VX.h"

namespace Simulation {

namespace {

/// The table of defect pixels: 128 pairs, the first two of which are in use.
Value DefectPixels() {
    std::vector<Words> entries(256, Words{0, 0, 0});
    entries[0] = {12, 700, 1}; // column, line, how it is replaced
    entries[1] = {13, 700, 1};
    entries[2] = {512, 44, 2};
    entries[3] = {512, 45, 2};
    return Table(2, entries);
}

} // namespace

std::vector<Register> M2VXRegisters(const M2VXModel& model) {
    const auto setting = Role::Setting;
    const auto kept = Role::Kept;
    const std::string serial = "M" + std::to_string(model.number) + "-0042";
    const Words frontEnd = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};

    // clang-format off
    return {
        // name                      address     role     kind and power-up value
        {"width",                    0x00088120, kept,    Word(1024)},
        {"height",                   0x00088124, kept,    Word(1024)},
        {"pixelformat",              0x00088128, kept,    Word(0x01100025)},                 // Mono14
        {"acquisitionmode",          0x00088130, kept,    Word(0)},
        {"startacquisition",         0x00088134, kept,    Word(0)},
        {"stopacquisition",          0x00088138, kept,    Word(0)},

        {"exposuremode",             0x0A020000, setting, Word(1)},                          // free running
        {"exposure",                 0x0A030000, setting, Word(33)},
        {"afe",                      0x0A0C0000, kept,    Table(2, std::vector<Words>(4, frontEnd))},
        {"fodstatus",                0x0A0D0000, kept,    Word(1)},
        {"twinmodeshutteroffset",    0x0A130000, setting, Word(0)},

        {"defectpixel",              0x0B020000, kept,    DefectPixels()},
        {"autocompensation",         0x0B030000, kept,    Word(0)},
        {"defectpixelcount",         0x0B040000, kept,    Word(2)},                          // pairs
        {"defectpixelshow",          0x0B0A0000, setting, Word(0)},
        {"lenscontrol",              0x0C080000, kept,    Indexed({{0}, {120}, {64}, {0}})}, // per channel

        {"gain",                     0x14010000, setting, Word(0)},
        {"verticalflip",             0x16020000, setting, Word(0)},
        {"horizontalflip",           0x16030000, setting, Word(0)},
        {"lastimagehold",            0x16040000, setting, Word(0)},
        {"storeimage",               0x16050000, kept,    Word(0)},
        {"imagesubtraction",         0x16060000, setting, Word(0)},
        {"recursivefilter",          0x16070000, setting, Word(0)},
        {"automotiondetection",      0x16080000, setting, Word(0)},

        {"overlayshow",              0x17010000, setting, Indexed({{0}, {0}, {0}})},         // per overlay
        {"overlayposition",          0x17020000, setting, Indexed({{0, 0}, {0, 0}, {0, 0}})},
        {"overlaystyle",             0x17030000, setting, Indexed({{0, 0}, {1, 0}, {2, 1}})},
        {"overlaysize",              0x17040000, setting, Indexed({{1, 10}, {1, 10}, {1, 10}})},

        {"brightness",               0x18010000, setting, Word(0)},
        {"contrast",                 0x18020000, setting, Word(64)},
        {"sharpness",                0x18030000, setting, Word(0)},
        {"histogramequalization",    0x180C0000, setting, Word(0)},
        {"gammaindex",               0x19010000, setting, Word(0)},
        {"lutmode",                  0x19020000, setting, Word(0)},
        {"negativeimage",            0x19030000, setting, Word(0)},

        {"shadingcorrectionmode",    0x1B010000, setting, Word(0)},
        {"shadingcorrection",        0x1B020000, setting, Indexed({{0}, {0}, {0}, {0}})},    // per channel
        {"circularblankingmode",     0x1B030000, setting, Word(0)},
        {"circularblankingsize",     0x1B040000, setting, Word(70)},
        {"circularblankingposition", 0x1B050000, setting, Record({512, 512})},

        {"measureframeshow",         0x1E010000, setting, Word(0)},
        {"measureframecolor",        0x1E020000, setting, Word(0)},
        {"measurewindow",            0x1E030000, setting, Record({100, 2, 0, 0, 128})},      // radius, width, x, y, stretch
        {"measurevalue",             0x1E040000, kept,    Indexed({{37}})},

        {"colorcoding",              0x28020000, kept,    Word(6)},                          // Mono14, the only one
        {"imagesize",                0x28030000, kept,    Record({1024, 1024})},
        {"frameduration",            0x28040000, kept,    Word(33333)},

        {"agc",                      0x46020000, setting, Word(0)},
        {"automaticlevel",           0x46030000, setting, Word(30)},
        {"acc",                      0x46050000, setting, Word(0)},
        {"autogainstopmode",         0x46090000, setting, Word(0)},
        {"abc",                      0x47040000, setting, Word(0)},
        {"abcstopmode",              0x47050000, setting, Word(0)},
        {"abcthreshold",             0x47090000, setting, Indexed({{358}, {255}})},
        {"abcxrlevel",               0x470A0000, kept,    Word(301)},                        // measured

        {"device",                   0x50050000, kept,    Selected({{{1, 0, 0}, {1207}}, {{1, 1, 0}, {64}}})},
        {"restart",                  0x51010000, kept,    Word(0)},
        {"loadsettings",             0x51020000, kept,    Word(0)},
        {"savesettings",             0x51030000, kept,    Word(0)},
        {"startupsettings",          0x51040000, kept,    Word(0)},
        {"operationmode",            0x52020000, kept,    Word(1)},
        {"errorregister",            0x52030000, kept,    Word(0)},
        {"updatefile",               0x53020000, kept,    Word(0)},
        {"updatestatus",             0x53030000, kept,    Record({0, 0})},
        {"testpattern",              0x5A010000, kept,    Indexed({{0}, {0}})},
        {"temperature",              0x5A030000, kept,    Word(38)},                         // degrees Celsius

        {"devicename",               0x64010000, kept,    LedText(24, model.name)},
        {"serialnumber",             0x64020000, kept,    LedText(24, serial)},
        {"fumoid",                   0x64030000, kept,    Word(model.number)},
        {"fumoversion",              0x64040000, kept,    Record({1, 0})},
        {"revision",                 0x65010000, kept,    Record({2, 1})},
        {"softwarebuild",            0x65020000, kept,    LedText(24, "build 0815")},
        {"softwareversion",          0x65030000, kept,    Record({3, 4})},
        {"firmwareversion",          0x65040000, kept,    Record({5, 2})},
        {"hardwareversion",          0x65050000, kept,    Record({1, 3})},

        {"iomode",                   0x66020000, setting, Indexed({{0}, {0}, {0}, {1}, {1}, {1}})}, // per line
        {"ioport",                   0x66030000, setting, Indexed({{0}, {0}, {0}, {0}, {0}, {0}})},
        {"iopolarity",               0x660F0000, setting, Indexed({{0}, {0}, {0}, {0}, {0}, {0}})},
        {"iodelay",                  0x66110000, setting, Indexed({{0}, {0}, {0}, {0}, {0}, {0}})},

        {"motorcontrol",             0x6E140000, kept,    Indexed(std::vector<Words>(256, Words{0}))}, // per channel
        {"ccdcontrol",               0x6F010000, kept,    Word(0)},
        {"com",                      0x6F020000, kept,    Word(0)},
    };
    // clang-format on
}

} // namespace Simulation
