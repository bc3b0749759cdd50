#include "ui/wiring/button_keys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
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

class EditingKeys : public QObject {
 public:
  explicit EditingKeys(QWidget& window) : QObject(&window) {
    for (QWidget* edit : window.findChildren<QLineEdit*>()) edit->installEventFilter(this);
    for (QWidget* edit : window.findChildren<QPlainTextEdit*>()) edit->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    constexpr QKeySequence::StandardKey kOwn[] = {
        QKeySequence::DeleteEndOfWord, QKeySequence::DeleteStartOfWord,
        QKeySequence::DeleteEndOfLine, QKeySequence::DeleteCompleteLine};
    const bool own = std::ranges::any_of(
        kOwn, [&key](QKeySequence::StandardKey standard) { return key.matches(standard); });
    if (own) event->accept();
    return own;
  }
};

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

void AddFightKeys(QWidget& window, const Perform& perform) {
  const auto add = [&](const char* key, const Act& act) {
    auto* shortcut = new QShortcut(Sequence(key), &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, [perform, act] { perform(act); });
  };
  for (const char* step : {"mnuTPrev", "mnuTNext"}) add(FindCommand(step)->shortcut, {step});
  for (const ButtonKey& entry : MainKeys()) {
    if (!IsFunctionKey(entry.key)) continue;
    const WidgetName button = ParseWidgetName(QString::fromLatin1(entry.button));
    add(entry.key, {button.control, button.index});
  }
}

void KeepEditingKeys(QWidget& window) { new EditingKeys(window); }

}  // namespace ng
