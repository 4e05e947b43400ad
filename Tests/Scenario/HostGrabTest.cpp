#include "Tests/Scenario/Grabbed.h"

#include "Host/Pictures/PixelFormat.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Scenario {

namespace {

using Samples = std::vector<std::uint16_t>;

/// What a PNG file holds.
struct Png {
    png_image image{};
    Samples samples{};

    /// @param bits of a sample, of which 16 have the highest
    Png(const std::string& file, unsigned channels, unsigned bits) {
        image.version = PNG_IMAGE_VERSION;
        EXPECT_TRUE(png_image_begin_read_from_file(&image, file.c_str())) << image.message;
        EXPECT_EQ(image.format, bits > 8 ? PNG_FORMAT_LINEAR_Y : channels == 3 ? PNG_FORMAT_RGB : PNG_FORMAT_GRAY);
        std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
        EXPECT_TRUE(png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr)) << image.message;
        samples.assign(bytes.begin(), bytes.end());
        if (bits > 8) {
            samples.resize(samples.size() / 2);
            for (std::size_t i = 0; i < samples.size(); ++i) {
                samples[i] = static_cast<std::uint16_t>((bytes[2 * i] | bytes[2 * i + 1] << 8) >> (16 - bits));
            }
        }
        std::filesystem::remove(file);
    }
};

/// A folder of the running test, empty at first.
class Folder {
public:
    Folder() { std::filesystem::create_directory(path); }
    ~Folder() { std::filesystem::remove_all(path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] std::string File(const std::string& name) const { return path + '/' + name; }
    [[nodiscard]] std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::string path = TemporaryFile("folder");
};

const std::string camera = "grab Orvik-710C ";

} // namespace

TEST(HostGrab, ReadsTheSamplesOfEachFormat) {
    struct Row {
        std::uint32_t code;
        std::vector<std::uint8_t> bytes; ///< of two lines
        std::uint32_t width;
        Samples second; ///< line
    };
    const Row rows[] = {
        {0x01080001, {1, 2, 3, 4}, 2, {3, 4}},
        {0x01100025, {0, 0, 0xFE, 0xBF}, 1, {0x3FFE}}, // the two highest bits mean nothing
        {0x82100025, {0, 0, 0x34, 0x12}, 1, {0x1234}},
        {0x010C0006, {0x11, 0x11, 0x11, 0x12, 0x43, 0x65}, 2, {0x123, 0x654}},
        {0x010C0006, {0x00, 0x40, 0x65}, 1, {0x654}}, // in the middle of three bytes
        {0x02180014, {0, 0, 0, 7, 8, 9}, 1, {7, 8, 9}},
        {0x02180015, {0, 0, 0, 7, 8, 9}, 1, {9, 8, 7}},
        {0x0210001F, {0, 0, 0, 0, 128, 50, 128, 200}, 2, {50, 50, 50, 200, 200, 200}},
        {0x0210001F, {0, 0, 128, 77}, 1, {77, 77, 77}},                         // without V
        {0x0210001F, {0, 0, 0, 0, 85, 76, 255, 76}, 2, {254, 0, 0, 254, 0, 0}}, // red, within a rounding
    };
    for (const Row& row : rows) {
        const Host::PixelFormat* const format = Host::FindPixelFormat(row.code);
        ASSERT_NE(format, nullptr);
        EXPECT_EQ(Host::PayloadSize(row.code, row.width, 2), row.bytes.size()) << format->name;
        Samples samples(row.second.size());
        Host::ReadLine(*format, row.bytes, row.width, 1, samples);
        EXPECT_EQ(samples, row.second) << format->name;
    }
}

TEST(HostGrab, WritesWhatItMeasuresInEveryFormat) {
    struct Row {
        const char* coding;
        unsigned channels;
        unsigned bits;
    };
    for (const Row& row : {Row{"mono8", 1, 8}, Row{"mono14", 1, 14}, Row{"mono12packed", 1, 12},
                           Row{"yuv422packed", 3, 8}, Row{"rgb8", 3, 8}, Row{"bgr8", 3, 8}, Row{"raw14", 1, 14}}) {
        const std::string file = TemporaryFile(row.coding) + ".png";
        const Outcome run =
            RunHost(camera + file + " readoutarea=0,0,639,99 --json colorcoding=" + std::string(row.coding));
        ASSERT_EQ(run.code, 0) << run.err;
        EXPECT_TRUE(Has(run.out, "\"format\": \"" + std::string(row.coding) + '"'));
        const Png png(file, row.channels, row.bits);
        EXPECT_EQ(png.image.width, 640U);
        EXPECT_EQ(png.image.height, 100U);
        const Samples& samples = png.samples;
        const auto count = static_cast<double>(samples.size());
        const auto [least, greatest] = std::minmax_element(samples.begin(), samples.end());
        EXPECT_EQ(NumberIn(run.out, "minimum"), *least) << row.coding;
        EXPECT_EQ(NumberIn(run.out, "maximum"), *greatest) << row.coding;
        EXPECT_NEAR(NumberIn(run.out, "mean"), std::accumulate(samples.begin(), samples.end(), 0.0) / count, 0.001);
        const int full = (1 << row.bits) - 1;
        const auto saturated = static_cast<double>(std::count(samples.begin(), samples.end(), full));
        EXPECT_NEAR(NumberIn(run.out, "saturatedPercent"), 100 * saturated / count, 0.001);
        double differences = 0;
        for (std::size_t i = row.channels; i < samples.size(); ++i) {
            const bool isFirst = i % (std::size_t{640} * row.channels) < row.channels;
            differences += isFirst ? 0 : std::abs(samples[i] - samples[i - row.channels]);
        }
        EXPECT_NEAR(NumberIn(run.out, "sharpnessPerMille"), 1000 * differences / (count / 640 * 639) / full, 0.001);
    }
}

TEST(HostGrab, NumbersSeveralPicturesAndDescribesRawOnes) {
    const Folder folder;
    const Outcome every =
        RunHost(camera + folder.File("a.b.png") + " readoutarea=0,0,63,63 --count 9 --every 4 --json");
    EXPECT_EQ(every.code, 0) << every.err;
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"a.b-0001.png", "a.b-0002.png", "a.b-0003.png"}));
    EXPECT_EQ(NumberIn(every.out, "frames"), 9);
    EXPECT_EQ(NumberIn(every.out, "written"), 3);
    EXPECT_NEAR(NumberIn(every.out, "framesPerSecond"), 1e6 / 20100, 0.1); // the frame duration
    EXPECT_EQ(RunHost("grab Cerix-MV7 " + folder.File("m.raw") + " --raw").code, 0);
    EXPECT_EQ(std::filesystem::file_size(folder.File("m.raw")), 1024 * 1024 * 2);
    const std::string about = Content(folder.File("m.raw.json"));
    EXPECT_TRUE(Has(about, "\"model\": \"Cerix-MV7\",\n  \"format\": \"mono14\",\n  \"pixelFormat\": \"0x01100025\","));
    EXPECT_EQ(NumberIn(about, "width"), 1024);
    EXPECT_EQ(NumberIn(about, "frame"), 1);
    const Outcome piped = RunHost(camera + "- readoutarea=0,0,63,63 colorcoding=mono8 --raw --count 2");
    EXPECT_EQ(piped.out.size(), 2U * 64 * 64);
    EXPECT_TRUE(Has(piped.err, "2 pictures of 64 x 64 mono8"));
}

TEST(HostGrab, TriggersAndStopsInTheShellToo) {
    const std::string lines = TemporaryFile("lines");
    std::ofstream(lines)
        << "grab exposuremode=frameondemand --count 3 readoutarea=0,0,63,63\ngrab exposuremode=resetrestart\n"
           "set colorcoding=mono8\n"; // which acquisition would lock
    const Outcome shell = RunHost("shell Orvik-710C", QDV12_HOST, lines);
    EXPECT_EQ(shell.code, 0) << shell.err;
    EXPECT_TRUE(Has(shell.out, "3 pictures of 64 x 64 rgb8"));
    EXPECT_TRUE(Has(shell.out, "1 picture of 64 x 64 rgb8"));
    std::filesystem::remove(lines);
    Running grab(QDV12_HOST, {"grab", "Orvik-710C", "-", "--count", "1000000000"}, Running::both);
    EXPECT_TRUE(grab.ReadUntil("PNG"));
    grab.Signal(SIGINT);
    EXPECT_EQ(grab.End(), 1);
    EXPECT_TRUE(Has(grab.Read(), "qdv12host: interrupted; acquisition is stopped\n"));
}

TEST(HostGrab, SaysWhatIsWrong) {
    struct Row {
        std::string arguments;
        int code;
        std::string err;
    };
    const Folder folder;
    const std::string file = folder.File("shot.png");
    const std::string small = " readoutarea=0,0,63,63";
    const Row rows[] = {
        {"--count 0", 2, "invalid number of pictures \"0\""},
        {file + " --every 1.5", 2, "invalid number of pictures \"1.5\""},
        {"--raw", 2, "--raw and --every say what is written: FILE is required"},
        {"gain=1 x.jpg", 2, "\"x.jpg\": pictures are written as .png; --raw writes them as they come"},
        {"x.png y.png", 2, "\"y.png\""},
        {small + " gain=600 " + file, 1, "gain: SDK4_ERR_OUTOFRANGE: 600 was clamped, the camera now holds 511"},
        {"/dev/full --raw" + small, 2, "\"/dev/full\": not a regular file; use - for standard output"},
        {folder.File("none/shot.png") + small, 2, "cannot be written: No such file or directory"},
        {"--index 0 colorcoding=mono8 --fault ignore:colorcoding", 1,
         "the camera sent a frame of 3208 x 2208 rgb8 instead of 3208 x 2208 mono8"},
        {"--fault ignore:startacquisition", 1, "no picture came within 2.1 s"},
    };
    for (const Row& row : rows) {
        const Outcome run = RunHost(camera + row.arguments);
        EXPECT_EQ(run.code, row.code) << row.arguments;
        EXPECT_TRUE(Has(run.err, row.err)) << row.arguments;
    }
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"shot.png"}); // taken, although the gain was clamped
    const auto runInShell = [](const std::string& line) { return RunHost("-c '" + line + "'", "sh"); };
    const Outcome full =
        runInShell("trap \"\" XFSZ; ulimit -f 1; exec " QDV12_HOST " " + camera + folder.File("full.png"));
    EXPECT_EQ(full.code, 1);
    EXPECT_TRUE(Has(full.err, "full.png\": cannot be written: File too large"));
    const Outcome stream = runInShell(QDV12_HOST " " + camera + "- --count 1000000 >/dev/full");
    EXPECT_EQ(stream.code, 1);
    EXPECT_TRUE(Has(stream.err, "1 picture of "));
    EXPECT_TRUE(Has(stream.err, "qdv12host: the results could not be written\n"));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"shot.png"}); // no part of a picture
}

} // namespace Scenario
