#include "Log.h"

#include "Tests/Support/LogCapture.h"
#include "Tests/Support/Observed.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <locale>
#include <stdexcept>

namespace Test {

namespace {

struct Grouping : std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

/// A log line of the host, on the stream that log4cxx shares among all lines of a thread.
template <typename Write> std::string LogOfHost(const Write& write) {
    log4cxx::helpers::MessageBuffer buffer;
    std::ostream& stream = buffer;
    write(stream);
    return buffer.str(stream);
}

} // namespace

TEST(Log, LinesFormatAsOnANewStreamWhateverTheHostLeft) {
    LogCapture log;
    const auto spoil = [](std::ostream& stream) {
        stream << std::hex << std::uppercase << std::showbase << std::showpos << std::left << std::setfill('*');
        stream.imbue(std::locale(std::locale::classic(), new Grouping));
        stream.exceptions(std::ios::badbit);
        stream.width(8);
    };
    LogOfHost(spoil);
    SDK4_LOG(Info, "Call");
    SDK4_LOG(Info, 1234567 << " Address=0x" << std::hex << 0x2805ABCDu);
    SDK4_LOG(Info, std::string("again ") << 10);
    EXPECT_EQ(CodeOf([] { SDK4_THROW(SDK4_ERR_ERROR); }), "SDK4_ERR_ERROR");
    EXPECT_EQ(log.TakeTexts(), (Texts{"info Call", "info 1234567 Address=0x2805abcd", "info again 10",
                                      "warn SDK4Exception [X4Error(SDK4_ERR_ERROR)]"}));
    EXPECT_EQ(LogOfHost([](std::ostream& stream) { stream << 0xABCD; }), "0XA.BCD*")
        << "the host's formatting is restored";
    LogOfHost([](std::ostream& stream) {
        stream.copyfmt(std::ios(nullptr));
        stream.imbue(std::locale::classic());
    });
    SDK4_LOG(Info, std::hex << std::setfill('0') << std::setw(6) << 10);
    EXPECT_EQ(LogOfHost([](std::ostream& stream) { stream << 10; }), "10") << "the library leaves no formatting behind";
}

TEST(Log, LinesStandApartFromOneOfTheHostThatIsNotFinished) {
    LogCapture log;
    const auto gain = [] {
        SDK4_LOG(Info, "Call");
        return 7;
    };
    EXPECT_EQ(LogOfHost([&](std::ostream& stream) { stream << "gain " << gain(); }), "gain 7");
    EXPECT_THROW(LogOfHost([](std::ostream& stream) {
                     stream << "given up";
                     throw std::runtime_error("by the host");
                 }),
                 std::runtime_error);
    SDK4_LOG(Info, "Call");
    EXPECT_EQ(log.TakeTexts(), (Texts{"info Call", "info Call"}));
}

} // namespace Test
