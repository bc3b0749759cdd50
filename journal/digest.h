#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tracker/fight/fight.h"

namespace ng {

/// The 32-bit cyclic redundancy check of some bytes (polynomial 0xEDB88320).
std::uint32_t Crc32(std::string_view bytes);

/// Sixteen hexadecimal digits that stand for a content. Not made to resist forgery.
std::string ContentDigest(std::string_view content);

/// The same for a fight: every field of every combatant, the order, the steps and the counters.
std::string FightDigest(const Fight& fight);

}  // namespace ng
