#include "ui/look/tracker_style.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStatusBar>
#include <QStyleOption>
#include <QToolButton>
#include <optional>

#include "ui/look/row_colour.h"
#include "ui/look/style_buttons.h"
#include "ui/look/style_panels.h"
#include "ui/look/theme.h"

namespace ng {
namespace {

/// By how much a line of a list is higher than its text.
constexpr int kLineAir = 2;

constexpr int kEdge = 1;
/// Between the edge of a line edit and its text, in addition to what the line edit keeps itself.
constexpr int kFieldPadding = 3;

/// Whether the widget's text has a tone, and then the role of the palette that has its colour.
std::optional<QPalette::ColorRole> ToneOf(const QWidget& widget) {
  const QVariant tone = widget.property("tone");
  if (tone == QLatin1String("muted")) return kMutedText;
  if (tone == QLatin1String("accent")) return kAccentText;
  if (tone == QLatin1String("alarm")) return kAlarmText;
  if (qobject_cast<const QStatusBar*>(widget.parentWidget()) != nullptr) return kMutedText;
  return std::nullopt;
}

/// A badge wears the colour of the rows that say the same, and the window's where none does.
void ColourBadge(QLabel& badge, TurnState state) {
  const RowColour colour = LookOf(state).colour;
  const bool plain = colour == RowColour::White;
  QPalette colours;
  colours.setColor(QPalette::Base, plain ? Theme::Current().group : ToQColor(colour));
  // On the colours of the rows the text is black, in either theme.
  if (!plain) colours.setColor(QPalette::WindowText, Qt::black);
  badge.setPalette(colours);
}

void ColourLabel(QLabel& label) {
  const QVariant state = label.property("turnState");
  if (state.isValid()) return ColourBadge(label, static_cast<TurnState>(state.toInt()));
  if (const auto role = ToneOf(label)) label.setForegroundRole(*role);
}

/// For a widget that writes in the colour of `text`, whatever its own role.
void ColourText(QWidget& widget, QPalette::ColorRole text) {
  const auto role = ToneOf(widget);
  if (!role) return;
  QPalette colours;
  colours.setColor(text, QGuiApplication::palette().color(*role));
  widget.setPalette(colours);
}

}  // namespace

TrackerStyle::TrackerStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void TrackerStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (auto* label = qobject_cast<QLabel*>(widget)) {
    ColourLabel(*label);
  } else if (qobject_cast<QLineEdit*>(widget) != nullptr) {
    ColourText(*widget, QPalette::Text);
  } else if (qobject_cast<QToolButton*>(widget) != nullptr) {
    ColourText(*widget, QPalette::ButtonText);
  }
}

void TrackerStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
      return PaintCheckBox(*painter, *option);
    case PE_IndicatorRadioButton:
      return PaintRadioButton(*painter, *option);
    case PE_PanelLineEdit: {
      const auto* edit = qstyleoption_cast<const QStyleOptionFrame*>(option);
      // One without a frame stands in another widget, which has one.
      if (edit == nullptr || edit->lineWidth == 0) break;
      return PaintLineEdit(*painter, *edit, widget);
    }
    case PE_PanelButtonCommand: {
      const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
      if (button == nullptr) break;
      // Fusion keeps pictures of buttons by palette; with one palette they share them.
      QStyleOptionButton shared = *button;
      shared.palette = QGuiApplication::palette();
      shared.palette.setCurrentColorGroup(button->palette.currentColorGroup());
      return QProxyStyle::drawPrimitive(element, &shared, painter, widget);
    }
    case PE_PanelStatusBar:
      return painter->fillRect(QRect(0, 0, option->rect.width(), 1), Theme::Current().groupEdge);
    case PE_FrameStatusBarItem:
      return;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void TrackerStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  if (element == CE_ToolBar) {
    const QRect bar = option->rect;
    return painter->fillRect(bar.adjusted(0, bar.height() - 1, 0, 0), Theme::Current().groupEdge);
  }
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (element == CE_ShapedFrame && frame != nullptr && widget != nullptr) {
    if (PaintFrame(*painter, *frame, *widget)) return;
  }
  if (element == CE_PushButton && button != nullptr && widget != nullptr) {
    if (PaintPushButton(*painter, *button, *widget)) return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void TrackerStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
  if (control == CC_GroupBox && group != nullptr) return PaintGroup(*painter, *group);
  const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
  if (control == CC_ToolButton && button != nullptr && widget != nullptr) {
    if (PaintToolButton(*painter, *button, *widget)) return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect TrackerStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                   SubControl part, const QWidget* widget) const {
  const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
  if (control == CC_GroupBox && group != nullptr) {
    const GroupParts parts = PartsOf(*group);
    if (part == SC_GroupBoxFrame) return parts.frame;
    if (part == SC_GroupBoxContents) return parts.contents;
    if (part == SC_GroupBoxLabel) return parts.title;
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect TrackerStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
  const QRect area = QProxyStyle::subElementRect(element, option, widget);
  if (element != SE_LineEditContents) return area;
  return area.adjusted(kFieldPadding, 0, -kFieldPadding, 0);
}

int TrackerStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return kIndicator;
    case PM_ToolBarFrameWidth:
      return 0;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QSize TrackerStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& contents, const QWidget* widget) const {
  if (type == CT_PushButton && IsCaption(widget)) {
    return contents + QSize(2 * kCaptionPadding, 2 * kEdge);
  }
  if (type == CT_LineEdit) return contents + QSize(2 * (kEdge + kFieldPadding), 2 * kEdge);
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type != CT_ItemViewItem) return size;
  return size.expandedTo({0, option->fontMetrics.height() + kLineAir});
}

}  // namespace ng
