#include "platform/Path.h"

#include "platform/TextFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace quorin {
namespace {

TEST(Path, ExecutableFolderHoldsTheRunningProgram) {
#ifdef _WIN32
    const char* program = "platform_tests.exe";
#else
    const char* program = "platform_tests";
#endif
    const std::string folder = ExecutableFolder();
    EXPECT_NE(folder.back(), kPathSeparator);
    EXPECT_TRUE(FileExists(JoinPath(folder, program))) << folder;
}

#ifdef _WIN32
TEST(Path, DefaultRootIsTheSystemDrive) {
    EXPECT_EQ(DefaultRoot(), "C:");
}
#else
TEST(Path, DefaultRootIsHomeWithoutATrailingSlash) {
    const std::string home = std::getenv("HOME") != nullptr ? std::getenv("HOME") : "";
    setenv("HOME", "/home/someone/", 1);
    EXPECT_EQ(DefaultRoot(), "/home/someone");
    setenv("HOME", "/", 1);
    EXPECT_EQ(DefaultRoot(), "") << "the root folder joins as \"/name\"";
    setenv("HOME", home.c_str(), 1);
}
#endif

}  // namespace
}  // namespace quorin
