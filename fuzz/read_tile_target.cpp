// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "fuzz_input.h"
#include "runtime/fault.h"
#include "runtime/files.h"
#include "tile/modes.h"
#include "tile/naive_tile.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk::fuzz {
namespace {

using test::Bytes;

constexpr std::uint8_t kUntouched = 0xEE;

// One call of ReadTile.
struct Call {
  std::uint8_t mode = 0;
  test::BitmapShape shape;
  std::int32_t start = 0;  // where the file stands before
  std::int32_t address = 0;
  std::int16_t count = 0;
  Bytes content;
};

Call CallFrom(Input input) {
  Call call;
  call.mode = input.Byte() % kModeCount;
  call.shape = {input.Byte() % 4, 1 + input.Byte() % 255, 1 + input.Byte() % 255};
  call.start = input.Byte();
  call.address = input.Word() - 100;
  call.count = static_cast<std::int16_t>(input.Word() % 1100);
  call.content = input.Rest();
  return call;
}

// One file for all calls: handle numbers are never given out twice, so opening it anew each time would use
// them up.
class RomFile final {
 public:
  RomFile() : path_((std::filesystem::temp_directory_path() / "brolk-fuzz-read-tile.bin").string()) {
    handle_ = OpenFile(path_, kOpenCreate);
  }
  std::int16_t With(const Bytes& content) const {
    std::filesystem::resize_file(path_, 0);
    _llseek(handle_, 0, kFromStart);
    _hwrite(handle_, content);
    return handle_;
  }

 private:
  std::string path_;
  std::int16_t handle_ = -1;
};

bool HasEndlessTile(const Call& call) {
  return call.count > 0 && call.mode == kBitmapMode && test::BitmapReads(call.shape) == 0;
}

void SetShared(const Call& call) {
  GfxMode = call.mode;
  BitmapModePosition = static_cast<std::int16_t>(call.shape.depth);
  TileWidth = static_cast<std::int16_t>(call.shape.width);
  TileHeight = static_cast<std::int16_t>(call.shape.height);
  PageBuffer.fill(kUntouched);
}

bool ReadFaults(std::int16_t handle, const Call& call) {
  try {
    ReadTile(handle, call.address, call.count);
    return false;
  } catch (const Fault& fault) {
    Require(fault.Kind() == FaultKind::SubscriptOutOfRange, "the fault is the one of subscripts");
    return true;
  }
}

void Check(const Call& call) {
  static const RomFile file;
  const std::int16_t handle = file.With(call.content);
  _llseek(handle, call.start, kFromStart);
  SetShared(call);
  const bool faults = ReadFaults(handle, call);
  if (HasEndlessTile(call)) return Require(faults, "an endless tile ends in a fault");
  test::NaiveFile twin{call.content, call.start};
  Bytes expected(kPageBufferLast + 1, kUntouched);
  bool twinFaults = false;
  try {
    test::NaiveRead(call.mode, twin, call.address, call.count, call.shape, expected);
  } catch (const std::out_of_range&) {
    twinFaults = true;
  }
  Require(faults == twinFaults, "program and twin run out of entries together");
  if (faults) return;
  Require(std::ranges::equal(PageBuffer.All(), expected), "the entries are equal");
  Require(OpenFilePosition(handle) == twin.position, "the file stands at the same place");
}

}  // namespace
}  // namespace brolk::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brolk::fuzz::Check(brolk::fuzz::CallFrom(brolk::fuzz::Input(data, size)));
  return 0;
}
