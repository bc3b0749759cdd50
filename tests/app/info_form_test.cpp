#include "app/info_form.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "fakes/test_program.h"

namespace ng {
namespace {

TEST(InfoForm, ShowsEveryFigureOfTheMarkedLineAndItsEntry) {
  TestProgram program;
  program.files.Mount("C:\\DATA", NG_SOURCE_DIR "/sample/DATA");
  program.files.Mount("C:\\chars", NG_SOURCE_DIR "/sample/characters");
  program.main.Form_Load();
  program.Do("Form_Drop", 0, "C:\\chars\\vex.ng3");
  const InfoForm& info = program.main.itemInfo;
  program.Do("mnuViewInfo");
  EXPECT_EQ(info.lblItem, "Select a line first");

  // What a line holds beyond the columns of its list comes from the character file.
  program.Do("lstWeapon_Select", 1);
  EXPECT_EQ(info.lblItem, "Harrow 12 (SMG)");
  EXPECT_EQ(info.lstFigures,
            (std::vector<std::string>{"Category\tFirearms", "Concealability\t4",
                                      "Ammunition\t32(c)", "Mode\tSA/BF/FA", "Damage\t6M",
                                      "Weight\t2.75", "Accessories\tsmartlink", "Cost\t1150",
                                      "Source\tAL.16", "Carried\tyes"}));
  EXPECT_EQ(info.txtReference.substr(0, 14), "Submachine gun");
  program.Do("lstArmor_Select", 0);
  EXPECT_EQ(info.lstFigures.back(), "Worn\tyes");
  program.Do("lstArmor_Check", 0);
  EXPECT_EQ(info.lstFigures.back(), "Worn\tno");

  struct Case {
    const char* select;
    int line;
    const char* item;
    const char* figure;
    bool inReference;
  };
  const Case cases[] = {{"lstWeapon_Select", 0, "Unarmed combat", "Damage\t(STR)M Stun", true},
                        {"lstEdges_Select", 0, "Ambidexterity-4", "Points\t4", true},
                        {"lstOther_Select", 0, "Harbour slang", "Kind\t(LAN)", false},
                        {"lstContacts_Select", 2, "Sister Anneke", "Level\t3", false}};
  for (const Case& c : cases) {
    program.Do(c.select, c.line);
    EXPECT_EQ(info.lblItem, c.item);
    EXPECT_EQ(std::ranges::count(info.lstFigures, c.figure), 1) << c.item;
    EXPECT_EQ(!info.txtReference.empty(), c.inReference) << c.item;
  }

  program.files.Put("C:\\own.dat", "Ambidexterity-4|Both hands\n");
  program.main.info.Load(program.files, {"C:\\own.dat"});
  program.Do("lstEdges_Select", 0);
  EXPECT_EQ(info.txtReference, "Both hands");

  // Closed, it follows no more; another combatant's line is none of these.
  program.Do("frmInfo.Close");
  program.Do("lstEdges_Select", 1);
  EXPECT_EQ(info.lblItem, "Ambidexterity-4");
  program.Do("Form_Drop", 0, "C:\\chars\\sable.ng3");
  EXPECT_EQ(info.Marked(SheetList::Edges), -1);
}

}  // namespace
}  // namespace ng
