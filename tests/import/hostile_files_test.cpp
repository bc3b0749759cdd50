#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include "app/settings/settings.h"
#include "fakes/fakes.h"
#include "fakes/heap_peak.h"
#include "import/character_import.h"
#include "notes/info_index.h"
#include "roller/visability_table.h"

namespace ng {
namespace {

/// `piece` over and over, to about 1 MB.
std::string MegabyteOf(const std::string& piece) {
  std::string text;
  while (text.size() < 1000000) text += piece;
  return text;
}

TEST(HostileFiles, TakeASmallMultipleOfTheirSizeInMemory) {
  FakeFiles files;
  const auto character = [&] {
    const Settings settings;
    const auto gear = std::make_unique<GearTable>();
    const auto fight = std::make_unique<Fight>();
    const auto characters = std::make_unique<CharacterTable>();
    LoadCharacterFile({files, settings, *gear, *fight, *characters}, "C:\\x");
  };
  const auto skills = [&] {
    EXPECT_EQ(ConvertSkill(LoadSkillTable(files, "C:").table, "Pistols"), "SMG");
  };
  const auto gear = [&] { LoadGearTable(files, "C:"); };
  const auto info = [&] {
    InfoIndex index;
    index.Load(files, {"C:\\x"});
    EXPECT_GT(index.EntryText(files, 0).size(), 1000000U);
  };
  std::string powers = "[Magic]\n";
  for (int i = 0; i < 250; ++i) {
    powers += "Power" + std::to_string(i) + "=" + std::string(4000, '`') + "\n";
  }
  const std::tuple<const char*, std::string, std::function<void()>> cases[] = {
      {"skilconv.dat", "SMG|" + MegabyteOf(","), skills},
      {"skilconv.dat", "SMG|Pistols|" + MegabyteOf("|"), skills},
      {"gear.dat", "0-1|Guns|1|Damage|" + MegabyteOf("|"), gear},
      {"gear.dat", "0" + MegabyteOf("-"), gear},
      {"range.dat", "SMG|x|1|2|3|4|" + MegabyteOf("|"), [&] { LoadRangeTable(files, "C:"); }},
      {"visability.dat", "Fog|1|2|3|4|5|" + MegabyteOf("|"), [&] { LoadVisability(files, "C:"); }},
      {"x", "[s]\n" + MegabyteOf("a=\n"), character},
      {"x", MegabyteOf("[a\n"), character},
      {"x", powers, character},
      {"x", "Entry|text\n" + MegabyteOf("\n"), info}};
  for (const auto& [name, text, load] : cases) {
    files.Put(std::string("C:\\") + name, text);
    // What the tables and the fight themselves take is no part of it.
    const std::size_t most = 12 * text.size() + 500000;
    const HeapPeak peak;
    load();
    EXPECT_LT(peak.Bytes(), most) << name << " " << text.substr(0, 30);
  }
}

TEST(HostileFiles, ASectionIsFoundAsFastWhateverItsCase) {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += "[s" + std::to_string(i) + "]\n";
  const ProfileFile file(text + "[SLOT1]\nKP=3\n");
  const auto secondsFor = [&](const char* section) {
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < 1000; ++i) EXPECT_EQ(file.Value(section, "KP"), "3");
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  };
  const double exact = secondsFor("SLOT1");
  EXPECT_LT(secondsFor("Slot1"), 10 * exact + 0.02);
}

}  // namespace
}  // namespace ng
