// SPDX-License-Identifier: MIT
#include "filetools/favorite_files.h"

#include <gtest/gtest.h>

#include "filetools/favorites.h"
#include "support/rule_files.h"

namespace brolk {
namespace {

using test::Bytes;

// A text file with this count line and these records.
std::string TextFile(const std::string& count, const std::string& records) {
  return "Brolk Plus favorites file\r\n\r\n" + count + "\r\n\r\n" + records;
}

class FavoriteFiles : public testing::Test {
 protected:
  FavoriteFiles() {
    for (FavoriteRecord& favorite : Favorites) favorite = {};
    FavoriteCount = 0;
  }

  // A list of two, so that "unchanged" and "emptied" differ.
  static void PutTwo() {
    Favorites[0] = {10, "ten"};
    Favorites[1] = {20, "twenty"};
    FavoriteCount = 2;
  }

  static FavoritesLoad LoadText(const std::string& bytes) {
    return LoadFavoritesFile(test::WriteRuleFile("list.favorites", bytes));
  }
  static FavoritesLoad LoadBinary(const std::string& bytes) {
    return LoadFavoritesFile(test::WriteRuleFile("list.bmk", bytes));
  }
};

TEST_F(FavoriteFiles, ExtensionIsWhatFollowsTheLastPoint) {
  const std::string text = TextFile("1", "5; x\r\n");
  for (const char* name : {"a.favorites", "a.bmk.favorites", ".favorites", "a..favorites"})
    EXPECT_EQ(LoadFavoritesFile(test::WriteRuleFile(name, text)), FavoritesLoad::Done) << name;
  for (const char* name : {"favorites", "a.favorites.txt", "a.favorites.", "a.Favorites", "xfavorites"})
    EXPECT_EQ(LoadFavoritesFile(test::WriteRuleFile(name, text)), FavoritesLoad::WrongBinaryHeader) << name;
}

TEST_F(FavoriteFiles, SaveWritesTheStatedLines) {
  Favorites[0] = {-3, "below"};
  Favorites[1] = {4096, "Font; with \x80"};
  FavoriteCount = 2;
  const std::string path = test::RulePath("out.favorites");
  SaveFavoritesFile(path);
  EXPECT_EQ(test::ReadRuleFile(path),
            "Brolk Plus favorites file\r\n"
            "\r\n"
            "2 favorites   <- update this number if you change the file manually!\r\n"
            "\r\n"
            "-3; below\r\n"
            "4096; Font; with \x80\r\n");
}

TEST_F(FavoriteFiles, SaveOfAnEmptyListHasTheCountZero) {
  const std::string path = test::WriteRuleFile("empty.favorites", std::string(500, 'x'));
  SaveFavoritesFile(path);
  EXPECT_EQ(test::ReadRuleFile(path),
            "Brolk Plus favorites file\r\n\r\n"
            "0 favorites   <- update this number if you change the file manually!\r\n\r\n");
}

TEST_F(FavoriteFiles, AnEmptyListCannotBeReadBack) {
  const std::string path = test::RulePath("empty.favorites");
  SaveFavoritesFile(path);
  EXPECT_EQ(test::RuleFaultOf([&] { static_cast<void>(LoadFavoritesFile(path)); }), FaultKind::InputPastEnd);
}

TEST_F(FavoriteFiles, SaveThatCannotBeCreatedIsTheFileFault) {
  EXPECT_EQ(test::RuleFaultOf([] { SaveFavoritesFile(test::RulePath("no-such-folder/x.favorites")); }),
            FaultKind::FileNotFound);
}

TEST_F(FavoriteFiles, TextComesBackAsItWasSaved) {
  PutTwo();
  Favorites[1].Name = "a; b \x80";
  const std::string path = test::RulePath("trip.favorites");
  SaveFavoritesFile(path);
  FavoriteCount = 0;
  ASSERT_EQ(LoadFavoritesFile(path), FavoritesLoad::Done);
  ASSERT_EQ(FavoriteCount, 2);
  EXPECT_EQ(Favorites[0].Address, 10);
  EXPECT_EQ(Favorites[0].Name, "ten");
  EXPECT_EQ(Favorites[1].Name, "a; b \x80") << "only the first semicolon counts";
}

TEST_F(FavoriteFiles, MissingFileChangesNothing) {
  PutTwo();
  EXPECT_EQ(LoadFavoritesFile(test::RulePath("not-there.favorites")), FavoritesLoad::NotFound);
  EXPECT_EQ(LoadFavoritesFile(test::RulePath("not-there.bmk")), FavoritesLoad::NotFound);
  EXPECT_EQ(FavoriteCount, 2);
}

TEST_F(FavoriteFiles, WrongFirstLineLeavesTheList) {
  for (const char* line : {"Brolk Plus favorites files", "brolk Plus favorites file", " ", "BXB"}) {
    PutTwo();
    EXPECT_EQ(LoadText(line), FavoritesLoad::WrongTextHeader) << line;
    EXPECT_EQ(FavoriteCount, 2);
  }
}

TEST_F(FavoriteFiles, ExtensionInCapitalsIsReadAsBinary) {
  PutTwo();
  const std::string path = test::WriteRuleFile("list.FAVORITES", TextFile("1", "5; x\r\n"));
  EXPECT_EQ(LoadFavoritesFile(path), FavoritesLoad::WrongBinaryHeader);
  EXPECT_EQ(FavoriteCount, 0);
}

TEST_F(FavoriteFiles, CountIsTheNumberAtTheHeadHeldTo1And256) {
  const struct {
    const char* line;
    int count;
  } cases[] = {{"3 favorites", 3}, {"0", 1},       {"-5", 1},    {"", 1},    {"none", 1},
               {"0.4", 1},         {"2.5", 2},     {"3.5", 4},   {"1.6", 2}, {"256", 256},
               {"257", 256},       {"256.4", 256}, {"&H10", 16}, {" 7 ", 7}, {"99999999999999999999", 256}};
  std::string records;
  for (int i = 0; i < 300; ++i) records += "1; x\r\n";
  for (const auto& one : cases) {
    ASSERT_EQ(LoadText(TextFile(one.line, records)), FavoritesLoad::Done) << one.line;
    EXPECT_EQ(FavoriteCount, one.count) << one.line;
  }
}

TEST_F(FavoriteFiles, LinesBehindTheCountAreNotRead) {
  ASSERT_EQ(LoadText(TextFile("1", "5; x\r\nno semicolon\r\n")), FavoritesLoad::Done);
  EXPECT_EQ(FavoriteCount, 1);
}

TEST_F(FavoriteFiles, NameStartsTwoPlacesBehindTheSemicolon) {
  ASSERT_EQ(LoadText(TextFile("6", "5; five\r\n5;x\r\n5;xy\r\n5;\r\n;nothing\r\n7 or so; seven\r\n")),
            FavoritesLoad::Done);
  EXPECT_EQ(Favorites[0].Name, "five");
  EXPECT_EQ(Favorites[1].Name, "");
  EXPECT_EQ(Favorites[2].Name, "y");
  EXPECT_EQ(Favorites[3].Name, "");
  EXPECT_EQ(Favorites[4].Address, 0);
  EXPECT_EQ(Favorites[4].Name, "othing");
  EXPECT_EQ(Favorites[5].Address, 7);
}

TEST_F(FavoriteFiles, BareLineFeedsAndAnOpenLastLineReadNormally) {
  ASSERT_EQ(LoadText("Brolk Plus favorites file\n\n2\n\n5; a\r\n6; b"), FavoritesLoad::Done);
  EXPECT_EQ(Favorites[0].Name, "a");
  EXPECT_EQ(Favorites[1].Name, "b");
}

TEST_F(FavoriteFiles, LineWithoutSemicolonIsAFault) {
  EXPECT_EQ(test::RuleFaultOf([] { static_cast<void>(LoadText(TextFile("1", "5 x\r\n"))); }),
            FaultKind::InvalidProcedureCall);
}

TEST_F(FavoriteFiles, AddressBeyond32BitsIsTheOverflowFault) {
  EXPECT_EQ(test::RuleFaultOf([] { static_cast<void>(LoadText(TextFile("1", "2147483648; x\r\n"))); }),
            FaultKind::Overflow);
}

TEST_F(FavoriteFiles, EveryCutOfATextEndsAsItsRuleSays) {
  const std::string whole = TextFile("2", "5; abc\r\n6; d");
  // Where each of the six lines begins; the file must reach into the last one, and past its semicolon.
  const std::size_t firstLine = std::string("Brolk Plus favorites file").size();
  const std::size_t lastLine = whole.rfind("6; d");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const std::string cut = whole.substr(0, length);
    if (length == 0) {
      EXPECT_EQ(test::RuleFaultOf([&] { static_cast<void>(LoadText(cut)); }), FaultKind::InputPastEnd);
    } else if (length < firstLine) {
      EXPECT_EQ(LoadText(cut), FavoritesLoad::WrongTextHeader) << length;
    } else if (length == firstLine + 1) {
      EXPECT_EQ(LoadText(cut), FavoritesLoad::WrongTextHeader) << "the return alone ends no line";
    } else if (length > lastLine + 1) {
      EXPECT_EQ(LoadText(cut), FavoritesLoad::Done) << length;
    } else {
      const bool inFirstRecord = length > whole.find("5;") && length < whole.find("5;") + 2;
      const bool inLastRecord = length > lastLine;
      EXPECT_EQ(test::RuleFaultOf([&] { static_cast<void>(LoadText(cut)); }),
                inFirstRecord || inLastRecord ? FaultKind::InvalidProcedureCall : FaultKind::InputPastEnd)
          << length;
    }
  }
}

TEST_F(FavoriteFiles, BinaryRecordsAreNameZeroAddress) {
  ASSERT_EQ(LoadBinary("BXB" + Bytes("Font\0\x00\x10\x00\x00") + Bytes("\0\xFF\xFF\xFF\x7F")),
            FavoritesLoad::Done);
  ASSERT_EQ(FavoriteCount, 2);
  EXPECT_EQ(Favorites[0].Name, "Font");
  EXPECT_EQ(Favorites[0].Address, 4096);
  EXPECT_EQ(Favorites[1].Name, "");
  EXPECT_EQ(Favorites[1].Address, 0x7FFFFFFF);
}

TEST_F(FavoriteFiles, BinaryAddressWithTheTopBitIsNegative) {
  ASSERT_EQ(LoadBinary("BXB" + Bytes("a\0\xFE\xFF\xFF\xFF") + Bytes("b\0\x00\x00\x00\x80")),
            FavoritesLoad::Done);
  EXPECT_EQ(Favorites[0].Address, -2);
  EXPECT_EQ(Favorites[1].Address, INT32_MIN);
}

TEST_F(FavoriteFiles, WrongBinaryHeaderEmptiesTheList) {
  for (const char* start : {"", "B", "BX", "BXA", "bxb"}) {
    PutTwo();
    EXPECT_EQ(LoadBinary(start), FavoritesLoad::WrongBinaryHeader) << start;
    EXPECT_EQ(FavoriteCount, 0);
  }
}

TEST_F(FavoriteFiles, EveryCutOfABinaryKeepsTheWholeRecords) {
  const std::string record = Bytes("abc\0\x01\x02\x03\x04");
  const std::string whole = "BXB" + record + record;
  for (std::size_t length = 3; length <= whole.size(); ++length) {
    ASSERT_EQ(LoadBinary(whole.substr(0, length)), FavoritesLoad::Done);
    EXPECT_EQ(FavoriteCount, static_cast<int>((length - 3) / record.size())) << length;
  }
}

TEST_F(FavoriteFiles, UnfinishedBinaryRecordKeepsItsOldAddress) {
  PutTwo();
  ASSERT_EQ(LoadBinary("BXB" + Bytes("new\0\x01\x02\x03")), FavoritesLoad::Done);
  EXPECT_EQ(FavoriteCount, 0);
  EXPECT_EQ(Favorites[0].Name, "new");
  EXPECT_EQ(Favorites[0].Address, 10);
}

TEST_F(FavoriteFiles, BinaryStopsAt256) {
  std::string bytes = "BXB";
  for (int i = 0; i < 257; ++i) bytes += std::to_string(i) + Bytes("\0\x05\0\0\0");
  ASSERT_EQ(LoadBinary(bytes), FavoritesLoad::Done);
  EXPECT_EQ(FavoriteCount, 256);
  EXPECT_EQ(Favorites[255].Name, "255");
}

TEST_F(FavoriteFiles, LoadLeavesTheSelection) {
  SelectedFavorite = 9;
  ASSERT_EQ(LoadBinary("BXB"), FavoritesLoad::Done);
  ASSERT_EQ(LoadText(TextFile("1", "5; x")), FavoritesLoad::Done);
  EXPECT_EQ(SelectedFavorite, 9);
}

}  // namespace
}  // namespace brolk
