#include "Tests/Support/LogCapture.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    Test::LogCapture::Silence();
    return RUN_ALL_TESTS();
}
