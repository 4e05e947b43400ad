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

/// Replaces the first occurrence of a part, which must exist.
inline std::string Replaced(std::string text, const std::string& part, const std::string& by) {
    const std::size_t at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part << " is not in\n" << text;
    return at == std::string::npos ? text : text.replace(at, part.size(), by);
}

/// A file name that no other test uses, in this or another process.
inline std::string TemporaryFile(const std::string& name) {
    return testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + "." +
           std::to_string(getpid()) + "." + name;
}

} // namespace Test
