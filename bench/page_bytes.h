// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

// The page that the benchmarks work on: the default one of 8 by 16 tiles, and the largest of 32 by 32.
namespace brolk::bench {

inline constexpr std::int64_t kDefaultTiles = 8 * 16;
inline constexpr std::int64_t kLargestTiles = 32 * 32;
inline constexpr std::size_t kTilePixelCount = 64;

// The same bytes in every run.
inline std::vector<std::uint8_t> PageBytes(std::size_t count) {
  std::mt19937 engine(1);
  std::vector<std::uint8_t> bytes(count);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(engine());
  return bytes;
}

}  // namespace brolk::bench
