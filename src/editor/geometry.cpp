// SPDX-License-Identifier: MIT
#include "editor/geometry.h"

#include <algorithm>

#include "editor/slots.h"
#include "runtime/fault.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

// Distance from the grid's edge in tile pixels. Pointer positions are single-precision numbers and stay so.
float TilePixelsFromEdge(float position, std::int16_t scroll, std::int16_t zoom) {
  if (zoom == 0) throw Fault(FaultKind::DivisionByZero);
  return (position + static_cast<float>(scroll)) / static_cast<float>(zoom);
}

std::int16_t LimitedCell(float tilePixels) {
  const double cell = IntegerPart(static_cast<double>(tilePixels / static_cast<float>(kTilePx)));
  return RoundToInteger(std::min(cell, static_cast<double>(kSlotsInLine - 1)));
}

std::int16_t PixelInCell(float tilePixels, std::int16_t cell) {
  return RoundToInteger(IntegerPart(static_cast<double>(tilePixels - static_cast<float>(cell * kTilePx))));
}

}  // namespace

std::int16_t CellPx(std::int16_t zoom) {
  return Wrap16(std::int64_t{zoom} * kTilePx);
}

std::int16_t GridPx(std::int16_t zoom) {
  return Wrap16(std::int64_t{zoom} * kTilePx * kSlotsInLine);
}

std::uint8_t EditorPlace::Slot() const {
  return WrapByte(line * kSlotsInLine + column);
}

std::int16_t EditorPlace::PixelIndex() const {
  return Wrap16(pixelY * kTilePx + pixelX);
}

bool ClampToGrid(const EditorView& view, float& x, float& y) {
  const auto lastPx = static_cast<float>(Wrap16(GridPx(view.zoom) - 1));
  bool inside = true;
  const auto test = [&inside](bool outside, float& coordinate, float bound) {
    if (!outside) return;
    inside = false;
    coordinate = bound;
  };
  test(x < 0, x, 0);
  test(y < 0, y, 0);
  test(x > static_cast<float>(view.scaleWidth), x, static_cast<float>(view.scaleWidth));
  test(y > static_cast<float>(view.scaleHeight), y, static_cast<float>(view.scaleHeight));
  test(x > lastPx, x, lastPx);
  test(y > lastPx, y, lastPx);
  return inside;
}

EditorPlace PlaceAt(const EditorView& view, float x, float y) {
  const float across = TilePixelsFromEdge(x, view.scrollX, view.zoom);
  const float down = TilePixelsFromEdge(y, view.scrollY, view.zoom);
  const std::int16_t column = LimitedCell(across);
  const std::int16_t line = LimitedCell(down);
  return {column, line, PixelInCell(across, column), PixelInCell(down, line)};
}

std::optional<std::uint8_t> DropSlotAt(const EditorView& view, std::int16_t x, std::int16_t y) {
  if (x < 0 || y < 0 || x > view.scaleWidth || y > view.scaleHeight) return std::nullopt;
  const std::int16_t cellPx = CellPx(view.zoom);
  const std::int32_t column = DivideIntegers(Wrap16(x + view.scrollX), cellPx);
  const std::int32_t line = DivideIntegers(Wrap16(y + view.scrollY), cellPx);
  return WrapByte(column + line * kSlotsInLine);
}

bool NeedsScrollBar(std::int16_t zoom, int scalePx) {
  return scalePx < GridPx(zoom) + kScrollBarPx;
}

std::int16_t ScrollMaximum(std::int16_t zoom, int scalePx) {
  return Wrap16(GridPx(zoom) - (scalePx - kScrollBarPx));
}

}  // namespace brolk
