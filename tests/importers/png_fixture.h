// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "palette/palette_files_support.h"

// PNG files chunk by chunk.
namespace brolk::test {

class PngBuilder {
 public:
  // Begins with the signature.
  PngBuilder() { bytes_.List({137, 80, 78, 71, 13, 10, 26, 10}); }

  // A chunk with any length field, type and data; the check sum is of no matter and says "crc!".
  PngBuilder& Raw(std::int64_t length, std::string_view type, const Bytes& data = {});
  PngBuilder& Chunk(std::string_view type, const Bytes& data = {}) {
    return Raw(static_cast<std::int64_t>(data.Size()), type, data);
  }
  PngBuilder& Header(int colorType, int bitDepth, std::int64_t width = 16, std::int64_t height = 8,
                     int compression = 0, int filter = 0, int interlace = 0);
  // PLTE with `count` entries: red = entry, green = 255 - entry, blue = 7.
  PngBuilder& Palette(int count);
  // IDAT with a method byte and the smallest possible rest.
  PngBuilder& Image(int method = 0x78);
  PngBuilder& End() { return Chunk("IEND"); }
  PngBuilder& Add(const Bytes& bytes) {
    bytes_.Add(bytes);
    return *this;
  }

  [[nodiscard]] const std::string& Str() const { return bytes_.Str(); }

 private:
  Bytes bytes_;
};

// The colour that Palette() gives an entry.
[[nodiscard]] constexpr ColorValue PngEntryColor(int entry) {
  return (entry & 0xFF) + (255 - (entry & 0xFF)) * 256 + 7 * 65536;
}

// A palette picture of four colours with every chunk that the reader knows.
[[nodiscard]] PngBuilder PngSample();

}  // namespace brolk::test
