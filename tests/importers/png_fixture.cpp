// SPDX-License-Identifier: MIT
#include "importers/png_fixture.h"

namespace brolk::test {

PngBuilder& PngBuilder::Raw(std::int64_t length, std::string_view type, const Bytes& data) {
  bytes_.BigLong(length).Text(type).Add(data).Text("crc!");
  return *this;
}

PngBuilder& PngBuilder::Header(int colorType, int bitDepth, std::int64_t width, std::int64_t height,
                               int compression, int filter, int interlace) {
  return Chunk("IHDR", Bytes()
                           .BigLong(width)
                           .BigLong(height)
                           .Byte(bitDepth)
                           .Byte(colorType)
                           .Byte(compression)
                           .Byte(filter)
                           .Byte(interlace));
}

PngBuilder& PngBuilder::Palette(int count) {
  Bytes entries;
  for (int entry = 0; entry < count; ++entry) entries.List({entry & 0xFF, 255 - (entry & 0xFF), 7});
  return Chunk("PLTE", entries);
}

PngBuilder& PngBuilder::Image(int method) {
  return Chunk("IDAT", Bytes().List({method, 1, 99, 0, 0, 0, 0}));
}

PngBuilder PngSample() {
  return PngBuilder()
      .Header(3, 8)
      .Chunk("gAMA", Bytes().BigLong(45455))
      .Chunk("sBIT", Bytes().List({8, 8, 8}))
      .Chunk("tEXt", Bytes().Text("Title").Byte(0).Text("made by hand"))
      .Palette(4)
      .Chunk("bKGD", Bytes().Byte(2))
      .Image()
      .End();
}

}  // namespace brolk::test
