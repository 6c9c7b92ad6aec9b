// SPDX-License-Identifier: MIT
#include "browser/page_paint.h"

#include <algorithm>
#include <array>

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

constexpr int kSide = 8;

// A page of 8 by 8 tiles that lies inside the surface: no counter wraps, no pixel is left out, no entry is
// missing.
bool IsPlainPage(const Surface& page) {
  return TileWidth == kSide && TileHeight == kSide && MainRows > 0 && MainRows * kSide <= page.Width() &&
         MainLines > 0 && MainLines * kSide <= page.Height() &&
         std::int64_t{MainRows} * MainLines * kSide * kSide <= kPageBufferLast;
}

std::array<std::uint32_t, 256> PalettePixels() {
  std::array<std::uint32_t, 256> pixels{};
  std::ranges::transform(Palette, pixels.begin(), PixelOf);
  return pixels;
}

void PaintPlainPage(Surface& page) {
  const auto pixels = PalettePixels();
  const std::uint8_t* entry = PageBuffer.All().data();
  for (int line = 0; line < MainLines; ++line) {
    for (int column = 0; column < MainRows; ++column) {
      for (int y = 0; y < kSide; ++y) {
        std::uint32_t* target = page.Row(line * kSide + y) + column * kSide;
        for (int x = 0; x < kSide; ++x) target[x] = pixels[*entry++];
      }
    }
  }
}

}  // namespace

std::int16_t PageTileCount() {
  return Wrap16(MainRows * MainLines);
}

void PaintPagePixelsExactly(Surface& page) {
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

void PaintPagePixels(Surface& page) {
  if (IsPlainPage(page)) {
    PaintPlainPage(page);
  } else {
    PaintPagePixelsExactly(page);
  }
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
