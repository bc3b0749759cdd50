#include <gtest/gtest.h>

#include "fakes/expect_error.h"
#include "fakes/fakes.h"
#include "notes/gm_log.h"
#include "notes/info_index.h"
#include "notes/log_viewer.h"
#include "notes/note_file.h"

namespace ng {
namespace {

using Lines = std::vector<std::string>;

TEST(NoteFile, KeepsSeveralLinesOnOne) {
  FakeFiles files;
  WriteNote(files, "C:\\n.txt", "owes_me 5\t\r\nsecond line");
  EXPECT_EQ(files.ReadWhole("C:\\n.txt"), "owes_me_5~^`second_line\r\n");
  EXPECT_EQ(ReadNote(files, "C:\\n.txt"), "owes me 5\t\r\nsecond line");
  files.failingWrite = 1;
  EXPECT_RUNTIME_ERROR(WriteNote(files, "C:\\n.txt", "new"), "Disk full");
  EXPECT_EQ(ReadNote(files, "C:\\n.txt"), "owes me 5\t\r\nsecond line");

  files.Put("C:\\n.txt", "first\nsecond");
  EXPECT_EQ(ReadNote(files, "C:\\n.txt"), "first");
  WriteNote(files, "C:\\n.txt", "");
  EXPECT_EQ(ReadNote(files, "C:\\n.txt"), "");
  files.Put("C:\\n.txt", "");
  EXPECT_RUNTIME_ERROR(ReadNote(files, "C:\\n.txt"), "Input past end of file");
  EXPECT_RUNTIME_ERROR(ReadNote(files, "C:\\gone.txt"), "File not found");
}

TEST(LogViewer, ShowsWhatTheLogKept) {
  FakeFiles files;
  LogViewer viewer;
  EXPECT_RUNTIME_ERROR(viewer.Form_Load(files, "C:\\log.txt"), "File not found");
  EXPECT_FALSE(viewer.open);

  GmLog log(files, "C:\\log.txt");
  log.Add("one");
  log.Add("");
  viewer.Form_Load(files, "C:\\log.txt");
  EXPECT_EQ(viewer.lstDisplay, (Lines{"one", ""}));
  EXPECT_TRUE(viewer.open);
  // A failure is shown until it is seen, and again once the file could be written in between.
  const auto lose = [&](const char* line) {
    files.failingWrite = 1;
    log.Add(line);
  };
  lose("lost");
  EXPECT_EQ(log.lblLogFailure(), "Log not written: Disk full");
  log.FailureSeen();
  lose("lost too");
  EXPECT_EQ(log.lblLogFailure(), "");
  viewer.Form_Load(files, "C:\\log.txt");
  EXPECT_EQ(viewer.lstDisplay, (Lines{"one", ""}));
  EXPECT_EQ(log.lstGMinfo(), (Lines{"one", "", "lost", "lost too"}));
  log.Add("kept");
  EXPECT_EQ(log.lblLogFailure(), "");
  lose("lost again");
  log.Add("kept");
  EXPECT_EQ(log.lblLogFailure(), "Log not written: Disk full");
}

TEST(InfoIndex, FindsEntriesAndTheirLines) {
  FakeFiles files;
  files.Put("C:\\info.dat",
            "! comment\r\n\r\nSea legs|No|modifier\r\n!more of it\r\n\r\nHARROW 12\r\nSea|Salt");
  InfoIndex info;
  EXPECT_EQ(info.Load(files, {"C:\\gone.dat", "C:\\info.dat"}), "");
  ASSERT_EQ(info.Count(), 3);
  EXPECT_EQ(info.At(1).line.Value(), 6);
  EXPECT_EQ(info.Matching("SEA"), (std::vector<int>{0, 2}));
  EXPECT_EQ(info.Matching("").size(), 3U);
  EXPECT_EQ(info.Find("sea"), 2);
  EXPECT_EQ(info.Find("se"), -1);
  EXPECT_EQ(info.EntryText(files, 0), "No|modifier\r\n!more of it\r\n");
  EXPECT_EQ(info.EntryText(files, 1), "");
  EXPECT_EQ(info.EntryText(files, 2), "Salt");
  EXPECT_EQ(info.EntryText(files, 3), "");
  EXPECT_RUNTIME_ERROR(info.EntryText(files, -1), "Subscript out of range");
  files.Put("C:\\info.dat", "! cut short");
  EXPECT_EQ(info.EntryText(files, 2), "");
}

TEST(InfoIndex, TheTwoHundredAndFirstEntryIsTheLast) {
  FakeFiles files;
  std::string text = "!\n\n";
  for (int i = 0; i < 200; ++i) text += "entry " + std::to_string(i) + "|text\n";
  files.Put("C:\\info.dat", text);
  InfoIndex info;
  EXPECT_EQ(info.Load(files, {"C:\\info.dat"}), "");
  EXPECT_EQ(info.Count(), 200);
  files.Put("C:\\info.dat", text + "last|kept\nbeyond|never read");
  EXPECT_EQ(info.Load(files, {"C:\\info.dat"}), "Error opening: Info.dat");
  EXPECT_EQ(info.Count(), 201);
  EXPECT_EQ(info.At(200).line.Value(), 203);
  EXPECT_EQ(info.EntryText(files, 200), "kept");
}

}  // namespace
}  // namespace ng
