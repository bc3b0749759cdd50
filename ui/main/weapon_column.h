#pragma once

#include <QWidget>

#include "tracker/fight/player_record.h"

class QGridLayout;
class QHBoxLayout;

namespace ng {

/// One ready weapon: what it is, range, recoil, sights, rounds and the buttons that fire it. A
/// widget of its own, so that its range choice excludes only its own brackets.
class WeaponColumn : public QWidget {
  Q_OBJECT

 public:
  explicit WeaponColumn(Weapon weapon, QWidget* parent = nullptr);

 private:
  QGridLayout* MakeTitle();
  QHBoxLayout* MakeFigures();
  QGridLayout* MakeRanges();
  QGridLayout* MakeRecoil();
  QHBoxLayout* MakeSights();
  QHBoxLayout* MakeRounds();
  QHBoxLayout* MakeTriggers();
  /// The object name of this weapon's element of a control array.
  QString Own(const char* name) const;
  /// "Primary: " or "Secondary: " before a screen reader's words.
  QString Spoken(const char* words) const;

  int index_;
};

}  // namespace ng
