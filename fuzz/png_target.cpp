// SPDX-License-Identifier: MIT
// The PNG reader against its naive twin: every input must end the same way in both.
#include <cstdlib>
#include <string>

#include "importers/png.h"
#include "importers/png_twin.h"
#include "runtime/fault.h"

using namespace brolk;

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string signature = "\x89PNG\r\n\x1A\n";
  std::string file(data, data + size);
  if (!file.starts_with(signature)) file = signature + file;
  const test::PngTwin twin = test::ReadPngNaively(file);
  const std::vector<std::uint8_t> bytes(file.begin(), file.end());
  cPng png;
  try {
    const PngResult result = png.ReadPngFile(FileSource::InMemory(bytes));
    Require(!twin.fault && static_cast<int>(result) == twin.code);
    if (result == PngResult::Read) {
      Require(png.ClrTableSize() == static_cast<std::int32_t>(twin.palette.size()));
      Require(png.pngWidth() == twin.width && png.pngHeight() == twin.height);
      Require(png.IsBackColor() == twin.background.has_value());
    }
  } catch (const Fault& fault) {
    Require(twin.fault == fault.Kind());
  }
  return 0;
}
