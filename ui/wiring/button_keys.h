#pragma once

#include <qnamespace.h>

#include "ui/wiring/acts.h"

class QLineEdit;
class QMainWindow;
class QPushButton;
class QWidget;

namespace ng {

/// Gives the buttons that are pressed all through a fight their keys: wounds, shots, reloading, the
/// combat pool. The keys work whatever page is open, and are named in the buttons' tips.
void AddButtonKeys(QMainWindow& window);

/// A key that presses a button while its box has the focus.
void PressWithKey(Qt::Key key, QLineEdit* box, QPushButton* button);

/// Has the function keys of the fight answer in a window beside the main one, too: the steps of the
/// turn, the shots and the reloading.
void AddFightKeys(QWidget& window, const Perform& perform);

/// Undo and Redo answer in a window beside the main one, too.
void AddUndoKeys(QWidget& window, const Perform& perform);

/// In the boxes and notes of a window the keys that delete words and lines keep that meaning,
/// though a command has the same key elsewhere. Undo and Redo are the fight's, but for a note that
/// has steps of its own.
void KeepEditingKeys(QWidget& window);

}  // namespace ng
