// SPDX-License-Identifier: MIT
#include "importers/gif_read.h"

#include "palette/palette_files_support.h"

namespace brolk::test {
namespace {

using GifRead = PaletteFilesTest;

// Head of a picture up to its table.
Bytes Head(int flags, std::string_view signature = "GIF89a") {
  return Bytes().Text(signature).Word(320).Word(200).Byte(flags).Byte(3).Byte(49);
}

// A table of `count` colours: red = entry, green = 100, blue = 255 - entry.
Bytes Table(int count) {
  Bytes bytes;
  for (int entry = 0; entry < count; ++entry) bytes.List({entry, 100, 255 - entry});
  return bytes;
}
ColorValue TableColor(int entry) {
  return entry + 100 * 256 + (255 - entry) * 65536;
}

TEST_F(GifRead, EveryTableSizeFillsItsColoursAndBlackensTheRest) {
  for (int bits = 0; bits <= 7; ++bits) {
    SetCount = 0;
    Sets[0].Colors.fill(99);
    const int count = 2 << bits;
    ExpectDone(Load(kGif, Head(0x80 + bits).Add(Table(count)).Str()));
    ASSERT_EQ(SetCount, 1);
    EXPECT_EQ(GifPaletteLast, count - 1);
    EXPECT_EQ(GifPaletteBits(), bits + 1);
    for (int index = 0; index < 256; ++index) {
      ASSERT_EQ(Sets[0].Colors[index], index < count ? TableColor(index) : 0) << bits << " " << index;
    }
  }
}

TEST_F(GifRead, LowBitsZeroGiveTwoColours) {
  ExpectDone(Load(kGif, Head(0x80).Add(Table(2)).Str()));
  EXPECT_EQ(GifPalette.size(), 2U);
  EXPECT_EQ(Sets[0].Colors[2], 0);
}

TEST_F(GifRead, TheOtherFlagsDoNotMatter) {
  ExpectDone(Load(kGif, Head(0xF8).Add(Table(2)).Str()));
  EXPECT_EQ(GifPaletteLast, 1);
}

TEST_F(GifRead, KeepsTheScreenRecord) {
  ExpectDone(Load(kGif, Head(0x80).Add(Table(2)).Str()));
  EXPECT_EQ(GifScreen.width, 320);
  EXPECT_EQ(GifScreen.height, 200);
  EXPECT_EQ(GifScreen.flags, 0x80);
  EXPECT_EQ(GifScreen.backgroundIndex, 3);
  EXPECT_EQ(GifScreen.aspect, 49);
  EXPECT_EQ(GifSignatureText, "GIF89a");
}

TEST_F(GifRead, TakesBothSignatures) {
  ExpectDone(Load(kGif, Head(0x80, "GIF87a").Add(Table(2)).Str()));
  ExpectDone(Load(kGif, Head(0x80, "GIF89a").Add(Table(2)).Str()));
  EXPECT_EQ(SetCount, 2);
}

TEST_F(GifRead, RejectsEveryOtherSignature) {
  FillList(1);
  const ListState before = CurrentList();
  for (const char* signature : {"GIF88a", "gif89a", "GIF89A", "XIF89a", "GIF89\1", "\1GIF89", "GIF8\0039a"}) {
    ExpectNotice(Load(kGif, Head(0x80, std::string_view(signature, 6)).Add(Table(2)).Str()),
                 "Not a valid Gif file!", "Gif Read Error", 48, false);
    EXPECT_EQ(CurrentList(), before) << signature;
  }
}

TEST_F(GifRead, AControlByteOfTheSignatureTurnsIntoABlank) {
  static_cast<void>(Load(kGif, "GIF89\x1F"));
  EXPECT_EQ(GifSignatureText, "GIF89 ");
}

TEST_F(GifRead, RejectsAPictureWithoutAGlobalTable) {
  FillList(1);
  const ListState before = CurrentList();
  for (const int flags : {0x00, 0x07, 0x7F}) {
    ExpectNotice(Load(kGif, Head(flags).Add(Table(256)).Str()), "Gif must have a global palette!",
                 "Gif Read Error", 48, false);
    EXPECT_EQ(CurrentList(), before);
  }
}

TEST_F(GifRead, ClosesTheFileOnEveryWay) {
  const std::size_t open = CountOpenFiles();
  static_cast<void>(Load(kGif, "no"));
  static_cast<void>(Load(kGif, Head(0).Str()));
  static_cast<void>(Load(kGif, Head(0x80).Add(Table(2)).Str()));
  EXPECT_EQ(CountOpenFiles(), open);
}

TEST_F(GifRead, TheSetIsNamedAfterTheFileWithItsExtension) {
  fileTitle = "my picture.gif";
  ExpectDone(Load(kGif, Head(0x80).Add(Table(2)).Str()));
  EXPECT_EQ(Sets[0].Name, "my picture.gif");
}

TEST_F(GifRead, TheNameIsKeptInBytes) {
  fileTitle = "\xC3\x84.gif";
  ExpectDone(Load(kGif, Head(0x80).Add(Table(2)).Str()));
  EXPECT_EQ(Sets[0].Name, "\xC4.gif");
}

TEST_F(GifRead, AFreshReaderRejectsAFileCutInItsSignature) {
  for (std::size_t kept = 0; kept < 6; ++kept) {
    GifSignature = {};
    ExpectNotice(Load(kGif, Cut("GIF89a", kept)), "Not a valid Gif file!", "Gif Read Error", 48, false);
  }
}

TEST_F(GifRead, AFreshReaderCutBeforeTheFlagsHasNoTable) {
  const std::string head = Head(0x81).Str();
  for (std::size_t kept = 6; kept < 11; ++kept) {
    GifScreen = {};
    ExpectNotice(Load(kGif, Cut(head, kept)), "Gif must have a global palette!", "Gif Read Error", 48, false);
  }
}

TEST_F(GifRead, ATableCutShortIsBlackFromThere) {
  const std::string whole = Head(0x81).Add(Table(4)).Str();
  for (std::size_t kept = 11; kept <= whole.size(); ++kept) {
    SetCount = 0;
    ExpectDone(Load(kGif, Cut(whole, kept)));
    ASSERT_EQ(SetCount, 1);
    std::string padded = Cut(whole, kept);
    padded.resize(whole.size());
    for (std::size_t index = 0; index < 4; ++index) {
      const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(padded[13 + index * 3 + k]); };
      EXPECT_EQ(Sets[0].Colors[static_cast<int>(index)], byte(0) + byte(1) * 256 + byte(2) * 65536) << kept;
    }
  }
}

TEST_F(GifRead, AnEmptyFileKeepsTheHeadOfTheFileBefore) {
  ExpectDone(Load(kGif, Head(0x81).Add(Table(4)).Str()));
  ExpectDone(Load(kGif, ""));
  EXPECT_EQ(SetCount, 2);
  EXPECT_EQ(GifPaletteLast, 3);
  for (int index = 0; index < 256; ++index) ASSERT_EQ(Sets[1].Colors[index], 0);
}

TEST_F(GifRead, AShortFileChangesOnlyWhatItHolds) {
  ExpectDone(Load(kGif, Head(0x81).Add(Table(4)).Str()));
  // Only the low byte of the width comes: the rest of the screen stays.
  ExpectDone(Load(kGif, std::string("GIF87a\x01", 7)));
  EXPECT_EQ(GifSignatureText, "GIF87a");
  EXPECT_EQ(GifScreen.width, 0x0101);
  EXPECT_EQ(GifScreen.height, 200);
  EXPECT_EQ(GifScreen.flags, 0x81);
  EXPECT_EQ(GifScreen.aspect, 49);
}

TEST_F(GifRead, ARejectedSignatureStaysInForceForAnEmptyFile) {
  ExpectDone(Load(kGif, Head(0x81).Add(Table(4)).Str()));
  static_cast<void>(Load(kGif, "JPEG!!"));
  ExpectNotice(Load(kGif, ""), "Not a valid Gif file!", "Gif Read Error", 48, false);
}

TEST_F(GifRead, ARejectedFileLeavesTheTableOfTheFileBefore) {
  ExpectDone(Load(kGif, Head(0x81).Add(Table(4)).Str()));
  static_cast<void>(Load(kGif, Head(0x07).Str()));
  EXPECT_EQ(GifPaletteLast, 3);
  EXPECT_EQ(GifPalette.size(), 4U);
}

TEST_F(GifRead, AFileThatCannotBeOpenedIsTheFileFault) {
  std::optional<Notice> refusal;
  EXPECT_EQ(FaultOfAction([&] { static_cast<void>(ReadGifPalette(PathOf("missing"), refusal)); }),
            FaultKind::FileNotFound);
}

TEST_F(GifRead, ReaderAnswersWhetherThereIsATable) {
  std::optional<Notice> refusal;
  EXPECT_TRUE(ReadGifPalette(MakeFile("good", Head(0x80).Add(Table(2)).Str()), refusal));
  EXPECT_FALSE(refusal.has_value());
  EXPECT_FALSE(ReadGifPalette(MakeFile("bad", Head(0).Str()), refusal));
  EXPECT_TRUE(refusal.has_value());
}

TEST_F(GifRead, BytesBecomeCharactersFromTheBlankOn) {
  const std::uint8_t bytes[] = {0, 31, 32, 65, 127, 128, 255};
  EXPECT_EQ(BytesToText(bytes), "   A\x7F\x80\xFF");
  EXPECT_EQ(BytesToText({}), "");
}

}  // namespace
}  // namespace brolk::test
