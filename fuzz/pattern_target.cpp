// SPDX-License-Identifier: MIT
// Address patterns: the whole records of a file and no more, and what is saved reads back the same.
#include <algorithm>
#include <string>

#include "exchange/address_patterns.h"
#include "fuzz_input.h"

using namespace brolk;
using fuzz::Require;

namespace {

// The number of whole records behind the magic, counted on the bytes alone.
int WholeRecords(const std::string& bytes) {
  int count = 0;
  for (std::size_t at = 3; count < 64; ++count) {
    const std::size_t zero = bytes.find('\0', at);
    if (zero == std::string::npos || bytes.size() - zero - 1 < 1024) break;
    at = zero + 1 + 1024;
  }
  return count;
}

}  // namespace

// The first byte decides whether the input gets its magic.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const bool dressed = (input.Byte() & 1U) != 0;
  std::vector<std::uint8_t> bytes = input.Rest();
  if (dressed) bytes.insert(bytes.begin(), {'B', 'X', 'A'});
  const std::string text(bytes.begin(), bytes.end());
  const bool valid = text.starts_with("BXA");
  const PatternLoad result = LoadPatterns(FileSource::InMemory(bytes));
  Require((result == PatternLoad::Done) == valid, "the magic decides");
  Require(PatternCount == (valid ? WholeRecords(text) : 0), "whole records count");
  for (std::int16_t p = 0; p < PatternCount; ++p) {
    Require(Patterns[p].Description.find('\0') == std::string::npos, "no zero byte in a description");
    for (const std::int32_t address : Patterns[p].Addresses) {
      Require(address >= -2 && address != -1, "an address or -2");
      Require(PatternAddress(PatternAddressBytes(address)) == address, "an address comes back");
    }
  }
  return 0;
}
