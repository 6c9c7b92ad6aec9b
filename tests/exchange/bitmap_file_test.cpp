// SPDX-License-Identifier: MIT
#include "exchange/bitmap_file.h"

#include <gtest/gtest.h>

#include <random>

#include "runtime/files.h"
#include "support/rule_files.h"
#include "tile/shared.h"

namespace brolk {
namespace {

using test::Bytes;

// The header as it stands in a file, line for line: offset, size, field.
const std::string kHeader = Bytes(
    "\x42\x4D"          //  0 "BM"
    "\x36\x44\x00\x00"  //  2 file size 17462
    "\x00\x00\x00\x00"  //  6 reserved
    "\x36\x04\x00\x00"  // 10 offset of the pixels 1078
    "\x28\x00\x00\x00"  // 14 size of the info header 40
    "\x80\x00\x00\x00"  // 18 width 128
    "\x80\x00\x00\x00"  // 22 height 128
    "\x01\x00"          // 26 planes
    "\x08\x00"          // 28 bits per pixel
    "\x00\x00\x00\x00"  // 30 compression
    "\x00\x20\x00\x00"  // 34 image size 8192
    "\x00\x00\x00\x00"  // 38 horizontal resolution
    "\x00\x00\x00\x00"  // 42 vertical resolution
    "\x10\x00\x00\x00"  // 46 colours used 16
    "\x10\x00\x00\x00"  // 50 important colours 16
);

std::uint8_t ByteAt(const std::string& bytes, std::size_t at) {
  return static_cast<std::uint8_t>(bytes.at(at));
}

class BitmapFile : public testing::Test {
 protected:
  BitmapFile() {
    InitBmpHeader();
    SetDefaultPalette();
    ClearAllSlots();
  }

  // Random pixels in all slots; the seed is told when the test fails.
  static void FillSlots(unsigned seed) {
    std::mt19937 random(seed);
    for (EditSlot& slot : EditSlots) {
      for (std::uint8_t& pixel : slot.Pixels) pixel = static_cast<std::uint8_t>(random());
      slot.Address = static_cast<std::int32_t>(random() & 0xFFFFFF);
    }
  }

  static BmpImport Import(const std::string& path) { return ImportBmpFile(FileSource::AtPath(path)); }

  // A valid file with these pixels: file byte i is i mod 256.
  static std::string CountingPicture() {
    std::string bytes = EncodeBmp(Palette, EditSlots);
    for (std::size_t i = 0; i < kBmpPixelBytes; ++i) bytes[1078 + i] = static_cast<char>(i);
    return bytes;
  }
};

TEST_F(BitmapFile, HeaderStringsHoldTheFixedBytes) {
  EXPECT_EQ(BmpHeadBytes, kHeader.substr(0, 32));
  EXPECT_EQ(BmpTailBytes, kHeader.substr(32));
}

TEST_F(BitmapFile, HasExactly17462Bytes) {
  EXPECT_EQ(EncodeBmp(Palette, EditSlots).size(), 17462U);
}

TEST_F(BitmapFile, FirstFileRowIsTheBottomOfTheGrid) {
  EXPECT_EQ(PlaceInSlots(0, 0).slot, 240);
  EXPECT_EQ(PlaceInSlots(0, 0).pixel, 56);
  EXPECT_EQ(PlaceInSlots(127, 0).slot, 0);
  EXPECT_EQ(PlaceInSlots(127, 0).pixel, 0);
  EXPECT_EQ(PlaceInSlots(127, 127).slot, 15);
  EXPECT_EQ(PlaceInSlots(127, 127).pixel, 7);
  EXPECT_EQ(PlaceInSlots(0, 127).slot, 255);
  EXPECT_EQ(PlaceInSlots(0, 127).pixel, 63);
  EXPECT_EQ(PlaceInSlots(13, 21).slot, 14 * 16 + 2);
  EXPECT_EQ(PlaceInSlots(13, 21).pixel, 5 + 2 * 8);
}

TEST_F(BitmapFile, EveryPixelOfTheGridHasOnePlace) {
  std::vector<int> seen(256 * 64);
  for (int row = 0; row < 128; ++row) {
    for (int column = 0; column < 128; ++column) {
      const SlotPixel place = PlaceInSlots(row, column);
      // Seen as a picture from the top: slot column and line, then the place in the slot.
      EXPECT_EQ(place.slot % 16 * 8 + place.pixel % 8, column);
      EXPECT_EQ(place.slot / 16 * 8 + place.pixel / 8, 127 - row);
      ++seen[place.slot * 64U + place.pixel];
    }
  }
  EXPECT_EQ(std::count(seen.begin(), seen.end(), 1), 256 * 64);
}

TEST_F(BitmapFile, ColorsAreBlueGreenRedZero) {
  Palette[0] = 0x00302010;
  Palette[255] = 0x00FF0001;
  const std::string bytes = EncodeBmp(Palette, EditSlots);
  EXPECT_EQ(bytes.substr(54, 4), Bytes("\x30\x20\x10\x00"));
  EXPECT_EQ(bytes.substr(54 + 255 * 4, 4), Bytes("\xFF\x00\x01\x00"));
}

TEST_F(BitmapFile, ColorsWithATopByteAreTakenApartByDivision) {
  Palette[7] = -14326;
  EXPECT_EQ(EncodeBmp(Palette, EditSlots).substr(54 + 7 * 4, 4), Bytes("\x00\xC9\x0A\x00"));
}

TEST_F(BitmapFile, NonCopiedSlotsGoOutAsTheirPixels) {
  EditSlots[0].Pixels[0] = 9;
  ASSERT_EQ(EditSlots[0].Address, kNonCopied);
  const std::string bytes = EncodeBmp(Palette, EditSlots);
  EXPECT_EQ(ByteAt(bytes, 1078 + 127 * 128), 9);
  EXPECT_EQ(ByteAt(bytes, 1078), 0);
}

TEST_F(BitmapFile, ExportWritesTheFileByteForByte) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  FillSlots(seed);
  const std::string path = test::RulePath("out.bmp");
  ExportBmpFile(path);
  std::string expected = kHeader;
  for (int i = 0; i < 256; ++i) {
    const ColorValue color = Palette[i];
    expected +=
        {static_cast<char>(color >> 16), static_cast<char>(color >> 8), static_cast<char>(color), '\0'};
  }
  for (int y = 127; y >= 0; --y) {
    for (int x = 0; x < 128; ++x)
      expected += static_cast<char>(EditSlots[y / 8 * 16 + x / 8].Pixels[y % 8 * 8 + x % 8]);
  }
  EXPECT_EQ(test::ReadRuleFile(path), expected);
}

TEST_F(BitmapFile, ExportReplacesALongerFile) {
  const std::string path = test::WriteRuleFile("long.bmp", std::string(30000, 'x'));
  ExportBmpFile(path);
  EXPECT_EQ(test::ReadRuleFile(path).size(), 17462U);
}

TEST_F(BitmapFile, ExportWritesEachByteByItself) {
  FillSlots(1);
  const std::string whole = EncodeBmp(Palette, EditSlots);
  for (const int calls : {0, 1, 53, 54, 1077, 1078, 1079, 17461}) {
    const std::string path = test::RulePath("full.bmp");
    FailFileCallsAfter(calls);
    ExportBmpFile(path);
    FailFileCallsAfter(-1);
    EXPECT_EQ(test::ReadRuleFile(path), whole.substr(0, static_cast<std::size_t>(calls)));
  }
}

TEST_F(BitmapFile, ExportChangesNothingButTheFile) {
  FillSlots(2);
  hFile = 77;
  const SlotTable slotsBefore = EditSlots;
  const PaletteTable paletteBefore = Palette;
  ExportBmpFile(test::RulePath("quiet.bmp"));
  EXPECT_EQ(hFile, 77);
  EXPECT_EQ(Palette, paletteBefore);
  for (int slot = 0; slot <= 255; ++slot) {
    EXPECT_EQ(EditSlots[slot].Pixels, slotsBefore[slot].Pixels);
    EXPECT_EQ(EditSlots[slot].Address, slotsBefore[slot].Address);
  }
}

TEST_F(BitmapFile, ExportToAPlaceThatCannotBeCreatedGoesUnnoticed) {
  EXPECT_NO_THROW(ExportBmpFile(test::RulePath("no-such-folder/out.bmp")));
}

TEST_F(BitmapFile, ExportThenImportGivesTheSamePixelsAndColors) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  FillSlots(seed);
  ClearSlot(17);
  EditSlots[17].Address = 4096;  // addressed, but all zero
  const SlotTable before = EditSlots;
  const PaletteTable colors = Palette;
  const std::string path = test::RulePath("trip.bmp");
  ExportBmpFile(path);
  Palette.fill(0);
  ClearAllSlots();
  ASSERT_EQ(Import(path), BmpImport::Done);
  EXPECT_EQ(Palette, colors);
  for (int slot = 0; slot <= 255; ++slot) {
    EXPECT_EQ(EditSlots[slot].Pixels, before[slot].Pixels) << slot;
    EXPECT_EQ(EditSlots[slot].Address, slot == 17 ? kNonCopied : kUnaddressed) << slot;
  }
}

TEST_F(BitmapFile, ImportRebuildsTheSurfacesInTheImportedColors) {
  std::string bytes = CountingPicture();
  bytes.replace(54 + 5 * 4, 4, Bytes("\x11\x22\x33\x44"));
  ASSERT_EQ(Import(test::WriteRuleFile("colors.bmp", bytes)), BmpImport::Done);
  EXPECT_EQ(Palette[5], 0x112233) << "the fourth byte plays no part";
  EXPECT_EQ(EditSlots[240].Pixels[56 + 5], 5);
  EXPECT_EQ(EditSlots[240].SlotSurface.GetPixel(5, 7), 0x112233);
}

TEST_F(BitmapFile, AllPixelValuesSurvive) {
  ASSERT_EQ(Import(test::WriteRuleFile("counting.bmp", CountingPicture())), BmpImport::Done);
  EXPECT_EQ(EditSlots[15 * 16 + 15].Pixels[55], 255) << "second row of the file, last column";
  EXPECT_EQ(EncodeBmp(Palette, EditSlots), CountingPicture());
}

TEST_F(BitmapFile, SlotsOfZerosBecomeNonCopied) {
  FillSlots(3);
  std::string bytes = EncodeBmp(Palette, EditSlots);
  for (std::size_t i = 1078; i < bytes.size(); ++i) bytes[i] = 0;
  bytes[1078] = 1;  // one pixel of slot 240
  ASSERT_EQ(Import(test::WriteRuleFile("zeros.bmp", bytes)), BmpImport::Done);
  for (int slot = 0; slot <= 255; ++slot)
    EXPECT_EQ(EditSlots[slot].Address, slot == 240 ? kUnaddressed : kNonCopied) << slot;
}

TEST_F(BitmapFile, UnusualColorTableImportsAsItStands) {
  std::string bytes = CountingPicture();
  for (std::size_t i = 0; i < 1024; ++i) bytes[54 + i] = static_cast<char>(0xFF - i);
  ASSERT_EQ(Import(test::WriteRuleFile("unusual.bmp", bytes)), BmpImport::Done);
  EXPECT_EQ(Palette[0], 0xFFFEFD);
  EXPECT_EQ(Palette[1], 0xFBFAF9);
  EXPECT_EQ(Palette[255], 0x030201);
}

TEST_F(BitmapFile, BytesFrom32To53AreNotLookedAt) {
  std::string bytes = CountingPicture();
  for (std::size_t i = 32; i < 54; ++i) bytes[i] = '\xA5';
  EXPECT_EQ(Import(test::WriteRuleFile("loose.bmp", bytes)), BmpImport::Done);
}

TEST_F(BitmapFile, EachOfTheFirst32BytesMustFit) {
  const SlotTable before = EditSlots;
  for (std::size_t i = 0; i < 32; ++i) {
    std::string bytes = CountingPicture();
    bytes[i] = static_cast<char>(bytes[i] ^ 0x40);
    EXPECT_EQ(Import(test::WriteRuleFile("header.bmp", bytes)), BmpImport::WrongHeader) << i;
  }
  EXPECT_EQ(EditSlots[240].Pixels, before[240].Pixels) << "a refused file changes nothing";
}

TEST_F(BitmapFile, NegativeHeightFailsTheHeader) {
  std::string bytes = CountingPicture();
  bytes.replace(22, 4, Bytes("\x80\xFF\xFF\xFF"));
  EXPECT_EQ(Import(test::WriteRuleFile("topdown.bmp", bytes)), BmpImport::WrongHeader);
}

TEST_F(BitmapFile, SizeTestComesFirst) {
  const std::string bytes = CountingPicture();
  EXPECT_EQ(Import(test::WriteRuleFile("longer.bmp", bytes + "x")), BmpImport::WrongSize);
  EXPECT_EQ(Import(test::WriteRuleFile("wrong.bmp", std::string(17463, 'x'))), BmpImport::WrongSize);
  EXPECT_EQ(Import(test::WriteRuleFile("right.bmp", std::string(17462, 'x'))), BmpImport::WrongHeader);
}

TEST_F(BitmapFile, EveryShorterFileHasTheWrongSize) {
  const std::string bytes = CountingPicture();
  for (const std::size_t length : {0U, 1U, 31U, 32U, 53U, 54U, 1077U, 1078U, 17461U})
    EXPECT_EQ(Import(test::WriteRuleFile("short.bmp", bytes.substr(0, length))), BmpImport::WrongSize);
  EXPECT_EQ(Import(test::RulePath("not-there.bmp")), BmpImport::WrongSize);
}

TEST_F(BitmapFile, ImportHasAHandleOfItsOwn) {
  hFile = OpenFile(test::WriteRuleFile("rom.bin", "rom"), kOpenRead);
  const std::int16_t before = hFile;
  ASSERT_EQ(Import(test::WriteRuleFile("own.bmp", CountingPicture())), BmpImport::Done);
  EXPECT_EQ(hFile, before);
  EXPECT_EQ(OpenFileLength(hFile), 3);
  _lclose(hFile);
}

TEST_F(BitmapFile, ImportClosesItsFile) {
  const std::int16_t before = OpenFile(test::WriteRuleFile("count.bin", ""), kOpenRead);
  const std::string path = test::WriteRuleFile("closed.bmp", CountingPicture());
  ASSERT_EQ(Import(path), BmpImport::Done);
  const auto taken = static_cast<std::int16_t>(before + 1);
  EXPECT_EQ(_lclose(taken), -1) << "handle numbers are given out in order";
  _lclose(before);
}

}  // namespace
}  // namespace brolk
