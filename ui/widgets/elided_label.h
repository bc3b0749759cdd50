#pragma once

#include <QLabel>

namespace ng {

/// A label of a width that does not depend on its text: a longer text is cut with an ellipsis and
/// shown in full in the tooltip. A text equal to the dynamic property "alarmText" is shown red.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;
};

}  // namespace ng
