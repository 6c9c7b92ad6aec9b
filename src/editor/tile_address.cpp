// SPDX-License-Identifier: MIT
#include "editor/tile_address.h"

#include <algorithm>
#include <limits>

#include "runtime/numbers.h"

namespace brolk {

std::int32_t AddressOfText(std::string_view text) {
  constexpr double lowest = std::numeric_limits<std::int32_t>::min();
  constexpr double highest = std::numeric_limits<std::int32_t>::max();
  return RoundToLong(std::clamp(Val(text), lowest, highest));
}

TileAddressTexts TileAddressTextsFor(std::string_view text, std::int32_t loadedAddress, std::int32_t limit) {
  if (loadedAddress < 0 || text == kNoAddress) return {std::string(kNoAddress), std::string(kNoAddress)};
  if (Val(text) > limit) return {NumberText(limit), FormatHexAddress(limit)};
  return {std::string(text), FormatHexAddress(AddressOfText(text))};
}

std::string FormatHexAddress(std::int32_t value) {
  constexpr int digits = 8;
  std::string text = HexText(std::max(value, 0));
  text.insert(0, digits - text.size(), '0');
  return text + "h";
}

}  // namespace brolk
