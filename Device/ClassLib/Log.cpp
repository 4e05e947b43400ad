#include "Log.h"

#include <locale>

namespace SDK4 {

namespace {

log4cxx::LevelPtr LevelOf(LogLevel level) {
    switch (level) {
    case LogLevel::Debug:
        return log4cxx::Level::getDebug();
    case LogLevel::Info:
        return log4cxx::Level::getInfo();
    case LogLevel::Warn:
        return log4cxx::Level::getWarn();
    case LogLevel::Error:
        break;
    }
    return log4cxx::Level::getError();
}

} // namespace

LogLine::LogLine() {
    stream.imbue(std::locale::classic()); // the locale of the host may group digits
}

void LogLine::Write(LogLevel level, const Location& location) {
    using log4cxx::spi::LocationInfo;
    log4cxx::helpers::MessageBuffer message;
    logger->forcedLog(
        LevelOf(level), message.str(message << stream.str()), // does not use the shared stream
        LocationInfo(location.file, LocationInfo::calcShortFileName(location.file), location.function, location.line));
}

void LogCall(const Location& location) {
    if (logger->isDebugEnabled()) {
        LogLine line;
        line.Stream() << "Call";
        line.Write(LogLevel::Debug, location);
    }
}

void Throw(std::int32_t code, const char* text, const Location& location) {
    if (logger->isWarnEnabled()) {
        LogLine line;
        line.Stream() << "SDK4Exception [" << text << "]";
        line.Write(LogLevel::Warn, location);
    }
    throw X4Error(code);
}

} // namespace SDK4
