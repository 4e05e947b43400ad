#pragma once

// Logging and throwing. The level is tested before a line is formatted, so a line costs one test with logging off.
// These are macros because a line has the file, signature and line number of its caller.

#include <SDK4/X4Error.h>

#include <log4cxx/logger.h>

#include <cstdint>
#include <sstream>

namespace SDK4 {

/// The logger of the library, "SDK4QDV12Control", initialised when the library is loaded.
extern const log4cxx::LoggerPtr logger;

enum class LogLevel { Debug, Info, Warn, Error };

/// Source location of a log line.
struct Location {
    const char* file;
    const char* function;
    int line;
};

/// A log line under construction. It has its own stream, because the host may have left flags, fill, locale or half a
/// message in the stream that log4cxx shares between all lines of a thread.
class LogLine {
public:
    LogLine();

    [[nodiscard]] std::ostream& Stream() { return stream; }
    void Write(LogLevel level, const Location& location);

private:
    std::ostringstream stream;
};

/// Logs the entry of an operation, "Call", at debug level.
void LogCall(const Location& location);

/// Logs one warning and throws.
/// @param text the expression in the warning
[[noreturn]] void Throw(std::int32_t code, const char* text, const Location& location);

} // namespace SDK4

#define SDK4_HERE (::SDK4::Location{__FILE__, __PRETTY_FUNCTION__, __LINE__})

/// Logs what is streamed, for example SDK4_LOG(Debug, "ctor " << name). The level is Debug, Info, Warn or Error.
#define SDK4_LOG(level, message)                                                                                       \
    do {                                                                                                               \
        if (::SDK4::logger->is##level##Enabled()) {                                                                    \
            ::SDK4::LogLine line_;                                                                                     \
            line_.Stream() << message;                                                                                 \
            line_.Write(::SDK4::LogLevel::level, SDK4_HERE);                                                           \
        }                                                                                                              \
    } while (false)

/// Logs the entry of an operation.
#define SDK4_LOG_CALL() ::SDK4::LogCall(SDK4_HERE)

/// Logs one warning with the code, then throws X4Error with it.
#define SDK4_THROW(code) ::SDK4::Throw(code, "X4Error(" #code ")", SDK4_HERE)

/// The same with the namespace in the warning.
#define SDK4_THROW_QUALIFIED(code) ::SDK4::Throw(code, "SDK4::X4Error(" #code ")", SDK4_HERE)
