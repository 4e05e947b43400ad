#include "Tests/Support/LogCapture.h"

#include <log4cxx/appenderskeleton.h>
#include <log4cxx/logger.h>
#include <log4cxx/spi/loggingevent.h>

#include <algorithm>
#include <cctype>
#include <utility>

namespace Test {

namespace {

log4cxx::LoggerPtr Logger() { return log4cxx::Logger::getLogger("SDK4QDV12Control"); }

} // namespace

class LogCapture::Appender final : public log4cxx::AppenderSkeleton {
public:
    void close() override {}
    bool requiresLayout() const override { return false; }

    std::vector<Line> lines;

protected:
    void append(const log4cxx::spi::LoggingEventPtr& event, log4cxx::helpers::Pool& /*pool*/) override {
        std::string level = event->getLevel()->toString();
        std::transform(level.begin(), level.end(), level.begin(), [](unsigned char c) { return std::tolower(c); });
        const auto& location = event->getLocationInformation();
        const std::string className = location.getClassName();
        lines.push_back({level + " " + event->getMessage(), location.getShortFileName(),
                         className.substr(className.rfind(':') + 1), location.getMethodName(),
                         location.getLineNumber()});
    }
};

LogCapture::LogCapture(const log4cxx::LevelPtr& level) : appender(std::make_shared<Appender>()) {
    Logger()->setAdditivity(false);
    Logger()->addAppender(appender);
    Logger()->setLevel(level);
}

LogCapture::~LogCapture() {
    Silence();
    Logger()->removeAppender(appender);
}

const std::vector<LogCapture::Line>& LogCapture::Lines() const { return appender->lines; }

std::vector<std::string> LogCapture::TakeTexts() {
    std::vector<std::string> texts;
    for (const Line& line : std::exchange(appender->lines, {})) {
        texts.push_back(line.text);
    }
    return texts;
}

void LogCapture::Silence() { Logger()->setLevel(log4cxx::Level::getOff()); }

} // namespace Test
