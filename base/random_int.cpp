#include "base/random_int.h"

#include <cstdint>

#include "base/number_text.h"

namespace ng {

Integer RandomInt(Uniform& uniform, Integer n) {
  const auto scaled = static_cast<std::int32_t>(RoundHalfEven(uniform.Next() * 2'000'000'000.0));
  return {static_cast<int>(scaled % n.Value()) + 1};
}

}  // namespace ng
