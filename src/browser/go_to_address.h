// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "browser/page_address.h"

namespace brolk {

// A jump to a typed address, with what its steps came to.
struct AddressJump {
  std::int32_t limit = 0;        // highest address that a jump is held to, in bytes
  std::int32_t target = 0;       // the address aimed at, aligned and shifted
  double step = 0;               // tile lines of one scroll position
  double position = 0;           // the scroll position of the target, before rounding
  std::int16_t scrollValue = 0;  // the same, rounded
};

// pageBytes: bytes of a whole page in 16-bit arithmetic (PageBytesFor). number: as typed, any real number;
// one beyond the limit counts as the limit, a negative one as 0. The page that the scroll value then gives
// can lie beside the number typed. An empty file and line bytes of 0 are the division fault; a scroll value
// that is no 16-bit number is the overflow fault.
[[nodiscard]] AddressJump JumpTo(double number, std::int16_t pageBytes, const PageGrid& grid);

// Bytes of a page, kept to 16 bits and sign-extended. A page of more than 32767 bytes comes out negative or
// too small, which moves the limit of a jump beyond the last page: that is meant.
[[nodiscard]] std::int16_t PageBytesFor(std::int16_t bytesPerTile, std::int16_t lines, std::int16_t rows);

}  // namespace brolk
