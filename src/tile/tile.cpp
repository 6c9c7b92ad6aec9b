// SPDX-License-Identifier: MIT
#include "tile/tile.h"

namespace brolk {

void ReadTile(std::int16_t, std::int32_t, std::int16_t) {}
void WriteTile(std::int16_t, std::int32_t, std::uint8_t) {}

}  // namespace brolk
