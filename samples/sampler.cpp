// SPDX-License-Identifier: MIT
#include "sampler.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string_view>

#include "tile/encode.h"
#include "tile/layout.h"

namespace brolk::sample {
namespace {

constexpr std::string_view kTitle = "BROLK SAMPLER";
constexpr std::uint8_t kSkyColor = 13;
constexpr int kSkyRamp = 32;  // in the 8-bit modes the sky of row y has the colour 32 + y
constexpr int kHorizon = 86;
constexpr int kTilesAcross = kCoverWidth / kTileSidePx;
constexpr int kTilesDown = kCoverHeight / kTileSidePx;

// What a colour of the cover becomes in a mode of fewer or more bits. The sixteen colours are four groups of
// four shades, so their low two bits are a picture of their own, and in one bit the two darker shades are
// ink.
std::uint8_t ColorInMode(std::uint8_t color, int y, int bitsPerPixel) {
  if (bitsPerPixel == 1) return (color & 3) >= 2 ? 1 : 0;
  if (bitsPerPixel == 8 && color == kSkyColor && y < kHorizon) return static_cast<std::uint8_t>(kSkyRamp + y);
  return static_cast<std::uint8_t>(color & ((1 << bitsPerPixel) - 1));
}

std::array<std::uint8_t, kTilePixels> TileOf(const Picture& cover, int tile, int bitsPerPixel) {
  std::array<std::uint8_t, kTilePixels> pixels{};
  auto* next = pixels.data();
  for (int y = 0; y < kTileSidePx; ++y) {
    const int coverY = tile / kTilesAcross * kTileSidePx + y;
    for (int x = 0; x < kTileSidePx; ++x) {
      const std::uint8_t color = cover.At(tile % kTilesAcross * kTileSidePx + x, coverY);
      *next++ = ColorInMode(color, coverY, bitsPerPixel);
    }
  }
  return pixels;
}

void PutCover(std::vector<std::uint8_t>& rom, std::size_t offset, const Picture& cover, std::uint8_t mode) {
  auto target = rom.begin() + static_cast<std::ptrdiff_t>(offset);
  for (int tile = 0; tile < kTilesAcross * kTilesDown; ++tile) {
    const EncodedTile encoded = EncodeTile(mode, TileOf(cover, tile, kTileLayouts[mode].bitsPerPixel));
    target = std::ranges::copy(encoded.Bytes(), target).out;
  }
}

void PutWord(std::vector<std::uint8_t>& rom, std::size_t offset, int word) {
  rom[offset] = static_cast<std::uint8_t>(word & 0xFF);
  rom[offset + 1] = static_cast<std::uint8_t>(word >> 8);
}

// The colours behind the sixteen: the sky from dusk to day where the 8-bit modes have it, greys elsewhere.
std::array<int, 3> ColorBehind(int index) {
  const int row = index - kSkyRamp;
  if (row < 0 || row >= kHorizon) return {index / 8, index / 8, index / 8};
  return {8 + row * 20 / kHorizon, 15 + row * 14 / kHorizon, 26 + row * 5 / kHorizon};
}

void PutColors(std::vector<std::uint8_t>& rom, const DayColors& colors) {
  for (std::size_t index = 0; index < 256; ++index) {
    const bool isDay = index < colors.size();
    const auto [red, green, blue] = isDay ? colors[index] : ColorBehind(static_cast<int>(index));
    PutWord(rom, kAllColorsRedLow + 2 * index, red | green << 5 | blue << 10);
    if (!isDay) continue;
    PutWord(rom, kDayColorsRedLow + 2 * index, red | green << 5 | blue << 10);
    PutWord(rom, kDayColorsRedHigh + 2 * index, red << 10 | green << 5 | blue);
  }
}

// The header of a handheld cartridge as far as the file information shows it. It lies in the middle of the
// cover's second tile line and shows there as specks, as headers do.
void PutHeader(std::vector<std::uint8_t>& rom) {
  const auto title = rom.begin() + static_cast<std::ptrdiff_t>(kTitleOffset);
  std::fill_n(title, kTitleBytes, std::uint8_t{0});
  std::ranges::copy(kTitle, title);
  rom[kChecksumOffset] = rom[kChecksumOffset + 1] = 0;
  const unsigned sum = std::accumulate(rom.begin(), rom.end(), 0U) & 0xFFFFU;
  rom[kChecksumOffset] = static_cast<std::uint8_t>(sum >> 8);
  rom[kChecksumOffset + 1] = static_cast<std::uint8_t>(sum & 0xFF);
}

}  // namespace

std::vector<std::uint8_t> BuildSampler(const Picture& cover, const DayColors& colors,
                                       std::uint8_t firstMode) {
  std::vector<std::uint8_t> rom(kSamplerBytes);
  PutCover(rom, 0, cover, firstMode);
  for (std::uint8_t mode = 0; mode < kModeCount; ++mode) {
    if (kTileLayouts[mode].bytesPerTile > 0) PutCover(rom, SectionOffset(mode), cover, mode);
  }
  PutColors(rom, colors);
  PutHeader(rom);
  return rom;
}

}  // namespace brolk::sample
