#include "ui/main/window_place.h"

#include <algorithm>

namespace ng {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr QSize kUsualWindow(1280, 800);

QRect KeptPlace(const WindowLayout& layout) {
  return {layout.MainLeft / kTwipsPerPixel, layout.MainTop / kTwipsPerPixel,
          layout.MainWidth / kTwipsPerPixel, layout.MainHeight / kTwipsPerPixel};
}

}  // namespace

QRect OpeningPlace(const WindowLayout& layout, const QRect& available) {
  const QRect kept = KeptPlace(layout);
  const bool tooSmall =
      kept.width() < kLeastWindow.width() || kept.height() < kLeastWindow.height();
  const QSize wanted = tooSmall ? kUsualWindow : kept.size();
  const QSize size = wanted.boundedTo(available.size()).expandedTo(kLeastWindow);
  // On a screen that is too small for the window, its top left corner is what must be seen.
  const int right = std::max(available.left(), available.left() + available.width() - size.width());
  const int bottom =
      std::max(available.top(), available.top() + available.height() - size.height());
  return {QPoint(std::clamp(kept.left(), available.left(), right),
                 std::clamp(kept.top(), available.top(), bottom)),
          size};
}

QPoint KeptCentre(const WindowLayout& layout) { return KeptPlace(layout).center(); }

WindowLayout KeptLayout(const QRect& place) {
  return {place.left() * kTwipsPerPixel, place.top() * kTwipsPerPixel,
          place.width() * kTwipsPerPixel, place.height() * kTwipsPerPixel};
}

}  // namespace ng
