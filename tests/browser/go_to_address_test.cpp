// SPDX-License-Identifier: MIT
#include "browser/go_to_address.h"

#include <gtest/gtest.h>

#include <limits>

#include "runtime/fault.h"

namespace brolk {
namespace {

// 64 KiB in lines of 256 bytes.
constexpr PageGrid kGrid{65536, 256, 256, 0};

FaultKind KindOf(const PageGrid& grid, double number = 0) {
  try {
    (void)JumpTo(number, 4096, grid);
  } catch (const Fault& fault) {
    return fault.Kind();
  }
  ADD_FAILURE() << "no fault was raised";
  return FaultKind::TypeMismatch;
}

TEST(PageBytes, AreTileBytesTimesLinesTimesRows) {
  EXPECT_EQ(PageBytesFor(32, 16, 8), 4096);
  EXPECT_EQ(PageBytesFor(16, 16, 8), 2048);
}

TEST(PageBytes, WrapToANegativeSizeAndTo0) {
  EXPECT_EQ(PageBytesFor(64, 32, 16), -32768);
  EXPECT_EQ(PageBytesFor(64, 32, 32), 0);
  EXPECT_EQ(PageBytesFor(64, 32, 24), 49152 - 65536);
}

TEST(GoToAddress, GoesToTheLineOfTheAddress) {
  const AddressJump jump = JumpTo(1000, 4096, kGrid);
  EXPECT_EQ(jump.target, 768);
  EXPECT_DOUBLE_EQ(jump.step, 1.0);
  EXPECT_DOUBLE_EQ(jump.position, 3.0);
  EXPECT_EQ(jump.scrollValue, 3);
}

TEST(GoToAddress, HoldsTheNumberToTheLastFullPage) {
  EXPECT_EQ(JumpTo(61440, 4096, kGrid).target, 61440);
  EXPECT_EQ(JumpTo(61441, 4096, kGrid).target, 61440);
  EXPECT_EQ(JumpTo(65536, 4096, kGrid).limit, 61440);
  EXPECT_EQ(JumpTo(99999999, 4096, kGrid).target, 61440);
}

TEST(GoToAddress, AlignsTheLimitTooAndAddsTheShift) {
  const PageGrid odd{65000, 254, 256, 5};
  const AddressJump jump = JumpTo(1e9, 4096, odd);
  EXPECT_EQ(jump.limit, 60904);
  EXPECT_EQ(jump.target, 60904 / 256 * 256 + 5);
}

TEST(GoToAddress, TakesANegativeNumberAs0) {
  EXPECT_EQ(JumpTo(-1, 4096, kGrid).target, 0);
  EXPECT_EQ(JumpTo(-1e12, 4096, kGrid).target, 0);
  PageGrid shifted = kGrid;
  shifted.addressShift = 9;
  EXPECT_EQ(JumpTo(-77, 4096, shifted).target, 9);
}

TEST(GoToAddress, TakesALimitBelow0As0) {
  const PageGrid tiny{100, 1, 256, 0};
  const AddressJump jump = JumpTo(50, 4096, tiny);
  EXPECT_EQ(jump.limit, -3996);
  EXPECT_EQ(jump.target, 0);
}

TEST(GoToAddress, GivesNumbersBeyond32BitsTheSameOutcome) {
  EXPECT_EQ(JumpTo(1e300, 4096, kGrid).target, 61440);
  EXPECT_EQ(JumpTo(std::numeric_limits<double>::infinity(), 4096, kGrid).target, 61440);
  EXPECT_EQ(JumpTo(-1e300, 4096, kGrid).target, 0);
}

TEST(GoToAddress, RoundsAFractionTiesToEven) {
  const PageGrid bytes{1000, 1000, 1, 0};
  EXPECT_EQ(JumpTo(10.5, 0, bytes).target, 10);
  EXPECT_EQ(JumpTo(11.5, 0, bytes).target, 12);
}

TEST(GoToAddress, ReachesBeyondTheFileWhenThePageSizeWraps) {
  const AddressJump jump = JumpTo(1e9, PageBytesFor(64, 32, 16), kGrid);
  EXPECT_EQ(jump.limit, 65536 + 32768);
  EXPECT_EQ(jump.target, 98304);
  EXPECT_EQ(jump.scrollValue, 384) << "beyond the 256 positions of the file";
}

TEST(GoToAddress, CountsInShareOfTheFileWhenAPositionIsSeveralLines) {
  const PageGrid large{16 * 1024 * 1024, 32767, 128, 0};
  const AddressJump jump = JumpTo(8 * 1024 * 1024, 2048, large);
  EXPECT_DOUBLE_EQ(jump.step, 131072.0 / 32767.0);
  EXPECT_DOUBLE_EQ(jump.position, 16383.5);
  EXPECT_EQ(jump.scrollValue, 16384) << "16383.5 goes to the even 16384";
}

TEST(GoToAddress, LandsBesideTheNumberWhereAPositionIsSeveralLines) {
  const PageGrid large{16 * 1024 * 1024, 32767, 128, 0};
  const AddressJump jump = JumpTo(1001 * 128, 2048, large);
  EXPECT_EQ(jump.target, 1001 * 128);
  EXPECT_EQ(PageAddressAt(jump.scrollValue, large), 1000 * 128);
}

TEST(GoToAddress, FaultsOnAnEmptyFile) {
  EXPECT_EQ(KindOf({0, 1, 256, 0}), FaultKind::DivisionByZero);
  EXPECT_EQ(KindOf({0, 1, 256, 5}), FaultKind::DivisionByZero);
}

TEST(GoToAddress, FaultsOnLineBytesOrScaleOfZero) {
  EXPECT_EQ(KindOf({4096, 16, 0, 0}), FaultKind::DivisionByZero);
  EXPECT_EQ(KindOf({4096, 0, 256, 0}), FaultKind::DivisionByZero);
}

TEST(GoToAddress, FaultsWhenThePositionIsNoInteger) {
  const PageGrid large{8 * 1024 * 1024, 32767, 128, 0};
  try {
    (void)JumpTo(1e9, -16384, large);
    FAIL() << "no fault was raised";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::Overflow);
  }
}

}  // namespace
}  // namespace brolk
