#include "ui/widgets/phase_label.h"

#include <array>

#include "ui/look/theme.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr int kHeight = 42;
/// Frame and padding at both sides.
constexpr int kPadding = 13;
constexpr int kMargins = 2 * (1 + kPadding);
constexpr std::array<double, 4> kSizes = {14, 12, 11, 10};

}  // namespace

PhaseLabel::PhaseLabel(QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("lblPhase"));
  setAccessibleName("Step of the combat turn");
  setFrameShape(StyledPanel);
  setFixedHeight(kHeight);
  setIndent(kPadding);
  setFont(InterfaceFont(kSizes.front(), true));
}

void PhaseLabel::ShowText(const std::string& text) {
  const QString shown = ToQString(text);
  if (QLabel::text() != shown) setText(shown);
  FitFont();
}

void PhaseLabel::FitFont() {
  // Before the window is laid out the width means nothing.
  if (!testAttribute(Qt::WA_Resized)) return;
  for (const double size : kSizes) {
    const QFont candidate = InterfaceFont(size, true);
    const bool fits = QFontMetrics(candidate).horizontalAdvance(text()) <= width() - kMargins;
    if (!fits && size != kSizes.back()) continue;
    if (font().pointSizeF() != candidate.pointSizeF()) setFont(candidate);
    setToolTip(fits ? QString() : text());
    return;
  }
}

void PhaseLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  FitFont();
}

}  // namespace ng
