// SPDX-License-Identifier: MIT
// The decoder in vectors of 32 bytes: a whole planar tile at once, half or a quarter of a packed one. Only
// where the compiler can build a function for a newer processor than the rest of the program; on Windows the
// stack is not aligned for such vectors, so it stays out.
#include "tile/decode.h"

#if defined(__x86_64__) && defined(__GNUC__) && !defined(_WIN32)
#include <immintrin.h>

#include <array>
#include <utility>

#include "tile/layout.h"

#define BROLK_AVX2 __attribute__((target("avx2")))

namespace brolk {
namespace {

constexpr std::size_t kHalfBytes = 16;

// Which byte of the tile goes where, for the first and the second 16 bytes of a group of up to four planes;
// 0x80 puts a zero. Each row takes four bytes: planes 3, 2, 1, 0 of the group. The first half of the vector
// holds the rows 0, 1, 4, 5, the second 2, 3, 6, 7, so that the last step leaves them in order.
struct GatherMasks {
  alignas(32) std::array<std::uint8_t, 32> first;
  alignas(32) std::array<std::uint8_t, 32> second;
};

constexpr GatherMasks MakeGatherMasks(const TileLayout& layout) {
  constexpr std::array<std::size_t, 8> kRowOrder = {0, 1, 4, 5, 2, 3, 6, 7};
  const auto places = PlanePlaces(layout);
  GatherMasks masks{};
  masks.first.fill(0x80);
  masks.second.fill(0x80);
  for (std::size_t slot = 0; slot < kRowOrder.size(); ++slot) {
    for (std::size_t plane = 0; plane < layout.bitsPerPixel && plane < 4; ++plane) {
      const std::size_t byte = places[plane].firstByte + places[plane].rowStep * kRowOrder[slot];
      auto& half = byte < kHalfBytes ? masks.first : masks.second;
      half[slot * 4 + 3 - plane] = static_cast<std::uint8_t>(byte % kHalfBytes);
    }
  }
  return masks;
}

// 16 bytes, or the 8 that are left of the tile, in both halves of a vector.
template <std::size_t bytesLeft>
BROLK_AVX2 inline __m256i LoadHalf(const std::uint8_t* bytes) {
  if constexpr (bytesLeft >= kHalfBytes) {
    return _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)));
  } else {
    return _mm256_broadcastq_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(bytes)));
  }
}

// Exchanges the bits of `mask` with those `distance` bits above them.
template <int distance>
BROLK_AVX2 inline __m256i ExchangeBits(__m256i value, std::int32_t mask) {
  const __m256i changed =
      _mm256_and_si256(_mm256_xor_si256(_mm256_srli_epi32(value, distance), value), _mm256_set1_epi32(mask));
  return _mm256_xor_si256(value, _mm256_xor_si256(changed, _mm256_slli_epi32(changed, distance)));
}

// The group of up to four planes that starts at `bytes`: in each row's four bytes, the pixels 0 to 3 in the
// high halves and 4 to 7 in the low halves.
template <std::size_t mode>
BROLK_AVX2 inline __m256i GatherNibbles(const std::uint8_t* bytes) {
  static constexpr GatherMasks kMasks = MakeGatherMasks(kTileLayouts[mode]);
  constexpr std::size_t kBytes = kTileLayouts[mode].bytesPerTile;
  __m256i rows = _mm256_shuffle_epi8(
      LoadHalf<kBytes>(bytes), _mm256_load_si256(reinterpret_cast<const __m256i*>(kMasks.first.data())));
  if constexpr (kBytes > kHalfBytes) {
    const __m256i more =
        _mm256_shuffle_epi8(LoadHalf<kBytes - kHalfBytes>(bytes + kHalfBytes),
                            _mm256_load_si256(reinterpret_cast<const __m256i*>(kMasks.second.data())));
    rows = _mm256_or_si256(rows, more);
  }
  // First the bits of neighbouring planes come together in pairs, then the pairs in fours.
  return ExchangeBits<18>(ExchangeBits<9>(rows, 0x00550055), 0x00003333);
}

BROLK_AVX2 inline void StoreRows(__m256i left, __m256i right, std::uint8_t* pixels) {
  auto* target = reinterpret_cast<__m256i*>(pixels);
  _mm256_storeu_si256(target, _mm256_unpacklo_epi32(left, right));
  _mm256_storeu_si256(target + 1, _mm256_unpackhi_epi32(left, right));
}

template <std::size_t mode>
BROLK_AVX2 inline void DecodePlanar(const std::uint8_t* bytes, std::uint8_t* pixels) {
  const __m256i low = _mm256_set1_epi8(0x0F);
  const __m256i nibbles = GatherNibbles<mode>(bytes);
  __m256i left = _mm256_and_si256(_mm256_srli_epi32(nibbles, 4), low);
  __m256i right = _mm256_and_si256(nibbles, low);
  if constexpr (kTileLayouts[mode].bitsPerPixel == 8) {
    const __m256i upper = GatherNibbles<mode>(bytes + kTileLayouts[mode].bytesPerTile / 2);
    left = _mm256_or_si256(left, _mm256_andnot_si256(low, upper));
    right = _mm256_or_si256(right, _mm256_andnot_si256(low, _mm256_slli_epi32(upper, 4)));
  }
  StoreRows(left, right, pixels);
}

// 16 bytes of two pixels each, widened to two bytes; the other pixel is shifted into the free one.
template <LeftmostPixel leftmost>
BROLK_AVX2 inline __m256i SpreadNibbles(const std::uint8_t* bytes) {
  const __m256i wide = _mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)));
  const __m256i spread = leftmost == LeftmostPixel::InHighBits
                             ? _mm256_or_si256(_mm256_srli_epi16(wide, 4), _mm256_slli_epi16(wide, 8))
                             : _mm256_or_si256(wide, _mm256_slli_epi16(wide, 4));
  return _mm256_and_si256(spread, _mm256_set1_epi8(0x0F));
}

// 8 bytes of four pixels each, widened to four bytes.
template <LeftmostPixel leftmost>
BROLK_AVX2 inline __m256i SpreadPairs(const std::uint8_t* bytes) {
  const __m256i wide = _mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(bytes)));
  const bool high = leftmost == LeftmostPixel::InHighBits;
  const __m256i left = high ? _mm256_or_si256(_mm256_srli_epi32(wide, 6), _mm256_slli_epi32(wide, 4))
                            : _mm256_or_si256(wide, _mm256_slli_epi32(wide, 6));
  const __m256i right = high ? _mm256_or_si256(_mm256_slli_epi32(wide, 14), _mm256_slli_epi32(wide, 24))
                             : _mm256_or_si256(_mm256_slli_epi32(wide, 12), _mm256_slli_epi32(wide, 18));
  return _mm256_and_si256(_mm256_or_si256(left, right), _mm256_set1_epi8(0x03));
}

template <std::size_t mode>
BROLK_AVX2 inline void DecodePacked(const std::uint8_t* bytes, std::uint8_t* pixels) {
  constexpr TileLayout kLayout = kTileLayouts[mode];
  constexpr std::size_t kStep = 4 * std::size_t{kLayout.bitsPerPixel};
  for (std::size_t at = 0; at < kLayout.bytesPerTile; at += kStep) {
    __m256i spread;
    if constexpr (kLayout.bitsPerPixel == 4) {
      spread = SpreadNibbles<kLayout.leftmost>(bytes + at);
    } else {
      spread = SpreadPairs<kLayout.leftmost>(bytes + at);
    }
    if (kLayout.swappedPairs) spread = _mm256_shuffle_epi32(spread, _MM_SHUFFLE(2, 3, 0, 1));
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(pixels + at * (8 / kLayout.bitsPerPixel)), spread);
  }
}

template <std::size_t mode>
BROLK_AVX2 inline void DecodeTile(const std::uint8_t* bytes, std::uint8_t* pixels) {
  if constexpr (kTileLayouts[mode].IsPlanar()) {
    DecodePlanar<mode>(bytes, pixels);
  } else {
    DecodePacked<mode>(bytes, pixels);
  }
}

template <std::size_t mode>
BROLK_AVX2 void DecodeTiles(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> pixels) {
  const std::size_t count = pixels.size() / kTilePixels;
  for (std::size_t tile = 0; tile < count; ++tile) {
    DecodeTile<mode>(bytes.data() + tile * kTileLayouts[mode].bytesPerTile,
                     pixels.data() + tile * kTilePixels);
  }
}

template <std::size_t mode>
constexpr TileDecoder DecoderFor() {
  constexpr TileLayout kLayout = kTileLayouts[mode];
  if constexpr (kLayout.IsPlanar() || kLayout.bitsPerPixel == 2 || kLayout.bitsPerPixel == 4) {
    return DecodeTiles<mode>;
  } else {
    return nullptr;
  }
}

template <std::size_t... modes>
constexpr std::array<TileDecoder, kModeCount> AllDecoders(std::index_sequence<modes...>) {
  return {DecoderFor<modes>()...};
}

constexpr auto kVectorDecoders = AllDecoders(std::make_index_sequence<kModeCount>());

}  // namespace

TileDecoder VectorDecoderOf(std::uint8_t mode) {
  static const bool available = __builtin_cpu_supports("avx2") != 0;
  return available && mode < kModeCount ? kVectorDecoders[mode] : nullptr;
}

}  // namespace brolk

#else

namespace brolk {

TileDecoder VectorDecoderOf(std::uint8_t) {
  return nullptr;
}

}  // namespace brolk

#endif
