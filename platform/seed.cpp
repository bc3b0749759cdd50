#include "platform/seed.h"

#include <QRandomGenerator>

namespace ng {

std::uint32_t RandomSeed() { return QRandomGenerator::global()->generate(); }

}  // namespace ng
