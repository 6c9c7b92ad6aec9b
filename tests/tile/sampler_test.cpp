// SPDX-License-Identifier: MIT
// The sample ROMs hold what their README says. Nothing of the program that made them is used here.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tile/modes.h"
#include "tile/naive_tile.h"

namespace brolk::test {
namespace {

constexpr int kTileOfA = 96;
constexpr int kTileOf7 = 111;

struct SampleFile {
  const char* name;
  int firstMode;
};
constexpr SampleFile kFiles[] = {
    {"sampler.bin", kMegaDrive}, {"sampler.gba", kGba4},         {"sampler.gb", kGameboy},
    {"sampler.nes", kNes},       {"sampler.vb", kVirtualBoy},    {"sampler.pce", kPcEngineChar},
    {"sampler.sms", kGameGear},  {"sampler.ngp", kNeoGeoPocket}, {"sampler.smc", kSnes4}};

Bytes Load(const std::string& name) {
  std::ifstream file(std::string(BROLK_SAMPLES) + "/" + name, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << name;
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  return {text.begin(), text.end()};
}

std::size_t SectionOf(int mode) {
  return static_cast<std::size_t>(mode + 1) * 0x2000;
}

Bytes Slice(const Bytes& rom, std::size_t offset, std::size_t count) {
  const auto start = rom.begin() + static_cast<std::ptrdiff_t>(offset);
  return {start, start + static_cast<std::ptrdiff_t>(count)};
}

Bytes TileBytesAt(const Bytes& rom, int mode, int tile) {
  const auto size = static_cast<std::size_t>(NaiveTileBytes(mode));
  return Slice(rom, SectionOf(mode) + static_cast<std::size_t>(tile) * size, size);
}

// A tile as text: ink where the pixel has the letter's colour, a point where it is 0, a question mark
// otherwise.
std::vector<std::string> LetterRows(int mode, const Bytes& tile, int ink) {
  std::vector<std::string> rows;
  for (int y = 0; y < 8; ++y) {
    std::string& row = rows.emplace_back();
    for (int x = 0; x < 8; ++x) {
      const int pixel = NaivePixel(mode, tile, x, y);
      row += pixel == ink ? '#' : pixel == 0 ? '.' : '?';
    }
  }
  return rows;
}

TEST(Sampler, HasTheLetterAInEveryMode) {
  const Bytes rom = Load("sampler.bin");
  for (const int mode : kRegularModes) {
    const int bits = NaiveBitsPerPixel(mode);
    EXPECT_EQ(LetterRows(mode, TileBytesAt(rom, mode, kTileOfA), bits == 8 ? 15 : (1 << bits) - 1),
              (std::vector<std::string>{"..###...",  //
                                        ".##.##..",  //
                                        "##...##.",  //
                                        "##...##.",  //
                                        "#######.",  //
                                        "##...##.",  //
                                        "##...##.",  //
                                        "........"}))
        << ModeLabel(mode);
  }
}

TEST(Sampler, HasTheDigit7InEveryMode) {
  const Bytes rom = Load("sampler.gba");
  for (const int mode : kRegularModes) {
    const int bits = NaiveBitsPerPixel(mode);
    EXPECT_EQ(LetterRows(mode, TileBytesAt(rom, mode, kTileOf7), bits == 8 ? 7 : 7 & ((1 << bits) - 1)),
              (std::vector<std::string>{"#######.",  //
                                        "##...##.",  //
                                        "....##..",  //
                                        "...##...",  //
                                        "..##....",  //
                                        "..##....",  //
                                        "..##....",  //
                                        "........"}))
        << ModeLabel(mode);
  }
}

// The first row of the "A" is ..###..., in the mode's highest colour of up to four bits.
TEST(Sampler, StoresTheFirstRowOfTheAInTheBytesOfEachConsole) {
  const Bytes rom = Load("sampler.bin");
  const auto bytes = [&](int mode, std::size_t count) {
    return Slice(TileBytesAt(rom, mode, kTileOfA), 0, count);
  };
  EXPECT_EQ(bytes(kGameboy, 4), (Bytes{0x38, 0x38, 0x6C, 0x6C}));
  EXPECT_EQ(bytes(kNes, 9), (Bytes{0x38, 0x6C, 0xC6, 0xC6, 0xFE, 0xC6, 0xC6, 0x00, 0x38}));
  EXPECT_EQ(bytes(kNeoGeoPocket, 2), (Bytes{0xC0, 0x0F}));
  EXPECT_EQ(bytes(kSnes4, 18), (Bytes{0x38, 0x38, 0x6C, 0x6C, 0xC6, 0xC6, 0xC6, 0xC6, 0xFE, 0xFE, 0xC6, 0xC6,
                                      0xC6, 0xC6, 0x00, 0x00, 0x38, 0x38}));
  EXPECT_EQ(bytes(kOneBit, 8), (Bytes{0x38, 0x6C, 0xC6, 0xC6, 0xFE, 0xC6, 0xC6, 0x00}));
  EXPECT_EQ(bytes(kVirtualBoy, 2), (Bytes{0xF0, 0x03}));
  EXPECT_EQ(bytes(kMegaDrive, 4), (Bytes{0x00, 0xFF, 0xF0, 0x00}));
  EXPECT_EQ(bytes(kGameGear, 8), (Bytes{0x38, 0x38, 0x38, 0x38, 0x6C, 0x6C, 0x6C, 0x6C}));
  EXPECT_EQ(bytes(kSnes3, 17)[16], 0x38);
  EXPECT_EQ(bytes(kGba4, 4), (Bytes{0x00, 0xFF, 0x0F, 0x00}));
  EXPECT_EQ(bytes(kGba8, 8), (Bytes{0, 0, 15, 15, 15, 0, 0, 0}));
  EXPECT_EQ(bytes(kSnes8, 34)[32], 0x00);
  EXPECT_EQ(bytes(kPcEngineChar, 18)[17], 0x38);
}

TEST(Sampler, ShowsTheSamePageInAllModes) {
  const Bytes rom = Load("sampler.gb");
  for (int tile = 0; tile < 128; ++tile) {
    const Bytes full = NaiveDecode(kSnes4, TileBytesAt(rom, kSnes4, tile));
    for (const int mode : kRegularModes) {
      const Bytes seen = NaiveDecode(mode, TileBytesAt(rom, mode, tile));
      for (std::size_t i = 0; i < 64; ++i) {
        const int bits = NaiveBitsPerPixel(mode);
        const int row = tile / 8 * 8 + static_cast<int>(i) / 8;
        const int sky = full[i] == 13 && row < 86 ? 32 + row : full[i];
        const int expected = bits == 1 ? full[i] % 4 / 2 : bits == 8 ? sky : full[i] % (1 << bits);
        ASSERT_EQ(seen[i], expected) << ModeLabel(mode) << ", tile " << tile << ", pixel " << i;
      }
    }
  }
}

TEST(Sampler, StartsWithTheCoverInTheModeOfItsExtension) {
  for (const SampleFile& file : kFiles) {
    const Bytes rom = Load(file.name);
    ASSERT_EQ(rom.size(), 0x20000U) << file.name;
    Bytes first = Slice(rom, 0, 0x2000);
    Bytes section = Slice(rom, SectionOf(file.firstMode), 0x2000);
    for (std::size_t header = 308; header < 336; ++header) {
      const bool isHeader = header < 323 || header >= 334;
      if (isHeader) first[header] = section[header] = 0;
    }
    EXPECT_EQ(first, section) << file.name;
  }
}

TEST(Sampler, DiffersBetweenItsFilesInTheFirstSectionOnly) {
  const Bytes rom = Load("sampler.bin");
  for (const SampleFile& file : kFiles) {
    EXPECT_EQ(Slice(Load(file.name), 0x2000, 0x1E000), Slice(rom, 0x2000, 0x1E000)) << file.name;
  }
}

TEST(Sampler, CarriesAHandheldHeader) {
  for (const SampleFile& file : kFiles) {
    const Bytes rom = Load(file.name);
    const Bytes title = Slice(rom, 308, 15);
    EXPECT_EQ(std::string(title.begin(), title.end()), std::string("BROLK SAMPLER\0\0", 15)) << file.name;
    unsigned sum = 0;
    for (std::size_t at = 0; at < rom.size(); ++at) sum += at == 334 || at == 335 ? 0 : rom[at];
    EXPECT_EQ(rom[334] * 256U + rom[335], sum % 65536) << file.name;
  }
}

TEST(Sampler, HasColourTables) {
  const Bytes rom = Load("sampler.bin");
  // Colour 0 is 31, 28, 22 and colour 15 is 4, 6, 14.
  EXPECT_EQ(Slice(rom, 122880, 2), (Bytes{0x9F, 0x5B}));
  EXPECT_EQ(Slice(rom, 122880 + 30, 2), (Bytes{0xC4, 0x38}));
  EXPECT_EQ(Slice(rom, 123136, 2), (Bytes{0x96, 0x7F}));
  EXPECT_EQ(Slice(rom, 123136 + 30, 2), (Bytes{0xCE, 0x10}));
  EXPECT_EQ(Slice(rom, 123392, 32), Slice(rom, 122880, 32));
  EXPECT_EQ(Slice(rom, 123392 + 2 * 32, 2), (Bytes{0xE8, 0x69}));  // the top of the sky: 8, 15, 26
}

}  // namespace
}  // namespace brolk::test
