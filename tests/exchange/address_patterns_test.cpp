// SPDX-License-Identifier: MIT
#include "exchange/address_patterns.h"

#include <gtest/gtest.h>

#include "editor/slots.h"
#include "runtime/files.h"
#include "support/rule_files.h"
#include "tile/shared.h"

namespace brolk {
namespace {

using test::Bytes;

class AddressPatterns : public testing::Test {
 protected:
  AddressPatterns() {
    ClearAllSlots();
    PatternCount = 0;
  }

  static void AddMany(int count) {
    for (int i = 0; i < count; ++i) AddPattern("p" + std::to_string(i));
  }

  // Puts one pattern more than Add can into the list, as a file does.
  static void Fill64() {
    AddMany(63);
    Patterns[63].Description = "last";
    PatternCount = 64;
  }
};

// 256 addresses of a file: slot 0 has `first`, the others are non-copied.
std::string AddressBlock(const std::string& first) {
  std::string block = first;
  for (int slot = 1; slot <= 255; ++slot) block += Bytes("\xFF\xFF\xFF\xFF");
  return block;
}

TEST_F(AddressPatterns, AddTakesTheAddressesOfAllSlots) {
  EditSlots[0].Address = 0;
  EditSlots[1].Address = 4096;
  EditSlots[2].Address = kUnaddressed;
  EditSlots[255].Address = 0x7FFFFFFF;
  AddPattern("My tiles");
  ASSERT_EQ(PatternCount, 1);
  EXPECT_EQ(Patterns[0].Description, "My tiles");
  EXPECT_EQ(Patterns[0].Addresses[0], 0);
  EXPECT_EQ(Patterns[0].Addresses[1], 4096);
  EXPECT_EQ(Patterns[0].Addresses[2], kNonCopied) << "unaddressed counts as non-copied";
  EXPECT_EQ(Patterns[0].Addresses[3], kNonCopied);
  EXPECT_EQ(Patterns[0].Addresses[255], 0x7FFFFFFF);
}

TEST_F(AddressPatterns, AddCarriesOtherNegativeAddressesAsTheyAre) {
  EditSlots[9].Address = -77;
  AddPattern("odd");
  EXPECT_EQ(Patterns[0].Addresses[9], -77);
}

TEST_F(AddressPatterns, AddWithUnaddressedSlotsAloneStoresMinusTwo) {
  for (EditSlot& slot : EditSlots) slot.Address = kUnaddressed;
  AddPattern("all");
  for (const std::int32_t address : Patterns[0].Addresses) EXPECT_EQ(address, kNonCopied);
}

TEST_F(AddressPatterns, EmptyDescriptionBecomesNoDescription) {
  AddPattern("");
  EXPECT_EQ(Patterns[0].Description, "No description");
}

TEST_F(AddressPatterns, AddStopsAt63) {
  AddMany(62);
  EXPECT_EQ(PatternCount, 62);
  AddPattern("the 63rd");
  EXPECT_EQ(PatternCount, 63);
  EXPECT_EQ(Patterns[62].Description, "the 63rd");
  AddPattern("one too many");
  EXPECT_EQ(PatternCount, 63);
  EXPECT_NE(Patterns[63].Description, "one too many");
}

TEST_F(AddressPatterns, DeleteMovesTheOthersDown) {
  for (int i = 0; i < 3; ++i) {
    EditSlots[0].Address = 100 * i;
    AddPattern("p" + std::to_string(i));
  }
  DeletePattern(1);
  ASSERT_EQ(PatternCount, 2);
  EXPECT_EQ(Patterns[0].Description, "p0");
  EXPECT_EQ(Patterns[1].Description, "p2");
  EXPECT_EQ(Patterns[1].Addresses[0], 200);
}

TEST_F(AddressPatterns, DeleteReadsOneEntryPastTheLast) {
  AddMany(2);
  Patterns[2].Description = "past the last";
  DeletePattern(0);
  EXPECT_EQ(PatternCount, 1);
  EXPECT_EQ(Patterns[0].Description, "p1");
  EXPECT_EQ(Patterns[1].Description, "past the last");
}

TEST_F(AddressPatterns, DeleteWorksWith63) {
  AddMany(63);
  DeletePattern(62);
  EXPECT_EQ(PatternCount, 62);
}

TEST_F(AddressPatterns, DeleteWith64FaultsForTheFirstLineAndKeepsTheShift) {
  Fill64();
  EXPECT_EQ(test::RuleFaultOf([] { DeletePattern(0); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(PatternCount, 64);
  EXPECT_EQ(Patterns[0].Description, "p1");
  EXPECT_EQ(Patterns[62].Description, "last");
  EXPECT_EQ(Patterns[63].Description, "last");
}

TEST_F(AddressPatterns, DeleteWith64FaultsForTheLastLineToo) {
  Fill64();
  EXPECT_EQ(test::RuleFaultOf([] { DeletePattern(63); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(PatternCount, 64);
  EXPECT_EQ(Patterns[62].Description, "p62");
}

TEST_F(AddressPatterns, ApplyGivesAddressesAndNothingElse) {
  EditSlots[3].Address = 48;
  AddPattern("one");
  ClearAllSlots();
  EditSlots[3].Pixels[0] = 7;
  EditSlots[4].Address = 99;
  ApplyPatternAddresses(0);
  EXPECT_EQ(EditSlots[3].Address, 48);
  EXPECT_EQ(EditSlots[4].Address, kNonCopied);
  EXPECT_EQ(EditSlots[3].Pixels[0], 7);
}

TEST(PatternAddresses, ArePackedLowByteFirst) {
  EXPECT_EQ(PatternAddressBytes(0x12345678), (std::array<std::uint8_t, 4>{0x78, 0x56, 0x34, 0x12}));
  EXPECT_EQ(PatternAddressBytes(0), (std::array<std::uint8_t, 4>{0, 0, 0, 0}));
  EXPECT_EQ(PatternAddressBytes(-1), (std::array<std::uint8_t, 4>{255, 255, 255, 255}));
  EXPECT_EQ(PatternAddressBytes(-77), (std::array<std::uint8_t, 4>{255, 255, 255, 255}));
}

TEST(PatternAddresses, TheTopBitMakesMinusTwo) {
  const auto read = [](std::array<std::uint8_t, 4> bytes) { return PatternAddress(bytes); };
  EXPECT_EQ(read({0x01, 0x00, 0x00, 0x80}), -2);
  EXPECT_EQ(read({0xFF, 0xFF, 0xFF, 0xFF}), -2);
  EXPECT_EQ(read({0xFF, 0xFF, 0xFF, 0x7F}), 0x7FFFFFFF);
  EXPECT_EQ(read({0x78, 0x56, 0x34, 0x12}), 0x12345678);
  EXPECT_EQ(read({0, 0, 0, 0}), 0);
}

TEST_F(AddressPatterns, SaveWritesMagicAndRecords) {
  EditSlots[0].Address = 0x01020304;
  AddPattern("ab");
  EditSlots[0].Address = -77;
  AddPattern("");
  Patterns[1].Description = "";
  const std::string path = test::RulePath("two.eap");
  SavePatternFile(path);
  EXPECT_EQ(test::ReadRuleFile(path), "BXA" + Bytes("ab\0") + AddressBlock("\x04\x03\x02\x01") + Bytes("\0") +
                                          AddressBlock(Bytes("\xFF\xFF\xFF\xFF")));
}

TEST_F(AddressPatterns, SaveOfAnEmptyListIsTheMagic) {
  const std::string path = test::WriteRuleFile("empty.eap", "something longer");
  SavePatternFile(path);
  EXPECT_EQ(test::ReadRuleFile(path), "BXA");
}

TEST_F(AddressPatterns, SaveToAPlaceThatCannotBeCreatedGoesUnnoticed) {
  EXPECT_NO_THROW(SavePatternFile(test::RulePath("no-such-folder/x.eap")));
}

TEST_F(AddressPatterns, LoadReadsWhatSaveWrote) {
  EditSlots[0].Address = 1;
  EditSlots[255].Address = 0x7FFFFFFF;
  EditSlots[7].Address = -77;
  AddPattern("one \x80");
  AddPattern("two");
  const std::string path = test::RulePath("trip.eap");
  SavePatternFile(path);
  const auto before = Patterns[0].Addresses;
  for (EditorPattern& pattern : Patterns) pattern = {};
  PatternCount = 0;
  ASSERT_EQ(LoadPatternFile(path), PatternLoad::Done);
  ASSERT_EQ(PatternCount, 2);
  EXPECT_EQ(Patterns[0].Description, "one \x80");
  EXPECT_EQ(Patterns[1].Description, "two");
  auto expected = before;
  expected[7] = kNonCopied;  // only the trip through a file makes it so
  EXPECT_EQ(Patterns[0].Addresses, expected);
}

TEST_F(AddressPatterns, MagicAloneIsAnEmptyList) {
  AddMany(2);
  EXPECT_EQ(LoadPatternFile(test::WriteRuleFile("magic.eap", "BXA")), PatternLoad::Done);
  EXPECT_EQ(PatternCount, 0);
}

TEST_F(AddressPatterns, EmptyDescriptionStaysEmpty) {
  const std::string record = Bytes("\0") + AddressBlock(Bytes("\x01\x00\x00\x80"));
  ASSERT_EQ(LoadPatternFile(test::WriteRuleFile("nameless.eap", "BXA" + record)), PatternLoad::Done);
  ASSERT_EQ(PatternCount, 1);
  EXPECT_EQ(Patterns[0].Description, "");
  EXPECT_EQ(Patterns[0].Addresses[0], -2);
}

TEST_F(AddressPatterns, MissingFileLeavesTheList) {
  AddMany(2);
  EXPECT_EQ(LoadPatternFile(test::RulePath("not-there.eap")), PatternLoad::NotFound);
  EXPECT_EQ(PatternCount, 2);
}

TEST_F(AddressPatterns, WrongMagicEmptiesTheList) {
  for (const char* start : {"", "B", "BX", "BXB", "bxa", "XXA"}) {
    AddMany(2);
    EXPECT_EQ(LoadPatternFile(test::WriteRuleFile("wrong.eap", start)), PatternLoad::WrongHeader) << start;
    EXPECT_EQ(PatternCount, 0);
  }
}

// Every length up to one record and a few bytes into the next, then the end of the second.
TEST_F(AddressPatterns, EveryCutKeepsTheWholeRecords) {
  const std::string record = Bytes("abc\0") + AddressBlock(Bytes("\x10\x00\x00\x00"));
  const std::string whole = "BXA" + record + record;
  for (std::size_t length = 3; length <= whole.size(); ++length) {
    if (length > record.size() + 12 && length < whole.size() - 5) continue;
    const std::string path = test::WriteRuleFile("cut.eap", whole.substr(0, length));
    ASSERT_EQ(LoadPatternFile(path), PatternLoad::Done);
    ASSERT_EQ(PatternCount, static_cast<int>((length - 3) / record.size())) << length;
  }
}

TEST_F(AddressPatterns, CutRecordStaysPartlyOverwritten) {
  AddMany(1);
  Patterns[0].Addresses.fill(5);
  ASSERT_EQ(LoadPatternFile(test::WriteRuleFile("half.eap", Bytes("BXAnew\0\x01\0\0\0\x02\0\0"))),
            PatternLoad::Done);
  EXPECT_EQ(PatternCount, 0);
  EXPECT_EQ(Patterns[0].Description, "new");
  EXPECT_EQ(Patterns[0].Addresses[0], 1);
  EXPECT_EQ(Patterns[0].Addresses[1], 5);
}

TEST_F(AddressPatterns, FileBrings64AndMoreIsPassedOver) {
  std::string bytes = "BXA";
  for (int p = 0; p < 65; ++p)
    bytes += "p" + std::to_string(p) + Bytes("\0") + AddressBlock(Bytes("\0\0\0\0"));
  ASSERT_EQ(LoadPatternFile(test::WriteRuleFile("many.eap", bytes)), PatternLoad::Done);
  EXPECT_EQ(PatternCount, 64);
  EXPECT_EQ(Patterns[63].Description, "p63");
  AddPattern("no room");
  EXPECT_EQ(PatternCount, 64);
}

TEST_F(AddressPatterns, FilesUseHandlesOfTheirOwn) {
  hFile = 77;
  const std::string path = test::RulePath("own.eap");
  SavePatternFile(path);
  ASSERT_EQ(LoadPatternFile(path), PatternLoad::Done);
  EXPECT_EQ(hFile, 77);
}

}  // namespace
}  // namespace brolk
