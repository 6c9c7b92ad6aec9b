// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

// From a point of the page to tiles, addresses and status texts. Points are pixels of the client area, so
// they carry the zoom; there is no range test anywhere: a point beyond the page gives a tile beyond the last.
namespace brolk {

// How large a tile stands on the screen.
struct TileExtent {
  std::int16_t zoom = 3;    // screen pixels for a tile pixel
  std::int16_t width = 8;   // tile pixels
  std::int16_t height = 8;  // tile pixels
};

// A tile of the page, counted from 0.
struct TilePlace {
  std::int16_t column = 0;
  std::int16_t line = 0;
  bool operator==(const TilePlace&) const = default;
};

// The tile under a point. A zoom or size of 0 is the division fault; a column or line that is no 16-bit
// number the overflow fault.
[[nodiscard]] TilePlace TileAt(float x, float y, const TileExtent& extent);

// The left or top edge of a tile in pixels of the client area: the point that selects it.
[[nodiscard]] float EdgeOf(std::int16_t index, std::int16_t size, std::int16_t zoom);

// What the status text about addresses counts with.
struct AddressStatus {
  std::int16_t bytesPerTile = 0;
  std::int16_t rows = 0;         // tiles side by side
  std::int16_t zoom = 3;         // screen pixels for a tile pixel
  std::uint8_t cellSize = 8;     // tile pixels; always 8, whatever the size of a tile
  std::int32_t pageAddress = 0;  // file offset of the page
};

// "Address: 272". Counts in cells of cellSize pixels, not in tiles, and nothing wraps: in Bitmap Mode it can
// differ from the address that a click selects. That is meant.
[[nodiscard]] std::string AddressStatusText(float x, float y, const AddressStatus& status);

// "X: 1   Y: 1", counted from 1.
[[nodiscard]] std::string PositionStatusText(float x, float y, const TileExtent& extent);

// "1 bit per pixel", "4 bits per pixel".
[[nodiscard]] std::string DepthStatusText(std::uint8_t bitsPerPixel);

// The file offset of the tile under a point at which something is dropped. The number of the tile and its
// distance from the page are 16-bit each and wrap. Sizes of 0 are the division fault.
[[nodiscard]] std::int32_t DropAddressAt(std::int16_t x, std::int16_t y, const TileExtent& extent,
                                         const AddressStatus& page);

// One coordinate of a point, in pixels of one window, in pixels of another. edges: left or top of the two
// windows in twips. Frames and title bars are not taken into account: that is meant. Rounded last; a result
// that is no 16-bit number is the overflow fault.
[[nodiscard]] std::int16_t CoordinateInWindow(float at, double fromEdgeTwips, double toEdgeTwips,
                                              double twipsPerPixel);

}  // namespace brolk
