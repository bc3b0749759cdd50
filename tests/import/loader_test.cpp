#include "import/loader.h"

#include <gtest/gtest.h>

#include "fakes/test_program.h"

namespace ng {
namespace {

TEST(Loader, ListsSelectsAndKeepsTheDirectory) {
  TestProgram program;
  for (const char* name : {"a.ng3", "b.NG3", "c.ng3", "d.txt"}) {
    program.files.Put("C:\\chars\\" + std::string(name), "[General]\n");
    program.files.Put("D:\\more\\" + std::string(name), "[General]\n");
  }
  LoaderForm& loader = program.session.loader;
  loader.Form_Load();
  EXPECT_EQ(loader.Drive1, "C:");
  ASSERT_EQ(loader.filesXML.size(), 3U);
  program.Do("frmLoader.filesXML_Select", 2);
  program.Do("frmLoader.filesXML_Select", 1);
  program.Do("frmLoader.filesXML_Select", 0);
  program.Do("frmLoader.filesXML_Unselect", 1);
  program.Do("frmLoader.cmdLoad");
  EXPECT_EQ(loader.selectionList, "a.ng3|c.ng3|");
  EXPECT_FALSE(loader.open);
  loader.Form_Load();
  EXPECT_EQ(loader.selectionList, "");
  program.Do("frmLoader.Drive1", 0, "D: [Data]");
  EXPECT_EQ(loader.DirListBox, "D:");
  program.Do("frmLoader.DirListBox", 0, "D:\\more");
  EXPECT_EQ(loader.filesXML.size(), 3U);
  program.Do("frmLoader.cmdCancel");
  EXPECT_EQ(program.session.environment.settings.NG3Dir, "D:\\more");
  EXPECT_EQ(FullCharacterName("D:\\more", "a.ng3"), "D:\\more\\a.ng3");
  EXPECT_EQ(FullCharacterName("D:\\more", "/home/a.ng3"), "/home/a.ng3");
  program.Import({});
  EXPECT_EQ(program.fight.CountPlayers().Value(), 0);
}

TEST(Loader, NamesWithAColonImportAndThoseThatCannotBeWrittenAreCounted) {
  TestProgram program;
  const std::string path = "C:\\chars\\vex: reborn.ng3";
  program.files.Put(path, "[General]\nCharName=Vex\n[System]\nFinalize=True\n");
  program.Import({0});
  EXPECT_EQ(program.session.loader.selectionList, "vex: reborn.ng3|");
  program.Do("Form_Drop", 0, path);
  EXPECT_EQ(program.Order(), "Vex Vex::1");
  const std::pair<int, const char*> cases[] = {
      {0, ""},
      {1, "1 file not listed: its name has characters this program cannot write"},
      {2, "2 files not listed: their names have characters this program cannot write"}};
  for (const auto& [count, text] : cases) {
    program.files.unlisted = count;
    program.session.loader.Form_Load();
    EXPECT_EQ(program.session.loader.lblUnlisted, text);
  }
}

}  // namespace
}  // namespace ng
