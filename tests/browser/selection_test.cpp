// SPDX-License-Identifier: MIT
#include "browser/selection.h"

#include <gtest/gtest.h>

namespace brolk {
namespace {

PageSelection Moved(PageSelection from, SelectionMove move) {
  return MovedSelection(from, move, 8, 16);
}

TEST(KeypadNext, GoesOnInTheLine) {
  EXPECT_EQ(Moved({0, 0, 5}, SelectionMove::Next), (PageSelection{1, 0, 5}));
  EXPECT_EQ(Moved({6, 3, 5}, SelectionMove::Next), (PageSelection{7, 3, 5}));
}

TEST(KeypadNext, RunsOnIntoTheNextLineAndTakesTheFileLineAlong) {
  EXPECT_EQ(Moved({7, 3, 5}, SelectionMove::Next), (PageSelection{0, 4, 6}));
}

TEST(KeypadNext, StopsAtTheLastTile) {
  EXPECT_EQ(Moved({7, 15, 5}, SelectionMove::Next), (PageSelection{7, 15, 5}));
}

TEST(KeypadPrevious, GoesBackInTheLine) {
  EXPECT_EQ(Moved({3, 2, 5}, SelectionMove::Previous), (PageSelection{2, 2, 5}));
}

TEST(KeypadPrevious, RunsBackIntoTheLineAboveAndTakesTheFileLineAlong) {
  EXPECT_EQ(Moved({0, 2, 5}, SelectionMove::Previous), (PageSelection{7, 1, 4}));
}

TEST(KeypadPrevious, StopsAtTheFirstTile) {
  EXPECT_EQ(Moved({0, 0, 5}, SelectionMove::Previous), (PageSelection{0, 0, 5}));
}

TEST(KeypadDownAndUp, LeaveTheFileLineOutOfStep) {
  EXPECT_EQ(Moved({2, 2, 5}, SelectionMove::Down), (PageSelection{2, 3, 5}));
  EXPECT_EQ(Moved({2, 2, 5}, SelectionMove::Up), (PageSelection{2, 1, 5}));
}

TEST(KeypadDownAndUp, StopAtTheEdges) {
  EXPECT_EQ(Moved({2, 15, 5}, SelectionMove::Down), (PageSelection{2, 15, 5}));
  EXPECT_EQ(Moved({2, 0, 5}, SelectionMove::Up), (PageSelection{2, 0, 5}));
}

TEST(KeypadCorners, GoToTheFirstAndTheLastTile) {
  EXPECT_EQ(Moved({4, 4, 5}, SelectionMove::First), (PageSelection{0, 0, 5}));
  EXPECT_EQ(Moved({4, 4, 5}, SelectionMove::Last), (PageSelection{7, 15, 5}));
}

TEST(KeypadMoves, TakeASelectionBeyondThePageAsItStands) {
  EXPECT_EQ(Moved({12, 3, 5}, SelectionMove::Next), (PageSelection{0, 4, 6}));
  EXPECT_EQ(Moved({12, 3, 5}, SelectionMove::Previous), (PageSelection{11, 3, 5}));
  EXPECT_EQ(Moved({12, 20, 5}, SelectionMove::Next), (PageSelection{12, 20, 5}));
  EXPECT_EQ(Moved({12, 20, 5}, SelectionMove::Up), (PageSelection{12, 19, 5}));
}

}  // namespace
}  // namespace brolk
