// SPDX-License-Identifier: MIT
#include "exchange/bitmap_file.h"

#include <algorithm>

#include "runtime/files.h"

namespace brolk {
namespace {

// One field of the header, little-endian.
struct HeaderField {
  int sizeBytes;
  std::uint32_t value;
};

// The image size and the two colour counts do not describe the file: they are constants of the format as this
// program writes it.
constexpr HeaderField kHeader[] = {
    {2, 0x4D42},         // "BM"
    {4, kBmpFileBytes},  // file size
    {4, 0},              // reserved
    {4, 1078},           // offset of the pixels
    {4, 40},             // size of the info header
    {4, kBmpSidePx},     // width
    {4, kBmpSidePx},     // height, positive: bottom row first
    {2, 1},              // planes
    {2, 8},              // bits per pixel
    {4, 0},              // compression: none. Its two low bytes are the last that import compares
    {4, 8192},           // image size
    {4, 0},              // horizontal resolution
    {4, 0},              // vertical resolution
    {4, 16},             // colours used
    {4, 16},             // important colours
};

constexpr std::size_t kComparedBytes = 32;

std::string HeaderBytes() {
  std::string bytes;
  for (const HeaderField& field : kHeader) {
    for (int k = 0; k < field.sizeBytes; ++k) bytes += static_cast<char>((field.value >> (8 * k)) & 0xFF);
  }
  return bytes;
}

}  // namespace

void InitBmpHeader() {
  const std::string bytes = HeaderBytes();
  BmpHeadBytes = bytes.substr(0, kComparedBytes);
  BmpTailBytes = bytes.substr(kComparedBytes);
}

SlotPixel PlaceInSlots(int row, int column) {
  return {static_cast<std::uint8_t>((15 - row / 8) * 16 + column / 8),
          static_cast<std::uint8_t>(column % 8 + (7 - row % 8) * 8)};
}

std::string EncodeBmp(const PaletteTable& palette, const SlotTable& slots) {
  std::string bytes = BmpHeadBytes + BmpTailBytes;
  for (const ColorValue color : palette) {
    for (const std::int32_t channel : {BlueOf(color), GreenOf(color), RedOf(color), 0})
      bytes += static_cast<char>(channel);
  }
  for (int row = 0; row < kBmpSidePx; ++row) {
    for (int column = 0; column < kBmpSidePx; ++column) {
      const SlotPixel place = PlaceInSlots(row, column);
      bytes += static_cast<char>(slots[place.slot].Pixels[place.pixel]);
    }
  }
  return bytes;
}

void DecodeBmp(std::string_view body, PaletteTable& palette, SlotTable& slots) {
  std::size_t at = 0;
  const auto next = [&] { return static_cast<std::uint8_t>(body[at++]); };
  for (ColorValue& color : palette) {
    const std::int32_t blue = next();
    const std::int32_t green = next();
    const std::int32_t red = next();
    next();
    color = blue * 65536 + green * 256 + red;
  }
  for (int row = 0; row < kBmpSidePx; ++row) {
    for (int column = 0; column < kBmpSidePx; ++column) {
      const SlotPixel place = PlaceInSlots(row, column);
      slots[place.slot].Pixels[place.pixel] = next();
    }
  }
  for (EditSlot& slot : slots) {
    const bool empty =
        std::all_of(slot.Pixels.begin(), slot.Pixels.end(), [](std::uint8_t pixel) { return pixel == 0; });
    slot.Address = empty ? kNonCopied : kUnaddressed;
  }
}

BmpImport ImportBmpFile(const FileSource& file) {
  ByteReader reader(file);
  if (!reader.IsOpen() || reader.Length() != kBmpFileBytes) return BmpImport::WrongSize;
  if (reader.TakeText(BmpHeadBytes.size()) != BmpHeadBytes) return BmpImport::WrongHeader;
  reader.Seek(kBmpHeadBytes);
  DecodeBmp(reader.TakeText(kBmpColorBytes + kBmpPixelBytes), Palette, EditSlots);
  for (int slot = 0; slot <= 255; ++slot) RefreshSlotSurface(static_cast<std::uint8_t>(slot));
  return BmpImport::Done;
}

void ExportBmpFile(std::string_view path) {
  const std::int16_t handle = OpenFile(path, kOpenCreate);
  // Each byte is a write of its own, so that a full disk leaves the head of the picture.
  for (const char byte : EncodeBmp(Palette, EditSlots)) _hwrite(handle, std::string_view(&byte, 1));
  _lclose(handle);
}

}  // namespace brolk
