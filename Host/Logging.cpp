#include "Logging.h"

#include <log4cxx/consoleappender.h>
#include <log4cxx/level.h>
#include <log4cxx/logger.h>
#include <log4cxx/patternlayout.h>

namespace Host {

void ConfigureLogging(const std::string& level) {
    const auto layout = std::make_shared<log4cxx::PatternLayout>(LOG4CXX_STR("%-5p %F:%L  %m%n"));
    const auto root = log4cxx::Logger::getRootLogger();
    root->addAppender(std::make_shared<log4cxx::ConsoleAppender>(layout, log4cxx::ConsoleAppender::getSystemErr()));
    root->setLevel(log4cxx::Level::toLevel(level, log4cxx::Level::getOff()));
}

} // namespace Host
