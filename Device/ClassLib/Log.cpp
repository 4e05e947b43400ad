#include "Log.h"

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

LogLine::LogLine() : stream(buffer), before(nullptr) {
    before.copyfmt(stream);
    stream.flags(std::ios::dec | std::ios::skipws);
    stream.width(0);
    stream.fill(' ');
    stream.imbue(std::locale::classic()); // others group digits
}

LogLine::~LogLine() { stream.copyfmt(before); }

void LogLine::Write(LogLevel level, const Location& location) {
    using log4cxx::spi::LocationInfo;
    logger->forcedLog(
        LevelOf(level), buffer.str(stream),
        LocationInfo(location.file, LocationInfo::calcShortFileName(location.file), location.function, location.line));
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
