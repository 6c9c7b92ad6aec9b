// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "runtime/bounded.h"
#include "runtime/surface.h"

namespace brolk {

// One palette of the colour set list. Name: Windows-1252 bytes.
struct ColorSetRecord {
  Bounded<ColorValue, 255> Colors;
  std::string Name;
};

// The list. SetCount and SelectedSet are 8-bit and wrap without error; records beyond SetCount keep what they
// held.
inline Bounded<ColorSetRecord, 255> Sets;
inline std::uint8_t SetCount = 0;
inline std::uint8_t SelectedSet = 0;

// The most sets that a list can hold by adding; only a random set goes beyond, and wraps the count.
inline constexpr std::uint8_t kFullSetCount = 255;

// SetCount and SelectedSet become 0; the records stay.
void ResetColorSets();

// Copies the live palette behind the last set under this name, or under "Editor palette" when it is empty. A
// list of 255 sets stays as it is; answers whether a set was added.
bool AddEditorPalette(std::string_view name);

// Numbers in [0, 1), one for each call.
using RandomNumbers = std::function<double()>;

// Puts 256 random colours behind the last set, red, green and blue drawn in this order. There is no limit:
// the 256th set wraps SetCount to 0, which is meant.
void AddRandomSet(const RandomNumbers& next);

// Copies the selected set over the live palette, whatever SetCount says.
void ApplySelectedSet();

void RenameSelectedSet(std::string_view name);

// Takes the selected set out of the list; its record moves to the place behind the remaining ones.
// SelectedSet stays, so after the last line it points one past the list; deleting then drops the last set. An
// empty list stays as it is.
void DeleteSelectedSet();

// Empties the list; SelectedSet stays. The colours of the first record become 0, its name stays.
void ClearColorSets();

// Changes one colour of a set. Either index outside 0..255 is the subscript fault.
void SetColorOfSet(std::int32_t setIndex, std::int32_t colorIndex, ColorValue color);

// The picture of a set: 16 by 16 cells. widthPx: of the picture. The quotient is rounded, ties to even.
[[nodiscard]] std::int32_t SetCellPx(std::int32_t widthPx);

// The colour under a point of that picture, in pixels. A point to the right of the cells runs on into the
// next row; one above or below them gives an index outside 0..255. A cell of 0 is the division fault.
[[nodiscard]] std::int32_t SetColorIndexAt(float x, float y, std::int32_t cellPx);

// Paints all 256 cells. Each includes its right and bottom edge, which the next cell covers.
void PaintSet(Surface& picture, const ColorSetRecord& set, std::int32_t cellPx);

}  // namespace brolk
