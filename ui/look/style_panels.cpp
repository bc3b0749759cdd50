#include "ui/look/style_panels.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>
#include <QTableView>

#include "ui/look/theme.h"

namespace ng {
namespace {

constexpr qreal kPanelRadius = 5;
constexpr qreal kBadgeRadius = 4;
constexpr qreal kFieldRadius = 3;
constexpr qreal kScrollingRadius = 2;

/// How far the upper edge of a group's frame is below its title's.
constexpr int kGroupTop = 8;
constexpr int kTitleLeft = 8;
constexpr int kTitlePadding = 8;

QColor EdgeOf(const QStyleOption& option) {
  const Theme& theme = Theme::Current();
  return option.state.testFlag(QStyle::State_HasFocus) ? theme.labelAccent : theme.fieldEdge;
}

/// The corner between two scroll bars, painted before the frame, stays.
void PaintEdge(QPainter& painter, const QRect& area, const QColor& edge) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(edge);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), kScrollingRadius,
                          kScrollingRadius);
  painter.restore();
}

bool PaintNamedPanel(QPainter& painter, const QStyleOption& option, const QString& name) {
  const Theme& theme = Theme::Current();
  if (name == QLatin1String("headerPanel") || name == QLatin1String("testStrip")) {
    PaintPanel(painter, option.rect, {theme.group, theme.groupEdge, kPanelRadius});
  } else if (name == QLatin1String("lblPhase")) {
    PaintPanel(painter, option.rect, {theme.base, theme.groupEdge, kPanelRadius});
  } else if (name == QLatin1String("lblTurn")) {
    const QColor fill = option.palette.color(QPalette::Base);
    PaintPanel(painter, option.rect, {fill, theme.fieldEdge, kBadgeRadius});
  } else {
    return false;
  }
  return true;
}

}  // namespace

void PaintPanel(QPainter& painter, const QRect& area, const Panel& panel) {
  const qreal width = panel.edgeWidth;
  const QRectF inner = QRectF(area).adjusted(width, width, -width, -width);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  // One area on the other takes half the time of a drawn line.
  painter.setBrush(panel.edge);
  painter.drawRoundedRect(area, panel.radius + width / 2, panel.radius + width / 2);
  painter.setBrush(panel.fill);
  painter.drawRoundedRect(inner, panel.radius - width / 2, panel.radius - width / 2);
  painter.restore();
}

bool PaintFrame(QPainter& painter, const QStyleOptionFrame& option, const QWidget& widget) {
  if (option.frameShape == QFrame::HLine || option.frameShape == QFrame::VLine) {
    painter.fillRect(option.rect, Theme::Current().groupEdge);
    return true;
  }
  if (option.frameShape != QFrame::StyledPanel) return false;
  if (qobject_cast<const QAbstractScrollArea*>(&widget) == nullptr) {
    return PaintNamedPanel(painter, option, widget.objectName());
  }
  // The grid, which nearly always has the focus, shows it at its current cell instead.
  const bool grid = qobject_cast<const QTableView*>(&widget) != nullptr;
  const QColor edge = grid ? Theme::Current().fieldEdge : EdgeOf(option);
  PaintEdge(painter, option.rect, edge);
  return true;
}

void PaintLineEdit(QPainter& painter, const QStyleOptionFrame& option, const QWidget* edit) {
  const Theme& theme = Theme::Current();
  Panel panel{theme.base, EdgeOf(option), kFieldRadius};
  if (option.state.testFlag(QStyle::State_ReadOnly))
    panel = {theme.group, theme.groupEdge, kFieldRadius};
  if (edit != nullptr && edit->property("nonZero").toBool()) panel.fill = theme.nonZeroBox;
  PaintPanel(painter, option.rect, panel);
}

GroupParts PartsOf(const QStyleOptionGroupBox& option) {
  const QRect frame = option.rect.adjusted(0, kGroupTop, 0, 0);
  const QFontMetrics& metrics = option.fontMetrics;
  const int width = metrics.size(Qt::TextShowMnemonic, option.text).width() + 2 * kTitlePadding;
  const QRect title(option.rect.topLeft() + QPoint(kTitleLeft, 0), QSize(width, metrics.height()));
  return {frame, frame.adjusted(1, 1, -1, -1),
          QStyle::visualRect(option.direction, option.rect, title)};
}

void PaintGroup(QPainter& painter, const QStyleOptionGroupBox& option) {
  const Theme& theme = Theme::Current();
  const GroupParts parts = PartsOf(option);
  PaintPanel(painter, parts.frame, {theme.group, theme.groupEdge, kPanelRadius});
  if (option.text.isEmpty()) return;
  painter.fillRect(parts.title & parts.frame, theme.group);
  painter.setPen(theme.muted);
  painter.drawText(parts.title, Qt::AlignCenter | Qt::TextShowMnemonic, option.text);
}

}  // namespace ng
