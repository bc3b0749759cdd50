#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <string>

#include "base/text.h"

namespace ng {
namespace {

namespace fs = std::filesystem;

/// The floors from the ground up. app/ and tracker/ stand on two of them each: the files named here
/// are those of the lower one.
const std::set<std::string> kLowerApp = {"profile_file", "encoding", "settings"};
const std::set<std::string> kLowerTracker = {"player_record", "fight"};
constexpr std::array<const char*, 12> kFloors = {"base",   "app 1",    "tracker 1", "notes",
                                                 "roller", "import",   "tracker 2", "combat",
                                                 "app 2",  "platform", "ui",        "tour"};

std::string FloorName(const fs::path& file) {
  const std::string folder = file.begin()->string();
  const std::string stem = file.stem().string();
  if (folder == "app") return kLowerApp.count(stem) > 0 ? "app 1" : "app 2";
  if (folder == "tracker") return kLowerTracker.count(stem) > 0 ? "tracker 1" : "tracker 2";
  return folder;
}

int FloorOf(const fs::path& file) {
  const std::string name = FloorName(file);
  for (std::size_t i = 0; i < kFloors.size(); ++i) {
    if (name == kFloors[i]) return static_cast<int>(i);
  }
  return -1;
}

/// Whether a file may include another: downwards, but for the neighbours that do not see one
/// another and for platform/, which sees base/ only.
bool MayInclude(const fs::path& from, const fs::path& to) {
  const std::string lower = FloorName(to);
  const std::string upper = FloorName(from);
  if (lower == upper) return true;
  if (upper == "platform") return lower == "base";
  const std::set<std::string> strangers = {"notes", "roller", "import"};
  if (strangers.count(lower) > 0 && strangers.count(upper) > 0) return false;
  return FloorOf(to) >= 0 && FloorOf(to) < FloorOf(from);
}

TEST(Floors, NoIncludeLooksUp) {
  const fs::path root = NG_SOURCE_DIR;
  const std::regex include("^\\s*#include \"([^\"]+)\"");
  const std::regex toolkit("^\\s*#include <Q");
  int files = 0;
  for (const char* folder : {"base", "app", "tracker", "notes", "roller", "import", "combat",
                             "platform", "ui", "tour"}) {
    for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
      const fs::path file = fs::relative(entry.path(), root);
      if (file.extension() != ".h" && file.extension() != ".cpp") continue;
      ++files;
      std::ifstream stream(entry.path());
      std::string line;
      for (int number = 1; std::getline(stream, line); ++number) {
        std::smatch match;
        if (std::regex_search(line, match, include) && !Contains(match[1].str(), ".moc")) {
          EXPECT_TRUE(MayInclude(file, match[1].str())) << file << ":" << number << ": " << line;
        }
        const bool mayUseToolkit = Contains("platform ui tour", file.begin()->string());
        EXPECT_FALSE(!mayUseToolkit && std::regex_search(line, toolkit)) << file << ":" << number;
      }
    }
  }
  EXPECT_GT(files, 60);
}

}  // namespace
}  // namespace ng
