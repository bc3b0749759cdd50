#include "ui/tracker_style.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include "ui/theme.h"

namespace ng {
namespace {

/// Edge of a check box and of a radio button, in device-independent pixels.
constexpr int kIndicator = 15;

/// What a line of a list is higher than its text.
constexpr int kLineAir = 2;

QRectF Square(const QRect& area) {
  QRectF square(0, 0, kIndicator - 1, kIndicator - 1);
  square.moveCenter(QRectF(area).center());
  return square;
}

QColor EdgeOf(const QStyleOption& option) {
  const Theme& theme = Theme::Current();
  const bool pointed = option.state.testFlag(QStyle::State_MouseOver);
  return pointed ? theme.labelAccent : theme.fieldEdge;
}

void DrawCheckBox(const QStyleOption& option, QPainter& painter) {
  const Theme& theme = Theme::Current();
  const bool set = option.state.testFlag(QStyle::State_On);
  const QRectF box = Square(option.rect);
  painter.setPen(set ? theme.accent : EdgeOf(option));
  painter.setBrush(set ? theme.accent : theme.base);
  painter.drawRoundedRect(box, 2.5, 2.5);
  if (!set) return;
  QPainterPath tick(box.topLeft() + QPointF(3, 7.2));
  tick.lineTo(box.topLeft() + QPointF(5.8, 10));
  tick.lineTo(box.topLeft() + QPointF(11.2, 4.2));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(tick);
}

void DrawRadioButton(const QStyleOption& option, QPainter& painter) {
  const Theme& theme = Theme::Current();
  const bool set = option.state.testFlag(QStyle::State_On);
  const QRectF disc = Square(option.rect);
  painter.setPen(set ? theme.accent : EdgeOf(option));
  painter.setBrush(set ? theme.accent : theme.base);
  painter.drawEllipse(disc);
  if (!set) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawEllipse(disc.center(), 3, 3);
}

}  // namespace

TrackerStyle::TrackerStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void TrackerStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  const bool check = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
  if (!check && element != PE_IndicatorRadioButton) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    return;
  }
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (check) {
    DrawCheckBox(*option, *painter);
  } else {
    DrawRadioButton(*option, *painter);
  }
  painter->restore();
}

int TrackerStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return kIndicator;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QSize TrackerStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& contents, const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type != CT_ItemViewItem) return size;
  return size.expandedTo({0, option->fontMetrics.height() + kLineAir});
}

}  // namespace ng
