// SPDX-License-Identifier: MIT
#include "filetools/favorites.h"

#include <utility>

#include "runtime/numbers.h"

namespace brolk {
namespace {

template <typename Before>
void ExchangeSort(Before before) {
  for (std::int16_t i = 0; i <= FavoriteCount - 1; ++i) {
    for (std::int16_t j = i; j <= FavoriteCount - 1; ++j) {
      if (before(Favorites[j], Favorites[i])) std::swap(Favorites[i], Favorites[j]);
    }
  }
}

}  // namespace

void SortFavoritesByAddress() {
  ExchangeSort(
      [](const FavoriteRecord& one, const FavoriteRecord& other) { return one.Address < other.Address; });
}

void SortFavoritesByName() {
  ExchangeSort([](const FavoriteRecord& one, const FavoriteRecord& other) { return one.Name < other.Name; });
}

void SortFavorites() {
  if (SortByAddress) {
    SortFavoritesByAddress();
  } else {
    SortFavoritesByName();
  }
}

std::string FavoriteLine(const FavoriteRecord& favorite) {
  const std::string address = NumberText(favorite.Address);
  return SortByAddress ? address + " (" + favorite.Name + ")" : favorite.Name + " (" + address + ")";
}

void AddFavorite(std::string_view addressText, std::string_view name) {
  if (FavoriteCount >= kFavoriteLimit) return;
  FavoriteRecord& favorite = Favorites[FavoriteCount];
  favorite.Address = RoundToLong(Val(addressText));
  favorite.Name = name.empty() ? "No description" : name;
  ++FavoriteCount;
  SelectedFavorite = 0;
}

void DeleteFavorite() {
  std::swap(Favorites[SelectedFavorite], Favorites[FavoriteCount - 1]);
  --FavoriteCount;
}

}  // namespace brolk
