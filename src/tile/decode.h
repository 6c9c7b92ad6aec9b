// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace brolk {

// Decodes tiles of a regular mode (every index of Modes but Bitmap Mode and the PC Engine sprite).
// bytes: as many whole tiles as pixels has, one after the other; no file, no state.
// pixels: 64 colour indices for each tile, row by row from its top left corner, 0 to 2^bits - 1.
using TileDecoder = void (*)(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> pixels);

// File bytes of one tile of a regular mode, 0 for any other mode number.
[[nodiscard]] std::size_t RegularTileBytes(std::uint8_t mode);

// The fastest decoder of a regular mode on this machine; a null pointer for any other mode number.
[[nodiscard]] TileDecoder DecoderOf(std::uint8_t mode);

// The decoder that runs on every machine: one table look-up for each byte.
[[nodiscard]] TileDecoder PortableDecoderOf(std::uint8_t mode);

// The decoder in vectors of 32 bytes; a null pointer where the mode or the machine has none.
[[nodiscard]] TileDecoder VectorDecoderOf(std::uint8_t mode);

// Decodes PC Engine sprites, each of 128 bytes, to the pixels that the byte-by-byte steps of exact_read.h
// leave. bytes: whole sprites. pixels: 256 entries for each and 7 more, which take the end of the last one.
// Odd entries stay as they are.
void DecodeSprites(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> pixels);

}  // namespace brolk
