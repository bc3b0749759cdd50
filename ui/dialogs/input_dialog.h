#pragma once

#include <QDialog>

#include "ui/wiring/acts.h"

class QLineEdit;

namespace ng {

/// A question with one line for the answer. The prompt is shown letter for letter, blanks included.
class InputDialog : public QDialog {
  Q_OBJECT

 public:
  InputDialog(const QString& title, const QString& prompt, const Perform& perform, QWidget* parent);

  QString Answer() const;

 private:
  QLineEdit* answer_;
};

}  // namespace ng
