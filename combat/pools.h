#pragma once

#include <string>

#include "tracker/player_record.h"

namespace ng {

/// The pool panel of the displayed combatant: combat, spell, set aside, astral, karma.
struct PoolPanel {
  std::string txtCP;
  std::string txtSP;
  std::string txtSD;
  std::string txtAS;
  std::string txtKP;

  void Show(const PlayerRecord& record);
  void Sync(PlayerRecord& record) const;
};

}  // namespace ng
