// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "picture.h"

// The sample ROM: the cover in every regular mode, a header and colour tables, at round offsets.
namespace brolk::sample {

inline constexpr std::size_t kSamplerBytes = 0x20000;
inline constexpr std::size_t kSectionBytes = 0x2000;

// Where the cover stands in a mode. The section at offset 0 holds it once more, in the mode of the file.
[[nodiscard]] constexpr std::size_t SectionOffset(std::uint8_t mode) {
  return (mode + std::size_t{1}) * kSectionBytes;
}

inline constexpr std::size_t kTitleOffset = 308;  // 15 bytes, zeros behind the text
inline constexpr std::size_t kTitleBytes = 15;
inline constexpr std::size_t kChecksumOffset = 334;  // high byte first

inline constexpr std::size_t kDayColorsRedLow = 0x1E000;   // 16 words of 15 bits, red in the low bits
inline constexpr std::size_t kDayColorsRedHigh = 0x1E100;  // the same, red in the high bits
inline constexpr std::size_t kAllColorsRedLow =
    0x1E200;  // 256 words: the sixteen, then what the 8-bit modes need

// The bytes of a sample whose first page is in `firstMode`, a regular mode.
[[nodiscard]] std::vector<std::uint8_t> BuildSampler(const Picture& cover, const DayColors& colors,
                                                     std::uint8_t firstMode);

}  // namespace brolk::sample
