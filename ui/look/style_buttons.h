#pragma once

class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionToolButton;
class QWidget;

namespace ng {

void PaintCheckBox(QPainter& painter, const QStyleOption& option);
void PaintRadioButton(QPainter& painter, const QStyleOption& option);

/// Whether a push button is the caption of a box, which it steps: its dynamic property "shape" is
/// "caption".
bool IsCaption(const QWidget* button);

/// Paints a caption, and the Roll button. Returns false for any other push button.
bool PaintPushButton(QPainter& painter, const QStyleOptionButton& option, const QWidget& button);

/// Paints the Next button of the toolbar, and any that is checked. Returns false for any other.
bool PaintToolButton(QPainter& painter, const QStyleOptionToolButton& option,
                     const QWidget& button);

/// Edge of a check box and of a radio button, in device-independent pixels.
constexpr int kIndicator = 15;
/// Between the edge of a caption and its words, in device-independent pixels.
constexpr int kCaptionPadding = 6;

}  // namespace ng
