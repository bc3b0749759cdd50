#include <QCheckBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <algorithm>

#include "app/commands.h"
#include "gui/gui_program.h"
#include "ui/widgets/damage_bar.h"

namespace ng {

/// The main window under real clicks and keys.
class MainWindowTest : public GuiTest {
  Q_OBJECT

 private:
  int Boxes(const char* bar) const { return program_->Find<DamageBar>(bar).boxes(); }
  PlayerRecord& Displayed() const {
    return program_->fight.Players[program_->fight.CurrentPCpointer];
  }

 private slots:
  void init() { program_ = std::make_unique<GuiProgram>(); }
  void cleanup() { program_.reset(); }

  void FirstStartAsksForTheDirectories();
  void LoaderImportsTheMarkedFiles();
  void StepsThroughTheTurnAndBack();
  void GridShowsAndEdits();
  void DamageKeysAndButtons();
  void PoolKeysAndButtons();
  void BoxesAreStoredOrPaintedBack();
  void ToolbarMarksMirrorTheMenu();
  void HelpOpensFindsAndCloses();
  void ClosingTheWindowEndsTheProgram();
  void DroppedFilesAreOpened();
  void LongWorkShowsHowFarItIs();
  void KeysGoWhereTheyBelong();
};

void MainWindowTest::FirstStartAsksForTheDirectories() {
  QVERIFY(QDir::home().mkpath(QStringLiteral("campaign")));
  const QString campaign = QDir::home().filePath(QStringLiteral("campaign"));
  InNextDialog([this, campaign](QDialog& dialog) {
    QVERIFY(program_->window == nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Options"));
    auto& tree = *dialog.findChild<QTreeView*>(QStringLiteral("dirNG3"));
    const auto place = [&tree, campaign] {
      const auto& model = static_cast<const QFileSystemModel&>(*tree.model());
      tree.scrollTo(model.index(campaign));
      return tree.visualRect(model.index(campaign));
    };
    QTRY_VERIFY(tree.viewport()->rect().contains(place().center()) && !place().isEmpty());
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place().center());
    QTRY_COMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("txtNG3"))->text(), campaign);
    auto* box = dialog.findChild<QCheckBox*>(QStringLiteral("chkCloneInit"));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdOK")), Qt::LeftButton);
  });
  program_->InstallTables();
  program_->Start();
  QVERIFY(program_->window != nullptr && program_->window->isVisible());
  const std::string written = program_->files.ReadWhole("C:\\tracker\\tracker.ini");
  QVERIFY(written.find("NG3Dir=" + FromQString(campaign) + "\r\n") != std::string::npos);
  QVERIFY(static_cast<bool>(program_->session.environment.settings.CloneInit));
  // The directory counts from the next start on.
  QCOMPARE(program_->session.environment.settings.NG3Dir, std::string());
}

void MainWindowTest::LoaderImportsTheMarkedFiles() {
  StartFight();
  QStringList names;
  for (int row = 1; row <= program_->Rows(); ++row) names += program_->Cell(row, 0);
  names.sort();
  QCOMPARE(names.join(QLatin1Char(',')),
           QStringLiteral("Brand,Ganger,Old Marrow,Pike Warden,Quay Hound,Sable,Tollkeeper,Vex"));
  QCOMPARE(program_->Text("lblName2"), QStringLiteral("Vex"));
}

void MainWindowTest::StepsThroughTheTurnAndBack() {
  StartFight();
  program_->Key(Qt::Key_R, Qt::ControlModifier);
  // Nobody is wounded, so each pass takes ten off everybody, and who has nothing left is through.
  QStringList expected;
  for (int spent = 0; spent < 60; spent += 10) {
    for (int row = 1; row <= program_->Rows(); ++row) {
      if (program_->Cell(row, 1).toInt() > spent) expected += program_->Cell(row, 0);
    }
  }
  QVERIFY(expected.size() > 8);
  QStringList acted;
  for (program_->Key(Qt::Key_F8); program_->Text("lblPhase") != QLatin1String("End of turn!");
       program_->Key(Qt::Key_F8)) {
    QCOMPARE(program_->Text("lblName2"), program_->GreenName());
    acted += program_->Text("lblName2");
    QVERIFY(acted.size() <= expected.size());
  }
  QCOMPARE(acted, expected);

  program_->Key(Qt::Key_F7);
  QVERIFY(program_->Text("lblPhase").startsWith(QLatin1String("History-Phase:")));
  QVERIFY(expected.contains(program_->GreenName()));
}

void MainWindowTest::GridShowsAndEdits() {
  StartFight();
  const int row = program_->RowOf(QStringLiteral("Ganger"));
  program_->ClickCell(row, 1);
  QCOMPARE(program_->Text("lblName2"), QStringLiteral("Ganger"));
  QCOMPARE(program_->Text("txtCP"), QStringLiteral("4"));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("17"));
  QCOMPARE(Displayed().Name, std::string("Ganger"));
  QCOMPARE(Displayed().RRSLT.Value(), 17);
  QCOMPARE(program_->Text("txtRRSLT"), QStringLiteral("17"));

  program_->Click("txtKP");
  QCOMPARE(QApplication::focusWidget(), &program_->Find("txtKP"));
  program_->Key(Qt::Key_Escape);
  QCOMPARE(QApplication::focusWidget(), &program_->Find("GridX"));
  // The header stands before the pages.
  program_->Key(Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget(), &program_->Find("txtRRSLT"));
}

void MainWindowTest::DamageKeysAndButtons() {
  StartFight();
  program_->Display(QStringLiteral("Ganger"));
  struct Step {
    const char* button;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    int physical;
    int stun;
    const char* condition;
    const char* modifier;
  };
  const Qt::KeyboardModifiers control = Qt::ControlModifier;
  const Qt::KeyboardModifiers both = Qt::ControlModifier | Qt::ShiftModifier;
  const Step steps[] = {
      {"cmdMDam_0", {}, {}, 3, 0, "0M", "DamMod:+2"},
      {nullptr, Qt::Key_1, control, 4, 0, "0M", "DamMod:+2"},
      {nullptr, Qt::Key_5, control, 4, 1, "LM", "DamMod:+3"},
      {"cmdReduce_1", {}, {}, 4, 0, "0M", "DamMod:+2"},
      {nullptr, Qt::Key_Up, both, 4, 1, "LM", "DamMod:+3"},
      {nullptr, Qt::Key_3, control, 10, 1, "LD", "DamMod:+4"},
      {nullptr, Qt::Key_0, control, 0, 1, "L0", "DamMod:+1"},
      {"cmdDamZero_1", {}, {}, 0, 0, "00", "DamMod:+0"},
  };
  for (const Step& step : steps) {
    if (step.button != nullptr)
      program_->Click(step.button);
    else
      program_->Key(step.key, step.modifiers);
    QCOMPARE(Boxes("arPBDamage_0"), step.physical);
    QCOMPARE(Boxes("arPBDamage_1"), step.stun);
    QCOMPARE(program_->Cell(program_->RowOf(QStringLiteral("Ganger")), 2),
             QString::fromLatin1(step.condition));
    QCOMPARE(program_->Text("lblDamMod"), QString::fromLatin1(step.modifier));
  }
  // The keys answer on every page.
  program_->OpenPage(3);
  program_->Key(Qt::Key_2, control);
  QCOMPARE(Boxes("arPBDamage_0"), 3);
}

void MainWindowTest::PoolKeysAndButtons() {
  StartFight();
  program_->Display(QStringLiteral("Ganger"));
  program_->Key(Qt::Key_Right, Qt::AltModifier);
  QCOMPARE(Displayed().CP.Value(), 5);
  program_->Click("cmdCPnegative");
  program_->Click("cmdCPnegative");
  QCOMPARE(program_->Text("txtCP"), QStringLiteral("3"));
  program_->Click("txtKP");
  program_->Key(Qt::Key_Up);
  QCOMPARE(program_->Text("txtKP"), QStringLiteral("2"));
  program_->Click("cmdADplus");
  QCOMPARE(program_->Text("txtAS"), QStringLiteral("1"));
}

void MainWindowTest::BoxesAreStoredOrPaintedBack() {
  Start();
  auto& box = program_->Find<QLineEdit>("txtRC_0");
  const QString before = box.text();
  // With nobody displayed there is nothing to store the text in.
  QTest::keyClicks(&box, QStringLiteral("7"));
  QCOMPARE(box.text(), before);

  program_->ImportEight();
  program_->Display(QStringLiteral("Ganger"));
  box.selectAll();
  const QSignalSpy changes(&box, &QLineEdit::textChanged);
  QTest::keyClicks(&box, QStringLiteral("3"));
  QCOMPARE(box.text(), QStringLiteral("3"));
  QCOMPARE(Displayed().RCPrim, std::string("3"));
  QCOMPARE(changes.count(), 1);
  program_->Display(QStringLiteral("Vex"));
  program_->Display(QStringLiteral("Ganger"));
  QCOMPARE(box.text(), QStringLiteral("3"));
}

void MainWindowTest::ToolbarMarksMirrorTheMenu() {
  StartFight();
  program_->Key(Qt::Key_R, Qt::ControlModifier);
  program_->Key(Qt::Key_F8);
  const QString first = program_->Text("lblName2");
  struct Mark {
    const char* button;
    const char* action;
  };
  for (const Mark& mark : {Mark{"Delay", "mnuPDelay"}, Mark{"Disable", "mnuPInactive"}}) {
    const auto& button = program_->Find<QToolButton>(mark.button);
    auto& action = *program_->window->findChild<QAction*>(QString::fromLatin1(mark.action));
    program_->Click(mark.button);
    QVERIFY2(button.isChecked() && action.isChecked(), mark.button);
    program_->Display(QStringLiteral("Ganger"));
    QVERIFY2(!button.isChecked() && !action.isChecked(), mark.button);
    program_->Display(first);
    QVERIFY2(button.isChecked() && action.isChecked(), mark.button);
    auto& menu = *qobject_cast<QMenu*>(program_->window->menuBar()->actions()[3]->menu());
    menu.popup(program_->window->mapToGlobal(QPoint(100, 100)));
    QTRY_VERIFY(menu.isVisible());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    QTRY_VERIFY(!menu.isVisible());
    QVERIFY2(!button.isChecked() && !action.isChecked(), mark.button);
  }
}

void MainWindowTest::HelpOpensFindsAndCloses() {
  Start();
  program_->Key(Qt::Key_F1);
  auto& help = program_->Find<QDialog>("frmHelp");
  auto& topics = *help.findChild<QTreeWidget*>(QStringLiteral("lstTopics"));
  const auto& text = *help.findChild<QTextBrowser*>(QStringLiteral("txtTopic"));
  QTRY_VERIFY(topics.hasFocus());
  const int all = topics.topLevelItemCount();
  const QString first = text.toPlainText();
  program_->Key(Qt::Key_Down);
  program_->Key(Qt::Key_Down);
  QVERIFY(text.toPlainText() != first);

  // The tip of one command, which stands nowhere else.
  const QString tip = ToQString(FindCommand("mnuTClear")->tip).toUpper();
  program_->Key(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), tip);
  QCOMPARE(topics.topLevelItemCount(), 1);
  QVERIFY(text.toPlainText().contains(tip, Qt::CaseInsensitive));
  QVERIFY(!text.toPlainText().contains(ToQString(FindCommand("mnuTNext")->tip)));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
  QCOMPARE(topics.topLevelItemCount(), 0);
  program_->Key(Qt::Key_Escape);
  QVERIFY(!help.isVisible());

  // From the dice roller, over the topic that was left, and with nothing looked for any more.
  program_->window->activateWindow();
  QTRY_VERIFY(program_->window->isActiveWindow());
  program_->Key(Qt::Key_F12);
  QTRY_VERIFY(program_->Find<QPushButton>("cmdRoll").hasFocus());
  program_->Key(Qt::Key_F1);
  QTRY_VERIFY(topics.hasFocus());
  QCOMPARE(topics.topLevelItemCount(), all);
  QVERIFY(text.toPlainText().contains(QLatin1String("Rule of One!")));
}

void MainWindowTest::ClosingTheWindowEndsTheProgram() {
  Start();
  QTimer::singleShot(0, program_->window.get(), &QWidget::close);
  QTimer stillThere;
  connect(&stillThere, &QTimer::timeout, [] { QCoreApplication::exit(1); });
  stillThere.start(5000);
  QCOMPARE(QApplication::exec(), 0);
  QVERIFY(program_->userSettings.values.count("Settings/MainLeft") > 0);
}

void MainWindowTest::DroppedFilesAreOpened() {
  Start();
  // A note takes dropped texts, and yet no names of files.
  QWidget& note = *program_->Find<QPlainTextEdit>("txtNotes").viewport();
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(NG_SOURCE_DIR "/sample/characters/vex.ng3"),
                 QUrl::fromLocalFile(NG_SOURCE_DIR "/sample/characters/brand.ng3")});
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
  QApplication::sendEvent(&note, &enter);
  QVERIFY(enter.isAccepted());
  QDropEvent drop({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
  QApplication::sendEvent(&note, &drop);
  QCOMPARE(program_->Rows(), 2);
  QCOMPARE(program_->Text("lblName2"), QStringLiteral("Brand"));
  QCOMPARE(program_->Find<QPlainTextEdit>("txtNotes").toPlainText(), QString());
}

void MainWindowTest::LongWorkShowsHowFarItIs() {
  Start();
  const auto shown = [] { return QApplication::activeModalWidget() != nullptr; };
  program_->prompts.ShowProgress("Importing characters", 0, 2);
  QVERIFY(!shown());
  QTRY_VERIFY((program_->prompts.ShowProgress("Importing characters", 1, 2), shown()));
  QCOMPARE(QApplication::activeModalWidget()->property("labelText").toString(),
           QStringLiteral("Importing characters"));
  // It cannot be sent away, which would let another command run inside this one.
  QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  QVERIFY(shown());
  program_->prompts.ShowProgress("Importing characters", 2, 2);
  QVERIFY(!shown());
}

void MainWindowTest::KeysGoWhereTheyBelong() {
  StartFight();
  program_->Display(QStringLiteral("Vex"));
  program_->OpenPage(3);
  program_->Click("txtNotes");
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("talks first"));
  // In a note this deletes words and no combatant.
  for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Delete}) program_->Key(key, Qt::ControlModifier);
  QCOMPARE(program_->Rows(), 8);
  QCOMPARE(program_->Find<QPlainTextEdit>("txtNotes").toPlainText().trimmed(),
           QStringLiteral("first"));

  // The turn is stepped on from the dice roller; a shot from the main window goes back there.
  program_->Key(Qt::Key_R, Qt::ControlModifier);
  program_->window->Do({"ShowRoller"});
  QWidget& roller = *program_->Find("cmdRoll").window();
  QTRY_COMPARE(QApplication::activeWindow(), &roller);
  program_->Key(Qt::Key_F8);
  QCOMPARE(program_->Text("lblPhase"), QStringLiteral("NEW-Phase: 1"));
  program_->window->Do({"lstWeapon_Select", 1});
  program_->window->Do({"cmdSetPrim"});
  program_->window->activateWindow();
  QTRY_COMPARE(QApplication::activeWindow(), program_->window.get());
  program_->Key(Qt::Key_F2);
  QTRY_COMPARE(QApplication::activeWindow(), &roller);
  program_->Key(Qt::Key_F2);
  QCOMPARE(program_->Text("txtTBTT_0"), QStringLiteral("2"));
}

}  // namespace ng

int main(int argc, char** argv) { return ng::RunGuiTest<ng::MainWindowTest>(argc, argv); }
#include "main_window_test.moc"
