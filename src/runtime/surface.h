// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace brolk {

// A colour value: 0x00BBGGRR, red in the low byte. Signed, as the arithmetic on it is.
using ColorValue = std::int32_t;

// red + green * 256 + blue * 65536; a channel above 255 counts as 255. Channels are 0 or more.
[[nodiscard]] ColorValue PackRgb(std::int32_t red, std::int32_t green, std::int32_t blue);

// A block of pixels that can be drawn on. All coordinates are pixels from the top left corner; what falls
// outside is not drawn. A pixel holds the low three bytes of its colour value, with 0xFF on top.
class Surface final {
 public:
  Surface() = default;
  // A new surface is black.
  Surface(int width, int height);

  [[nodiscard]] int Width() const { return width_; }
  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] const std::uint32_t* Data() const { return pixels_.data(); }
  // The row y as Width() pixels; y must be inside.
  [[nodiscard]] const std::uint32_t* Row(int y) const { return pixels_.data() + Offset(0, y); }
  [[nodiscard]] std::uint32_t* Row(int y) { return pixels_.data() + Offset(0, y); }

  // Changes the size; what lies inside both sizes stays, what is new takes `fill`.
  void Resize(int width, int height, ColorValue fill);
  void Fill(ColorValue color);

  void SetPixel(int x, int y, ColorValue color);
  // The colour value at a place, -1 outside.
  [[nodiscard]] ColorValue GetPixel(int x, int y) const;

  // Copies a rectangle of another surface over a rectangle of this one, taking the nearest source pixel: no
  // smoothing. Source pixels outside the other surface leave the target as it is. Sizes of 0 or less draw
  // nothing.
  void StretchBlt(int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY,
                  int sourceWidth, int sourceHeight);

  // Outline one pixel wide, right and bottom excluded; with a fill the inside is filled too.
  void Rectangle(int left, int top, int right, int bottom, ColorValue pen,
                 std::optional<ColorValue> fill = std::nullopt);

  // Horizontal or vertical line without its end point. Slanted lines are not needed by the program.
  void Line(int fromX, int fromY, int toX, int toY, ColorValue pen);

  // Filled box; right and bottom edges are part of it. Corners may come in any order.
  void Box(int left, int top, int right, int bottom, ColorValue color);

  bool operator==(const Surface&) const = default;

 private:
  [[nodiscard]] std::size_t Offset(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }
  void FillSpan(int left, int right, int y, std::uint32_t pixel);

  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint32_t> pixels_;
};

// The pixel of a colour value: its low three bytes with 0xFF on top.
[[nodiscard]] constexpr std::uint32_t PixelOf(ColorValue color) {
  return (static_cast<std::uint32_t>(color) & 0xFFFFFFU) | 0xFF000000U;
}

}  // namespace brolk
