// SPDX-License-Identifier: MIT
#include <random>

#include "palette/palette_files_support.h"
#include "runtime/files.h"

// What holds for every kind of file, told once more beside the table that it tests.
namespace brolk::test {
namespace {

struct KindFacts {
  int filterIndex;
  int fullAt;  // 256: no test
  bool written;
};
constexpr KindFacts kFacts[] = {
    {kText, 256, true},       {kOldBinary, 256, true}, {kRiff, 255, true},      {kTileLayer, 255, true},
    {kGif, 255, false},       {kPng, 255, false},      {kNesticle, 255, false}, {kVgba, 254, false},
    {kNoGmb, 255, false},     {kZsnes, 254, false},    {kBoycott, 256, false},  {kCygne, 254, false},
    {kVisualBoy, 256, false},
};

std::string NameOf(const ::testing::TestParamInfo<KindFacts>& info) {
  static const char* const names[] = {"",      "Text",    "OldBinary", "Riff",     "TileLayer",
                                      "Gif",   "Png",     "Nesticle",  "Vgba",     "NoGmb",
                                      "Zsnes", "Boycott", "Cygne",     "VisualBoy"};
  return names[info.param.filterIndex];
}

class EveryKind : public PaletteFilesTest, public ::testing::WithParamInterface<KindFacts> {
 protected:
  [[nodiscard]] int Index() const { return GetParam().filterIndex; }
  [[nodiscard]] bool TakesTheWholeList() const { return Index() == kText || Index() == kOldBinary; }
};
INSTANTIATE_TEST_SUITE_P(, EveryKind, ::testing::ValuesIn(kFacts), NameOf);

TEST_P(EveryKind, LoadsItsSets) {
  const SampleFile sample = Sample(Index());
  ExpectDone(Load(Index(), sample.bytes));
  ASSERT_EQ(SetCount, sample.names.size());
  for (int place = 0; place < SetCount; ++place) {
    EXPECT_EQ(Sets[place].Name, sample.names[static_cast<std::size_t>(place)]);
  }
  EXPECT_TRUE(questions.empty());
}

TEST_P(EveryKind, LoadsTheSameSetsFromMemory) {
  if (Index() == kBoycott || Index() == kVisualBoy)
    GTEST_SKIP() << "gzip streams are read from the disk alone";
  const SampleFile sample = Sample(Index());
  ExpectDone(Load(Index(), sample.bytes));
  const ListState fromDisk = CurrentList();
  SetCount = 0;
  Sets.fill({});
  const std::vector<std::uint8_t> bytes(sample.bytes.begin(), sample.bytes.end());
  ExpectDone(LoadPaletteFile(Index(),
                             {.file = FileSource::InMemory(bytes), .fileTitle = fileTitle, .answerYes = {}}));
  EXPECT_EQ(CurrentList(), fromDisk);
}

TEST_P(EveryKind, AddsBehindTheListOrReplacesIt) {
  FillList(3, 99);
  const SampleFile sample = Sample(Index());
  ExpectDone(Load(Index(), sample.bytes));
  EXPECT_EQ(SetCount, (TakesTheWholeList() ? 0 : 3) + sample.names.size());
  EXPECT_EQ(Sets[0].Name, TakesTheWholeList() ? sample.names[0] : "0");
  EXPECT_EQ(questions.size(), Index() == kText ? 1U : 0U);
}

TEST_P(EveryKind, ClosesItsFile) {
  const std::string path = MakeFile("sample", Sample(Index()).bytes);
  const std::size_t open = CountOpenFiles();
  ExpectDone(LoadPath(Index(), path));
  EXPECT_EQ(CountOpenFiles(), open);
}

TEST_P(EveryKind, AFileThatIsNotThereIsTold) {
  FillList(1);
  const ListState before = CurrentList();
  ExpectNotice(LoadPath(Index(), PathOf("missing")), "Could not find the selected file.",
               "Loading process aborted", 48, false);
  ExpectNotice(LoadPath(Index(), PathOf("")), "Could not find the selected file.", "Loading process aborted",
               48, false);
  EXPECT_EQ(CurrentList(), before);
  EXPECT_TRUE(questions.empty());
}

TEST_P(EveryKind, ReadsNothingWithoutRoom) {
  const std::string sample = Sample(Index()).bytes;
  for (int count = GetParam().fullAt; count <= 255; ++count) {
    FillList(count);
    const ListState before = CurrentList();
    ExpectDone(Load(Index(), sample));
    EXPECT_EQ(CurrentList(), before) << count;
    ExpectDone(Load(Index(), "not such a file"));
    EXPECT_EQ(CurrentList(), before) << count;
  }
}

TEST_P(EveryKind, ReadsWithTheLastRoom) {
  if (TakesTheWholeList()) GTEST_SKIP() << "replaces the list";
  const SampleFile sample = Sample(Index());
  const int count = GetParam().fullAt - 1;
  FillList(count);
  ExpectDone(Load(Index(), sample.bytes));
  EXPECT_EQ(SetCount, static_cast<std::uint8_t>(count + static_cast<int>(sample.names.size())));
  EXPECT_EQ(Sets[count].Name, sample.names[0]);
}

TEST_P(EveryKind, OnlyTheFourPaletteFormatsAreWritten) {
  FillList(1, 0x030201);
  const std::string path = MakeFile("saved", "before");
  SavePaletteFile(Index(), path);
  EXPECT_EQ(ReadFile(path).empty(), !GetParam().written);
}

// Damaged files end in a message, a set or one of the stated faults, and never touch more than they may.
TEST_P(EveryKind, SurvivesDamagedFiles) {
  const unsigned seed = std::random_device{}();
  RecordProperty("seed", std::to_string(seed));
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const std::string whole = Sample(Index()).bytes;
  const bool packed = Index() == kBoycott || Index() == kVisualBoy;
  for (int round = 0; round < (packed ? 60 : 400); ++round) {
    std::string damaged = random() % 2 == 0 ? Cut(whole, random() % (whole.size() + 1)) : whole;
    for (unsigned changes = random() % 4; changes > 0 && !damaged.empty(); --changes) {
      damaged[random() % std::min<std::size_t>(damaged.size(), 4096)] = static_cast<char>(random());
    }
    SetCount = static_cast<std::uint8_t>(random() % 3);
    const int before = SetCount;
    const std::vector<std::uint8_t> bytes(damaged.begin(), damaged.end());
    const FileSource file =
        packed ? FileSource::AtPath(MakeFile("damaged", damaged)) : FileSource::InMemory(bytes);
    try {
      const LoadOutcome outcome = LoadPaletteFile(
          Index(), {.file = file, .fileTitle = "t", .answerYes = [](const Notice&) { return false; }});
      if (!TakesTheWholeList()) {
        EXPECT_LE(SetCount, before + 2);
      }
      if (outcome.notice) {
        EXPECT_FALSE(outcome.notice->title.empty());
      }
    } catch (const Fault&) {
      EXPECT_TRUE(Index() == kText || Index() == kPng);
    }
  }
}

TEST(PaletteKinds, LoadFilterHoldsAllThirteen) {
  EXPECT_EQ(kPaletteKindCount, 13);
  EXPECT_EQ(
      LoadFilter(),
      "Brolk Plus palette (*.palette)|*.palette|old Brolk palette file (*.bxp)|*.bxp|Microsoft Riff palette "
      "file "
      "(*.pal)|*.pal|Tile Layer DOS palette file (*.pal)|*.pal|Gif Image (*.gif)|*.gif|Png Image "
      "(*.png)|*.png|NESticle Savestates (*.st?)|*.st?|VGBA 1.0 Savestate (*.sta)|*.sta|No$gmb Savestate "
      "(*.sna)|*.sna|ZSnes Savestate (*.zs?)|*.zs?|Boycott Advanced Savestate (*.cot)|*.cot|Cygne Savestate "
      "(*.wss)|*.wss|VisualBoyAdvance Savestate (*.sgm)|*.sgm");
}

TEST(PaletteKinds, SaveFilterHoldsTheFourPaletteFormats) {
  EXPECT_EQ(SaveFilter(),
            "Brolk Plus palette (*.palette)|*.palette|old Brolk palette file (*.bxp)|*.bxp|Microsoft Riff "
            "palette file "
            "(*.pal)|*.pal|Tile Layer DOS palette file (*.pal)|*.pal");
}

TEST(PaletteKinds, TheFolderOfAPathEndsBeforeItsLastSeparator) {
  EXPECT_EQ(FolderOf("/a/b/c.pal"), "/a/b");
  EXPECT_EQ(FolderOf("/c.pal"), "");
  EXPECT_EQ(FolderOf("c.pal"), "");
  EXPECT_EQ(FolderOf("/a/b/"), "/a/b");
}

using PaletteKindIndex = PaletteFilesTest;

TEST_F(PaletteKindIndex, AnIndexWithoutAKindReadsNothingAndRefreshes) {
  for (const int index : {0, 14, -1, 1000}) {
    ExpectDone(Load(index, Sample(kRiff).bytes));
    EXPECT_EQ(SetCount, 0);
  }
}

TEST_F(PaletteKindIndex, AnIndexWithoutAKindSavesAnEmptyFile) {
  FillList(1);
  for (const int index : {0, 5, 14}) {
    const std::string path = MakeFile("saved", "before");
    SavePaletteFile(index, path);
    EXPECT_EQ(ReadFile(path), "") << index;
  }
}

TEST_F(PaletteKindIndex, TheNameOfTheFileDecidesNothing) {
  const std::string path = MakeFile("picture.gif", Sample(kRiff).bytes);
  ExpectDone(LoadPath(kRiff, path));
  EXPECT_EQ(Sets[0].Name, "Riff palette");
}

}  // namespace
}  // namespace brolk::test
