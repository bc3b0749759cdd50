#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/fixed_table.h"
#include "base/integer.h"

namespace ng {

/// The roller's pages, with the index of their tabs.
enum class TestPage { Ranged = 0, Melee = 1, BodyDodge = 2, General = 3 };

// The modifier boxes, indices of `txtRVar`, that something other than a caption's steps fills too.
constexpr int kVisibilityBox = 2;
constexpr int kAttackerMoveBox = 6;
constexpr int kWeaponBox = 7;
/// Stays "0" until its caption is clicked: wounds count for dodging but not for resisting damage.
constexpr int kBodyWoundsBox = 12;
constexpr int kVisibility2Box = 17;
constexpr int kMeleeWoundsBox = 18;
constexpr int kGeneralWoundsBox = 21;
constexpr int kBurstBox = 25;

/// How a click on a caption goes through its steps.
enum class Stepping {
  /// Round and round; with two steps that is a toggle.
  Wraps,
  /// Up to the last step and no further; clears the opposite box.
  StopsAtLast,
  /// Between "0" and the modifier of the weapon that fires.
  WeaponModifier,
  /// Between "0" and the wound modifier.
  WoundModifier,
};

/// A caption beside a modifier box. A click on it steps the box.
struct Caption {
  const char* control;
  const char* text;
  int box;
  TestPage page;
  Stepping stepping;
  /// The texts that the box goes through; it starts at the first.
  std::span<const char* const> steps;
  /// The box that cannot apply at the same time, 0 for none.
  int opposite = 0;
};

/// All captions, page by page from top to bottom.
std::span<const Caption> Captions();

/// Null when no caption has the name.
const Caption* FindCaption(std::string_view control);

/// The boxes that count on a page, in rising order.
std::span<const int> BoxesOf(TestPage page);

/// A way for the attacker to move, with its modifier.
struct AttackerMove {
  const char* entry;
  const char* modifier;
};
/// The entries of `cmbAttackerMove`, in list order.
std::span<const AttackerMove> AttackerMoves();

/// What the combatant who tests brings along.
struct CombatantModifiers {
  /// The total modifier of the weapon that fires: recoil, sights, two guns, wounds.
  Integer weapon;
  /// The wound modifier.
  Integer wounds;

  friend bool operator==(const CombatantModifiers&, const CombatantModifiers&) = default;
};

/// "0" for a modifier that does not apply, otherwise with its sign.
std::string ModifierText(Integer modifier);

/// The boxes of situational target-number modifiers.
struct ModifierBoard {
  ModifierBoard();

  /// Each holds a number as text, "0" where the situation does not apply. Indices 1 to 26.
  FixedTable<std::string, 26> txtRVar;

  /// A click on a caption. A number typed over the steps begins again at "0".
  void Step(const Caption& caption, const CombatantModifiers& combatant);

  void Clear(int box) { txtRVar[box] = "0"; }

  /// Writes the modifiers that count for every test into their boxes.
  void Fill(const CombatantModifiers& combatant);

  /// The numeric values of the page's boxes added up.
  double Sum(TestPage page) const;
};

}  // namespace ng
