// SPDX-License-Identifier: MIT
#include "tile/tile.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>

#include "runtime/files.h"
#include "tile/decode.h"
#include "tile/exact_read.h"
#include "tile/layout.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk {
namespace {

// The bytes of one call. A call takes at most one byte for each entry of PageBuffer.
std::array<std::uint8_t, kPageBufferLast + 1> block;

bool LiesInFile(std::int16_t handle, std::int32_t address, std::size_t bytes) {
  return address >= 0 && address + static_cast<std::int64_t>(bytes) <= OpenFileLength(handle);
}

void DecodeBlock(std::span<const std::uint8_t> bytes, std::int16_t count) {
  if (GfxMode == kPcEngineSprite) return DecodeSprites(bytes, PageBuffer.All());
  const TileDecoder decode = DecoderOf(GfxMode);
  if (decode == nullptr) return ReadTilesFromMemory(bytes, count);
  decode(bytes, PageBuffer.All().first(static_cast<std::size_t>(count) * kTilePixels));
}

}  // namespace

void ReadTile(std::int16_t handle, std::int32_t Address, std::int16_t Count) {
  _llseek(handle, Address, kFromStart);
  const std::optional<std::size_t> size = BytesOfCall(Count);
  if (size && LiesInFile(handle, Address, *size)) {
    const auto bytes = std::span(block).first(*size);
    if (_hread(handle, bytes) == static_cast<std::int64_t>(*size)) return DecodeBlock(bytes, Count);
    _llseek(handle, Address, kFromStart);
  }
  ReadTilesByteByByte(handle, Count);
}

}  // namespace brolk
