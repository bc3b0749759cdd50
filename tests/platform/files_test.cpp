#include "platform/files.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "fakes/expect_error.h"
#include "platform/native_path.h"

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
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
  EXPECT_EQ(files_.List(PathOf("SAVES"), ".NGT").names, std::vector<std::string>{"Fight.ngt"});

  files_.Append(PathOf("log.txt"), "begun");
  EXPECT_EQ(files_.ReadWhole(PathOf("log.txt")), "begun");
  EXPECT_EQ(FilesThere(), 2U);

  EXPECT_RUNTIME_ERROR(files_.Replace(PathOf("nowhere\\fight.ngt"), "x"), "Path not found");
  EXPECT_RUNTIME_ERROR(files_.Append(PathOf("nowhere\\log.txt"), "x"), "Path not found");
}

#ifndef _WIN32
TEST_F(NativeFilesTest, OpensNothingButRegularFiles) {
  ASSERT_EQ(mkfifo((directory_ / "pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", directory_ / "device");
  fs::create_directory(directory_ / "folder");
  for (const char* name : {"pipe", "device", "folder"}) {
    const std::string path = PathOf(name);
    const fs::file_status before = fs::status(directory_ / name);
    EXPECT_RUNTIME_ERROR(files_.ReadWhole(path), "Path/File access error");
    EXPECT_RUNTIME_ERROR(files_.Replace(path, "x"), "Path/File access error");
    EXPECT_RUNTIME_ERROR(files_.Append(path, "x"), "Path/File access error");
    EXPECT_EQ(fs::status(directory_ / name).type(), before.type());
  }
  files_.Replace(PathOf("fight.ngt"), "text");
  fs::create_symlink("fight.ngt", directory_ / "link");
  EXPECT_EQ(files_.ReadWhole(PathOf("link")), "text");
  fs::resize_file(directory_ / "fight.ngt", 300'000'000);
  EXPECT_RUNTIME_ERROR(files_.ReadWhole(PathOf("link")), "Out of memory");
}

TEST_F(NativeFilesTest, ListsEveryFileByANameThatOpensIt) {
  const fs::path folder = directory_ / "\u017Bar";
  fs::create_directories(folder / "\u0110ir.ng3");
  const auto put = [&](const std::string& name) { std::ofstream(folder / name) << name; };
  const std::set<std::string> listed = {"plain.ng3", "\u0141ukasz.ng3", "\u00C9mile.ng3",
                                        "a|b.ng3",   "c\\d.ng3",        "line\nbreak.ng3",
                                        "x:y.ng3",   "\xFF.ng3"};
  for (const std::string& name : listed) put(name);
  // Shown alike, one with a folder.
  for (const char* name : {"\u0104b.ng3", "\u0118B.NG3", "\u013Dir.ng3"}) put(name);

  const FileList list = files_.List(PathOf("?ar"), ".ng3");
  EXPECT_EQ(list.unlisted, 3);
  std::set<std::string> opened;
  for (const std::string& name : list.names)
    opened.insert(files_.ReadWhole(PathOf("?ar\\" + name)));
  EXPECT_EQ(opened, listed);
  EXPECT_EQ(list.names.front() + " " + list.names.back(), "?.ng3 \xC9mile.ng3");

  EXPECT_RUNTIME_ERROR(files_.ReadWhole(PathOf("?ar\\?b.ng3")), "File not found");
  files_.Replace(PathOf("?ar\\?ukasz.ng3"), "kept");
  std::ifstream replaced(folder / "\u0141ukasz.ng3");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(replaced), {}), "kept");
  EXPECT_RUNTIME_ERROR(files_.Replace(PathOf("?new.ngt"), "x"),
                       "Bad file name or number\r\n?new.ngt");
  EXPECT_RUNTIME_ERROR(files_.Append(PathOf("?ar\\?.ng3"), "x"),
                       "Bad file name or number\r\n" + PathText(folder / "\xFF.ng3"));
}

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
