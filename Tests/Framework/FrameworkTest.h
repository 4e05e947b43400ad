#pragma once

#include "Feature.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/Observed.h"
#include "Tests/Support/RecordingPort.h"

#include <gtest/gtest.h>

namespace Test {

/// Records the names of registers or features in events, and counts the events.
template <typename Sender> struct Listener final : Utility::IEventHandler<unsigned int> {
    void notify(void* sender, unsigned int argument) override {
        EXPECT_EQ(argument, 0u);
        heard += (heard.empty() ? "" : " ") + static_cast<Sender*>(sender)->GetName();
    }
    std::string Take() { return std::exchange(heard, {}); }
    std::string heard;
};

/// A port and both lists. Objects created with new belong to the list.
class FrameworkTest : public testing::Test {
protected:
    template <typename T> using Plain = SDK4::CRegister<T, void>;
    template <typename T> using Indexed = SDK4::CRegister<T, int>;

    template <typename T> Plain<T>& AddPlain(const char* name, unsigned long address, int mode) {
        return *new Plain<T>(name, &registers, &port, address, static_cast<SDK4::EnumCacheMode>(mode));
    }
    template <typename T> Indexed<T>& AddIndexed(const char* name, int index, unsigned long address, int mode) {
        return *new Indexed<T>(name, &registers, index, &port, address, static_cast<SDK4::EnumCacheMode>(mode));
    }
    Plain<std::string>& AddText(const char* name, unsigned int length, int mode) {
        return *new Plain<std::string>(name, &registers, &port, 0x100, static_cast<SDK4::EnumCacheMode>(mode), length);
    }

    /// The accesses of a call.
    template <typename Call> std::string Cost(const Call& call) {
        port.TakeLog();
        call();
        return port.TakeLog();
    }

    static void Unplug() { throw std::string("unplugged"); }

    RecordingPort port;
    SDK4::CRegisterList registers;
    SDK4::CFeatureList features;
};

} // namespace Test
