#pragma once

#include <QLabel>

namespace ng {

/// The caption of the current step, of a fixed height: the largest of a few sizes in which the
/// whole text fits.
class PhaseLabel : public QLabel {
  Q_OBJECT

 public:
  explicit PhaseLabel(QWidget* parent = nullptr);

  /// To be called when the text has changed.
  void FitFont();

  QSize minimumSizeHint() const override { return {0, height()}; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace ng
