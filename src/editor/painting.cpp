// SPDX-License-Identifier: MIT
#include "editor/painting.h"

#include <utility>

namespace brolk {
namespace {

void CopySlotSurface(std::uint8_t from, std::uint8_t to) {
  EditSlots[to].SlotSurface.StretchBlt(0, 0, kTilePx, kTilePx, EditSlots[from].SlotSurface, 0, 0, kTilePx,
                                       kTilePx);
}

void GiveContent(EditSlot& slot) {
  if (slot.Address == kNonCopied) slot.Address = kUnaddressed;
}

}  // namespace

void PaintPixel(std::uint8_t slot, std::int16_t pixelIndex, std::uint8_t colorIndex) {
  GiveContent(EditSlots[slot]);
  EditSlots[slot].Pixels[pixelIndex] = colorIndex;
  RefreshSlotSurface(slot);
  for (const std::uint8_t twin : TwinsOf(slot)) {
    EditSlots[twin].Pixels[pixelIndex] = colorIndex;
    CopySlotSurface(slot, twin);
  }
}

void FillSlot(std::uint8_t slot, std::uint8_t colorIndex) {
  GiveContent(EditSlots[slot]);
  EditSlots[slot].Pixels.fill(colorIndex);
  RefreshSlotSurface(slot);
  CopyToTwins(slot);
}

void CopyToTwins(std::uint8_t slot) {
  for (const std::uint8_t twin : TwinsOf(slot)) {
    EditSlots[twin].Pixels = EditSlots[slot].Pixels;
    CopySlotSurface(slot, twin);
  }
}

void FlipPixelsX(TilePixels& pixels) {
  for (int y = 0; y < kTilePx; ++y) {
    for (int x = 0; x < kTilePx / 2; ++x) std::swap(pixels[y * kTilePx + x], pixels[y * kTilePx + 7 - x]);
  }
}

void FlipPixelsY(TilePixels& pixels) {
  for (int y = 0; y < kTilePx / 2; ++y) {
    for (int x = 0; x < kTilePx; ++x) std::swap(pixels[y * kTilePx + x], pixels[(7 - y) * kTilePx + x]);
  }
}

void RotatePixels(TilePixels& pixels) {
  TilePixels turned;
  for (int y = 0; y < kTilePx; ++y) {
    for (int x = 0; x < kTilePx; ++x) turned[(7 - x) * kTilePx + y] = pixels[y * kTilePx + x];
  }
  pixels = turned;
}

}  // namespace brolk
