// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "forms/common_dialog.h"
#include "forms/windows.h"
#include "palette/palette_files_support.h"
#include "palette/windows/color_set.h"
#include "shell/reg_keys.h"
#include "support/program.h"

// Loading and saving through the two buttons of the colour set tool.
namespace brolk::test {
namespace {

class PaletteDialogs : public ::testing::Test {
 protected:
  void SetUp() override {
    StartProgram();
    tool().Show();
  }
  void TearDown() override { CommonDialog::Answer = nullptr; }

  static ColorSet& tool() { return The<ColorSet>(); }
  static std::string Folder() { return RegGetString(kLocalMachine, kSettingsKey, "PaletteDir"); }
  // The lines of the shown list.
  static std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    for (int line = 0; line < tool().lstSets.ListCount(); ++line) {
      lines.push_back(tool().lstSets.List(line).toStdString());
    }
    return lines;
  }
  // Presses a button and answers the file dialog with a path and a filter index.
  static void Press(FlatButton& button, const std::string& path, int filterIndex) {
    AnswerFileDialog(path, filterIndex);
    ClickControl(button);
    CommonDialog::Answer = nullptr;
  }
  static void PressLoad(const std::string& path, int filterIndex) {
    Press(tool().fbnColorSetLoad, path, filterIndex);
  }
  static void PressSave(const std::string& path, int filterIndex) {
    Press(tool().fbnColorSetSave, path, filterIndex);
  }
};

TEST_F(PaletteDialogs, LoadDialogIsPrepared) {
  std::string folder = TestFolder();
  RegSaveString(kLocalMachine, kSettingsKey, "PaletteDir", folder);
  tool().cdlColorSet.FileName = QStringLiteral("left over");
  int shown = 0;
  CommonDialog::Answer = [&](CommonDialog& dialog, CommonDialog::Kind kind) {
    ++shown;
    EXPECT_EQ(kind, CommonDialog::Kind::Open);
    EXPECT_EQ(&dialog, &tool().cdlColorSet);
    EXPECT_EQ(dialog.FileName, QString());
    EXPECT_EQ(dialog.Filter.toStdString(), LoadFilter());
    EXPECT_EQ(dialog.InitDir.toStdString(), folder);
    EXPECT_TRUE(dialog.MustExist);
  };
  ClickControl(tool().fbnColorSetLoad);
  EXPECT_EQ(shown, 1);
}

TEST_F(PaletteDialogs, SaveDialogIsPrepared) {
  std::string folder = TestFolder();
  RegSaveString(kLocalMachine, kSettingsKey, "PaletteDir", folder);
  tool().cdlColorSet.FileName = QStringLiteral("left over");
  int shown = 0;
  CommonDialog::Answer = [&](CommonDialog& dialog, CommonDialog::Kind kind) {
    ++shown;
    EXPECT_EQ(kind, CommonDialog::Kind::Save);
    EXPECT_EQ(dialog.FileName, QString());
    EXPECT_EQ(dialog.Filter.toStdString(), SaveFilter());
    EXPECT_EQ(dialog.InitDir.toStdString(), folder);
  };
  ClickControl(tool().fbnColorSetSave);
  EXPECT_EQ(shown, 1);
}

TEST_F(PaletteDialogs, ACancelChangesNothing) {
  FillList(1);
  const std::string folder = Folder();
  WithAnswers({}, [] {
    PressLoad("", kText);
    PressSave("", kText);
  });
  EXPECT_EQ(Folder(), folder);
  EXPECT_EQ(SetCount, 1);
}

TEST_F(PaletteDialogs, EveryKindLoadsIntoTheShownList) {
  for (int index = 1; index <= kPaletteKindCount; ++index) {
    SetCount = 0;
    const SampleFile sample = Sample(index);
    const std::string path = MakeFile("title.ext", sample.bytes);
    WithAnswers({}, [&] { PressLoad(path, index); });
    EXPECT_EQ(Lines(), sample.names) << index;
    EXPECT_EQ(tool().txtName.Text().toStdString(), sample.names[0]) << index;
  }
}

TEST_F(PaletteDialogs, TheWrittenKindsComeBackAsTheyWere) {
  for (int index = 1; index <= 4; ++index) {
    FillList(1, 0x00040404);
    const std::string path = TestFolder() + "saved";
    WithAnswers({}, [&] { PressSave(path, index); });
    SetCount = 0;
    WithAnswers({}, [&] { PressLoad(path, index); });
    EXPECT_EQ(SetCount, 1) << index;
    EXPECT_EQ(Sets[0].Colors[0], 0x00040404) << index;
  }
}

TEST_F(PaletteDialogs, TheFolderOfThePathIsKept) {
  WithAnswers({}, [] { PressLoad(MakeFile("a.pal", Sample(kRiff).bytes), kRiff); });
  EXPECT_EQ(Folder() + "/", TestFolder());
}

TEST_F(PaletteDialogs, TheFolderIsKeptBeforeTheFileIsLookedFor) {
  const auto seen = WithAnswers({1}, [] { PressLoad("/no/such/folder/file.pal", kRiff); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, "Could not find the selected file.");
  EXPECT_EQ(seen[0].title, "Brolk Plus - Loading process aborted");
  EXPECT_EQ(Folder(), "/no/such/folder");
}

TEST_F(PaletteDialogs, ASaveKeepsTheFolderToo) {
  FillList(1);
  WithAnswers({}, [] { PressSave(TestFolder() + "out.pal", kRiff); });
  EXPECT_EQ(Folder() + "/", TestFolder());
}

TEST_F(PaletteDialogs, APathWithoutASeparatorStoresOneBlank) {
  WithAnswers({1}, [] { PressLoad("no such file in the current folder", kRiff); });
  EXPECT_EQ(Folder(), " ");
}

TEST_F(PaletteDialogs, TheQuestionIsAskedWithYesAndNo) {
  FillList(1);
  const std::string path = MakeFile("list", TextFile("1", {"One"}));
  auto seen = WithAnswers({7}, [&] { PressLoad(path, kText); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, "Replace current list of color sets?\r\nSelect 'No' to add to the list.");
  EXPECT_EQ(seen[0].title, "Brolk Plus - Replace color sets?");
  EXPECT_EQ(Lines(), (std::vector<std::string>{"0", "One"}));
  seen = WithAnswers({6}, [&] { PressLoad(path, kText); });
  EXPECT_EQ(Lines(), (std::vector<std::string>{"One"}));
}

TEST_F(PaletteDialogs, ABoxClosedByItsFrameCountsAsNo) {
  FillList(1);
  WithAnswers({0}, [] { PressLoad(MakeFile("list", TextFile("1", {"One"})), kText); });
  EXPECT_EQ(Lines(), (std::vector<std::string>{"0", "One"}));
}

TEST_F(PaletteDialogs, EachMessageShowsItsTextTitleAndIcon) {
  const struct {
    int index;
    std::string bytes;
    std::string text;
    std::string title;
  } rows[] = {
      {kText, "x\r\n", "This is not a valid BrolkPlus palette file", "Error on opening file"},
      {kOldBinary, "x", "Wrong header bytes", "Not a palette file"},
      {kRiff, "x", "Not a 256 color Riff palette. Filesize must be 1052.", "Wrong file format"},
      {kRiff, std::string(1052, 'x'), "Not a 256 color Riff file.\rWrong header.", "Wrong file format"},
      {kGif, "x", "Not a valid Gif file!", "Gif Read Error"},
      {kPng, "x", "This is no valid Png file.", "Error reading Png file"},
      {kNesticle, "x", "Not a NESticle savestate. Filesize must be 22992 bytes.", "Wrong file format"},
      {kVgba, "x", "Not a VGBA 1.0 savestate. Filesize must be 509144 bytes.", "Wrong file format"},
      {kNoGmb, "x", "Not a No$gmb savestate.\rFilesize is too small.", "Wrong file format"},
      {kZsnes, "x", "Not a ZSnes savestate. Filesize must be 274047 bytes.", "Wrong file format"},
      {kCygne, "x", "Not a Cygne savestate. Filesize must be 135674 bytes.", "Wrong file format"},
  };
  for (const auto& row : rows) {
    const auto seen = WithAnswers({1}, [&] { PressLoad(MakeFile("bad", row.bytes), row.index); });
    ASSERT_EQ(seen.size(), 1U) << row.text;
    EXPECT_EQ(seen[0].text, row.text);
    EXPECT_EQ(seen[0].title, "Brolk Plus - " + row.title);
    const bool exclamation = row.index == kText || row.index == kGif;
    EXPECT_NE(seen[0].icon.find(exclamation ? "exclamation" : "critical"), std::string::npos) << seen[0].icon;
  }
}

// The shown list still has its old lines where a refusal does not build it again.
TEST_F(PaletteDialogs, OnlyTheStatedRefusalsBuildTheListAgain) {
  const struct {
    int index;
    std::string bytes;
    bool refreshed;
  } rows[] = {{kText, "x\r\n", false}, {kOldBinary, "x", true}, {kRiff, "x", false}, {kGif, "x", false},
              {kPng, "x", true},       {kNesticle, "x", false}, {kVgba, "x", false}, {kNoGmb, "x", false},
              {kZsnes, "x", false},    {kCygne, "x", false}};
  for (const auto& row : rows) {
    SetCount = 0;
    tool().RefreshSetList();
    tool().lstSets.AddItem(QStringLiteral("stale"));
    WithAnswers({1}, [&] { PressLoad(MakeFile("bad", row.bytes), row.index); });
    EXPECT_EQ(Lines().empty(), row.refreshed) << row.index;
  }
}

TEST_F(PaletteDialogs, AFullListIsBuiltAgainWithoutAWord) {
  FillList(255);
  tool().RefreshSetList();
  tool().lstSets.AddItem(QStringLiteral("stale"));
  WithAnswers({}, [] { PressLoad(MakeFile("bad", "x"), kRiff); });
  EXPECT_EQ(tool().lstSets.ListCount(), 255);
}

TEST_F(PaletteDialogs, APictureGivesItsFileTitleToTheSet) {
  WithAnswers({}, [] { PressLoad(MakeFile("my picture.gif", Sample(kGif).bytes), kGif); });
  EXPECT_EQ(Lines(), (std::vector<std::string>{"my picture.gif"}));
}

TEST_F(PaletteDialogs, AFaultReachesTheApplication) {
  const std::string path = MakeFile("list", TextFile("300", {}));
  EXPECT_EQ(FaultOf([&] { PressLoad(path, kText); }), FaultKind::Overflow);
}

}  // namespace
}  // namespace brolk::test
