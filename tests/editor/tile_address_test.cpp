// SPDX-License-Identifier: MIT
#include "editor/tile_address.h"

#include <gtest/gtest.h>

#include <limits>

namespace brolk::test {
namespace {

struct TextCase {
  const char* text;
  const char* box;
  const char* hex;
};

void PrintTo(const TextCase& c, std::ostream* out) {
  *out << '"' << c.text << '"';
}

class TileAddressBox : public ::testing::TestWithParam<TextCase> {};

TEST_P(TileAddressBox, ShowsTextAndHexadecimal) {
  const TileAddressTexts texts = TileAddressTextsFor(GetParam().text, 0, 1000);
  EXPECT_EQ(texts.box, GetParam().box);
  EXPECT_EQ(texts.hex, GetParam().hex);
}

INSTANTIATE_TEST_SUITE_P(
    All, TileAddressBox,
    ::testing::Values(TextCase{"0", "0", "00000000h"}, TextCase{"999", "999", "000003E7h"},
                      TextCase{"1000", "1000", "000003E8h"}, TextCase{"1001", "1000", "000003E8h"},
                      TextCase{"1000.25", "1000", "000003E8h"}, TextCase{"", "", "00000000h"},
                      TextCase{"n/a", "n/a", "n/a"}, TextCase{"12ab", "12ab", "0000000Ch"},
                      TextCase{"ff", "ff", "00000000h"}, TextCase{"  17", "  17", "00000011h"},
                      TextCase{"11.5", "11.5", "0000000Ch"}, TextCase{"12.5", "12.5", "0000000Ch"},
                      TextCase{"-5", "-5", "00000000h"}, TextCase{"&H1F", "&H1F", "0000001Fh"},
                      TextCase{"&hffff", "1000", "000003E8h"}, TextCase{"&O17", "&O17", "0000000Fh"},
                      TextCase{"99999999999999999999", "1000", "000003E8h"},
                      TextCase{"-99999999999999999999", "-99999999999999999999", "00000000h"}));

TEST(TileAddressBoxTest, IsNaForASlotWithoutAFileOffset) {
  for (const std::int32_t loaded : {-1, -2, -900}) {
    const TileAddressTexts texts = TileAddressTextsFor("17", loaded, 1000);
    EXPECT_EQ(texts.box, "n/a");
    EXPECT_EQ(texts.hex, "n/a");
  }
}

TEST(TileAddressBoxTest, TakesANegativeLimitAsItIs) {
  const TileAddressTexts texts = TileAddressTextsFor("0", 0, -16);
  EXPECT_EQ(texts.box, "-16");
  EXPECT_EQ(texts.hex, "00000000h");
}

TEST(TileAddressBoxTest, IsNaOnlyForThisVeryText) {
  EXPECT_EQ(TileAddressTextsFor("N/A", 0, 1000).box, "N/A");
  EXPECT_EQ(TileAddressTextsFor("n/a ", 0, 1000).hex, "00000000h");
}

TEST(TileAddress, IsRoundedToTheNearestTiesToEven) {
  EXPECT_EQ(AddressOfText("11.5"), 12);
  EXPECT_EQ(AddressOfText("12.5"), 12);
  EXPECT_EQ(AddressOfText("7.75"), 8);
  EXPECT_EQ(AddressOfText(""), 0);
}

TEST(TileAddress, Beyond32BitsIsTheNearest32BitNumber) {
  EXPECT_EQ(AddressOfText("3000000000"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(AddressOfText("-3000000000"), std::numeric_limits<std::int32_t>::min());
}

TEST(HexAddress, HasEightDigitsAndASuffix) {
  EXPECT_EQ(FormatHexAddress(0x1F3A0), "0001F3A0h");
  EXPECT_EQ(FormatHexAddress(0), "00000000h");
  EXPECT_EQ(FormatHexAddress(0x7FFFFFFF), "7FFFFFFFh");
  EXPECT_EQ(FormatHexAddress(-1), "00000000h");
  EXPECT_EQ(FormatHexAddress(std::numeric_limits<std::int32_t>::min()), "00000000h");
}

}  // namespace
}  // namespace brolk::test
