// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace brolk::test {

// Random bytes with a seed that a failing test can show: put Text() into a SCOPED_TRACE.
class RandomBytes final {
 public:
  RandomBytes() : seed_(std::random_device()()), engine_(seed_) {}

  [[nodiscard]] std::string Text() const { return "seed " + std::to_string(seed_); }
  [[nodiscard]] int Below(int limit) { return static_cast<int>(engine_() % static_cast<unsigned>(limit)); }
  [[nodiscard]] std::vector<std::uint8_t> Take(std::size_t count) {
    std::vector<std::uint8_t> bytes(count);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(Below(256));
    return bytes;
  }

 private:
  std::uint32_t seed_;
  std::mt19937 engine_;
};

}  // namespace brolk::test
