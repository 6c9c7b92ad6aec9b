// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "runtime/numbers.h"

namespace brolk {

// Runs body(0), body(1), ... with a counter of one byte, up to limit - 1. The limit counts by its low byte,
// and limit minus 1 wraps: a low byte of 0 makes the last value 255, which the counter never gets past. Such
// a loop ends by a fault of its body or not at all. That is meant.
template <typename Body>
void CountBytes(std::int64_t limit, Body body) {
  const std::uint8_t last = WrapByte(limit - 1);
  for (std::uint8_t counter = 0; counter <= last; ++counter) body(counter);
}

}  // namespace brolk
