// SPDX-License-Identifier: MIT
#include "tile/shared.h"

#include "runtime/numbers.h"
#include "tile/modes.h"

namespace brolk {

std::int32_t SelectedAddress() {
  const std::int16_t tile = Wrap16(MainRows * SelLine + SelColumn);
  const std::int16_t offset = Wrap16(tile * Modes[GfxMode].BytesPerTile);
  return Wrap32(std::int64_t{offset} + BrowserAddress);
}

}  // namespace brolk
