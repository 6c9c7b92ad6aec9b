// SPDX-License-Identifier: MIT
#include "importers/gif_read.h"

#include "palette/palette_model.h"
#include "runtime/fault.h"

namespace brolk {
namespace {

constexpr std::size_t kColorBytes = 3;

constexpr FixedNotice kNoGif = {"Not a valid Gif file!", "Gif Read Error", NoticeIcon::Exclamation};
constexpr FixedNotice kNoTable = {"Gif must have a global palette!", "Gif Read Error",
                                  NoticeIcon::Exclamation};

std::uint8_t LowByte(std::uint16_t word) {
  return static_cast<std::uint8_t>(word & 0xFF);
}

std::uint8_t HighByte(std::uint16_t word) {
  return static_cast<std::uint8_t>(word >> 8);
}

std::uint16_t WordOf(std::uint8_t low, std::uint8_t high) {
  return static_cast<std::uint16_t>(low | (high << 8));
}

// Lays the bytes that the file delivers over the record, in file order.
void ReadScreen(ByteReader& reader, GifScreenRecord& screen) {
  std::array<std::uint8_t, 7> bytes = {
      LowByte(screen.width), HighByte(screen.width), LowByte(screen.height), HighByte(screen.height),
      screen.flags,          screen.backgroundIndex, screen.aspect};
  reader.Read(bytes);
  screen = {WordOf(bytes[0], bytes[1]), WordOf(bytes[2], bytes[3]), bytes[4], bytes[5], bytes[6]};
}

// The table has at most 256 entries, so its size needs no test against the file.
void ReadTable(ByteReader& reader, std::vector<GifColor>& table) {
  std::vector<std::uint8_t> bytes(table.size() * kColorBytes);
  reader.Read(bytes);
  for (std::size_t index = 0; index < table.size(); ++index) {
    const std::size_t at = index * kColorBytes;
    table[index] = {bytes[at], bytes[at + 1], bytes[at + 2]};
  }
}

}  // namespace

std::string BytesToText(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) text += byte >= 32 ? static_cast<char>(byte) : ' ';
  return text;
}

bool GifHasPalette() {
  return (ShiftRight(GifScreen.flags, 7) & 1) != 0;
}

std::int16_t GifPaletteBits() {
  return static_cast<std::int16_t>(GifScreen.flags % 8 + 1);
}

bool ReadGifPalette(const FileSource& file, std::optional<Notice>& refusal) {
  ByteReader reader(file);
  if (!reader.IsOpen()) throw Fault(FaultKind::FileNotFound);
  reader.Read(GifSignature);
  GifSignatureText = BytesToText(GifSignature);
  if (GifSignatureText != "GIF89a" && GifSignatureText != "GIF87a") {
    refusal = kNoGif;
    return false;
  }
  ReadScreen(reader, GifScreen);
  if (!GifHasPalette()) {
    refusal = kNoTable;
    return false;
  }
  GifPaletteLast = static_cast<std::int16_t>((1 << GifPaletteBits()) - 1);
  GifPalette.assign(static_cast<std::size_t>(GifPaletteLast) + 1, GifColor{});
  ReadTable(reader, GifPalette);
  return true;
}

bool ReadGifPalette(std::string_view fileName, std::optional<Notice>& refusal) {
  return ReadGifPalette(FileSource::AtPath(std::string(fileName)), refusal);
}

}  // namespace brolk
