// SPDX-License-Identifier: MIT
#include "tile/modes.h"

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

}  // namespace

void FillModes() {
  for (int mode = 0; mode < kModeCount; ++mode) Modes[mode] = kStartModes[mode];
}

}  // namespace brolk
