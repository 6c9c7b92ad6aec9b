// SPDX-License-Identifier: MIT
#include "browser/page_paint.h"

#include <algorithm>

#include "palette/palette_model.h"
#include "runtime/byte_loop.h"
#include "runtime/numbers.h"
#include "tile/shared.h"

namespace brolk {
namespace {

constexpr ColorValue kFrameColor = 0xFFFFFF;

// A product of zoom, tile size and count in pixels. It is computed wide, so that no setting can overflow it;
// what lies beyond any window is held at a place beyond any window.
int Pixels(std::int64_t product) {
  constexpr std::int64_t kBeyond = 1 << 30;
  return static_cast<int>(std::clamp(product, -kBeyond, kBeyond));
}

}  // namespace

std::int16_t PageTileCount() {
  return Wrap16(MainRows * MainLines);
}

void PaintPagePixels(Surface& page) {
  std::int32_t entry = 0;
  CountBytes(MainLines, [&](std::uint8_t line) {
    CountBytes(MainRows, [&](std::uint8_t column) {
      CountBytes(TileWidth, [&](std::uint8_t down) {
        CountBytes(TileHeight, [&](std::uint8_t across) {
          const ColorValue color = Palette[PageBuffer[entry++]];
          page.SetPixel(Wrap16(column * TileWidth + across), Wrap16(line * TileHeight + down), color);
        });
      });
    });
  });
}

void BlitPagePixels(Surface& target, const Surface& page) {
  const std::int16_t width = Wrap16(MainRows * TileWidth);
  const std::int16_t height = Wrap16(MainLines * TileHeight);
  target.StretchBlt(0, 0, MainZoom * width, MainZoom * height, page, 0, 0, width, height);
}

void DrawPageGrid(Surface& target, double outerWidthTwips, double outerHeightTwips) {
  const int right = RoundToLong(outerWidthTwips);
  const int bottom = RoundToLong(outerHeightTwips);
  for (std::int64_t column = 0; column < MainRows; ++column) {
    const int x = Pixels(column * MainZoom * TileWidth);
    target.Line(x, 0, x, bottom, GridColor);
  }
  for (std::int64_t line = 0; line < MainLines; ++line) {
    const int y = Pixels(line * MainZoom * TileHeight);
    target.Line(0, y, right, y, GridColor);
  }
}

void DrawPageFrame(Surface& target) {
  const std::int64_t width = std::int64_t{MainZoom} * TileWidth;
  const std::int64_t height = std::int64_t{MainZoom} * TileHeight;
  target.Rectangle(Pixels(width * SelColumn), Pixels(height * SelLine), Pixels(width * (SelColumn + 1) + 1),
                   Pixels(height * (SelLine + 1) + 1), kFrameColor);
}

}  // namespace brolk
