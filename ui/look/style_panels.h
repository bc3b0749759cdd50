#pragma once

#include <QColor>
#include <QRect>

class QPainter;
class QStyleOptionFrame;
class QStyleOptionGroupBox;
class QWidget;

namespace ng {

/// An area with rounded corners. Lengths are in device-independent pixels.
struct Panel {
  QColor fill;
  QColor edge;
  qreal radius;
  qreal edgeWidth = 1;
};

/// Fills the area; its edge is inside.
void PaintPanel(QPainter& painter, const QRect& area, const Panel& panel);

/// Paints the hairlines, the edge of everything that scrolls, and the panels that have a name.
/// Returns false for any other frame.
bool PaintFrame(QPainter& painter, const QStyleOptionFrame& option, const QWidget& widget);

/// Paints the box of a line edit: greyer when it cannot be changed, and amber for the dynamic
/// property "nonZero".
void PaintLineEdit(QPainter& painter, const QStyleOptionFrame& option, const QWidget* edit);

/// The parts of a group, whose title is on the upper edge of the frame.
struct GroupParts {
  QRect frame;
  QRect contents;
  QRect title;
};
GroupParts PartsOf(const QStyleOptionGroupBox& option);
void PaintGroup(QPainter& painter, const QStyleOptionGroupBox& option);

}  // namespace ng
