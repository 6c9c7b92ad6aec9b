// SPDX-License-Identifier: MIT
#include "palette/palette_grid.h"

#include <algorithm>

#include "palette/palette_model.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr double kLargestShift = 16;

float Clamp(float position, std::int32_t sizePx) {
  const auto last = static_cast<float>(sizePx - 2);
  if (position < 0) return 0;
  return position >= last ? last : position;
}

// Column and row are integer quotients of rounded operands.
std::int32_t IndexAt(const PanelPoint& point, std::int32_t cellPx, std::uint8_t side) {
  const std::int32_t column = DivideIntegers(RoundToLong(Clamp(point.x, point.widthPx)), cellPx);
  const std::int32_t row = DivideIntegers(RoundToLong(Clamp(point.y, point.heightPx)), cellPx);
  return column + side * row;
}

std::int32_t TimesOf(std::string_view caption) {
  return RoundToLong(Val(caption));
}

}  // namespace

std::int32_t PanelCellPx(std::uint8_t side) {
  return DivideIntegers(kPanelPx, side);
}

std::int32_t PressedColorIndex(const PanelPoint& point, std::uint8_t side) {
  return IndexAt(point, PanelCellPx(side), side);
}

std::int32_t ColorIndexUnderPointer(const PanelPoint& point, std::uint8_t side) {
  return IndexAt(point, RoundToLong(DivideReals(point.widthPx, side)), side);
}

std::uint8_t NextPaletteSide(std::uint8_t side) {
  if (side == 16) return 2;
  return side == 4 ? 16 : 4;
}

std::string NextShiftAmount(std::string_view caption) {
  const double amount = Val(caption);
  return amount == kLargestShift ? "1" : NumberText(amount * 2);
}

void RotatePaletteLeft(std::string_view caption) {
  const auto colors = Palette.All();
  for (std::int32_t times = TimesOf(caption); times > 0; --times)
    std::rotate(colors.begin(), colors.begin() + 1, colors.end());
}

void RotatePaletteRight(std::string_view caption) {
  const auto colors = Palette.All();
  for (std::int32_t times = TimesOf(caption); times > 0; --times)
    std::rotate(colors.begin(), colors.end() - 1, colors.end());
}

void PaintPaletteCells(Surface& picture, std::uint8_t side) {
  const std::int32_t cellPx = PanelCellPx(side);
  for (std::int32_t index = 0; index < side * side; ++index) {
    const std::int32_t left = index % side * cellPx;
    const std::int32_t top = index / side * cellPx;
    picture.Box(left, top, left + cellPx, top + cellPx, Palette[index]);
  }
}

}  // namespace brolk
