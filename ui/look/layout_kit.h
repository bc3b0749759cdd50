#pragma once

#include <QSize>
#include <QString>
#include <QWidget>
#include <initializer_list>

#include "ui/look/theme.h"

class QCheckBox;
class QFrame;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QVBoxLayout;

namespace ng {

class ElidedLabel;

// Sizes that the pages share, in device-independent pixels.
constexpr int kGroupGap = 8;
constexpr int kGroupPadding = 10;
/// Between the tabs and the groups of a page.
constexpr int kPageMargin = 6;
constexpr int kRowGap = 4;
constexpr int kBoxHeight = 24;
constexpr int kSmallButtonWidth = 32;
constexpr int kSmallButtonHeight = 26;
constexpr int kButtonHeight = 30;

/// What a control is called: by the program (its object name), to a screen reader, and by its
/// tooltip.
struct Naming {
  QString name;
  QString accessible;
  QString tip;
};

/// The object name of an element of a control array ("txtRC_1").
QString ElementName(const char* name, int index);

/// A tooltip that ends in the key that does the same.
QString TipWithKey(const QString& tip, const QString& key);

QGroupBox* MakeGroup(const QString& title, QWidget* parent);
/// Rows of a group, within the group's padding.
QVBoxLayout* MakeGroupRows(QGroupBox* group);
/// The same, closer to the edges, where height is scarce.
QVBoxLayout* MakeTightRows(QGroupBox* group);
/// A row without margins of its own.
QHBoxLayout* MakeRow(int gap = kRowGap);
/// A column of groups without margins of its own.
QVBoxLayout* MakeColumn();
/// A hairline between two parts of a group.
QFrame* MakeLine(Qt::Orientation orientation, QWidget* parent);

/// Muted words on one line that say what is beside them.
QLabel* MakeCaption(const QString& text, QWidget* parent);
/// A bold text that the program fills in; it holds its place when empty.
QLabel* MakeValue(const QString& name, QWidget* parent);
/// Like MakeValue, for texts of any length.
ElidedLabel* MakeElided(const QString& name, QWidget* parent);

QLineEdit* MakeBox(const Naming& naming, int width, QWidget* parent);
QCheckBox* MakeCheck(const Naming& naming, const QString& text, QWidget* parent);
QPushButton* MakeButton(const Naming& naming, const QString& text, QWidget* parent);

/// Bold, in the size that it has.
void Embolden(QWidget* widget);

/// A column of a list; with width 0 it takes what the others leave. The lines are aligned as the
/// header is. Where that would be too little, the others shrink, each down to its least width.
struct ListColumn {
  QString title;
  int width = 0;
  Qt::Alignment alignment = Qt::AlignLeft;
  /// 0 for a column that keeps its width.
  int leastWidth = 0;
};

/// A flat list that shrinks freely. Without titles it has no header.
QTreeWidget* MakeList(const Naming& naming, std::initializer_list<ListColumn> columns,
                      QWidget* parent);
/// A list of one column, without header.
QTreeWidget* MakePlainList(const Naming& naming, QWidget* parent);

/// A page whose text shrinks from 10 to 9 points where it has less room than the larger text needs.
class FittedPage : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  /// What the page needs with the smaller text.
  QSize minimumSizeHint() const override;
  /// The same: any further room comes from the window.
  QSize sizeHint() const override;

 protected:
  /// Measures the page in both sizes; to be called when it holds everything. A page that is not
  /// open at the start and needs no more room than the others is measured when it is first shown.
  void MeasureText();
  void resizeEvent(QResizeEvent* event) override;

 private:
  QSize NeededWith(double points);
  void SetText(double points);

  QSize roomy_;
  QSize tight_;
};

}  // namespace ng
