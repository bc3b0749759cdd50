#pragma once

#include <QDialog>
#include <QDir>
#include <QTimer>
#include <functional>

#include "tour/watchdog.h"

namespace ng {

/// Leads through the windows: presses their buttons, answers those that open, takes their
/// pictures, and prints a line for each thing it does. Where something is not as it was planned the
/// tour breaks off: the program ends with a status other than 0 and says where it was.
class Guide {
 public:
  using Drive = std::function<void(QDialog&)>;

  /// The pictures are written into `folder`.
  explicit Guide(const QString& folder);

  void Say(const QString& line);
  [[noreturn]] void BreakOff(const QString& why);

  /// Writes the picture of an open window to NAME.png, once the window has stopped changing.
  void Take(QWidget& window, const char* name);
  /// Says how many pictures there are. Returns whether none is missing.
  bool Finish();

  /// Drives the next modal window that opens, and has to close it.
  void InNextWindow(Drive drive) { next_ = std::move(drive); }

  template <typename Widget>
  Widget& Find(QWidget& window, const char* name) {
    auto* widget = window.findChild<Widget*>(QString::fromLatin1(name));
    if (widget == nullptr) BreakOff(QStringLiteral("there is no ") + QString::fromLatin1(name));
    return *widget;
  }

  /// Presses a button, or chooses a menu entry. When it returns, the window that was to be driven
  /// has come and gone.
  void Press(QWidget& window, const char* name);
  /// The same where messages may come that the tour does not wait for: they are read out and
  /// closed.
  void PressAndCloseMessages(QWidget& window, const char* name);
  /// Takes the picture of the window that a button or menu entry opens, modal or not, and closes
  /// the window again.
  void TakeWindowOf(QWidget& window, const char* name, const char* picture);

 private:
  void Trigger(QWidget& window, const char* name);
  void AnswerModalWindow();

  Watchdog watchdog_;
  QDir folder_;
  int written_ = 0;
  int missing_ = 0;
  bool hears_ = false;
  /// What waits for the next window; null for nothing.
  Drive next_;
  /// The window that is being driven; null for none.
  const QDialog* driven_ = nullptr;
  QTimer watch_;
};

/// A click with the left button.
void ClickAt(QWidget& widget, const QPoint& place);
void PressKey(QWidget& widget, Qt::Key key);

}  // namespace ng
