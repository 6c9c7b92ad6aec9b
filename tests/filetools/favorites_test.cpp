// SPDX-License-Identifier: MIT
#include "filetools/favorites.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "support/rule_files.h"

namespace brolk {
namespace {

using testing::ElementsAre;

class FavoritesList : public testing::Test {
 protected:
  FavoritesList() {
    FavoriteCount = 0;
    SelectedFavorite = 0;
    SortByAddress = true;
  }

  static void Put(std::vector<FavoriteRecord> records) {
    FavoriteCount = 0;
    for (const FavoriteRecord& record : records) Favorites[FavoriteCount++] = record;
  }

  static std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (int i = 0; i < FavoriteCount; ++i) names.push_back(Favorites[i].Name);
    return names;
  }
};

TEST_F(FavoritesList, SortsByAddressAsSignedNumbers) {
  Put({{5, "five"}, {-1, "minus"}, {0x7FFFFFFF, "high"}, {0, "zero"}});
  SortFavoritesByAddress();
  EXPECT_THAT(Names(), ElementsAre("minus", "zero", "five", "high"));
}

TEST_F(FavoritesList, SortsNamesByCharacterCode) {
  Put({{0, "b"}, {1, "\xE9t\xE9"}, {2, "B"}, {3, "ba"}, {4, ""}, {5, "a"}, {6, "Z"}});
  SortFavoritesByName();
  EXPECT_THAT(Names(), ElementsAre("", "B", "Z", "a", "b", "ba", "\xE9t\xE9"));
}

TEST_F(FavoritesList, EqualKeysEndWhereTheExchangesPutThem) {
  // 2a 2b 1: the 1 changes places with 2a, then nothing moves 2b before 2a.
  Put({{2, "2a"}, {2, "2b"}, {1, "1"}});
  SortFavoritesByAddress();
  EXPECT_THAT(Names(), ElementsAre("1", "2b", "2a"));
}

// The same exchanges, written on a plain vector.
TEST_F(FavoritesList, SortFollowsItsTwinOnRandomLists) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  for (const std::size_t count : {0U, 1U, 2U, 7U, 33U, 256U}) {
    std::vector<FavoriteRecord> twin;
    for (std::size_t i = 0; i < count; ++i)
      twin.push_back({static_cast<std::int32_t>(random() % 10), std::to_string(i)});
    Put(twin);
    SortFavoritesByAddress();
    for (std::size_t i = 0; i < count; ++i) {
      for (std::size_t j = i; j < count; ++j) {
        if (twin[j].Address < twin[i].Address) std::swap(twin[i], twin[j]);
      }
    }
    for (std::size_t i = 0; i < count; ++i) {
      EXPECT_EQ(Favorites[static_cast<int>(i)].Name, twin[i].Name);
      EXPECT_EQ(Favorites[static_cast<int>(i)].Address, twin[i].Address);
    }
  }
}

TEST_F(FavoritesList, SortLeavesRecordsBehindTheList) {
  Put({{5, "five"}, {4, "four"}, {1, "stale"}});
  FavoriteCount = 2;
  SortFavoritesByAddress();
  EXPECT_EQ(Favorites[0].Name, "four");
  EXPECT_EQ(Favorites[2].Name, "stale");
}

TEST_F(FavoritesList, TheOrderChoosesTheSort) {
  Put({{2, "a"}, {1, "b"}});
  SortFavorites();
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
  SortByAddress = false;
  SortFavorites();
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
}

TEST_F(FavoritesList, TheOrderChangesTheLines) {
  EXPECT_EQ(FavoriteLine({4096, "Font"}), "4096 (Font)");
  EXPECT_EQ(FavoriteLine({-5, ""}), "-5 ()");
  SortByAddress = false;
  EXPECT_EQ(FavoriteLine({4096, "Font"}), "Font (4096)");
  EXPECT_EQ(FavoriteLine({-5, ""}), " (-5)");
}

TEST_F(FavoritesList, AddTakesTheNumberAtTheHead) {
  SelectedFavorite = 3;
  AddFavorite("4096", "Font");
  AddFavorite("  &H100 and more", "Hex");
  AddFavorite("2.5", "Half");
  AddFavorite("3.5", "Other half");
  AddFavorite("nothing", "Zero");
  ASSERT_EQ(FavoriteCount, 5);
  EXPECT_EQ(Favorites[0].Address, 4096);
  EXPECT_EQ(Favorites[0].Name, "Font");
  EXPECT_EQ(Favorites[1].Address, 256);
  EXPECT_EQ(Favorites[2].Address, 2);
  EXPECT_EQ(Favorites[3].Address, 4);
  EXPECT_EQ(Favorites[4].Address, 0);
  EXPECT_EQ(SelectedFavorite, 0);
}

TEST_F(FavoritesList, AddOfAnEmptyNameGetsNoDescription) {
  AddFavorite("1", "");
  EXPECT_EQ(Favorites[0].Name, "No description");
}

TEST_F(FavoritesList, AddBeyond32BitsIsTheOverflowFault) {
  AddFavorite("2147483647", "last");
  EXPECT_EQ(Favorites[0].Address, 2147483647);
  EXPECT_EQ(test::RuleFaultOf([] { AddFavorite("2147483648", "beyond"); }), FaultKind::Overflow);
  EXPECT_EQ(FavoriteCount, 1);
}

TEST_F(FavoritesList, AddStopsAt256) {
  for (int i = 0; i < 255; ++i) AddFavorite("1", "x");
  AddFavorite("2", "the 256th");
  EXPECT_EQ(FavoriteCount, 256);
  EXPECT_EQ(Favorites[255].Name, "the 256th");
  SelectedFavorite = 7;
  AddFavorite("3", "one too many");
  EXPECT_EQ(FavoriteCount, 256);
  EXPECT_EQ(Favorites[255].Name, "the 256th");
  EXPECT_EQ(SelectedFavorite, 7);
}

TEST_F(FavoritesList, DeleteExchangesWithTheLast) {
  Put({{1, "a"}, {2, "b"}, {3, "c"}});
  SelectedFavorite = 0;
  DeleteFavorite();
  EXPECT_THAT(Names(), ElementsAre("c", "b"));
  EXPECT_EQ(Favorites[2].Name, "a") << "it stays in the table behind the list";
  EXPECT_EQ(SelectedFavorite, 0);
}

TEST_F(FavoritesList, DeleteOfTheLastLeavesTheSelectionBehindTheList) {
  Put({{1, "a"}, {2, "b"}});
  SelectedFavorite = 1;
  DeleteFavorite();
  EXPECT_THAT(Names(), ElementsAre("a"));
  EXPECT_EQ(SelectedFavorite, 1);
  EXPECT_EQ(Favorites[1].Name, "b");
}

}  // namespace
}  // namespace brolk
