// SPDX-License-Identifier: MIT
#include "browser/go_to_address.h"

#include <algorithm>

#include "runtime/numbers.h"

namespace brolk {
namespace {

// Numbers outside 32 bits never reach the rounding: they are beyond the limit, or negative.
std::int32_t HeldTo(double number, std::int32_t limit) {
  if (number > limit) return std::max(limit, 0);
  return number < 0 ? 0 : RoundToLong(number);
}

}  // namespace

std::int16_t PageBytesFor(std::int16_t bytesPerTile, std::int16_t lines, std::int16_t rows) {
  return Wrap16(Wrap16(bytesPerTile * lines) * rows);
}

AddressJump JumpTo(double number, std::int16_t pageBytes, const PageGrid& grid) {
  AddressJump jump;
  jump.limit = Wrap32(std::int64_t{grid.fileLength} - pageBytes);
  jump.target = AlignToLine(HeldTo(number, jump.limit), grid);
  jump.step = DivideReals(DivideReals(grid.fileLength, grid.lineBytes), grid.scrollScale);
  jump.position = DivideReals(DivideReals(jump.target, grid.lineBytes), jump.step);
  jump.scrollValue = RoundToInteger(jump.position);
  return jump;
}

}  // namespace brolk
