#include "Tests/Scenario/HostProcess.h"

#include "Common/Text.h"
#include "Host/Describe.h"
#include "Host/Format.h"

#include <algorithm>

namespace Scenario {

TEST(HostText, IsEscapedWhereATerminalWouldObey) {
    const std::pair<std::string, std::string> cases[] = {
        {"plain, \"quoted\" and #1", "plain, \"quoted\" and #1"},
        {"\x1b]0;owned\x07", "\\x1B]0;owned\\x07"},
        {std::string("\0\n\r\t\x1f\x7f", 6), "\\x00\\n\\r\\t\\x1F\\x7F"},
        {"a\\nb", "a\\\\nb"},
        {"K\u00FChl \u00A0 \u20AC \U0001F4F7", "K\u00FChl \u00A0 \u20AC \U0001F4F7"},
        {"\u0080 \u009B31m", "\\xC2\\x80 \\xC2\\x9B31m"}, // C1
        {"\x9b \xff \xc3", "\\x9B \\xFF \\xC3"},          // invalid UTF-8: alone, ...
        {"\xc1\x81 \xe0\x81\x81 \xf0\x80\x81\x81",
         "\\xC1\\x81 \\xE0\\x81\\x81 \\xF0\\x80\\x81\\x81"}, // ... overlong, ...
        {"\xed\xa0\x80 \xf4\x90\x80\x80 \xe2\x82",
         "\\xED\\xA0\\x80 \\xF4\\x90\\x80\\x80 \\xE2\\x82"}, // ... surrogate, too large, truncated
    };
    for (const auto& [text, escaped] : cases) {
        EXPECT_EQ(Common::Escaped(text), escaped);
        EXPECT_EQ(Common::Unescaped(escaped), text);
    }
    EXPECT_EQ(Common::Unescaped("\\x1b"), "\x1b");
    for (const char* wrong : {"\\", "a\\", "\\q", "\\x", "\\x1", "\\xg0", "\\x1G"}) {
        EXPECT_EQ(Common::Unescaped(wrong), std::nullopt) << wrong;
    }
    EXPECT_EQ(Common::InOneLine("gain: \\x1B\n\u009B"), "gain: \\x1B\\n\\xC2\\x9B");
}

TEST(HostText, OfBytesIsTheirWordsOrTheTextInThem) {
    const auto format = [](const std::string& bytes) {
        return Host::FormatBytes({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
    };
    const std::pair<std::string, std::string> cases[] = {
        {std::string("\1\0\0\0\0\0\1\0", 8), "1 0x00010000"},
        {std::string("\1\0\0\0\2\3", 6), "1 2 3"}, // bytes after the last word
        {std::string("a\\b c\0\0", 7), "\"a\\\\b c\""},
        {std::string("\5\0\0\0name\0", 9), "5 \"name\""}, // a text after its length word
        {std::string("abc\0", 4), "0x00636261"},          // too short for a length word
        {std::string(52, '\0'), "0 0 0 0 0 0 0 0 0 0 0 0 ... (52 bytes)"},
        {"", ""},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(format(bytes), text);
    }
}

TEST(HostText, FillsColumnsByWhatIsSeen) {
    EXPECT_EQ(Host::Pad("K\u00FChl", 6) + "|", "K\u00FChl  |");
    EXPECT_EQ(Host::Pad("\u20AC\u20AC", 1), "\u20AC\u20AC");
    const std::string state = TemporaryFile("state");
    const std::string saved = TemporaryFile("saved.json");
    const std::string camera = " Orvik-710C --state " + state + " ";
    ASSERT_EQ(RunHost("set" + camera + "username=\u5BB6").code, 0); // two columns wide
    ASSERT_EQ(RunHost("save" + camera + saved).code, 0);
    ASSERT_EQ(RunHost("set" + camera + "username=x").code, 0);
    EXPECT_EQ(RunHost("diff " + saved + camera).out,
              Host::Pad("username", 26) + "\u5BB6" + std::string(22, ' ') + "x\n");
    std::filesystem::remove(state);
    std::filesystem::remove(saved);
}

/// Numbers between those with names have none.
TEST(HostText, NamesACodeByItsOwnName) {
    constexpr Host::Code codes[] = {{0, "off"}, {2, "two"}, {5, "five"}};
    Host::Function function;
    function.shape = Host::ShapeOf(static_cast<const std::int32_t*>(nullptr));
    function.codes = codes;
    const Host::Instance instance{&function};
    struct Case {
        std::int64_t number;
        const char* text;
        const char* json;
    };
    for (const Case& each :
         {Case{0, "off", "\"off\""}, {1, "1", "1"}, {2, "two", "\"two\""}, {3, "3", "3"}, {6, "6", "6"}}) {
        const Host::Value value{{each.number}, {}};
        EXPECT_EQ(instance.Print(value), each.text);
        EXPECT_EQ(Host::ToJson(instance, value).Print(), each.json);
        EXPECT_EQ(instance.Parse(each.text), value);
    }
}

namespace {

/// Whether the text contains no terminal commands.
testing::AssertionResult IsHarmless(const std::string& text) {
    std::string rest = text;
    std::erase(rest, '\n');
    return Common::InOneLine(rest) == rest ? testing::AssertionSuccess()
                                           : testing::AssertionFailure() << Common::Escaped(text);
}

} // namespace

TEST(HostText, OfACameraReachesNoTerminalAsItIs) {
    const std::string state = TemporaryFile("state");
    const std::string saved = TemporaryFile("saved.json");
    const std::string script = TemporaryFile("script");
    std::ofstream(script) << "get username\nset username=a\nset username='\\x1B[2J'\ninfo\n";
    const std::pair<std::string, std::string> cameras[] = {{"Orvik-710C", "\\x1B]0;owned\\x07"},
                                                           {"Cerix-MV7", "\\x1B]0;owned\\x07"},
                                                           {"Orvik-710C", "\\\\x1B\\t\\xC2\\x9B"},
                                                           {"Cerix-MV7", "\\x9B1m\\n\\xC2\\x9D0;\\x7F\\\\"}};
    for (const auto& camera : cameras) {
        const auto& [model, name] = camera;
        const auto run = [&](const std::string& arguments, const std::string& input = "/dev/null") {
            Outcome outcome = RunHost(arguments + " --state " + state, QDV12_HOST, input);
            EXPECT_TRUE(IsHarmless(outcome.out)) << arguments;
            EXPECT_TRUE(IsHarmless(outcome.err)) << arguments;
            return outcome;
        };
        std::filesystem::remove(state);
        EXPECT_EQ(run("save " + model + " " + saved).code, 0);
        EXPECT_EQ(run("set " + model + " username='" + name + "' --log debug --trace").out, "username=" + name + "\n");
        EXPECT_EQ(run("get " + model + " username --trace --log debug").out, "username=" + name + "\n");
        EXPECT_TRUE(Has(run("info " + model).out, "\nusername              " + name + "\n"));
        EXPECT_TRUE(Has(run("list " + model).out, "\nusername                  " + name + "\n"));
        EXPECT_EQ(run("diff " + saved + " " + model).out, Host::Pad("username", 50) + name + "\n");
        EXPECT_TRUE(Has(run("shell " + model, script).out, "username=" + name + "\nusername=a\nusername=\\x1B[2J\n"));
        EXPECT_TRUE(Has(run("watch " + model + " username=x --seconds 0").out, " \\x1B[2J -> x\n"));
        EXPECT_TRUE(Has(run("watch " + model + " username='" + name + "' --seconds 0").out, "x -> " + name));
        for (const char* command : {"get --json ", "list --json ", "info --json "}) {
            run(command + model + (command[0] == 'g' ? " username" : ""));
        }
        EXPECT_EQ(run("set " + model + " username='" + name + "\\q'").code, 2);
        run("selftest " + model);
        run("save " + model + " " + saved);
        EXPECT_EQ(run("diff " + saved + " " + model).code, 0);
        EXPECT_EQ(run("restore " + saved + " " + model).code, 0);
    }
    for (const std::string& file : {state, saved, script}) {
        std::filesystem::remove(file);
    }
}

} // namespace Scenario
