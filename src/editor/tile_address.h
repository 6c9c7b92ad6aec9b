// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The texts of the tile tool's address box and of the label that shows the same address in hexadecimal.
namespace brolk {

// In the box: no tile is loaded, or one that belongs to no place in the file.
inline constexpr std::string_view kNoAddress = "n/a";

// The number at the head of the text, rounded to a whole one (ties to even). A number beyond 32 bits counts
// as the nearest 32-bit number.
[[nodiscard]] std::int32_t AddressOfText(std::string_view text);

struct TileAddressTexts {
  std::string box;
  std::string hex;
};

// What box and label show after the text of the box has become `text`. loadedAddress: the address of the
// loaded slot when it was loaded; a negative one makes the text kNoAddress. limit: the highest address that
// the box takes; a larger number becomes it, also when the slot's own address is above it.
[[nodiscard]] TileAddressTexts TileAddressTextsFor(std::string_view text, std::int32_t loadedAddress,
                                                   std::int32_t limit);

// Eight hexadecimal digits and "h"; a negative value counts as 0.
[[nodiscard]] std::string FormatHexAddress(std::int32_t value);

}  // namespace brolk
