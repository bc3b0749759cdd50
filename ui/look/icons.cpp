#include "ui/look/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <array>

#include "ui/look/row_colour.h"
#include "ui/look/theme.h"

namespace ng {
namespace {

/// All drawings are made on a square grid of this many units.
constexpr int kGrid = 24;

/// Lines to be stroked and areas to be filled.
struct Drawing {
  QPainterPath lines;
  QPainterPath areas;
};

void Lines(QPainterPath& path, std::initializer_list<QPointF> points) {
  path.moveTo(*points.begin());
  for (const QPointF& point : points) path.lineTo(point);
}

void Closed(QPainterPath& path, std::initializer_list<QPointF> points) {
  Lines(path, points);
  path.closeSubpath();
}

/// An arrow that bends back to the left.
Drawing UndoArrow() {
  Drawing d;
  Lines(d.lines, {{9, 4.5}, {4, 9.5}, {9, 14.5}});
  d.lines.moveTo(4, 9.5);
  d.lines.lineTo(14, 9.5);
  d.lines.arcTo(QRectF(9, 9.5, 10, 10), 90, -180);
  d.lines.lineTo(9, 19.5);
  return d;
}

/// The same to the right.
Drawing RedoArrow() {
  Drawing d;
  Lines(d.lines, {{15, 4.5}, {20, 9.5}, {15, 14.5}});
  d.lines.moveTo(20, 9.5);
  d.lines.lineTo(10, 9.5);
  d.lines.arcTo(QRectF(5, 9.5, 10, 10), 90, 180);
  d.lines.lineTo(15, 19.5);
  return d;
}

Drawing NewPage() {
  Drawing d;
  Closed(d.lines, {{6, 3.5}, {13.5, 3.5}, {18, 8}, {18, 20.5}, {6, 20.5}});
  Lines(d.lines, {{13, 3.5}, {13, 8.5}, {18, 8.5}});
  return d;
}

Drawing OpenFolder() {
  Drawing d;
  Lines(d.lines, {{4, 18.5}, {4, 5.5}, {9, 5.5}, {11, 8}, {18, 8}, {18, 10.5}});
  Closed(d.lines, {{4, 18.5}, {7, 10.5}, {21.5, 10.5}, {18.5, 18.5}});
  return d;
}

Drawing Die() {
  Drawing d;
  d.lines.addRoundedRect(QRectF(4, 4, 16, 16), 3, 3);
  for (const QPointF& pip : {QPointF(8.5, 8.5), QPointF(15.5, 8.5), QPointF(12, 12),
                             QPointF(8.5, 15.5), QPointF(15.5, 15.5)}) {
    d.areas.addEllipse(pip, 1.5, 1.5);
  }
  return d;
}

Drawing ToTop() {
  Drawing d;
  Lines(d.lines, {{5, 4.5}, {19, 4.5}});
  Lines(d.lines, {{12, 20.5}, {12, 9}});
  Lines(d.lines, {{7, 13.5}, {12, 8.5}, {17, 13.5}});
  return d;
}

Drawing LeftTriangle() {
  Drawing d;
  Closed(d.lines, {{15.5, 5.5}, {7.5, 12}, {15.5, 18.5}});
  return d;
}

Drawing RightTriangle() {
  Drawing d;
  Closed(d.areas, {{7.5, 4}, {18.5, 12}, {7.5, 20}});
  Closed(d.lines, {{7.5, 4}, {18.5, 12}, {7.5, 20}});
  return d;
}

Drawing CrossedFlag() {
  Drawing d;
  Lines(d.lines, {{6, 21}, {6, 3.5}, {18, 3.5}, {15.5, 7.5}, {18, 11.5}, {6, 11.5}});
  Lines(d.lines, {{13, 15}, {18.5, 20.5}});
  Lines(d.lines, {{18.5, 15}, {13, 20.5}});
  return d;
}

Drawing Clock() {
  Drawing d;
  d.lines.addEllipse(QPointF(12, 12), 8.5, 8.5);
  Lines(d.lines, {{12, 7}, {12, 12}, {15.5, 14}});
  return d;
}

Drawing CircleWithSlash() {
  Drawing d;
  d.lines.addEllipse(QPointF(12, 12), 8.5, 8.5);
  Lines(d.lines, {{6, 6}, {18, 18}});
  return d;
}

Drawing Grenade() {
  Drawing d;
  d.lines.addEllipse(QPointF(11, 14.5), 6.3, 6.3);
  Closed(d.lines, {{9, 8.5}, {9, 5}, {14, 5}, {14, 8.5}});
  Lines(d.lines, {{14, 5}, {18.5, 6.5}, {19, 12}});
  return d;
}

Drawing Rocket() {
  Drawing d;
  d.lines.moveTo(9, 15.5);
  d.lines.cubicTo(QPointF(9, 9), QPointF(14, 4), QPointF(20.5, 3.5));
  d.lines.cubicTo(QPointF(20, 10), QPointF(15, 15), QPointF(8.5, 15.5));
  Lines(d.lines, {{10, 10}, {5.5, 10.5}, {4, 13.5}, {8.7, 13.5}});
  Lines(d.lines, {{14, 14}, {13.5, 18.5}, {10.5, 20}, {10.5, 15.3}});
  Lines(d.lines, {{4, 20}, {7, 17}});
  d.areas.addEllipse(QPointF(15.2, 8.8), 1.5, 1.5);
  return d;
}

Drawing TwoPages() {
  Drawing d;
  d.lines.addRoundedRect(QRectF(3.5, 3.5, 12, 12), 1.5, 1.5);
  Lines(d.lines, {{18.5, 9}, {20.5, 9}, {20.5, 20.5}, {9, 20.5}, {9, 18.5}});
  Lines(d.lines, {{9.5, 6.5}, {9.5, 12.5}});
  Lines(d.lines, {{6.5, 9.5}, {12.5, 9.5}});
  return d;
}

Drawing TrashBin() {
  Drawing d;
  Lines(d.lines, {{4, 6.5}, {20, 6.5}});
  Lines(d.lines, {{9, 6.5}, {9, 3.5}, {15, 3.5}, {15, 6.5}});
  Lines(d.lines, {{6, 6.5}, {7, 20.5}, {17, 20.5}, {18, 6.5}});
  Lines(d.lines, {{10.2, 10}, {10.2, 17}});
  Lines(d.lines, {{13.8, 10}, {13.8, 17}});
  return d;
}

struct NamedDrawing {
  std::string_view key;
  Drawing (*draw)();
};
constexpr std::array<NamedDrawing, 15> kDrawings = {{{"New", NewPage},
                                                     {"Open", OpenFolder},
                                                     {"Reroll", Die},
                                                     {"Reset", ToTop},
                                                     {"Prev", LeftTriangle},
                                                     {"Next", RightTriangle},
                                                     {"Undo", UndoArrow},
                                                     {"Redo", RedoArrow},
                                                     {"ClearFlag", CrossedFlag},
                                                     {"Delay", Clock},
                                                     {"Disable", CircleWithSlash},
                                                     {"Grenade", Grenade},
                                                     {"Rocket", Rocket},
                                                     {"Multiply", TwoPages},
                                                     {"Delete", TrashBin}}};

/// Draws at whatever size it is asked for instead of scaling a picture.
class PathEngine : public QIconEngine {
 public:
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return picture;
  }

 protected:
  static void ToGrid(QPainter& painter, const QRect& rect) {
    const qreal side = std::min(rect.width(), rect.height());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect).center() - QPointF(side / 2, side / 2));
    painter.scale(side / kGrid, side / kGrid);
  }
};

class LineIconEngine : public PathEngine {
 public:
  LineIconEngine(Drawing drawing, IconColour colour)
      : drawing_(std::move(drawing)), colour_(colour) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    ToGrid(*painter, rect);
    const QColor colour = ColourFor(mode);
    painter->fillPath(drawing_.areas, colour);
    painter->strokePath(drawing_.lines,
                        QPen(colour, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->restore();
  }

  QIconEngine* clone() const override { return new LineIconEngine(*this); }

 private:
  /// Asked at every painting, since the palette changes while the program runs.
  QColor ColourFor(QIcon::Mode mode) const {
    if (colour_ == IconColour::White) return Qt::white;
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    return QGuiApplication::palette().color(group, QPalette::WindowText);
  }

  Drawing drawing_;
  IconColour colour_;
};

/// Three rows of the initiative order, the middle one on turn.
class ApplicationIconEngine : public PathEngine {
 public:
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    painter->save();
    ToGrid(*painter, rect);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Theme::Light().accent);
    painter->drawRoundedRect(QRectF(1, 1, 22, 22), 4, 4);
    painter->setBrush(Qt::white);
    painter->drawRoundedRect(QRectF(5, 5, 14, 3.5), 1, 1);
    painter->drawRoundedRect(QRectF(5, 15.5, 14, 3.5), 1, 1);
    painter->setBrush(ToQColor(RowColour::Green));
    painter->drawRoundedRect(QRectF(5, 10.25, 14, 3.5), 1, 1);
    painter->restore();
  }

  QIconEngine* clone() const override { return new ApplicationIconEngine(*this); }
};

}  // namespace

QIcon ToolbarIcon(std::string_view key, IconColour colour) {
  for (const NamedDrawing& drawing : kDrawings) {
    if (drawing.key == key) return QIcon(new LineIconEngine(drawing.draw(), colour));
  }
  return {};
}

QIcon ApplicationIcon() { return QIcon(new ApplicationIconEngine); }

}  // namespace ng
