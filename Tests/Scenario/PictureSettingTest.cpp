// What each function of a simulated camera does to its pictures. The rows of the host's tables say which there are.

#include "Host/Assignment.h"
#include "Host/Functions/Tables.h"
#include "Host/Logging.h"
#include "Host/Pictures/PixelFormat.h"
#include "Host/Session.h"
#include "Simulation/Acquisition.h"
#include "Simulation/Picture/Renderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace Scenario {

namespace {

using namespace std::chrono_literals;

/// A picture, its samples in 8 bits.
struct Image {
    std::uint32_t width = 0, height = 0;
    std::size_t channels = 1;
    std::vector<std::uint16_t> samples{};

    bool operator==(const Image&) const = default;

    /// Of one channel, or of all.
    [[nodiscard]] double Mean(std::size_t first = 0, std::size_t step = 1) const {
        double sum = 0;
        for (std::size_t i = first; i < samples.size(); i += step) {
            sum += samples[i];
        }
        return sum * static_cast<double>(step) / static_cast<double>(samples.size());
    }
    /// The mean difference of neighbours.
    [[nodiscard]] double Detail() const {
        double sum = 0;
        for (std::size_t i = channels; i < samples.size(); ++i) {
            sum += std::abs(samples[i] - samples[i - channels]);
        }
        return sum / static_cast<double>(samples.size());
    }
    [[nodiscard]] int At(std::size_t x, std::size_t y) const { return samples[(y * width + x) * channels]; }
};

/// Frames 1 to 3.
struct Series {
    Image first, last;
};

class Studio {
public:
    explicit Studio(const std::string& model, const std::vector<std::string>& faults = {})
        : session(Plugin(), model, Options(model, faults)),
          camera(dynamic_cast<Host::SimulatedConnection&>(session.Connection()).Camera()),
          acquisition(camera) {
        acquisition.IgnoreFrameDuration();
    }

    void Set(const std::string& assignments) {
        const Host::Camera functions = session.Camera();
        std::istringstream words(assignments);
        for (std::string word; words >> word;) {
            const auto [instance, value] = Host::ParseAssignment(functions, word);
            functions.Write(instance, value);
        }
        camera.Advance(1s); // automatic modes come to an end
    }

    Series Shoot() {
        camera.Registers().Set("startacquisition", {1});
        Series series;
        series.first = Take(1);
        (void)Take(2);
        series.last = Take(3);
        camera.Registers().Set("startacquisition", {0});
        return series;
    }

private:
    static Host::CameraOptions Options(const std::string& model, const std::vector<std::string>& faults) {
        Host::CameraOptions options;
        options.index = model[0] == 'O' ? 2 : 0; // uncached
        options.simulation.faults = faults;
        return options;
    }
    static const Host::Plugin& Plugin() {
        static const Host::Plugin plugin = [] {
            Host::ConfigureLogging("off");
            return Host::Plugin(QDV12_PLUGIN);
        }();
        return plugin;
    }

    Image Take(std::uint64_t number) {
        renderer.Render(acquisition.Take().value().settings, number, frame);
        const Host::PixelFormat& format = *Host::FindPixelFormat(frame.pixelFormat);
        Image image{frame.width, frame.height, format.channels, {}};
        std::vector<std::uint16_t> line(std::size_t{frame.width} * format.channels);
        for (std::uint32_t y = 0; y < frame.height; ++y) {
            Host::ReadLine(format, frame.bytes, frame.width, y, line);
            image.samples.insert(image.samples.end(), line.begin(), line.end());
        }
        for (std::uint16_t& sample : image.samples) {
            sample = static_cast<std::uint16_t>(sample >> (format.bits - 8));
        }
        return image;
    }

    Host::Session session;
    Simulation::SimulatedCamera& camera;
    Simulation::Acquisition acquisition;
    Simulation::Picture::Renderer renderer{Simulation::World(0)};
    Simulation::Picture::Frame frame;
};

/// The mean difference of the first and the last frame.
double Change(const Series& series) {
    double sum = 0;
    for (std::size_t i = 0; i < series.first.samples.size(); ++i) {
        sum += std::abs(series.first.samples[i] - series.last.samples[i]);
    }
    return sum / static_cast<double>(series.first.samples.size());
}

// Comparisons of the pictures before and after.

using Comparison = std::function<bool(const Series&, const Series&)>;

bool Brighter(const Series& a, const Series& b) { return b.last.Mean() > 1.05 * a.last.Mean(); }
bool Darker(const Series& a, const Series& b) { return Brighter(b, a); }
bool Sharper(const Series& a, const Series& b) { return b.last.Detail() > 1.2 * a.last.Detail(); }
bool Smoother(const Series& a, const Series& b) { return Sharper(b, a); }
bool Steadier(const Series& a, const Series& b) { return Change(b) < 0.7 * Change(a); }
bool Frozen(const Series& a, const Series& b) { return a.first != a.last && b.first == b.last; }
bool IsSmaller(const Series& a, const Series& b) { return b.last.samples.size() <= a.last.samples.size() / 2; }
bool Blank(const Series&, const Series& b) { // but for the noise of two frames
    return b.last.Detail() > 0.5 && b.last.Detail() < 3 && std::abs(b.last.Mean() - 128) < 1;
}

bool Gray(const Series& a, const Series& b) {
    const auto tint = [](const Image& image) { return std::abs(image.Mean(0, 3) - image.Mean(2, 3)); };
    return tint(a.last) > 10 && tint(b.last) < 3;
}
bool Tinted(const Series& a, const Series& b) { return Gray(b, a); }

bool BothWays(const Series& a, const Series& b, std::size_t (*source)(const Image&, std::size_t, std::size_t)) {
    for (std::size_t i = 0; i < a.last.samples.size(); ++i) {
        if (b.last.samples[i] != a.last.samples[source(a.last, i % a.last.width, i / a.last.width)]) {
            return false;
        }
    }
    return a.last != b.last;
}
bool Mirrored(const Series& a, const Series& b) {
    return BothWays(
        a, b, [](const Image& image, std::size_t x, std::size_t y) { return y * image.width + image.width - 1 - x; });
}
bool UpsideDown(const Series& a, const Series& b) {
    return BothWays(a, b, [](const Image& image, std::size_t x, std::size_t y) {
        return (image.height - 1 - y) * image.width + x;
    });
}
bool Negative(const Series& a, const Series& b) {
    return std::equal(a.last.samples.begin(), a.last.samples.end(), b.last.samples.begin(),
                      [](int before, int after) { return before + after == 255; });
}

/// The columns and lines of the area that is different: left, top, right, bottom, all inclusive.
using Area = std::array<std::size_t, 4>;
Area Difference(const Series& a, const Series& b) {
    Area area{1U << 20, 1U << 20, 0, 0};
    for (std::size_t i = 0; i < std::min(a.last.samples.size(), b.last.samples.size()); ++i) {
        if (a.last.samples[i] != b.last.samples[i]) {
            const std::size_t x = i / a.last.channels % a.last.width;
            const std::size_t y = i / a.last.channels / a.last.width;
            area = {std::min(area[0], x), std::min(area[1], y), std::max(area[2], x), std::max(area[3], y)};
        }
    }
    return area;
}
Comparison OnlyIn(std::size_t left, std::size_t top, std::size_t right, std::size_t bottom) {
    return [=](const Series& a, const Series& b) { return Difference(a, b) == Area{left, top, right, bottom}; };
}

/// The edge of the mark, where it was not in the frames before.
bool Catches(const Series& a, const Series& b) { return b.last.At(222, 880) < a.last.At(222, 880) - 20; }

/// The sample at a place is then one, and another before.
Comparison At(std::size_t x, std::size_t y, int then) {
    return [=](const Series& a, const Series& b) { return a.last.At(x, y) != then && b.last.At(x, y) == then; };
}

struct Row {
    const char* name;
    const char* model;
    const char* before; ///< is set before the first picture
    const char* change; ///< and this before the second
    Comparison compare;
};

// Steps of gray, 256 x 64 pixels: those of the monochrome cameras have no defect pixel.
constexpr const char *mono = "Orvik-530M", *color = "Orvik-710C", *other = "Cerix7-MV";
const std::string steps = "readoutarea=640,1580,895,1643 ";

const std::vector<Row>& Rows() {
    // clang-format off
    static const std::vector<Row> rows = {
        {"colorcoding",       color, "", "colorcoding=mono8", [](auto& a, auto& b) { return a.last.channels == 3 && b.last.channels == 1; }},
        {"binning",           mono,  "", "binning=2,2", IsSmaller},
        {"readoutarea",       mono,  "", "readoutarea=640,1580,703,1643", IsSmaller},
        {"aet",               mono,  "exposure=0:9000", "aet=1", Brighter},
        {"autoexposurelevel", mono,  "aet=1", "autoexposurelevel=60", Darker},
        {"exposure",          mono,  "", "exposure=0:9000", Darker},
        {"agc",               mono,  "exposure=0:9000", "agc=1", Brighter},
        {"gain",              mono,  "", "gain=60", Brighter},
        {"acc",               mono,  "", "acc=4", Sharper},
        {"brightness",        mono,  "", "brightness=500", Brighter},
        {"contrast",          mono,  "", "contrast=128", Sharper},
        {"lutindex",          mono,  "lutmode=1", "lutindex=-8", Darker},
        {"lutmode",           mono,  "lutindex=12", "lutmode=1", Brighter},
        {"sharpness",         mono,  "", "sharpness=255", Sharper},
        {"negativeimage",     mono,  "", "negativeimage=on", Negative},
        {"patterngenerator",  mono,  "", "patterngenerator=3", At(64, 63, 0)},
        {"lightsource",       color, "", "lightsource=1", Tinted},
        {"awb",               color, "lightsource=1", "awb=1", Gray},
        {"colorbalance",      color, "", "colorbalance=200,128,128", Tinted},
        {"saturation",        color, "colorbalance=200,128,128", "saturation=0", Gray},
        {"overlayshow",       mono,  "overlayposition.0=100,20 overlaysize.0=3,41", "overlayshow.0=on", OnlyIn(80, 19, 120, 21)},
        {"overlayposition",   mono,  "overlayshow.1=on overlaystyle.1=0,1 overlaysize.1=3,1", "overlayposition.1=100,20", OnlyIn(0, 0, 101, 20)},
        {"overlaystyle",      mono,  "overlayshow.0=on overlayposition.0=100,20", "overlaystyle.0=0,1", OnlyIn(95, 15, 104, 24)},
        {"overlaysize",       mono,  "overlayshow.0=on overlayposition.0=100,20", "overlaysize.0=1,30", OnlyIn(85, 20, 114, 20)},
        {"measureframeshow",  mono,  "", "measurewindow.0=10,5,50,40 measurewindow.1=10,5,50,40 measureframeshow=on", OnlyIn(10, 5, 50, 40)},
        {"measureframecolor", mono,  "measureframeshow=on", "measureframecolor=1", At(63, 5, 0)},
        {"measurewindow",     mono,  "measureframeshow=on measureframecolor=1", "measurewindow.1=80,10,90,20", At(90, 15, 0)},
        {"verticalflip",      mono,  "", "verticalflip=on", UpsideDown},
        {"horizontalflip",    mono,  "", "horizontalflip=on", Mirrored},
        {"lastimagehold",     mono,  "", "lastimagehold=on", Frozen},
        {"storeimage",        mono,  "imagesubtraction=on", "storeimage=on", Blank},
        {"imagesubtraction",  mono,  "storeimage=on", "imagesubtraction=on", Blank},
        {"recursivefilter",   mono,  "gain=400 exposure=0:4000", "recursivefilter=2", Steadier},
        {"loadsettings",      mono,  "gain=60", "loadsettings=0", [](auto& a, auto& b) { return IsSmaller(b, a); }},

        {"exposuremode",      other, "exposuremode=3 exposure=99", "exposuremode=1", Darker},
        {"exposure",          other, "exposuremode=3", "exposure=99", Brighter},
        {"agc",               other, "", "agc=1", Brighter},
        {"gain",              other, "", "gain=100", Brighter},
        {"automaticlevel",    other, "agc=2", "automaticlevel=60", Brighter},
        {"histogramequalization", other, "", "histogramequalization=2", Brighter},
        {"brightness",        other, "", "brightness=2000", Brighter},
        {"contrast",          other, "", "contrast=32", Smoother},
        {"lutindex",          other, "", "lutindex=12", Brighter},
        {"sharpness",         other, "", "sharpness=255", Sharper},
        {"negativeimage",     other, "", "negativeimage=on", Negative},
        {"shadingcorrectionmode", other, "shadingcorrection.2=127 shadingcorrection.3=127", "shadingcorrectionmode=on", Brighter},
        {"shadingcorrection", other, "shadingcorrectionmode=on", "shadingcorrection.0=-128 shadingcorrection.1=-128", Darker},
        {"circularblankingmode", other, "", "circularblankingmode=on", At(512, 583, 0)},
        {"circularblankingsize", other, "circularblankingmode=on", "circularblankingsize=200", OnlyIn(313, 313, 711, 711)},
        {"circularblankingposition", other, "circularblankingmode=on", "circularblankingposition=100,100", At(512, 512, 0)},
        {"overlayshow",       other, "overlaysize.0=2,100", "overlayshow.0=on", OnlyIn(462, 511, 561, 512)},
        {"overlayposition",   other, "overlayshow.0=on", "overlayposition.0=-200,50", At(312, 562, 255)},
        {"overlaystyle",      other, "overlayshow.0=on overlaysize.0=1,100 overlaystyle.0=0,1", "overlaystyle.0=1,1", At(512, 550, 0)},
        {"overlaysize",       other, "overlayshow.0=on overlayposition.0=200,200", "overlaysize.0=3,500", OnlyIn(462, 711, 961, 713)},
        {"measureframeshow",  other, "", "measureframeshow=on", OnlyIn(413, 413, 611, 611)},
        {"measurewindow",     other, "measureframeshow=on", "measurewindow=300,1,0,0,64", At(512, 363, 255)},
        {"verticalflip",      other, "", "verticalflip=on", UpsideDown},
        {"horizontalflip",    other, "", "horizontalflip=on", Mirrored},
        {"lastimagehold",     other, "", "lastimagehold=on", Frozen},
        {"storeimage",        other, "imagesubtraction=on", "storeimage=on", Blank},
        {"imagesubtraction",  other, "storeimage=on", "imagesubtraction=on", Blank},
        {"recursivefilter",   other, "gain=568 exposuremode=3 exposure=1", "recursivefilter=4", Steadier},
        {"automotiondetection", other, "recursivefilter=4", "automotiondetection=on", Catches},
        {"loadsettings",      other, "gain=100", "loadsettings=0", Darker},
        {"restart",           other, "gain=100", "restart", Darker},
        {"testpattern",       other, "", "testpattern.1=2", At(512, 512, 255)},
        {"defectpixelshow",   other, "", "defectpixelshow=on", OnlyIn(12, 44, 512, 700)},
        {"defectpixel",       other, "", "defectpixel.0=0,0,0", OnlyIn(12, 700, 13, 700)},
        {"defectpixelautocompensation", other, "", "defectpixelautocompensation", OnlyIn(926, 94, 926, 95)},
    };
    // clang-format on
    return rows;
}

/// Functions that do not change pictures, and why.
const struct {
    const char* family; ///< empty for both
    const char* names;
    const char* reason;
} exceptions[] = {
    // clang-format off
    {"",      "username dhcp persistentip packetsize packetdelay",    "network"},
    {"",      "startupsettings savesettings",                         "count later"},
    {"Orvik", "framemask histogramequalization automotiondetection",  "no camera of the family has it"},
    {"Orvik", "exposuremode slowscan readouttime triggertimer triggerdelay softtrigger", "say when pictures are taken"},
    {"Orvik", "iomode ioport iopolarity iodelay",                     "act on what is connected"},
    {"M2VX",  "lutmode",                                              "no camera of the family has it"},
    {"M2VX",  "autogainstopmode",                                     "says when the gain changes"},
    {"M2VX",  "abc abcthreshold abcstopmode",                         "control a source of light, which the scene has not"},
    {"M2VX",  "twinmodeshutteroffset motorcontrol lenscontrol",       "act on what is connected"},
    // clang-format on
};

using Names = std::multiset<std::string>;

Names Listed(const std::string& family) {
    Names listed;
    for (const auto& [of, names, reason] : exceptions) {
        std::istringstream words(of == family || *of == '\0' ? names : "");
        listed.insert(std::istream_iterator<std::string>(words), {});
    }
    for (const Row& row : Rows()) {
        if ((family == "M2VX") == (row.model == other)) {
            listed.insert(row.name);
        }
    }
    return listed;
}

/// The rows of the host's table that can be set.
Names Settable(const std::string& family) {
    Names settable;
    for (const Host::Function& function : *Host::TableOf(family)) {
        if (function.set != nullptr) {
            settable.emplace(function.name);
        }
    }
    return settable;
}

} // namespace

TEST(PictureSetting, IsSeenWithEachFunction) {
    for (const Row& row : Rows()) {
        Studio studio(row.model);
        studio.Set((row.model == other ? "" : steps) + row.before);
        const Series before = studio.Shoot();
        studio.Set(row.change);
        const Series after = studio.Shoot();
        EXPECT_TRUE(row.compare(before, after))
            << row.model << ' ' << row.name << ": mean " << before.last.Mean() << ", " << after.last.Mean()
            << ", detail " << before.last.Detail() << ", " << after.last.Detail() << ", different in "
            << testing::PrintToString(Difference(before, after));
        EXPECT_NE(std::string(row.change).find(row.name), std::string::npos);
    }
}

TEST(PictureSetting, IsNoneForgotten) {
    EXPECT_EQ(Listed("Orvik"), Settable("Orvik"));
    EXPECT_EQ(Listed("M2VX"), Settable("M2VX"));
}

TEST(PictureSetting, ShowsAFault) {
    const auto shoot = [](const std::vector<std::string>& faults) {
        Studio studio(mono, faults);
        studio.Set(steps + "gain=60 binning=1,1");
        return studio.Shoot();
    };
    const Series sound = shoot({});
    EXPECT_TRUE(Darker(sound, shoot({"ignore:gain"})));
    EXPECT_TRUE(Brighter(sound, shoot({"offset:gain=100"})));
    EXPECT_TRUE(IsSmaller(sound, shoot({"offset:binning=1"})));
    for (const char* fault : {"clamp:binning=0", "offset:binning=500", "offset:exposure=-1"}) {
        EXPECT_GT(shoot({fault}).last.width, 0U) << fault; // and no division by zero
    }
}

} // namespace Scenario
