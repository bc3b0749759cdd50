#include "ui/wiring/button_keys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextDocument>
#include <algorithm>
#include <string_view>

#include "app/commands.h"
#include "app/keys.h"
#include "ui/look/layout_kit.h"

namespace ng {
namespace {

QKeySequence Sequence(const char* key) {
  return {QString::fromLatin1(key), QKeySequence::PortableText};
}

/// "F2", "Shift+F2"; no "Ctrl+F".
bool IsFunctionKey(std::string_view key) {
  if (key.starts_with("Shift+")) key.remove_prefix(6);
  return key.size() > 1 && key[0] == 'F';
}

constexpr const char* kSecondRedoKey = "Ctrl+Y";

bool IsUndo(const QKeyEvent& key) { return key.matches(QKeySequence::Undo); }

bool IsRedo(const QKeyEvent& key) {
  return key.matches(QKeySequence::Redo) || key.keyCombination() == (Qt::CTRL | Qt::Key_Y);
}

/// A note undoes its own text as long as it has steps. What is typed into a box is a step of the
/// fight.
bool HasSteps(const QObject* edit, const QKeyEvent& key) {
  const auto* note = qobject_cast<const QPlainTextEdit*>(edit);
  if (note == nullptr || note->isReadOnly()) return false;
  return IsUndo(key) ? note->document()->isUndoAvailable() : note->document()->isRedoAvailable();
}

class EditingKeys : public QObject {
 public:
  explicit EditingKeys(QWidget& window) : QObject(&window) {
    for (QWidget* edit : window.findChildren<QLineEdit*>()) edit->installEventFilter(this);
    for (QWidget* edit : window.findChildren<QPlainTextEdit*>()) edit->installEventFilter(this);
  }

  bool eventFilter(QObject* edit, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (IsUndo(key) || IsRedo(key)) {
      event->setAccepted(HasSteps(edit, key));
      return true;
    }
    constexpr QKeySequence::StandardKey kOwn[] = {
        QKeySequence::DeleteEndOfWord, QKeySequence::DeleteStartOfWord,
        QKeySequence::DeleteEndOfLine, QKeySequence::DeleteCompleteLine};
    const bool own = std::ranges::any_of(
        kOwn, [&key](QKeySequence::StandardKey standard) { return key.matches(standard); });
    if (own) event->accept();
    return own;
  }
};

void AddKey(QWidget& window, const char* key, const Perform& perform, const Act& act) {
  auto* shortcut = new QShortcut(Sequence(key), &window);
  QObject::connect(shortcut, &QShortcut::activated, &window, [perform, act] { perform(act); });
}

}  // namespace

void AddButtonKeys(QMainWindow& window) {
  for (const ButtonKey& entry : MainKeys()) {
    auto* button = window.findChild<QAbstractButton*>(QString::fromLatin1(entry.button));
    auto* shortcut = new QShortcut(Sequence(entry.key), &window);
    button->setToolTip(TipWithKey(button->toolTip(), shortcut->key().toString()));
    // A click and not a press, so that a button on a page that is not open answers too.
    QObject::connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
  }
}

void PressWithKey(Qt::Key key, QLineEdit* box, QPushButton* button) {
  new QShortcut(
      QKeySequence(key), box, button, [button] { button->click(); }, Qt::WidgetShortcut);
}

void AddUndoKeys(QWidget& window, const Perform& perform) {
  for (const char* command : {"mnuEditUndo", "mnuEditRedo"}) {
    AddKey(window, FindCommand(command)->shortcut, perform, {command});
  }
  AddKey(window, kSecondRedoKey, perform, {"mnuEditRedo"});
}

void AddFightKeys(QWidget& window, const Perform& perform) {
  for (const char* step : {"mnuTPrev", "mnuTNext"}) {
    AddKey(window, FindCommand(step)->shortcut, perform, {step});
  }
  for (const ButtonKey& entry : MainKeys()) {
    if (!IsFunctionKey(entry.key)) continue;
    const WidgetName button = ParseWidgetName(QString::fromLatin1(entry.button));
    AddKey(window, entry.key, perform, {button.control, button.index});
  }
}

void KeepEditingKeys(QWidget& window) { new EditingKeys(window); }

}  // namespace ng
