// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace brolk {

// Decodes Count tiles of the open file from the file offset Address into PageBuffer, in the mode GfxMode. See
// decode.h for the layouts.
void ReadTile(std::int16_t handle, std::int32_t Address, std::int16_t Count);

// Encodes the 64 pixels of an Editor slot in the mode GfxMode and writes them at Address.
void WriteTile(std::int16_t handle, std::int32_t Address, std::uint8_t Slot);

}  // namespace brolk
