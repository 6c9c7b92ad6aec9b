// SPDX-License-Identifier: MIT
#include <algorithm>

#include "fuzz_input.h"
#include "tile/decode.h"
#include "tile/encode.h"
#include "tile/naive_tile.h"

namespace brolk::fuzz {
namespace {

using test::Bytes;

Bytes Encoded(std::uint8_t mode, const Bytes& pixels) {
  const EncodedTile tile = EncodeTile(mode, std::span<const std::uint8_t, 64>(pixels.data(), 64));
  return {tile.Bytes().begin(), tile.Bytes().end()};
}

void Check(Input input) {
  const auto mode = static_cast<std::uint8_t>(test::kRegularModes[input.Byte() % test::kRegularModes.size()]);
  Bytes pixels = input.Rest();
  pixels.resize(64);
  const Bytes tile = Encoded(mode, pixels);
  Require(tile.size() == RegularTileBytes(mode), "a tile has its size");
  const Bytes decoded = test::NaiveDecode(mode, tile);
  const auto highest = static_cast<std::uint8_t>((1 << test::NaiveBitsPerPixel(mode)) - 1);
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    Require(decoded[i] <= highest, "a pixel fits the mode");
    Require(pixels[i] > highest || decoded[i] == pixels[i], "a pixel that fits comes back");
  }
  Require(Encoded(mode, decoded) == tile, "a tile comes back byte for byte");
  Require(!std::ranges::all_of(pixels, [&](std::uint8_t pixel) { return pixel <= highest; }) ||
              tile == test::NaiveEncode(mode, pixels),
          "the twin writes the same bytes");
}

}  // namespace
}  // namespace brolk::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brolk::fuzz::Check(brolk::fuzz::Input(data, size));
  return 0;
}
