// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace brolk {

// Decodes Count tiles from the file offset Address on into PageBuffer, in the mode GfxMode: 64 entries to a
// tile in the regular modes. Entries behind the last tile keep what they had. The file stands after the last
// byte read. An address or a tile outside the file is no failure: see exact_read.h for what is delivered
// then, for the limits of Count, and for the subscript fault at entry 65537.
void ReadTile(std::int16_t handle, std::int32_t Address, std::int16_t Count);

// Encodes the 64 pixels of an Editor slot (0 to 255) in the mode GfxMode and writes them at the file offset
// Address; see encode.h. The file grows when it must, FileLength does not follow. Neither the seek nor the
// write is looked at: after a seek that fails the bytes go where the file stands. Bitmap Mode does not touch
// the file, the PC Engine sprite is the subscript fault before the file is touched.
void WriteTile(std::int16_t handle, std::int32_t Address, std::uint8_t Slot);

}  // namespace brolk
