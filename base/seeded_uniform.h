#pragma once

#include <cstdint>
#include <random>

#include "base/ports.h"

namespace ng {

/// The uniform source of the running program: single-precision values in steps of 2^-24, the same
/// series for the same seed on every machine.
class SeededUniform : public Uniform {
 public:
  explicit SeededUniform(std::uint32_t seed) : engine_(seed) {}
  float Next() override { return static_cast<float>(engine_() >> 8U) * 0x1p-24F; }

 private:
  std::mt19937 engine_;
};

}  // namespace ng
