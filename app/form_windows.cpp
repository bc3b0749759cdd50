#include "app/form_windows.h"

#include <algorithm>

#include "app/controls.h"
#include "app/session.h"
#include "base/text.h"

namespace ng {
namespace {

bool AlwaysOpen(const Session&) { return true; }

void VisitGameMaster(const Session& session, ControlVisitor& visitor) {
  visitor.List({"lstGMinfo"}, session.main.gmLog.lstGMinfo());
}

void VisitLog(const Session& session, ControlVisitor& visitor) {
  const std::vector<std::string>& lines = session.main.logViewer.lstDisplay;
  visitor.List({"lstDisplay"}, lines);
  visitor.Text({"lblCount"},
               std::to_string(lines.size()) + (lines.size() == 1 ? " line" : " lines"));
}

/// An entry of the reference file, its fields below one another.
std::string EntryLines(const std::string& entry) { return Replaced(entry, "|", "\r\n"); }

void VisitReference(const Session& session, ControlVisitor& visitor) {
  const ReferenceForm& reference = session.main.reference;
  visitor.Text({"txtFilter"}, reference.txtFilter);
  visitor.List({"lstNames"}, reference.lstNames);
  visitor.Choice({"lstNames"}, reference.lstNamesIndex);
  visitor.Text({"txtEntry"}, EntryLines(reference.txtEntry));
}

void VisitInfo(const Session& session, ControlVisitor& visitor) {
  const InfoForm& info = session.main.itemInfo;
  visitor.Text({"lblItem"}, info.lblItem);
  visitor.List({"lstFigures"}, info.lstFigures);
  visitor.Text({"txtReference"}, EntryLines(info.txtReference));
}

void VisitHelp(const Session& session, ControlVisitor& visitor) {
  const HelpForm& help = session.main.help;
  visitor.Text({"txtFilter"}, help.txtFilter);
  visitor.List({"lstTopics"}, help.lstTopics);
  visitor.Choice({"lstTopics"}, help.lstTopicsIndex);
  visitor.Text({"txtTopic"}, help.txtTopic);
}

void VisitLoader(const Session& session, ControlVisitor& visitor) {
  const LoaderForm& loader = session.loader;
  visitor.Text({"Drive1"}, loader.Drive1);
  visitor.Text({"DirListBox"}, loader.DirListBox);
  std::vector<CarriedLine> files;
  for (const LoaderForm::File& file : loader.filesXML) files.push_back({file.name, file.selected});
  visitor.CheckList({"filesXML"}, files);
  visitor.Text({"lblUnlisted"}, loader.lblUnlisted);
}

void VisitOptions(const Session& session, ControlVisitor& visitor) {
  const OptionsForm& options = session.options;
  visitor.Text({"dirNG3"}, options.dirNG3);
  visitor.Text({"dirDat"}, options.dirDat);
  visitor.Check({"chkCloneInit"}, options.chkCloneInit);
  visitor.Check({"chkDisableNGDR"}, options.chkDisableNGDR);
}

void VisitSkillLevel(const Session& session, ControlVisitor& visitor) {
  const SkillLevelForm& level = session.main.skillLevel;
  visitor.Text({"lblSkill"}, Replaced(level.lblSkill, "\t", "     "));
  int index = 0;
  for (const std::string& caption : level.cmdSkillSelect) {
    visitor.Text({"cmdSkillSelect", index++}, caption);
  }
}

void VisitHistory(const Session& session, ControlVisitor& visitor) {
  const HistoryForm& history = session.history;
  visitor.Text({"txtFind"}, history.txtFind);
  visitor.List({"cmbWho"}, history.cmbWho);
  visitor.Choice({"cmbWho"}, history.cmbWhoIndex);
  visitor.List({"lstLines"}, history.lstLines);
  visitor.Choice({"lstLines"}, history.lstLinesIndex);
}

void VisitRecent(const Session& session, ControlVisitor& visitor) {
  const RecentForm& recent = session.recent;
  visitor.List({"lstFights"}, recent.lstFights);
  visitor.Choice({"lstFights"}, recent.lstFightsIndex);
  visitor.Text({"lblFight"}, recent.lblFight);
}

constexpr FormWindow kWindows[] = {
    {"frmMain", "", "mnuFileExit", AlwaysOpen, VisitControls},
    {"ngdr", "ngdr.", "ngdr.Hide", [](const Session& s) { return s.main.ngdr.visible; },
     VisitRollerControls},
    {"frmGM", "frmGM.", "frmGM.Close", [](const Session& s) { return s.main.frmGMOpen; },
     VisitGameMaster},
    {"frmDisplay", "frmDisplay.", "frmDisplay.cmdClose",
     [](const Session& s) { return s.main.logViewer.open; }, VisitLog},
    {"frmReference", "frmReference.", "frmReference.Close",
     [](const Session& s) { return s.main.reference.open; }, VisitReference},
    {"frmInfo", "frmInfo.", "frmInfo.Close", [](const Session& s) { return s.main.itemInfo.open; },
     VisitInfo},
    {"frmHelp", "frmHelp.", "frmHelp.Close", [](const Session& s) { return s.main.help.open; },
     VisitHelp},
    {"frmHistory", "frmHistory.", "frmHistory.Close",
     [](const Session& s) { return s.history.open; }, VisitHistory},
    {"frmRecent", "frmRecent.", "frmRecent.cmdCancel",
     [](const Session& s) { return s.recent.open; }, VisitRecent},
    {"frmLoader", "frmLoader.", "frmLoader.cmdCancel",
     [](const Session& s) { return s.loader.open; }, VisitLoader},
    {"frmOptions", "frmOptions.", "frmOptions.cmdCancel",
     [](const Session& s) { return s.options.open; }, VisitOptions},
    {"frmSelSkillLevel", "frmSelSkillLevel.", "frmSelSkillLevel.Close",
     [](const Session& s) { return s.main.skillLevel.open; }, VisitSkillLevel}};

}  // namespace

std::span<const FormWindow> FormWindows() { return kWindows; }

const FormWindow& FindFormWindow(std::string_view name) {
  return *std::ranges::find(kWindows, name,
                            [](const FormWindow& window) { return std::string_view(window.name); });
}

}  // namespace ng
