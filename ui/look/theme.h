#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QApplication;

namespace ng {

// The roles of the palette that colour what is not plain text.
constexpr QPalette::ColorRole kMutedText = QPalette::PlaceholderText;
constexpr QPalette::ColorRole kAccentText = QPalette::Link;
constexpr QPalette::ColorRole kAlarmText = QPalette::LinkVisited;

/// The colours of the windows, light or dark. The row colours of the grid never change with them.
struct Theme {
  bool dark;
  QColor window;
  QColor group;
  QColor groupEdge;
  QColor base;
  /// Every second row of the long lists.
  QColor alternateBase;
  QColor button;
  QColor text;
  QColor muted;
  QColor fieldEdge;
  QColor accent;
  QColor labelAccent;
  QColor alarmText;
  QColor physicalBar;
  QColor stunBar;
  QColor nonZeroBox;

  static const Theme& Light();
  static const Theme& Dark();
  /// The one in force.
  static const Theme& Current();

  QPalette Palette() const;
};

/// Puts the colours on every window.
void ApplyTheme(QApplication& application, const Theme& theme);

/// Whether the desktop asks for dark colours. To be asked before a theme is applied.
bool DesktopIsDark(const QApplication& application);

/// Size of the text, in points.
constexpr double kTextPoints = 10;

/// The interface font (Noto Sans where there is one) in points: 10 for text, 17 for names and
/// totals, 14 for the rounds left, 11 for the grid.
QFont InterfaceFont(double points, bool bold = false);

/// Dice results.
QFont FixedFont(double points);

}  // namespace ng
