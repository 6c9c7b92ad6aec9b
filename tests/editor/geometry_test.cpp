// SPDX-License-Identifier: MIT
#include "editor/geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "runtime/fault.h"

namespace brolk::test {
namespace {

// Zoom 3, unscrolled, all of the grid and both bars' thickness in the client area.
constexpr EditorView kWide{3, 0, 0, 401, 401};

void ExpectPlace(const EditorPlace& place, int column, int line, int pixelX, int pixelY) {
  EXPECT_EQ(place.column, column);
  EXPECT_EQ(place.line, line);
  EXPECT_EQ(place.pixelX, pixelX);
  EXPECT_EQ(place.pixelY, pixelY);
}

TEST(EditorSizes, FollowTheZoom) {
  EXPECT_EQ(CellPx(2), 16);
  EXPECT_EQ(CellPx(30), 240);
  EXPECT_EQ(GridPx(2), 256);
  EXPECT_EQ(GridPx(3), 384);
  EXPECT_EQ(GridPx(30), 3840);
}

TEST(EditorSizes, WrapAt16Bits) {
  EXPECT_EQ(GridPx(256), -32768);
  EXPECT_EQ(GridPx(512), 0);
}

struct RangeCase {
  const char* name;
  float x, y;
  bool inside;
  float clampedX, clampedY;
};

void PrintTo(const RangeCase& c, std::ostream* out) {
  *out << c.name;
}

class EditorRange : public ::testing::TestWithParam<RangeCase> {};

TEST_P(EditorRange, SetsTheCoordinateToTheBoundItNames) {
  const RangeCase& c = GetParam();
  const EditorView view{3, 0, 0, 500, 300};
  float x = c.x;
  float y = c.y;
  EXPECT_EQ(ClampToGrid(view, x, y), c.inside);
  EXPECT_EQ(x, c.clampedX);
  EXPECT_EQ(y, c.clampedY);
}

// The grid is 384 pixels wide and high, its last pixel is 383.
INSTANTIATE_TEST_SUITE_P(
    All, EditorRange,
    ::testing::Values(RangeCase{"top left", 0, 0, true, 0, 0}, RangeCase{"left", -1, 5, false, 0, 5},
                      RangeCase{"a fraction left", -0.25F, 5, false, 0, 5},
                      RangeCase{"above", 5, -1, false, 5, 0},
                      RangeCase{"left and above", -3, -4, false, 0, 0},
                      RangeCase{"right of the window", 501, 5, false, 383, 5},
                      RangeCase{"below the window", 5, 301, false, 5, 300},
                      RangeCase{"on the window's lower bound", 5, 300, true, 5, 300},
                      RangeCase{"on the grid's last column", 383, 5, true, 383, 5},
                      RangeCase{"a fraction beyond the grid", 383.5F, 5, false, 383, 5},
                      RangeCase{"beyond the grid inside the window", 384, 5, false, 383, 5}));

TEST(EditorRangeTest, TakesTheWindowsBoundWhereItIsTheNarrower) {
  float x = 390;
  float y = 390;
  EXPECT_FALSE(ClampToGrid({3, 0, 0, 200, 100}, x, y));
  EXPECT_EQ(x, 200);
  EXPECT_EQ(y, 100);
}

TEST(EditorRangeTest, DoesNotScroll) {
  float x = 384;
  float y = 0;
  EXPECT_FALSE(ClampToGrid({3, 100, 100, 400, 400}, x, y));
}

TEST(EditorPlaces, AreSlotAndPixelUnderThePoint) {
  ExpectPlace(PlaceAt(kWide, 0, 0), 0, 0, 0, 0);
  ExpectPlace(PlaceAt(kWide, 2, 2), 0, 0, 0, 0);
  ExpectPlace(PlaceAt(kWide, 3, 5), 0, 0, 1, 1);
  ExpectPlace(PlaceAt(kWide, 23, 24), 0, 1, 7, 0);
  ExpectPlace(PlaceAt(kWide, 383, 383), 15, 15, 7, 7);
}

TEST(EditorPlaces, MoveWithTheScrollBars) {
  ExpectPlace(PlaceAt({3, 24, 48, 300, 300}, 0, 0), 1, 2, 0, 0);
  ExpectPlace(PlaceAt({3, 1, 2, 300, 300}, 2, 1), 0, 0, 1, 1);
}

TEST(EditorPlaces, KeepFractionsOfAPosition) {
  ExpectPlace(PlaceAt(kWide, 2.75F, 3.25F), 0, 0, 0, 1);
  ExpectPlace(PlaceAt(kWide, 23.999F, 24.001F), 0, 1, 7, 0);
}

TEST(EditorPlaces, GiveSlotAndPixelNumbers) {
  const EditorPlace place{5, 2, 3, 4};
  EXPECT_EQ(place.Slot(), 37);
  EXPECT_EQ(place.PixelIndex(), 35);
  EXPECT_EQ((EditorPlace{15, 15, 7, 7}).Slot(), 255);
}

TEST(EditorPlaces, LimitTheCellButNotThePixel) {
  // Scrolled to the end with one bar shown, 17 pixels lie beyond the grid.
  ExpectPlace(PlaceAt({3, 101, 0, 300, 401}, 299, 23), 15, 0, 13, 7);
  EXPECT_EQ(PlaceAt({3, 101, 0, 300, 401}, 299, 23).PixelIndex(), 69);
  EXPECT_EQ(PlaceAt({3, 101, 0, 300, 401}, 299, 3).PixelIndex(), 21) << "a pixel of the next row";
}

TEST(EditorPlaces, AreADivisionFaultAtZoom0) {
  EXPECT_THROW((void)PlaceAt({0, 0, 0, 100, 100}, 1, 1), Fault);
}

// Pixel by pixel: counts instead of dividing.
EditorPlace CountedPlace(const EditorView& view, int x, int y) {
  EditorPlace place{0, 0, 0, 0};
  const auto count = [&view](int left, std::int16_t& cell, std::int16_t& pixel) {
    while (left >= view.zoom) {
      left -= view.zoom;
      if (++pixel == 8 && cell < 15) {
        pixel = 0;
        ++cell;
      }
    }
  };
  count(x + view.scrollX, place.column, place.pixelX);
  count(y + view.scrollY, place.line, place.pixelY);
  return place;
}

TEST(EditorPlaces, EqualThoseThatAreCounted) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  for (int round = 0; round < 5000; ++round) {
    const auto zoom = static_cast<std::int16_t>(2 + random() % 29);
    const EditorView view{zoom, static_cast<std::int16_t>(random() % 500),
                          static_cast<std::int16_t>(random() % 500), 4000, 4000};
    const int x = static_cast<int>(random() % static_cast<unsigned>(zoom * 128));
    const int y = static_cast<int>(random() % static_cast<unsigned>(zoom * 128));
    const EditorPlace counted = CountedPlace(view, x, y);
    ExpectPlace(PlaceAt(view, static_cast<float>(x), static_cast<float>(y)), counted.column, counted.line,
                counted.pixelX, counted.pixelY);
  }
}

TEST(EditorDrops, LandInTheSlotUnderThePoint) {
  EXPECT_EQ(DropSlotAt(kWide, 0, 0), 0);
  EXPECT_EQ(DropSlotAt(kWide, 23, 23), 0);
  EXPECT_EQ(DropSlotAt(kWide, 24, 0), 1);
  EXPECT_EQ(DropSlotAt(kWide, 0, 24), 16);
  EXPECT_EQ(DropSlotAt(kWide, 383, 383), 255);
  EXPECT_EQ(DropSlotAt({3, 24, 48, 300, 300}, 0, 0), 33);
}

TEST(EditorDrops, OutsideTheClientAreaLandNowhere) {
  const EditorView view{3, 0, 0, 300, 200};
  EXPECT_FALSE(DropSlotAt(view, -1, 5));
  EXPECT_FALSE(DropSlotAt(view, 5, -1));
  EXPECT_FALSE(DropSlotAt(view, 301, 5));
  EXPECT_FALSE(DropSlotAt(view, 5, 201));
  EXPECT_TRUE(DropSlotAt(view, 300, 200));
}

TEST(EditorDrops, RightOfTheGridLandFurtherAlongInSlotOrder) {
  const EditorView view{3, 0, 0, 1000, 1000};
  EXPECT_EQ(DropSlotAt(view, 384, 0), 16);
  EXPECT_EQ(DropSlotAt(view, 500, 24), 36);
}

TEST(EditorDrops, BelowTheGridLandModulo256) {
  const EditorView view{3, 0, 0, 1000, 1000};
  EXPECT_EQ(DropSlotAt(view, 0, 384), 0);
  EXPECT_EQ(DropSlotAt(view, 30, 400), 1);
  EXPECT_EQ(DropSlotAt(view, 384, 383), 0) << "slot 256";
}

TEST(EditorDrops, AreADivisionFaultAtZoom0) {
  EXPECT_THROW((void)DropSlotAt({0, 0, 0, 100, 100}, 1, 1), Fault);
}

TEST(EditorScrollBars, AreNeededBelowGridAndBarThickness) {
  EXPECT_FALSE(NeedsScrollBar(3, 401));
  EXPECT_TRUE(NeedsScrollBar(3, 400));
}

TEST(EditorScrollBars, ReachToWhereTheOtherBarBegins) {
  EXPECT_EQ(ScrollMaximum(3, 400), 1);
  EXPECT_EQ(ScrollMaximum(3, 300), 101);
  EXPECT_EQ(ScrollMaximum(30, 300), 3557);
}

}  // namespace
}  // namespace brolk::test
