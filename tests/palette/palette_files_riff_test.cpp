// SPDX-License-Identifier: MIT
#include <filesystem>
#include <string>

#include "palette/palette_files_support.h"

namespace brolk::test {
namespace {

using RiffPalette = PaletteFilesTest;

// The first 24 bytes, byte for byte.
std::string HeaderBytes() {
  return Bytes()
      .List({82, 73, 70, 70, 20, 4, 0, 0, 80, 65, 76, 32, 100, 97, 116, 97, 8, 4, 0, 0, 0, 3, 0, 1})
      .Str();
}

std::string RiffFile(int red, int green, int blue) {
  Bytes bytes;
  bytes.Text(HeaderBytes());
  for (int index = 0; index < 256; ++index) bytes.List({red, green, blue, index});
  return bytes.Fill(4, 0x55).Str();
}

TEST_F(RiffPalette, HeaderIsItsFields) {
  const std::string fields =
      Bytes().Text("RIFF").Long(1044).Text("PAL data").Long(1032).Word(768).Word(256).Str();
  EXPECT_EQ(HeaderBytes(), fields);
  EXPECT_EQ(std::string(RiffHeader.begin(), RiffHeader.end()), fields);
}

TEST_F(RiffPalette, AddsOneSet) {
  FillList(2);
  ExpectDone(Load(kRiff, RiffFile(10, 100, 5)));
  EXPECT_EQ(SetCount, 3);
  EXPECT_EQ(Sets[2].Name, "Riff palette");
  for (int index = 0; index < 256; ++index) ASSERT_EQ(Sets[2].Colors[index], 10 + 100 * 256 + 5 * 65536);
  EXPECT_TRUE(questions.empty());
}

TEST_F(RiffPalette, KeepsTheOrderOfEntriesAndIgnoresFlags) {
  Bytes bytes;
  bytes.Text(HeaderBytes());
  for (int index = 0; index < 256; ++index) bytes.List({index, 0, 255 - index, 0xAA});
  ExpectDone(Load(kRiff, bytes.Fill(4).Str()));
  for (int index = 0; index < 256; ++index) ASSERT_EQ(Sets[0].Colors[index], index + (255 - index) * 65536);
}

TEST_F(RiffPalette, AGreenOf128OrMoreTakesOneFromBlue) {
  ExpectDone(Load(kRiff, RiffFile(10, 200, 5)));
  EXPECT_EQ(Sets[0].Colors[0], 0x0004C80A);
  EXPECT_EQ(AssembleColor(255, 127, 0), 0x7FFF);
  EXPECT_EQ(AssembleColor(0, 128, 1), 0x8000);
  EXPECT_EQ(AssembleColor(0, 128, 0), static_cast<std::int32_t>(0xFFFF8000));
  EXPECT_EQ(AssembleColor(255, 255, 255), 0x00FEFFFF);
  EXPECT_EQ(AssembleColor(255, 255, 0), -1);
}

TEST_F(RiffPalette, RejectsOtherSizes) {
  const ListState before = CurrentList();
  const std::string whole = RiffFile(1, 2, 3);
  for (const std::size_t size : {0U, 1U, 4U, 8U, 16U, 20U, 22U, 24U, 28U, 1048U, 1051U}) {
    ExpectNotice(Load(kRiff, Cut(whole, size)), "Not a 256 color Riff palette. Filesize must be 1052.",
                 "Wrong file format", 16, false);
  }
  ExpectNotice(Load(kRiff, whole + '\0'), "Not a 256 color Riff palette. Filesize must be 1052.",
               "Wrong file format", 16, false);
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(RiffPalette, RejectsAChangeInAnyByteOfTheHeader) {
  const ListState before = CurrentList();
  for (std::size_t at = 0; at < 24; ++at) {
    std::string file = RiffFile(1, 2, 3);
    file[at] = static_cast<char>(file[at] ^ 1);
    ExpectNotice(Load(kRiff, file), "Not a 256 color Riff file.\rWrong header.", "Wrong file format", 16,
                 false);
  }
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(RiffPalette, TestsTheSizeBeforeTheHeader) {
  ExpectNotice(Load(kRiff, "nothing"), "Not a 256 color Riff palette. Filesize must be 1052.",
               "Wrong file format", 16, false);
}

TEST_F(RiffPalette, AFullListSaysNothingEvenToAWrongFile) {
  FillList(255);
  const ListState before = CurrentList();
  ExpectDone(Load(kRiff, "nothing"));
  ExpectDone(Load(kRiff, RiffFile(1, 2, 3)));
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(RiffPalette, FillsTheLastPlace) {
  FillList(254);
  ExpectDone(Load(kRiff, RiffFile(1, 2, 3)));
  EXPECT_EQ(SetCount, 255);
  EXPECT_EQ(Sets[254].Colors[255], 0x030201);
}

TEST_F(RiffPalette, ClosesTheFileOnEveryWay) {
  const std::size_t open = CountOpenFiles();
  static_cast<void>(Load(kRiff, "no"));
  static_cast<void>(Load(kRiff, std::string(1052, 'x')));
  static_cast<void>(Load(kRiff, RiffFile(1, 2, 3)));
  EXPECT_EQ(CountOpenFiles(), open);
}

TEST_F(RiffPalette, SavesTheSelectedSet) {
  FillList(3, 1);
  Sets[1].Colors.fill(0x0005C80A);
  SelectedSet = 1;
  const ListState before = CurrentList();
  SavePaletteFile(kRiff, PathOf("saved"));
  Bytes expected;
  expected.Text(HeaderBytes());
  for (int index = 0; index < 256; ++index) expected.List({10, 200, 5, 0});
  EXPECT_EQ(ReadFile(PathOf("saved")), expected.Fill(4).Str());
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(RiffPalette, SavesTheSelectedSetOfAnEmptyList) {
  Sets[7].Colors.fill(0x030201);
  SelectedSet = 7;
  SavePaletteFile(kRiff, PathOf("saved"));
  const std::string saved = ReadFile(PathOf("saved"));
  ASSERT_EQ(saved.size(), 1052U);
  EXPECT_EQ(saved.substr(24, 4), std::string("\1\2\3\0", 4));
}

TEST_F(RiffPalette, ASavedFileLoadsUnlessGreenIsBright) {
  FillList(1, 0x0005640A);
  SavePaletteFile(kRiff, PathOf("saved"));
  ExpectDone(LoadPath(kRiff, PathOf("saved")));
  EXPECT_EQ(SetCount, 2);
  EXPECT_TRUE(Sets[1].Colors == Sets[0].Colors);
}

TEST_F(RiffPalette, SavesTheChannelsOfAColourWithATopByte) {
  Sets[0].Colors.fill(-14326);
  SavePaletteFile(kRiff, PathOf("saved"));
  EXPECT_EQ(ReadFile(PathOf("saved")).substr(24, 4), std::string("\x0A\xC9\0\0", 4));
}

TEST_F(RiffPalette, SavingToAPathThatCannotBeMadeGoesUnnoticed) {
  FillList(1);
  const ColorSetRecord before = Sets[0];
  for (const auto kind : {kRiff, kTileLayer, kOldBinary}) {
    EXPECT_NO_THROW(SavePaletteFile(kind, PathOf("no/such/folder")));
  }
  EXPECT_FALSE(std::filesystem::exists(PathOf("no"))) << "nothing is made on the way";
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Colors, before.Colors);
  EXPECT_EQ(Sets[0].Name, before.Name);
}

}  // namespace
}  // namespace brolk::test
