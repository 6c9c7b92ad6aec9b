// SPDX-License-Identifier: MIT
#include "importers/png_chunks.h"

#include <algorithm>
#include <string_view>

#include "runtime/ansi_text.h"

namespace brolk {
namespace {

// No rule looks further than this: a palette at 16 bits of depth, and the header for the rest.
constexpr std::int64_t kMostPaletteBytes = 65536 * 3;
constexpr std::int64_t kMostOtherBytes = 13;
constexpr std::int64_t kCheckSumBytes = 4;

struct KnownChunk {
  std::string_view type;
  ChunkKind kind;
  bool (*lengthFits)(std::int32_t length);
};

bool AnyLength(std::int32_t) {
  return true;
}

constexpr KnownChunk kKnownChunks[] = {
    {"IHDR", ChunkKind::Header, [](std::int32_t length) { return length == 13; }},
    {"IEND", ChunkKind::End, AnyLength},
    {"IDAT", ChunkKind::Image, AnyLength},
    {"gAMA", ChunkKind::Gamma, [](std::int32_t length) { return length == 4; }},
    {"sBIT", ChunkKind::SignificantBits, AnyLength},
    {"PLTE", ChunkKind::Palette, [](std::int32_t length) { return length % 3 == 0; }},
    {"bKGD", ChunkKind::Background,
     [](std::int32_t length) { return length == 1 || length == 2 || length == 6; }},
};

ChunkKind KindOf(const PngChunk& chunk) {
  const std::string_view type(reinterpret_cast<const char*>(chunk.ChunkType.data()), chunk.ChunkType.size());
  const auto* known = std::find_if(std::begin(kKnownChunks), std::end(kKnownChunks),
                                   [&](const KnownChunk& candidate) { return candidate.type == type; });
  if (known == std::end(kKnownChunks)) {
    return IsAnsiUpper(chunk.ChunkType[0]) ? ChunkKind::UnknownCritical : ChunkKind::UnknownAncillary;
  }
  return known->lengthFits(chunk.Length) ? known->kind : ChunkKind::Invalid;
}

}  // namespace

std::uint16_t PngChunk::DataWord(std::size_t index) const {
  return static_cast<std::uint16_t>(DataByte(index) << 8 | DataByte(index + 1));
}

std::uint32_t PngChunk::DataLong(std::size_t index) const {
  return std::uint32_t{DataWord(index)} << 16 | DataWord(index + 2);
}

void PngChunkReader::ReadPadded(std::span<std::uint8_t> target) {
  std::fill(target.begin(), target.end(), std::uint8_t{0});
  reader_.Read(target);
  position_ += static_cast<std::int64_t>(target.size());
}

void PngChunkReader::Pass(std::int64_t count) {
  reader_.Skip(count);
  position_ += count;
}

std::array<std::uint8_t, 8> PngChunkReader::ReadSignature() {
  std::array<std::uint8_t, 8> signature{};
  ReadPadded(signature);
  return signature;
}

ChunkKind PngChunkReader::ReadChunk(PngChunk& chunk) {
  chunk = {};
  std::array<std::uint8_t, 4> length{};
  ReadPadded(length);
  chunk.Length = static_cast<std::int32_t>(std::uint32_t{length[0]} << 24 | std::uint32_t{length[1]} << 16 |
                                           std::uint32_t{length[2]} << 8 | length[3]);
  if (chunk.Length < 0) return ChunkKind::Header;
  ReadPadded(chunk.ChunkType);
  const ChunkKind kind = KindOf(chunk);
  const std::int64_t looked = kind == ChunkKind::Palette ? kMostPaletteBytes : kMostOtherBytes;
  const std::int64_t there = std::max<std::int64_t>(length_ - position_, 0);
  chunk.Data.resize(static_cast<std::size_t>(std::min({std::int64_t{chunk.Length}, looked, there})));
  ReadPadded(chunk.Data);
  Pass(chunk.Length - static_cast<std::int64_t>(chunk.Data.size()) + kCheckSumBytes);
  return kind;
}

}  // namespace brolk
