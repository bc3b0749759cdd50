#pragma once

#include <QProxyStyle>

namespace ng {

/// How every widget looks: what is not painted here is Fusion's. The colours are those of the theme
/// in force. A widget is known by its class, by its object name, or by a dynamic property that says
/// what it is for:
///   - "tone", of a label, line edit or tool button: its text is "muted", or stands out ("accent",
///   "alarm");
///   - "nonZero", of a line edit: whether it holds a modifier that counts;
///   - "turnState", of a badge: the TurnState whose row colour it has;
///   - "shape", of a push button: "caption" for one before a box.
class TrackerStyle : public QProxyStyle {
  Q_OBJECT

 public:
  TrackerStyle();

  using QProxyStyle::polish;
  /// Colours a text by its tone and the turn badge's by what the badge says. To be called again
  /// when the theme or that text has changed.
  void polish(QWidget* widget) override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
};

}  // namespace ng
