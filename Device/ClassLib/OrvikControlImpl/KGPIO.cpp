#include "OrvikControlImpl/KGPIO.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

namespace {

constexpr unsigned int lineCount = 6;

/// The feature of one line: lines count from 0 at the interface and from 1 in names.
std::string OfLine(std::string_view function, unsigned int line) {
    if (line >= lineCount) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    return std::string(function) + static_cast<char>('1' + line);
}

} // namespace

KGPIO::KGPIO(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KGPIO");
    for (unsigned int line = 0; line < lineCount; ++line) {
        const Instance instance{static_cast<int>(line)};
        // clang-format off
        Register<int>         (OfLine(IoMode,     line), 0x66020000, instance, Normal, {LoadSettings});
        Register<int>         (OfLine(IoPort,     line), 0x66030000, instance, Normal, {LoadSettings});
        Register<int>         (OfLine(IoPolarity, line), 0x660F0000, instance, Normal, {LoadSettings});
        Register<unsigned int>(OfLine(IoDelay,    line), 0x66110000, instance, Normal, {LoadSettings});

        Enum               (OfLine(IoMode,     line), {0, 1});
        Enum               (OfLine(IoPort,     line), {0, 1, 2, 3, 4});
        Enum               (OfLine(IoPolarity, line), {0, 1});
        Plain<unsigned int>(OfLine(IoDelay,    line));
        // clang-format on
    }
}

// clang-format off
SDK4_ENUM_IOMODE KGPIO::GetIoMode(unsigned int line)              { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_IOMODE>(OfLine(IoMode, line)); }
void KGPIO::SetIoMode(unsigned int line, int mode)                { SDK4_LOG_CALL(); Set<int>(OfLine(IoMode, line), mode); }
SDK4_ENUM_IOPORT KGPIO::GetIoPort(unsigned int line)              { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_IOPORT>(OfLine(IoPort, line)); }
void KGPIO::SetIoPort(unsigned int line, int port)                { SDK4_LOG_CALL(); Set<int>(OfLine(IoPort, line), port); }
SDK4_ENUM_IOPOLARITY KGPIO::GetIoPolarity(unsigned int line)      { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_IOPOLARITY>(OfLine(IoPolarity, line)); }
void KGPIO::SetIoPolarity(unsigned int line, int polarity)        { SDK4_LOG_CALL(); Set<int>(OfLine(IoPolarity, line), polarity); }
unsigned int KGPIO::GetIoDelay(unsigned int line)                 { SDK4_LOG_CALL(); return Get<unsigned int>(OfLine(IoDelay, line)); }
void KGPIO::SetIoDelay(unsigned int line, unsigned int delay)     { SDK4_LOG_CALL(); Set<unsigned int>(OfLine(IoDelay, line), delay); }
// clang-format on

} // namespace SDK4::Control
