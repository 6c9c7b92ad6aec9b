// SPDX-License-Identifier: MIT
#include "importers/save_states.h"

#include "importers/gzip_file.h"
#include "palette/color_sets.h"
#include "palette/palette_model.h"

namespace brolk {
namespace {

constexpr std::size_t kWordBytes = 2;

// Adds a set to the list. With place 255 filled SetCount wraps to 0; kinds without a test for room reach
// that.
template <typename NextColor>
void AddSet(const PaletteKind& kind, std::string_view name, NextColor nextColor) {
  ColorSetRecord& set = Sets[SetCount];
  set.Colors.fill(0);
  for (int index = 0; index < kind.entryCount; ++index) set.Colors[index] = nextColor(index);
  set.Name = name;
  ++SetCount;
}

// The names of the sets that a kind adds.
std::span<const std::string_view> NamesOf(const PaletteKind& kind) {
  return std::span(kind.setNames).first(kind.setNames[1].empty() ? 1U : 2U);
}

void NextEntry(ByteReader& reader, int entryBytes, std::uint16_t& entry) {
  if (entryBytes == static_cast<int>(kWordBytes)) {
    reader.NextWord(entry);
    return;
  }
  auto byte = static_cast<std::uint8_t>(entry);
  reader.Next(byte);
  entry = byte;
}

}  // namespace

ColorValue DecodeNesIndex(std::uint16_t entry) {
  return NesPalette[entry % 64];
}

ColorValue DecodeRedHigh(std::uint16_t entry) {
  return ColToRGB(entry, 0);
}

ColorValue DecodeRedLow(std::uint16_t entry) {
  return ColToRGB(entry, 1);
}

ColorValue DecodeFourBits(std::uint16_t entry) {
  return PackRgb(entry / 256 % 16 * 16, entry / 16 % 16 * 16, entry % 16 * 16);
}

LoadOutcome LoadSaveState(const PaletteKind& kind, const LoadRequest& request) {
  ByteReader reader(request.file);
  if (auto refusal = Refusal(kind, reader)) return {std::move(refusal), false};
  reader.Seek(kind.colorOffset);
  std::uint16_t entry = 0;
  for (const std::string_view name : NamesOf(kind)) {
    AddSet(kind, name, [&](int) {
      NextEntry(reader, kind.entryBytes, entry);
      return kind.decode(entry);
    });
  }
  return {};
}

LoadOutcome LoadPackedState(const PaletteKind& kind, const LoadRequest& request) {
  GzipFile stream(request.file.path);
  stream.Seek(kind.colorOffset);
  std::array<std::uint8_t, 512> buffer{};
  for (const std::string_view name : NamesOf(kind)) {
    stream.Read(buffer);
    AddSet(kind, name, [&](int index) {
      const std::size_t at = static_cast<std::size_t>(index) * kWordBytes;
      const int word = buffer[at] + 256 * buffer[at + 1];
      return kind.decode(static_cast<std::uint16_t>(word % 32768));
    });
  }
  return {};
}

}  // namespace brolk
