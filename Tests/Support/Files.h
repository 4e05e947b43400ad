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

/// A text with the first occurrence of a part replaced, which it must have.
inline std::string Replaced(std::string text, const std::string& part, const std::string& by) {
    const std::size_t at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part << " is not in\n" << text;
    return at == std::string::npos ? text : text.replace(at, part.size(), by);
}

/// A name for a file of the running test and of no other, in this or another process.
inline std::string TemporaryFile(const std::string& name) {
    return testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + "." +
           std::to_string(getpid()) + "." + name;
}

} // namespace Test
