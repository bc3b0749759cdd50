#pragma once

#include <QObject>
#include <QStringList>
#include <string>

#include "ui/wiring/acts.h"

namespace ng {

/// The files as the text of the act that opens them: absolute, as the program writes paths, joined
/// by "|". Empty for none.
std::string FilesToOpen(const QStringList& paths);

/// Takes character and state files that are dropped anywhere on a window.
class FileDrop : public QObject {
  Q_OBJECT

 public:
  /// Watches the window and whatever in it would take the names of dropped files as text.
  FileDrop(QWidget& window, Perform perform);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Perform perform_;
};

}  // namespace ng
