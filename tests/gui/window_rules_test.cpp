#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>

#include "gui/gui_program.h"
#include "ui/main/combat_page.h"

namespace ng {

/// What holds for every control: names, keys, places.
class WindowRulesTest : public GuiTest {
  Q_OBJECT

 private:
  QHash<QString, QRect> Geometries() const;
  QStringList MnemonicsInSight() const;
  static QStringList NamelessInSight(int& controls);

 private slots:
  void init() { program_ = std::make_unique<GuiProgram>(); }
  void cleanup() { program_.reset(); }

  void EveryEntryHasTextKeyAndTip();
  void EveryControlInSightHasAName();
  void MnemonicsAreUniqueOnEachPage();
  void NothingMovesWithTheCombatant();
  void CombatPageFitsTheLeastWindow();
};

void WindowRulesTest::EveryEntryHasTextKeyAndTip() {
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
          !action->toolTip().contains(action->statusTip()) || action->statusTip().isEmpty()) {
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

/// The controls in sight that a screen reader has no name for; counts all in sight.
QStringList WindowRulesTest::NamelessInSight(int& controls) {
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

void WindowRulesTest::EveryControlInSightHasAName() {
  StartFight();
  QStringList nameless;
  int controls = 0;
  for (int page = 0; page < 4; ++page) {
    program_->OpenPage(page);
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
QStringList WindowRulesTest::MnemonicsInSight() const {
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
  for (const auto* group : program_->window->findChildren<QGroupBox*>()) {
    if (group->isVisible()) add(group->title());
  }
  for (const auto* label : program_->window->findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy() != nullptr) add(label->text());
  }
  return found;
}

void WindowRulesTest::MnemonicsAreUniqueOnEachPage() {
  StartFight();
  for (int page = 0; page < 4; ++page) {
    program_->OpenPage(page);
    QStringList letters = MnemonicsInSight();
    letters.sort();
    QStringList once = letters;
    once.removeDuplicates();
    QVERIFY(letters.contains(QStringLiteral("Alt+F")) && letters.contains(QStringLiteral("Alt+1")));
    QCOMPARE(letters.join(QLatin1Char(' ')), once.join(QLatin1Char(' ')));
  }
}

QHash<QString, QRect> WindowRulesTest::Geometries() const {
  QHash<QString, QRect> places;
  for (const QWidget* widget : program_->window->findChildren<QWidget*>()) {
    const QString name = widget->objectName();
    // What the toolkit names itself scrolls with the contents.
    if (name.isEmpty() || name.startsWith(QLatin1String("qt_")) || !widget->isVisible()) continue;
    places.insert(name, QRect(widget->mapTo(program_->window.get(), QPoint()), widget->size()));
  }
  return places;
}

void WindowRulesTest::NothingMovesWithTheCombatant() {
  StartFight();
  for (int page = 0; page < 4; ++page) {
    program_->OpenPage(page);
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

void WindowRulesTest::CombatPageFitsTheLeastWindow() {
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
  for (const char* wound : {"cmdLDam", "cmdMDam", "cmdSDam", "cmdDDam"}) {
    for (const int track : {0, 1}) {
      program_->window->Do({"cmdDamZero", track});
      program_->window->Do({wound, track});
      const auto& level = program_->Find<QLabel>(track == 0 ? "lblPhysical" : "lblStun");
      const int room = level.contentsRect().width();
      if (level.fontMetrics().horizontalAdvance(level.text()) > room) faults += level.text();
    }
  }
  QCOMPARE(faults.join(QLatin1String(", ")), QString());
  const QRect onWindow(page.mapTo(program_->window.get(), QPoint()), page.size());
  QVERIFY(program_->window->rect().contains(onWindow));
}

}  // namespace ng

int main(int argc, char** argv) { return ng::RunGuiTest<ng::WindowRulesTest>(argc, argv); }
#include "window_rules_test.moc"
