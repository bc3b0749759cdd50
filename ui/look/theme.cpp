#include "ui/look/theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QStyle>
#include <QWidget>

#include "ui/look/tracker_style.h"

namespace ng {
namespace {

const Theme* current = nullptr;

QColor Mixed(const QColor& one, const QColor& other) {
  return QColor((one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
                (one.blue() + other.blue()) / 2);
}

}  // namespace

const Theme& Theme::Light() {
  static const Theme theme{.dark = false,
                           .window = QColor("#eceef1"),
                           .group = QColor("#f7f8fa"),
                           .groupEdge = QColor("#c9ced6"),
                           .base = QColor("#ffffff"),
                           .alternateBase = QColor("#f4f5f7"),
                           .button = QColor("#f2f3f5"),
                           .text = QColor("#14171c"),
                           .muted = QColor("#565e6b"),
                           .fieldEdge = QColor("#868d99"),
                           .accent = QColor("#1d5fae"),
                           .labelAccent = QColor("#1d5fae"),
                           .alarmText = QColor("#b3261e"),
                           .physicalBar = QColor("#b3261e"),
                           .stunBar = QColor("#2f62b5"),
                           .nonZeroBox = QColor("#fff3c4")};
  return theme;
}

const Theme& Theme::Dark() {
  static const Theme theme{.dark = true,
                           .window = QColor("#1f2226"),
                           .group = QColor("#25282d"),
                           .groupEdge = QColor("#3a3f47"),
                           .base = QColor("#15171a"),
                           .alternateBase = QColor("#1b1e22"),
                           .button = QColor("#32363c"),
                           .text = QColor("#e7e9ec"),
                           .muted = QColor("#a4acb8"),
                           .fieldEdge = QColor("#707783"),
                           .accent = QColor("#2f6fbf"),
                           .labelAccent = QColor("#7fb0f2"),
                           .alarmText = QColor("#f08a82"),
                           .physicalBar = QColor("#e0574d"),
                           .stunBar = QColor("#6a9cf0"),
                           .nonZeroBox = QColor("#4a3f12")};
  return theme;
}

const Theme& Theme::Current() { return current == nullptr ? Light() : *current; }

QPalette Theme::Palette() const {
  QPalette palette(button, window);
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::AlternateBase, alternateBase);
  palette.setColor(QPalette::Text, text);
  palette.setColor(kMutedText, muted);
  palette.setColor(QPalette::Button, button);
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, base);
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(kAccentText, labelAccent);
  palette.setColor(kAlarmText, alarmText);
  const QColor faint = Mixed(muted, window);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, groupEdge);
  return palette;
}

void ApplyTheme(QApplication& application, const Theme& theme) {
  if (current == nullptr) {
    application.setStyle(new TrackerStyle);
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns its style.
    application.setFont(InterfaceFont(kTextPoints));
  }
  current = &theme;
  application.setPalette(theme.Palette());
  for (QWidget* widget : QApplication::allWidgets()) application.style()->polish(widget);
}

bool DesktopIsDark(const QApplication& application) {
  const QPalette palette = application.palette();
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

QFont InterfaceFont(double points, bool bold) {
  static const QString family = [] {
    const QString preferred = QStringLiteral("Noto Sans");
    return QFontDatabase::hasFamily(preferred)
               ? preferred
               : QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
  }();
  QFont font(family);
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

QFont FixedFont(double points) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(points);
  return font;
}

}  // namespace ng
