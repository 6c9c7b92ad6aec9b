// SPDX-License-Identifier: MIT
// Favorites, both formats: the count stays in its range, the sort sorts, and a fault is one of the stated.
#include <algorithm>

#include "filetools/favorite_files.h"
#include "filetools/favorites.h"
#include "fuzz_input.h"
#include "runtime/fault.h"

using namespace brolk;
using fuzz::Require;

namespace {

bool IsStated(FaultKind kind) {
  return kind == FaultKind::InputPastEnd || kind == FaultKind::InvalidProcedureCall ||
         kind == FaultKind::Overflow;
}

void CheckOrder() {
  SortFavoritesByAddress();
  for (std::int16_t i = 1; i < FavoriteCount; ++i)
    Require(Favorites[i - 1].Address <= Favorites[i].Address, "sorted by address");
  SortFavoritesByName();
  for (std::int16_t i = 1; i < FavoriteCount; ++i)
    Require(Favorites[i - 1].Name <= Favorites[i].Name, "sorted by name");
}

}  // namespace

// The first byte chooses the format and whether the input gets its head.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const unsigned choice = input.Byte();
  const bool asText = (choice & 1U) != 0;
  std::vector<std::uint8_t> bytes = input.Rest();
  const std::string head = asText ? "Brolk Plus favorites file\r\n\r\n" : "BXB";
  if ((choice & 2U) != 0) bytes.insert(bytes.begin(), head.begin(), head.end());
  try {
    if (asText) {
      TextReader reader{std::span<const std::uint8_t>(bytes)};
      static_cast<void>(LoadTextFavorites(reader));
    } else {
      static_cast<void>(LoadBinaryFavorites(FileSource::InMemory(bytes)));
    }
  } catch (const Fault& fault) {
    Require(asText && IsStated(fault.Kind()), "a stated fault of the text format");
  }
  Require(FavoriteCount >= 0 && FavoriteCount <= kFavoriteLimit, "the count stays in its range");
  CheckOrder();
  return 0;
}
