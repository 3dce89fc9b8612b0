// The effect's tests use their own look tables, which the first component of the process reads.
#include "synthetic_looks.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const auto folder = std::filesystem::path(testing::TempDir()) / ("veridial_looks_" + std::to_string(getpid()));
    ov1::test::write_synthetic_looks(folder);
    setenv("VERIDIAL_RESOURCES", folder.c_str(), 1);
    const int result = RUN_ALL_TESTS();
    std::filesystem::remove_all(folder);
    return result;
}
