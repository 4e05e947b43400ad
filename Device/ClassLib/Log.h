#pragma once

// Logging and throwing. The level is tested before anything is built: with logging off a line costs one test.
// These are macros because the location of a line is its caller's file, signature and line.

#include <SDK4/X4Error.h>

#include <log4cxx/logger.h>

#include <ios>

namespace SDK4 {

/// The library's one logger, "SDK4QDV12Control", fetched when the library is loaded.
extern const log4cxx::LoggerPtr logger;

/// log4cxx lends all lines of a thread, the host's too, one stream. While one of these lives, that stream formats like
/// a new one, whatever the host left on it; afterwards it formats as before.
class PlainStream {
public:
    explicit PlainStream(std::ostream& borrowed);
    ~PlainStream();
    PlainStream(const PlainStream&) = delete;
    PlainStream& operator=(const PlainStream&) = delete;

    [[nodiscard]] std::ostream& Get() const { return stream; }

private:
    std::ostream& stream;
    std::ios before;
};

} // namespace SDK4

/// Logs what is streamed, for example SDK4_LOG(Debug, "ctor " << name). The level is Debug, Info, Warn or Error.
/// Nothing that may log or throw (a port access, for one) may stand inside a message: log4cxx has one stream per
/// thread.
#define SDK4_LOG(level, message)                                                                                       \
    do {                                                                                                               \
        if (::SDK4::logger->is##level##Enabled()) {                                                                    \
            ::log4cxx::helpers::MessageBuffer buffer_;                                                                 \
            const ::SDK4::PlainStream plain_(buffer_);                                                                 \
            ::SDK4::logger->forcedLog(::log4cxx::Level::get##level(), buffer_.str(plain_.Get() << message),            \
                                      LOG4CXX_LOCATION);                                                               \
        }                                                                                                              \
    } while (false)

/// The line that an operation writes when it is entered.
#define SDK4_LOG_CALL() SDK4_LOG(Debug, "Call")

/// Throws X4Error with one of the SDK4_ERR codes, after the one warning line that names the code.
#define SDK4_THROW(code) SDK4_THROW_WITH_TEXT("X4Error(" #code ")", code)

/// The same for the places whose line spells the namespace.
#define SDK4_THROW_QUALIFIED(code) SDK4_THROW_WITH_TEXT("SDK4::X4Error(" #code ")", code)

#define SDK4_THROW_WITH_TEXT(text, code)                                                                               \
    do {                                                                                                               \
        SDK4_LOG(Warn, "SDK4Exception [" text "]");                                                                    \
        throw ::SDK4::X4Error(code);                                                                                   \
    } while (false)
