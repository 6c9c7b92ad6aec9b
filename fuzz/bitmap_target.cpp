// SPDX-License-Identifier: MIT
// The bitmap: what is imported goes out again byte for byte behind the header, whatever the bytes are.
#include <algorithm>
#include <string>

#include "exchange/bitmap_file.h"
#include "fuzz_input.h"

using namespace brolk;
using fuzz::Require;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  InitBmpHeader();
  return 0;
}

// The first byte decides whether the input is laid behind a right header in a file of the right size.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const bool dressed = (input.Byte() & 1U) != 0;
  std::vector<std::uint8_t> bytes = input.Rest();
  if (dressed) {
    const std::string head = BmpHeadBytes + BmpTailBytes;
    bytes.insert(bytes.begin(), head.begin(), head.end());
    bytes.resize(kBmpFileBytes);
  }
  std::string expected(bytes.begin(), bytes.end());
  if (ImportBmpFile(FileSource::InMemory(bytes)) != BmpImport::Done) {
    Require(!dressed, "a dressed input is a picture");
    return 0;
  }
  // The fixed part of the header and the unused byte of each colour are written anew.
  expected.replace(0, kBmpHeadBytes, BmpHeadBytes + BmpTailBytes);
  for (std::size_t color = 0; color < 256; ++color) expected[kBmpHeadBytes + color * 4 + 3] = '\0';
  Require(EncodeBmp(Palette, EditSlots) == expected, "the picture comes back");
  return 0;
}
