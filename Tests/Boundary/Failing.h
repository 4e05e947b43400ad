#pragma once

// Failures of the port, one access at a time.

#include "Tests/Boundary/Rows.h"
#include "Tests/Support/Allocations.h"
#include "Tests/Support/Observed.h"

#include <optional>
#include <stdexcept>

namespace Test {

/// An exception of the host, thrown by its port.
struct CableOut : std::runtime_error {
    explicit CableOut(unsigned int nth) : std::runtime_error("cable out"), access(nth) {}
    unsigned int access;
};

/// The exception that reaches the host.
struct Thrown {
    const char* type = "nothing";
    int value = 0;
    bool operator==(const Thrown& other) const { return std::string(type) == other.type && value == other.value; }
    friend std::ostream& operator<<(std::ostream& stream, const Thrown& thrown) {
        return stream << thrown.type << " " << thrown.value;
    }
};

template <typename Function> Thrown ThrownBy(const Function& function) {
    try {
        function();
    } catch (const SDK4::X4Error& error) {
        return {"X4Error", error.code};
    } catch (const CableOut& failure) {
        return {"CableOut", static_cast<int>(failure.access)};
    }
    return {};
}

/// One failure: the access, the exception, and whether the library logs.
struct Failure {
    unsigned int nth;
    bool foreign, logging;

    [[nodiscard]] Thrown Expected() const {
        const int value = static_cast<int>(nth);
        return foreign ? Thrown{"CableOut", value} : Thrown{"X4Error", -40000 - value};
    }

    void operator()() const {
        if (foreign) {
            throw CableOut(nth);
        }
        throw SDK4::X4Error(Expected().value);
    }

    friend std::ostream& operator<<(std::ostream& stream, const Failure& failure) {
        return stream << "access " << failure.nth << " fails by " << failure.Expected()
                      << (failure.logging ? ", logging" : ", log off");
    }
};

inline std::size_t CountOf(const std::string& accesses) { return Split(accesses, "; ").size(); }

/// The first accesses, up to and including number @p nth.
inline std::string UpTo(unsigned int nth, const std::string& accesses) {
    std::size_t end = 0;
    for (; nth > 0; --nth) {
        end = accesses.find(';', end + 1);
    }
    return accesses.substr(0, end);
}

/// Four failures of each access. In sanitized builds, where all take a minute, one of the four in turn.
inline std::vector<Failure> FailuresOf(std::size_t accesses) {
    std::vector<Failure> failures;
    for (unsigned int nth = 1; nth <= accesses; ++nth) {
        const Failure four[] = {{nth, false, false}, {nth, true, true}, {nth, false, true}, {nth, true, false}};
#ifdef QDV12_SANITIZED
        static std::size_t turn = 0;
        failures.push_back(four[turn++ % 4]);
#else
        failures.insert(failures.end(), std::begin(four), std::end(four));
#endif
    }
    return failures;
}

class Failing : public CameraTest {
protected:
    /// The first log line allocates log4cxx's buffers.
    static void SetUpTestSuite() {
        const Plugin plugin;
        const LogCapture log;
        plugin.createObject("", nullptr, 0);
    }

    /// The blocks on the heap, without those of the recording port.
    [[nodiscard]] long LiveBeyondThePort() const {
        const long live = LiveAllocations();
        const RecordingPort copy(port);
        return live - (LiveAllocations() - live);
    }

    /// Calls @p call, whose access @p failure fails. @returns the exception
    /// @param accesses the expected accesses
    template <typename Function>
    Thrown Fail(const Failure& failure, const std::string& accesses, const Function& call) {
        std::optional<LogCapture> log;
        if (failure.logging) {
            log.emplace();
        }
        port.TakeLog();
        port.FailAt(failure.nth, failure);
        const Thrown thrown = ThrownBy(call);
        EXPECT_EQ(port.TakeLog(), accesses);
        if (log) {
            for (const LogCapture::Line& line : log->Lines()) {
                EXPECT_EQ(line.text.find("SDK4Exception"), std::string::npos) << line.text;
            }
        }
        return thrown;
    }
};

} // namespace Test
