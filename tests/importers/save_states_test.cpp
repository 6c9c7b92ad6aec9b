// SPDX-License-Identifier: MIT
#include "importers/save_states.h"

#include "palette/palette_files_support.h"
#include "palette/palette_model.h"
#include "runtime/files.h"

namespace brolk::test {
namespace {

using SaveStates = PaletteFilesTest;

constexpr const char* kTitle = "Wrong file format";

// 5-bit fields as a colour value, eight times each.
ColorValue Times8(int red, int green, int blue) {
  return red * 8 + green * 8 * 256 + blue * 8 * 65536;
}
ColorValue RedHigh(int word) {
  return Times8(word >> 10 & 31, word >> 5 & 31, word & 31);
}
ColorValue RedLow(int word) {
  return Times8(word & 31, word >> 5 & 31, word >> 10 & 31);
}

// The kinds with an exact size.
struct SizedKind {
  int filterIndex;
  std::size_t bytes;
  const char* text;
};
constexpr SizedKind kSizedKinds[] = {
    {kNesticle, 22992, "Not a NESticle savestate. Filesize must be 22992 bytes."},
    {kVgba, 509144, "Not a VGBA 1.0 savestate. Filesize must be 509144 bytes."},
    {kZsnes, 274047, "Not a ZSnes savestate. Filesize must be 274047 bytes."},
    {kCygne, 135674, "Not a Cygne savestate. Filesize must be 135674 bytes."},
};

TEST_F(SaveStates, RejectEverySizeButOne) {
  const ListState before = CurrentList();
  for (const SizedKind& kind : kSizedKinds) {
    const std::string whole(kind.bytes + 1, '\1');
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, kind.bytes / 2, kind.bytes - 1, kind.bytes + 1}) {
      ExpectNotice(Load(kind.filterIndex, Cut(whole, size)), kind.text, kTitle, 16, false);
    }
    EXPECT_EQ(CurrentList(), before);
    ExpectDone(Load(kind.filterIndex, Cut(whole, kind.bytes)));
    EXPECT_GT(SetCount, 0);
    SetCount = 0;
    Sets.fill({});
  }
}

TEST_F(SaveStates, OnlyNesticleLeavesARejectedFileOpen) {
  for (const int index : {kNesticle, kVgba, kNoGmb, kZsnes, kCygne}) {
    const std::string path = MakeFile("short", "short");
    const std::size_t open = CountOpenFiles();
    EXPECT_TRUE(LoadPath(index, path).notice.has_value());
    EXPECT_EQ(CountOpenFiles(), open + (index == kNesticle ? 1U : 0U)) << index;
  }
}

TEST_F(SaveStates, NesticleTakes32ColoursThroughTheNesTable) {
  Sets[0].Colors.fill(99);
  Bytes bytes;
  bytes.FillTo(22791);
  for (int index = 0; index < 32; ++index) bytes.Byte(index * 2);
  ExpectDone(Load(kNesticle, bytes.FillTo(22992).Str()));
  for (int index = 0; index < 32; ++index) EXPECT_EQ(Sets[0].Colors[index], NesPalette[index * 2]);
  for (int index = 32; index < 256; ++index) ASSERT_EQ(Sets[0].Colors[index], 0);
  EXPECT_EQ(Sets[0].Name, "NESticle Sta palette");
}

TEST_F(SaveStates, NesticleUsesTheLowSixBits) {
  for (int entry = 0; entry < 256; ++entry) {
    EXPECT_EQ(DecodeNesIndex(static_cast<std::uint16_t>(entry)), NesPalette[entry & 63]) << entry;
  }
}

TEST_F(SaveStates, VgbaTakesTwoSetsInARow) {
  ExpectDone(Load(kVgba, Sample(kVgba).bytes));
  EXPECT_EQ(SetCount, 2);
  for (int index = 0; index < 256; ++index) {
    ASSERT_EQ(Sets[0].Colors[index], RedHigh(index));
    ASSERT_EQ(Sets[1].Colors[index], RedHigh(256 + index));
  }
}

TEST_F(SaveStates, NoGmbTakes64Colours) {
  Sets[0].Colors.fill(99);
  ExpectDone(Load(kNoGmb, Sample(kNoGmb).bytes));
  for (int index = 0; index < 64; ++index) EXPECT_EQ(Sets[0].Colors[index], RedHigh(index));
  for (int index = 64; index < 256; ++index) ASSERT_EQ(Sets[0].Colors[index], 0);
}

TEST_F(SaveStates, NoGmbRejectsUpTo1756Bytes) {
  const std::string whole = Sample(kNoGmb).bytes;
  for (const std::size_t size : {0U, 14U, 15U, 1628U, 1755U, 1756U}) {
    ExpectNotice(Load(kNoGmb, Cut(whole, size)), "Not a No$gmb savestate.\rFilesize is too small.", kTitle,
                 16, false);
  }
  EXPECT_EQ(SetCount, 0);
}

TEST_F(SaveStates, NoGmbTakesAnyLongerFile) {
  const std::string whole = Sample(kNoGmb).bytes;
  ASSERT_EQ(whole.size(), 1757U);
  ExpectDone(Load(kNoGmb, whole));
  ExpectDone(Load(kNoGmb, whole + std::string(300000, 'x')));
  EXPECT_EQ(SetCount, 2);
  EXPECT_TRUE(Sets[0].Colors == Sets[1].Colors);
}

TEST_F(SaveStates, NoGmbTestsTheSizeBeforeTheSignature) {
  ExpectNotice(Load(kNoGmb, std::string(1756, 'x')), "Not a No$gmb savestate.\rFilesize is too small.",
               kTitle, 16, false);
}

TEST_F(SaveStates, NoGmbRejectsAChangeInAnyByteOfItsSignature) {
  for (std::size_t at = 0; at < 15; ++at) {
    std::string file = Sample(kNoGmb).bytes;
    file[at] = static_cast<char>(file[at] ^ 0x20);
    const std::size_t open = CountOpenFiles();
    ExpectNotice(Load(kNoGmb, file), "Not a no$gmb palette file. Wrong header bytes.", kTitle, 16, false);
    EXPECT_EQ(CountOpenFiles(), open);
  }
  EXPECT_EQ(SetCount, 0);
}

TEST_F(SaveStates, ZsnesTakes256Colours) {
  ExpectDone(Load(kZsnes, Sample(kZsnes).bytes));
  EXPECT_EQ(SetCount, 1);
  for (int index = 0; index < 256; ++index) ASSERT_EQ(Sets[0].Colors[index], RedLow(index));
}

TEST_F(SaveStates, CygneTakesFourBitsAChannel) {
  Bytes bytes;
  bytes.FillTo(66120);
  for (int index = 0; index < 256; ++index) bytes.Word(0xF000 + index * 16 + 5);
  ExpectDone(Load(kCygne, bytes.FillTo(135674).Str()));
  for (int index = 0; index < 256; ++index) {
    ASSERT_EQ(Sets[0].Colors[index], (index >> 4) * 16 + (index & 15) * 16 * 256 + 5 * 16 * 65536);
  }
  EXPECT_EQ(DecodeFourBits(0x0FFF), 0xF0F0F0);
  EXPECT_EQ(DecodeFourBits(0xFFFF), 0xF0F0F0);
  EXPECT_EQ(DecodeFourBits(0xF000), 0);
}

TEST_F(SaveStates, TheTopBitOfAWordHasNoEffect) {
  for (const int word : {0x1234, 0x7FFF, 0x001F}) {
    const auto plain = static_cast<std::uint16_t>(word);
    const auto marked = static_cast<std::uint16_t>(word | 0x8000);
    EXPECT_EQ(DecodeRedHigh(plain), DecodeRedHigh(marked));
    EXPECT_EQ(DecodeRedLow(plain), DecodeRedLow(marked));
  }
  EXPECT_EQ(DecodeRedHigh(0x001F), 248 * 65536);
  EXPECT_EQ(DecodeRedLow(0x001F), 248);
}

TEST_F(SaveStates, LookAtNothingButTheColours) {
  for (const int index : {kNesticle, kVgba, kNoGmb, kZsnes, kCygne}) {
    const PaletteKind& kind = kPaletteKinds[index - 1];
    std::string file = Sample(index).bytes;
    const auto from = static_cast<std::size_t>(kind.colorOffset);
    const std::size_t sets = kind.setNames[1].empty() ? 1 : 2;
    const std::size_t to = from + sets * static_cast<std::size_t>(kind.entryCount * kind.entryBytes);
    SetCount = 0;
    ExpectDone(Load(index, file));
    const ListState plain = CurrentList();
    for (std::size_t at = index == kNoGmb ? 15 : 0; at < file.size(); ++at) {
      if (at < from || at >= to) file[at] = '\x5A';
    }
    SetCount = 0;
    ExpectDone(Load(index, file));
    EXPECT_EQ(CurrentList(), plain) << index;
    Sets.fill({});
  }
}

TEST_F(SaveStates, AFailedReadRepeatsTheLastColour) {
  // Reading fails from the very first call on: all colours are that of the entry 0.
  const std::string path = MakeFile("state", std::string(22992, '\1'));
  FailFileCallsAfter(0);
  ExpectDone(LoadPath(kNesticle, path));
  FailFileCallsAfter(-1);
  EXPECT_EQ(SetCount, 1);
  for (int index = 0; index < 32; ++index) EXPECT_EQ(Sets[0].Colors[index], NesPalette[0]);
  EXPECT_EQ(Sets[0].Colors[32], 0);
}

TEST_F(SaveStates, PackedStatesTakeTwoSets) {
  for (const int index : {kBoycott, kVisualBoy}) {
    SetCount = 0;
    ExpectDone(Load(index, Sample(index).bytes));
    ASSERT_EQ(SetCount, 2);
    for (int color = 0; color < 256; ++color) {
      ASSERT_EQ(Sets[0].Colors[color], RedLow(color));
      ASSERT_EQ(Sets[1].Colors[color], RedLow(256 + color));
    }
  }
}

TEST_F(SaveStates, PackedWordsLoseTheirTopBit) {
  Bytes bytes;
  bytes.FillTo(33239);
  for (int index = 0; index < 512; ++index) bytes.Word(0xFFFF);
  ExpectDone(Load(kVisualBoy, Gzip(bytes.Str())));
  EXPECT_EQ(Sets[0].Colors[0], 0xF8F8F8);
  EXPECT_EQ(Sets[1].Colors[255], 0xF8F8F8);
}

TEST_F(SaveStates, AnUnpackedStateLoadsAsItStands) {
  Bytes bytes;
  bytes.FillTo(33239);
  for (int index = 0; index < 512; ++index) bytes.Word(index);
  ExpectDone(Load(kVisualBoy, bytes.Str()));
  EXPECT_EQ(SetCount, 2);
  EXPECT_EQ(Sets[0].Colors[17], RedLow(17));
  EXPECT_EQ(Sets[1].Colors[255], RedLow(511));
}

// What a packed state of this many unpacked colour bytes leaves: bytes that are missing are those of the
// buffer.
TEST_F(SaveStates, APackedStateCutShortShowsTheBuffer) {
  Bytes table;
  for (int index = 0; index < 512; ++index) table.Word(0x1111 + index);
  for (const std::size_t kept : {0U, 1U, 2U, 3U, 100U, 511U, 512U, 513U, 700U, 1023U, 1024U}) {
    Bytes bytes;
    bytes.FillTo(33239).Text(Cut(table.Str(), kept));
    std::string first = Cut(table.Str(), std::min<std::size_t>(kept, 512));
    first.resize(512);
    std::string second = first;
    if (kept > 512) second.replace(0, kept - 512, table.Str().substr(512, kept - 512));
    for (const std::string& file : {Gzip(bytes.Str()), bytes.Str()}) {
      SetCount = 0;
      ExpectDone(Load(kVisualBoy, file));
      ASSERT_EQ(SetCount, 2) << kept;
      for (std::size_t color = 0; color < 256; ++color) {
        const auto word = [&](const std::string& buffer) {
          return static_cast<unsigned char>(buffer[2 * color]) +
                 256 * static_cast<unsigned char>(buffer[2 * color + 1]);
        };
        ASSERT_EQ(Sets[0].Colors[static_cast<int>(color)], RedLow(word(first))) << kept;
        ASSERT_EQ(Sets[1].Colors[static_cast<int>(color)], RedLow(word(second))) << kept;
      }
    }
  }
}

TEST_F(SaveStates, AFileThatIsNoStreamGivesBlackSets) {
  for (const char* file : {"", "x", "\x1F\x8B", "\x1F\x8B\x08\x00garbage that is no stream"}) {
    SetCount = 0;
    ExpectDone(Load(kBoycott, file));
    ASSERT_EQ(SetCount, 2);
    for (int color = 0; color < 256; ++color) {
      ASSERT_EQ(Sets[0].Colors[color], 0);
      ASSERT_EQ(Sets[1].Colors[color], 0);
    }
    EXPECT_EQ(Sets[0].Name, "Boycott Advance Obj palette");
    EXPECT_EQ(Sets[1].Name, "Boycott Advance BG palette");
  }
}

TEST_F(SaveStates, PackedStatesWith254SetsSeemToEmptyTheList) {
  for (const int index : {kBoycott, kVisualBoy}) {
    FillList(254);
    const SampleFile sample = Sample(index);
    ExpectDone(Load(index, sample.bytes));
    EXPECT_EQ(SetCount, 0);
    EXPECT_EQ(Sets[254].Name, sample.names[0]);
    EXPECT_EQ(Sets[255].Name, sample.names[1]);
    EXPECT_EQ(Sets[0].Name, "0");
  }
}

TEST_F(SaveStates, PackedStatesWith255SetsOverwriteTheFirst) {
  for (const int index : {kBoycott, kVisualBoy}) {
    FillList(255);
    const SampleFile sample = Sample(index);
    ExpectDone(Load(index, sample.bytes));
    EXPECT_EQ(SetCount, 1);
    EXPECT_EQ(Sets[255].Name, sample.names[0]);
    EXPECT_EQ(Sets[0].Name, sample.names[1]);
    EXPECT_EQ(Sets[0].Colors[3], RedLow(259));
    EXPECT_EQ(Sets[1].Name, "1");
  }
}

TEST_F(SaveStates, ABoycottStateUnderTheOtherFilterLoadsTheWrongPlace) {
  ExpectDone(Load(kVisualBoy, Sample(kBoycott).bytes));
  EXPECT_EQ(SetCount, 2);
  EXPECT_EQ(Sets[0].Name, "VisualBoyAdvance Obj palette");
  for (int color = 0; color < 256; ++color) ASSERT_EQ(Sets[0].Colors[color], 0);
}

TEST_F(SaveStates, LastRoomOfTheKindsThatAskForTwo) {
  for (const int index : {kZsnes, kCygne}) {
    FillList(253);
    ExpectDone(Load(index, Sample(index).bytes));
    EXPECT_EQ(SetCount, 254);
    ExpectDone(Load(index, Sample(index).bytes));
    EXPECT_EQ(SetCount, 254) << "one place is free and none is taken";
  }
  FillList(253);
  ExpectDone(Load(kVgba, Sample(kVgba).bytes));
  EXPECT_EQ(SetCount, 255);
}

}  // namespace
}  // namespace brolk::test
