#include "ui/look/style_buttons.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QToolBar>

#include "ui/look/style_panels.h"
#include "ui/look/theme.h"

namespace ng {
namespace {

/// White stays readable on it.
QColor Darker(const QColor& accent) { return accent.darker(120); }

/// How much of the accent a checked button of the toolbar has, in per cent.
constexpr int kCheckedTint = 25;
constexpr qreal kCheckedEdge = 2;

QColor Tinted(const QColor& ground, const QColor& accent) {
  const auto mixed = [](int from, int to) { return from + (to - from) * kCheckedTint / 100; };
  return {mixed(ground.red(), accent.red()), mixed(ground.green(), accent.green()),
          mixed(ground.blue(), accent.blue())};
}

constexpr qreal kCaptionRadius = 3;
constexpr qreal kRollRadius = 4;
constexpr qreal kToolRadius = 2;

bool Is(const QStyleOption& option, QStyle::StateFlag state) {
  return option.state.testFlag(state);
}

QRectF Square(const QRect& area) {
  QRectF square(0, 0, kIndicator - 1, kIndicator - 1);
  square.moveCenter(QRectF(area).center());
  return square;
}

void Choose(QPainter& painter, const QStyleOption& option) {
  const Theme& theme = Theme::Current();
  const bool set = Is(option, QStyle::State_On);
  const QColor edge = Is(option, QStyle::State_MouseOver) ? theme.labelAccent : theme.fieldEdge;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(set ? theme.accent : edge);
  painter.setBrush(set ? theme.accent : theme.base);
}

void PaintCaption(QPainter& painter, const QStyleOptionButton& option, const QStyle& style) {
  const Theme& theme = Theme::Current();
  const bool held = Is(option, QStyle::State_MouseOver) || Is(option, QStyle::State_HasFocus);
  const bool pressed = Is(option, QStyle::State_Sunken);
  PaintPanel(painter, option.rect,
             {pressed ? theme.base : theme.group, held ? theme.labelAccent : theme.groupEdge,
              kCaptionRadius});
  style.drawItemText(&painter, option.rect.adjusted(kCaptionPadding, 0, -kCaptionPadding, 0),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, option.palette,
                     Is(option, QStyle::State_Enabled), option.text, QPalette::ButtonText);
}

void PaintRoll(QPainter& painter, const QStyleOptionButton& option, const QStyle& style) {
  const Theme& theme = Theme::Current();
  const bool focus = Is(option, QStyle::State_HasFocus);
  const bool held = focus || Is(option, QStyle::State_MouseOver);
  const bool pressed = Is(option, QStyle::State_Sunken);
  PaintPanel(painter, option.rect,
             {pressed ? Darker(theme.accent) : theme.accent,
              held ? theme.labelAccent : theme.accent, kRollRadius, focus ? 2.0 : 1.0});
  QStyleOptionButton label = option;
  label.palette.setColor(QPalette::ButtonText, Qt::white);
  style.drawControl(QStyle::CE_PushButtonLabel, &label, &painter);
}

}  // namespace

void PaintCheckBox(QPainter& painter, const QStyleOption& option) {
  const QRectF box = Square(option.rect);
  painter.save();
  Choose(painter, option);
  painter.drawRoundedRect(box, 2.5, 2.5);
  if (Is(option, QStyle::State_On)) {
    QPainterPath tick(box.topLeft() + QPointF(3, 7.2));
    tick.lineTo(box.topLeft() + QPointF(5.8, 10));
    tick.lineTo(box.topLeft() + QPointF(11.2, 4.2));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(tick);
  }
  painter.restore();
}

void PaintRadioButton(QPainter& painter, const QStyleOption& option) {
  const QRectF disc = Square(option.rect);
  painter.save();
  Choose(painter, option);
  painter.drawEllipse(disc);
  if (Is(option, QStyle::State_On)) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(disc.center(), 3, 3);
  }
  painter.restore();
}

bool IsCaption(const QWidget* button) {
  return button != nullptr && button->property("shape") == QLatin1String("caption");
}

bool PaintPushButton(QPainter& painter, const QStyleOptionButton& option, const QWidget& button) {
  if (IsCaption(&button)) {
    PaintCaption(painter, option, *button.style());
  } else if (button.objectName() == QLatin1String("cmdRoll")) {
    PaintRoll(painter, option, *button.style());
  } else {
    return false;
  }
  return true;
}

bool PaintToolButton(QPainter& painter, const QStyleOptionToolButton& option,
                     const QWidget& button) {
  const Theme& theme = Theme::Current();
  const bool next = button.objectName() == QLatin1String("Next");
  const bool checked = Is(option, QStyle::State_On) &&
                       qobject_cast<const QToolBar*>(button.parentWidget()) != nullptr;
  if (!next && !checked) return false;
  QStyleOptionToolButton label = option;
  if (next) {
    const bool held = Is(option, QStyle::State_MouseOver) || Is(option, QStyle::State_Sunken);
    PaintPanel(painter, option.rect,
               {held ? Darker(theme.accent) : theme.accent, theme.accent, kToolRadius});
    label.palette.setColor(QPalette::ButtonText, Qt::white);
  } else {
    // Unlike a button below the mouse, whose edge is grey.
    PaintPanel(painter, option.rect,
               {Tinted(theme.window, theme.accent), theme.accent, kToolRadius, kCheckedEdge});
  }
  label.rect.adjust(1, 1, -1, -1);
  button.style()->drawControl(QStyle::CE_ToolButtonLabel, &label, &painter, &button);
  return true;
}

}  // namespace ng
