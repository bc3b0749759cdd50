#pragma once

#include <QDialog>

namespace ng {

/// Says what the program is, which version, and what it is built on: frmAbout.
class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  explicit AboutDialog(QWidget* parent);
};

}  // namespace ng
