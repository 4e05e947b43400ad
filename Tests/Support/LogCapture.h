#pragma once

#include <log4cxx/level.h>

#include <memory>
#include <string>
#include <vector>

namespace Test {

/// Captures the library's log lines during its lifetime. Otherwise the library's logger is off (see Main.cpp).
class LogCapture {
public:
    explicit LogCapture(const log4cxx::LevelPtr& level = log4cxx::Level::getDebug());
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    struct Line {
        std::string text;      ///< the level in lower case, a blank, the message: "info Init QDV12Control"
        std::string file;      ///< without its folder
        std::string className; ///< without its namespaces
        std::string function;  ///< without class and parameters
        int line;
    };

    [[nodiscard]] const std::vector<Line>& Lines() const;

    /// The texts of the lines since the last call.
    std::vector<std::string> TakeTexts();

    /// Turns the library's logger off, as at the start of every test.
    static void Silence();

private:
    class Appender;
    std::shared_ptr<Appender> appender;
};

} // namespace Test
