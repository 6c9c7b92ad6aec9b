// SPDX-License-Identifier: MIT
#include "editor/saving.h"

#include <gtest/gtest.h>

#include <limits>

#include "editor/rule_fixture.h"

namespace brolk::test {
namespace {

using Saving = RuleFixture;

TEST_F(Saving, LeavesOutATileThatEndsExactlyAtTheEndOfTheFile) {
  FileLength = 1024;
  GfxMode = kSnes4;
  EXPECT_TRUE(MayBeSaved(0));
  EXPECT_TRUE(MayBeSaved(991));
  EXPECT_FALSE(MayBeSaved(992));
  EXPECT_FALSE(MayBeSaved(1024));
}

TEST_F(Saving, HoldsTheAddressAgainstTheModeOfTheMoment) {
  FileLength = 1024;
  GfxMode = kGba8;
  EXPECT_TRUE(MayBeSaved(959));
  EXPECT_FALSE(MayBeSaved(960));
  GfxMode = kOneBit;
  EXPECT_TRUE(MayBeSaved(1015));
  EXPECT_FALSE(MayBeSaved(1016));
}

TEST_F(Saving, LeavesOutSlotsWithoutAFileOffset) {
  FileLength = 1024;
  EXPECT_FALSE(MayBeSaved(-1));
  EXPECT_FALSE(MayBeSaved(-2));
  EXPECT_FALSE(MayBeSaved(-5000));
}

TEST_F(Saving, LeavesOutEverythingInAFileShorterThanATile) {
  GfxMode = kSnes4;
  for (const std::int32_t length : {0, 31, 32}) {
    FileLength = length;
    EXPECT_FALSE(MayBeSaved(0)) << length;
  }
  FileLength = 33;
  EXPECT_TRUE(MayBeSaved(0));
}

TEST_F(Saving, WrapsTheLimitOfAFileLengthThatIsNegative) {
  GfxMode = kSnes4;
  FileLength = std::numeric_limits<std::int32_t>::min() + 31;
  EXPECT_TRUE(MayBeSaved(0x7FFFFFFE));
  FileLength = std::numeric_limits<std::int32_t>::min() + 32;
  EXPECT_FALSE(MayBeSaved(0));
}

}  // namespace
}  // namespace brolk::test
