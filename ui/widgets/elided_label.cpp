#include "ui/widgets/elided_label.h"

#include <QEvent>
#include <QHelpEvent>
#include <QStylePainter>
#include <QToolTip>
#include <algorithm>

#include "ui/look/theme.h"

namespace ng {
namespace {

/// Room for one letter and the ellipsis, in average characters.
constexpr int kLeastCharacters = 3;

}  // namespace

QSize ElidedLabel::minimumSizeHint() const {
  const QMargins frame = contentsMargins();
  const QFontMetrics metrics = fontMetrics();
  return {kLeastCharacters * metrics.averageCharWidth() + frame.left() + frame.right(),
          metrics.height() + frame.top() + frame.bottom()};
}

QSize ElidedLabel::sizeHint() const { return minimumSizeHint(); }

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  drawFrame(&painter);
  const QRect area = contentsRect().adjusted(std::max(0, indent()), 0, 0, 0);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, area.width());
  const Qt::Alignment visual = QStyle::visualAlignment(layoutDirection(), alignment());
  const QVariant alarm = property("alarmText");
  const bool alarmed = alarm.isValid() && text() == alarm.toString();
  painter.drawItemText(area, static_cast<int>(visual) | Qt::TextSingleLine, palette(), isEnabled(),
                       shown, alarmed ? kAlarmText : foregroundRole());
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  update();
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  if (fontMetrics().horizontalAdvance(text()) <= contentsRect().width()) {
    return QLabel::event(event);
  }
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  return true;
}

}  // namespace ng
