#include "app/settings/settings.h"

#include <gtest/gtest.h>

#include "app/settings/encoding.h"
#include "app/startup.h"
#include "fakes/test_program.h"

namespace ng {
namespace {

TEST(Encoding, EscapesTheFourAndLosesTheirSubstitutes) {
  EXPECT_EQ(EncodeNG3("a b\tc\r\nd"), "a_b~c^`d");
  EXPECT_EQ(DecodeNG3("Alpha_Ware~Test"), "Alpha Ware\tTest");
  EXPECT_EQ(DecodeNG3(EncodeNG3("snake_case ~ ^ `")), "snake case \t \r \n");
}

TEST(ProfileFile, ReadsSectionsAndKeys) {
  const ProfileFile file(
      "before=nothing\r\n"
      "; [Section] of a comment\n"
      "  [ Section ] behind\r"
      "Key= first \r\n"
      "key=second\n"
      "\t quoted = \" kept blanks \" \r\n"
      "single='it''s'\n"
      "unequal=\"half'\n"
      "empty=\n"
      "no equals sign\n"
      "sum=1=2\n"
      ";hidden=1\n"
      "[section]\n"
      "late=never found\n"
      "[Unclosed\n"
      "open=yes");
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"KEY", "first"},    {"quoted", " kept blanks "},
      {"single", "it''s"}, {"unequal", "\"half'"},
      {"empty", ""},       {"sum", "1=2"},
      {"hidden", ""},      {";hidden", ""},
      {"late", ""},        {"missing", ""},
      {"before", ""}};
  for (const auto& [key, value] : cases) EXPECT_EQ(file.Value("SECTION", key), value) << key;
  EXPECT_EQ(file.Value("unclosed", "open"), "yes");
  EXPECT_EQ(file.Value("nowhere", "open"), "");
}

TEST(ProfileFile, ANumberedListEndsWithItsFirstGap) {
  const std::vector<std::pair<const char*, std::vector<std::string_view>>> cases = {
      {"Gear1=b\nGEAR0=a\ngear0=late\nGear3=d\nGear2=c\n", {"a", "b", "c", "d"}},
      {"Gear0=a\nGear1=\nGear1=late\nGear2=c\n", {"a"}},
      {"Gear0=a\nGear01=no\nGear=no\nGear2=c\nGearing1=no\nGear-1=no\n", {"a"}},
      {"Gear1=b\n", {}},
      {"Gear0=a\n[Gear]\nGear1=b\n", {"a"}},
      {"Gear0=a\nGear99999999999999999999=x\nGear1=b", {"a", "b"}}};
  for (const auto& [lines, values] : cases) {
    const ProfileFile file("[Gear]\n" + std::string(lines));
    EXPECT_EQ(file.NumberedValues("gear", "Gear"), values) << lines;
  }
}

TEST(ProfileFile, CutsValuesToTheBuffer) {
  const ProfileFile file("[s]\nlong=" + std::string(5000, 'x'));
  EXPECT_EQ(file.Value("s", "long").size(), 4095U);
}

TEST(Settings, PathsOfTheProgram) {
  EXPECT_EQ(MakeAppPath({"", "C:\\tracker"}, "tracker.ini"), "C:\\tracker\\tracker.ini");
  EXPECT_EQ(MakeAppPath({"", "C:\\"}, "tracker.ini"), "C:\\tracker.ini");
  EXPECT_EQ(MakeAppPath({" \"my file\" ", "C:\\"}, "tracker.ini"), " \"my file\" ");
  FakeFiles files;
  files.Put("/etc/x.ini", "[s]\nk=posix");
  files.Put("D:\\other.ini", "[s]\nk=command line");
  const ProgramLocation location{"D:\\other.ini", "C:\\tracker"};
  ProfileReader profile(files, location);
  EXPECT_EQ(profile.ReadINI("/etc/x.ini", "s", "k"), "posix");
  EXPECT_EQ(profile.ReadINI("plain.ini", "s", "k"), "command line");
  EXPECT_EQ(profile.ReadINI("C:\\gone.ini", "s", "k"), "");
}

TEST(Settings, SwitchesAreOnForAnythingButNought) {
  const std::vector<std::pair<const char*, bool>> cases = {
      {"0", false}, {"", false}, {" 0 ", false}, {"1", true}, {"no", true}, {"00", true}};
  for (const auto& [text, on] : cases) {
    FakeFiles files;
    files.Put("C:\\tracker\\tracker.ini", "[ngTRACKER]\nCloneInit=" + std::string(text));
    const ProgramLocation location{"", "C:\\tracker"};
    ProfileReader profile(files, location);
    Settings settings;
    ReadSettings(profile, settings);
    EXPECT_EQ(static_cast<bool>(settings.CloneInit), on) << text;
    EXPECT_FALSE(static_cast<bool>(settings.DisableNGDR));
    EXPECT_EQ(settings.DatDir, "c:\\Program Files\\Forgekit\\DATA");
  }
}

class RecordingWindows : public StartupWindows {
 public:
  explicit RecordingWindows(std::vector<std::string>& log) : log_(log) {}
  void ShowSplash() override { log_.emplace_back("splash"); }
  void LoadMain() override { log_.emplace_back("load main"); }
  void UnloadSplash() override { log_.emplace_back("unload splash"); }
  void ShowMain() override { log_.emplace_back("show main"); }

 private:
  std::vector<std::string>& log_;
};

TEST(Startup, WithoutACharacterDirectoryTheOptionsComeFirstAndCountFromTheNextStart) {
  TestProgram program;
  for (const char* table : {"gear", "range", "skilconv", "visability"}) {
    program.files.Put("E:\\tables\\" + std::string(table) + ".dat", "!\n");
  }
  program.prompts.answers.push_back({ScriptedPrompts::Answer::Kind::Modal,
                                     "",
                                     {{"frmOptions.dirNG3", 0, "E:\\people"},
                                      {"frmOptions.dirDat", 0, "E:\\tables"},
                                      {"frmOptions.chkCloneInit"},
                                      {"frmOptions.cmdOK"}}});
  RecordingWindows windows(program.prompts.log);
  EXPECT_TRUE(Main(program.session, windows));
  EXPECT_EQ(program.prompts.log,
            (std::vector<std::string>{"splash", "modal frmOptions", "load main", "unload splash",
                                      "show main"}));
  EXPECT_EQ(program.files.ReadWhole("C:\\tracker\\tracker.ini"),
            "[NGtracker]\r\nNG3Dir=E:\\people\r\nDatDir=E:\\tables\r\nCloneInit= 1 \r\n"
            "DisableNGDR= 0 \r\n");
  const Settings& settings = program.session.environment.settings;
  EXPECT_EQ(settings.NG3Dir, "");
  EXPECT_EQ(settings.DatDir, "E:\\tables");
  EXPECT_TRUE(static_cast<bool>(settings.CloneInit));

  // Opened again in the same run, the dialog does not forget what it wrote.
  program.prompts.answers.push_back(
      {ScriptedPrompts::Answer::Kind::Modal, "", {{"frmOptions.cmdOK"}}});
  program.Do("mnuViewOptions");

  // The next start has all of it and asks nothing.
  program.prompts.TakeLog();
  program.files.reads.clear();
  EXPECT_TRUE(Main(program.session, windows));
  EXPECT_EQ(program.files.reads["c:\\tracker\\tracker.ini"], 1);
  EXPECT_EQ(settings.NG3Dir, "E:\\people");
  EXPECT_EQ(program.prompts.log.front(), "splash");
  EXPECT_EQ(program.prompts.log.size(), 4U);
}

TEST(Startup, AnErrorEndsIt) {
  struct LockedSettings : FakeUserSettings {
    int Get(const std::string&, const std::string&, int) override {
      throw RuntimeError(ErrorNumber::PermissionDenied);
    }
  };
  FakeFiles files;
  files.Put("C:\\tracker\\tracker.ini", "[NGtracker]\nNG3Dir=E:\\people");
  ScriptedUniform uniform;
  ScriptedPrompts prompts;
  LockedSettings userSettings;
  Session session{{files, uniform, prompts, userSettings, {{}, "C:\\tracker"}, {}}};
  RecordingWindows windows(prompts.log);
  EXPECT_FALSE(Main(session, windows));
  EXPECT_EQ(prompts.log, (std::vector<std::string>{"splash", "message \"Permission denied\""}));
}

TEST(Options, AFailedWriteIsReportedAndLeavesTheDialogAndTheOldFile) {
  TestProgram program;
  program.files.Put("C:\\tracker\\tracker.ini", "[NGtracker]\nCloneInit=1\nDisableNGDR=1");
  program.files.failingWrite = 1;
  program.prompts.answers.push_back({ScriptedPrompts::Answer::Kind::Modal,
                                     "",
                                     {{"frmOptions.chkDisableNGDR"}, {"frmOptions.cmdOK"}}});
  program.Do("mnuViewOptions");
  EXPECT_EQ(program.prompts.log.back(), "message \"Disk full\"");
  EXPECT_TRUE(program.session.options.open);
  EXPECT_EQ(program.files.ReadWhole("C:\\tracker\\tracker.ini"),
            "[NGtracker]\nCloneInit=1\nDisableNGDR=1");
  // The dialog opened with what the file said, not with what this run works by.
  EXPECT_TRUE(program.session.options.chkCloneInit);
  EXPECT_FALSE(program.session.options.chkDisableNGDR);
  program.Do("frmOptions.cmdOK");
  EXPECT_FALSE(program.session.options.open);
  EXPECT_FALSE(static_cast<bool>(program.session.environment.settings.CloneInit));
}

}  // namespace
}  // namespace ng
