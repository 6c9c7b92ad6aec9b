// SPDX-License-Identifier: MIT
#include "browser/page_pointer.h"

#include <gtest/gtest.h>

#include "runtime/fault.h"

namespace brolk {
namespace {

TEST(TileAtPoint, CountsWholeTilesFrom0) {
  const TileExtent extent{3, 8, 8};
  EXPECT_EQ(TileAt(0, 0, extent), (TilePlace{0, 0}));
  EXPECT_EQ(TileAt(23, 23.9F, extent), (TilePlace{0, 0}));
  EXPECT_EQ(TileAt(24, 48, extent), (TilePlace{1, 2}));
}

TEST(TileAtPoint, HasNoRangeTest) {
  EXPECT_EQ(TileAt(208, 400, {3, 8, 8}), (TilePlace{8, 16}));
  EXPECT_EQ(TileAt(-1, -25, {3, 8, 8}), (TilePlace{-1, -2}));
}

TEST(TileAtPoint, FollowsWidthAndHeightByThemselves) {
  EXPECT_EQ(TileAt(31, 31, {2, 16, 4}), (TilePlace{0, 3}));
}

TEST(TileAtPoint, FaultsOnASizeOrZoomOf0) {
  for (const TileExtent& extent : {TileExtent{3, 0, 8}, TileExtent{3, 8, 0}, TileExtent{0, 8, 8}}) {
    try {
      (void)TileAt(5, 5, extent);
      FAIL() << "no fault was raised";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::DivisionByZero);
    }
  }
}

TEST(TileAtPoint, ComesBackFromItsOwnEdge) {
  for (std::int16_t zoom = 2; zoom <= 13; ++zoom) {
    for (std::int16_t size : {1, 3, 8, 32}) {
      for (std::int16_t index : {0, 1, 7, 31, 255}) {
        const TileExtent extent{zoom, size, size};
        const TilePlace place = TileAt(EdgeOf(index, size, zoom), EdgeOf(index, size, zoom), extent);
        EXPECT_EQ(place, (TilePlace{index, index})) << zoom << ' ' << size;
      }
    }
  }
}

TEST(AddressStatus, CountsTilesOfThePage) {
  const AddressStatus gameboy{16, 8, 3, 8, 4096};
  EXPECT_EQ(AddressStatusText(24, 48, gameboy), "Address: 4368") << "272 beyond the page";
  EXPECT_EQ(AddressStatusText(0, 0, gameboy), "Address: 4096");
}

TEST(AddressStatus, CountsIn8PixelCellsWhateverTheTile) {
  // A tile of 4 pixels at zoom 2: a click at 20 selects column 2, the status says column 1.
  const AddressStatus status{8, 8, 2, 8, 0};
  EXPECT_EQ(AddressStatusText(20, 0, status), "Address: 8");
  EXPECT_EQ(TileAt(20, 0, {2, 4, 4}).column, 2);
}

TEST(AddressStatus, DoesNotWrapAt16Bits) {
  const AddressStatus status{64, 32, 2, 8, 100};
  EXPECT_EQ(AddressStatusText(0, 31 * 16, status), "Address: 63588");
  EXPECT_EQ(AddressStatusText(0, 700 * 16, status), "Address: 1433700");
}

TEST(PositionStatus, CountsFrom1) {
  EXPECT_EQ(PositionStatusText(0, 0, {3, 8, 8}), "X: 1   Y: 1");
  EXPECT_EQ(PositionStatusText(23, 23, {3, 8, 8}), "X: 1   Y: 1");
  EXPECT_EQ(PositionStatusText(24, 72, {3, 8, 8}), "X: 2   Y: 4");
  EXPECT_EQ(PositionStatusText(20, 20, {2, 4, 16}), "X: 3   Y: 1");
}

TEST(DepthStatus, NamesOneBitInTheSingular) {
  EXPECT_EQ(DepthStatusText(0), "1 bit per pixel");
  EXPECT_EQ(DepthStatusText(1), "1 bit per pixel");
  EXPECT_EQ(DepthStatusText(2), "2 bits per pixel");
  EXPECT_EQ(DepthStatusText(8), "8 bits per pixel");
}

TEST(DropAddress, IsTheTileUnderThePoint) {
  const AddressStatus page{16, 8, 3, 8, 1000};
  EXPECT_EQ(DropAddressAt(0, 0, {3, 8, 8}, page), 1000);
  EXPECT_EQ(DropAddressAt(25, 49, {3, 8, 8}, page), 1272);
}

TEST(DropAddress, WrapsTheDistanceAt16Bits) {
  const AddressStatus page{64, 32, 2, 8, 100000};
  EXPECT_EQ(DropAddressAt(0, 15 * 16, {2, 8, 8}, page), 100000 + 30720);
  EXPECT_EQ(DropAddressAt(0, 16 * 16, {2, 8, 8}, page), 100000 - 32768);
}

TEST(DropAddress, FaultsOnASizeOf0) {
  try {
    (void)DropAddressAt(5, 5, {3, 0, 8}, {16, 8, 3, 8, 0});
    FAIL() << "no fault was raised";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::DivisionByZero);
  }
}

TEST(PointInOtherWindow, GoesByTheOuterEdges) {
  EXPECT_EQ(CoordinateInWindow(300, 2700, 5955, 15), 300 - 217);
  EXPECT_EQ(CoordinateInWindow(-10, 2700, 30, 15), 168);
}

TEST(PointInOtherWindow, RoundsLastTiesToEven) {
  EXPECT_EQ(CoordinateInWindow(10.5F, 0, 0, 15), 10);
  EXPECT_EQ(CoordinateInWindow(11.5F, 0, 0, 15), 12);
  EXPECT_EQ(CoordinateInWindow(10, 7, 0, 15), 10) << "7 twips are less than half a pixel";
}

}  // namespace
}  // namespace brolk
