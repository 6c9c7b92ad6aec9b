// SPDX-License-Identifier: MIT
#include <filesystem>

#include "browser/browser_windows.h"
#include "forms/common_dialog.h"
#include "runtime/files.h"
#include "shell/reg_keys.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

struct ClosingAFile : BrowserWindows {};
struct RecentList : BrowserWindows {};

std::string Setting(const std::string& name) {
  return RegGetString(kLocalMachine, kSettingsKey, name);
}

std::string RecentSetting(int entry) {
  return Setting("LastOpen" + std::to_string(entry));
}

// Caption of an enabled entry of the recent menu, in brackets when it is disabled.
std::string RecentCaption(int entry) {
  const MenuItem& item = The<MainForm>().mnuRecent[entry - 1];
  const std::string caption = item.Caption().toStdString();
  return item.isEnabled() ? caption : "(" + caption + ")";
}

// The recent list.

TEST_F(RecentList, AFileGoesToTheTopInSettingsAndMenu) {
  const std::string path = OpenBytes("first.dat", RampBytes(4096));
  EXPECT_EQ(RecentSetting(1), path);
  EXPECT_EQ(RecentCaption(1), path);
  EXPECT_EQ(RecentCaption(2), "(Recent 2)");
  EXPECT_EQ(Setting("RomPath") + "/", TestFolder());
}

TEST_F(RecentList, ReopeningTheThirdMovesTwoDown) {
  std::string paths[4];
  for (int file = 0; file < 4; ++file) paths[file] = OpenBytes("f" + std::to_string(file), RampBytes(4096));
  // Newest first: 3, 2, 1, 0.
  WithAnswers({6}, [] { Frame().mnuRecent[2].trigger(); });
  EXPECT_EQ(FileName, paths[1]);
  const int order[] = {1, 3, 2, 0};
  for (int entry = 1; entry <= 4; ++entry) {
    EXPECT_EQ(RecentSetting(entry), paths[order[entry - 1]]);
    EXPECT_EQ(RecentCaption(entry), paths[order[entry - 1]]);
  }
}

TEST_F(RecentList, ATenthFileDropsTheNinth) {
  std::string paths[10];
  for (int file = 0; file < 10; ++file) paths[file] = OpenBytes("f" + std::to_string(file), RampBytes(64));
  for (int entry = 1; entry <= 9; ++entry) {
    EXPECT_EQ(RecentSetting(entry), paths[10 - entry]);
    EXPECT_EQ(RecentCaption(entry), paths[10 - entry]);
  }
}

TEST_F(RecentList, CaseMakesANameNew) {
  const std::string small = OpenBytes("game.dat", RampBytes(64));
  const std::string large = OpenBytes("GAME.dat", RampBytes(64));
  EXPECT_EQ(RecentSetting(1), large);
  EXPECT_EQ(RecentSetting(2), small);
}

TEST_F(RecentList, ARightPressReopensTheNewest) {
  const std::string path = OpenBytes("again.dat", RampBytes(4096));
  WithAnswers({6}, [] { ClickControl(Panel().fbnCloseFile); });
  CommonDialog::Answer = [](CommonDialog&, CommonDialog::Kind) { ADD_FAILURE() << "no dialog is needed"; };
  ClickControl(Panel().fbnOpenFile, Qt::RightButton);
  EXPECT_TRUE(FileOpen);
  EXPECT_EQ(FileName, path);
}

TEST_F(RecentList, ARightPressWithAnEmptyListAsks) {
  int asked = 0;
  CommonDialog::Answer = [&](CommonDialog&, CommonDialog::Kind) { ++asked; };
  ClickControl(Panel().fbnOpenFile, Qt::RightButton);
  EXPECT_EQ(asked, 1);
}

TEST_F(RecentList, AnEntryWhoseFileHasGoneIsPassedOverInSilence) {
  const std::string path = OpenBytes("gone.dat", RampBytes(4096));
  OpenBytes("here.dat", RampBytes(4096));
  std::filesystem::remove(path);
  WithAnswers({6}, [] { Frame().mnuRecent[1].trigger(); });
  EXPECT_FALSE(FileOpen);
  EXPECT_EQ(FileName, path);
  EXPECT_EQ(RecentSetting(2), path) << "the list stays";
}

TEST_F(RecentList, OpensWithTheBrowserToolOffAndLeavesThePanelHidden) {
  OpenBytes("game.dat", RampBytes(4096));
  WithAnswers({6}, [] { ClickControl(Panel().fbnCloseFile); });
  Frame().fbnBrowser.SetChecked(false);
  Frame().UpdateToolWindows();
  Frame().mnuRecent[0].trigger();
  EXPECT_TRUE(Page().Visible());
  EXPECT_FALSE(Panel().Visible());
  EXPECT_FALSE(Frame().fbnBrowser.Checked());
}

TEST_F(RecentList, IsReadAgainAtTheNextStart) {
  const std::string path = OpenBytes("kept & held.dat", RampBytes(4096));
  Frame().mnuRecent[0].SetCaption(QStringLiteral("x"));
  Frame().FillRecentMenu();
  EXPECT_EQ(RecentCaption(1), path);
}

// Closing.

TEST_F(ClosingAFile, AsksAndHidesThePage) {
  const std::string path = OpenBytes("game.dat", RampBytes(4096));
  const auto handle = hFile;
  const auto seen = WithAnswers({6}, [] { ClickControl(Panel().fbnCloseFile); });
  EXPECT_EQ(seen[0].text, "Are you sure you want to close the opened file?");
  EXPECT_EQ(seen[0].title, "Brolk Plus - Close file?");
  EXPECT_EQ(seen[0].icon, "msg-question");
  EXPECT_FALSE(FileOpen);
  EXPECT_EQ(Info(), "Closed file " + path);
  EXPECT_TRUE(FileName.empty());
  EXPECT_EQ(OpenFileLength(handle), 0);
  EXPECT_FALSE(Page().Visible());
  EXPECT_TRUE(Panel().Visible());
}

TEST_F(ClosingAFile, NoChangesNothing) {
  OpenGba8();
  for (const int answer : {7, 0}) {
    WithAnswers({answer}, [] { ClickControl(Panel().fbnCloseFile); });
    EXPECT_TRUE(FileOpen);
    EXPECT_TRUE(Page().Visible());
    EXPECT_EQ(OpenFileLength(hFile), 65536);
  }
}

TEST_F(ClosingAFile, WithoutAFileIsSilent) {
  const std::string info = Info();
  WithAnswers({}, [] { ClickControl(Panel().fbnCloseFile); });
  EXPECT_EQ(Info(), info);
}

TEST_F(ClosingAFile, KeepsModePageShapeAndZoom) {
  OpenGba8();
  Panel().hsbRows.SetValue(12);
  ClickControl(Panel().fbnBrowserZoomIn);
  WithAnswers({6}, [] { ClickControl(Panel().fbnCloseFile); });
  EXPECT_EQ(GfxMode, kGba8);
  EXPECT_EQ(MainRows, 12);
  EXPECT_EQ(MainZoom, 4);
}

}  // namespace
}  // namespace brolk::test
