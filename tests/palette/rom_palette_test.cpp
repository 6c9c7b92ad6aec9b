// SPDX-License-Identifier: MIT
#include "palette/rom_palette.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "palette/color_sets.h"
#include "palette/palette_model.h"
#include "runtime/fault.h"
#include "runtime/files.h"

namespace brolk {
namespace {

constexpr std::int32_t kRgb = 0;
constexpr std::int32_t kBgr = 1;
constexpr std::int32_t kNes = 2;

// A file with given bytes, open for reading and writing.
class RomPalette : public ::testing::Test {
 protected:
  void SetUp() override {
    FillPaletteFormats();
    path_ = std::filesystem::temp_directory_path() / ("brolk-rom-palette-" + std::to_string(getpid()));
  }
  void TearDown() override {
    _lclose(handle_);
    std::filesystem::remove(path_);
  }

  void Open(const std::string& bytes, int style = kOpenReadWrite) {
    std::ofstream(path_, std::ios::binary) << bytes;
    handle_ = OpenFile(path_.string(), style);
    ASSERT_GT(handle_, 0);
  }

  [[nodiscard]] std::string Content() const {
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  void Load(std::int32_t format, const std::string& address, std::int32_t count) {
    LoadRomPalette(handle_, {format, address, count}, PaletteFormats[format].Name);
  }
  bool Write(std::int32_t format, const std::string& address, std::int32_t count) {
    return WriteRomPalette(handle_, {format, address, count});
  }

  std::int16_t handle_ = -1;
  std::filesystem::path path_;
};

std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values) bytes.push_back(static_cast<char>(value));
  return bytes;
}

TEST_F(RomPalette, FormatsAreThreeOfSixRecords) {
  EXPECT_EQ(PaletteFormats.Size(), 6);
  EXPECT_EQ(PaletteFormats[0].Name, "15 bpc RGB");
  EXPECT_EQ(PaletteFormats[0].BytesPerColor, 2);
  EXPECT_EQ(PaletteFormats[1].Name, "15 bpc BGR (SNES)");
  EXPECT_EQ(PaletteFormats[1].BytesPerColor, 2);
  EXPECT_EQ(PaletteFormats[2].Name, "6 bpc NES");
  EXPECT_EQ(PaletteFormats[2].BytesPerColor, 1);
  for (int index = 3; index < 6; ++index) {
    EXPECT_EQ(PaletteFormats[index].Name, "");
    EXPECT_EQ(PaletteFormats[index].BytesPerColor, 0);
  }
  EXPECT_EQ(kUsedPaletteFormats, 3);
}

TEST(DecimalAddress, RewritesTheNumberAtTheHeadOfTheText) {
  EXPECT_EQ(DecimalAddress("&H20"), "32");
  EXPECT_EQ(DecimalAddress("&hFf rest"), "255");
  EXPECT_EQ(DecimalAddress("  4096"), "4096");
  EXPECT_EQ(DecimalAddress("12.5"), "12.5");
  EXPECT_EQ(DecimalAddress("100abc"), "100");
  EXPECT_EQ(DecimalAddress("-7"), "-7");
  EXPECT_EQ(DecimalAddress(""), "0");
  EXPECT_EQ(DecimalAddress("abc"), "0");
}

TEST_F(RomPalette, LoadReadsLittleEndianWords) {
  Open(Bytes({0xAA, 0x00, 0x7C, 0x1F, 0x00}));
  Load(kRgb, "1", 2);
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Colors[0], 0x0000F8) << "0x7C00 is pure red";
  EXPECT_EQ(Sets[0].Colors[1], 0xF80000) << "0x001F is pure blue";
}

TEST_F(RomPalette, LoadUnderTheSnesTypeReadsRedFromTheLowField) {
  Open(Bytes({0x00, 0x7C, 0x1F, 0x80}));
  Load(kBgr, "0", 2);
  EXPECT_EQ(Sets[0].Colors[0], 0xF80000);
  EXPECT_EQ(Sets[0].Colors[1], 0x0000F8) << "bit 15 plays no part";
}

TEST_F(RomPalette, LoadNamesTheSetByTypeAndAddress) {
  Open(std::string(5000, '\0'));
  Load(kBgr, "4096", 1);
  EXPECT_EQ(Sets[0].Name, "15 bpc BGR (SNES) at 4096");
  Load(kRgb, "&H20", 1);
  EXPECT_EQ(Sets[1].Name, "15 bpc RGB at 32");
}

TEST_F(RomPalette, LoadZeroesTheColorsBehindTheCount) {
  Open(std::string(512, '\xFF'));
  Sets[0].Colors.fill(0x123456);
  Load(kRgb, "0", 4);
  for (int index = 0; index < 4; ++index) EXPECT_EQ(Sets[0].Colors[index], 0xF8F8F8);
  for (int index = 4; index < 256; ++index) EXPECT_EQ(Sets[0].Colors[index], 0);
}

TEST_F(RomPalette, LoadOf256FillsAllColors) {
  std::string rom;
  for (int index = 0; index < 256; ++index) rom += Bytes({index % 32, 0});
  Open(rom);
  Load(kBgr, "0", 256);
  for (int index = 0; index < 256; ++index) EXPECT_EQ(Sets[0].Colors[index], index % 32 * 8);
}

TEST_F(RomPalette, LoadRoundsTheAddressToEven) {
  Open(Bytes({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 31, 0, 3, 0}));
  Load(kBgr, "12.5", 1);
  EXPECT_EQ(Sets[0].Colors[0], 248);
  EXPECT_EQ(Sets[0].Name, "15 bpc BGR (SNES) at 12.5");
  Load(kBgr, "13.5", 1);
  EXPECT_EQ(Sets[1].Colors[0], 24);
}

TEST_F(RomPalette, LoadPastTheEndRepeatsTheLastColor) {
  Open(Bytes({0x1F, 0x00, 0xE0, 0x03}));
  Load(kBgr, "0", 5);
  EXPECT_EQ(Sets[0].Colors[0], 0x0000F8);
  for (int index = 1; index < 5; ++index) EXPECT_EQ(Sets[0].Colors[index], 0x00F800);
}

TEST_F(RomPalette, LoadOfHalfAWordReplacesTheLowByteOnly) {
  Open(Bytes({0x00, 0x7C, 0x1F}));
  Load(kBgr, "0", 3);
  EXPECT_EQ(Sets[0].Colors[0], 0xF80000);
  EXPECT_EQ(Sets[0].Colors[1], 0xF800F8) << "low byte 1F, high byte 7C of the word before";
  EXPECT_EQ(Sets[0].Colors[2], 0xF800F8);
}

TEST_F(RomPalette, LoadFromBehindTheFileIsBlack) {
  Open("ab");
  Load(kRgb, "100", 16);
  EXPECT_EQ(SetCount, 1);
  for (const ColorValue color : Sets[0].Colors) EXPECT_EQ(color, 0);
}

TEST_F(RomPalette, LoadFromANegativeAddressReadsWhereTheFileStands) {
  Open(Bytes({0, 0, 0x1F, 0}));
  _llseek(handle_, 2, kFromStart);
  Load(kBgr, "-1", 1);
  EXPECT_EQ(Sets[0].Colors[0], 248);
  EXPECT_EQ(Sets[0].Name, "15 bpc BGR (SNES) at -1");
}

TEST_F(RomPalette, LoadUnderTheNesTypeConsumesBytesAndStoresBlack) {
  SetDefaultPalette();
  Open(Bytes({0x21, 0x30, 0x16, 0x01, 0x7F}));
  Load(kNes, "1", 4);
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Name, "6 bpc NES at 1");
  for (const ColorValue color : Sets[0].Colors) EXPECT_EQ(color, 0);
  EXPECT_EQ(OpenFilePosition(handle_), 5);
}

TEST_F(RomPalette, LoadWithoutAnOpenFileAddsABlackSet) {
  Sets[0].Colors.fill(5);
  handle_ = -1;
  Load(kRgb, "0", 16);
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Name, "15 bpc RGB at 0");
  for (const ColorValue color : Sets[0].Colors) EXPECT_EQ(color, 0);
}

TEST_F(RomPalette, LoadIntoAFullListDoesNothing) {
  Open("abcd");
  SetCount = 255;
  _llseek(handle_, 3, kFromStart);
  Load(kRgb, "0", 1);
  EXPECT_EQ(SetCount, 255);
  EXPECT_EQ(Sets[255].Name, "");
  EXPECT_EQ(OpenFilePosition(handle_), 3) << "the file is not touched";
}

TEST_F(RomPalette, LoadFillsPlace254ButNeverPlace255) {
  Open("abcd");
  SetCount = 254;
  Load(kRgb, "0", 1);
  EXPECT_EQ(SetCount, 255);
  EXPECT_EQ(Sets[254].Name, "15 bpc RGB at 0");
}

TEST_F(RomPalette, AddressBeyond32BitsIsTheOverflowFault) {
  Open("abcd");
  for (const char* address : {"2147483648", "&HFFFFFFFF", "-2147483649", "99999999999999"}) {
    EXPECT_THROW(Load(kRgb, address, 1), Fault) << address;
    EXPECT_THROW(static_cast<void>(Write(kRgb, address, 1)), Fault) << address;
  }
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(Content(), "abcd");
  Load(kRgb, "2147483647", 1);
  EXPECT_EQ(SetCount, 1);
}

TEST_F(RomPalette, WritePutsTwoDigitsOfTheDecimalText) {
  Open("0123456789");
  Sets[0].Colors[0] = 0x0000FF;  // 31 in format 0
  EXPECT_TRUE(Write(kRgb, "4", 1));
  EXPECT_EQ(Content(), "0123316789");
}

TEST_F(RomPalette, WriteCutsALongerNumber) {
  Open(std::string(2, '\0'));
  Sets[0].Colors[0] = 0x009010;  // 18 * 32 + 2 = 578
  EXPECT_TRUE(Write(kRgb, "0", 1));
  EXPECT_EQ(Content(), "57");
}

TEST_F(RomPalette, WriteOfOneDigitPutsAZeroByteBehindIt) {
  Open("abcd");
  Sets[0].Colors[0] = 0x000048;  // 9
  Sets[0].Colors[1] = 0x000050;  // 10
  EXPECT_TRUE(Write(kRgb, "0", 2));
  EXPECT_EQ(Content(), Bytes({'9', 0, '1', '0'}));
}

TEST_F(RomPalette, WriteOfAReadRedGives31) {
  Open(Bytes({0x00, 0x7C}));
  Load(kRgb, "0", 1);
  EXPECT_TRUE(Write(kRgb, "0", 1));
  EXPECT_EQ(Content(), "31");
}

TEST_F(RomPalette, WriteUnderTheSnesTypePutsRedHigh) {
  Open("....");
  Sets[0].Colors[0] = 0x0000FF;  // 31744
  Sets[0].Colors[1] = 0xFF0000;  // 31
  EXPECT_TRUE(Write(kBgr, "0", 2));
  EXPECT_EQ(Content(), "3131");
}

TEST_F(RomPalette, WriteKeepsTheTopBitOfTheWordInTheFile) {
  Open(Bytes({0x00, 0x80, 0xFF, 0x7F, 0xFF, 0xFF}));
  Sets[0].Colors[0] = 0x000010;  // 2, so 32770
  Sets[0].Colors[1] = 0x000010;  // 2: no top bit
  Sets[0].Colors[2] = 0xF8F8F8;  // 32767, so 65535
  EXPECT_TRUE(Write(kRgb, "0", 3));
  EXPECT_EQ(Content(), Bytes({'3', '2', '2', 0, '6', '5'}));
}

TEST_F(RomPalette, WriteTakesTheSelectedSet) {
  Open("....");
  Sets[3].Colors[0] = 0x0000F8;
  SelectedSet = 3;
  EXPECT_TRUE(Write(kRgb, "2", 1));
  EXPECT_EQ(Content(), "..31");
}

TEST_F(RomPalette, WriteOf256ColorsCoversFiveHundredTwelveBytes) {
  Open(std::string(520, '.'));
  Sets[0].Colors.fill(0x000058);  // 11
  EXPECT_TRUE(Write(kRgb, "4", 256));
  std::string expected = "....";
  for (int index = 0; index < 256; ++index) expected += "11";
  EXPECT_EQ(Content(), expected + "....");
}

TEST_F(RomPalette, WriteAtTheEndOverwritesTheColorBefore) {
  Open("0123");
  Sets[0].Colors[0] = 0x000058;  // 11
  Sets[0].Colors[1] = 0x000060;  // 12
  Sets[0].Colors[2] = 0x000068;  // 13
  EXPECT_TRUE(Write(kRgb, "2", 3));
  EXPECT_EQ(Content(), "0113") << "11, then 12 and 13 over it: each read past the end seeks back by two";
}

TEST_F(RomPalette, WriteOverTheLastByteBeginsOneByteBeforeIt) {
  Open("01234");
  Sets[0].Colors[0] = 0x000058;  // 11
  EXPECT_TRUE(Write(kRgb, "4", 1));
  EXPECT_EQ(Content(), "01211") << "one byte was read, two were taken back";
}

TEST_F(RomPalette, WriteKeepsTheWordThatIsNotRead) {
  Open(Bytes({0x00, 0x80}));
  Sets[0].Colors.fill(0x000008);  // 1
  EXPECT_TRUE(Write(kRgb, "0", 2));
  EXPECT_EQ(Content(), "32") << "the second read delivers nothing: the word 0x8000 is still in force";
}

TEST_F(RomPalette, WriteIntoAnEmptyFileBeginsAtZero) {
  Open("");
  Sets[0].Colors[0] = 0x000058;
  EXPECT_TRUE(Write(kRgb, "0", 1));
  EXPECT_EQ(Content(), "11") << "the seek before the start fails and leaves the position";
}

TEST_F(RomPalette, WriteThroughAReadOnlyHandleChangesNothing) {
  Open("0123", kOpenRead);
  Sets[0].Colors[0] = 0x000058;
  EXPECT_TRUE(Write(kRgb, "0", 2));
  EXPECT_EQ(Content(), "0123");
}

TEST_F(RomPalette, WriteUnderTheNesTypeIsRefusedAtOnce) {
  Open("0123");
  EXPECT_FALSE(Write(kNes, "2", 4));
  EXPECT_EQ(Content(), "0123");
  EXPECT_EQ(OpenFilePosition(handle_), 2) << "the place was sought before";
}

}  // namespace
}  // namespace brolk
