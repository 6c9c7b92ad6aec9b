// SPDX-License-Identifier: MIT
#include "tile/decode.h"

#include <array>
#include <bit>
#include <cstring>
#include <utility>

#include "tile/layout.h"

namespace brolk {
namespace {

// The pixels of a byte in memory order, as one number: 8, 4 or 2 of them in as many bytes. Numbers of this
// kind are only shifted inside their bytes and joined, so the byte order of the machine does not matter.
template <typename Lanes>
using SpreadTable = std::array<Lanes, 256>;

template <typename Lanes>
constexpr SpreadTable<Lanes> MakeSpreadTable(LeftmostPixel leftmost) {
  constexpr unsigned kCount = sizeof(Lanes);
  constexpr unsigned kBits = 8 / kCount;
  constexpr unsigned kMask = (1U << kBits) - 1;
  SpreadTable<Lanes> table{};
  for (unsigned byte = 0; byte < 256; ++byte) {
    std::array<std::uint8_t, kCount> pixels{};
    for (unsigned x = 0; x < kCount; ++x) {
      const unsigned place = leftmost == LeftmostPixel::InHighBits ? kCount - 1 - x : x;
      pixels[x] = static_cast<std::uint8_t>((byte >> (place * kBits)) & kMask);
    }
    table[byte] = std::bit_cast<Lanes>(pixels);
  }
  return table;
}

template <typename Lanes, LeftmostPixel leftmost>
constexpr SpreadTable<Lanes> kSpread = MakeSpreadTable<Lanes>(leftmost);

// Row y of a planar tile. Written out plane by plane at compile time: a loop here costs several times the
// work.
template <std::size_t mode, std::size_t... planes>
std::uint64_t PlanarRow(const std::uint8_t* bytes, std::size_t y, std::index_sequence<planes...>) {
  static constexpr auto kPlaces = PlanePlaces(kTileLayouts[mode]);
  constexpr const auto& kTable = kSpread<std::uint64_t, LeftmostPixel::InHighBits>;
  return (... | (kTable[bytes[kPlaces[planes].firstByte + kPlaces[planes].rowStep * y]] << planes));
}

template <std::size_t mode>
void DecodePlanar(const std::uint8_t* bytes, std::uint8_t* pixels) {
  for (std::size_t y = 0; y < kTileSidePx; ++y) {
    const std::uint64_t row =
        PlanarRow<mode>(bytes, y, std::make_index_sequence<kTileLayouts[mode].bitsPerPixel>());
    std::memcpy(pixels + kTileSidePx * y, &row, sizeof row);
  }
}

template <std::size_t mode, typename Lanes>
void DecodePacked(const std::uint8_t* bytes, std::uint8_t* pixels) {
  constexpr TileLayout kLayout = kTileLayouts[mode];
  constexpr const auto& kTable = kSpread<Lanes, kLayout.leftmost>;
  for (std::size_t i = 0; i < kLayout.bytesPerTile; ++i) {
    const Lanes lanes = kTable[bytes[kLayout.swappedPairs ? i ^ 1U : i]];
    std::memcpy(pixels + sizeof lanes * i, &lanes, sizeof lanes);
  }
}

template <std::size_t mode>
void DecodeTile(const std::uint8_t* bytes, std::uint8_t* pixels) {
  constexpr TileLayout kLayout = kTileLayouts[mode];
  if constexpr (kLayout.IsPlanar()) {
    DecodePlanar<mode>(bytes, pixels);
  } else if constexpr (kLayout.bitsPerPixel == 2) {
    DecodePacked<mode, std::uint32_t>(bytes, pixels);
  } else if constexpr (kLayout.bitsPerPixel == 4) {
    DecodePacked<mode, std::uint16_t>(bytes, pixels);
  } else {
    static_assert(kLayout.bitsPerPixel == 8);
    std::memcpy(pixels, bytes, kTilePixels);
  }
}

template <std::size_t mode>
void DecodeTiles(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> pixels) {
  const std::size_t count = pixels.size() / kTilePixels;
  for (std::size_t tile = 0; tile < count; ++tile) {
    DecodeTile<mode>(bytes.data() + tile * kTileLayouts[mode].bytesPerTile,
                     pixels.data() + tile * kTilePixels);
  }
}

template <std::size_t mode>
constexpr TileDecoder DecoderFor() {
  if constexpr (kTileLayouts[mode].bytesPerTile == 0) {
    return nullptr;
  } else {
    return DecodeTiles<mode>;
  }
}

template <std::size_t... modes>
constexpr std::array<TileDecoder, kModeCount> AllDecoders(std::index_sequence<modes...>) {
  return {DecoderFor<modes>()...};
}

constexpr std::size_t kSpriteBytes = 128;
constexpr std::size_t kSpriteEntries = 256;
constexpr std::size_t kSpriteRows = 16;
constexpr std::size_t kSpritePlanes = 4;

// The first byte of a row, moved on by four bits: the entries that it fills lie that far behind those of the
// second byte, so they take the low half of the row before.
unsigned MovedOn(const std::uint8_t* plane, std::size_t row) {
  const unsigned before = row == 0 ? 0 : plane[2 * row - 2];
  const unsigned here = row == kSpriteRows ? 0 : plane[2 * row];
  return (before << 4 | here >> 4) & 0xFFU;
}

// The eight even entries of a row. In the first plane the second byte stands alone: its zeroing comes after
// what the first byte put there.
std::uint64_t SpriteRow(const std::uint8_t* sprite, std::size_t row) {
  constexpr const auto& kTable = kSpread<std::uint64_t, LeftmostPixel::InHighBits>;
  std::uint64_t sum = kTable[sprite[2 * row + 1]];
  for (std::size_t plane = 1; plane < kSpritePlanes; ++plane) {
    const std::uint8_t* bytes = sprite + plane * 2 * kSpriteRows;
    sum += (kTable[bytes[2 * row + 1]] + kTable[MovedOn(bytes, row)]) << plane;
  }
  return sum;
}

// The four even entries behind a sprite, which the next one overwrites.
std::uint64_t BehindSprite(const std::uint8_t* sprite) {
  std::uint64_t sum = 0;
  for (std::size_t plane = 0; plane < kSpritePlanes; ++plane) {
    const unsigned moved = MovedOn(sprite + plane * 2 * kSpriteRows, kSpriteRows);
    sum += kSpread<std::uint64_t, LeftmostPixel::InHighBits>[moved] << plane;
  }
  return sum;
}

void StoreEven(std::uint64_t lanes, std::size_t count, std::uint8_t* pixels) {
  const auto values = std::bit_cast<std::array<std::uint8_t, sizeof lanes>>(lanes);
  for (std::size_t x = 0; x < count; ++x) pixels[2 * x] = values[x];
}

constexpr auto kPortableDecoders = AllDecoders(std::make_index_sequence<kModeCount>());

}  // namespace

std::size_t RegularTileBytes(std::uint8_t mode) {
  return mode < kModeCount ? kTileLayouts[mode].bytesPerTile : 0;
}

TileDecoder PortableDecoderOf(std::uint8_t mode) {
  return mode < kModeCount ? kPortableDecoders[mode] : nullptr;
}

void DecodeSprites(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> pixels) {
  const std::size_t count = bytes.size() / kSpriteBytes;
  if (count == 0) return;
  for (std::size_t sprite = 0; sprite < count; ++sprite) {
    std::uint8_t* target = pixels.data() + sprite * kSpriteEntries;
    for (std::size_t row = 0; row < kSpriteRows; ++row) {
      StoreEven(SpriteRow(bytes.data() + sprite * kSpriteBytes, row), 8, target + 16 * row);
    }
  }
  StoreEven(BehindSprite(bytes.data() + (count - 1) * kSpriteBytes), 4,
            pixels.data() + count * kSpriteEntries);
}

TileDecoder DecoderOf(std::uint8_t mode) {
  const TileDecoder vector = VectorDecoderOf(mode);
  return vector != nullptr ? vector : PortableDecoderOf(mode);
}

}  // namespace brolk
