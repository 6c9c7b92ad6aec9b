// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

// Reading tiles one byte at a time, with everything that the end of a file, a failing seek and the end of
// PageBuffer do to the picture. This is the rule; decode.h is the short way to the same pixels where every
// read lies inside the file.
namespace brolk {

// The bytes that a call of `count` tiles in the mode GfxMode takes from the file, in one piece from its
// address on. Nothing for a call that reads nothing, that ends in a fault, or that never ends.
[[nodiscard]] std::optional<std::size_t> BytesOfCall(std::int16_t count);

// Decodes `count` tiles in the mode GfxMode into PageBuffer, each byte fetched with its own read at the
// position where the file stands.
//
// A read that delivers nothing leaves the last byte that reached the same entry of a local array of four, all
// zero at first: past the end of the file the last values repeat. The reads of one row of one run of rows use
// the entries 0, 1, 2, 3 in their order; modes that read byte by byte use entry 0.
//
// count is a 16-bit limit: 0 and below do nothing, but -32768 minus 1 wraps to 32767, which the counter never
// passes. Writing an entry above 65536 is the subscript fault; what was written before stays.
void ReadTilesByteByByte(std::int16_t handle, std::int16_t count);

// The same from bytes in memory, for Bitmap Mode, which has no decoder; `bytes` holds as many as BytesOfCall
// tells.
void ReadTilesFromMemory(std::span<const std::uint8_t> bytes, std::int16_t count);

}  // namespace brolk
