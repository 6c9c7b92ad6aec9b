// SPDX-License-Identifier: MIT
// Decoding a page in memory, against a copy of as many bytes as it puts out.
#include <benchmark/benchmark.h>

#include <cstring>
#include <string>

#include "page_bytes.h"
#include "tile/decode.h"
#include "tile/modes.h"

namespace brolk::bench {
namespace {

void CopyOfTheOutput(benchmark::State& state) {
  const std::size_t size = static_cast<std::size_t>(state.range(0)) * kTilePixelCount;
  const std::vector<std::uint8_t> source = PageBytes(size);
  std::vector<std::uint8_t> target(size);
  for (auto _ : state) {
    std::memcpy(target.data(), source.data(), size);
    benchmark::DoNotOptimize(target.data());
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}
BENCHMARK(CopyOfTheOutput)->Arg(kDefaultTiles)->Arg(kLargestTiles)->ArgName("tiles");

void DecodePage(benchmark::State& state, TileDecoder decode, std::size_t tileBytes) {
  const auto tiles = static_cast<std::size_t>(state.range(0));
  const std::vector<std::uint8_t> bytes = PageBytes(tiles * tileBytes);
  std::vector<std::uint8_t> pixels(tiles * kTilePixelCount);
  for (auto _ : state) {
    decode(bytes, pixels);
    benchmark::DoNotOptimize(pixels.data());
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(pixels.size()));
}

void Register(const std::string& name, std::uint8_t mode, TileDecoder decode) {
  if (decode == nullptr) return;
  benchmark::RegisterBenchmark((name + "/" + Modes[mode].Name).c_str(), DecodePage, decode,
                               RegularTileBytes(mode))
      ->Arg(kDefaultTiles)
      ->Arg(kLargestTiles)
      ->ArgName("tiles");
}

// One benchmark for each mode, with the decoder that the program takes on this machine and with the one for
// all.
const bool registered = [] {
  FillModes();
  for (std::uint8_t mode = 0; mode < kModeCount; ++mode) {
    Register("Decode", mode, DecoderOf(mode));
    Register("DecodePortably", mode, PortableDecoderOf(mode));
  }
  return true;
}();

}  // namespace
}  // namespace brolk::bench
