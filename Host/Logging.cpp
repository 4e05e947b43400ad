#include "Host/Logging.h"

#include "Common/Text.h"
#include "Host/Errors.h"

#include <log4cxx/consoleappender.h>
#include <log4cxx/helpers/loglog.h>
#include <log4cxx/level.h>
#include <log4cxx/logger.h>
#include <log4cxx/logmanager.h>
#include <log4cxx/patternlayout.h>
#include <log4cxx/propertyconfigurator.h>

#include <algorithm>
#include <filesystem>

namespace Host {

namespace {

/// Escapes log lines, which may contain texts from the user.
class OneLineLayout final : public log4cxx::PatternLayout {
public:
    using PatternLayout::PatternLayout;

    void format(log4cxx::LogString& output, const log4cxx::spi::LoggingEventPtr& event,
                log4cxx::helpers::Pool& pool) const override {
        log4cxx::LogString line;
        PatternLayout::format(line, event, pool);
        output += Common::InOneLine(line) + '\n';
    }
};

/// Whether any logger has an appender.
bool HasAppender() {
    const auto loggers = log4cxx::LogManager::getCurrentLoggers();
    return !log4cxx::Logger::getRootLogger()->getAllAppenders().empty() ||
           std::any_of(loggers.begin(), loggers.end(),
                       [](const log4cxx::LoggerPtr& logger) { return !logger->getAllAppenders().empty(); });
}

} // namespace

void ConfigureLogging(const std::string& level, const std::string& configuration) {
    const auto root = log4cxx::Logger::getRootLogger();
    if (configuration.empty()) {
        const auto layout = std::make_shared<OneLineLayout>(LOG4CXX_STR("%-5p %F:%L  %m"));
        root->addAppender(std::make_shared<log4cxx::ConsoleAppender>(layout, log4cxx::ConsoleAppender::getSystemErr()));
    } else {
        if (!std::filesystem::is_regular_file(configuration)) {
            throw UsageError("no such log4cxx configuration: " + configuration);
        }
        log4cxx::helpers::LogLog::setQuietMode(true); // else it prints several lines on standard error
        log4cxx::PropertyConfigurator::configure(configuration);
    }
    if (configuration.empty() || !level.empty()) {
        root->setLevel(log4cxx::Level::toLevel(level, log4cxx::Level::getOff()));
    }
    if (!HasAppender() && root->getEffectiveLevel()->toInt() != log4cxx::Level::OFF_INT) {
        throw UsageError("log4cxx configuration " + configuration + ": no usable appender");
    }
}

QuietLog::QuietLog() {
    const auto repository = log4cxx::LogManager::getLoggerRepository();
    threshold = repository->getThreshold()->toInt();
    repository->setThreshold(log4cxx::Level::getOff());
}

QuietLog::~QuietLog() { log4cxx::LogManager::getLoggerRepository()->setThreshold(log4cxx::Level::toLevel(threshold)); }

} // namespace Host
