// SPDX-License-Identifier: MIT
#include "browser/page_address.h"

#include <algorithm>
#include <limits>

#include "runtime/numbers.h"

namespace brolk {

std::int32_t LineBytesFor(std::int16_t bytesPerTile, std::int16_t rows) {
  return Wrap16(bytesPerTile * rows);
}

std::int32_t LineAt(std::int32_t address, std::int32_t lineBytes) {
  return RoundToLong(IntegerPart(DivideReals(address, lineBytes)));
}

ScrollRange ScrollRangeFor(std::int32_t fileLength, std::int32_t lineBytes, std::int16_t linesShown) {
  constexpr double kMostPositions = std::numeric_limits<std::int16_t>::max();
  const double lines = RoundHalfEven(DivideReals(fileLength, lineBytes));
  ScrollRange range;
  range.scale = RoundToInteger(std::clamp(lines, 1.0, kMostPositions));
  range.maximum = range.scale - linesShown;
  return range;
}

std::int32_t AlignToLine(std::int32_t address, const PageGrid& grid) {
  const std::int64_t line = DivideIntegers(address, grid.lineBytes);
  return Wrap32(Wrap32(line * grid.lineBytes) + std::int64_t{grid.addressShift});
}

std::int32_t PageAddressAt(std::int32_t scrollValue, const PageGrid& grid) {
  const std::int64_t step = DivideIntegers(grid.fileLength, grid.scrollScale);
  return AlignToLine(Wrap32(step * Wrap16(scrollValue)), grid);
}

}  // namespace brolk
