// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "runtime/surface.h"

// The picture of the page, without a window: decoded pixels become colours on a surface of true size, which
// is stretched onto the window's surface; grid and frame are drawn over that. All of it reads the shared
// block.
namespace brolk {

// Number of tiles of a page: MainRows times MainLines, cut to 16 bits.
[[nodiscard]] std::int16_t PageTileCount();

// Paints PageBuffer through Palette onto the page's surface, entry after entry from the first: tile line by
// tile line, tile by tile, and inside a tile TileWidth rows of TileHeight pixels. So a tile that is not
// square lies transposed in its cell and covers its neighbours or leaves gaps; that is meant. A pixel outside
// the surface is not drawn, its entry is consumed all the same. Nothing is cleared. The four counters are
// bytes: MainLines, MainRows, TileWidth and TileHeight count by their low byte, and one of 0 makes a loop
// without an end. Consuming more than the 65537 entries of PageBuffer is the subscript fault; what was
// painted before stays.
void PaintPagePixels(Surface& page);

// The same pixel by pixel, in the stated order: what PaintPagePixels does for every page but the usual one of
// 8 by 8 tiles inside the surface, which takes a shorter way.
void PaintPagePixelsExactly(Surface& page);

// Stretches the page's part of its surface over the target from 0, 0, MainZoom times enlarged, unsmoothed.
void BlitPagePixels(Surface& target, const Surface& page);

// Draws the grid in GridColor, one line at the left of every column and one at the top of every tile line.
// None closes the page at the right or below. The outer size of the window, given in twips, serves as the end
// of the lines in pixels: they run past the page and are cut by the target.
void DrawPageGrid(Surface& target, double outerWidthTwips, double outerHeightTwips);

// Draws the white frame of the selected tile, one pixel wider and higher than the tile.
void DrawPageFrame(Surface& target);

}  // namespace brolk
