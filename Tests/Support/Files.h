#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>

namespace Test {

inline std::string Content(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

/// A name for a file of the running test and of no other, in this or another process.
inline std::string TemporaryFile(const std::string& name) {
    return testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + "." +
           std::to_string(getpid()) + "." + name;
}

} // namespace Test
