#include "tour/sample_fight.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>
#include <array>

#include "ui/main/window_place.h"
#include "ui/side/roller_window.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr QSize kUsualSize(1280, 800);
constexpr int kCharacters = 8;

/// A window that a menu entry or a button opens as it is; a further one is a further row.
struct PlainWindow {
  const char* control;
  const char* picture;
};

/// Presses the button of this role in a dialog of the toolkit's.
void PressAnswer(QDialog& dialog, QDialogButtonBox::ButtonRole role) {
  const auto* box = dialog.findChild<QDialogButtonBox*>();
  for (QAbstractButton* button : box->buttons()) {
    if (box->buttonRole(button) == role) return button->click();
  }
}

class SampleFight {
 public:
  SampleFight(Guide& guide, SampleProgram& program) : guide_(guide), program_(program) {}

  void Play() {
    Begin();
    Import();
    ArmVex();
    RollInitiative();
    Refuse();
    Shoot();
    FightByHand();
    Suffer();
    LetOthersAct();
    TakePages();
    TakePlainWindows();
    FinishTurn();
    SaveAndRestore();
    End();
  }

 private:
  void Begin();
  void Import();
  void ArmVex();
  void RollInitiative();
  void Refuse();
  void Shoot();
  void FightByHand();
  void Suffer();
  void LetOthersAct();
  void TakePages();
  void TakePages(const std::array<const char*, 4>& pictures);
  void TakePlainWindows();
  void FinishTurn();
  void SaveAndRestore();
  void End();

  void Say(const char* line) { guide_.Say(QString::fromUtf8(line)); }
  MainWindow& Window() { return *program_.window; }
  void Press(const char* name) { guide_.Press(Window(), name); }
  template <typename Widget>
  Widget& Find(const char* name) {
    return guide_.Find<Widget>(Window(), name);
  }
  QString Text(const char* name) { return Find<QWidget>(name).property("text").toString(); }
  RollerWindow& Roller() { return Find<RollerWindow>("ngdr"); }

  void Next();
  void StepToVex();
  void Display(const QString& name);
  void Mark(const char* list, const QString& beginning);
  void Roll();
  void Resize(QSize size);
  void NameFile(QDialog& dialog, const char* picture);

  Guide& guide_;
  SampleProgram& program_;
};

void SampleFight::Begin() {
  program_.Run(SampleProgram::Start::Later);
  Resize(kUsualSize);
  Say("The tracker opens with an empty table");
  guide_.Take(Window(), "empty-window");
}

void SampleFight::Import() {
  Say("Eight characters are imported");
  guide_.InNextWindow([this](QDialog& dialog) {
    auto& files = guide_.Find<QListWidget>(dialog, "filesXML");
    for (const char* name :
         {"brand", "ganger", "hound", "old marrow", "pike warden", "sable", "tollkeeper", "vex"}) {
      const auto found =
          files.findItems(QString::fromLatin1(name) + QLatin1String(".ng3"), Qt::MatchExactly);
      if (found.size() != 1) guide_.BreakOff(QStringLiteral("a sample character is missing"));
      found.constFirst()->setSelected(true);
    }
    guide_.Take(dialog, "loader");
    guide_.Press(dialog, "cmdLoad");
  });
  Press("mnuFileOpen");
  if (program_.session.main.GridX.RowCount() != kCharacters) {
    guide_.BreakOff(QStringLiteral("not every character was imported"));
  }
}

void SampleFight::ArmVex() {
  Say("Vex takes two guns and chooses the skills for them");
  Display(QStringLiteral("Vex"));
  Mark("lstWeapon", QStringLiteral("Harrow 12"));
  Press("cmdSetPrim");
  Mark("lstWeapon", QStringLiteral("Stub 9"));
  Press("cmdSetSecond");
  Press("chkSmL_0");
  Mark("lstActive", QStringLiteral("Submachine Guns"));
  guide_.InNextWindow([this](QDialog& dialog) {
    guide_.Take(dialog, "skill-level");
    guide_.Press(dialog, "cmdSkillSelect_1");
  });
  Press("cmdSkillPrimary");
  Mark("lstActive", QStringLiteral("Pistols"));
  guide_.InNextWindow([this](QDialog& dialog) { guide_.Press(dialog, "cmdSkillSelect_1"); });
  Press("cmdSkillSecondary");
  Mark("lstActive", QStringLiteral("unarmed Combat"));
  Press("cmdMeleeSkill");
}

void SampleFight::RollInitiative() {
  Say("Initiative is rolled, and everybody before Vex acts");
  Press("mnuTReroll");
  Next();
  StepToVex();
}

void SampleFight::StepToVex() {
  for (int steps = 0; Text("lblName2") != QLatin1String("Vex"); ++steps) {
    if (steps == 2 * kCharacters) guide_.BreakOff(QStringLiteral("Vex never acts"));
    Next();
  }
}

void SampleFight::Refuse() {
  Say("Tollkeeper is not on turn and may not shoot, and drops out");
  Display(QStringLiteral("Tollkeeper"));
  guide_.InNextWindow([this](QDialog& dialog) {
    guide_.Take(dialog, "message");
    dialog.accept();
  });
  Press("cmdShots1_0");
  Press("mnuPInactive");
}

void SampleFight::Shoot() {
  Say("Vex walks, aims and fires a burst in half light");
  Display(QStringLiteral("Vex"));
  Press("cmdShots3_0");
  PressKey(guide_.Find<QComboBox>(Roller(), "cmbVisability"), Qt::Key_Down);
  PressKey(guide_.Find<QComboBox>(Roller(), "cmbAttackerMove"), Qt::Key_End);
  for (const char* button : {"Label4", "Label4", "cmdCPplusMinus_0", "cmdCPplusMinus_0"}) {
    guide_.Press(Roller(), button);
  }
  Roll();
  guide_.Take(Roller(), "roller");

  Say("Vex fires six rounds more on full auto");
  guide_.InNextWindow([this](QDialog& dialog) {
    guide_.Find<QLineEdit>(dialog, "txtInput").setText(QStringLiteral("6"));
    guide_.Take(dialog, "input");
    dialog.accept();
  });
  Press("cmdShotsFA_0");
  Roll();
}

void SampleFight::FightByHand() {
  Say("Vex strikes with the fist");
  Press("cmdUnarmed");
  Roll();
  guide_.Take(Roller(), "roller-melee");
}

void SampleFight::Suffer() {
  Say("Ganger resists the damage and takes a medium wound");
  Display(QStringLiteral("Ganger"));
  Press("cmdBody");
  Roll();
  guide_.Take(Roller(), "roller-body");
  Press("cmdMDam_0");
  guide_.Find<QTabBar>(Roller(), "tabTest").setCurrentIndex(3);
  Roll();
  guide_.Take(Roller(), "roller-general");
  Roller().close();

  Say("Vex is hurt too, and reloads the gun");
  Display(QStringLiteral("Vex"));
  Press("cmdLDam_0");
  Press("cmdMDam_1");
  Press("cmdShotsZ_0");
}

void SampleFight::LetOthersAct() {
  Say("The next one throws a grenade, the one after that puts the action off");
  Next();
  Press("mnuPGrenade");
  Next();
  Press("mnuPDelay");
  StepToVex();
  Press("cmdShots3_0");
  Roller().close();
}

void SampleFight::TakePages(const std::array<const char*, 4>& pictures) {
  // The combat page comes last and stays.
  for (int page = 3; page >= 0; --page) {
    Find<QTabWidget>("tabMain").setCurrentIndex(page);
    guide_.Take(Window(), pictures[static_cast<std::size_t>(page)]);
  }
}

void SampleFight::TakePages() {
  Say("The pages");
  TakePages({"main-window", "gear-page", "person-page", "notes-page"});
  Say("The pages in the least window");
  Resize(kLeastWindow);
  TakePages({"least-window", "least-gear-page", "least-person-page", "least-notes-page"});
  Resize(kUsualSize);
  Say("The other colours");
  Press("mnuViewDark");
  guide_.Take(Window(), "other-colours");
  Press("mnuViewDark");
}

void SampleFight::TakePlainWindows() {
  Say("The game master adds a note");
  Press("mnuViewGM");
  guide_.InNextWindow([this](QDialog& dialog) {
    guide_.Find<QLineEdit>(dialog, "txtInput").setText(QStringLiteral("The lamps go out"));
    dialog.accept();
  });
  Press("cmdAddNote");
  Find<QDialog>("frmGM").close();
  Mark("lstWeapon", QStringLiteral("Harrow 12"));

  Say("The other windows");
  constexpr PlainWindow kWindows[] = {{"mnuViewOptions", "options"},
                                      {"mnuViewGM", "game-master"},
                                      {"mnuViewLog", "log"},
                                      {"mnuViewReference", "reference"},
                                      {"cmdInfoWeapon", "item-information"},
                                      {"mnuHelpContents", "help"},
                                      {"mnuHelpAbout", "about"}};
  for (const PlainWindow& window : kWindows) {
    guide_.TakeWindowOf(Window(), window.control, window.picture);
  }
}

void SampleFight::FinishTurn() {
  Say("The combat turn is played to its end, and the next one begun");
  for (int steps = 0; Text("lblPhase") != QLatin1String("End of turn!"); ++steps) {
    if (steps == 100) guide_.BreakOff(QStringLiteral("the combat turn never ends"));
    Next();
  }
  Press("mnuTReroll");
  for (int steps = 0; steps < kCharacters; ++steps) Next();
  Press("mnuTPrev");
  guide_.Say(QStringLiteral("  Previous: ") + Text("lblPhase"));
}

void SampleFight::SaveAndRestore() {
  Say("The fight is saved");
  guide_.InNextWindow([this](QDialog& dialog) { NameFile(dialog, "save-state"); });
  Press("mnuFileSave");
  guide_.Say(QStringLiteral("  ") + Text("lblStatus"));
  const Fight saved = program_.session.main.fight;

  Say("The table is cleared, and the fight restored");
  Press("mnuFileNew");
  guide_.InNextWindow([this](QDialog& dialog) { NameFile(dialog, "load-state"); });
  Press("mnuFileLoad");
  guide_.Say(QStringLiteral("  ") + Text("lblStatus"));
  const Fight& restored = program_.session.main.fight;
  for (const Slot slot : SlotsUpTo(saved.NumPlayers)) {
    const PlayerRecord& before = saved.Players[slot];
    const PlayerRecord& now = restored.Players[slot];
    if (now.Name != before.Name || now.RRSLT != before.RRSLT ||
        now.CurDamPhysical != before.CurDamPhysical || now.CurDamStun != before.CurDamStun) {
      guide_.BreakOff(ToQString(before.Name) + QLatin1String(" was not restored as saved"));
    }
  }
  Next();
}

void SampleFight::End() {
  Say("The tracker is closed");
  guide_.InNextWindow([this](QDialog& dialog) {
    guide_.Take(dialog, "closing-question");
    PressAnswer(dialog, QDialogButtonBox::DestructiveRole);
  });
  Press("mnuFileExit");
  if (Window().isVisible()) guide_.BreakOff(QStringLiteral("the main window stays open"));
}

void SampleFight::Next() {
  guide_.PressAndCloseMessages(Window(), "mnuTNext");
  guide_.Say(QStringLiteral("  Next: %1 %2").arg(Text("lblPhase"), Text("lblName2")));
}

void SampleFight::Display(const QString& name) {
  auto& grid = Find<QTableView>("GridX");
  const QAbstractItemModel& model = *grid.model();
  for (int row = 0; row < model.rowCount(); ++row) {
    const QModelIndex cell = model.index(row, 0);
    if (cell.data().toString() != name) continue;
    grid.scrollTo(cell);
    ClickAt(*grid.viewport(), grid.visualRect(cell).center());
  }
  if (Text("lblName2") != name) guide_.BreakOff(name + QLatin1String(" cannot be displayed"));
}

void SampleFight::Mark(const char* list, const QString& beginning) {
  auto& tree = Find<QTreeWidget>(list);
  const auto found = tree.findItems(beginning, Qt::MatchStartsWith);
  if (found.isEmpty()) guide_.BreakOff(beginning + QLatin1String(" is not in the list"));
  tree.setCurrentItem(found.constFirst());
}

void SampleFight::Roll() {
  guide_.Press(Roller(), "cmdRoll");
  guide_.Say(QStringLiteral("  %1: %2")
                 .arg(guide_.Find<QWidget>(Roller(), "lblName").property("text").toString(),
                      ToQString(program_.session.main.ngdr.txtResult)));
}

void SampleFight::Resize(QSize size) {
  Window().resize(size);
  if (Window().size() != size) guide_.BreakOff(QStringLiteral("the window does not take its size"));
}

void SampleFight::NameFile(QDialog& dialog, const char* picture) {
  guide_.Find<QLineEdit>(dialog, "fileNameEdit").setText(program_.OwnFile("evening.ngt"));
  guide_.Take(dialog, picture);
  PressAnswer(dialog, QDialogButtonBox::AcceptRole);
}

}  // namespace

void PlaySampleFight(Guide& guide, SampleProgram& program) { SampleFight(guide, program).Play(); }

}  // namespace ng
