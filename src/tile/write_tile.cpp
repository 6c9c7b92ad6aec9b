// SPDX-License-Identifier: MIT
// Apart from tile.cpp because of its one look upwards: the argument is the number of an Editor slot.
#include "editor/slots.h"
#include "runtime/files.h"
#include "tile/encode.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk {

void WriteTile(std::int16_t handle, std::int32_t Address, std::uint8_t Slot) {
  const EncodedTile tile = EncodeTile(GfxMode, EditSlots[Slot].Pixels.All());
  if (tile.size == 0) return;
  _llseek(handle, Address, kFromStart);
  _hwrite(handle, tile.Bytes());
}

}  // namespace brolk
