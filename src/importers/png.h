// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "runtime/byte_reader.h"
#include "runtime/surface.h"

namespace brolk {

enum class PngResult : std::uint8_t {
  Read = 0,         // in full; the object's state has been replaced
  NotOpened = 1,    // OpenErrorText() tells why
  NotValid = 2,     // no PNG by the rules of this reader
  Unsupported = 3,  // a critical chunk that this reader does not know
};

struct PngHeader {
  std::int32_t width = 0;   // pixels
  std::int32_t height = 0;  // pixels
  std::uint8_t bitDepth = 0;
  std::uint8_t colorType = 0;  // 1 palette, 2 colour, 4 alpha, added up
  std::uint8_t compression = 0;
  std::uint8_t filter = 0;
  std::uint8_t interlace = 0;
};

struct PngColor {
  std::uint8_t blue = 0;
  std::uint8_t green = 0;
  std::uint8_t red = 0;
};

// None; a palette index; a grey level 0 to 255; a colour value.
using PngBackground = std::variant<std::monostate, std::uint8_t, std::int16_t, std::int32_t>;

// What a good read leaves behind.
struct PngState {
  PngHeader header;
  std::vector<PngColor> palette;  // the first entry is the one that callers number 1
  PngBackground background;
  float gamma = 0;
};

// Reads the chunks of a PNG file: header, palette, background and gamma; image data is never unpacked, and a
// check sum never compared. A read that fails leaves the object as it was.
class cPng final {
 public:
  [[nodiscard]] const PngBackground& backClr() const { return state_.background; }
  // The background as a colour value, 0 for none. A palette index is looked up as it stands, although the
  // file counts from 0 and ColorTable from 1. That is meant.
  [[nodiscard]] ColorValue BackClrRgb() const;
  [[nodiscard]] std::uint8_t BitDepth() const { return state_.header.bitDepth; }
  // Entries of the palette, 0 with none.
  [[nodiscard]] std::int32_t ClrTableSize() const { return static_cast<std::int32_t>(state_.palette.size()); }
  [[nodiscard]] std::uint8_t ColorMode() const { return state_.header.colorType; }
  // The colour value of entry `index`, counted from 1; 0 outside the palette.
  [[nodiscard]] ColorValue ColorTable(std::int16_t index) const;
  // -1 after a read of a file that tells none.
  [[nodiscard]] float GammaVal() const { return state_.gamma; }
  [[nodiscard]] std::int32_t pngHeight() const { return state_.header.height; }
  [[nodiscard]] bool Interlaced() const { return state_.header.interlace != 0; }
  [[nodiscard]] bool IsAlpha() const { return (state_.header.colorType & 4) != 0; }
  [[nodiscard]] bool IsBackColor() const { return state_.background.index() != 0; }
  [[nodiscard]] bool IsColor() const { return (state_.header.colorType & 2) != 0; }
  [[nodiscard]] bool IsPalette() const { return ClrTableSize() != 0; }
  // Faults: an IDAT chunk shorter than 7 bytes (subscript), a second IDAT chunk (duplicate key).
  PngResult ReadPngFile(std::string_view fileName);
  PngResult ReadPngFile(const FileSource& file);
  [[nodiscard]] std::int32_t pngWidth() const { return state_.header.width; }

 private:
  PngState state_;
};

}  // namespace brolk
