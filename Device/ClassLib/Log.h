#pragma once

// Logging and throwing. The level is tested before anything is built: with logging off a line costs one test.
// These are macros because the location of a line is its caller's file, signature and line.

#include <SDK4/X4Error.h>

#include <log4cxx/logger.h>

#include <cstdint>
#include <sstream>

namespace SDK4 {

/// The library's one logger, "SDK4QDV12Control", fetched when the library is loaded.
extern const log4cxx::LoggerPtr logger;

enum class LogLevel { Debug, Info, Warn, Error };

/// The place in the source that a line comes from.
struct Location {
    const char* file;
    const char* function;
    int line;
};

/// A line while it is put together, on a stream of its own: the one that log4cxx lends to all lines of a thread carries
/// what the host left there, flags, fill, locale or half a message.
class LogLine {
public:
    LogLine();

    [[nodiscard]] std::ostream& Stream() { return stream; }
    void Write(LogLevel level, const Location& location);

private:
    std::ostringstream stream;
};

/// Writes the line that an operation writes when it is entered, "Call", at debug level.
void LogCall(const Location& location);

/// Writes the one warning line and throws.
/// @param text the expression that the line names
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

/// The line that an operation writes when it is entered.
#define SDK4_LOG_CALL() ::SDK4::LogCall(SDK4_HERE)

/// Throws X4Error with one of the SDK4_ERR codes, after the one warning line that names the code.
#define SDK4_THROW(code) ::SDK4::Throw(code, "X4Error(" #code ")", SDK4_HERE)

/// The same for the places whose line spells the namespace.
#define SDK4_THROW_QUALIFIED(code) ::SDK4::Throw(code, "SDK4::X4Error(" #code ")", SDK4_HERE)
