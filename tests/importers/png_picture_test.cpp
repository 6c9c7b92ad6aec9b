// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <filesystem>

#include "importers/png_fixture.h"

// PNG pictures as colour sets: every message, and what is left of the list.
namespace brolk::test {
namespace {

using PngPicture = PaletteFilesTest;

constexpr const char* kErrorTitle = "Error reading Png file";

TEST_F(PngPicture, AddsItsPaletteUnderTheNameOfTheFile) {
  fileTitle = "my picture.png";
  Sets[0].Colors.fill(99);
  ExpectDone(Load(kPng, PngSample().Str()));
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Name, "my picture.png");
  for (int index = 0; index < 4; ++index) EXPECT_EQ(Sets[0].Colors[index], PngEntryColor(index));
  for (int index = 4; index < 256; ++index) ASSERT_EQ(Sets[0].Colors[index], 0);
}

TEST_F(PngPicture, TheNameIsKeptInBytes) {
  fileTitle = "\xE2\x82\xAC.png";
  ExpectDone(Load(kPng, PngSample().Str()));
  EXPECT_EQ(Sets[0].Name, "\x80.png");
}

TEST_F(PngPicture, TakesAFullPalette) {
  ExpectDone(Load(kPng, PngBuilder().Header(3, 8).Palette(256).Image().End().Str()));
  for (int index = 0; index < 256; ++index) ASSERT_EQ(Sets[0].Colors[index], PngEntryColor(index));
}

TEST_F(PngPicture, APaletteOfATrueColourPictureCounts) {
  for (const int type : {2, 6}) {
    SetCount = 0;
    ExpectDone(Load(kPng, PngBuilder().Header(type, 8).Palette(3).Image().End().Str()));
    EXPECT_EQ(SetCount, 1);
    EXPECT_EQ(Sets[0].Colors[2], PngEntryColor(2));
  }
}

TEST_F(PngPicture, MoreThan256EntriesAreTheSubscriptFault) {
  const std::string file = PngBuilder().Header(2, 16).Palette(257).Image().End().Str();
  EXPECT_EQ(LoadFault(kPng, file), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(Sets[0].Colors[255], PngEntryColor(255));
  SetCount = 0;
  ExpectDone(Load(kPng, PngBuilder().Header(2, 16).Palette(256).Image().End().Str()));
}

TEST_F(PngPicture, ATrueColourPictureIsToldAndAddsWhatItsPlaceHeld) {
  FillList(2);
  Sets[2].Name = "old";
  Sets[2].Colors.fill(99);
  fileTitle = "photo.png";
  ExpectNotice(Load(kPng, PngBuilder().Header(2, 8).Image().End().Str()),
               "Png files in True Color are not supported.", "Wrong Png file format", 16, true);
  EXPECT_EQ(SetCount, 3);
  EXPECT_EQ(Sets[2].Name, "photo.png");
  for (const ColorValue color : Sets[2].Colors) ASSERT_EQ(color, 99);
}

TEST_F(PngPicture, ATrueColourPictureInAFreshPlaceIsBlack) {
  ExpectNotice(Load(kPng, PngBuilder().Header(0, 8).Image().End().Str()),
               "Png files in True Color are not supported.", "Wrong Png file format", 16, true);
  EXPECT_EQ(SetCount, 1);
  for (const ColorValue color : Sets[0].Colors) ASSERT_EQ(color, 0);
}

TEST_F(PngPicture, AnEmptyPaletteCountsAsTrueColour) {
  EXPECT_TRUE(Load(kPng, PngBuilder().Header(3, 8).Palette(0).Image().End().Str()).notice.has_value());
  EXPECT_EQ(SetCount, 1);
}

TEST_F(PngPicture, AnInvalidFileIsToldAndTheListBuiltAgain) {
  FillList(2);
  const ListState before = CurrentList();
  ExpectNotice(Load(kPng, "no picture"), "This is no valid Png file.", kErrorTitle, 16, true);
  ExpectNotice(Load(kPng, ""), "This is no valid Png file.", kErrorTitle, 16, true);
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(PngPicture, AnUnknownCriticalChunkIsTold) {
  FillList(2);
  const ListState before = CurrentList();
  ExpectNotice(Load(kPng, PngBuilder().Header(3, 8).Palette(4).Chunk("CRIT").End().Str()),
               "This Png file version is not supported.", kErrorTitle, 16, true);
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(PngPicture, AFileThatCannotBeOpenedIsToldWithThePlatformsReason) {
  FillList(2);
  const ListState before = CurrentList();
  const PaletteKind& kind = kPaletteKinds[kPng - 1];
  const LoadRequest request{.file = FileSource::AtPath(PathOf("missing")), .fileTitle = "", .answerYes = {}};
  ExpectNotice(kind.load(kind, request), "The file couldn't be opened: \r\nNo such file or directory",
               kErrorTitle, 16, true);
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(PngPicture, AFileWithoutPermissionIsToldWithThePlatformsReason) {
  if (geteuid() == 0) GTEST_SKIP() << "this user may read everything";
  const std::string path = MakeFile("closed.png", PngSample().Str());
  std::filesystem::permissions(path, std::filesystem::perms::none);
  ExpectNotice(LoadPath(kPng, path), "The file couldn't be opened: \r\nPermission denied", kErrorTitle, 16,
               true);
}

TEST_F(PngPicture, AFailedReadAfterAGoodOneAddsNothing) {
  ExpectDone(Load(kPng, PngSample().Str()));
  EXPECT_TRUE(Load(kPng, "no picture").notice.has_value());
  EXPECT_EQ(SetCount, 1);
}

TEST_F(PngPicture, TwoImageChunksEndTheProgram) {
  EXPECT_EQ(LoadFault(kPng, PngBuilder().Header(3, 8).Palette(2).Image().Image().End().Str()),
            FaultKind::DuplicateKey);
  EXPECT_EQ(SetCount, 0);
}

TEST_F(PngPicture, ClosesTheFileOnEveryWay) {
  const std::size_t open = CountOpenFiles();
  static_cast<void>(Load(kPng, "no"));
  static_cast<void>(Load(kPng, PngSample().Str()));
  static_cast<void>(Load(kPng, PngBuilder().Header(3, 8).Chunk("CRIT").Str()));
  static_cast<void>(LoadFault(kPng, PngBuilder().Header(3, 8).Chunk("IDAT").Str()));
  EXPECT_EQ(CountOpenFiles(), open);
}

}  // namespace
}  // namespace brolk::test
