// SPDX-License-Identifier: MIT
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

Bytes Entries(std::size_t count) {
  const auto all = PageBuffer.All();
  return {all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count)};
}

// PageBuffer after a call of ReadTile on a file of these bytes.
Bytes ReadFrom(const Bytes& content, std::int32_t address, std::size_t entries) {
  TempFile file(content);
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), address, static_cast<std::int16_t>((entries + 63) / 64));
  return Entries(entries);
}

// Eight times the same value.
Bytes Rows(std::initializer_list<int> values) {
  Bytes pixels;
  for (const int value : values) pixels.insert(pixels.end(), 8, static_cast<std::uint8_t>(value));
  return pixels;
}

FaultKind FaultOfReading(std::int16_t handle, std::int16_t count) {
  try {
    ReadTile(handle, 0, count);
  } catch (const Fault& fault) {
    return fault.Kind();
  }
  ADD_FAILURE() << "no fault";
  return FaultKind::Overflow;
}

class EveryRegularMode : public ::testing::TestWithParam<int> {
 protected:
  void SetUp() override { GfxMode = static_cast<std::uint8_t>(GetParam()); }
  int TileBytes() const { return NaiveTileBytes(GetParam()); }

  // Holds one call against the naive twin: every entry, and the place where the file stands afterwards.
  void Check(const TempFile& file, const Bytes& content, std::int32_t address, std::int16_t count,
             std::int64_t readsLeft = -1) {
    SCOPED_TRACE("length " + std::to_string(content.size()) + ", address " + std::to_string(address) +
                 ", count " + std::to_string(count) + ", reads " + std::to_string(readsLeft));
    const auto start = static_cast<std::int32_t>(content.size() / 2);
    _llseek(file.Handle(), start, kFromStart);
    PageBuffer.fill(kUntouched);
    FailFileCallsAfter(readsLeft);
    ReadTile(file.Handle(), address, count);
    FailFileCallsAfter(-1);
    NaiveFile twin{content, start, true, readsLeft};
    Bytes expected(kPageBufferLast + 1, kUntouched);
    NaiveRead(GetParam(), twin, address, count, {}, expected);
    EXPECT_TRUE(std::ranges::equal(PageBuffer.All(), expected));
    EXPECT_EQ(OpenFilePosition(file.Handle()), twin.position);
  }
};

TEST_P(EveryRegularMode, EqualsTheNaiveTwinOnAwkwardLengthsAndAddresses) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  const int page = 8 * TileBytes();
  for (const int length : {0, 1, 2, 7, 8, 9, 10, 15, 16, 17, 23, 33, TileBytes() - 1, TileBytes(),
                           TileBytes() + 1, page - 1, page, page + 1}) {
    const Bytes content = random.Take(static_cast<std::size_t>(length));
    const TempFile file(content);
    for (const int address : {0, 1, 5, length - TileBytes(), length - 9, length - 1, length, length + 1,
                              length + 6, length + 7, length + 1000, -1, -100000}) {
      for (const std::int16_t count : {1, 2, 8}) Check(file, content, address, count);
    }
  }
}

TEST_P(EveryRegularMode, EqualsTheNaiveTwinOnLargePages) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  const Bytes content = random.Take(1024 * static_cast<std::size_t>(TileBytes()) + 3);
  const TempFile file(content);
  Check(file, content, 0, 128);
  Check(file, content, 3, 1024);
  Check(file, content, 4, 1024);
}

TEST_P(EveryRegularMode, RepeatsStaleBytesWhenReadsFail) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  const Bytes content = random.Take(static_cast<std::size_t>(2 * TileBytes() - 1));
  const TempFile file(content);
  for (const int reads : {0, 1, 2, 3, 5, TileBytes() - 1, TileBytes(), TileBytes() + 1})
    Check(file, content, 0, 2, reads);
}

TEST_P(EveryRegularMode, FallsBackToSingleReadsWhenThePageCannotBeRead) {
  const Bytes content(static_cast<std::size_t>(4 * TileBytes()), 0xFF);
  Check(TempFile(content), content, 0, 4, 0);
}

TEST_P(EveryRegularMode, GivesTheSamePixelsByteByByte) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  const Bytes content = random.Take(40 * static_cast<std::size_t>(TileBytes()));
  TempFile file(content);
  for (const std::int16_t count : {1, 3, 33}) {
    PageBuffer.fill(kUntouched);
    ReadTile(file.Handle(), 7, count);
    const auto fast = PageBuffer;
    const std::int64_t position = OpenFilePosition(file.Handle());
    PageBuffer.fill(kUntouched);
    _llseek(file.Handle(), 7, kFromStart);
    ReadTilesByteByByte(file.Handle(), count);
    EXPECT_TRUE(PageBuffer == fast);
    EXPECT_EQ(OpenFilePosition(file.Handle()), position);
  }
}

TEST_P(EveryRegularMode, TakesOneReadForAPageInsideTheFile) {
  TempFile file(Bytes(static_cast<std::size_t>(128 * TileBytes()), 1));
  const std::int64_t before = FileReadCalls();
  ReadTile(file.Handle(), 0, 128);
  EXPECT_EQ(FileReadCalls() - before, 1);
}

TEST_P(EveryRegularMode, TakesOneReadForEachByteWhereThePageIsNotInsideTheFile) {
  TempFile file(Bytes(static_cast<std::size_t>(128 * TileBytes() - 1), 1));
  const std::int64_t before = FileReadCalls();
  ReadTile(file.Handle(), 0, 128);
  EXPECT_EQ(FileReadCalls() - before, 128 * TileBytes());
}

TEST_P(EveryRegularMode, GivesZerosPastTheEndOfTheFile) {
  EXPECT_EQ(ReadFrom(Bytes(50, 0xFF), 50 + 8, 128), Bytes(128, 0));
}

TEST_P(EveryRegularMode, GivesZerosThroughAClosedOrStaleHandle) {
  std::int16_t stale = -1;
  {
    TempFile closed(Bytes(200, 0xFF));
    stale = closed.Handle();
  }
  TempFile other(Bytes(200, 0xFF));
  for (const std::int16_t handle : {stale, std::int16_t{-1}, std::int16_t{0}}) {
    PageBuffer.fill(kUntouched);
    ReadTile(handle, 0, 2);
    EXPECT_EQ(Entries(129), [] {
      Bytes expected(128, 0);
      expected.push_back(kUntouched);
      return expected;
    }());
  }
  EXPECT_EQ(OpenFilePosition(other.Handle()), 0);
}

TEST_P(EveryRegularMode, StartsEveryCallWithAnEmptyLocalArray) {
  TempFile file(Bytes(64, 0xFF));
  ReadTile(file.Handle(), 0, 1);
  ReadTile(file.Handle(), 1000, 1);
  EXPECT_EQ(Entries(64), Bytes(64, 0));
}

TEST_P(EveryRegularMode, MovesTheFileAndReadsNothingForACountOfZeroAndBelow) {
  TempFile file(Bytes(64, 0xFF));
  for (const std::int16_t count : {0, -1, -128, -32767}) {
    _llseek(file.Handle(), 9, kFromStart);
    PageBuffer.fill(kUntouched);
    const std::int64_t before = FileReadCalls();
    ReadTile(file.Handle(), 5, count);
    EXPECT_EQ(OpenFilePosition(file.Handle()), 5);
    EXPECT_EQ(FileReadCalls(), before);
    EXPECT_EQ(Entries(1)[0], kUntouched);
  }
}

TEST_P(EveryRegularMode, FillsThePageOf1024TilesAndLeavesTheLastEntry) {
  TempFile file(Bytes(1024 * static_cast<std::size_t>(TileBytes()), 0xFF));
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), 0, 1024);
  EXPECT_EQ(PageBuffer[65535], (1 << NaiveBitsPerPixel(GetParam())) - 1);
  EXPECT_EQ(PageBuffer[65536], kUntouched);
}

// What entry 65536 holds when entry 65537 ends the call, in a file of bytes 0xFF: the modes differ in what
// they have done by then.
int LastEntryAtTheFault(int mode) {
  switch (mode) {
    case 5:  // its pixels are written from the right
      return kUntouched;
    case 6:
    case 9:  // both pixels of a byte are zeroed first
      return 0;
    case 3:
    case 8:
    case 11:
    case 13:  // the first pass over the tile brings two planes
      return 3;
    default:
      return (1 << NaiveBitsPerPixel(mode)) - 1;
  }
}

TEST_P(EveryRegularMode, FaultsAtEntry65537AndKeepsWhatWasWritten) {
  TempFile file(Bytes(1025 * static_cast<std::size_t>(TileBytes()), 0xFF));
  for (const std::int16_t count : {std::int16_t{1025}, std::int16_t{32767}, std::int16_t{-32768}}) {
    PageBuffer.fill(kUntouched);
    EXPECT_EQ(FaultOfReading(file.Handle(), count), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(PageBuffer[0], (1 << NaiveBitsPerPixel(GetParam())) - 1);
    EXPECT_EQ(PageBuffer[65535], (1 << NaiveBitsPerPixel(GetParam())) - 1);
    EXPECT_EQ(PageBuffer[65536], LastEntryAtTheFault(GetParam()));
  }
  EXPECT_EQ(file.Bytes(), Bytes(1025 * static_cast<std::size_t>(TileBytes()), 0xFF));
}

INSTANTIATE_TEST_SUITE_P(Modes, EveryRegularMode, ::testing::ValuesIn(kRegularModes),
                         [](const auto& test) { return ModeLabel(test.param); });

TEST(GameboyAtTheEnd, RepeatsTheLastByteOfEachPlane) {
  GfxMode = kGameboy;
  // Row 0 from bytes 0 and 1, row 1 from 2 and 3, row 2 from byte 4 and byte 3 again, all others like it.
  EXPECT_EQ(ReadFrom({0xFF, 0x00, 0x00, 0xFF, 0xFF}, 0, 64), Rows({1, 2, 3, 3, 3, 3, 3, 3}));
  EXPECT_EQ(ReadFrom({0x00, 0xFF, 0xFF, 0x00, 0xFF}, 0, 64), Rows({2, 1, 1, 1, 1, 1, 1, 1}));
}

TEST(NesAtTheEnd, StandsStillWhenTheSecondPlaneIsMissing) {
  GfxMode = kNes;
  // Byte 9 is the last that the second plane gets; the seek back lands on byte 2 for row 2 and all after it.
  EXPECT_EQ(ReadFrom({0xFF, 0x00, 0xFF, 0x0F, 0x0F, 0x0F, 0x0F, 0x0F, 0x00, 0xFF}, 0, 64),
            Rows({1, 2, 3, 3, 3, 3, 3, 3}));
  TempFile file({0xFF, 0x00, 0xFF, 0x0F, 0x0F, 0x0F, 0x0F, 0x0F, 0x00, 0xFF});
  ReadTile(file.Handle(), 0, 1);
  EXPECT_EQ(OpenFilePosition(file.Handle()), 2 + 8);
}

TEST(NesAtTheEnd, MovesBackByOneForARowWithoutReads) {
  GfxMode = kNes;
  // Three bytes past the end: rows 0, 1, 2 read nothing and go back to byte 9, the last. It is read again in
  // row 3, and the failing second read brings each row after it back to it.
  EXPECT_EQ(ReadFrom({0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF}, 12, 64), Rows({0, 0, 0, 1, 1, 1, 1, 1}));
}

TEST(NesAtTheEnd, StaysWhereItIsWhenASeekWouldBeNegative) {
  GfxMode = kNes;
  TempFile file({});
  ReadTile(file.Handle(), 0, 1);
  // Row 0 fails to go back from 7 by 8 and stays; the seven rows after it go back by 1 each, the tile ends 8
  // on.
  EXPECT_EQ(OpenFilePosition(file.Handle()), 7 - 7 + 8);
}

TEST(Snes4AtTheEnd, TakesTheUpperPlanesFromTheLastTwoBytes) {
  GfxMode = kSnes4;
  Bytes content(16, 0x00);
  content[14] = 0xFF;
  EXPECT_EQ(ReadFrom(content, 0, 64), Rows({4, 4, 4, 4, 4, 4, 4, 5}));
  content[14] = 0x00;
  content[15] = 0xFF;
  EXPECT_EQ(ReadFrom(content, 0, 64), Rows({8, 8, 8, 8, 8, 8, 8, 10}));
}

TEST(Snes3AtTheEnd, TakesTheThirdPlaneFromTheFirstEntry) {
  GfxMode = kSnes3;
  Bytes content(16, 0x00);
  content[14] = 0xFF;
  EXPECT_EQ(ReadFrom(content, 0, 64), Rows({4, 4, 4, 4, 4, 4, 4, 5}));
  content[14] = 0x00;
  content[15] = 0xFF;
  EXPECT_EQ(ReadFrom(content, 0, 64), Rows({0, 0, 0, 0, 0, 0, 0, 2}));
}

TEST(GameGearAtTheEnd, RepeatsEachOfItsFourBytes) {
  GfxMode = kGameGear;
  EXPECT_EQ(ReadFrom({0xFF, 0x00, 0xFF, 0x00, 0x00, 0xFF}, 0, 64), Rows({5, 6, 6, 6, 6, 6, 6, 6}));
}

TEST(PackedModesAtTheEnd, RepeatTheLastByte) {
  GfxMode = kMegaDrive;
  EXPECT_EQ(ReadFrom({0x12, 0x34}, 0, 6), (Bytes{1, 2, 3, 4, 3, 4}));
  GfxMode = kGba4;
  EXPECT_EQ(ReadFrom({0x12, 0x34}, 0, 6), (Bytes{2, 1, 4, 3, 4, 3}));
  GfxMode = kGba8;
  EXPECT_EQ(ReadFrom({7, 9}, 0, 4), (Bytes{7, 9, 9, 9}));
  GfxMode = kNeoGeoPocket;
  EXPECT_EQ(ReadFrom({0xE4, 0x1B, 0x00}, 0, 16), (Bytes{0, 1, 2, 3, 3, 2, 1, 0, 0, 1, 2, 3, 0, 0, 0, 0}));
}

TEST(ReadTile, DoesNothingButSeekInModesBeyondTheTable) {
  TempFile file(Bytes(64, 0xFF));
  for (const std::uint8_t mode : {15, 16, 255}) {
    GfxMode = mode;
    PageBuffer.fill(kUntouched);
    ReadTile(file.Handle(), 11, 4);
    EXPECT_EQ(OpenFilePosition(file.Handle()), 11);
    EXPECT_EQ(Entries(1)[0], kUntouched);
  }
}

TEST(ReadTile, ReadsOnFromTheOldPositionAfterANegativeAddress) {
  GfxMode = kGba8;
  TempFile file({1, 2, 3, 4, 5});
  _llseek(file.Handle(), 2, kFromStart);
  ReadTile(file.Handle(), -1, 1);
  EXPECT_EQ(Entries(4), (Bytes{3, 4, 5, 5}));
}

TEST(ReadTile, LeavesLaterEntriesOfAnEarlierPage) {
  GfxMode = kOneBit;
  TempFile file({0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF});
  PageBuffer.fill(kUntouched);
  ReadTile(file.Handle(), 0, 1);
  EXPECT_EQ(Entries(64), Bytes(64, 1));
  EXPECT_EQ(PageBuffer[64], kUntouched);
}

}  // namespace
}  // namespace brolk::test
