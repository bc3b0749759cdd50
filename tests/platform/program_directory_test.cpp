#include "platform/program_directory.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace ng {
namespace {

namespace fs = std::filesystem;

TEST(ProgramDirectory, IsTheUsersOnlyForAnInstalledProgram) {
  const fs::path root = fs::path(testing::TempDir()) / "ng_program_directory";
  fs::remove_all(root);
  const fs::path userData = root / "home/data";
  setenv("XDG_DATA_HOME", userData.c_str(), 1);
  fs::create_directories(root / "usr/bin");

  EXPECT_EQ(ProgramDirectory(root / "usr/bin"), (root / "usr/bin").string());
  EXPECT_FALSE(fs::exists(userData));

  fs::create_directories(root / "usr/share/ngtracker");
  EXPECT_EQ(ProgramDirectory(root / "usr/bin"), (userData / "ngtracker").string());
  EXPECT_TRUE(fs::is_directory(userData / "ngtracker"));
  EXPECT_EQ(ProgramDirectory(root / "usr/bin"), (userData / "ngtracker").string());
  fs::remove_all(root);
}

}  // namespace
}  // namespace ng
