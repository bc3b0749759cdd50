#include <gtest/gtest.h>

#include "base/text.h"
#include "fakes/test_program.h"
#include "import/armour.h"
#include "import/item_figures.h"
#include "import/item_lines.h"

namespace ng {
namespace {

const std::string kGearTable =
    "0-1|Melee|4|Concealability|Reach|Damage|Weight\n"
    "0-2|Projectile|4|Concealability|Str.Min.|Damage|Weight\n"
    "0-3|Firearms|6|Concealability|Ammunition|Mode|Damage|Weight|Accessories\n"
    "0-4|Grenades|5|Damage|Intelligence|Blast|Scatter|Weight\n"
    "0-5|Ammunition|2|Damage|Concealability\n"
    "0-6|Accessories|4|Mount|Concealability|Rating|Weight\n"
    "0-8|Armour|4|Concealability|Ballistic|Impact|Weight\n"
    "0-9|Tools|2|Cost|Weight\n"
    "0-10|Lamps|3||Light|Weight\n"
    "0-26|Money|1|Weight\n";

/// Imports one file with this text and returns its sheet.
class Imported {
 public:
  explicit Imported(const std::string& text) {
    program.files.Put("C:\\DATA\\gear.dat", kGearTable);
    program.main.gearTable = LoadGearTable(program.files, "C:\\DATA").table;
    program.files.Put("C:\\chars\\one.ng3", text);
    program.Import({0});
  }
  const PlayerRecord& Record() { return program.fight.Players[1]; }
  const CharacterEntry& Entry() { return program.main.characters.entries[1]; }

  TestProgram program;
};

std::vector<std::string> Texts(const std::vector<CarriedLine>& lines) {
  std::vector<std::string> texts;
  texts.reserve(lines.size());
  for (const CarriedLine& line : lines) texts.push_back((line.carried ? "x " : "- ") + line.text);
  return texts;
}

TEST(Attributes, NotationAndAugmentedValue) {
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"4|0|0|0", "4"},     {"4|1|0|2", "5(7)"},
      {"4", "4"},           {"", "0"},
      {"4.5|0|.4|0", "4"},  {"6|0|0|-3.65|2.35", "2.35"},
      {"3|1|0|-2", "4(2)"}, {"1|2|3|4|5|6", "6(10)"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(FormatAttribute(value), text) << value;
  EXPECT_EQ(AugmentedValue("4(6)"), "6");
  EXPECT_EQ(AugmentedValue("4"), "4");
  EXPECT_EQ(AugmentedValue(""), "0");
  EXPECT_EQ(CleanItemText("X:Stub    9  (LPist)\tX:6L"), "Stub 9 (LPist)\t6L");
}

TEST(CharacterFile, EveryCategoryFindsItsList) {
  Imported one(
      "[Gear]\nGear0=Sabre_(EDG)~1|5|1|(STR+2)M|1.2\n"
      "Gear1=Bow~2|3|4|7M|1.5\n"
      "Gear2=X:Stub_9_(LPist)~3|8|8(c)|SA|6L|0.75|laser\n"
      "Gear3=Flash_pot~4|12M_Stun|-|4m|2|0.5\n"
      "Gear4=Shells~5|+1|8\n"
      "Gear5=Top_sight~6|Top|-1|2|0.3\n"
      "Gear6=X:Coat~8|8|5|4|3.00\n"
      "Gear7=Vest~8|9|4|2\n"
      "Gear8=X:Rope~9|40|2.50\n"
      "Gear9=Coins~26|1\n"
      "Gear10=Odd_thing~99|1\n"
      "Gear12=After_the_gap~9|1|1\n");
  EXPECT_EQ(Texts(one.Entry().weapons),
            (std::vector<std::string>{
                "- Unarmed combat\t(STR)M Stun\t\t\t\t", "- Sabre (EDG)\t(STR+2)M\t5/1\t\t\t",
                "- Bow\t7M\t3/4\t\t\t1.5", "x Stub 9 (LPist)\t6L\t8\tSA/laser\t8(c)\t0.75",
                "- Flash pot\t12M Stun\t\t-/4m/2\t\t0.5", "- Shells\t+1\t8\t\t\t",
                "- Top sight\t\t-1\tTop/2\t\t0.3"}));
  // 40 characters with the mark, 37 without it.
  EXPECT_EQ(Texts(one.Entry().armour),
            (std::vector<std::string>{"x Coat" + std::string(34, ' ') + "\t8\t5\t4\t3.00",
                                      "- Vest" + std::string(33, ' ') + "\t9\t4\t2\t"}));
  EXPECT_EQ(Texts(one.Entry().gear), (std::vector<std::string>{"x Rope\t2.50", "- Odd thing\t"}));
}

TEST(CharacterFile, EveryFieldOfAnItemIsFoundAgain) {
  Imported one(
      "[Gear]\nGear0=X:Stub_9~3|8|8(c)|SA|6L|0.75||350\nGear1=Coat~8|8|5\nGear2=Coins~26|1\n"
      "Gear3=Rope~9|40_m|2.50|hemp\nGear4=Odd~99|new||1\ngear3=Second~9|1|1\nGear5=Plain\n"
      "Gear6=Lamp~10||dim\n");
  const CharacterEntry& entry = one.Entry();
  using Figures = std::vector<Figure>;
  const std::vector<std::pair<CarriedLine, Figures>> cases = {
      {entry.weapons[0], {}},
      {entry.weapons[1],
       {{"Category", "Firearms"},
        {"Concealability", "8"},
        {"Ammunition", "8(c)"},
        {"Mode", "SA"},
        {"Damage", "6L"},
        {"Weight", "0.75"}}},
      {entry.armour[0], {{"Category", "Armour"}, {"Concealability", "8"}, {"Ballistic", "5"}}},
      {entry.gear[0], {{"Category", "Tools"}, {"Cost", "40 m"}, {"Weight", "2.50"}}},
      {entry.gear[1], {{"Field 1", "new"}, {"Field 3", "1"}}},
      {entry.gear[2], {}},
      {entry.gear[3], {{"Category", "Lamps"}, {"Light", "dim"}}},
      {{"no longer there", false, 7}, {}}};
  for (const auto& [line, figures] : cases) {
    EXPECT_EQ(FiguresOf(one.program.main.gearTable, entry, line), figures) << line.text;
  }
}

TEST(CharacterFile, ListsVisionAndTexts) {
  Imported one(
      "[General]\nCharName=Old_Marrow\n[System]\nFinalize=True\nGenerator=Critters\n"
      "[Attributes]\nAttacks=(STR)M_bite\nInitiative=1|1|0|1.5\nReaction=4|0|0|0\n"
      "[Race]\nRaceName=Half_giant\nRaceDesc0=Low_Light_vision\nRaceDesc1=Thermographic\n"
      "[Skills]\nSkill0=Pistols~[4/"
      "6]=x\nSkill1=Slang~[3]~(LAN)=1\nSkill2=Lost~[2]\nSkill3=Lore=(KNO)\n"
      "[Magic]\nSpell0=Bolt\nPower0=Quick_draw^`one_step^`two\nGeas0=Never_lie\nMageType=Hedge_"
      "mage\n"
      "DicePoolSpell=0\nDicePoolAstral=3\n[Pools]\nSpell=5\nCombat=6\n[Karma]\nKarmaPool=2\n"
      "[Edges]\nEdge0=Ambidexterity-4~4\n[Bioware]\nBio0=Cat's_Eyes\n"
      "[Cyberware]\nCyber0=Low-Light_lenses\nCyber1=Thermographic_lenses\n"
      "[Contacts]\nContact0=Mags~2\n");
  const PlayerRecord& record = one.Record();
  EXPECT_EQ(record.Name, "Old Marrow");
  EXPECT_EQ(record.CurInitNatural.Value(), 2);
  EXPECT_EQ(record.CurInitAugmented.Value(), 4);  // 3.5 goes to the even neighbour
  EXPECT_EQ(record.CurReactAugmented.Value(), 4);
  EXPECT_TRUE(static_cast<bool>(record.natThermographic));
  EXPECT_FALSE(static_cast<bool>(record.natLowLight));  // the lenses replace the natural eyes
  EXPECT_TRUE(static_cast<bool>(record.augLowLight));
  EXPECT_TRUE(static_cast<bool>(record.augThermographic));
  EXPECT_EQ(record.CP.Value(), 6);
  EXPECT_EQ(record.SP.Value(), 5);
  EXPECT_EQ(record.AS.Value(), 3);
  EXPECT_EQ(record.KP.Value(), 2);

  const SheetPanel& sheet = one.program.main.sheet;
  EXPECT_EQ(sheet.lstActive, (std::vector<std::string>{"Pistols\t[4/6]", "Lost\t[2]", "Lore"}));
  EXPECT_EQ(sheet.lstOther, (std::vector<std::string>{"Slang\t[3]\t(LAN)"}));
  EXPECT_EQ(sheet.lstMagic,
            (std::vector<std::string>{"SPL: Bolt", "ADP: Quick draw", "    one step", "    two",
                                      "GEA: Never lie"}));
  EXPECT_EQ(sheet.lstAugments, (std::vector<std::string>{"BIO: Cat's Eyes", "CYB: Low-Light lenses",
                                                         "CYB: Thermographic lenses"}));
  EXPECT_EQ(sheet.lstContacts, (std::vector<std::string>{"Mags\t2"}));
  EXPECT_EQ(sheet.lblAttacks, "(STR)M bite");
  EXPECT_EQ(sheet.lblrace, "Half giant");
  EXPECT_EQ(sheet.lblMageType, "Hedge mage");
}

TEST(BoneLace, TheLastMaterialOfTheOrderWinsAndTheBonusesCross) {
  const std::vector<std::pair<const char*, int>> cases = {
      {"Bone Lace, Ceramic", 4}, {"Bone Lace Titanium", 5},        {"Aluminium Bone Lace", 3},
      {"Bone Lace Plastic", 2},  {"Bone Lace Titanium/Kevlar", 1}, {"Bone Lace", 0}};
  for (const auto& [line, material] : cases) EXPECT_EQ(BoneLaceOf(line).material, material) << line;

  Imported one(
      "[Attributes]\nQuickness=1|0|0|0\ne_armor_impactArmorMod=1\ne_armor_ballisticArmorMod=2\n"
      "[Cyberware]\nCyber0=Bone_Lace,_Titanium\nCyber1=Bone_Lace_upkeep\n[Gear]\nGear0=X:Coat~8|8|"
      "5|4|3\n");
  EXPECT_EQ(one.Entry().armour[1].text, Padded(" Cyber:Bone Lace", 37) + "\t-\t1\t2\t15");
  EXPECT_EQ(one.Record().ArmorBAL.Value(), 6);
  EXPECT_EQ(one.Record().ArmorIMP.Value(), 6);
  one.program.Do("lstArmor_Check", 1);  // cannot be taken off
  EXPECT_TRUE(one.Entry().armour[1].carried);
  EXPECT_EQ(one.program.main.sheet.lblLWght, "Wgt:18.00");

  Imported none("[Cyberware]\nCyber0=Bone_Lace\n[Attributes]\ne_armor_impactArmorMod=0\n");
  EXPECT_TRUE(none.Entry().armour.empty());
}

CharacterEntry Wearing(const std::string& quickness,
                       std::initializer_list<std::pair<const char*, bool>> armour) {
  CharacterEntry entry;
  entry.attributes[1] = quickness;
  for (const auto& [text, worn] : armour) entry.armour.push_back({text, worn});
  return entry;
}

TEST(Armour, LayersCountHalfRoundedToEven) {
  struct Case {
    CharacterEntry entry;
    int ballistic, impact, pool, quickness;
  };
  const std::vector<Case> cases = {
      {Wearing("4", {}), 0, 0, 0, 0},
      {Wearing("4(6)", {{"a\t-\t5\t3\t2", true}, {"b\t-\t4\t3\t2", true}}), 7, 5, 0, 3},
      // Of equal ratings the first is the main armour; 7 halved is 3.5 and gives 4.
      {Wearing("1", {{"a\t-\t5\t1\t0", true}, {"b\t-\t5\t7\t0", true}}), 7, 5, 3, 9},
      {Wearing("2", {{"a\t-\t5\t1\t0", false}, {"b\t-\t0\t3\t0", true}}), 0, 3, 0, 0},
      {Wearing("20", {{"Bone Lace\t-\t9\t1\t0", true}, {"b\t-\t3\t3\t0", true}}), 12, 4, 0, 0}};
  for (const Case& c : cases) {
    const ArmourFigures figures = DeriveArmour(c.entry);
    EXPECT_EQ(figures.ballistic.Value(), c.ballistic);
    EXPECT_EQ(figures.impact.Value(), c.impact);
    EXPECT_EQ(figures.combatPoolModifier.Value(), c.pool);
    EXPECT_EQ(figures.quicknessModifier.Value(), c.quickness);
  }
}

TEST(Armour, WhatIsPutOnAndOffCountsAtOnceAndStays) {
  Imported one(
      "[Attributes]\nQuickness=3|0|0|0\n[Gear]\nGear0=X:Coat~8|8|5|4|3\nGear1=Vest~8|9|4|2|1.5\n"
      "Gear2=X:Rope~9|40|2.25\nGear3=Stub~3|8|8(c)|SA|6L|0.75|\n");
  const SheetPanel& sheet = one.program.main.sheet;
  EXPECT_EQ(sheet.lblCPmod, "- CPmod = 1");
  EXPECT_EQ(sheet.lblQCKmod, "-QCK=2");
  EXPECT_EQ(sheet.lblWeight2, "Total Weight: 5.25");
  one.program.Do("lstArmor_Check", 1);
  EXPECT_EQ(one.Record().ArmorBAL.Value(), 7);
  EXPECT_EQ(one.Record().ArmorQCKmod.Value(), 6);
  one.program.Do("lstWeapon_Check", 1);
  one.program.Do("lstGear_Check", 0);
  EXPECT_EQ(sheet.lblLWght, "Wgt:5.25");  // 3 + 1.5 + 0.75
  EXPECT_EQ(one.Record().LastWeight, "5.25");
  one.program.main.XFerPC(0);
  EXPECT_TRUE(sheet.lstArmor.empty());
  one.program.main.XFerPC(1);
  EXPECT_TRUE(sheet.lstArmor[1].carried);
  // The same modifiers shown from the record are written another way.
  EXPECT_EQ(sheet.lblCPmod, "-CPmod=2");
  one.program.Do("lstArmor_Check", 0);
  one.program.Do("lstArmor_Check", 1);
  EXPECT_EQ(sheet.lblCPmod + sheet.lblQCKmod, "");
  one.program.Do("lstGear_Check", 9);
  EXPECT_EQ(one.program.prompts.log.back(), "message \"Subscript out of range\"");
}

TEST(Import, NamesOfUnfinishedAndRepeatedCharacters) {
  TestProgram program;
  program.files.Put("C:\\chars\\a.ng3", "[General]\nCharName=Ash\n[System]\nFinalize=True\n");
  program.files.Put("C:\\chars\\b.ng3", "[General]\nCharName=Birch\n[System]\nFinalize=true\n");
  program.Import({1, 0});
  program.Import({0});
  program.Import({0});
  EXPECT_EQ(program.Order(), "Ash (NF)Birch Ash::1 Ash::2");
  EXPECT_EQ(program.fight.Players[1].Filename, "C:\\chars\\a.ng3");
  EXPECT_EQ(program.fight.CurrentPCpointer.Value(), 4);
  EXPECT_EQ(program.files.reads["c:\\chars\\a.ng3"], 3);
}

TEST(Import, AFileThatIsNoCharacterIsANamelessSheetAndHarmsNobody) {
  TestProgram program;
  program.Add("Kept", 7);
  program.files.Put("C:\\chars\\binary.ng3", std::string("\0\xFF[[[=\r\r\n]=\0", 12));
  program.files.Put("C:\\chars\\finished.ng3", "[System]\nFinalize=True\n");
  program.Import({0});
  EXPECT_EQ(program.Order(), "Kept (NF)");
  EXPECT_EQ(program.main.sheet.lstWeapon.size(), 1U);
  // Without a name it takes a slot but no place.
  program.Import({1});
  EXPECT_EQ(program.Order(), "Kept (NF)");
  EXPECT_EQ(program.fight.FindFreeSlot().Value(), 4);
}

TEST(Import, WhatDoesNotFitLeavesTheFightAsItWas) {
  TestProgram program;
  program.files.Put("C:\\chars\\a.ng3", "[General]\nCharName=A\n[System]\nFinalize=True\n");
  program.files.Put("C:\\chars\\huge.ng3", "[Attributes]\nInitiative=99999|0|0|0\n");
  for (int i = 0; i < 49; ++i) program.Import({0});
  const auto refused = [&](std::initializer_list<int> rows, const char* text) {
    program.prompts.TakeLog();
    const Fight before = program.fight;
    program.Import(rows);
    EXPECT_EQ(program.prompts.log.back(), text);
    EXPECT_EQ(program.fight, before);
  };
  refused({1}, "message \"Overflow\"");
  program.Import({0});
  EXPECT_EQ(program.fight.InfoCnt.Value(), 50);
  refused({0}, "message \"Subscript out of range\"");
  // Of several files those before the one that fails are in, and are seen.
  program.main.characters.entries[7] = {};
  program.prompts.TakeLog();
  program.Import({0, 1});
  EXPECT_EQ(program.main.GridX.RowCount(), 51);
  EXPECT_EQ(program.main.statusMessage, "1 character imported");

  for (int slot = 52; slot <= 100; ++slot) program.Add("filler");
  program.main.characters.entries[8] = {};
  refused({0}, "message \"Subscript out of range\"");
}

}  // namespace
}  // namespace ng
