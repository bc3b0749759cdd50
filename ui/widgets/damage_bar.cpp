#include "ui/widgets/damage_bar.h"

#include <QAccessible>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "combat/wounds.h"
#include "ui/look/theme.h"

namespace ng {
namespace {

constexpr int kBarHeight = 31;
constexpr int kLeastBoxWidth = 12;

/// The letter in each box, blank where no level begins.
constexpr std::array<char, kTrackBoxes> kLetters = {'L', ' ', 'M', ' ', ' ',
                                                    'S', ' ', ' ', ' ', 'D'};

/// The area of a box: the edges are on whole device pixels, with a pixel between two boxes.
QRectF BoxArea(const QWidget& bar, int box) {
  const double scale = bar.devicePixelRatioF();
  const double pitch = (bar.width() + 1.0) / kTrackBoxes;
  const double left = std::round(box * pitch * scale) / scale;
  const double right = std::round((box + 1) * pitch * scale) / scale - 1;
  return {left, 0, right - left, static_cast<double>(bar.height())};
}

}  // namespace

DamageBar::DamageBar(Track track, QWidget* parent) : QWidget(parent), track_(track) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMaximumHeight(kBarHeight);
  Announce();
}

void DamageBar::ShowLevel(int boxes) {
  const int held = std::clamp(boxes, 0, kTrackBoxes);
  if (held == boxes_) return;
  boxes_ = held;
  Announce();
  update();
}

QSize DamageBar::minimumSizeHint() const {
  return {kTrackBoxes * kLeastBoxWidth, fontMetrics().height() + 4};
}

QSize DamageBar::sizeHint() const { return {minimumSizeHint().width(), kBarHeight}; }

void DamageBar::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::Current();
  const QColor fill = track_ == Track::Physical ? theme.physicalBar : theme.stunBar;
  QPainter painter(this);
  QFont letters = font();
  letters.setBold(true);
  painter.setFont(letters);
  for (int box = 0; box < kTrackBoxes; ++box) {
    const QRectF area = BoxArea(*this, box);
    const bool filled = box < boxes_;
    painter.fillRect(area, filled ? fill : theme.fieldEdge);
    if (!filled) painter.fillRect(area.adjusted(1, 1, -1, -1), theme.base);
    painter.setPen(filled ? theme.base : theme.muted);
    painter.drawText(area, Qt::AlignCenter,
                     QString(QLatin1Char(kLetters[static_cast<std::size_t>(box)])));
  }
}

void DamageBar::Announce() {
  setAccessibleName(QStringLiteral("%1 of %2, %3")
                        .arg(boxes_)
                        .arg(kTrackBoxes)
                        .arg(QLatin1String(LevelOf(track_, Integer(boxes_)).name)));
  QAccessibleEvent changed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&changed);
}

}  // namespace ng
