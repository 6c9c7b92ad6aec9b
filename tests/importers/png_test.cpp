// SPDX-License-Identifier: MIT
#include "importers/png.h"

#include <sys/resource.h>

#include "importers/png_fixture.h"
#include "runtime/files.h"

// What the members of the class tell after a read.
namespace brolk::test {
namespace {

class Png : public PaletteFilesTest {
 protected:
  PngResult Read(const std::string& bytes) {
    bytes_.assign(bytes.begin(), bytes.end());
    return png_.ReadPngFile(FileSource::InMemory(bytes_));
  }
  PngResult Read(const PngBuilder& builder) { return Read(builder.Str()); }

  cPng png_;

 private:
  std::vector<std::uint8_t> bytes_;
};

TEST_F(Png, ResultCodesHaveTheirNumbers) {
  EXPECT_EQ(static_cast<int>(PngResult::Read), 0);
  EXPECT_EQ(static_cast<int>(PngResult::NotOpened), 1);
  EXPECT_EQ(static_cast<int>(PngResult::NotValid), 2);
  EXPECT_EQ(static_cast<int>(PngResult::Unsupported), 3);
}

TEST_F(Png, AFreshObjectIsEmpty) {
  EXPECT_EQ(png_.pngWidth(), 0);
  EXPECT_EQ(png_.pngHeight(), 0);
  EXPECT_EQ(png_.BitDepth(), 0);
  EXPECT_EQ(png_.ColorMode(), 0);
  EXPECT_EQ(png_.ClrTableSize(), 0);
  EXPECT_EQ(png_.ColorTable(1), 0);
  EXPECT_EQ(png_.BackClrRgb(), 0);
  EXPECT_EQ(png_.GammaVal(), 0.0F);
  EXPECT_FALSE(png_.IsPalette());
  EXPECT_FALSE(png_.IsBackColor());
  EXPECT_FALSE(png_.Interlaced());
}

TEST_F(Png, TellsItsHeader) {
  ASSERT_EQ(Read(PngBuilder().Header(2, 16, 0x01020304, 0x7FFFFFFF, 0, 0, 1).Image().End()), PngResult::Read);
  EXPECT_EQ(png_.pngWidth(), 0x01020304);
  EXPECT_EQ(png_.pngHeight(), 0x7FFFFFFF);
  EXPECT_EQ(png_.BitDepth(), 16);
  EXPECT_EQ(png_.ColorMode(), 2);
  EXPECT_TRUE(png_.Interlaced());
  ASSERT_EQ(Read(PngBuilder().Header(2, 16).Image().End()), PngResult::Read);
  EXPECT_FALSE(png_.Interlaced());
}

TEST_F(Png, TellsColourAndAlphaByTheBitsOfItsType) {
  const struct {
    int type;
    bool color, alpha;
  } rows[] = {{0, false, false}, {2, true, false}, {3, true, false}, {4, false, true}, {6, true, true}};
  for (const auto& row : rows) {
    ASSERT_EQ(Read(PngBuilder().Header(row.type, 8).Image().End()), PngResult::Read);
    EXPECT_EQ(png_.IsColor(), row.color) << row.type;
    EXPECT_EQ(png_.IsAlpha(), row.alpha) << row.type;
  }
}

TEST_F(Png, CountsItsColourTableFromOne) {
  ASSERT_EQ(Read(PngBuilder().Header(3, 8).Palette(3).Image().End()), PngResult::Read);
  EXPECT_TRUE(png_.IsPalette());
  EXPECT_EQ(png_.ClrTableSize(), 3);
  EXPECT_EQ(png_.ColorTable(-1), 0);
  EXPECT_EQ(png_.ColorTable(0), 0);
  for (int entry = 0; entry < 3; ++entry) {
    EXPECT_EQ(png_.ColorTable(static_cast<std::int16_t>(entry + 1)), PngEntryColor(entry));
  }
  EXPECT_EQ(png_.ColorTable(4), 0);
  EXPECT_EQ(png_.ColorTable(32767), 0);
}

TEST_F(Png, AnEmptyPaletteIsNone) {
  ASSERT_EQ(Read(PngBuilder().Header(3, 8).Palette(0).Image().End()), PngResult::Read);
  EXPECT_FALSE(png_.IsPalette());
  EXPECT_EQ(png_.ClrTableSize(), 0);
}

TEST_F(Png, TakesAPaletteOf65536EntriesAtDepth16) {
  ASSERT_EQ(Read(PngBuilder().Header(2, 16).Palette(65536).Image().End()), PngResult::Read);
  EXPECT_EQ(png_.ClrTableSize(), 65536);
  EXPECT_EQ(png_.ColorTable(300), PngEntryColor(299));
  EXPECT_EQ(Read(PngBuilder().Header(2, 16).Palette(65537).Image().End()), PngResult::NotValid);
}

TEST_F(Png, GammaIsUnsignedHundredThousandths) {
  const auto gammaOf = [&](std::int64_t value) {
    EXPECT_EQ(Read(PngBuilder().Header(0, 8).Chunk("gAMA", Bytes().BigLong(value)).Image().End()),
              PngResult::Read);
    return png_.GammaVal();
  };
  EXPECT_EQ(gammaOf(45455), 0.45455F);
  EXPECT_EQ(gammaOf(100000), 1.0F);
  EXPECT_EQ(gammaOf(0), 0.0F);
  EXPECT_EQ(gammaOf(0xFFFFFFFF), static_cast<float>(42949.67295));
}

TEST_F(Png, GammaIsMinusOneWithoutIt) {
  ASSERT_EQ(Read(PngSample()), PngResult::Read);
  ASSERT_EQ(Read(PngBuilder().Header(0, 8).Image().End()), PngResult::Read);
  EXPECT_EQ(png_.GammaVal(), -1.0F);
}

TEST_F(Png, AnIndexBackgroundLooksUpTheEntryBeforeIts) {
  ASSERT_EQ(Read(PngBuilder().Header(3, 8).Palette(4).Chunk("bKGD", Bytes().Byte(2)).Image().End()),
            PngResult::Read);
  EXPECT_TRUE(png_.IsBackColor());
  ASSERT_TRUE(std::holds_alternative<std::uint8_t>(png_.backClr()));
  EXPECT_EQ(std::get<std::uint8_t>(png_.backClr()), 2);
  // Number 2 counted from 1 is the entry 1 counted from 0.
  EXPECT_EQ(png_.BackClrRgb(), PngEntryColor(1));
}

TEST_F(Png, TheFirstEntryAsBackgroundIsBlack) {
  ASSERT_EQ(Read(PngBuilder().Header(3, 8).Palette(4).Chunk("bKGD", Bytes().Byte(0)).Image().End()),
            PngResult::Read);
  EXPECT_TRUE(png_.IsBackColor());
  EXPECT_EQ(png_.BackClrRgb(), 0);
}

TEST_F(Png, AGreyBackgroundIsScaledToItsDepth) {
  const auto greyOf = [&](int type, int depth, int level) {
    EXPECT_EQ(Read(PngBuilder().Header(type, depth).Chunk("bKGD", Bytes().BigWord(level)).Image().End()),
              PngResult::Read);
    EXPECT_TRUE(std::holds_alternative<std::int16_t>(png_.backClr()));
    return png_.BackClrRgb();
  };
  EXPECT_EQ(greyOf(0, 1, 1), 0xFFFFFF);
  EXPECT_EQ(greyOf(0, 2, 1), 0x555555);
  EXPECT_EQ(greyOf(0, 4, 7), 0x777777);
  EXPECT_EQ(greyOf(0, 8, 200), 0xC8C8C8);
  EXPECT_EQ(greyOf(4, 16, 65535), 0xFFFFFF);
  EXPECT_EQ(greyOf(4, 16, 32768), 0x808080);
  EXPECT_EQ(greyOf(4, 16, 128), 0);
  EXPECT_EQ(greyOf(4, 16, 129), 0x010101);
}

TEST_F(Png, AColourBackgroundIsPacked) {
  ASSERT_EQ(
      Read(PngBuilder().Header(2, 8).Chunk("bKGD", Bytes().BigWord(1).BigWord(2).BigWord(3)).Image().End()),
      PngResult::Read);
  ASSERT_TRUE(std::holds_alternative<std::int32_t>(png_.backClr()));
  EXPECT_EQ(png_.BackClrRgb(), 0x030201);
  ASSERT_EQ(Read(PngBuilder()
                     .Header(6, 16)
                     .Chunk("bKGD", Bytes().BigWord(65535).BigWord(0).BigWord(32768))
                     .Image()
                     .End()),
            PngResult::Read);
  EXPECT_EQ(png_.BackClrRgb(), 0x8000FF);
}

TEST_F(Png, ABackgroundGoesWithTheNextFileWithoutOne) {
  ASSERT_EQ(Read(PngSample()), PngResult::Read);
  EXPECT_TRUE(png_.IsBackColor());
  ASSERT_EQ(Read(PngBuilder().Header(0, 8).Image().End()), PngResult::Read);
  EXPECT_FALSE(png_.IsBackColor());
  EXPECT_EQ(png_.BackClrRgb(), 0);
  EXPECT_EQ(png_.backClr().index(), 0U);
}

TEST_F(Png, AFailedReadKeepsTheFormerState) {
  ASSERT_EQ(Read(PngSample()), PngResult::Read);
  const PngBuilder changed = PngBuilder().Header(2, 8, 99, 98).Palette(9);
  EXPECT_EQ(Read(changed.Str()), PngResult::NotValid);
  EXPECT_EQ(Read(PngBuilder(changed).Chunk("CRIT")), PngResult::Unsupported);
  EXPECT_EQ(png_.ReadPngFile(PathOf("missing")), PngResult::NotOpened);
  EXPECT_EQ(png_.pngWidth(), 16);
  EXPECT_EQ(png_.pngHeight(), 8);
  EXPECT_EQ(png_.ColorMode(), 3);
  EXPECT_EQ(png_.ClrTableSize(), 4);
  EXPECT_EQ(png_.GammaVal(), 0.45455F);
  EXPECT_TRUE(png_.IsBackColor());
}

TEST_F(Png, ReadsFromTheDiskAndCloses) {
  const std::string path = MakeFile("picture.png", PngSample().Str());
  const std::size_t open = CountOpenFiles();
  EXPECT_EQ(png_.ReadPngFile(path), PngResult::Read);
  EXPECT_EQ(png_.ReadPngFile(MakeFile("bad.png", "bad")), PngResult::NotValid);
  EXPECT_EQ(CountOpenFiles(), open);
  EXPECT_EQ(png_.ClrTableSize(), 4);
}

TEST_F(Png, SkipsDataThatIsLargerThanAnyBlock) {
  Bytes image;
  image.Byte(0x78).Fill(200000, 0xEE);
  const std::string path =
      MakeFile("picture.png", PngBuilder().Header(3, 8).Palette(5).Chunk("IDAT", image).End().Str());
  EXPECT_EQ(png_.ReadPngFile(path), PngResult::Read);
  EXPECT_EQ(png_.ClrTableSize(), 5);
}

TEST_F(Png, AFileThatCannotBeOpenedHasAReason) {
  EXPECT_EQ(png_.ReadPngFile(PathOf("missing")), PngResult::NotOpened);
  EXPECT_EQ(OpenErrorText(), "No such file or directory");
}

TEST_F(Png, AHugeLengthAllocatesNothing) {
  for (const char* type : {"PLTE", "IDAT", "tEXt", "sBIT"}) {
    const std::string file = PngBuilder().Header(2, 16).Raw(0x7FFFFFFD, type, Bytes().Byte(0x78)).Str();
    const rlimit before = [] {
      rlimit limit{};
      getrlimit(RLIMIT_DATA, &limit);
      return limit;
    }();
    const rlimit tight{256U << 20, before.rlim_max};
    setrlimit(RLIMIT_DATA, &tight);
    EXPECT_EQ(Read(file), PngResult::NotValid) << type;
    setrlimit(RLIMIT_DATA, &before);
  }
}

}  // namespace
}  // namespace brolk::test
