// SPDX-License-Identifier: MIT
#include "browser/page_address.h"

#include <gtest/gtest.h>

#include "runtime/fault.h"

namespace brolk {
namespace {

FaultKind KindOf(void (*action)()) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.Kind();
  }
  ADD_FAILURE() << "no fault was raised";
  return FaultKind::Overflow;
}

TEST(LineBytes, AreTileBytesTimesRows) {
  EXPECT_EQ(LineBytesFor(16, 8), 128);
  EXPECT_EQ(LineBytesFor(64, 32), 2048);
}

TEST(LineBytes, WrapAt16BitsAndAreSignExtended) {
  EXPECT_EQ(LineBytesFor(1024, 32), -32768);
  EXPECT_EQ(LineBytesFor(1024, 64), 0);
  EXPECT_EQ(LineBytesFor(961, 100), 96100 - 65536);
}

TEST(Line, IsTheIntegerPartOfTheRealQuotient) {
  EXPECT_EQ(LineAt(0, 256), 0);
  EXPECT_EQ(LineAt(255, 256), 0);
  EXPECT_EQ(LineAt(256, 256), 1);
  EXPECT_EQ(LineAt(-1, 256), -1) << "the integer part goes down, not towards zero";
  EXPECT_EQ(LineAt(100, -256), -1);
}

TEST(Line, FaultsOnLineBytesOfZero) {
  EXPECT_EQ(KindOf([] { (void)LineAt(0, 0); }), FaultKind::DivisionByZero);
  EXPECT_EQ(KindOf([] { (void)LineAt(512, 0); }), FaultKind::DivisionByZero);
}

TEST(ScrollRange, HasOnePositionForEachLineOfAShortFile) {
  const ScrollRange range = ScrollRangeFor(32768, 256, 16);
  EXPECT_EQ(range.scale, 128);
  EXPECT_EQ(range.maximum, 112);
}

TEST(ScrollRange, RoundsTheLinesToTheNearestHalvesToEven) {
  EXPECT_EQ(ScrollRangeFor(256 * 10 + 127, 256, 16).scale, 10);
  EXPECT_EQ(ScrollRangeFor(256 * 10 + 128, 256, 16).scale, 10) << "10.5 goes to the even 10";
  EXPECT_EQ(ScrollRangeFor(256 * 11 + 128, 256, 16).scale, 12) << "11.5 goes to the even 12";
  EXPECT_EQ(ScrollRangeFor(256 * 10 + 129, 256, 16).scale, 11);
}

TEST(ScrollRange, IsOneForAFileShorterThanOneAndAHalfLines) {
  EXPECT_EQ(ScrollRangeFor(0, 256, 16).scale, 1);
  EXPECT_EQ(ScrollRangeFor(1, 256, 16).scale, 1);
  EXPECT_EQ(ScrollRangeFor(383, 256, 16).scale, 1);
  EXPECT_EQ(ScrollRangeFor(384, 256, 16).scale, 2) << "1.5 goes to the even 2";
  EXPECT_EQ(ScrollRangeFor(383, 256, 16).maximum, -15) << "1 minus the lines shown";
}

TEST(ScrollRange, StopsAt32767Positions) {
  EXPECT_EQ(ScrollRangeFor(32766 * 128, 128, 16).scale, 32766);
  EXPECT_EQ(ScrollRangeFor(32767 * 128, 128, 16).scale, 32767);
  EXPECT_EQ(ScrollRangeFor(32768 * 128, 128, 16).scale, 32767);
  const ScrollRange sixteenMegabytes = ScrollRangeFor(16 * 1024 * 1024, 128, 16);
  EXPECT_EQ(sixteenMegabytes.scale, 32767);
  EXPECT_EQ(sixteenMegabytes.maximum, 32751);
}

TEST(ScrollRange, IsOneForANegativeLength) {
  EXPECT_EQ(ScrollRangeFor(-5, 256, 16).scale, 1);
  EXPECT_EQ(ScrollRangeFor(INT32_MIN, 1, 16).scale, 1);
  EXPECT_EQ(ScrollRangeFor(5000, -256, 16).scale, 1);
  EXPECT_EQ(ScrollRangeFor(INT32_MIN, -1, 16).scale, 32767);
}

TEST(ScrollRange, FaultsOnLineBytesOfZero) {
  EXPECT_EQ(KindOf([] { (void)ScrollRangeFor(4096, 0, 16); }), FaultKind::DivisionByZero);
  EXPECT_EQ(KindOf([] { (void)ScrollRangeFor(0, 0, 16); }), FaultKind::DivisionByZero);
}

TEST(PageAddress, IsTheLineOfThePositionInAFileOfWholeLines) {
  const PageGrid grid{32768, 128, 256, 0};
  EXPECT_EQ(PageAddressAt(0, grid), 0);
  EXPECT_EQ(PageAddressAt(1, grid), 256);
  EXPECT_EQ(PageAddressAt(112, grid), 112 * 256);
}

TEST(PageAddress, CountsInWholeBytesOfAStepAndAlignsDown) {
  // 1000 bytes in 4 positions: 250 bytes a step, aligned down to 256.
  const PageGrid grid{1000, 4, 256, 0};
  EXPECT_EQ(PageAddressAt(1, grid), 0);
  EXPECT_EQ(PageAddressAt(2, grid), 256);
  EXPECT_EQ(PageAddressAt(3, grid), 512);
}

TEST(PageAddress, Steps512BytesThroughSixteenMegabytes) {
  const PageGrid grid{16 * 1024 * 1024, 32767, 128, 0};
  EXPECT_EQ(PageAddressAt(1, grid), 512);
  EXPECT_EQ(PageAddressAt(32751, grid), 512 * 32751);
}

TEST(PageAddress, IsAlwaysAMultipleOfLineBytesPlusTheShift) {
  for (int value = 0; value < 300; ++value) {
    const std::int32_t address = PageAddressAt(value, {99999, 391, 192, 7});
    EXPECT_EQ((address - 7) % 192, 0) << value;
  }
  EXPECT_EQ(PageAddressAt(0, {99999, 391, 192, 64}), 64);
}

TEST(PageAddress, TakesTheScrollValueAs16Bits) {
  EXPECT_EQ(PageAddressAt(65537, {2560, 10, 256, 0}), 256);
}

TEST(PageAddress, AlignsTowardsZero) {
  EXPECT_EQ(AlignToLine(-300, {0, 1, 256, 0}), -256);
  EXPECT_EQ(AlignToLine(-255, {0, 1, 256, 3}), 3);
  EXPECT_EQ(AlignToLine(300, {0, 1, -256, 0}), 256);
}

TEST(PageAddress, FaultsOnAScaleOrLineBytesOfZero) {
  EXPECT_EQ(KindOf([] { (void)PageAddressAt(1, {4096, 0, 256, 0}); }), FaultKind::DivisionByZero);
  EXPECT_EQ(KindOf([] { (void)PageAddressAt(1, {4096, 16, 0, 0}); }), FaultKind::DivisionByZero);
}

TEST(PageAddress, WrapsAt32Bits) {
  // A length of 2 GiB reads as the lowest number; nothing overflows on the way.
  EXPECT_EQ(PageAddressAt(2, {INT32_MIN, 1, 256, 0}), 0);
  EXPECT_EQ(AlignToLine(INT32_MIN, {0, 1, -1, 0}), INT32_MIN);
}

}  // namespace
}  // namespace brolk
