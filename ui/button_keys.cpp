#include "ui/button_keys.h"

#include <QAbstractButton>
#include <QMainWindow>
#include <QShortcut>

namespace ng {
namespace {

struct ButtonKey {
  const char* key;
  /// Object name of the button.
  const char* button;
};

constexpr ButtonKey kButtonKeys[] = {{"Ctrl+1", "cmdLDam_0"},
                                     {"Ctrl+2", "cmdMDam_0"},
                                     {"Ctrl+3", "cmdSDam_0"},
                                     {"Ctrl+4", "cmdDDam_0"},
                                     {"Ctrl+0", "cmdDamZero_0"},
                                     {"Ctrl+5", "cmdLDam_1"},
                                     {"Ctrl+6", "cmdMDam_1"},
                                     {"Ctrl+7", "cmdSDam_1"},
                                     {"Ctrl+8", "cmdDDam_1"},
                                     {"Ctrl+9", "cmdDamZero_1"},
                                     {"Ctrl+Up", "cmdIncrease_0"},
                                     {"Ctrl+Down", "cmdReduce_0"},
                                     {"Ctrl+Shift+Up", "cmdIncrease_1"},
                                     {"Ctrl+Shift+Down", "cmdReduce_1"},
                                     {"F2", "cmdShots1_0"},
                                     {"F3", "cmdShots3_0"},
                                     {"F4", "cmdShotsFA_0"},
                                     {"F6", "cmdShotsZ_0"},
                                     {"Shift+F2", "cmdShots1_1"},
                                     {"Shift+F3", "cmdShots3_1"},
                                     {"Shift+F4", "cmdShotsFA_1"},
                                     {"Shift+F6", "cmdShotsZ_1"},
                                     {"Alt+Left", "cmdCPnegative"},
                                     {"Alt+Right", "cmdCPplus"}};

}  // namespace

void AddButtonKeys(QMainWindow& window) {
  for (const ButtonKey& entry : kButtonKeys) {
    auto* button = window.findChild<QAbstractButton*>(QString::fromLatin1(entry.button));
    auto* shortcut = new QShortcut(
        QKeySequence(QString::fromLatin1(entry.key), QKeySequence::PortableText), &window);
    // A click and not a press, so that a button on a page that is not open answers too.
    QObject::connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
  }
}

}  // namespace ng
