// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// Where the page stands in the file, and how the scroll bar divides the file. All addresses and lengths are
// bytes of the open file.
namespace brolk {

// File bytes of one tile line of the page: the 16-bit product, sign-extended, so it can be 0 or negative.
[[nodiscard]] std::int32_t LineBytesFor(std::int16_t bytesPerTile, std::int16_t rows);

// Index of the tile line at an address: the integer part of the real quotient. Line bytes of 0 are the
// division fault.
[[nodiscard]] std::int32_t LineAt(std::int32_t address, std::int32_t lineBytes);

// The scroll positions of a file.
struct ScrollRange {
  std::int16_t scale = 1;    // positions that the file is divided into, 1 to 32767
  std::int32_t maximum = 0;  // highest position that the user reaches; negative when the file is that short
};

// One position is one tile line as long as the file has no more than 32767 of them; a longer file has 32767
// positions of several lines each. linesShown: value of the bar of page lines, left as margin at the end.
// Line bytes of 0 are the division fault.
[[nodiscard]] ScrollRange ScrollRangeFor(std::int32_t fileLength, std::int32_t lineBytes,
                                         std::int16_t linesShown);

// What a page address is computed from.
struct PageGrid {
  std::int32_t fileLength = 0;    // bytes
  std::int16_t scrollScale = 1;   // positions of the file
  std::int32_t lineBytes = 256;   // bytes of one tile line
  std::uint8_t addressShift = 0;  // bytes added to every line-aligned address
};

// The address aligned to the line that holds it, plus the shift. The alignment goes towards zero. Line bytes
// of 0 are the division fault.
[[nodiscard]] std::int32_t AlignToLine(std::int32_t address, const PageGrid& grid);

// The address of the page at a scroll value. The step of one position is a whole number of bytes, so far down
// a long file the address stays behind the true share of the file: that is meant. A scale or line bytes of 0
// are the division fault.
[[nodiscard]] std::int32_t PageAddressAt(std::int32_t scrollValue, const PageGrid& grid);

}  // namespace brolk
