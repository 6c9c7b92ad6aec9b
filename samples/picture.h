// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// Reads the text pictures of this folder and puts them together.
namespace brolk::sample {

// A block of colour indices, row by row.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> pixels;

  [[nodiscard]] std::uint8_t At(int x, int y) const {
    return pixels[static_cast<std::size_t>(y * width + x)];
  }
};

inline constexpr int kCoverWidth = 64;
inline constexpr int kCoverHeight = 128;

// The cover: what the commands of cover.txt draw, with the pictures and letters of the same folder. A file
// that is missing or wrong throws std::runtime_error with its name.
[[nodiscard]] Picture ReadCover(const std::string& folder);

// The sixteen colours of daylight.txt, red, green and blue of 0 to 31 each.
using DayColors = std::array<std::array<int, 3>, 16>;
[[nodiscard]] DayColors ReadDayColors(const std::string& folder);

}  // namespace brolk::sample
