#pragma once

#include <array>
#include <span>
#include <string>

#include "base/integer.h"
#include "combat/bound_control.h"
#include "tracker/fight/player_record.h"

namespace ng {

/// A control array with one element for each of the two weapons.
template <typename T>
using PerWeapon = std::array<T, 2>;

/// The four range brackets.
constexpr std::size_t kRanges = 4;

/// The record's fields of one hand.
struct HandFields {
  std::string PlayerRecord::*caption;
  std::string PlayerRecord::*damage;
  /// Magazine text ("30(c)").
  std::string PlayerRecord::*ammunition;
  /// Rounds fired since the last reload, and in this turn.
  std::string PlayerRecord::*shots;
  std::string PlayerRecord::*roundsThisTurn;
  std::string PlayerRecord::*recoilCompensation;
  std::string PlayerRecord::*gyro;
  Integer PlayerRecord::*smartlink;
  Integer PlayerRecord::*laserSight;
  Integer PlayerRecord::*smartGoggles;
  std::string PlayerRecord::*skillName;
  Integer PlayerRecord::*skillValue;
  /// 0 short to 3 extreme.
  Integer PlayerRecord::*range;
};
const HandFields& FieldsOf(Weapon weapon);

/// What a weapon in the hand is described by.
struct WeaponFigures {
  std::string caption;
  std::string damage;
  std::string concealability;
  std::string ammunition;
  std::array<std::string, kRanges> ranges;
};

/// Puts a weapon into a hand of the record.
void SetWeapon(PlayerRecord& record, Weapon weapon, const WeaponFigures& figures);

/// The sights of one weapon exclude one another.
enum class Sight { Smartlink, Laser, Goggles };

/// The weapon panel of the displayed combatant.
struct WeaponPanel {
  std::string lblPrimary;
  std::string lblSecondary;
  PerWeapon<std::string> lblDamage;
  PerWeapon<std::string> lblConceal;
  /// Magazine text ("30(c)").
  PerWeapon<std::string> lblAmmo;
  std::array<std::string, kRanges> lblPRng;
  std::array<std::string, kRanges> lblSRng;
  /// Chosen range bracket, 0 short to 3 extreme.
  PerWeapon<int> optRangeSel{};
  /// Rounds fired since the last reload.
  PerWeapon<std::string> txtShots;
  /// Rounds fired this turn.
  PerWeapon<std::string> txtTBTT;
  /// Recoil compensation, gyro compensation, and what they leave uncompensated.
  PerWeapon<std::string> txtRC;
  PerWeapon<std::string> txtGyro;
  PerWeapon<std::string> txtURC;
  /// Check boxes: smartlink, laser sight, smart goggles; firing two guns at once.
  PerWeapon<bool> chkSmL{};
  PerWeapon<bool> chkLaserSight{};
  PerWeapon<bool> chkSmtGoggles{};
  bool chkTwoGuns = false;
  /// Each weapon's total target-number modifier, and the two together.
  std::string lblWPrim;
  std::string lblWSec;
  std::string lblTNMod;

  static std::span<const BoundControl<WeaponPanel>> Bound();

  /// Fills every control from a record.
  void Show(const PlayerRecord& record);
  /// Fills the labels of one weapon from a record.
  void ShowWeapon(const PlayerRecord& record, Weapon weapon);
  /// Inverts a sight's check box; checking it unchecks the weapon's other two.
  void ClickSight(Weapon weapon, Sight sight);
  /// Writes the boxes and check marks into the record.
  void Sync(PlayerRecord& record) const;
};

}  // namespace ng
