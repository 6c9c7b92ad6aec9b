// SPDX-License-Identifier: MIT
#include "tile/modes.h"

#include "tile/layout.h"

namespace brolk {
namespace {

constexpr GraphicsModeRecord kStartModes[kModeCount] = {
    {"Gameboy", 16, 2},
    {"Nes", 16, 2},
    {"Neo Geo Pocket", 16, 2},
    {"Snes 4bpp", 32, 4},
    {"1 bit per pixel", 8, 1},
    {"Virtual Boy", 16, 2},
    {"Sega Mega Drive", 32, 4},
    {"GG, MS, WSC", 32, 4},
    {"Snes 3bpp", 24, 3},
    {"GBA 4bpp", 32, 4},
    {"GBA 8bpp", 64, 8},
    {"Snes 8bpp", 64, 8},
    {"Bitmap Mode", 8, 1},
    {"PC Engine 8x8 char", 32, 4},
    // 32 although a sprite takes 128 bytes of the file: the page arithmetic counts it so.
    {"PC Engine 16x16 sprite", 32, 4},
};

// The regular modes count the bytes and bits of their layout.
constexpr bool AgreesWithLayouts() {
  for (std::size_t mode = 0; mode < kModeCount; ++mode) {
    const TileLayout& layout = kTileLayouts[mode];
    const bool agrees = kStartModes[mode].BytesPerTile == layout.bytesPerTile &&
                        kStartModes[mode].BitsPerPixel == layout.bitsPerPixel;
    if (layout.bytesPerTile > 0 && !agrees) return false;
  }
  return true;
}
static_assert(AgreesWithLayouts());

}  // namespace

void FillModes() {
  for (int mode = 0; mode < kModeCount; ++mode) Modes[mode] = kStartModes[mode];
}

}  // namespace brolk
