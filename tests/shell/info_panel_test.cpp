// SPDX-License-Identifier: MIT
#include "shell/info_panel.h"

#include <gtest/gtest.h>

namespace brolk {
namespace {

TEST(InfoPanel, SharesTheWidthOutInTenths) {
  const InfoPanelLayout layout = LayOutInfoPanel(12000, 15);
  EXPECT_EQ(layout.info.left, 0);
  EXPECT_EQ(layout.info.width, 7200);
  EXPECT_EQ(layout.address.left, 7215);
  EXPECT_EQ(layout.address.width, 2400);
  EXPECT_EQ(layout.position.left, 9630);
  EXPECT_EQ(layout.position.width, 1200);
  EXPECT_EQ(layout.color.left, 10845);
  EXPECT_EQ(layout.color.width, 1200);
}

TEST(InfoPanel, TheLastLabelEndsThreePixelsBeyondThePanel) {
  for (const double width : {1995.0, 8430.0, 12195.0, 57600.0}) {
    const InfoPanelLayout layout = LayOutInfoPanel(width, 15);
    EXPECT_EQ(layout.color.left + layout.color.width, width + 3 * 15) << width;
  }
}

TEST(InfoPanel, HalvesGoToTheEvenNumber) {
  // 2 tenths of 12.5 are 2.5, and 1 tenth of 25 is 2.5; 2 tenths of 17.5 are 3.5.
  EXPECT_EQ(LayOutInfoPanel(12.5, 15).address.width, 2);
  EXPECT_EQ(LayOutInfoPanel(25, 15).position.width, 2);
  EXPECT_EQ(LayOutInfoPanel(17.5, 15).address.width, 4);
  EXPECT_EQ(LayOutInfoPanel(35, 15).position.width, 4);
}

TEST(InfoPanel, NoScreenIsTooLarge) {
  const InfoPanelLayout layout = LayOutInfoPanel(1e6, 15);
  EXPECT_EQ(layout.info.width, 600000);
  EXPECT_EQ(layout.color.width, 100000);
}

}  // namespace
}  // namespace brolk
