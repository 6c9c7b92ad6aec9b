// SPDX-License-Identifier: MIT
#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "runtime/byte_loop.h"
#include "runtime/fault.h"

namespace brolk::test {
namespace {

constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

FaultKind FaultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.Kind();
  }
  ADD_FAILURE() << "no fault";
  return FaultKind::FileNotFound;
}

TEST(Wrap, CutsToEightBits) {
  EXPECT_EQ(WrapByte(0), 0);
  EXPECT_EQ(WrapByte(255), 255);
  EXPECT_EQ(WrapByte(256), 0);
  EXPECT_EQ(WrapByte(-1), 255);
  EXPECT_EQ(WrapByte(0x1234567890), 0x90);
}

TEST(Wrap, CutsTo16Bits) {
  EXPECT_EQ(Wrap16(32767), 32767);
  EXPECT_EQ(Wrap16(32768), -32768);
  EXPECT_EQ(Wrap16(65536), 0);
  EXPECT_EQ(Wrap16(-32769), 32767);
  EXPECT_EQ(Wrap16(1023 * 64), -64);
}

TEST(Wrap, CutsTo32Bits) {
  EXPECT_EQ(Wrap32(2147483647), 2147483647);
  EXPECT_EQ(Wrap32(2147483648), kSmallest);
  EXPECT_EQ(Wrap32(4294967296), 0);
  EXPECT_EQ(Wrap32(-2147483649), 2147483647);
  EXPECT_EQ(Wrap32(65536LL * 65535), -65536);
}

TEST(Rounding, GoesToTheNearestAndTiesToEven) {
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(-0.5), 0);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
  EXPECT_EQ(RoundHalfEven(2.4999999), 2);
  EXPECT_EQ(RoundHalfEven(2.5000001), 3);
  EXPECT_EQ(RoundHalfEven(-7), -7);
  EXPECT_EQ(RoundHalfEven(4503599627370497.0), 4503599627370497.0);
}

TEST(Rounding, FaultsOutsideAByte) {
  EXPECT_EQ(RoundToByte(254.5), 254);
  EXPECT_EQ(RoundToByte(255.4), 255);
  EXPECT_EQ(RoundToByte(-0.5), 0);
  EXPECT_EQ(FaultOf([] { static_cast<void>(RoundToByte(255.5)); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { static_cast<void>(RoundToByte(-0.51)); }), FaultKind::Overflow);
}

TEST(Rounding, FaultsOutsideAnInteger) {
  EXPECT_EQ(RoundToInteger(32767.4), 32767);
  EXPECT_EQ(RoundToInteger(-32768.5), -32768);
  EXPECT_EQ(FaultOf([] { static_cast<void>(RoundToInteger(32767.5)); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { static_cast<void>(RoundToInteger(-32768.51)); }), FaultKind::Overflow);
}

TEST(Rounding, FaultsOutsideALong) {
  EXPECT_EQ(RoundToLong(2147483647.4), 2147483647);
  EXPECT_EQ(RoundToLong(-2147483648.5), kSmallest);
  EXPECT_EQ(FaultOf([] { static_cast<void>(RoundToLong(2147483647.5)); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { static_cast<void>(RoundToLong(-2147483649.0)); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { static_cast<void>(RoundToLong(INFINITY)); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { static_cast<void>(RoundToLong(NAN)); }), FaultKind::Overflow);
}

TEST(Division, OfIntegersTruncatesTowardsZero) {
  EXPECT_EQ(DivideIntegers(7, 2), 3);
  EXPECT_EQ(DivideIntegers(-7, 2), -3);
  EXPECT_EQ(DivideIntegers(7, -2), -3);
  EXPECT_EQ(DivideIntegers(kSmallest, -1), kSmallest);
  EXPECT_EQ(FaultOf([] { static_cast<void>(DivideIntegers(1, 0)); }), FaultKind::DivisionByZero);
}

TEST(Division, LeavesARemainderWithTheSignOfTheDividend) {
  EXPECT_EQ(Remainder(7, 4), 3);
  EXPECT_EQ(Remainder(-7, 4), -3);
  EXPECT_EQ(Remainder(7, -4), 3);
  EXPECT_EQ(Remainder(kSmallest, -1), 0);
  EXPECT_EQ(FaultOf([] { static_cast<void>(Remainder(1, 0)); }), FaultKind::DivisionByZero);
}

TEST(Division, OfRealsFaultsForADivisorOfZero) {
  EXPECT_EQ(DivideReals(1, 4), 0.25);
  EXPECT_EQ(FaultOf([] { static_cast<void>(DivideReals(1, 0)); }), FaultKind::DivisionByZero);
  EXPECT_EQ(FaultOf([] { static_cast<void>(DivideReals(0, 0)); }), FaultKind::DivisionByZero);
}

TEST(IntegerPart, IsTheFloor) {
  EXPECT_EQ(IntegerPart(2.9), 2);
  EXPECT_EQ(IntegerPart(-0.5), -1);
  EXPECT_EQ(IntegerPart(-3), -3);
}

TEST(Val, TakesTheDecimalNumberAtTheHead) {
  EXPECT_EQ(Val("12"), 12);
  EXPECT_EQ(Val("   12 apples"), 12);
  EXPECT_EQ(Val("1 2"), 1);
  EXPECT_EQ(Val("12.5"), 12.5);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("5."), 5);
  EXPECT_EQ(Val("1.2.3"), 1.2);
  EXPECT_EQ(Val("007"), 7);
  EXPECT_EQ(Val("4294967296"), 4294967296.0);
}

TEST(Val, TakesOneSign) {
  EXPECT_EQ(Val("-12"), -12);
  EXPECT_EQ(Val("+12"), 12);
  EXPECT_EQ(Val("  -0.25"), -0.25);
  EXPECT_EQ(Val("--12"), 0);
  EXPECT_EQ(Val("- 12"), 0);
}

TEST(Val, KnowsNoExponent) {
  EXPECT_EQ(Val("1e5"), 1);
  EXPECT_EQ(Val("2D3"), 2);
}

TEST(Val, TakesHexadecimalAndOctalNumbers) {
  EXPECT_EQ(Val("&HFFFF"), 65535);
  EXPECT_EQ(Val("&hfFfF"), 65535);
  EXPECT_EQ(Val("  &H10z"), 16);
  EXPECT_EQ(Val("-&H10"), -16);
  EXPECT_EQ(Val("&HFFFFFFFF"), 4294967295.0);
  EXPECT_EQ(Val("&O17"), 15);
  EXPECT_EQ(Val("&o789"), 7);
  EXPECT_EQ(Val("&H1.8"), 1);
}

TEST(Val, IsZeroForATextWithoutANumber) {
  for (const char* text : {"", "   ", "x", ".", "-", "+", "&", "&H", "&G1", "&17", "\t1", "n/a", "-."}) {
    EXPECT_EQ(Val(text), 0) << text;
  }
}

TEST(Val, ReachesBeyondEveryIntegerType) {
  EXPECT_EQ(Val(std::string(400, '9')), INFINITY);
  EXPECT_EQ(Val("-" + std::string(400, '9')), -INFINITY);
  EXPECT_EQ(Val("." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(Val("99999999999999999999"), 1e20);
}

TEST(NumberText, ShowsWholeNumbersPlainly) {
  EXPECT_EQ(NumberText(0), "0");
  EXPECT_EQ(NumberText(-1), "-1");
  EXPECT_EQ(NumberText(kSmallest), "-2147483648");
  EXPECT_EQ(NumberText(1234567.0), "1234567");
  EXPECT_EQ(NumberText(-0.0), "0");
  EXPECT_EQ(NumberText(100.0), "100");
}

TEST(NumberText, HasAPointAndALeadingZero) {
  EXPECT_EQ(NumberText(0.5), "0.5");
  EXPECT_EQ(NumberText(-0.25), "-0.25");
  EXPECT_EQ(NumberText(12.5), "12.5");
  EXPECT_EQ(NumberText(0.001), "0.001");
  EXPECT_EQ(NumberText(3.10), "3.1");
  EXPECT_EQ(NumberText(1.05), "1.05");
}

TEST(NumberText, HasAtMost15Digits) {
  EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(NumberText(2e15 / 3), "666666666666667");
  EXPECT_EQ(NumberText(123456789012345678.0), "123456789012346000");
  EXPECT_EQ(NumberText(9.9999999999999999), "10");
  EXPECT_EQ(NumberText(999999999999999.9), "1000000000000000");
}

TEST(NumberText, HasNoExponent) {
  EXPECT_EQ(NumberText(1e20), "100000000000000000000");
  EXPECT_EQ(NumberText(-1e-7), "-0.0000001");
  EXPECT_EQ(FaultOf([] { static_cast<void>(NumberText(INFINITY)); }), FaultKind::Overflow);
}

TEST(HexText, ShowsThePatternOfANegativeNumber) {
  EXPECT_EQ(HexText(0), "0");
  EXPECT_EQ(HexText(255), "FF");
  EXPECT_EQ(HexText(0xABCDE), "ABCDE");
  EXPECT_EQ(HexText(-1), "FFFFFFFF");
  EXPECT_EQ(HexText(kSmallest), "80000000");
}

std::vector<int> Counted(std::int64_t limit) {
  std::vector<int> seen;
  CountBytes(limit, [&](std::uint8_t counter) { seen.push_back(counter); });
  return seen;
}

TEST(ByteLoop, CountsUpToItsLimit) {
  EXPECT_EQ(Counted(1), (std::vector<int>{0}));
  EXPECT_EQ(Counted(3), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(Counted(255).size(), 255U);
}

TEST(ByteLoop, TakesTheLowByteOfItsLimit) {
  EXPECT_EQ(Counted(258), (std::vector<int>{0, 1}));
  EXPECT_EQ(Counted(-254), (std::vector<int>{0, 1}));
}

TEST(ByteLoop, NeverEndsAtALowByteOfZero) {
  for (const std::int64_t limit : {0, 256, -512}) {
    int passes = 0;
    int last = -1;
    EXPECT_THROW(CountBytes(limit,
                            [&](std::uint8_t counter) {
                              last = counter;
                              if (++passes == 1000) throw Fault(FaultKind::SubscriptOutOfRange);
                            }),
                 Fault);
    EXPECT_EQ(passes, 1000);
    EXPECT_EQ(last, 999 % 256);
  }
}

}  // namespace
}  // namespace brolk::test
