#pragma once

#include <QProxyStyle>

namespace ng {

/// Check boxes and radio buttons drawn as paths, sharp at every scale: filled with the accent when
/// set; and the lines of lists with a little air. Everything else is Fusion's.
class TrackerStyle : public QProxyStyle {
  Q_OBJECT

 public:
  TrackerStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
};

}  // namespace ng
