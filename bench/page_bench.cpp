// SPDX-License-Identifier: MIT
// ReadTile: a page from the file into PageBuffer, inside the file and at its end.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "page_bytes.h"
#include "runtime/files.h"
#include "tile/decode.h"
#include "tile/modes.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk::bench {
namespace {

// A file of 1 MiB that goes with the object.
class RomFile final {
 public:
  RomFile() : path_((std::filesystem::temp_directory_path() / "brolk-bench.bin").string()) {
    handle_ = OpenFile(path_, kOpenCreate);
    _hwrite(handle_, PageBytes(kSize));
  }
  ~RomFile() {
    _lclose(handle_);
    std::filesystem::remove(path_);
  }
  RomFile(const RomFile&) = delete;
  RomFile& operator=(const RomFile&) = delete;

  static constexpr std::int32_t kSize = 1 << 20;
  [[nodiscard]] std::int16_t Handle() const { return handle_; }

 private:
  std::string path_;
  std::int16_t handle_ = -1;
};

void ReadPage(benchmark::State& state, std::int32_t address) {
  const RomFile file;
  GfxMode = static_cast<std::uint8_t>(state.range(0));
  const std::int64_t before = FileReadCalls();
  for (auto _ : state) {
    ReadTile(file.Handle(), address, static_cast<std::int16_t>(kDefaultTiles));
    benchmark::ClobberMemory();
  }
  state.counters["reads"] =
      static_cast<double>(FileReadCalls() - before) / static_cast<double>(state.iterations());
}
BENCHMARK_CAPTURE(ReadPage, InsideTheFile, 4096)->DenseRange(0, kModeCount - 1)->ArgName("mode");
BENCHMARK_CAPTURE(ReadPage, AtTheEnd, RomFile::kSize - 100)->Arg(kGameboy)->Arg(kSnes4)->ArgName("mode");

}  // namespace
}  // namespace brolk::bench
