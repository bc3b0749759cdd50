#include "ui/theme.h"

#include <QApplication>
#include <QFontDatabase>

#include "ui/tracker_style.h"

namespace ng {
namespace {

const Theme* current = nullptr;

// The badge's colours are those of the grid's rows, and black stands on them in either theme.
constexpr const char* kStyleSheet = R"(
QGroupBox { background: %group; border: 1px solid %groupEdge; border-radius: 5px; margin-top: 8px; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 8px;
  padding: 0 6px; color: %muted; }
QFrame#headerPanel, QFrame#testStrip { background: %group; border: 1px solid %groupEdge; border-radius: 5px; }
QLabel#lblPhase { background: %base; border: 1px solid %groupEdge; border-radius: 5px;
  padding: 0 13px; }
QLabel#lblTurn { border: 1px solid %fieldEdge; border-radius: 4px; }
QLabel#lblTurn[text="On turn"] { background: #00ff00; color: black; }
QLabel#lblTurn[text="Delayed"] { background: #ffff00; color: black; }
QLabel#lblTurn[text="Inactive"] { background: #ff0000; color: black; }
QLabel[tone="muted"] { color: %muted; }
QLabel[tone="accent"], QLineEdit[tone="accent"] { color: %labelAccent; }
QLabel[tone="alarm"] { color: %physicalBar; }
QLineEdit { background: %base; border: 1px solid %fieldEdge; border-radius: 3px; padding: 0 3px; }
QLineEdit:focus { border-color: %labelAccent; }
QLineEdit:read-only { background: %group; border-color: %groupEdge; }
QLineEdit[nonZero="true"] { background: %nonZeroBox; font-weight: bold; }
QPushButton[shape="caption"] { background: %group; border: 1px solid %groupEdge;
  border-radius: 3px; padding: 0 5px; text-align: left; }
QPushButton[shape="caption"]:hover, QPushButton[shape="caption"]:focus { border-color: %labelAccent; }
QPushButton[shape="caption"]:pressed { background: %base; }
QPushButton#cmdRoll { background: %accent; color: white; border: 1px solid %accent;
  border-radius: 4px; }
QPushButton#cmdRoll:hover { border-color: %labelAccent; }
QPushButton#cmdRoll:focus { border: 2px solid %labelAccent; }
QPushButton#cmdRoll:pressed { background: %labelAccent; }
QTreeView, QTableView, QListView, QPlainTextEdit { background: %base; border: 1px solid %fieldEdge; border-radius: 2px; }
QPlainTextEdit:focus, QTreeWidget:focus { border-color: %labelAccent; }
QToolBar { border: none; border-bottom: 1px solid %groupEdge; }
QToolButton#Next { background: %accent; color: white; border: 1px solid %accent;
  border-radius: 2px; font-weight: bold; }
QToolBar QToolButton:checked { background: %base; border: 1px solid %fieldEdge;
  border-radius: 2px; }
QToolButton#Next:hover, QToolButton#Next:pressed { background: %labelAccent; }
QStatusBar { border-top: 1px solid %groupEdge; }
QStatusBar::item { border: none; }
QStatusBar QLabel { color: %muted; }
QFrame#line { background: %groupEdge; border: none; }
)";

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
  palette.setColor(QPalette::PlaceholderText, muted);
  palette.setColor(QPalette::Button, button);
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, base);
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, labelAccent);
  const QColor faint = Mixed(muted, window);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, groupEdge);
  return palette;
}

QString Theme::StyleSheet() const {
  // Longer words first: %group is the beginning of %groupEdge.
  const std::pair<const char*, const QColor&> words[] = {{"%groupEdge", groupEdge},
                                                         {"%group", group},
                                                         {"%base", base},
                                                         {"%muted", muted},
                                                         {"%accent", accent},
                                                         {"%labelAccent", labelAccent},
                                                         {"%fieldEdge", fieldEdge},
                                                         {"%physicalBar", physicalBar},
                                                         {"%nonZeroBox", nonZeroBox}};
  QString sheet = QString::fromLatin1(kStyleSheet);
  for (const auto& [word, colour] : words) sheet.replace(QLatin1String(word), colour.name());
  return sheet;
}

void ApplyTheme(QApplication& application, const Theme& theme) {
  if (current == nullptr) {
    application.setStyle(new TrackerStyle);
    application.setFont(InterfaceFont(kTextPoints));
  }
  current = &theme;
  application.setPalette(theme.Palette());
  application.setStyleSheet(theme.StyleSheet());
}

bool DesktopIsDark(const QApplication& application) {
  const QPalette palette = application.palette();
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

QFont InterfaceFont(double points, bool bold) {
  static const QString family = [] {
    const QString preferred = QStringLiteral("Noto Sans");
    if (QFontDatabase::hasFamily(preferred)) return preferred;
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
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
