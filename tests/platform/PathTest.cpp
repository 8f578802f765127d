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
// Restores HOME whatever the test does to it.
class HomeGuard {
  public:
    HomeGuard() : saved_(std::getenv("HOME") != nullptr ? std::getenv("HOME") : "") {}
    ~HomeGuard() { setenv("HOME", saved_.c_str(), 1); }

  private:
    std::string saved_;
};

TEST(Path, DefaultRootIsHomeWithoutATrailingSlash) {
    const HomeGuard guard;
    setenv("HOME", "/home/someone/", 1);
    EXPECT_EQ(DefaultRoot(), "/home/someone");
    setenv("HOME", "/", 1);
    EXPECT_EQ(DefaultRoot(), "") << "the root folder joins as \"/name\"";
}
#endif

}  // namespace
}  // namespace quorin
