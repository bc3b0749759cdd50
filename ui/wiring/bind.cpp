#include "ui/wiring/bind.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QTextCursor>
#include <QToolButton>
#include <QTreeWidget>
#include <algorithm>
#include <utility>

#include "app/commands.h"
#include "base/number_text.h"
#include "combat/weapons.h"
#include "ui/widgets/damage_bar.h"
#include "ui/widgets/initiative_grid_view.h"
#include "ui/widgets/list_paint.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

void ShowLabel(QLabel& label, const QString& text) {
  const QString shown = text.isEmpty() ? label.property("emptyText").toString() : text;
  if (label.text() != shown) label.setText(shown);
}

/// The style colours the badge by its state.
void ShowBadge(QLabel& badge, TurnState state) {
  const int number = static_cast<int>(state);
  if (badge.property("turnState") == number) return;
  badge.setProperty("turnState", number);
  badge.setText(ToQString(LookOf(state).badge));
  badge.style()->polish(&badge);
}

/// Sets the part that differs, so that cursor, selection and scrolling stay where they are.
void ShowNote(QPlainTextEdit& edit, QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  // The widget gives this blank back as a plain one.
  text.replace(QChar::Nbsp, QLatin1Char(' '));
  const QString shown = edit.toPlainText();
  if (shown == text) return;
  const qsizetype shorter = std::min(shown.size(), text.size());
  qsizetype front = 0;
  while (front < shorter && shown[front] == text[front]) ++front;
  qsizetype back = 0;
  while (back < shorter - front && shown[shown.size() - 1 - back] == text[text.size() - 1 - back]) {
    ++back;
  }
  if (front == 0 && back == 0) return edit.setPlainText(text);
  QTextCursor part(edit.document());
  part.setPosition(static_cast<int>(front));
  part.setPosition(static_cast<int>(shown.size() - back), QTextCursor::KeepAnchor);
  part.insertText(text.mid(front, text.size() - back - front));
  // Ctrl+Z must not bring back another combatant's note.
  edit.document()->clearUndoRedoStacks();
}

/// Where the box is being typed into, the cursor stays before the same text.
void ShowLine(QLineEdit& line, const QString& text) {
  if (line.text() == text) return;
  const bool typing = line.hasFocus();
  const QString behind = line.text().mid(line.cursorPosition());
  line.setText(text);
  if (typing && text.endsWith(behind)) {
    line.setCursorPosition(static_cast<int>(text.size() - behind.size()));
  }
}

/// A modifier that is not zero stands out.
void MarkNonZero(QLineEdit& box) {
  if (!box.objectName().startsWith(QLatin1String("txtRVar_"))) return;
  const bool counts = LeadingNumber(FromQString(box.text())) != 0;
  if (box.property("nonZero").toBool() == counts) return;
  box.setProperty("nonZero", counts);
  QFont font = box.font();
  font.setBold(counts);
  box.setFont(font);
}

void ShowEntries(QComboBox& combo, const std::vector<std::string>& lines) {
  combo.clear();
  for (const std::string& line : lines) combo.addItem(ToQString(line));
}

/// Returns false for a widget that has no entries to choose from.
bool ShowIndex(QObject* widget, int chosen) {
  if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
    tabs->setCurrentIndex(chosen);
  } else if (auto* strip = qobject_cast<QTabBar*>(widget)) {
    strip->setCurrentIndex(chosen);
  } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
    combo->setCurrentIndex(chosen);
  } else {
    return false;
  }
  return true;
}

void ShowText(QObject* widget, const QString& text) {
  if (auto* label = qobject_cast<QLabel*>(widget)) {
    ShowLabel(*label, text);
  } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
    ShowLine(*line, text);
    MarkNonZero(*line);
  } else if (auto* note = qobject_cast<QPlainTextEdit*>(widget)) {
    ShowNote(*note, text);
  } else if (auto* group = qobject_cast<QGroupBox*>(widget)) {
    if (group->title() != text) group->setTitle(text);
  } else if (auto* button = qobject_cast<QToolButton*>(widget)) {
    button->setText(text);
    button->setVisible(!text.isEmpty());
  }
}

}  // namespace

Binder::Binder(QWidget& window, const Perform& perform, std::string prefix)
    : window_(window), prefix_(std::move(prefix)) {
  // Names come from files and may look like mark-up.
  for (QLabel* label : window.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  ConnectActs(window, *this, painting_, perform, prefix_);
}

void Binder::Paint(const std::function<void(ControlVisitor&)>& walk) {
  const bool first = places_.empty();
  if (first) IndexNames();
  const bool outer = std::exchange(painting_, true);
  place_ = 0;
  walk(*this);
  painting_ = outer;
  if (first) byName_ = {};
}

void Binder::IndexNames() {
  for (QObject* object : window_.findChildren<QObject*>()) {
    if (!object->objectName().isEmpty()) byName_.insert(object->objectName(), object);
  }
}

std::vector<QObject*> Binder::Named(const ControlName& control) const {
  const QString name = QString::fromLatin1(control.name);
  const QString element =
      control.index == ControlName::kSingle ? QString() : QStringLiteral("_%1").arg(control.index);
  std::vector<QObject*> found;
  for (QObject* object : byName_.values(name + element)) found.push_back(object);
  // The second list of a pair may be named as a copy is, and yet be a control of its own.
  const bool own = FindCommand(prefix_ + control.name + '2') != nullptr;
  if (own) return found;
  for (QObject* object : byName_.values(name + QLatin1Char('2') + element)) found.push_back(object);
  return found;
}

std::vector<QObject*> Binder::Options(const ControlName& control) const {
  const QString name = QString::fromLatin1(control.name);
  // The range choice is the only array of option groups; the second group's buttons go on counting.
  const int count = static_cast<int>(kRanges);
  const int first = control.index == ControlName::kSingle ? 0 : control.index * count;
  std::vector<QObject*> found;
  for (int i = first; i < first + count; ++i) {
    QObject* option = byName_.value(QStringLiteral("%1_%2").arg(name).arg(i));
    if (option == nullptr) break;
    found.push_back(option);
  }
  if (found.empty()) return Named(control);
  return found;
}

Binder::Place& Binder::NextPlace(const ControlName& control, Lookup lookup) {
  if (place_ == places_.size()) places_.push_back({(this->*lookup)(control), {}, -1});
  return places_[place_++];
}

void Binder::Text(ControlName control, const std::string& text) {
  const Place& place = NextPlace(control, &Binder::Named);
  if (place.widgets.empty()) return;
  const QString shown = ToQString(text);
  for (QObject* widget : place.widgets) ShowText(widget, shown);
}

void Binder::Check(ControlName control, bool checked) {
  for (QObject* widget : NextPlace(control, &Binder::Named).widgets) {
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
      button->setChecked(checked);
    } else if (auto* action = qobject_cast<QAction*>(widget)) {
      action->setChecked(checked);
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
      if (label->isHidden() == checked) label->setVisible(checked);
    }
  }
}

void Binder::Choice(ControlName control, int chosen) {
  const Place& place = NextPlace(control, &Binder::Options);
  if (place.widgets.empty()) return;
  if (ShowIndex(place.widgets.front(), chosen)) return;
  if (chosen < 0 || static_cast<std::size_t>(chosen) >= place.widgets.size()) return;
  QObject* option = place.widgets[static_cast<std::size_t>(chosen)];
  if (auto* button = qobject_cast<QAbstractButton*>(option)) button->setChecked(true);
}

void Binder::Level(ControlName control, int boxes) {
  Place& place = NextPlace(control, &Binder::Named);
  if (std::exchange(place.level, boxes) == boxes) return;
  for (QObject* widget : place.widgets) {
    if (auto* bar = qobject_cast<DamageBar*>(widget)) bar->setBoxes(boxes);
  }
}

void Binder::List(ControlName control, const std::vector<std::string>& lines) {
  Place& place = NextPlace(control, &Binder::Named);
  if (place.lines == lines) return;
  for (QObject* widget : place.widgets) {
    if (auto* tree = qobject_cast<QTreeWidget*>(widget)) ShowLines(*tree, lines);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) ShowEntries(*combo, lines);
  }
  place.lines = lines;
}

void Binder::CheckList(ControlName control, const std::vector<CarriedLine>& lines) {
  Place& place = NextPlace(control, &Binder::Named);
  std::vector<std::string> texts;
  texts.reserve(lines.size());
  for (const CarriedLine& line : lines) texts.push_back(line.text);
  const bool refill = place.lines != texts;
  for (QObject* widget : place.widgets) {
    auto* tree = qobject_cast<QTreeWidget*>(widget);
    if (tree == nullptr) continue;
    if (refill) ShowLines(*tree, texts);
    ShowMarks(*tree, lines);
  }
  place.lines = std::move(texts);
}

void Binder::Turn(ControlName control, TurnState state) {
  for (QObject* widget : NextPlace(control, &Binder::Named).widgets) {
    if (auto* badge = qobject_cast<QLabel*>(widget)) ShowBadge(*badge, state);
  }
}

void Binder::Grid(ControlName control, const InitiativeGrid& grid) {
  for (QObject* widget : NextPlace(control, &Binder::Named).widgets) {
    if (auto* view = qobject_cast<InitiativeGridView*>(widget)) view->Show(grid);
  }
}

}  // namespace ng
