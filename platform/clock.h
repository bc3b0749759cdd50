#pragma once

#include "base/ports.h"

namespace ng {

/// The clock of this machine.
class NativeClock : public Clock {
 public:
  std::string Now() override;

 private:
  /// The second that was last asked for, and its words: many acts fall into one.
  std::int64_t second_ = -1;
  std::string words_;
};

}  // namespace ng
