#pragma once

#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "app/startup.h"
#include "fakes/fake_journals.h"
#include "fakes/fakes.h"
#include "journal/desk.h"
#include "ui/dialogs/prompts.h"
#include "ui/look/row_colour.h"
#include "ui/look/theme.h"
#include "ui/main/main_window.h"
#include "ui/wiring/text.h"

namespace ng {

/// Drives the next modal dialog that opens. A dialog that is still open when `drive` returns is
/// closed, and the test fails.
inline void InNextDialog(const std::function<void(QDialog&)>& drive) {
  auto* watch = new QTimer(qApp);
  QObject::connect(watch, &QTimer::timeout, watch, [watch, drive] {
    QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) return;
    watch->stop();
    drive(*dialog);
    if (dialog != nullptr && dialog->isVisible()) {
      QTest::qFail("the dialog was left open", __FILE__, __LINE__);
      dialog->reject();
    }
    watch->deleteLater();
  });
  watch->start(1);
}

/// Runs the tests of a class.
template <typename Test>
int RunGuiTest(int argc, char** argv) {
  // A home of its own, and not far down: a directory tree must reach it without scrolling sideways.
  const QTemporaryDir home;
  qputenv("HOME", home.path().toLocal8Bit());
  qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
  QApplication application(argc, argv);
  Test test;
  return QTest::qExec(&test, argc, argv);
}

/// The whole program with its real windows over a disk in memory, started as it starts for the game
/// master. The sample campaign is on that disk under its own native paths.
class GuiProgram : private StartupWindows {
 public:
  FakeFiles files;
  QtPrompts prompts;
  FakeUserSettings userSettings;
  FakeClock clock;
  FakeJournals journals;
  Desk desk{
      {{files, prompts, userSettings}, clock, journals, {"test", 20461, {{}, "C:\\tracker"}}}};
  Session& session = desk.session();
  Fight& fight = session.main.fight;
  /// What came to the door, which lets nothing in while nothing is performed.
  std::vector<Act> acts;
  bool performing = true;
  const Perform door = [this](const Act& act) {
    acts.push_back(act);
    if (performing) desk.Do(act);
  };
  std::unique_ptr<MainWindow> window;

  GuiProgram() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral("cannot be painted")));
    prompts.Attach(session, door);
    QObject::connect(&messageWatch_, &QTimer::timeout, [] {
      const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box != nullptr) qFatal("unexpected message: %s", qPrintable(box->text()));
    });
    messageWatch_.start(10);
  }

  /// Mounts the sample campaign, and has the settings name its two directories.
  void InstallSample() {
    InstallSettings("NG3Dir=" + sample_ + "/characters\r\n");
    files.Mount(sample_ + "/characters", sample_ + "/characters");
  }
  /// The same without a directory of characters, as at the first start.
  void InstallTables() { InstallSettings({}); }

  void Start() {
    ApplyTheme(*qApp, Theme::Light());
    if (!desk.Start(*this)) qFatal("the program does not start");
    TakeKeys();
  }

  template <typename Widget = QWidget>
  Widget& Find(const char* name) const {
    auto* widget = window->findChild<Widget*>(QString::fromLatin1(name));
    if (widget == nullptr) qFatal("no widget is named %s", name);
    return *widget;
  }

  void Click(const char* name) const { QTest::mouseClick(&Find(name), Qt::LeftButton); }
  /// Presses a key in the widget that has the focus, wherever that is.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : window.get(), key, modifiers);
  }
  QString Text(const char* name) const { return Find(name).property("text").toString(); }

  QString Cell(int row, int column) const {
    return Model().index(row - 1, column).data().toString();
  }
  int Rows() const { return Model().rowCount(); }
  /// Row whose combatant has this name; 0 for none.
  int RowOf(const QString& name) const {
    for (int row = Rows(); row > 0; --row) {
      if (Cell(row, 0) == name) return row;
    }
    return 0;
  }
  /// Name of the combatant in the green row; empty when no row is green.
  QString GreenName() const {
    for (int row = 1; row <= Rows(); ++row) {
      const auto colour = Model().index(row - 1, 0).data(Qt::BackgroundRole).value<QColor>();
      if (colour == ToQColor(RowColour::Green)) return Cell(row, 0);
    }
    return {};
  }
  void ClickCell(int row, int column) const {
    auto& grid = Find<QTableView>("GridX");
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                      grid.visualRect(Model().index(row - 1, column)).center());
  }
  void OpenPage(int page) const {
    QTabBar& bar = *Find<QTabWidget>("tabMain").tabBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(page).center());
  }
  /// Has the combatant displayed.
  void Display(const QString& name) const { ClickCell(RowOf(name), 0); }

  /// Imports Brand, Ganger, Quay Hound, Old Marrow, Pike Warden, Sable, Tollkeeper and Vex: opens
  /// the dialog by its key and picks lines of the file list with Shift and Control.
  void ImportEight() const {
    InNextDialog([](QDialog& dialog) {
      auto& list = *dialog.findChild<QListWidget*>(QStringLiteral("filesXML"));
      const auto click = [&list](int line, Qt::KeyboardModifiers modifiers) {
        list.scrollToItem(list.item(line));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                          list.visualItemRect(list.item(line)).center());
      };
      click(9, {});
      click(15, Qt::ShiftModifier);
      for (const int line : {11, 13, 1, 4, 5}) click(line, Qt::ControlModifier);
      QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdLoad")), Qt::LeftButton);
    });
    Key(Qt::Key_O, Qt::ControlModifier);
    TakeKeys();
  }

 private:
  void InstallSettings(const std::string& more) {
    files.Mount(sample_ + "/DATA", sample_ + "/DATA");
    files.Put("C:\\tracker\\tracker.ini",
              "[NGtracker]\r\n" + more + "DatDir=" + sample_ + "/DATA\r\n");
  }
  /// Where no window manager hands the keys on, they have to be asked for.
  void TakeKeys() const {
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window.get())) qFatal("the window does not get the keys");
  }
  const QAbstractItemModel& Model() const { return *Find<QTableView>("GridX").model(); }

  void ShowSplash() override {}
  void LoadMain() override {
    window = std::make_unique<MainWindow>(session, door);
    prompts.SetMainWindow(*window, [this] { window->PaintAll(); });
  }
  void UnloadSplash() override {}
  void ShowMain() override { window->show(); }

  /// No test expects a message, and one that nobody answers would hold everything up.
  QTimer messageWatch_;
  const std::string sample_ = NG_SOURCE_DIR "/sample";
};

/// What the tests of the windows share: the program, on the sample campaign.
class GuiTest : public QObject {
 protected:
  void Start() {
    program_->InstallSample();
    program_->Start();
  }
  void StartFight() {
    Start();
    program_->ImportEight();
    QCOMPARE(program_->Rows(), 8);
  }

  std::unique_ptr<GuiProgram> program_;
};

}  // namespace ng
