// SPDX-License-Identifier: MIT
#include "palette/palette_files_support.h"
#include "runtime/files.h"

namespace brolk::test {
namespace {

using OldBinaryPalette = PaletteFilesTest;

constexpr ColorValue kPlain = 10 + 200 * 256 + 5 * 65536;

std::string Sets256() {
  std::string bytes = "BXP";
  for (int place = 0; place < 256; ++place) {
    bytes += Cut(OldBinaryFile({"set " + std::to_string(place)}, place & 0xFF, 0, 0), 100000).substr(3);
  }
  return bytes;
}

TEST_F(OldBinaryPalette, LoadsNamesAndColours) {
  Bytes bytes;
  bytes.Text("BXP").Text("Alpha").Byte(0);
  for (int index = 0; index < 256; ++index) bytes.List({index, 255 - index, 128});
  ExpectDone(Load(kOldBinary, bytes.Str()));
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Name, "Alpha");
  for (int index = 0; index < 256; ++index) {
    ASSERT_EQ(Sets[0].Colors[index], index + (255 - index) * 256 + 128 * 65536);
  }
}

TEST_F(OldBinaryPalette, AlwaysReplacesFromTheFirstPlaceWithoutAQuestion) {
  FillList(5, 7);
  ExpectDone(Load(kOldBinary, OldBinaryFile({"One", "Two"})));
  EXPECT_TRUE(questions.empty());
  EXPECT_EQ(SetCount, 2);
  EXPECT_EQ(Sets[1].Name, "Two");
  EXPECT_EQ(Sets[3].Name, "3");
}

TEST_F(OldBinaryPalette, LoadsIntoAFullList) {
  FillList(255, 7);
  ExpectDone(Load(kOldBinary, OldBinaryFile({"One"})));
  EXPECT_EQ(SetCount, 1);
}

TEST_F(OldBinaryPalette, EmptiesTheNameBehindTheLastSet) {
  FillList(5, 7);
  ExpectDone(Load(kOldBinary, OldBinaryFile({"One", "Two"})));
  EXPECT_EQ(Sets[2].Name, "");
  EXPECT_EQ(Sets[2].Colors[0], 7);
}

TEST_F(OldBinaryPalette, RejectsAnotherHeaderAndRefreshes) {
  FillList(3, 7);
  const ListState before = CurrentList();
  const std::string rest = OldBinaryFile({"One"}).substr(3);
  for (const char* header : {"BXQ", "bxp", "XPB", "PXB", "BBB"}) {
    ExpectNotice(Load(kOldBinary, header + rest), "Wrong header bytes", "Not a palette file", 16, true);
    EXPECT_EQ(CurrentList(), before) << header;
  }
}

TEST_F(OldBinaryPalette, RejectsAFileShorterThanItsHeader) {
  for (const char* head : {"", "B", "BX"}) {
    ExpectNotice(Load(kOldBinary, head), "Wrong header bytes", "Not a palette file", 16, true);
  }
}

TEST_F(OldBinaryPalette, ClosesTheFileOnEveryWay) {
  const std::size_t open = CountOpenFiles();
  static_cast<void>(Load(kOldBinary, "no"));
  static_cast<void>(Load(kOldBinary, OldBinaryFile({"One"})));
  EXPECT_EQ(CountOpenFiles(), open);
}

TEST_F(OldBinaryPalette, AHeaderAloneKeepsTheCountAndEmptiesTheFirstName) {
  FillList(3, 7);
  ExpectDone(Load(kOldBinary, "BXP"));
  EXPECT_EQ(SetCount, 3);
  EXPECT_EQ(Sets[0].Name, "");
  EXPECT_EQ(Sets[0].Colors[0], 7);
  EXPECT_EQ(Sets[1].Name, "1");
}

TEST_F(OldBinaryPalette, ANameWithoutItsEndIsKeptAndNotCounted) {
  FillList(3, 7);
  ExpectDone(Load(kOldBinary, "BXPunfinished"));
  EXPECT_EQ(SetCount, 3);
  EXPECT_EQ(Sets[0].Name, "unfinished");
}

// Cut anywhere, a file keeps what came: whole colours, then the channels of the cut one.
TEST_F(OldBinaryPalette, CutAtAnyByteOfItsColoursItKeepsWhatCame) {
  const std::string whole = OldBinaryFile({"One"});
  const std::size_t head = 3 + 4;
  for (const std::size_t channels : {0U, 1U, 2U, 3U, 4U, 5U, 300U, 766U, 767U}) {
    FillList(3, 7);
    ExpectDone(Load(kOldBinary, Cut(whole, head + channels)));
    EXPECT_EQ(SetCount, 3) << channels;
    EXPECT_EQ(Sets[0].Name, "One");
    const std::size_t complete = channels / 3;
    const ColorValue cutColor[] = {0, 10, 10 + 200 * 256};
    if (complete > 0) {
      EXPECT_EQ(Sets[0].Colors[static_cast<int>(complete) - 1], kPlain);
    }
    EXPECT_EQ(Sets[0].Colors[static_cast<int>(complete)], cutColor[channels % 3]) << channels;
    if (complete < 255) {
      EXPECT_EQ(Sets[0].Colors[static_cast<int>(complete) + 1], 7) << channels;
    }
  }
}

TEST_F(OldBinaryPalette, ASecondSetCutShortIsNotCounted) {
  const std::string whole = OldBinaryFile({"One", "Two"});
  ExpectDone(Load(kOldBinary, Cut(whole, whole.size() - 1)));
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[1].Name, "Two");
  EXPECT_EQ(Sets[1].Colors[254], kPlain);
  EXPECT_EQ(Sets[1].Colors[255], 10 + 200 * 256);
}

TEST_F(OldBinaryPalette, TakesAnEmptyName) {
  ExpectDone(Load(kOldBinary, OldBinaryFile({"", "Two"})));
  EXPECT_EQ(SetCount, 2);
  EXPECT_EQ(Sets[0].Name, "");
  EXPECT_EQ(Sets[1].Name, "Two");
}

TEST_F(OldBinaryPalette, TwoHundredFiftySixSetsWrapTheCount) {
  ExpectDone(Load(kOldBinary, Sets256()));
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(Sets[255].Name, "set 255");
  EXPECT_EQ(Sets[0].Name, "");
  EXPECT_EQ(Sets[0].Colors[0], 0);
  EXPECT_EQ(Sets[1].Colors[0], 1);
}

TEST_F(OldBinaryPalette, GoesOnOverwritingFromTheFirstPlaceAfterTheWrap) {
  ExpectDone(Load(kOldBinary, Sets256() + OldBinaryFile({"again"}).substr(3)));
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Name, "again");
  EXPECT_EQ(Sets[0].Colors[0], kPlain);
  EXPECT_EQ(Sets[1].Name, "");
  EXPECT_EQ(Sets[2].Name, "set 2");
}

TEST_F(OldBinaryPalette, SavesAllSets) {
  FillList(2, kPlain);
  Sets[0].Name = "\xC4 name";
  Sets[2].Name = "not saved";
  SelectedSet = 1;
  const ListState before = CurrentList();
  SavePaletteFile(kOldBinary, PathOf("saved"));
  EXPECT_EQ(ReadFile(PathOf("saved")), OldBinaryFile({"\xC4 name", "1"}));
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(OldBinaryPalette, SavesAFullListAndLoadsItBack) {
  FillList(255);
  for (int place = 0; place < 255; ++place) Sets[place].Colors[place] = place * 65793;
  const ListState before = CurrentList();
  SavePaletteFile(kOldBinary, PathOf("saved"));
  Sets.fill({});
  SetCount = 0;
  ExpectDone(LoadPath(kOldBinary, PathOf("saved")));
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(OldBinaryPalette, SavesAColourWithATopByteByItsChannels) {
  FillList(1, -14326);
  SavePaletteFile(kOldBinary, PathOf("saved"));
  EXPECT_EQ(ReadFile(PathOf("saved")), OldBinaryFile({"0"}, 10, 201, 0));
}

TEST_F(OldBinaryPalette, AFileThatCannotBeOpenedDeliversNothing) {
  FillList(3, 7);
  const PaletteKind& kind = kPaletteKinds[kOldBinary - 1];
  const LoadRequest request{.file = FileSource::AtPath(PathOf("missing")), .fileTitle = "", .answerYes = {}};
  ExpectNotice(kind.load(kind, request), "Wrong header bytes", "Not a palette file", 16, true);
  EXPECT_EQ(SetCount, 3);
}

TEST_F(OldBinaryPalette, AFailedReadEndsTheLoadLikeTheEndOfTheFile) {
  // One block is read ahead: the rest of the file never comes.
  const std::string path = MakeFile("file", OldBinaryFile({"1", "2", "3", "4", "5", "6", "7", "8"}));
  FailFileCallsAfter(1);
  ExpectDone(LoadPath(kOldBinary, path));
  FailFileCallsAfter(-1);
  EXPECT_EQ(SetCount, 5);
  EXPECT_EQ(Sets[5].Name, "6");
}

}  // namespace
}  // namespace brolk::test
