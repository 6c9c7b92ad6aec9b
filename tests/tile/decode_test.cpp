// SPDX-License-Identifier: MIT
#include "tile/decode.h"

#include <gtest/gtest.h>

#include "support/random_bytes.h"
#include "tile/modes.h"
#include "tile/naive_tile.h"

namespace brolk::test {
namespace {

Bytes RowZero(int mode, const Bytes& start) {
  Bytes tile = start;
  tile.resize(static_cast<std::size_t>(NaiveTileBytes(mode)));
  Bytes pixels(64);
  DecoderOf(static_cast<std::uint8_t>(mode))(tile, pixels);
  pixels.resize(8);
  return pixels;
}

class EveryDecoder : public ::testing::TestWithParam<int> {
 protected:
  std::uint8_t Mode() const { return static_cast<std::uint8_t>(GetParam()); }
  std::size_t TileBytes() const { return static_cast<std::size_t>(NaiveTileBytes(GetParam())); }

  // Runs a decoder on tiles that stand in the middle of larger blocks, so that a byte too far shows.
  Bytes Decode(TileDecoder decode, const Bytes& bytes, std::size_t tiles) const {
    Bytes framed(tiles * 64 + 2, 0xEE);
    decode(std::span(bytes).first(tiles * TileBytes()), std::span(framed).subspan(1, tiles * 64));
    EXPECT_EQ(framed.front(), 0xEE);
    EXPECT_EQ(framed.back(), 0xEE);
    return {framed.begin() + 1, framed.end() - 1};
  }

  Bytes Expected(const Bytes& bytes, std::size_t tiles) const {
    Bytes pixels;
    for (std::size_t tile = 0; tile < tiles; ++tile) {
      const Bytes one = NaiveDecode(GetParam(), std::span(bytes).subspan(tile * TileBytes(), TileBytes()));
      pixels.insert(pixels.end(), one.begin(), one.end());
    }
    return pixels;
  }
};

TEST_P(EveryDecoder, HasTheTileSizeOfItsMode) {
  FillModes();
  EXPECT_EQ(RegularTileBytes(Mode()), TileBytes());
  EXPECT_EQ(Modes[Mode()].BytesPerTile, NaiveTileBytes(Mode()));
  EXPECT_EQ(Modes[Mode()].BitsPerPixel, NaiveBitsPerPixel(Mode()));
}

TEST_P(EveryDecoder, EqualsTheNaiveTwinOnRandomBytes) {
  RandomBytes random;
  SCOPED_TRACE(random.Text());
  for (const std::size_t tiles : {0U, 1U, 2U, 3U, 7U, 8U, 9U, 33U, 128U}) {
    const Bytes bytes = random.Take(tiles * TileBytes());
    const Bytes expected = Expected(bytes, tiles);
    EXPECT_EQ(Decode(DecoderOf(Mode()), bytes, tiles), expected) << tiles << " tiles";
    EXPECT_EQ(Decode(PortableDecoderOf(Mode()), bytes, tiles), expected) << tiles << " tiles";
  }
}

TEST_P(EveryDecoder, IsTheVectorTwinWhereTheMachineHasOne) {
  if (VectorDecoderOf(Mode()) == nullptr) {
    EXPECT_EQ(DecoderOf(Mode()), PortableDecoderOf(Mode()));
    return;
  }
  EXPECT_EQ(DecoderOf(Mode()), VectorDecoderOf(Mode()));
  for (std::size_t bit = 0; bit < TileBytes() * 8; ++bit) {
    Bytes bytes(TileBytes());
    bytes[bit / 8] = static_cast<std::uint8_t>(1U << (bit % 8));
    EXPECT_EQ(Decode(VectorDecoderOf(Mode()), bytes, 1), Expected(bytes, 1)) << "bit " << bit;
  }
}

TEST_P(EveryDecoder, PutsEveryBitWhereTheLayoutSays) {
  for (std::size_t bit = 0; bit < TileBytes() * 8; ++bit) {
    Bytes bytes(TileBytes());
    bytes[bit / 8] = static_cast<std::uint8_t>(1U << (bit % 8));
    EXPECT_EQ(Decode(PortableDecoderOf(Mode()), bytes, 1), Expected(bytes, 1)) << "bit " << bit;
  }
}

INSTANTIATE_TEST_SUITE_P(Modes, EveryDecoder, ::testing::ValuesIn(kRegularModes),
                         [](const auto& test) { return ModeLabel(test.param); });

TEST(Decoder, DoesNotExistForIrregularModes) {
  for (const std::uint8_t mode : {12, 14, 15, 16, 255}) {
    EXPECT_EQ(RegularTileBytes(mode), 0U);
    EXPECT_EQ(DecoderOf(mode), nullptr);
    EXPECT_EQ(PortableDecoderOf(mode), nullptr);
    EXPECT_EQ(VectorDecoderOf(mode), nullptr);
  }
}

TEST(GameboyDecoder, JoinsNeighbouringBytes) {
  EXPECT_EQ(RowZero(kGameboy, {0xF0, 0xCC}), (Bytes{3, 3, 1, 1, 2, 2, 0, 0}));
}

TEST(NesDecoder, JoinsBytesEightApart) {
  EXPECT_EQ(RowZero(kNes, {0xF0, 0, 0, 0, 0, 0, 0, 0, 0xCC}), (Bytes{3, 3, 1, 1, 2, 2, 0, 0}));
}

TEST(NeoGeoPocketDecoder, TakesTheLeftHalfFromTheSecondByte) {
  EXPECT_EQ(RowZero(kNeoGeoPocket, {0x1B, 0xE4}), (Bytes{3, 2, 1, 0, 0, 1, 2, 3}));
}

TEST(VirtualBoyDecoder, LowBitsAreLeftmost) {
  EXPECT_EQ(RowZero(kVirtualBoy, {0xE4, 0x00}), (Bytes{0, 1, 2, 3, 0, 0, 0, 0}));
}

TEST(MegaDriveDecoder, HighNibbleIsLeft) {
  EXPECT_EQ(RowZero(kMegaDrive, {0x12, 0x34, 0xAB, 0xF0}), (Bytes{1, 2, 3, 4, 10, 11, 15, 0}));
}

TEST(Gba4Decoder, LowNibbleIsLeft) {
  EXPECT_EQ(RowZero(kGba4, {0x12, 0x34, 0xAB, 0xF0}), (Bytes{2, 1, 4, 3, 11, 10, 0, 15}));
}

TEST(PcEngineCharDecoder, FirstByteHasTheWeightTwo) {
  EXPECT_EQ(RowZero(kPcEngineChar, {0xFF, 0x00}), Bytes(8, 2));
}

TEST(SnesDecoders, AddTheirGroupsOfPlanes) {
  Bytes tile(64);
  tile[0] = 0x80;   // weight 1
  tile[1] = 0x40;   // weight 2
  tile[16] = 0x20;  // weight 4
  EXPECT_EQ(RowZero(kSnes3, Bytes(tile.begin(), tile.begin() + 24)), (Bytes{1, 2, 4, 0, 0, 0, 0, 0}));
  tile[17] = 0x10;  // weight 8
  EXPECT_EQ(RowZero(kSnes4, Bytes(tile.begin(), tile.begin() + 32)), (Bytes{1, 2, 4, 8, 0, 0, 0, 0}));
  tile[32] = 0x08;  // weight 16
  tile[33] = 0x04;  // weight 32
  tile[48] = 0x02;  // weight 64
  tile[49] = 0x01;  // weight 128
  EXPECT_EQ(RowZero(kSnes8, tile), (Bytes{1, 2, 4, 8, 16, 32, 64, 128}));
}

TEST(GameGearDecoder, HasTheFourPlanesOfARowTogether) {
  EXPECT_EQ(RowZero(kGameGear, {0x81, 0x41, 0x21, 0x11}), (Bytes{1, 2, 4, 8, 0, 0, 0, 15}));
}

TEST(OneBitDecoder, HighestBitIsLeft) {
  EXPECT_EQ(RowZero(kOneBit, {0xA1}), (Bytes{1, 0, 1, 0, 0, 0, 0, 1}));
}

TEST(Gba8Decoder, TakesBytesAsTheyAre) {
  EXPECT_EQ(RowZero(kGba8, {0, 1, 127, 128, 200, 253, 254, 255}),
            (Bytes{0, 1, 127, 128, 200, 253, 254, 255}));
}

}  // namespace
}  // namespace brolk::test
