// SPDX-License-Identifier: MIT
#include "browser/page_window.h"

#include <gtest/gtest.h>

namespace brolk {
namespace {

TEST(PageWindow, WidthCountsItsRestInTwipsAndHeightInPixels) {
  const WindowExtent extent = PageWindowExtent({3, 8, 8}, 8, 16, 15);
  EXPECT_EQ(extent.width, 3 * 64 * 15 + 350);
  EXPECT_EQ(extent.height, (3 * 128 + 26) * 15);
}

TEST(PageWindow, ScalesOnlyThePageWithTheScreen) {
  const WindowExtent extent = PageWindowExtent({3, 8, 8}, 8, 16, 12);
  EXPECT_EQ(extent.width, 3 * 64 * 12 + 350);
  EXPECT_EQ(extent.height, (3 * 128 + 26) * 12);
}

TEST(PageWindow, WrapsTheTilePixelsAt16BitsAndNotTheZoom) {
  EXPECT_EQ(PageWindowExtent({13, 32, 8}, 1024, 16, 15).width, 13LL * -32768 * 15 + 350);
  EXPECT_EQ(PageWindowExtent({13, 8, 32}, 8, 1023, 15).height, (13LL * 32736 + 26) * 15);
}

TEST(PageCaption, NamesFileAndMode) {
  EXPECT_EQ(PageCaption("/roms/game.gb", "Gameboy"), "Browser - '/roms/game.gb' in Gameboy mode");
}

TEST(RedrawTime, HasWholeMilliseconds) {
  EXPECT_EQ(RedrawTimeText(10.0F, 10.0F), "The last redraw took about 0 seconds.");
  EXPECT_EQ(RedrawTimeText(0.0F, 0.0159F), "The last redraw took about 0.015 seconds.");
  EXPECT_EQ(RedrawTimeText(0.0F, 1.5F), "The last redraw took about 1.5 seconds.");
  EXPECT_EQ(RedrawTimeText(2.0F, 14.0F), "The last redraw took about 12 seconds.");
}

TEST(RedrawTime, IsNegativeOverMidnight) {
  EXPECT_EQ(RedrawTimeText(86399.0F, 1.0F), "The last redraw took about -86398 seconds.");
}

}  // namespace
}  // namespace brolk
