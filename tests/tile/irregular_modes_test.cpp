// SPDX-License-Identifier: MIT
// Bitmap Mode and the PC Engine sprite: the modes without a layout of 64 pixels.
#include <gtest/gtest.h>

#include <algorithm>

#include "runtime/fault.h"
#include "runtime/files.h"
#include "support/random_bytes.h"
#include "support/temp_file.h"
#include "tile/exact_read.h"
#include "tile/modes.h"
#include "tile/naive_tile.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk::test {
namespace {

constexpr std::uint8_t kUntouched = 0xEE;
constexpr int k1Bpp = 0;
constexpr int k2Bpp = 1;
constexpr int k4Bpp = 2;
constexpr int k8Bpp = 3;

Bytes Entries(std::size_t count) {
  const auto all = PageBuffer.All();
  return {all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count)};
}

void SetShape(int depth, int width, int height) {
  GfxMode = kBitmapMode;
  BitmapModePosition = static_cast<std::int16_t>(depth);
  TileWidth = static_cast<std::int16_t>(width);
  TileHeight = static_cast<std::int16_t>(height);
}

Bytes ReadFrom(const Bytes& content, std::size_t entries, std::int16_t count = 1) {
  TempFile file(content);
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), 0, count);
  return Entries(entries);
}

// Runs a call that must end in the subscript fault.
void ExpectFault(const TempFile& file, std::int16_t count) {
  PageBuffer.fill(kUntouched);
  try {
    ReadTile(file.Handle(), 0, count);
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::SubscriptOutOfRange);
  }
}

// Holds a call against the naive twin, from the file and byte by byte.
void CheckAgainstTwin(const TempFile& file, const Bytes& content, std::int32_t address, std::int16_t count,
                      BitmapShape shape = {}) {
  SCOPED_TRACE("depth " + std::to_string(shape.depth) + ", " + std::to_string(shape.width) + " by " +
               std::to_string(shape.height) + ", length " + std::to_string(content.size()) + ", address " +
               std::to_string(address) + ", count " + std::to_string(count));
  _llseek(file.Handle(), 0, kFromStart);
  NaiveFile twin{content, 0};
  Bytes expected(kPageBufferLast + 1, kUntouched);
  NaiveRead(GfxMode, twin, address, count, shape, expected);
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), address, count);
  EXPECT_TRUE(std::ranges::equal(PageBuffer.All(), expected));
  EXPECT_EQ(OpenFilePosition(file.Handle()), twin.position);
  PageBuffer.fill(kUntouched);
  _llseek(file.Handle(), 0, kFromStart);
  _llseek(file.Handle(), address, kFromStart);
  ReadTilesByteByByte(file.Handle(), count);
  EXPECT_TRUE(std::ranges::equal(PageBuffer.All(), expected));
}

TEST(BitmapMode, EqualsTheNaiveTwinInAllDepthsAndShapes) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  for (const int depth : {k1Bpp, k2Bpp, k4Bpp, k8Bpp}) {
    for (const BitmapShape size : {BitmapShape{depth, 8, 8},
                                   {depth, 1, 2},
                                   {depth, 2, 1},
                                   {depth, 16, 8},
                                   {depth, 9, 3},
                                   {depth, 5, 7},
                                   {depth, 31, 31},
                                   {depth, 32, 24},
                                   {depth, 187, 187}}) {
      if (BitmapReads(size) == 0) continue;
      SetShape(depth, size.width, size.height);
      for (const int length : {0, 1, 7, 8, 9, 33, 4000}) {
        const Bytes content = random.Take(static_cast<std::size_t>(length));
        const TempFile file(content);
        for (const int address : {0, 3, length - 1, length, -1}) {
          for (const std::int16_t count : {1, 2, 8}) {
            if (count * size.width * size.height > kPageBufferLast) continue;
            CheckAgainstTwin(file, content, address, count, size);
          }
        }
      }
    }
  }
}

TEST(BitmapMode, TakesOneReadForAPageInsideTheFile) {
  SetShape(k4Bpp, 16, 12);
  TempFile file(Bytes(96 * 20, 0x12));
  const std::int64_t before = FileReadCalls();
  ReadTile(file.Handle(), 0, 20);
  EXPECT_EQ(FileReadCalls() - before, 1);
}

TEST(BitmapMode, FillsRowsBeyondTheEighthPixelWithOnes) {
  SetShape(k1Bpp, 16, 2);
  TempFile file({0xA5, 0x00, 0xFF});
  ReadTile(file.Handle(), 0, 1);
  EXPECT_EQ(Entries(32), (Bytes{1, 0, 1, 0, 0, 1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1,  //
                                0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1}));
  EXPECT_EQ(OpenFilePosition(file.Handle()), 2);
}

TEST(BitmapMode, TakesOneByteForARowNarrowerThanEight) {
  SetShape(k1Bpp, 3, 2);
  EXPECT_EQ(ReadFrom({0xA0, 0x40}, 7), (Bytes{1, 0, 1, 0, 1, 0, kUntouched}));
}

TEST(BitmapMode, WritesAOneInEveryFourthEntryAt2Bpp) {
  SetShape(k2Bpp, 8, 3);
  TempFile file({0x00, 0xFF, 0x1B, 0x77});
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), 0, 1);
  const std::uint8_t u = kUntouched;
  EXPECT_EQ(Entries(13), (Bytes{1, u, u, u, 1, u, u, u, 1, u, u, u, u}));
  EXPECT_EQ(OpenFilePosition(file.Handle()), 3);
}

TEST(BitmapMode, TakesTheLowNibbleFirstAt4Bpp) {
  SetShape(k4Bpp, 2, 2);
  EXPECT_EQ(ReadFrom({0x12, 0xAF}, 5), (Bytes{2, 1, 15, 10, kUntouched}));
}

TEST(BitmapMode, DropsTheLastPixelOfAnOddAreaAt4Bpp) {
  SetShape(k4Bpp, 7, 5);
  TempFile file(Bytes(40, 0x33));
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), 0, 1);
  EXPECT_EQ(OpenFilePosition(file.Handle()), 17);
  EXPECT_EQ(PageBuffer[33], 3);
  EXPECT_EQ(PageBuffer[34], kUntouched);
}

TEST(BitmapMode, CountsByTheLowByteAt8Bpp) {
  SetShape(k8Bpp, 17, 16);  // 272 is 16 in its low byte
  TempFile file(Bytes(300, 5));
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), 0, 1);
  EXPECT_EQ(PageBuffer[15], 5);
  EXPECT_EQ(PageBuffer[16], kUntouched);
  EXPECT_EQ(OpenFilePosition(file.Handle()), 16);
}

TEST(BitmapMode, ReadsNothingAtAListPositionOutsideTheFour) {
  TempFile file(Bytes(64, 0xFF));
  for (const int position : {-1, 4}) {
    SetShape(position, 8, 8);
    PageBuffer.fill(kUntouched);
    ReadTile(file.Handle(), 3, 100);
    EXPECT_EQ(Entries(1)[0], kUntouched);
    EXPECT_EQ(OpenFilePosition(file.Handle()), 3);
  }
}

TEST(BitmapMode, FaultsWhereALimitHasALowByteOfZero) {
  TempFile file(Bytes(100, 0x21));
  SetShape(k8Bpp, 16, 16);
  ExpectFault(file, 1);
  EXPECT_EQ(PageBuffer[65536], 0x21);
  SetShape(k4Bpp, 32, 16);
  ExpectFault(file, 1);
  EXPECT_EQ(PageBuffer[65535], 2);
  EXPECT_EQ(PageBuffer[65536], 0);  // zeroed, then the fault
  SetShape(k1Bpp, 0, 8);
  ExpectFault(file, 1);
  EXPECT_EQ(PageBuffer[0], 0);  // 0x21 has no highest bit
  EXPECT_EQ(PageBuffer[65535], 1);
  EXPECT_EQ(PageBuffer[65536], 0);  // the counter of the row came to 0 again
  SetShape(k1Bpp, 8, 0);
  ExpectFault(file, 1);
  EXPECT_EQ(PageBuffer[65536], 0);
  SetShape(k2Bpp, 8, 0);
  ExpectFault(file, 1);
  EXPECT_EQ(PageBuffer[65532], 1);
  EXPECT_EQ(PageBuffer[65536], 1);
  EXPECT_EQ(file.Bytes(), Bytes(100, 0x21));
}

TEST(BitmapMode, FaultsAt4BppWithAnAreaOfOne) {
  SetShape(k4Bpp, 1, 1);  // half of it is 0
  TempFile file(Bytes(100, 0x21));
  ExpectFault(file, 1);
}

TEST(BitmapMode, DecodesNothingWhenTheTileCountWrapsToZero) {
  SetShape(k8Bpp, 1, 1);
  MainRows = 256;
  MainLines = 256;
  TempFile file(Bytes(64, 0xFF));
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), 0, static_cast<std::int16_t>(MainRows * MainLines));
  EXPECT_EQ(Entries(1)[0], kUntouched);
}

TEST(BitmapMode, FaultsAtTheCountWhoseLimitWraps) {
  SetShape(k8Bpp, 1, 1);
  TempFile file(Bytes(64, 0xFF));
  ExpectFault(file, -32768);
  EXPECT_EQ(PageBuffer[65536], 0xFF);
}

TEST(BitmapMode, UsesTheLastEntryWhenTheCallEndsThere) {
  SetShape(k8Bpp, 1, 1);
  TempFile file(Bytes(40000, 9));
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), 0, 32767);
  EXPECT_EQ(PageBuffer[32766], 9);
  EXPECT_EQ(PageBuffer[32767], kUntouched);
  SetShape(k2Bpp, 8, 1);  // entries 0, 4, ..., 65536
  const std::int64_t before = FileReadCalls();
  ReadTile(file.Handle(), 0, 16385);
  EXPECT_EQ(FileReadCalls() - before, 1);
  EXPECT_EQ(PageBuffer[65536], 1);
  ExpectFault(file, 16386);
}

TEST(PcEngineSprite, EqualsTheNaiveTwin) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  GfxMode = kPcEngineSprite;
  for (const int length : {0, 1, 7, 8, 9, 33, 127, 128, 129, 256, 1300, 5000}) {
    const Bytes content = random.Take(static_cast<std::size_t>(length));
    const TempFile file(content);
    for (const int address : {0, 3, length - 128, length - 1, length, -1}) {
      for (const std::int16_t count : {1, 2, 10}) CheckAgainstTwin(file, content, address, count);
    }
  }
}

TEST(PcEngineSprite, TakesOneReadForAPageInsideTheFile) {
  GfxMode = kPcEngineSprite;
  TempFile file(Bytes(128 * 128, 1));
  const std::int64_t before = FileReadCalls();
  ReadTile(file.Handle(), 0, 128);
  EXPECT_EQ(FileReadCalls() - before, 1);
  EXPECT_EQ(OpenFilePosition(file.Handle()), 128 * 128);
}

TEST(PcEngineSprite, PutsTheSecondByteLeftAndTheFirstEightEntriesOn) {
  GfxMode = kPcEngineSprite;
  Bytes content(128, 0x00);
  content[0] = 0x80;   // row 0, first byte: weight 1 at entry 8, which the steps at x = 4 zero again
  content[1] = 0x80;   // row 0, second byte: weight 1 at entry 0
  content[33] = 0x40;  // second pass: weight 2 at entry 2
  content[64] = 0x80;  // third pass: weight 4 at entry 8
  content[96] = 0x01;  // fourth pass, x = 7 of the first byte: weight 8 at entry 22
  Bytes expected(24, 0);
  expected[0] = 1;
  expected[2] = 2;
  expected[8] = 4;
  expected[22] = 8;
  for (std::size_t odd = 1; odd < expected.size(); odd += 2) expected[odd] = kUntouched;
  EXPECT_EQ(ReadFrom(content, 24), expected);
}

TEST(PcEngineSprite, AddsWhereTheEntriesOfARowMeet) {
  GfxMode = kPcEngineSprite;
  Bytes content(128, 0x00);
  content[32] = 0x80;  // second pass, first byte, x = 0: entry 8
  content[33] = 0x08;  // second byte, x = 4: entry 8 too
  EXPECT_EQ(ReadFrom(content, 9)[8], 4);
}

TEST(PcEngineSprite, NeverWritesOddEntries) {
  GfxMode = kPcEngineSprite;
  const Bytes entries = ReadFrom(Bytes(128 * 3, 0xFF), 256 * 3, 3);
  for (std::size_t odd = 1; odd < entries.size(); odd += 2) ASSERT_EQ(entries[odd], kUntouched) << odd;
}

TEST(PcEngineSprite, FaultsInTile255) {
  GfxMode = kPcEngineSprite;
  TempFile file(Bytes(256 * 128, 0xFF));
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), 0, 255);
  EXPECT_EQ(PageBuffer[65286], 8 + 4 + 2 + 1);
  EXPECT_EQ(PageBuffer[65288], kUntouched);
  ExpectFault(file, 256);
  EXPECT_EQ(PageBuffer[65528], 1);  // the first entry at the last bit that fits
  EXPECT_EQ(PageBuffer[65536], 1);  // the second
  EXPECT_EQ(PageBuffer[65530], 0);  // zeroed before its partner 65538 ended the call
  EXPECT_EQ(OpenFilePosition(file.Handle()), 255 * 128 + 2 * 16);
}

}  // namespace
}  // namespace brolk::test
