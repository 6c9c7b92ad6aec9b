// SPDX-License-Identifier: MIT
#include "browser/page_paint.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "palette/palette_model.h"
#include "runtime/fault.h"
#include "support/random_bytes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

constexpr ColorValue kBlack = 0x000000;
constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kGrid = 0x123456;
constexpr ColorValue kBack = 0x778899;

class Page : public ::testing::Test {
 protected:
  void SetUp() override {
    for (int index = 0; index < 256; ++index) Palette[index] = ColorOf(index) | 0x55000000;
    const auto bytes = random_.Take(kPageBufferLast + 1);
    std::ranges::copy(bytes, PageBuffer.All().begin());
    MainZoom = 3;
    SelColumn = SelLine = 0;
    GridColor = kGrid;
  }

  // What is seen of a palette entry: its low three bytes.
  static ColorValue ColorOf(int index) { return index * 0x010101 ^ 0x102040; }

  static void SetShape(int columns, int lines, int width, int height) {
    MainRows = static_cast<std::int16_t>(columns);
    MainLines = static_cast<std::int16_t>(lines);
    TileWidth = static_cast<std::int16_t>(width);
    TileHeight = static_cast<std::int16_t>(height);
  }

  // The page as a list of loops that all end: entry after entry, the inner axis across and bounded by the
  // height.
  static Surface NaivePage() {
    Surface page(256, 256);
    int entry = 0;
    for (int line = 0; line < MainLines; ++line) {
      for (int column = 0; column < MainRows; ++column) {
        for (int a = 0; a < TileWidth; ++a) {
          for (int b = 0; b < TileHeight; ++b) {
            page.SetPixel(column * TileWidth + b, line * TileHeight + a, ColorOf(PageBuffer[entry++]));
          }
        }
      }
    }
    return page;
  }

  static void ExpectFault(Surface& page) {
    try {
      PaintPagePixels(page);
      FAIL() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::SubscriptOutOfRange);
    }
  }

  RandomBytes random_;
};

TEST_F(Page, CountsItsTilesIn16Bits) {
  SetShape(8, 16, 8, 8);
  EXPECT_EQ(PageTileCount(), 128);
  SetShape(256, 256, 1, 1);
  EXPECT_EQ(PageTileCount(), 0);
  SetShape(256, 128, 1, 1);
  EXPECT_EQ(PageTileCount(), -32768);
}

TEST_F(Page, PaintsEveryPlainShapeLikeItsTwins) {
  SCOPED_TRACE(random_.Text());
  for (const auto& [columns, lines] : {std::pair{8, 16}, {1, 1}, {2, 3}, {32, 32}, {31, 7}, {2, 32}}) {
    SetShape(columns, lines, 8, 8);
    Surface fast(256, 256);
    PaintPagePixels(fast);
    Surface exact(256, 256);
    PaintPagePixelsExactly(exact);
    EXPECT_TRUE(fast == exact) << columns << " by " << lines;
    EXPECT_TRUE(fast == NaivePage()) << columns << " by " << lines;
  }
}

TEST_F(Page, PaintsEveryBitmapShapeLikeItsTwin) {
  SCOPED_TRACE(random_.Text());
  for (const auto& [width, height] : {std::pair{16, 8}, {8, 16}, {1, 1}, {3, 5}, {32, 31}, {9, 8}, {8, 9}}) {
    SetShape(5, 4, width, height);
    Surface page(256, 256);
    PaintPagePixels(page);
    EXPECT_TRUE(page == NaivePage()) << width << " by " << height;
  }
}

TEST_F(Page, ShowsPixelXyOfATileAtXy) {
  SetShape(8, 16, 8, 8);
  PageBuffer.fill(0);
  PageBuffer[64 * 9 + 8 * 5 + 2] = 200;  // tile 9 stands second in the second line
  Surface page(256, 256);
  PaintPagePixels(page);
  EXPECT_EQ(page.GetPixel(8 + 2, 8 + 5), ColorOf(200));
  EXPECT_EQ(page.GetPixel(8 + 5, 8 + 2), ColorOf(0));
}

TEST_F(Page, LaysATileThatIsNotSquareTransposedIntoItsCell) {
  SetShape(1, 2, 16, 8);
  for (int entry = 0; entry < 256; ++entry) PageBuffer[entry] = static_cast<std::uint8_t>(entry);
  Surface page(256, 256);
  PaintPagePixels(page);
  // 8 pixels across, 16 down; the second tile starts 8 pixels down and covers the lower half of the first.
  EXPECT_EQ(page.GetPixel(0, 0), ColorOf(0));
  EXPECT_EQ(page.GetPixel(7, 0), ColorOf(7));
  EXPECT_EQ(page.GetPixel(8, 0), kBlack);
  EXPECT_EQ(page.GetPixel(0, 7), ColorOf(56));
  EXPECT_EQ(page.GetPixel(0, 8), ColorOf(128));
  EXPECT_EQ(page.GetPixel(7, 23), ColorOf(255));
  EXPECT_EQ(page.GetPixel(0, 24), kBlack);
}

TEST_F(Page, LeavesWhatWasPaintedBeforeInTheGaps) {
  SetShape(2, 1, 16, 8);
  Surface page(256, 256);
  page.Fill(kBack);
  PaintPagePixels(page);
  EXPECT_EQ(page.GetPixel(8, 0), kBack);
  EXPECT_EQ(page.GetPixel(15, 0), kBack);
  EXPECT_EQ(page.GetPixel(16, 0), ColorOf(PageBuffer[128]));
  EXPECT_EQ(page.GetPixel(0, 16), kBack);
}

TEST_F(Page, ConsumesTheEntriesOfPixelsOutsideTheSurface) {
  SetShape(33, 2, 8, 8);  // the last column of each line lies outside
  Surface page(256, 256);
  PaintPagePixels(page);
  EXPECT_TRUE(page == NaivePage());
  EXPECT_EQ(page.GetPixel(0, 8), ColorOf(PageBuffer[33 * 64]));
}

TEST_F(Page, MayConsumeAsManyEntriesAsThereAre) {
  Surface page(256, 256);
  SetShape(128, 128, 2, 2);  // 65536 entries
  EXPECT_NO_THROW(PaintPagePixels(page));
  SetShape(113, 145, 4, 1);  // 65540, the next number that four counters of a byte reach
  ExpectFault(page);
}

TEST_F(Page, FaultsPastTheLastEntry) {
  SetShape(33, 32, 8, 8);
  Surface page(256, 256);
  ExpectFault(page);
  EXPECT_EQ(page.GetPixel(0, 0), ColorOf(PageBuffer[0]));
}

TEST_F(Page, FaultsWhereACounterNeverEnds) {
  Surface page(256, 256);
  SetShape(8, 16, 0, 8);
  ExpectFault(page);
  SetShape(8, 16, 8, 0);
  ExpectFault(page);
  SetShape(256, 1, 1, 1);
  ExpectFault(page);
  SetShape(1, 256, 1, 1);
  ExpectFault(page);
  SetShape(8, 0, 8, 8);
  ExpectFault(page);
  SetShape(0, 8, 8, 8);
  ExpectFault(page);
}

TEST_F(Page, CountsByTheLowByteOfItsShape) {
  SetShape(258, 257, 8, 8);  // like 2 by 1
  Surface page(256, 256);
  PaintPagePixels(page);
  SetShape(2, 1, 8, 8);
  EXPECT_TRUE(page == NaivePage());
}

TEST_F(Page, PaintsOnASurfaceOfAnySize) {
  SetShape(8, 16, 8, 8);
  Surface small(20, 10);
  PaintPagePixels(small);
  EXPECT_EQ(small.GetPixel(19, 9), ColorOf(PageBuffer[64 * 10 + 8 * 1 + 3]));
}

TEST_F(Page, IsStretchedPixelByPixel) {
  SetShape(2, 1, 8, 8);
  Surface page(256, 256);
  PaintPagePixels(page);
  for (const int zoom : {1, 2, 3, 13}) {
    MainZoom = static_cast<std::int16_t>(zoom);
    Surface window(16 * zoom + 5, 8 * zoom + 5);
    window.Fill(kBack);
    BlitPagePixels(window, page);
    for (int y = 0; y < window.Height(); ++y) {
      for (int x = 0; x < window.Width(); ++x) {
        const bool inside = x < 16 * zoom && y < 8 * zoom;
        ASSERT_EQ(window.GetPixel(x, y), inside ? page.GetPixel(x / zoom, y / zoom) : kBack)
            << x << ", " << y;
      }
    }
  }
}

TEST_F(Page, DrawsNothingWhereItsSizeWraps) {
  SetShape(32767, 1, 8, 8);  // 262136 pixels are -8 in 16 bits
  Surface window(30, 30);
  window.Fill(kBack);
  BlitPagePixels(window, Surface(256, 256));
  EXPECT_EQ(window.GetPixel(0, 0), kBack);
}

TEST_F(Page, HasAGridLineLeftOfEachColumnAndAboveEachLine) {
  SetShape(3, 2, 8, 8);
  Surface window(3 * 24 + 10, 2 * 24 + 10);
  window.Fill(kBack);
  DrawPageGrid(window, 5000, 5000);
  for (int y = 0; y < window.Height(); ++y) {
    for (int x = 0; x < window.Width(); ++x) {
      const bool isLine = x == 0 || x == 24 || x == 48 || y == 0 || y == 24;
      ASSERT_EQ(window.GetPixel(x, y), isLine ? kGrid : kBack) << x << ", " << y;
    }
  }
}

TEST_F(Page, EndsItsGridLinesAtTheOuterSizeTakenAsPixels) {
  SetShape(1, 1, 8, 8);
  Surface window(60, 60);
  window.Fill(kBack);
  DrawPageGrid(window, 40.5, 50.5);  // 40 and 50, ties to even; the end pixel is left out
  EXPECT_EQ(window.GetPixel(39, 0), kGrid);
  EXPECT_EQ(window.GetPixel(40, 0), kBack);
  EXPECT_EQ(window.GetPixel(0, 49), kGrid);
  EXPECT_EQ(window.GetPixel(0, 50), kBack);
}

TEST_F(Page, HasItsGridAtTheTileSizeOfBitmapMode) {
  SetShape(2, 2, 16, 4);
  MainZoom = 2;
  Surface window(80, 40);
  window.Fill(kBack);
  DrawPageGrid(window, 5000, 5000);
  EXPECT_EQ(window.GetPixel(32, 5), kGrid);
  EXPECT_EQ(window.GetPixel(16, 5), kBack);
  EXPECT_EQ(window.GetPixel(5, 8), kGrid);
  EXPECT_EQ(window.GetPixel(5, 16), kBack);
}

TEST_F(Page, FramesTheSelectedTileInWhiteOnePixelBeyondIt) {
  SetShape(8, 16, 8, 8);
  SelColumn = 2;
  SelLine = 1;
  Surface window(192, 384);
  window.Fill(kBack);
  DrawPageFrame(window);
  for (int y = 0; y < window.Height(); ++y) {
    for (int x = 0; x < window.Width(); ++x) {
      const bool inside = x >= 48 && x <= 72 && y >= 24 && y <= 48;
      const bool isFrame = inside && (x == 48 || x == 72 || y == 24 || y == 48);
      ASSERT_EQ(window.GetPixel(x, y), isFrame ? kWhite : kBack) << x << ", " << y;
    }
  }
}

TEST_F(Page, SurvivesGeometryBeyondAnyWindow) {
  SetShape(32767, 3, 32, 32);
  MainZoom = 32767;
  SelColumn = SelLine = 32767;
  Surface window(10, 10);
  window.Fill(kBack);
  DrawPageGrid(window, 100, 100);
  DrawPageFrame(window);
  EXPECT_EQ(window.GetPixel(0, 0), kGrid);
  EXPECT_EQ(window.GetPixel(1, 1), kBack);
}

}  // namespace
}  // namespace brolk::test
