// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/bounded.h"

// Named file addresses, and their two file formats. All texts are Windows-1252 bytes.
namespace brolk {

inline constexpr std::int16_t kFavoriteLimit = 256;

struct FavoriteRecord {
  std::int32_t Address = 0;  // file offset
  std::string Name;
};

// The list, in the order in which it is shown. It lives as long as the process and is kept nowhere.
// SelectedFavorite can point behind the list; Go and Rename then use the stale record there.
inline Bounded<FavoriteRecord, kFavoriteLimit - 1> Favorites;
inline std::int16_t FavoriteCount = 0;
inline std::int16_t SelectedFavorite = 0;
inline bool SortByAddress = true;

// An exchange sort of the records themselves, ascending. Addresses compare as signed numbers, names by
// character code. Equal records keep no fixed order beyond what the exchanges give.
void SortFavoritesByAddress();
void SortFavoritesByName();

// Sorts by the present order.
void SortFavorites();

// The line of a record in the list: "16 (Name)" in address order, "Name (16)" in name order.
[[nodiscard]] std::string FavoriteLine(const FavoriteRecord& favorite);

// Appends a record; with 256 nothing happens. The address is the number at the head of a text, rounded; one
// beyond 32 bits is the overflow fault. An empty name becomes "No description". SelectedFavorite becomes 0.
void AddFavorite(std::string_view addressText, std::string_view name);

// The selected record and the last change places and the count falls by one. The count must be above 0.
// SelectedFavorite stays.
void DeleteFavorite();

}  // namespace brolk
