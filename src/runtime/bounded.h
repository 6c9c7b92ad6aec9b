// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "runtime/fault.h"

namespace brolk {

// A fixed array with the indices 0 to Last. Every access by index is checked: one outside raises the
// subscript fault.
template <typename T, std::int32_t Last>
class Bounded {
 public:
  static constexpr std::size_t kSize = static_cast<std::size_t>(Last) + 1;

  T& operator[](std::int64_t index) { return items_[Checked(index)]; }
  const T& operator[](std::int64_t index) const { return items_[Checked(index)]; }

  // The whole array, for code that has proved its bounds.
  std::span<T, kSize> All() { return items_; }
  std::span<const T, kSize> All() const { return items_; }
  [[nodiscard]] static constexpr std::int32_t Size() { return Last + 1; }

  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  void fill(const T& value) { items_.fill(value); }
  bool operator==(const Bounded&) const = default;

 private:
  static std::size_t Checked(std::int64_t index) {
    if (index < 0 || index > Last) throw Fault(FaultKind::SubscriptOutOfRange);
    return static_cast<std::size_t>(index);
  }

  std::array<T, kSize> items_{};
};

}  // namespace brolk
