#include "import/reference_tables.h"

#include <gtest/gtest.h>

#include "fakes/fakes.h"

namespace ng {
namespace {

const std::string kLead =
    "Invalid location for DATA directory\rDelete your tracker.ini file,then restart program\r\n";

std::string Lines(int count, const std::string& line) {
  std::string text;
  for (int i = 0; i < count; ++i) text += line + "\r\n";
  return text;
}

TEST(GearTable, TakesHeadersAndPassesOverItems) {
  FakeFiles files;
  files.Put("D:\\gear.dat",
            "! comment\r\n\r\n0-3|Melee|2|Damage|Weight\r\n5-Knife|4L|1\r\n"
            "0-64x|Last|1|Weight|spare\r\n");
  const Loaded<GearTable> loaded = LoadGearTable(files, "D:");
  EXPECT_EQ(loaded.message, "");
  EXPECT_EQ(loaded.table.headerCount.Value(), 2);
  EXPECT_EQ(loaded.table.categories[3].name, "Melee");
  EXPECT_EQ(GearColumnIndex(loaded.table, 3, "Weight"), 2);
  EXPECT_EQ(GearColumnIndex(loaded.table, 3, "weight"), -1);
  EXPECT_EQ(GearColumnIndex(loaded.table, 64, "Weight"), 1);
  for (const int category : {0, 4, 65, -1}) {
    EXPECT_EQ(GearColumnIndex(loaded.table, category, "Weight"), -1) << category;
  }
  EXPECT_EQ(GearField("3|4L|1.5", 2), "1.5");
  EXPECT_EQ(GearField("3|4L|1.5", 3), "");
  EXPECT_EQ(GearField("3|4L|1.5", -1), "");
}

TEST(GearTable, AnErrorEndsItWithItsMessageAndKeepsWhatWasRead) {
  const std::string thirtyOne = "0-2|Wide|31|" + Lines(1, std::string(60, '|'));
  for (const std::string& bad :
       {std::string("0-65|Beyond|0"), std::string("0-2|Short|2|Only"), std::string("0-2|NoCount"),
        std::string("0-2|Text|two|a|b"), std::string(" no dash|x|0"), thirtyOne}) {
    FakeFiles files;
    files.Put("D:\\gear.dat", "0-1|First|1|Damage\n" + bad + "\n0-3|After|0\n");
    const Loaded<GearTable> loaded = LoadGearTable(files, "D:");
    EXPECT_EQ(loaded.message, kLead + "Error Loading: Gear.DAT") << bad;
    EXPECT_EQ(loaded.table.categories[1].name, "First");
    EXPECT_EQ(loaded.table.categories[3].name, "");
  }
}

TEST(RangeTable, ReadsFiftyOneEntriesAndNoMore) {
  FakeFiles files;
  files.Put("D:\\range.dat", "!x\nSMG|Submachine gun|10|40|80|150\nABCDEFGHIJKL|Long|1|2|3|4\n");
  const RangeTable table = LoadRangeTable(files, "D:").table;
  EXPECT_EQ(table.entries[0].code, "SMG       ");
  EXPECT_EQ(table.names, "Submachine gun|Long");
  ASSERT_NE(FindRange(table, "SMG"), nullptr);
  EXPECT_EQ(FindRange(table, "SMG")->limits[3].Value(), 150);
  EXPECT_EQ(FindRange(table, "ABCDEFGHIJ")->name, "Long");
  EXPECT_EQ(FindRange(table, "smg"), nullptr);

  files.Put("D:\\range.dat", Lines(51, "A|B|1|2|3|4"));
  EXPECT_EQ(LoadRangeTable(files, "D:").message, "");
  for (const std::string& bad :
       {Lines(52, "A|B|1|2|3|4"), std::string("A|B|1|2|3|4\r\n\r\nC|D|1|2|3|4"),
        std::string("A|B|1|2|3"), std::string("A|B|1|2|3|4m")}) {
    files.Put("D:\\range.dat", bad);
    EXPECT_EQ(LoadRangeTable(files, "D:").message, kLead + "Error loading: Range.dat") << bad;
  }
  EXPECT_EQ(LoadRangeTable(files, "E:").message, kLead + "Error loading: Range.dat");
}

TEST(SkillTable, TheFirstTextThatTheNameContainsDecides) {
  FakeFiles files;
  files.Put("D:\\skilconv.dat",
            "SMG|Submachine,Machine Pistol\nEDG|Edged\nNONE|\nALL|x,\nZ|Pistol");
  const Loaded<SkillTable> loaded = LoadSkillTable(files, "D:");
  EXPECT_EQ(loaded.message, "");
  EXPECT_EQ(loaded.table.lastIndex.Value(), 4);
  EXPECT_EQ(ConvertSkill(loaded.table, "Heavy Machine Pistols"), "SMG");
  EXPECT_EQ(ConvertSkill(loaded.table, "Edged Weapons"), "EDG");
  // An entry whose list ends in a comma holds an empty text, which every name contains.
  EXPECT_EQ(ConvertSkill(loaded.table, "Pistols"), "ALL");
  EXPECT_EQ(ConvertSkill(SkillTable{}, "Pistols"), "Not Found");

  files.Put("D:\\skilconv.dat", Lines(64, "A|b") + "LAST|Whip");
  EXPECT_EQ(LoadSkillTable(files, "D:").message, "");
  EXPECT_EQ(ConvertSkill(LoadSkillTable(files, "D:").table, "Whips"), "LAST");
  for (const std::string& bad : {Lines(66, "A|b"), std::string("A|b\n\n"), std::string("A")}) {
    files.Put("D:\\skilconv.dat", bad);
    EXPECT_EQ(LoadSkillTable(files, "D:").message, kLead + "Error loading: Skillconv.dat") << bad;
  }
}

TEST(SkillTable, MeleeTypesIncludeTheUnknown) {
  for (const char* code : {"CLB", "Taser", "CYB", "EDG", "POL", "WHP", "Not Found"}) {
    EXPECT_TRUE(IsMeleeWeaponType(code)) << code;
  }
  for (const char* code : {"SMG", "clb", ""}) EXPECT_FALSE(IsMeleeWeaponType(code)) << code;
}

}  // namespace
}  // namespace ng
