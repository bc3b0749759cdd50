#include "platform/files.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

#include "fakes/expect_error.h"

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

namespace ng {
namespace {

namespace fs = std::filesystem;

/// The files of this machine, in a directory of the test's own.
class NativeFilesTest : public testing::Test {
 protected:
  void SetUp() override { fs::create_directories(directory_); }
  void TearDown() override { fs::remove_all(directory_); }

  std::string PathOf(const std::string& name) const { return directory_.string() + "\\" + name; }
  std::size_t FilesThere() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(directory_), fs::directory_iterator()));
  }

  NativeFiles files_;
  /// Tests run side by side, so each has its own.
  const fs::path directory_ =
      fs::path(testing::TempDir()) /
      (std::string("ng_") + testing::UnitTest::GetInstance()->current_test_info()->name());
};

TEST_F(NativeFilesTest, ReplacesAndAppendsThroughTheProgramsPaths) {
  fs::create_directory(directory_ / "Saves");
  files_.Replace(PathOf("Saves\\Fight.ngt"), "first\r\n");
  files_.Replace(PathOf("saves\\FIGHT.NGT"), "second\r\n");
  files_.Append(PathOf("Saves\\fight.ngt"), "third");
  EXPECT_EQ(files_.ReadWhole(PathOf("Saves\\Fight.ngt")), "second\r\nthird");
  EXPECT_EQ(files_.List(PathOf("SAVES"), ".NGT"), std::vector<std::string>{"Fight.ngt"});

  files_.Append(PathOf("log.txt"), "begun");
  EXPECT_EQ(files_.ReadWhole(PathOf("log.txt")), "begun");
  EXPECT_EQ(FilesThere(), 2U);

  EXPECT_RUNTIME_ERROR(files_.Replace(PathOf("nowhere\\fight.ngt"), "x"), "Path not found");
  EXPECT_RUNTIME_ERROR(files_.Append(PathOf("nowhere\\log.txt"), "x"), "Path not found");
}

#ifndef _WIN32
/// While it lives no file of this process grows past `bytes`; a write that would go on there fails.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : signalBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signalBefore_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  void (*signalBefore_)(int);
  rlimit before_{};
};

TEST_F(NativeFilesTest, AWriteThatBreaksOffLeavesTheOldFileWhole) {
  const std::string old = "the fight as it was";
  // One that fits the toolkit's buffer and one that does not.
  for (const std::size_t size : {5000U, 1000000U}) {
    files_.Replace(PathOf("fight.ngt"), old);
    std::string error;
    {
      const FileSizeLimit limit(4096);
      error = ErrorTextOf([&] { files_.Replace(PathOf("fight.ngt"), std::string(size, 'n')); });
    }
    EXPECT_EQ(error, "Disk full") << size;
    EXPECT_TRUE(files_.ReadWhole(PathOf("fight.ngt")) == old) << size;
    EXPECT_EQ(FilesThere(), 1U);
  }
}
#endif

}  // namespace
}  // namespace ng
