#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <algorithm>

#include "app/commands.h"
#include "gui/gui_program.h"
#include "ui/combat_page.h"
#include "ui/damage_bar.h"

namespace ng {

/// The main window under real clicks and keys.
class MainWindowTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<GuiProgram> program_;

  void Start() {
    program_->InstallSample();
    program_->Start();
  }
  void StartFight() {
    Start();
    program_->ImportEight();
    QCOMPARE(program_->Rows(), 8);
  }
  int Boxes(const char* bar) const { return program_->Find<DamageBar>(bar).boxes(); }
  PlayerRecord& Displayed() const {
    return program_->fight.Players[program_->fight.CurrentPCpointer];
  }
  void OpenPage(int page) const {
    QTabBar& bar = *program_->Find<QTabWidget>("tabMain").tabBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(page).center());
  }
  QHash<QString, QRect> Geometries() const;
  QStringList MnemonicsInSight() const;
  static QStringList NamelessInSight(int& controls);

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
  void EveryEntryHasTextKeyAndTip();
  void HelpOpensFindsAndCloses();
  void EveryControlInSightHasAName();
  void MnemonicsAreUniqueOnEachPage();
  void NothingMovesWithTheCombatant();
  void CombatPageFitsTheLeastWindow();
  void ClosingTheWindowEndsTheProgram();
  void DroppedFilesAreOpened();
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
  OpenPage(3);
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
    auto& menu = *qobject_cast<QMenu*>(program_->window->menuBar()->actions()[2]->menu());
    menu.popup(program_->window->mapToGlobal(QPoint(100, 100)));
    QTRY_VERIFY(menu.isVisible());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    QTRY_VERIFY(!menu.isVisible());
    QVERIFY2(!button.isChecked() && !action.isChecked(), mark.button);
  }
}

void MainWindowTest::EveryEntryHasTextKeyAndTip() {
  Start();
  QStringList faults;
  QSet<QString> keys;
  int entries = 0;
  for (const QAction* title : program_->window->menuBar()->actions()) {
    QSet<QString> mnemonics;
    for (const QAction* action : title->menu()->actions()) {
      if (action->isSeparator()) continue;
      ++entries;
      const QString key = action->shortcut().toString(QKeySequence::NativeText);
      const QString mnemonic = QKeySequence::mnemonic(action->text()).toString();
      if (key.isEmpty() || keys.contains(key)) faults += action->objectName() + ": key";
      if (!action->toolTip().endsWith(QStringLiteral(" (%1)").arg(key)) ||
          !action->toolTip().startsWith(action->statusTip()) || action->statusTip().isEmpty()) {
        faults += action->objectName() + ": tip";
      }
      if (mnemonic.isEmpty() || mnemonics.contains(mnemonic)) {
        faults += action->objectName() + ": text";
      }
      keys.insert(key);
      mnemonics.insert(mnemonic);
    }
  }
  QVERIFY(entries >= 20);
  QCOMPARE(faults.join(QLatin1String(", ")), QString());
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

/// The controls in sight that a screen reader has no name for; counts all in sight.
QStringList MainWindowTest::NamelessInSight(int& controls) {
  QStringList nameless;
  for (QWidget* widget : QApplication::allWidgets()) {
    const bool control = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                         qobject_cast<QLineEdit*>(widget) != nullptr ||
                         qobject_cast<QComboBox*>(widget) != nullptr ||
                         qobject_cast<QTextEdit*>(widget) != nullptr ||
                         qobject_cast<QPlainTextEdit*>(widget) != nullptr ||
                         (qobject_cast<QAbstractItemView*>(widget) != nullptr &&
                          qobject_cast<QHeaderView*>(widget) == nullptr);
    if (!control || !widget->isVisible()) continue;
    ++controls;
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    // The toolkit speaks the entry of a closed list here and the list's name elsewhere.
    const QString name = qobject_cast<QComboBox*>(widget) != nullptr || spoken == nullptr
                             ? widget->accessibleName()
                             : spoken->text(QAccessible::Name);
    if (name.trimmed().size() < 2) {
      nameless += widget->window()->objectName() + "." + widget->objectName();
    }
  }
  return nameless;
}

void MainWindowTest::EveryControlInSightHasAName() {
  StartFight();
  QStringList nameless;
  int controls = 0;
  for (int page = 0; page < 4; ++page) {
    OpenPage(page);
    nameless += NamelessInSight(controls);
  }
  program_->files.Put("C:\\tracker\\ngtracker.txt", "Vex\r\n");
  for (const char* window : {"ShowRoller", "mnuViewGM", "mnuViewLog", "mnuViewReference",
                             "mnuViewInfo", "mnuHelpContents"}) {
    program_->window->Do({window});
  }
  for (int page = 0; page < 4; ++page) {
    program_->window->Do({"ngdr.tabTest", page});
    nameless += NamelessInSight(controls);
  }
  for (const char* dialog : {"mnuViewOptions", "mnuFileOpen", "mnuHelpAbout"}) {
    InNextDialog([&](QDialog& open) {
      nameless += NamelessInSight(controls);
      open.reject();
    });
    program_->window->Do({dialog});
  }
  QVERIFY(controls > 300);
  QCOMPARE(nameless.join(QLatin1String(", ")), QString());
}

/// Letters that work with Alt now, each with who has it.
QStringList MainWindowTest::MnemonicsInSight() const {
  QStringList found;
  const auto add = [&found](const QString& text) {
    const QString key = QKeySequence::mnemonic(text).toString();
    if (!key.isEmpty()) found += key;
  };
  for (const QAction* title : program_->window->menuBar()->actions()) add(title->text());
  const QTabBar& bar = *program_->Find<QTabWidget>("tabMain").tabBar();
  for (int page = 0; page < bar.count(); ++page) add(bar.tabText(page));
  for (const auto* button : program_->window->findChildren<QAbstractButton*>()) {
    if (button->isVisible()) add(button->text());
  }
  for (const auto* label : program_->window->findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy() != nullptr) add(label->text());
  }
  return found;
}

void MainWindowTest::MnemonicsAreUniqueOnEachPage() {
  StartFight();
  for (int page = 0; page < 4; ++page) {
    OpenPage(page);
    QStringList letters = MnemonicsInSight();
    letters.sort();
    QStringList once = letters;
    once.removeDuplicates();
    QVERIFY(letters.contains(QStringLiteral("Alt+F")) && letters.contains(QStringLiteral("Alt+1")));
    QCOMPARE(letters.join(QLatin1Char(' ')), once.join(QLatin1Char(' ')));
  }
}

QHash<QString, QRect> MainWindowTest::Geometries() const {
  QHash<QString, QRect> places;
  for (const QWidget* widget : program_->window->findChildren<QWidget*>()) {
    const QString name = widget->objectName();
    // What the toolkit names itself scrolls with the contents.
    if (name.isEmpty() || name.startsWith(QLatin1String("qt_")) || !widget->isVisible()) continue;
    places.insert(name, QRect(widget->mapTo(program_->window.get(), QPoint()), widget->size()));
  }
  return places;
}

void MainWindowTest::NothingMovesWithTheCombatant() {
  StartFight();
  for (int page = 0; page < 4; ++page) {
    OpenPage(page);
    program_->Display(QStringLiteral("Ganger"));
    // The layouts arrange anew only when their requests are handled.
    QCoreApplication::processEvents();
    const QHash<QString, QRect> places = Geometries();
    QVERIFY(places.contains(QStringLiteral("lblName2")) && places.size() > 20);
    for (const char* name : {"Vex", "Sable", "Quay Hound", "Old Marrow"}) {
      program_->Display(QString::fromLatin1(name));
      QCOMPARE(program_->Text("lblName2"), QString::fromLatin1(name));
      QCoreApplication::processEvents();
      const QHash<QString, QRect> now = Geometries();
      QStringList moved;
      for (auto place = places.begin(); place != places.end(); ++place) {
        if (now.value(place.key()) != place.value()) moved += place.key();
      }
      QCOMPARE(moved.join(QLatin1String(", ")), QString());
    }
  }
}

void MainWindowTest::CombatPageFitsTheLeastWindow() {
  StartFight();
  program_->window->resize(1024, 700);
  QTRY_COMPARE(program_->window->size(), QSize(1024, 700));
  const auto& page = *program_->window->findChild<CombatPage*>();
  QTRY_VERIFY(page.height() < 700);
  QVERIFY(page.width() >= page.minimumSizeHint().width());
  QVERIFY(page.height() >= page.minimumSizeHint().height());
  QStringList faults;
  for (const auto* widget : page.findChildren<QWidget*>()) {
    if (widget->objectName().isEmpty() || !widget->isVisible()) continue;
    const QRect place(widget->mapTo(&page, QPoint()), widget->size());
    const auto* button = qobject_cast<const QPushButton*>(widget);
    const bool cut =
        button != nullptr && button->fontMetrics().horizontalAdvance(
                                 button->text().remove(QLatin1Char('&'))) > button->width();
    const bool list = widget->objectName().startsWith(QLatin1String("qt_"));
    if (!list && (cut || !page.rect().contains(place))) faults += widget->objectName();
  }
  QCOMPARE(faults.join(QLatin1String(", ")), QString());
  const QRect onWindow(page.mapTo(program_->window.get(), QPoint()), page.size());
  QVERIFY(program_->window->rect().contains(onWindow));
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

}  // namespace ng

int main(int argc, char** argv) {
  // A home of its own, and not far down: a directory tree must reach it without scrolling sideways.
  const QTemporaryDir home;
  qputenv("HOME", home.path().toLocal8Bit());
  qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
  QApplication application(argc, argv);
  ng::MainWindowTest test;
  return QTest::qExec(&test, argc, argv);
}
#include "main_window_test.moc"
