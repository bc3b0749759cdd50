#include "platform/clock.h"

#include <array>
#include <ctime>

namespace ng {

std::string NativeClock::Now() {
  const std::time_t now = std::time(nullptr);
  if (now == second_) return words_;
  second_ = now;
  std::tm local{};
  localtime_r(&now, &local);
  std::array<char, 32> words{};
  words_.assign(words.data(),
                std::strftime(words.data(), words.size(), "%Y-%m-%d %H:%M:%S", &local));
  return words_;
}

}  // namespace ng
