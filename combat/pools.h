#pragma once

#include <array>
#include <span>
#include <string>

#include "combat/bound_control.h"
#include "tracker/fight/player_record.h"

namespace ng {

/// The number of a pool's text plus 1, as text.
std::string IncPool(const std::string& text);

/// The number of a pool's text less 1, as text; "0" when it rounds to less than 1, and never below
/// "0".
std::string DecPool(const std::string& text);

/// The pool panel of the displayed combatant: combat, spell, set aside, astral, karma.
struct PoolPanel {
  std::string txtCP;
  std::string txtSP;
  std::string txtSD;
  std::string txtAS;
  std::string txtKP;

  static std::span<const BoundControl<PoolPanel>> Bound() {
    static constexpr auto rows =
        std::to_array({Bind<&PoolPanel::txtCP, &PlayerRecord::CP>("txtCP", "combat pool"),
                       Bind<&PoolPanel::txtSP, &PlayerRecord::SP>("txtSP", "spell pool"),
                       Bind<&PoolPanel::txtSD, &PlayerRecord::SD>("txtSD", "dice set aside"),
                       Bind<&PoolPanel::txtAS, &PlayerRecord::AS>("txtAS", "astral pool"),
                       Bind<&PoolPanel::txtKP, &PlayerRecord::KP>("txtKP", "karma pool")});
    return rows;
  }

  void Show(const PlayerRecord& record) { ShowBound(*this, record); }
  void Sync(PlayerRecord& record) const { StoreBound(*this, record); }

  /// Moves one die from the spell pool to those set aside, or back; nothing when the box it comes
  /// from has none.
  void SetAside();
  void TakeBack();
};

}  // namespace ng
