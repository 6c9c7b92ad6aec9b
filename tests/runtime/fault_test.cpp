// SPDX-License-Identifier: MIT
#include "runtime/fault.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "runtime/bounded.h"

namespace brolk::test {
namespace {

TEST(Fault, CarriesItsKindAndText) {
  const std::pair<FaultKind, const char*> texts[] = {
      {FaultKind::SubscriptOutOfRange, "Subscript out of range"},
      {FaultKind::DivisionByZero, "Division by zero"},
      {FaultKind::Overflow, "Overflow"},
      {FaultKind::TypeMismatch, "Type mismatch"},
      {FaultKind::InvalidProcedureCall, "Invalid procedure call"},
      {FaultKind::InputPastEnd, "Input past end of file"},
      {FaultKind::DuplicateKey, "Duplicate key"},
      {FaultKind::FileNotFound, "File not found"},
      {FaultKind::OutOfStackSpace, "Out of stack space"},
  };
  for (const auto& [kind, text] : texts) {
    EXPECT_STREQ(Fault(kind).what(), text);
    EXPECT_EQ(Fault(kind).Kind(), kind);
  }
}

TEST(Bounded, StartsWithZeros) {
  const Bounded<int, 9> items;
  EXPECT_TRUE(std::ranges::all_of(items, [](int item) { return item == 0; }));
  EXPECT_EQ(items.Size(), 10);
}

TEST(Bounded, FaultsOutsideItsBounds) {
  Bounded<int, 9> items;
  items[0] = 1;
  items[9] = 2;
  EXPECT_EQ(items.All().front(), 1);
  EXPECT_EQ(items.All().back(), 2);
  for (const std::int64_t index : {std::int64_t{-1}, std::int64_t{10}, std::int64_t{1} << 40}) {
    try {
      items[index] = 3;
      ADD_FAILURE() << "no fault at " << index;
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::SubscriptOutOfRange);
    }
  }
}

TEST(Bounded, ComparesByItsItems) {
  Bounded<int, 3> one;
  Bounded<int, 3> other;
  EXPECT_EQ(one, other);
  other[3] = 1;
  EXPECT_FALSE(one == other);
  one.fill(1);
  other.fill(1);
  EXPECT_EQ(one, other);
}

}  // namespace
}  // namespace brolk::test
