// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "tile/modes.h"

// How the regular modes store a tile of 8 by 8 pixels. One row of kTileLayouts says everything that the
// decoder, the encoder and the byte-by-byte reader need to know about a mode.
namespace brolk {

inline constexpr int kTilePixels = 64;
inline constexpr int kTileSidePx = 8;

// What the encoder does with a pixel that has more bits than the mode.
enum class Misfit : std::uint8_t {
  DropHighBits,
  Limit,          // the highest value takes its place
  LimitLowNibble  // two pixels to a byte: the one in the low bits is limited, the other loses its high bits
};

enum class LeftmostPixel : std::uint8_t { InHighBits, InLowBits };

// The bytes that one row has in one run of eight rows, as the planes that they hold. The highest bit of a
// plane byte is the leftmost pixel.
struct PlaneRun {
  std::uint8_t bytesPerRow = 0;
  std::array<std::uint8_t, 4> plane{};  // plane k has the weight 2 to the power k
};

struct TileLayout {
  std::uint8_t bytesPerTile = 0;  // 0: not a regular mode, it has no layout
  std::uint8_t bitsPerPixel = 0;
  Misfit misfit = Misfit::DropHighBits;

  // Planar tiles: the runs, one after the other. None: the pixels are packed.
  std::uint8_t runCount = 0;
  std::array<PlaneRun, 4> runs{};

  // Packed tiles.
  LeftmostPixel leftmost = LeftmostPixel::InHighBits;
  bool swappedPairs = false;  // the right half of a row comes first

  [[nodiscard]] constexpr bool IsPlanar() const { return runCount > 0; }
};

constexpr TileLayout Planar(Misfit misfit, std::array<PlaneRun, 4> runs) {
  TileLayout layout{.misfit = misfit, .runs = runs};
  for (const PlaneRun& run : runs) {
    if (run.bytesPerRow == 0) break;
    ++layout.runCount;
    layout.bitsPerPixel = static_cast<std::uint8_t>(layout.bitsPerPixel + run.bytesPerRow);
  }
  layout.bytesPerTile = static_cast<std::uint8_t>(kTileSidePx * layout.bitsPerPixel);
  return layout;
}

constexpr TileLayout Packed(std::uint8_t bits, LeftmostPixel leftmost, Misfit misfit,
                            bool swappedPairs = false) {
  return {.bytesPerTile = static_cast<std::uint8_t>(kTileSidePx * bits),
          .bitsPerPixel = bits,
          .misfit = misfit,
          .leftmost = leftmost,
          .swappedPairs = swappedPairs};
}

// By mode. Bitmap Mode and the PC Engine sprite have rules of their own (exact_read.h).
// clang-format off: one mode to a line
inline constexpr std::array<TileLayout, kModeCount> kTileLayouts = {{
    /* Gameboy          */ Planar(Misfit::DropHighBits, {{{2, {0, 1}}}}),
    /* Nes              */ Planar(Misfit::DropHighBits, {{{1, {0}}, {1, {1}}}}),
    /* Neo Geo Pocket   */ Packed(2, LeftmostPixel::InHighBits, Misfit::Limit, true),
    /* Snes 4bpp        */ Planar(Misfit::DropHighBits, {{{2, {0, 1}}, {2, {2, 3}}}}),
    /* 1 bit per pixel  */ Planar(Misfit::Limit, {{{1, {0}}}}),
    /* Virtual Boy      */ Packed(2, LeftmostPixel::InLowBits, Misfit::Limit),
    /* Sega Mega Drive  */ Packed(4, LeftmostPixel::InHighBits, Misfit::LimitLowNibble),
    /* GG, MS, WSC      */ Planar(Misfit::Limit, {{{4, {0, 1, 2, 3}}}}),
    /* Snes 3bpp        */ Planar(Misfit::Limit, {{{2, {0, 1}}, {1, {2}}}}),
    /* GBA 4bpp         */ Packed(4, LeftmostPixel::InLowBits, Misfit::LimitLowNibble),
    /* GBA 8bpp         */ Packed(8, LeftmostPixel::InHighBits, Misfit::DropHighBits),
    /* Snes 8bpp        */
    Planar(Misfit::DropHighBits, {{{2, {0, 1}}, {2, {2, 3}}, {2, {4, 5}}, {2, {6, 7}}}}),
    /* Bitmap Mode      */ {},
    /* PC Engine char   */ Planar(Misfit::DropHighBits, {{{2, {1, 0}}, {2, {3, 2}}}}),
    /* PC Engine sprite */ {},
}};
// clang-format on

// Where the bytes of a planar tile's row 0 stand, by plane, and how far the next row is.
struct PlanePlace {
  std::uint8_t firstByte = 0;
  std::uint8_t rowStep = 0;
};

constexpr std::array<PlanePlace, 8> PlanePlaces(const TileLayout& layout) {
  std::array<PlanePlace, 8> places{};
  int runStart = 0;
  for (const PlaneRun& run : std::span(layout.runs).first(layout.runCount)) {
    for (std::uint8_t byte = 0; byte < run.bytesPerRow; ++byte) {
      places[run.plane[byte]] = {static_cast<std::uint8_t>(runStart + byte), run.bytesPerRow};
    }
    runStart += kTileSidePx * run.bytesPerRow;
  }
  return places;
}

}  // namespace brolk
