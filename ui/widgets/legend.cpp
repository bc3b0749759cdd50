#include "ui/widgets/legend.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "ui/look/row_colour.h"
#include "ui/look/theme.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

/// A little piece of a row.
class Swatch : public QWidget {
 public:
  Swatch(const QSize& size, const QColor& colour, qreal frame, QWidget* parent)
      : QWidget(parent), colour_(colour), frame_(frame) {
    setFixedSize(size);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), colour_);
    painter.setPen(QPen(Qt::black, frame_, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    // A thick frame needs an edge round it to be seen on a dark window.
    const qreal inset = frame_ / 2 + (frame_ > 1 ? 1 : 0);
    painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
  }

 private:
  QColor colour_;
  qreal frame_;
};

}  // namespace

Legend::Legend(QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(3);
  const auto add = [&](const QSize& size, const QColor& colour, qreal frame, const QString& text) {
    row->addWidget(new Swatch(size, colour, frame, this));
    auto* label = new QLabel(text, this);
    label->setProperty("tone", "muted");
    // The narrowest pane still shows every word.
    label->setFont(InterfaceFont(9));
    row->addWidget(label);
    row->addSpacing(2);
  };
  for (const TurnLook& look : kTurnLooks) {
    if (look.colour == RowColour::White) continue;
    add({12, 12}, ToQColor(look.colour), 1, ToQString(look.legend));
  }
  add({20, 14}, Qt::white, 2, "shown");
  row->addStretch();
}

}  // namespace ng
