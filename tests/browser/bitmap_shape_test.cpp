// SPDX-License-Identifier: MIT
#include "browser/bitmap_shape.h"

#include <gtest/gtest.h>

#include "runtime/fault.h"

namespace brolk {
namespace {

TEST(BitmapDepth, IsTwoToThePowerOfThePosition) {
  EXPECT_EQ(BitmapDepthAt(0), 1);
  EXPECT_EQ(BitmapDepthAt(1), 2);
  EXPECT_EQ(BitmapDepthAt(2), 4);
  EXPECT_EQ(BitmapDepthAt(3), 8);
}

TEST(BitmapTileBytes, AreTheBytesOfTheTile) {
  EXPECT_EQ(BitmapTileBytes(8, 8, 1), 8);
  EXPECT_EQ(BitmapTileBytes(8, 8, 2), 16);
  EXPECT_EQ(BitmapTileBytes(8, 8, 4), 32);
  EXPECT_EQ(BitmapTileBytes(8, 8, 8), 64);
  EXPECT_EQ(BitmapTileBytes(3, 3, 1), 1) << "both divisions drop the rest";
}

TEST(BitmapTileBytes, FaultOnADepthBeyond8) {
  try {
    (void)BitmapTileBytes(8, 8, 16);
    FAIL() << "no fault was raised";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::DivisionByZero);
  }
}

TEST(EnteredBitmapTileBytes, AreOneOrNoneForASquareTile) {
  for (std::int16_t size = 1; size <= 32; ++size) {
    EXPECT_EQ(EnteredBitmapTileBytes(size, size, 1), 1);
    for (std::uint8_t depth : {2, 4, 8}) EXPECT_EQ(EnteredBitmapTileBytes(size, size, depth), 0);
  }
}

TEST(EnteredBitmapTileBytes, DivideTheWidthByDepthTimesHeight) {
  EXPECT_EQ(EnteredBitmapTileBytes(32, 2, 4), 4);
  EXPECT_EQ(EnteredBitmapTileBytes(31, 2, 8), 1);
}

TEST(BitmapTileWidth, IsTheBarDividedBy64Or16Or4Or1) {
  EXPECT_EQ(BitmapTileWidthAt(32, 3), 32);
  EXPECT_EQ(BitmapTileWidthAt(32, 2), 8);
  EXPECT_EQ(BitmapTileWidthAt(31, 2), 7);
  EXPECT_EQ(BitmapTileWidthAt(32, 1), 2);
  EXPECT_EQ(BitmapTileWidthAt(15, 1), 0);
  for (std::int16_t value = 1; value <= 32; ++value) EXPECT_EQ(BitmapTileWidthAt(value, 0), 0);
  EXPECT_EQ(BitmapTileWidthAt(64, 0), 1);
}

TEST(TilesAcross, FillTheSurface) {
  EXPECT_EQ(TilesAcrossSurface(1), 256);
  EXPECT_EQ(TilesAcrossSurface(3), 85);
  EXPECT_EQ(TilesAcrossSurface(32), 8);
}

}  // namespace
}  // namespace brolk
