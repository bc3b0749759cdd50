#include "platform/journals.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "fakes/expect_error.h"
#include "platform/clock.h"

namespace ng {
namespace {

namespace fs = std::filesystem;

class NativeJournalsTest : public testing::Test {
 protected:
  void TearDown() override { fs::remove_all(directory_.parent_path()); }

  const fs::path directory_ =
      fs::path(testing::TempDir()) /
      (std::string("ng_") + testing::UnitTest::GetInstance()->current_test_info()->name()) /
      "journals";
  NativeJournals journals_{directory_};
};

TEST_F(NativeJournalsTest, GrowAreHeldAndGoOn) {
  EXPECT_TRUE(journals_.List().empty());
  {
    const auto file = journals_.Open("b.open", 0);
    file->Append("first ");
    file->Flush();
    EXPECT_TRUE(journals_.IsHeld("b.open"));
    EXPECT_RUNTIME_ERROR(journals_.Open("b.open", 0), "Permission denied");
    journals_.Rename("b.open", "b.ngj");
    file->Append("second");
    EXPECT_TRUE(journals_.IsHeld("b.ngj"));
  }
  EXPECT_FALSE(journals_.IsHeld("b.ngj"));
  EXPECT_EQ(journals_.Read("b.ngj"), "first second");
  journals_.Open("b.ngj", 6)->Append("third");
  EXPECT_EQ(journals_.Read("b.ngj"), "first third");
  journals_.Open("a.open", 0);
  EXPECT_EQ(journals_.List(), (std::vector<std::string>{"a.open", "b.ngj"}));
  journals_.Remove("a.open");
  EXPECT_EQ(journals_.List().size(), 1U);
  EXPECT_RUNTIME_ERROR(journals_.Read("a.open"), "File not found");
  fs::create_directory(directory_ / "dir.open");
  EXPECT_RUNTIME_ERROR(journals_.Read("dir.open"), "File not found");
  EXPECT_EQ(NativeClock().Now().size(), std::string("2026-11-21 21:43:05").size());
}

TEST_F(NativeJournalsTest, AKillLosesNothingThatWasAppended) {
  const pid_t child = fork();
  if (child == 0) {
    const auto file = journals_.Open("a.open", 0);
    for (int i = 0; i < 100; ++i) file->Append("0123456789");
    kill(getpid(), SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_FALSE(journals_.IsHeld("a.open"));
  EXPECT_EQ(journals_.Read("a.open").size(), 1000U);
}

TEST_F(NativeJournalsTest, AFullDeviceLeavesWholeRecords) {
  const auto file = journals_.Open("a.open", 0);
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit small{15, limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  file->Append("0123456789");
  EXPECT_RUNTIME_ERROR(file->Append("0123456789"), "Disk full");
  setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_EQ(journals_.Read("a.open"), "0123456789");
}

}  // namespace
}  // namespace ng
