// SPDX-License-Identifier: MIT
#include "palette/seeded_random.h"

#include <bit>
#include <cstdint>

namespace brolk {

SeededRandom::SeededRandom(float seconds) : generator_(std::bit_cast<std::uint32_t>(seconds)) {}

double SeededRandom::operator()() {
  return static_cast<double>(generator_()) / 4294967296.0;
}

}  // namespace brolk
