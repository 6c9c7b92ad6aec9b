// SPDX-License-Identifier: MIT
#include "importers/png.h"
#include "importers/png_fixture.h"

// What makes a file valid: signature, header, lengths, and the order of the chunks.
namespace brolk::test {
namespace {

int CodeOf(const std::string& file) {
  const std::vector<std::uint8_t> bytes(file.begin(), file.end());
  cPng png;
  return static_cast<int>(png.ReadPngFile(FileSource::InMemory(bytes)));
}
int CodeOf(const PngBuilder& builder) {
  return CodeOf(builder.Str());
}
FaultKind FaultOfRead(const PngBuilder& builder) {
  return FaultOfAction([&] { static_cast<void>(CodeOf(builder)); });
}

PngBuilder Gray() {
  return PngBuilder().Header(0, 8);
}
PngBuilder Indexed() {
  return PngBuilder().Header(3, 8);
}
Bytes Gamma() {
  return Bytes().BigLong(100000);
}

TEST(PngRules, TakesTheSmallestPicture) {
  EXPECT_EQ(CodeOf(Gray().Image().End()), 0);
}

TEST(PngRules, AHeaderAndAnEndAreEnough) {
  EXPECT_EQ(CodeOf(Gray().End()), 0);
}

TEST(PngRules, EachByteOfTheSignatureCounts) {
  for (std::size_t at = 0; at < 8; ++at) {
    std::string file = PngSample().Str();
    file[at] = static_cast<char>(file[at] ^ 1);
    EXPECT_EQ(CodeOf(file), 2) << at;
  }
}

TEST(PngRules, TheSignatureAloneIsNoPicture) {
  for (std::size_t kept = 0; kept <= 8; ++kept) EXPECT_EQ(CodeOf(Cut(PngSample().Str(), kept)), 2);
}

TEST(PngRules, AWrongCheckSumIsNotNoticed) {
  std::string file = PngSample().Str();
  file.replace(file.find("crc!"), 4, "oops");
  EXPECT_EQ(CodeOf(file), 0);
}

TEST(PngRules, HeaderComesFirst) {
  EXPECT_EQ(CodeOf(PngBuilder().Chunk("tEXt").Header(0, 8).Image().End()), 2);
  EXPECT_EQ(CodeOf(PngBuilder().Chunk("CRIT").Header(0, 8).Image().End()), 2);
  EXPECT_EQ(CodeOf(PngBuilder().End()), 2);
  EXPECT_EQ(CodeOf(PngBuilder().Image().End()), 2);
}

TEST(PngRules, HeaderComesOnce) {
  EXPECT_EQ(CodeOf(Gray().Header(0, 8).Image().End()), 2);
}

TEST(PngRules, HeaderHasThirteenBytes) {
  EXPECT_EQ(
      CodeOf(PngBuilder().Chunk("IHDR", Bytes().BigLong(1).BigLong(1).List({8, 0, 0, 0})).Image().End()), 2);
  EXPECT_EQ(
      CodeOf(
          PngBuilder().Chunk("IHDR", Bytes().BigLong(1).BigLong(1).List({8, 0, 0, 0, 0, 0})).Image().End()),
      2);
}

TEST(PngRules, EveryPairOfColourTypeAndDepth) {
  const std::vector<int> allowed[] = {{1, 2, 4, 8, 16}, {}, {8, 16}, {1, 2, 4, 8}, {8, 16}, {}, {8, 16}};
  for (int type = 0; type < 256; ++type) {
    for (int depth = 0; depth < 256; ++depth) {
      bool valid = false;
      if (type < 7) {
        for (const int good : allowed[type]) valid = valid || good == depth;
      }
      ASSERT_EQ(CodeOf(PngBuilder().Header(type, depth).Image().End()), valid ? 0 : 2)
          << type << " " << depth;
    }
  }
}

TEST(PngRules, SidesAreOneOrMoreAsSignedNumbers) {
  EXPECT_EQ(CodeOf(PngBuilder().Header(0, 8, 1, 1).End()), 0);
  EXPECT_EQ(CodeOf(PngBuilder().Header(0, 8, 0x7FFFFFFF, 0x7FFFFFFF).End()), 0);
  for (const std::int64_t side : {std::int64_t{0}, std::int64_t{0x80000000}, std::int64_t{0xFFFFFFFF}}) {
    EXPECT_EQ(CodeOf(PngBuilder().Header(0, 8, side, 1).End()), 2);
    EXPECT_EQ(CodeOf(PngBuilder().Header(0, 8, 1, side).End()), 2);
  }
}

TEST(PngRules, CompressionAndFilterAreZeroAndInterlaceAtMostOne) {
  EXPECT_EQ(CodeOf(PngBuilder().Header(0, 8, 1, 1, 1, 0, 0).End()), 2);
  EXPECT_EQ(CodeOf(PngBuilder().Header(0, 8, 1, 1, 0, 1, 0).End()), 2);
  EXPECT_EQ(CodeOf(PngBuilder().Header(0, 8, 1, 1, 0, 0, 1).End()), 0);
  EXPECT_EQ(CodeOf(PngBuilder().Header(0, 8, 1, 1, 0, 0, 2).End()), 2);
}

TEST(PngRules, NothingFollowsTheEnd) {
  EXPECT_EQ(CodeOf(Gray().Image().End().Add(Bytes().Byte(0))), 2);
  EXPECT_EQ(CodeOf(Gray().Image().End().Chunk("tEXt")), 2);
  EXPECT_EQ(CodeOf(Gray().Image().End().End()), 2);
}

TEST(PngRules, TheEndNeedsItsWholeCheckSum) {
  const std::string whole = PngSample().Str();
  for (std::size_t missing = 1; missing <= 4; ++missing)
    EXPECT_EQ(CodeOf(Cut(whole, whole.size() - missing)), 2);
}

TEST(PngRules, TheEndMayHoldData) {
  EXPECT_EQ(CodeOf(Gray().Chunk("IEND", Bytes().Text("more"))), 0);
}

TEST(PngRules, AFileWithoutAnEndIsNotValid) {
  EXPECT_EQ(CodeOf(Gray().Image()), 2);
  EXPECT_EQ(CodeOf(Gray()), 2);
}

TEST(PngRules, ANegativeLengthIsNotValid) {
  EXPECT_EQ(CodeOf(PngBuilder().Raw(0x80000000, "IHDR").End()), 2);
  EXPECT_EQ(CodeOf(PngBuilder().Raw(0xFFFFFFFF, "IHDR").End()), 2);
  EXPECT_EQ(CodeOf(Gray().Raw(0xFFFFFFFF, "tEXt").End()), 2);
  EXPECT_EQ(CodeOf(Gray().Raw(0xFFFFFFFE, "sBIT").End()), 2);
}

TEST(PngRules, UnknownAncillaryChunksArePassedOverAnyNumberOfTimes) {
  PngBuilder builder = Gray();
  for (int time = 0; time < 50; ++time) builder.Chunk("tEXt", Bytes().Text("again")).Chunk("zzzz");
  EXPECT_EQ(CodeOf(builder.Image().Chunk("tEXt").End()), 0);
}

TEST(PngRules, UnknownCriticalChunksAreNotSupported) {
  EXPECT_EQ(CodeOf(Gray().Chunk("CRIT").End()), 3);
  EXPECT_EQ(CodeOf(Gray().Chunk("Iend").End()), 3);
  EXPECT_EQ(CodeOf(Gray().Chunk("Idat").End()), 3);
}

TEST(PngRules, TheCaseOfTheFirstLetterIsThatOfWindows1252) {
  for (int letter = 0; letter < 256; ++letter) {
    const bool upper = (letter >= 'A' && letter <= 'Z') || letter == 0x8A || letter == 0x8C ||
                       letter == 0x8E || letter == 0x9F ||
                       (letter >= 0xC0 && letter <= 0xDE && letter != 0xD7);
    const std::string type = std::string(1, static_cast<char>(letter)) + "zzz";
    EXPECT_EQ(CodeOf(Gray().Chunk(type).End()), upper ? 3 : 0) << letter;
  }
}

TEST(PngRules, AFileCutInsideAChunkTypeCanBeUnsupported) {
  const std::string head = Gray().Str();
  EXPECT_EQ(CodeOf(head + Bytes().BigLong(0).Text("P").Str()), 3);
  EXPECT_EQ(CodeOf(head + Bytes().BigLong(0).Text("PLT").Str()), 3);
  EXPECT_EQ(CodeOf(head + Bytes().BigLong(0).Text("p").Str()), 2);
  EXPECT_EQ(CodeOf(head + Bytes().BigLong(0).Str()), 2);
}

TEST(PngRules, ImageDataNamesDeflateWithAWindowOfAtMost32K) {
  for (int method = 0; method < 256; ++method) {
    const bool valid = method % 16 == 8 && method / 16 <= 7;
    EXPECT_EQ(CodeOf(Gray().Image(method).End()), valid ? 0 : 2) << method;
  }
}

TEST(PngRules, ImageDataShorterThanSevenBytesIsAFault) {
  for (std::size_t length = 0; length < 7; ++length) {
    EXPECT_EQ(FaultOfRead(Gray().Chunk("IDAT", Bytes().Fill(length, 0x78)).End()),
              FaultKind::SubscriptOutOfRange);
  }
  EXPECT_EQ(CodeOf(Gray().Chunk("IDAT", Bytes().Fill(7, 0x78)).End()), 0);
}

TEST(PngRules, ASecondImageChunkIsAFault) {
  EXPECT_EQ(FaultOfRead(Gray().Image().Image().End()), FaultKind::DuplicateKey);
  EXPECT_EQ(FaultOfRead(Gray().Image().Chunk("tEXt").Image().End()), FaultKind::DuplicateKey);
}

TEST(PngRules, ASecondImageChunkFirstMeetsTheTestOfItsMethod) {
  EXPECT_EQ(CodeOf(Gray().Image().Image(0x79).End()), 2);
  EXPECT_EQ(FaultOfRead(Gray().Image().Chunk("IDAT", Bytes().Byte(0x79)).End()),
            FaultKind::SubscriptOutOfRange);
}

TEST(PngRules, GammaStandsOnceBeforePaletteAndImage) {
  EXPECT_EQ(CodeOf(Indexed().Chunk("gAMA", Gamma()).Palette(2).Image().End()), 0);
  EXPECT_EQ(CodeOf(Indexed().Chunk("gAMA", Gamma()).Chunk("gAMA", Gamma()).Image().End()), 2);
  EXPECT_EQ(CodeOf(Indexed().Palette(2).Chunk("gAMA", Gamma()).Image().End()), 2);
  EXPECT_EQ(CodeOf(Gray().Image().Chunk("gAMA", Gamma()).End()), 2);
}

TEST(PngRules, GammaHasFourBytes) {
  for (const std::size_t length : {0U, 1U, 3U, 5U}) {
    EXPECT_EQ(CodeOf(Gray().Chunk("gAMA", Bytes().Fill(length)).End()), 2) << length;
  }
}

TEST(PngRules, SignificantBitsStandOnceBeforePaletteAndImage) {
  EXPECT_EQ(CodeOf(Indexed().Chunk("sBIT").Palette(2).Image().End()), 0);
  EXPECT_EQ(CodeOf(Indexed().Chunk("sBIT", Bytes().Fill(100)).Palette(2).Image().End()), 0);
  EXPECT_EQ(CodeOf(Indexed().Chunk("sBIT").Chunk("sBIT").Image().End()), 2);
  EXPECT_EQ(CodeOf(Indexed().Palette(2).Chunk("sBIT").Image().End()), 2);
  EXPECT_EQ(CodeOf(Gray().Image().Chunk("sBIT").End()), 2);
}

TEST(PngRules, ThePaletteStandsOnceBeforeTheImage) {
  EXPECT_EQ(CodeOf(Indexed().Palette(2).Image().End()), 0);
  EXPECT_EQ(CodeOf(Indexed().Palette(2).Palette(2).Image().End()), 2);
  EXPECT_EQ(CodeOf(Indexed().Palette(0).Palette(2).Image().End()), 2);
  EXPECT_EQ(CodeOf(Indexed().Image().Palette(2).End()), 2);
}

TEST(PngRules, ThePaletteHasWholeEntries) {
  for (const std::size_t length : {1U, 2U, 4U, 5U}) {
    EXPECT_EQ(CodeOf(Indexed().Chunk("PLTE", Bytes().Fill(length)).End()), 2) << length;
  }
}

TEST(PngRules, ThePaletteHasNoMoreEntriesThanItsDepthTells) {
  for (const int depth : {1, 2, 4, 8}) {
    EXPECT_EQ(CodeOf(PngBuilder().Header(3, depth).Palette(1 << depth).End()), 0) << depth;
    EXPECT_EQ(CodeOf(PngBuilder().Header(3, depth).Palette((1 << depth) + 1).End()), 2) << depth;
  }
}

TEST(PngRules, GreyPicturesHaveNoPalette) {
  for (const int type : {0, 4}) EXPECT_EQ(CodeOf(PngBuilder().Header(type, 8).Palette(2).Image().End()), 2);
  for (const int type : {2, 3, 6})
    EXPECT_EQ(CodeOf(PngBuilder().Header(type, 8).Palette(2).Image().End()), 0);
}

TEST(PngRules, TheBackgroundStandsOnceAndAnywhere) {
  const Bytes grey = Bytes().BigWord(7);
  EXPECT_EQ(CodeOf(Gray().Chunk("bKGD", grey).Image().End()), 0);
  EXPECT_EQ(CodeOf(Gray().Image().Chunk("bKGD", grey).End()), 0);
  EXPECT_EQ(CodeOf(Gray().Chunk("bKGD", grey).Chunk("bKGD", grey).End()), 2);
}

TEST(PngRules, ABackgroundBeforeItsPaletteIsNotValid) {
  EXPECT_EQ(CodeOf(Indexed().Chunk("bKGD", Bytes().Byte(0)).Palette(2).Image().End()), 2);
  // In a true colour picture the palette is only a proposal, and may follow.
  EXPECT_EQ(CodeOf(PngBuilder().Header(2, 8).Chunk("bKGD", Bytes().Fill(6)).Palette(2).Image().End()), 0);
}

TEST(PngRules, TheBackgroundIsAnEntryOfThePalette) {
  EXPECT_EQ(CodeOf(Indexed().Palette(4).Chunk("bKGD", Bytes().Byte(3)).End()), 0);
  EXPECT_EQ(CodeOf(Indexed().Palette(4).Chunk("bKGD", Bytes().Byte(4)).End()), 2);
  EXPECT_EQ(CodeOf(Indexed().Palette(256).Chunk("bKGD", Bytes().Byte(255)).End()), 0);
  EXPECT_EQ(CodeOf(Indexed().Chunk("bKGD", Bytes().Byte(0)).End()), 2);
}

TEST(PngRules, TheBackgroundHasTheLengthOfItsColourType) {
  const std::size_t right[] = {2, 0, 6, 1, 2, 0, 6};
  for (const int type : {0, 2, 3, 4, 6}) {
    for (std::size_t length = 0; length < 9; ++length) {
      PngBuilder builder = PngBuilder().Header(type, 8);
      if (type == 3) builder.Palette(2);
      EXPECT_EQ(CodeOf(builder.Chunk("bKGD", Bytes().Fill(length)).End()), length == right[type] ? 0 : 2)
          << type << " " << length;
    }
  }
}

TEST(PngRules, BackgroundLevelsFitTheDepth) {
  for (const int depth : {1, 2, 4, 8, 16}) {
    const int most = (1 << depth) - 1;
    EXPECT_EQ(CodeOf(PngBuilder().Header(0, depth).Chunk("bKGD", Bytes().BigWord(most)).End()), 0) << depth;
    if (depth == 16) continue;
    EXPECT_EQ(CodeOf(PngBuilder().Header(0, depth).Chunk("bKGD", Bytes().BigWord(most + 1)).End()), 2)
        << depth;
  }
  for (std::size_t word = 0; word < 3; ++word) {
    Bytes levels;
    for (std::size_t k = 0; k < 3; ++k) levels.BigWord(k == word ? 256 : 255);
    EXPECT_EQ(CodeOf(PngBuilder().Header(2, 8).Chunk("bKGD", levels).End()), 2) << word;
  }
}

TEST(PngRules, AKnownChunkOfAWrongLengthIsNotValidEvenPastTheEnd) {
  EXPECT_EQ(CodeOf(Gray().Raw(5, "gAMA")), 2);
  EXPECT_EQ(CodeOf(Gray().Raw(0x7FFFFFFF, "gAMA")), 2);
}

}  // namespace
}  // namespace brolk::test
