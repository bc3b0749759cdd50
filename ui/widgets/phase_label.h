#pragma once

#include <QLabel>

#include "ui/wiring/shows.h"

namespace ng {

/// The caption of the current step, of a fixed height: the largest of a few sizes in which the
/// whole text fits.
class PhaseLabel : public QLabel, public ShowsText {
  Q_OBJECT

 public:
  explicit PhaseLabel(QWidget* parent = nullptr);

  void ShowText(const std::string& text) override;

  QSize minimumSizeHint() const override { return {0, height()}; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitFont();
};

}  // namespace ng
