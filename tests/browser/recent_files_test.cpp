// SPDX-License-Identifier: MIT
#include "browser/recent_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brolk {
namespace {

// "a" to "i" where a letter stands, a free place where a point does.
RecentFiles ListOf(std::string_view letters) {
  RecentFiles files;
  for (std::size_t at = 0; at < letters.size(); ++at) {
    files[at] = {letters[at] != '.', letters[at] == '.' ? "-" : std::string(1, letters[at])};
  }
  return files;
}

// The list after a file was opened.
std::string After(std::string_view letters, std::string_view path) {
  RecentFiles files = ListOf(letters);
  for (const RecentWrite& write : WritesToTop(files, path)) {
    files[static_cast<std::size_t>(write.entry - 1)] = {true, write.path};
  }
  std::string result;
  for (const RecentFile& file : files) result += file.enabled ? file.path : ".";
  return result;
}

TEST(RecentFiles, TheFirstFileStandsAlone) {
  EXPECT_EQ(After(".........", "x"), "x........");
}

TEST(RecentFiles, ANewFilePushesTheOthersDown) {
  EXPECT_EQ(After("abc......", "x"), "xabc.....");
}

TEST(RecentFiles, ReopeningTheThirdMovesTheTwoAboveIt) {
  EXPECT_EQ(After("abcdefghi", "c"), "cabdefghi");
}

TEST(RecentFiles, ReopeningTheFirstChangesNothing) {
  EXPECT_EQ(After("abcdefghi", "a"), "abcdefghi");
  EXPECT_THAT(WritesToTop(ListOf("abcdefghi"), "a"), testing::ElementsAre(RecentWrite{1, "a"}));
}

TEST(RecentFiles, ATenthFileDropsTheNinth) {
  EXPECT_EQ(After("abcdefghi", "x"), "xabcdefgh");
}

TEST(RecentFiles, ReopeningTheNinthCountsAsNewAndComesToTheSame) {
  EXPECT_EQ(After("abcdefghi", "i"), "iabcdefgh");
}

TEST(RecentFiles, CaseMakesANameNew) {
  EXPECT_EQ(After("abc......", "B"), "Babc.....");
}

TEST(RecentFiles, OfTwoEqualEntriesTheUpperOneCounts) {
  EXPECT_EQ(After("abcb.....", "b"), "bacb.....");
}

TEST(RecentFiles, AFreePlaceIsNotMovedAndNeverMatches) {
  EXPECT_EQ(After("a.c......", "x"), "xacc.....") << "the third moves on, the free second leaves it standing";
  EXPECT_EQ(After("ab.......", "-"), "-ab......");
}

TEST(RecentFiles, WritesGoFromBelowToTheTop) {
  EXPECT_THAT(WritesToTop(ListOf("abc......"), "x"),
              testing::ElementsAre(RecentWrite{4, "c"}, RecentWrite{3, "b"}, RecentWrite{2, "a"},
                                   RecentWrite{1, "x"}));
}

}  // namespace
}  // namespace brolk
