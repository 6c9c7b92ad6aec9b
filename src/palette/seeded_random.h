// SPDX-License-Identifier: MIT
#pragma once

#include <random>

namespace brolk {

// Random numbers that follow from a moment of the day: the same seconds give the same numbers.
class SeededRandom final {
 public:
  // seconds: since midnight, with the fraction.
  explicit SeededRandom(float seconds);

  // The next number, in [0, 1).
  double operator()();

 private:
  std::mt19937 generator_;
};

}  // namespace brolk
