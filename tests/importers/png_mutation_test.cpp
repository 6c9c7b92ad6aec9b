// SPDX-License-Identifier: MIT
#include <random>

#include "importers/png.h"
#include "importers/png_fixture.h"
#include "importers/png_twin.h"

// The reader against its naive twin, on whole, cut, damaged and shuffled files.
namespace brolk::test {
namespace {

std::int32_t BackgroundNumber(const PngBackground& background) {
  return std::visit(
      [](const auto& value) -> std::int32_t {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::monostate>)
          return -1;
        else
          return value;
      },
      background);
}

void ExpectSameState(const cPng& png, const PngTwin& twin) {
  EXPECT_EQ(png.pngWidth(), twin.width);
  EXPECT_EQ(png.pngHeight(), twin.height);
  EXPECT_EQ(png.BitDepth(), twin.bitDepth);
  EXPECT_EQ(png.ColorMode(), twin.colorType);
  EXPECT_EQ(png.Interlaced(), twin.interlace != 0);
  EXPECT_EQ(png.GammaVal(), static_cast<float>(twin.gamma));
  EXPECT_EQ(BackgroundNumber(png.backClr()), twin.background.value_or(-1));
  ASSERT_EQ(png.ClrTableSize(), static_cast<std::int32_t>(twin.palette.size()));
  for (std::size_t entry = 0; entry < std::min<std::size_t>(twin.palette.size(), 32767); ++entry) {
    ASSERT_EQ(png.ColorTable(static_cast<std::int16_t>(entry + 1)), twin.palette[entry]);
  }
}

// Answers the code, or -1 for a fault, on which both agree.
int ExpectSame(const std::string& file) {
  const PngTwin twin = ReadPngNaively(file);
  const std::vector<std::uint8_t> bytes(file.begin(), file.end());
  cPng png;
  try {
    const PngResult result = png.ReadPngFile(FileSource::InMemory(bytes));
    EXPECT_FALSE(twin.fault.has_value());
    EXPECT_EQ(static_cast<int>(result), twin.code);
    if (result == PngResult::Read) ExpectSameState(png, twin);
    return static_cast<int>(result);
  } catch (const Fault& fault) {
    EXPECT_TRUE(twin.fault.has_value() && *twin.fault == fault.Kind()) << fault.what();
    return -1;
  }
}

// A chunk that may or may not be right.
void AddRandomChunk(PngBuilder& builder, std::mt19937& random) {
  const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
  switch (below(12)) {
    case 0:
      builder.Palette(below(300));
      break;
    case 1:
      builder.Chunk("bKGD", Bytes().Byte(below(4)));
      break;
    case 2:
      builder.Chunk("bKGD", Bytes().BigWord(below(300)));
      break;
    case 3:
      builder.Chunk("bKGD", Bytes().BigWord(below(256)).BigWord(below(256)).BigWord(below(260)));
      break;
    case 4:
      builder.Chunk("gAMA", Bytes().BigLong(random()));
      break;
    case 5:
      builder.Chunk("sBIT", Bytes().Fill(random() % 5));
      break;
    case 6:
      builder.Image(below(2) == 0 ? 0x78 : below(256));
      break;
    case 7:
      builder.Raw(below(2) == 0 ? below(20) : random(), "tEXt", Bytes().Fill(random() % 20));
      break;
    case 8:
      if (below(6) == 0) builder.Chunk("CRIT");
      break;
    case 9:
    case 10:
      builder.Image();
      break;
    default:
      builder.Chunk("iTXt", Bytes().Fill(random() % 40, 'x'));
      break;
  }
}

PngBuilder RandomFile(std::mt19937& random) {
  const int types[] = {0, 2, 3, 3, 3, 4, 6};
  const int depths[] = {1, 2, 4, 8, 8, 8, 16};
  PngBuilder builder;
  builder.Header(types[random() % 7], depths[random() % 7]);
  for (unsigned chunks = random() % 6; chunks > 0; --chunks) AddRandomChunk(builder, random);
  return builder.End();
}

class PngTwins : public ::testing::Test {
 protected:
  PngTwins() : seed_(std::random_device{}()), random_(seed_) {
    RecordProperty("seed", std::to_string(seed_));
    std::printf("seed %u\n", seed_);
  }
  unsigned seed_;
  std::mt19937 random_;
};

TEST_F(PngTwins, AgreeOnTheSample) {
  EXPECT_EQ(ExpectSame(PngSample().Str()), 0);
}

TEST_F(PngTwins, AgreeOnTheSampleCutAtEveryByte) {
  const std::string whole = PngSample().Str();
  for (std::size_t kept = 0; kept < whole.size(); ++kept) {
    SCOPED_TRACE(kept);
    EXPECT_NE(ExpectSame(Cut(whole, kept)), 0);
  }
}

TEST_F(PngTwins, AgreeOnTheSampleWithEveryByteChanged) {
  const std::string whole = PngSample().Str();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const int change : {1, 0x20, 0x80, 0xFF}) {
      SCOPED_TRACE(at);
      std::string file = whole;
      file[at] = static_cast<char>(file[at] ^ change);
      ExpectSame(file);
    }
  }
}

TEST_F(PngTwins, AgreeOnShuffledChunks) {
  SCOPED_TRACE("seed " + std::to_string(seed_));
  int good = 0;
  int faults = 0;
  for (int round = 0; round < 20000; ++round) {
    const int code = ExpectSame(RandomFile(random_).Str());
    good += code == 0 ? 1 : 0;
    faults += code < 0 ? 1 : 0;
    ASSERT_FALSE(HasFailure());
  }
  // The files are worth the comparison only when all ends occur.
  EXPECT_GT(good, 2000);
  EXPECT_GT(faults, 200);
}

TEST_F(PngTwins, AgreeOnDamagedFiles) {
  SCOPED_TRACE("seed " + std::to_string(seed_));
  for (int round = 0; round < 20000; ++round) {
    std::string file = random_() % 2 == 0 ? PngSample().Str() : RandomFile(random_).Str();
    for (unsigned changes = 1 + random_() % 3; changes > 0; --changes) {
      file[random_() % file.size()] = static_cast<char>(random_());
    }
    if (random_() % 3 == 0) file.resize(random_() % (file.size() + 1));
    ExpectSame(file);
    ASSERT_FALSE(HasFailure());
  }
}

}  // namespace
}  // namespace brolk::test
