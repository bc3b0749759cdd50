#include "ui/wiring/bind.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextCursor>
#include <QTreeWidget>
#include <algorithm>
#include <exception>
#include <utility>

#include "base/number_text.h"
#include "ui/widgets/list_paint.h"
#include "ui/wiring/copies.h"
#include "ui/wiring/shows.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

/// What the widget shows in place of an empty text.
QString OrEmptyText(const QWidget& widget, const QString& text) {
  return text.isEmpty() ? widget.property("emptyText").toString() : text;
}

/// A notice takes room only while it has something to say.
void HideEmpty(QWidget& widget, const QString& text) {
  if (widget.property("hidesEmpty").toBool()) widget.setHidden(text.isEmpty());
}

void ShowLabel(QLabel& label, const QString& text) {
  const QString shown = OrEmptyText(label, text);
  if (label.text() != shown) label.setText(shown);
  HideEmpty(label, text);
}

/// The style colours the badge by its state.
void ShowBadge(QLabel& badge, TurnState state) {
  const int number = static_cast<int>(state);
  if (badge.property("turnState") == number) return;
  badge.setProperty("turnState", number);
  badge.setText(ToQString(LookOf(state).badge));
  badge.style()->polish(&badge);
}

/// Sets the part that differs, so that cursor, selection and scrolling stay where they are. What
/// is only read begins at its first line.
void ShowNote(QPlainTextEdit& edit, const QString& note) {
  QString text = note;
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
  if (edit.isReadOnly() || (front == 0 && back == 0)) return edit.setPlainText(text);
  QTextCursor part(edit.document());
  part.setPosition(static_cast<int>(front));
  part.setPosition(static_cast<int>(shown.size() - back), QTextCursor::KeepAnchor);
  part.insertText(text.mid(front, text.size() - back - front));
  // Ctrl+Z must not bring back another combatant's note.
  edit.document()->clearUndoRedoStacks();
}

/// Where the box is being typed into, the cursor stays before the same text.
void ShowBox(QLineEdit& line, const QString& text) {
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
  const bool counts = LeadingNumber(FromQString(box.text())) != 0;
  if (box.property("nonZero").toBool() == counts) return;
  box.setProperty("nonZero", counts);
  QFont font = box.font();
  font.setBold(counts);
  box.setFont(font);
}

void ShowLine(QLineEdit& line, const QString& text) {
  ShowBox(line, OrEmptyText(line, text));
  if (line.property("nonZero").isValid()) MarkNonZero(line);
}

void ShowButton(QAbstractButton& button, const QString& text) {
  if (button.text() != text) button.setText(text);
  HideEmpty(button, text);
}

void ShowTitle(QGroupBox& group, const QString& text) {
  if (group.title() != text) group.setTitle(text);
}

template <typename Widget, void (*show)(Widget&, const QString&)>
void ShowIn(QObject& widget, const std::string& text) {
  show(static_cast<Widget&>(widget), ToQString(text));
}

void ShowOwnText(QObject& widget, const std::string& text) {
  dynamic_cast<ShowsText&>(widget).ShowText(text);
}

/// An entry of the menus says what it is about to do; below its icon the command's word stays.
void ShowEntry(QAction& entry, const QString& text) {
  if (entry.statusTip() == text) return;
  entry.setStatusTip(text);
  const QChar mnemonic = entry.text().at(entry.text().indexOf(QLatin1Char('&')) + 1);
  QString words = text;
  words.replace(QLatin1Char('&'), QLatin1String("&&"));
  entry.setText(words.insert(words.indexOf(mnemonic, 0, Qt::CaseInsensitive), QLatin1Char('&')));
  const QString key = entry.shortcut().toString(QKeySequence::NativeText);
  entry.setToolTip(QStringLiteral("%1 (%2)").arg(text, key));
}

void ShowNothing(QObject& /*widget*/, const std::string& /*text*/) {}

void ShowEntries(QComboBox& combo, const std::vector<std::string>& lines) {
  combo.clear();
  for (const std::string& line : lines) combo.addItem(ToQString(line));
}

void ShowList(QObject* widget, const std::vector<std::string>& lines) {
  if (auto* tree = qobject_cast<QTreeWidget*>(widget)) ShowLines(*tree, lines);
  if (auto* list = qobject_cast<QListWidget*>(widget)) ShowLines(*list, lines);
  if (auto* combo = qobject_cast<QComboBox*>(widget)) ShowEntries(*combo, lines);
}

}  // namespace

Binder::Binder(QWidget& window, const Perform& perform, const std::string& prefix)
    : window_(window) {
  // Names come from files and may look like mark-up.
  for (QLabel* label : window.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  ConnectActs(window, *this, painting_, perform, prefix);
}

void Binder::Paint(const std::function<void(ControlVisitor&)>& walk) {
  const bool outer = std::exchange(painting_, true);
  place_ = 0;
  try {
    walk(*this);
  } catch (const std::exception& fault) {
    Complain(fault.what());
  } catch (...) {
    Complain("unknown fault");
  }
  painting_ = outer;
  byName_ = {};
}

void Binder::Complain(const char* fault) const {
  qWarning("%s cannot be painted: %s", qPrintable(window_.objectName()), fault);
}

void Binder::IndexNames() {
  for (QObject* object : window_.findChildren<QObject*>()) {
    const auto* widget = qobject_cast<QWidget*>(object);
    const bool elsewhere = widget != nullptr && widget->window() != &window_;
    if (!elsewhere && !object->objectName().isEmpty()) byName_.insert(object->objectName(), object);
  }
}

std::vector<QObject*> Binder::Named(const ControlName& control) const {
  const QString element =
      control.index == ControlName::kSingle ? QString() : QStringLiteral("_%1").arg(control.index);
  std::vector<QObject*> found;
  const auto find = [&](const char* name) {
    for (QObject* object : byName_.values(QLatin1String(name) + element)) found.push_back(object);
  };
  find(control.name);
  for (const auto& [name, copy] : kCopies) {
    if (std::string_view(name) == control.name) find(copy);
  }
  return found;
}

std::vector<QObject*> Binder::Options(const ControlName& control) const {
  std::vector<QObject*> found;
  for (int i = control.firstOption;; ++i) {
    QObject* option =
        byName_.value(QStringLiteral("%1_%2").arg(QLatin1String(control.name)).arg(i));
    if (option == nullptr) break;
    found.push_back(option);
  }
  return found.empty() ? Named(control) : found;
}

Binder::Place& Binder::NextPlace(const ControlName& control, Lookup lookup) {
  if (place_ < places_.size() && places_[place_].control != control) {
    Complain((std::string(control.name) + " comes where another control was").c_str());
    places_.resize(place_);
  }
  if (place_ == places_.size()) {
    if (byName_.isEmpty()) IndexNames();
    places_.push_back({control, (this->*lookup)(control)});
  }
  return places_[place_++];
}

Binder::ShowText Binder::TextShower(QObject& widget) {
  if (dynamic_cast<ShowsText*>(&widget) != nullptr) return ShowOwnText;
  if (qobject_cast<QLabel*>(&widget) != nullptr) return ShowIn<QLabel, ShowLabel>;
  if (qobject_cast<QLineEdit*>(&widget) != nullptr) return ShowIn<QLineEdit, ShowLine>;
  if (qobject_cast<QPlainTextEdit*>(&widget) != nullptr) return ShowIn<QPlainTextEdit, ShowNote>;
  if (qobject_cast<QAbstractButton*>(&widget) != nullptr) {
    return ShowIn<QAbstractButton, ShowButton>;
  }
  if (qobject_cast<QGroupBox*>(&widget) != nullptr) return ShowIn<QGroupBox, ShowTitle>;
  if (qobject_cast<QAction*>(&widget) != nullptr) return ShowIn<QAction, ShowEntry>;
  return ShowNothing;
}

void Binder::Text(ControlName control, const std::string& text) {
  Place& place = NextPlace(control);
  if (place.showText.empty()) {
    for (QObject* widget : place.widgets) place.showText.push_back(TextShower(*widget));
  }
  for (std::size_t i = 0; i < place.widgets.size(); ++i) place.showText[i](*place.widgets[i], text);
}

void Binder::Check(ControlName control, bool checked) {
  for (QObject* object : NextPlace(control).widgets) {
    if (object->metaObject()->indexOfProperty("checked") >= 0) {
      object->setProperty("checked", checked);
    } else if (auto* widget = qobject_cast<QWidget*>(object); widget->isHidden() == checked) {
      widget->setVisible(checked);
    }
  }
}

void Binder::Choice(ControlName control, int chosen) {
  const std::vector<QObject*>& widgets = NextPlace(control, &Binder::Options).widgets;
  if (widgets.empty()) return;
  QObject* first = widgets.front();
  if (auto* tree = qobject_cast<QTreeWidget*>(first)) return ShowSelection(*tree, chosen);
  // Tabs and combo boxes.
  constexpr const char* kIndex = "currentIndex";
  if (first->metaObject()->indexOfProperty(kIndex) >= 0) {
    first->setProperty(kIndex, chosen);
  } else if (chosen >= 0 && static_cast<std::size_t>(chosen) < widgets.size()) {
    widgets[static_cast<std::size_t>(chosen)]->setProperty("checked", true);
  }
}

void Binder::Level(ControlName control, int boxes) {
  Place& place = NextPlace(control);
  if (std::exchange(place.level, boxes) == boxes) return;
  for (QObject* widget : place.widgets) {
    if (auto* bar = dynamic_cast<ShowsLevel*>(widget)) bar->ShowLevel(boxes);
  }
}

void Binder::List(ControlName control, const std::vector<std::string>& lines) {
  Place& place = NextPlace(control);
  if (place.lines == lines) return;
  for (QObject* widget : place.widgets) ShowList(widget, lines);
  place.lines = lines;
}

void Binder::CheckList(ControlName control, const std::vector<CarriedLine>& lines) {
  Place& place = NextPlace(control);
  std::vector<std::string> texts;
  texts.reserve(lines.size());
  for (const CarriedLine& line : lines) texts.push_back(line.text);
  const bool refill = place.lines != texts;
  for (QObject* widget : place.widgets) {
    if (refill) ShowList(widget, texts);
    if (auto* tree = qobject_cast<QTreeWidget*>(widget)) ShowMarks(*tree, lines);
    if (auto* list = qobject_cast<QListWidget*>(widget)) ShowMarks(*list, lines);
  }
  place.lines = std::move(texts);
}

void Binder::Turn(ControlName control, TurnState state) {
  for (QObject* widget : NextPlace(control).widgets) {
    if (auto* badge = qobject_cast<QLabel*>(widget)) ShowBadge(*badge, state);
  }
}

void Binder::Grid(ControlName control, const InitiativeGrid& grid, int shownRow) {
  for (QObject* widget : NextPlace(control).widgets) {
    if (auto* view = dynamic_cast<ShowsGrid*>(widget)) view->ShowGrid(grid, shownRow);
  }
}

}  // namespace ng
