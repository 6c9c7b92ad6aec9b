// SPDX-License-Identifier: MIT
#include "palette/palette_files.h"
#include "palette/palette_model.h"
#include "runtime/files.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr int kTileLayerColors = 16;
constexpr std::array<char, 4> kRiffTrailer = {};

// False when the file ends in the set; what had come by then stays in it.
bool ReadOldBinarySet(ByteReader& reader, ColorSetRecord& set) {
  std::uint8_t byte = 0;
  set.Name.clear();
  for (;;) {
    if (!reader.Next(byte)) return false;
    if (byte == 0) break;
    set.Name += static_cast<char>(byte);
  }
  for (ColorValue& color : set.Colors) {
    color = 0;
    for (const std::int32_t weight : {1, 256, 65536}) {
      if (!reader.Next(byte)) return false;
      color += byte * weight;
    }
  }
  return true;
}

// The three channels and what of the entry follows them.
std::string ChannelBytes(ColorValue color, std::int32_t divisor = 1) {
  return {static_cast<char>(RedOf(color) / divisor), static_cast<char>(GreenOf(color) / divisor),
          static_cast<char>(BlueOf(color) / divisor)};
}

}  // namespace

ColorValue AssembleColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return Wrap16(green * 256 + red) + blue * 65536;
}

std::uint8_t TileLayerChannel(std::uint8_t value) {
  return value > 62 ? std::uint8_t{255} : static_cast<std::uint8_t>(IntegerPart(value * 4.1));
}

LoadOutcome LoadOldBinaryPalette(const PaletteKind& kind, const LoadRequest& request) {
  ByteReader reader(request.file);
  if (auto refusal = Refusal(kind, reader)) return {std::move(refusal), true};
  for (std::uint8_t place = 0; ReadOldBinarySet(reader, Sets[place]);) SetCount = ++place;
  return {};
}

LoadOutcome LoadRiffPalette(const PaletteKind& kind, const LoadRequest& request) {
  ByteReader reader(request.file);
  if (auto refusal = Refusal(kind, reader)) return {std::move(refusal), false};
  ColorSetRecord& set = Sets[SetCount];
  std::array<std::uint8_t, 4> entry{};
  for (ColorValue& color : set.Colors) {
    for (std::uint8_t& byte : entry) reader.Next(byte);
    color = AssembleColor(entry[0], entry[1], entry[2]);
  }
  set.Name = kind.setNames[0];
  ++SetCount;
  return {};
}

LoadOutcome LoadTileLayerPalette(const PaletteKind& kind, const LoadRequest& request) {
  ByteReader reader(request.file);
  ColorSetRecord& set = Sets[SetCount];
  set.Colors.fill(0);
  std::uint8_t byte = 0;
  for (int index = 0; index < kTileLayerColors; ++index) {
    std::array<std::uint8_t, 3> channels{};
    for (std::uint8_t& channel : channels) {
      reader.Next(byte);
      channel = TileLayerChannel(byte);
    }
    set.Colors[index] = AssembleColor(channels[0], channels[1], channels[2]);
  }
  set.Name = kind.setNames[0];
  ++SetCount;
  return {};
}

std::string OldBinaryPaletteOf(const ColorSetRecord& set) {
  std::string bytes = set.Name;
  bytes += '\0';
  for (const ColorValue color : set.Colors) bytes += ChannelBytes(color);
  return bytes;
}

std::string RiffPaletteOf(const ColorSetRecord& set) {
  std::string bytes(RiffHeader.begin(), RiffHeader.end());
  for (const ColorValue color : set.Colors) bytes += ChannelBytes(color) + '\0';
  return bytes.append(kRiffTrailer.begin(), kRiffTrailer.end());
}

std::string TileLayerPaletteOf(const ColorSetRecord& set) {
  std::string bytes;
  for (int index = 0; index < kTileLayerColors; ++index) bytes += ChannelBytes(set.Colors[index], 4);
  return bytes;
}

void SaveOldBinaryPalette(std::int16_t handle, std::string_view) {
  _hwrite(handle, kOldBinaryHeader);
  const std::uint8_t last = WrapByte(SetCount - 1);
  for (std::uint8_t place = 0; place <= last; ++place) _hwrite(handle, OldBinaryPaletteOf(Sets[place]));
}

void SaveRiffPalette(std::int16_t handle, std::string_view) {
  _hwrite(handle, RiffPaletteOf(Sets[SelectedSet]));
}

void SaveTileLayerPalette(std::int16_t handle, std::string_view) {
  _hwrite(handle, TileLayerPaletteOf(Sets[SelectedSet]));
}

}  // namespace brolk
