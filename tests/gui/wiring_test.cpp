#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTreeView>
#include <QTreeWidget>
#include <algorithm>
#include <stdexcept>

#include "app/commands.h"
#include "app/controls.h"
#include "app/form_windows.h"
#include "app/keys.h"
#include "gui/gui_program.h"
#include "ui/wiring/bind.h"
#include "ui/wiring/copies.h"

namespace ng {
namespace {

/// How each window is opened; the main window is open.
struct Opener {
  const char* window;
  Act act;
  bool modal = false;
};
const Opener kOpeners[] = {{"frmMain", {}},
                           {"ngdr", {"ShowRoller"}},
                           {"frmGM", {"mnuViewGM"}},
                           {"frmDisplay", {"mnuViewLog"}},
                           {"frmReference", {"mnuViewReference"}},
                           {"frmInfo", {"mnuViewInfo"}},
                           {"frmHelp", {"mnuHelpContents"}},
                           {"frmHistory", {"mnuViewHistory"}},
                           {"frmRecent", {"mnuFileRecent"}, true},
                           {"frmLoader", {"mnuFileOpen"}, true},
                           {"frmOptions", {"mnuViewOptions"}, true},
                           {"frmSelSkillLevel", {"cmdSkillPrimary"}, true}};

/// Names of what is neither a control nor a command: frames, and what asks something of its own
/// before it becomes an act.
constexpr const char* kNeither[] = {"headerPanel",  "testStrip",    "toolBar",
                                    "cmdClose",     "drvNG3",       "drvDat",
                                    "cmdBrowseNG3", "cmdBrowseDat", "copyLine"};

/// Modifiers that no caption, list or rule ever fills.
constexpr const char* kUnseen[] = {"txtRVar_8", "txtRVar_9", "txtRVar_13"};

/// Commands that no widget sends by its name: the start, the end, files that are dropped, and
/// characters that a box has left out.
constexpr const char* kWithoutWidget[] = {"Form_Load", "Form_Unload",  "MainLeft",
                                          "MainTop",   "MainWidth",    "MainHeight",
                                          "Form_Drop", "Form_LeftOut", "ngdr.Form_Load"};

template <typename Names>
bool Has(const Names& names, const QString& name) {
  return std::ranges::any_of(names,
                             [&name](const char* own) { return name == QLatin1String(own); });
}

/// The names of a form's controls, and those that its widgets must have.
class ControlNames : public ControlVisitor {
 public:
  QStringList controls;
  /// Each with the name that will do as well.
  QList<std::pair<QString, QString>> widgets;

  void Text(ControlName control, const std::string&) override { Add(control); }
  void Check(ControlName control, bool) override { Add(control); }
  void Choice(ControlName control, int) override {
    Add(control, QStringLiteral("%1_%2").arg(control.name).arg(control.firstOption + 1));
  }
  void Level(ControlName control, int) override { Add(control); }
  void List(ControlName control, const std::vector<std::string>&) override { Add(control); }
  void CheckList(ControlName control, const std::vector<CarriedLine>&) override { Add(control); }
  void Turn(ControlName control, TurnState) override { Add(control); }
  void Grid(ControlName control, const InitiativeGrid&, int) override { Add(control); }

 private:
  void Add(ControlName control, const QString& option = {}) {
    const QString name = QString::fromLatin1(control.name);
    controls += name;
    widgets +=
        {control.index < 0 ? name : QStringLiteral("%1_%2").arg(name).arg(control.index), option};
  }
};

/// The widgets and entries of a window that we have named, and not the toolkit.
QList<QObject*> NamedIn(const QWidget& window) {
  static const QRegularExpression toolkit(QStringLiteral("^(|_?qt?_.*|Scroll.*Button)$"));
  QList<QObject*> named;
  for (QObject* object : window.findChildren<QObject*>()) {
    const auto* widget = qobject_cast<const QWidget*>(object);
    const bool here = widget != nullptr ? widget->window() == &window
                                        : qobject_cast<const QAction*>(object) != nullptr;
    if (here && !toolkit.match(object->objectName()).hasMatch()) named += object;
  }
  return named;
}

/// The controls without a widget, and the widgets that have a name twice.
QStringList LostControls(const ControlNames& form, const QStringList& names) {
  QStringList lost;
  for (const auto& [name, option] : form.widgets) {
    const bool seen = names.contains(name) || names.contains(option);
    if (seen == Has(kUnseen, name)) lost += name;
  }
  for (const QString& name : names) {
    if (names.count(name) > 1) lost += name;
  }
  return lost;
}

/// The names that are neither a control nor a command nor known to be none of them.
QStringList IdleNames(const FormWindow& window, const ControlNames& form,
                      const QStringList& names) {
  QStringList idle;
  for (const QString& name : names) {
    const std::string widget = ParseWidgetName(name).control;
    const std::string control(ControlOf(widget));
    const bool meant =
        form.controls.contains(QString::fromStdString(control)) ||
        FindCommand(window.prefix + control) != nullptr ||
        std::ranges::any_of(RollerKeys(),
                            [&widget](const ButtonKey& key) { return widget == key.button; }) ||
        Has(kNeither, name) || Has(ToolbarKeys(), name);
    if (!meant) idle += name;
  }
  return idle;
}

/// The arrays of buttons whose indices do not go on from 0 or 1. Of boxes and labels the form says
/// itself which there are.
QStringList TornArrays(const ControlNames& form, const QStringList& names) {
  QMap<QString, QList<int>> arrays;
  for (const QString& name : names) {
    const WidgetName parts = ParseWidgetName(name);
    const QString array = QString::fromStdString(parts.control);
    if (array != name && !form.widgets.contains({name, QString()})) arrays[array] += parts.index;
  }
  QStringList torn;
  for (auto array = arrays.begin(); array != arrays.end(); ++array) {
    std::ranges::sort(*array);
    const bool whole = array->back() - array->front() == array->size() - 1;
    if (!whole || array->front() > 1) torn += array.key();
  }
  return torn;
}

}  // namespace

/// Whether every control has its widget, and every widget and command its use.
class WiringTest : public GuiTest {
  Q_OBJECT

 private:
  using Look = std::function<void(const FormWindow&, QWidget&)>;
  void InEveryWindow(const Look& look);
  void Open(const Opener& opener, const std::function<void(QWidget&)>& look);
  void Use(QWidget& widget);
  static void UseList(QTreeWidget& list);
  void UseGrid(QWidget& grid) const;
  void UseFiles(QListWidget& files) const;

 private slots:
  void init() { program_ = std::make_unique<GuiProgram>(); }
  void cleanup() { program_.reset(); }

  void EveryControlHasItsWidgetAndEveryNameItsMeaning();
  void EveryCommandCanBeSent();
  void AWalkInAnotherOrderIsToldAndStillPaintsRight();
  void BadgeAndMarksFollowTheForm();
  void NothingIsDroppedIntoACommandThatAsks();
};

void WiringTest::Open(const Opener& opener, const std::function<void(QWidget&)>& look) {
  const QString name = QString::fromLatin1(opener.window);
  if (opener.modal) {
    InNextDialog([&](QDialog& dialog) {
      QCOMPARE(dialog.objectName(), name);
      look(dialog);
      dialog.reject();
    });
  }
  if (!opener.act.control.empty()) program_->window->Do(opener.act);
  if (opener.modal) return;
  const bool main = program_->window->objectName() == name;
  look(main ? *program_->window : program_->Find(opener.window));
}

void WiringTest::InEveryWindow(const Look& look) {
  StartFight();
  program_->files.Put("C:\\tracker\\ngtracker.txt", "Vex\r\n");
  program_->Display(QStringLiteral("Vex"));
  // A skill with two levels, so that one of them has to be picked.
  const auto& skills = program_->session.main.sheet.lstActive;
  const auto both = std::ranges::find_if(
      skills, [](const std::string& line) { return line.find('/') != std::string::npos; });
  QVERIFY(both != skills.end());
  program_->session.Do({"lstActive_Select", static_cast<int>(both - skills.begin())});
  std::size_t seen = 0;
  for (const Opener& opener : kOpeners) {
    Open(opener, [&](QWidget& window) {
      look(FindFormWindow(opener.window), window);
      ++seen;
    });
  }
  QCOMPARE(seen, FormWindows().size());
}

void WiringTest::EveryControlHasItsWidgetAndEveryNameItsMeaning() {
  qsizetype controls = 0;
  InEveryWindow([&](const FormWindow& window, QWidget& widget) {
    ControlNames form;
    window.visit(program_->session, form);
    controls += form.widgets.size();
    QStringList names;
    for (const QObject* object : NamedIn(widget)) names += object->objectName();
    const QString faults =
        (LostControls(form, names) + IdleNames(window, form, names) + TornArrays(form, names))
            .join(QLatin1Char(' '));
    QVERIFY2(faults.isEmpty(), qPrintable(widget.objectName() + ": " + faults));
  });
  QVERIFY(controls > 180);
}

void WiringTest::UseList(QTreeWidget& list) {
  auto* line = new QTreeWidgetItem(&list, {QStringLiteral("line")});
  line->setCheckState(0, Qt::Checked);
  list.setCurrentItem(line);
}

void WiringTest::UseGrid(QWidget& grid) const {
  program_->ClickCell(1, 1);
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Down, Qt::Key_Right, Qt::Key_5, Qt::Key_Escape}) {
    QTest::keyClick(&grid, key);
  }
}

void WiringTest::UseFiles(QListWidget& files) const {
  files.item(0)->setSelected(true);
  program_->performing = true;
  files.item(1)->setSelected(true);
  program_->performing = false;
  files.item(1)->setSelected(false);
}

/// Does with a widget what the user can do with it.
void WiringTest::Use(QWidget& widget) {
  if (Has(kNeither, widget.objectName()) && widget.objectName() != QLatin1String("cmdClose"))
    return;
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->click();
    if (button->property("shape").isValid()) QTest::mouseClick(button, Qt::RightButton);
  } else if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
    tabs->setCurrentIndex(1);
  } else if (auto* strip = qobject_cast<QTabBar*>(&widget)) {
    strip->setCurrentIndex(1);
  } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    emit combo->activated(0);
  } else if (auto* list = qobject_cast<QTreeWidget*>(&widget)) {
    UseList(*list);
  } else if (auto* files = qobject_cast<QListWidget*>(&widget)) {
    UseFiles(*files);
  } else if (auto* tree = qobject_cast<QTreeView*>(&widget)) {
    tree->setCurrentIndex(static_cast<QFileSystemModel*>(tree->model())->index(QDir::tempPath()));
  } else if (widget.objectName() == QLatin1String("GridX")) {
    UseGrid(widget);
  } else if (qobject_cast<QLineEdit*>(&widget) != nullptr ||
             qobject_cast<QPlainTextEdit*>(&widget) != nullptr) {
    QTest::keyClick(&widget, Qt::Key_7);
  }
}

void WiringTest::EveryCommandCanBeSent() {
  InEveryWindow([this](const FormWindow&, QWidget& window) {
    // What is done becomes acts, and these change nothing.
    program_->performing = false;
    for (QObject* object : NamedIn(window)) {
      if (auto* action = qobject_cast<QAction*>(object)) action->trigger();
      if (auto* widget = qobject_cast<QWidget*>(object)) Use(*widget);
    }
    window.close();
    program_->performing = true;
  });
  QStringList faults;
  const auto check = [&](const std::string& command) {
    const bool sent = std::ranges::any_of(
        program_->acts, [&command](const Act& act) { return act.control == command; });
    const QString name = QString::fromStdString(command);
    if (sent == Has(kWithoutWidget, name)) faults += name;
  };
  for (const Command& command : Commands()) check(command.name);
  for (const Caption& caption : Captions()) check(std::string("ngdr.") + caption.control);
  QCOMPARE(faults.join(QLatin1String(", ")), QString());
}

void WiringTest::AWalkInAnotherOrderIsToldAndStillPaintsRight() {
  QWidget window;
  window.setObjectName(QStringLiteral("frmTwo"));
  QLabel first(&window);
  first.setObjectName(QStringLiteral("lblFirst"));
  QLabel second(&window);
  second.setObjectName(QStringLiteral("lblSecond"));
  Binder binder(window, [](const Act&) {});
  binder.Paint([](ControlVisitor& visitor) {
    visitor.Text({"lblFirst"}, "one");
    visitor.Text({"lblSecond"}, "two");
  });
  QTest::ignoreMessage(QtWarningMsg,
                       "frmTwo cannot be painted: lblSecond comes where another control was");
  binder.Paint([](ControlVisitor& visitor) { visitor.Text({"lblSecond"}, "three"); });
  QCOMPARE(first.text() + second.text(), QStringLiteral("onethree"));
  QTest::ignoreMessage(QtWarningMsg, "frmTwo cannot be painted: torn");
  binder.Paint([](ControlVisitor&) { throw std::runtime_error("torn"); });
  QVERIFY(!binder.Painting());
}

void WiringTest::BadgeAndMarksFollowTheForm() {
  StartFight();
  MainWindow& window = *program_->window;
  const auto colour = [this] {
    return program_->Find<QLabel>("lblTurn").palette().color(QPalette::Base);
  };
  window.Do({"mnuTReroll"});
  QCOMPARE(colour(), Theme::Current().group);
  window.Do({"mnuTNext"});
  QCOMPARE(colour(), QColor(0, 255, 0));
  window.Do({"mnuPDelay"});
  QCOMPARE(colour(), QColor(255, 255, 0));
  window.Do({"mnuPInactive"});
  QCOMPARE(colour(), QColor(255, 0, 0));

  program_->Display(QStringLiteral("Vex"));
  const auto& gear = program_->session.main.sheet.lstGear;
  const auto mark = [this] {
    return program_->Find<QTreeWidget>("lstGear").topLevelItem(0)->checkState(0);
  };
  const bool carried = gear.front().carried;
  for (const bool now : {carried, !carried, carried}) {
    QCOMPARE(gear.front().carried, now);
    QCOMPARE(mark(), now ? Qt::Checked : Qt::Unchecked);
    window.Do({"lstGear_Check", 0});
  }
}

void WiringTest::NothingIsDroppedIntoACommandThatAsks() {
  Start();
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(NG_SOURCE_DIR "/sample/characters/vex.ng3")});
  InNextDialog([&](QDialog& dialog) {
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QApplication::sendEvent(program_->window.get(), &enter);
    QVERIFY(!enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QApplication::sendEvent(program_->window.get(), &drop);
    dialog.reject();
  });
  program_->window->Do({"mnuFileOpen"});
  QCOMPARE(program_->Rows(), 0);
}

}  // namespace ng

int main(int argc, char** argv) { return ng::RunGuiTest<ng::WiringTest>(argc, argv); }
#include "wiring_test.moc"
