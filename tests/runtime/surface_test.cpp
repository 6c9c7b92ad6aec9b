// SPDX-License-Identifier: MIT
#include "runtime/surface.h"

#include <gtest/gtest.h>

#include "support/random_bytes.h"

namespace brolk::test {
namespace {

constexpr ColorValue kBack = 0x101010;
constexpr ColorValue kPen = 0x0000FF;
constexpr ColorValue kBrush = 0x00FF00;

Surface Blank(int width, int height) {
  Surface surface(width, height);
  surface.Fill(kBack);
  return surface;
}

// Every pixel is the pen's where `isPen`, the brush's where `isBrush`, the background elsewhere.
template <typename IsPen, typename IsBrush>
void ExpectPicture(const Surface& surface, IsPen isPen, IsBrush isBrush) {
  for (int y = 0; y < surface.Height(); ++y) {
    for (int x = 0; x < surface.Width(); ++x) {
      const ColorValue expected = isPen(x, y) ? kPen : isBrush(x, y) ? kBrush : kBack;
      ASSERT_EQ(surface.GetPixel(x, y), expected) << x << ", " << y;
    }
  }
}

constexpr auto kNowhere = [](int, int) { return false; };

TEST(Surface, IsBlackAtFirst) {
  const Surface surface(3, 2);
  EXPECT_EQ(surface.Width(), 3);
  EXPECT_EQ(surface.Height(), 2);
  EXPECT_EQ(surface.GetPixel(2, 1), 0);
  EXPECT_EQ(surface.Data()[0], 0xFF000000U);
}

TEST(Surface, HasNoPixelsAtASizeOfZeroOrLess) {
  for (const auto& [width, height] : {std::pair{0, 5}, {5, 0}, {-3, 4}}) {
    Surface surface(width, height);
    surface.SetPixel(0, 0, kPen);
    surface.Fill(kPen);
    EXPECT_EQ(surface.GetPixel(0, 0), -1);
  }
}

TEST(Surface, HoldsTheLowThreeBytesOfAColour) {
  Surface surface(1, 1);
  surface.SetPixel(0, 0, 0x55123456);
  EXPECT_EQ(surface.GetPixel(0, 0), 0x123456);
  EXPECT_EQ(surface.Data()[0], 0xFF123456U);
  surface.SetPixel(0, 0, -14326);
  EXPECT_EQ(surface.GetPixel(0, 0), -14326 & 0xFFFFFF);
}

TEST(Surface, DrawsNothingOutside) {
  Surface surface = Blank(4, 4);
  for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {4, 0}, {0, 4}}) {
    surface.SetPixel(x, y, kPen);
    EXPECT_EQ(surface.GetPixel(x, y), -1);
  }
  EXPECT_TRUE(surface == Blank(4, 4));
}

TEST(Surface, KeepsWhatLiesInBothSizes) {
  Surface surface = Blank(3, 3);
  surface.SetPixel(1, 1, kPen);
  surface.Resize(5, 2, kBrush);
  ExpectPicture(
      surface, [](int x, int y) { return x == 1 && y == 1; }, [](int x, int) { return x >= 3; });
  surface.Resize(1, 4, kBrush);
  ExpectPicture(surface, kNowhere, [](int, int y) { return y >= 2; });
}

TEST(PackRgb, CountsAChannelAbove255As255) {
  EXPECT_EQ(PackRgb(1, 2, 3), 0x030201);
  EXPECT_EQ(PackRgb(256, 1000, 255), 0xFFFFFF);
}

TEST(Rectangle, LeavesOutItsRightAndBottom) {
  Surface surface = Blank(10, 10);
  surface.Rectangle(2, 3, 7, 6, kPen);
  ExpectPicture(
      surface,
      [](int x, int y) {
        return x >= 2 && x <= 6 && y >= 3 && y <= 5 && (x == 2 || x == 6 || y == 3 || y == 5);
      },
      kNowhere);
}

TEST(Rectangle, FillsItsInside) {
  Surface surface = Blank(10, 10);
  surface.Rectangle(2, 3, 7, 6, kPen, kBrush);
  ExpectPicture(
      surface,
      [](int x, int y) {
        return x >= 2 && x <= 6 && y >= 3 && y <= 5 && (x == 2 || x == 6 || y == 3 || y == 5);
      },
      [](int x, int y) { return x > 2 && x < 6 && y == 4; });
}

TEST(Rectangle, IsCutByTheSurface) {
  Surface surface = Blank(6, 6);
  surface.Rectangle(-3, -3, 4, 4, kPen, kBrush);
  ExpectPicture(
      surface, [](int x, int y) { return (x == 3 && y <= 3) || (y == 3 && x <= 3); },
      [](int x, int y) { return x < 3 && y < 3; });
  surface = Blank(6, 6);
  surface.Rectangle(-5, -5, 50, 50, kPen);
  EXPECT_TRUE(surface == Blank(6, 6));
}

TEST(Rectangle, DrawsNothingWithoutAnArea) {
  Surface surface = Blank(6, 6);
  surface.Rectangle(3, 3, 3, 5, kPen, kBrush);
  surface.Rectangle(3, 3, 5, 3, kPen, kBrush);
  surface.Rectangle(4, 4, 2, 2, kPen, kBrush);
  EXPECT_TRUE(surface == Blank(6, 6));
  surface.Rectangle(3, 3, 4, 4, kPen);
  ExpectPicture(
      surface, [](int x, int y) { return x == 3 && y == 3; }, kNowhere);
}

TEST(Line, LeavesOutItsEndInEveryDirection) {
  struct Case {
    int fromX, fromY, toX, toY;
    int left, top, right, bottom;  // the pixels that are set, both ends included
  };
  for (const Case& line : {Case{1, 2, 5, 2, 1, 2, 4, 2}, Case{5, 2, 1, 2, 2, 2, 5, 2},
                           Case{3, 1, 3, 6, 3, 1, 3, 5}, Case{3, 6, 3, 1, 3, 2, 3, 6}}) {
    Surface surface = Blank(8, 8);
    surface.Line(line.fromX, line.fromY, line.toX, line.toY, kPen);
    ExpectPicture(
        surface,
        [&](int x, int y) { return x >= line.left && x <= line.right && y >= line.top && y <= line.bottom; },
        kNowhere);
  }
}

TEST(Line, OfNoLengthDrawsNothing) {
  Surface surface = Blank(4, 4);
  surface.Line(2, 2, 2, 2, kPen);
  EXPECT_TRUE(surface == Blank(4, 4));
}

TEST(Line, IsCutByTheSurface) {
  Surface surface = Blank(4, 4);
  surface.Line(-10, 1, 100, 1, kPen);
  surface.Line(2, 100, 2, -10, kPen);
  surface.Line(-1, 0, -1, 4, kPen);
  surface.Line(4, 0, 4, 4, kPen);
  surface.Line(0, 4, 4, 4, kPen);
  ExpectPicture(
      surface, [](int x, int y) { return y == 1 || x == 2; }, kNowhere);
}

TEST(Box, HoldsAllItsEdgesWhateverTheOrderOfItsCorners) {
  for (const auto& [left, top, right, bottom] :
       {std::array{2, 3, 5, 4}, {5, 4, 2, 3}, {5, 3, 2, 4}, {2, 4, 5, 3}}) {
    Surface surface = Blank(8, 8);
    surface.Box(left, top, right, bottom, kPen);
    ExpectPicture(
        surface, [](int x, int y) { return x >= 2 && x <= 5 && y >= 3 && y <= 4; }, kNowhere);
  }
}

TEST(Box, IsCutByTheSurface) {
  Surface surface = Blank(4, 4);
  surface.Box(-5, 2, 1, 50, kPen);
  ExpectPicture(
      surface, [](int x, int y) { return x <= 1 && y >= 2; }, kNowhere);
  surface.Box(10, 10, 20, 20, kBrush);
  ExpectPicture(
      surface, [](int x, int y) { return x <= 1 && y >= 2; }, kNowhere);
}

Surface RandomSurface(RandomBytes& random, int width, int height) {
  Surface surface(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) surface.SetPixel(x, y, random.Below(0x1000000));
  }
  return surface;
}

struct Place {
  int x, y, width, height;
};

// The stretch, pixel by pixel: the nearest source pixel at or left of and above the place.
Surface NaiveStretch(Surface target, Place to, const Surface& source, Place from) {
  for (int row = 0; row < to.height; ++row) {
    for (int column = 0; column < to.width; ++column) {
      const int x = from.x + column * from.width / to.width;
      const int y = from.y + row * from.height / to.height;
      if (from.width > 0 && from.height > 0 && source.GetPixel(x, y) >= 0) {
        target.SetPixel(to.x + column, to.y + row, source.GetPixel(x, y));
      }
    }
  }
  return target;
}

void CheckStretch(const Surface& source, Place to, Place from) {
  SCOPED_TRACE("to " + std::to_string(to.x) + ", " + std::to_string(to.y) + ", " + std::to_string(to.width) +
               ", " + std::to_string(to.height) + " from " + std::to_string(from.x) + ", " +
               std::to_string(from.y) + ", " + std::to_string(from.width) + ", " +
               std::to_string(from.height));
  Surface target = Blank(30, 20);
  target.StretchBlt(to.x, to.y, to.width, to.height, source, from.x, from.y, from.width, from.height);
  EXPECT_TRUE(target == NaiveStretch(Blank(30, 20), to, source, from));
}

TEST(StretchBlt, EqualsTheNaiveTwin) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  const Surface source = RandomSurface(random, 12, 9);
  for (int run = 0; run < 2000; ++run) {
    const Place to = {random.Below(40) - 15, random.Below(40) - 15, random.Below(45) - 2,
                      random.Below(45) - 2};
    const Place from = {random.Below(20) - 5, random.Below(20) - 5, random.Below(16) - 1,
                        random.Below(16) - 1};
    CheckStretch(source, to, from);
  }
}

TEST(StretchBlt, MakesSquaresOfWholeZooms) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  const Surface source = RandomSurface(random, 8, 8);
  for (const int zoom : {1, 2, 3}) CheckStretch(source, {1, 2, 8 * zoom, 8 * zoom}, {0, 0, 8, 8});
}

TEST(StretchBlt, DrawsNothingAtSizesOfZeroOrLess) {
  const Surface source(8, 8);
  for (const Place to : {Place{0, 0, 0, 5}, {0, 0, 5, 0}, {0, 0, -5, 5}, {0, 0, 5, -5}}) {
    Surface target = Blank(10, 10);
    target.StretchBlt(to.x, to.y, to.width, to.height, source, 0, 0, 8, 8);
    target.StretchBlt(0, 0, 5, 5, source, 0, 0, to.width, to.height);
    EXPECT_TRUE(target == Blank(10, 10));
  }
}

}  // namespace
}  // namespace brolk::test
