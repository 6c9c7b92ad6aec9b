// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <vector>

namespace brolk::fuzz {

// Takes the input apart from the front; zeros where it is too short.
class Input final {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

  std::uint8_t Byte() {
    if (rest_.empty()) return 0;
    const std::uint8_t byte = rest_.front();
    rest_ = rest_.subspan(1);
    return byte;
  }
  int Word() {
    const int low = Byte();
    return low | Byte() << 8;
  }
  [[nodiscard]] std::vector<std::uint8_t> Rest() const { return {rest_.begin(), rest_.end()}; }

 private:
  std::span<const std::uint8_t> rest_;
};

// Ends the program in a way that the fuzzer reports.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

}  // namespace brolk::fuzz
