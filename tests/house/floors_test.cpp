#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <string>
#include <string_view>

#include "base/text.h"

namespace ng {
namespace {

namespace fs = std::filesystem;

/// The floors from the ground up: each is a folder with all that lies in it, but for what is a
/// floor of its own.
constexpr std::array<std::string_view, 13> kFloors = {
    "base",   "app/settings", "tracker/fight", "notes",    "roller", "import", "tracker",
    "combat", "app",          "journal",       "platform", "ui",     "tour"};

/// The floor whose folder holds the file: of two the inner one.
std::string_view FloorName(const fs::path& file) {
  std::string_view name;
  for (const std::string_view floor : kFloors) {
    const bool inside = file.generic_string().starts_with(std::string(floor) + "/");
    if (inside && floor.size() > name.size()) name = floor;
  }
  return name;
}

std::ptrdiff_t FloorOf(const fs::path& file) {
  return std::find(kFloors.begin(), kFloors.end(), FloorName(file)) - kFloors.begin();
}

/// Whether a file may include another: downwards, but for the neighbours that do not see one
/// another and for platform/, which sees base/ only.
bool MayInclude(const fs::path& from, const fs::path& to) {
  const std::string_view lower = FloorName(to);
  const std::string_view upper = FloorName(from);
  if (lower == upper) return true;
  if (upper == "platform") return lower == "base";
  const std::set<std::string_view> strangers = {"notes", "roller", "import"};
  if (strangers.count(lower) > 0 && strangers.count(upper) > 0) return false;
  return !lower.empty() && FloorOf(to) < FloorOf(from);
}

TEST(Floors, NoIncludeLooksUp) {
  const fs::path root = NG_SOURCE_DIR;
  const std::regex include("^\\s*#include \"([^\"]+)\"");
  const std::regex toolkit("^\\s*#include <Q");
  int files = 0;
  for (const char* folder : {"base", "app", "tracker", "notes", "roller", "import", "combat",
                             "journal", "platform", "ui", "tour"}) {
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
