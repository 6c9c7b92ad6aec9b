// SPDX-License-Identifier: MIT
#include "tile/encode.h"

#include <gtest/gtest.h>

#include "editor/slots.h"
#include "runtime/fault.h"
#include "runtime/files.h"
#include "support/random_bytes.h"
#include "support/temp_file.h"
#include "tile/modes.h"
#include "tile/naive_tile.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk::test {
namespace {

Bytes Encode(int mode, const Bytes& pixels) {
  const EncodedTile tile =
      EncodeTile(static_cast<std::uint8_t>(mode), std::span<const std::uint8_t, 64>(pixels.data(), 64));
  return {tile.Bytes().begin(), tile.Bytes().end()};
}

// What a whole tile of one value, or of one value in the left and one in the right pixel of each pair, comes
// back as.
Bytes PairThroughMode(int mode, std::uint8_t left, std::uint8_t right) {
  Bytes pixels(64);
  for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = i % 2 == 0 ? left : right;
  const Bytes back = NaiveDecode(mode, Encode(mode, pixels));
  return {back[0], back[1]};
}

void FillSlot(std::uint8_t slot, const Bytes& pixels) {
  for (int i = 0; i < 64; ++i) EditSlots[slot].Pixels[i] = pixels[static_cast<std::size_t>(i)];
}

class EveryEncoder : public ::testing::TestWithParam<int> {
 protected:
  Bytes RandomPixels(RandomBytes& random) const {
    Bytes pixels = random.Take(64);
    for (std::uint8_t& pixel : pixels)
      pixel = pixel & static_cast<std::uint8_t>((1 << NaiveBitsPerPixel(GetParam())) - 1);
    return pixels;
  }
};

TEST_P(EveryEncoder, EqualsTheNaiveTwin) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  for (int run = 0; run < 20; ++run) {
    const Bytes pixels = RandomPixels(random);
    EXPECT_EQ(Encode(GetParam(), pixels), NaiveEncode(GetParam(), pixels));
  }
}

TEST_P(EveryEncoder, BringsBackTheBytesThatWereDecoded) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  for (int run = 0; run < 50; ++run) {
    const Bytes tile = random.Take(static_cast<std::size_t>(NaiveTileBytes(GetParam())));
    EXPECT_EQ(Encode(GetParam(), NaiveDecode(GetParam(), tile)), tile);
  }
}

TEST_P(EveryEncoder, LeavesTheFileAsItWasWhenATileIsReadAndWrittenBack) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  const Bytes content = random.Take(200);
  TempFile file(content);
  GfxMode = static_cast<std::uint8_t>(GetParam());
  for (const std::int32_t address : {0, 1, 77, 200 - NaiveTileBytes(GetParam())}) {
    ReadTile(file.Handle(), address, 1);
    for (int i = 0; i < 64; ++i) EditSlots[9].Pixels[i] = PageBuffer[i];
    WriteTile(file.Handle(), address, 9);
    EXPECT_EQ(file.Bytes(), content) << "address " << address;
    EXPECT_EQ(OpenFilePosition(file.Handle()), address + NaiveTileBytes(GetParam()));
  }
}

TEST_P(EveryEncoder, WritesTheTileAtItsAddressAndNothingElse) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  const Bytes pixels = RandomPixels(random);
  FillSlot(255, pixels);
  TempFile file(Bytes(100, 0xEE));
  GfxMode = static_cast<std::uint8_t>(GetParam());
  WriteTile(file.Handle(), 20, 255);
  Bytes expected(100, 0xEE);
  const Bytes tile = NaiveEncode(GetParam(), pixels);
  std::copy(tile.begin(), tile.end(), expected.begin() + 20);
  EXPECT_EQ(file.Bytes(), expected);
}

TEST_P(EveryEncoder, GrowsTheFileAndFillsTheGapWithZeros) {
  TempFile file({1, 2, 3});
  FileLength = 3;
  FillSlot(0, Bytes(64, 1));
  GfxMode = static_cast<std::uint8_t>(GetParam());
  WriteTile(file.Handle(), 10, 0);
  Bytes expected = {1, 2, 3, 0, 0, 0, 0, 0, 0, 0};
  const Bytes tile = NaiveEncode(GetParam(), Bytes(64, 1));
  expected.insert(expected.end(), tile.begin(), tile.end());
  EXPECT_EQ(file.Bytes(), expected);
  EXPECT_EQ(FileLength, 3);
}

TEST_P(EveryEncoder, WritesWhereTheFileStandsWhenTheAddressIsNegative) {
  TempFile file(Bytes(100, 0));
  FillSlot(0, Bytes(64, 1));
  _llseek(file.Handle(), 5, kFromStart);
  GfxMode = static_cast<std::uint8_t>(GetParam());
  WriteTile(file.Handle(), -1, 0);
  Bytes expected(100, 0);
  const Bytes tile = NaiveEncode(GetParam(), Bytes(64, 1));
  std::copy(tile.begin(), tile.end(), expected.begin() + 5);
  EXPECT_EQ(file.Bytes(), expected);
}

INSTANTIATE_TEST_SUITE_P(Modes, EveryEncoder, ::testing::ValuesIn(kRegularModes),
                         [](const auto& test) { return ModeLabel(test.param); });

TEST(EncoderMisfits, HighBitsAreIgnoredWhereTheModeSaysSo) {
  for (const int mode : {0, 1}) {
    EXPECT_EQ(PairThroughMode(mode, 5, 255), (Bytes{1, 3})) << mode;
    EXPECT_EQ(PairThroughMode(mode, 4, 6), (Bytes{0, 2})) << mode;
  }
  for (const int mode : {3, 13}) EXPECT_EQ(PairThroughMode(mode, 17, 32), (Bytes{1, 0})) << mode;
}

TEST(EncoderMisfits, ValuesAreLimitedWhereTheModeSaysSo) {
  for (const int mode : {2, 5}) EXPECT_EQ(PairThroughMode(mode, 4, 5), (Bytes{3, 3})) << mode;
  EXPECT_EQ(PairThroughMode(4, 5, 2), (Bytes{1, 1}));
  EXPECT_EQ(PairThroughMode(4, 255, 0), (Bytes{1, 0}));
  EXPECT_EQ(PairThroughMode(7, 16, 255), (Bytes{15, 15}));
  EXPECT_EQ(PairThroughMode(8, 8, 16), (Bytes{7, 7}));
}

TEST(EncoderMisfits, MegaDriveLimitsTheRightPixelAndCutsTheLeft) {
  EXPECT_EQ(PairThroughMode(6, 17, 17), (Bytes{1, 15}));
  EXPECT_EQ(PairThroughMode(6, 16, 255), (Bytes{0, 15}));
}

TEST(EncoderMisfits, Gba4LimitsTheLeftPixelAndCutsTheRight) {
  EXPECT_EQ(PairThroughMode(9, 17, 17), (Bytes{15, 1}));
  EXPECT_EQ(PairThroughMode(9, 255, 16), (Bytes{15, 0}));
}

TEST(EncoderMisfits, EverythingFitsEightBits) {
  for (const int mode : {10, 11}) EXPECT_EQ(PairThroughMode(mode, 255, 128), (Bytes{255, 128})) << mode;
}

TEST(WriteTile, LeavesTheSlotAsItIs) {
  TempFile file(Bytes(64, 0));
  FillSlot(3, Bytes(64, 200));
  EditSlots[3].Address = 1234;
  GfxMode = kNeoGeoPocket;
  WriteTile(file.Handle(), 0, 3);
  for (int i = 0; i < 64; ++i) EXPECT_EQ(EditSlots[3].Pixels[i], 200);
  EXPECT_EQ(EditSlots[3].Address, 1234);
}

TEST(WriteTile, TouchesNoFileInBitmapMode) {
  TempFile file({1, 2, 3, 4});
  _llseek(file.Handle(), 2, kFromStart);
  for (const int mode : {12, 15, 255}) {
    GfxMode = static_cast<std::uint8_t>(mode);
    WriteTile(file.Handle(), 0, 0);
    EXPECT_EQ(OpenFilePosition(file.Handle()), 2) << mode;
    EXPECT_EQ(file.Bytes(), (Bytes{1, 2, 3, 4})) << mode;
  }
}

TEST(WriteTile, FaultsForSpritesBeforeTheFileIsTouched) {
  TempFile file({1, 2, 3, 4});
  _llseek(file.Handle(), 2, kFromStart);
  GfxMode = kPcEngineSprite;
  try {
    WriteTile(file.Handle(), 0, 0);
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::SubscriptOutOfRange);
  }
  EXPECT_EQ(OpenFilePosition(file.Handle()), 2);
  EXPECT_EQ(file.Bytes(), (Bytes{1, 2, 3, 4}));
}

TEST(WriteTile, ChangesNothingInAFileOpenedForReading) {
  TempFile file(Bytes(32, 7), kOpenRead);
  FillSlot(0, Bytes(64, 1));
  GfxMode = kGameboy;
  WriteTile(file.Handle(), 0, 0);
  EXPECT_EQ(file.Bytes(), Bytes(32, 7));
}

TEST(WriteTile, ReachesNoFileThroughAStaleHandle) {
  std::int16_t stale = -1;
  {
    TempFile closed(Bytes(32, 7));
    stale = closed.Handle();
  }
  TempFile other(Bytes(32, 7));
  GfxMode = kGameboy;
  WriteTile(stale, 0, 0);
  WriteTile(-1, 0, 0);
  EXPECT_EQ(other.Bytes(), Bytes(32, 7));
}

TEST(WriteTile, LosesAWriteThatFailsWithoutATrace) {
  TempFile file(Bytes(32, 7));
  FillSlot(0, Bytes(64, 1));
  GfxMode = kGameboy;
  FailFileCallsAfter(0);
  WriteTile(file.Handle(), 4, 0);
  FailFileCallsAfter(-1);
  EXPECT_EQ(file.Bytes(), Bytes(32, 7));
  EXPECT_EQ(OpenFilePosition(file.Handle()), 4);
}

TEST(WriteTile, TakesOneWrite) {
  TempFile file(Bytes(64, 7));
  FillSlot(0, Bytes(64, 0));
  GfxMode = kSnes8;
  FailFileCallsAfter(1);
  WriteTile(file.Handle(), 0, 0);
  FailFileCallsAfter(-1);
  EXPECT_EQ(file.Bytes(), Bytes(64, 0));
}

}  // namespace
}  // namespace brolk::test
