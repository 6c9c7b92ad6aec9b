// SPDX-License-Identifier: MIT
#include "palette/color_sets.h"

#include <algorithm>

#include "palette/palette_model.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr std::string_view kEditorPaletteName = "Editor palette";
constexpr std::string_view kRandomPaletteName = "Random palette";
constexpr std::int32_t kCellsInRow = 16;

std::int32_t RandomChannel(const RandomNumbers& next) {
  return RoundToLong(next() * 256);
}

// A channel that rounds to 256 is packed as 255. The three draws stand in statements of their own because
// their order counts.
ColorValue RandomColor(const RandomNumbers& next) {
  const std::int32_t red = RandomChannel(next);
  const std::int32_t green = RandomChannel(next);
  const std::int32_t blue = RandomChannel(next);
  return PackRgb(red, green, blue);
}

}  // namespace

void ResetColorSets() {
  SetCount = 0;
  SelectedSet = 0;
}

bool AddEditorPalette(std::string_view name) {
  if (SetCount == kFullSetCount) return false;
  Sets[SetCount].Colors = Palette;
  Sets[SetCount].Name = name.empty() ? kEditorPaletteName : name;
  ++SetCount;
  return true;
}

void AddRandomSet(const RandomNumbers& next) {
  ColorSetRecord& set = Sets[SetCount];
  for (ColorValue& color : set.Colors) color = RandomColor(next);
  set.Name = kRandomPaletteName;
  ++SetCount;
}

void ApplySelectedSet() {
  Palette = Sets[SelectedSet].Colors;
}

void RenameSelectedSet(std::string_view name) {
  Sets[SelectedSet].Name = name;
}

void DeleteSelectedSet() {
  if (SetCount == 0) return;
  if (SelectedSet <= SetCount - 2) {
    const auto used = Sets.All().first(SetCount);
    std::rotate(used.begin() + SelectedSet, used.begin() + SelectedSet + 1, used.end());
  }
  --SetCount;
  if (SetCount == 0) Sets[0].Colors.fill(0);
}

void ClearColorSets() {
  SetCount = 0;
  Sets[0].Colors.fill(0);
}

void SetColorOfSet(std::int32_t setIndex, std::int32_t colorIndex, ColorValue color) {
  Sets[setIndex].Colors[colorIndex] = color;
}

std::int32_t SetCellPx(std::int32_t widthPx) {
  return RoundToLong(widthPx / static_cast<double>(kCellsInRow));
}

std::int32_t SetColorIndexAt(float x, float y, std::int32_t cellPx) {
  const std::int32_t column = DivideIntegers(RoundToLong(x), cellPx);
  const std::int32_t row = DivideIntegers(RoundToLong(y), cellPx);
  return column + kCellsInRow * row;
}

void PaintSet(Surface& picture, const ColorSetRecord& set, std::int32_t cellPx) {
  std::int32_t index = 0;
  for (const ColorValue color : set.Colors) {
    const std::int32_t left = index % kCellsInRow * cellPx;
    const std::int32_t top = index / kCellsInRow * cellPx;
    picture.Box(left, top, left + cellPx, top + cellPx, color);
    ++index;
  }
}

}  // namespace brolk
