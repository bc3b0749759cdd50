#include "ui/button_keys.h"

#include <QAbstractButton>
#include <QMainWindow>
#include <QShortcut>

#include "app/keys.h"

namespace ng {

void AddButtonKeys(QMainWindow& window) {
  for (const ButtonKey& entry : MainKeys()) {
    auto* button = window.findChild<QAbstractButton*>(QString::fromLatin1(entry.button));
    auto* shortcut = new QShortcut(
        QKeySequence(QString::fromLatin1(entry.key), QKeySequence::PortableText), &window);
    // A click and not a press, so that a button on a page that is not open answers too.
    QObject::connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
  }
}

}  // namespace ng
