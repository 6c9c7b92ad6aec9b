// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QTest>

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "exchange/windows/c_output.h"
#include "exchange/windows/pattern.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "shell/layout_text.h"
#include "shell/reg_keys.h"
#include "shell/windows/file_config.h"
#include "shell/windows/layout_rows.h"
#include "shell/windows/main_form.h"
#include "shell/windows/options.h"
#include "support/program.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

struct Placed {
  const char* name;
  Form* form;
};

// The windows whose place is kept, with the names of their values.
std::vector<Placed> PlacedWindows() {
  return {{"MainForm", &The<MainForm>()},       {"BrowserControl", &The<BrowserControl>()},
          {"Browser", &The<Browser>()},         {"EditorControl", &The<EditorControl>()},
          {"Editor", &The<Editor>()},           {"PaletteControl", &The<PaletteControl>()},
          {"TileControl", &The<TileControl>()}, {"FavoritesTool", &The<FavoritesTool>()},
          {"ColorSet", &The<ColorSet>()},       {"Pattern", &The<pattern>()},
          {"Options", &The<Options>()},         {"FileInfo", &The<FileInfo>()},
          {"ColorDialog", &The<ColorDialog>()}};
}

std::string Text(double twips) {
  return std::to_string(static_cast<int>(twips));
}

TEST(SavedLayout, HasOneValueForEachRowInTheOrderOfTheTable) {
  PutSettings("ShowBrowser=No\n");
  StartProgram();
  MakeFile("settings", std::string());
  SaveLayout();
  const char* const names[] = {
      "ShowBrowser",        "ShowEditor",        "ShowTileTool",       "Grid",
      "EditorGrid",         "ShowNonCopied",     "SaveWarning",        "Benchmark",
      "MainFormLeft",       "MainFormTop",       "MainFormWidth",      "MainFormHeight",
      "BrowserControlLeft", "BrowserControlTop", "BrowserLeft",        "BrowserTop",
      "MainRows",           "MainLines",         "MainZoom",           "EditorControlLeft",
      "EditorControlTop",   "EditorLeft",        "EditorTop",          "EditorWidth",
      "EditorHeight",       "MainEdZoom",        "PaletteControlLeft", "PaletteControlTop",
      "TileControlLeft",    "TileControlTop",    "FavoritesToolLeft",  "FavoritesToolTop",
      "ColorSetLeft",       "ColorSetTop",       "PatternLeft",        "PatternTop",
      "OptionsLeft",        "OptionsTop",        "FileInfoLeft",       "FileInfoTop",
      "ColorDialogLeft",    "ColorDialogTop"};
  std::string expected = "[SOFTWARE\\Kova\\BrolkPlus\\Settings]\n";
  for (const char* name : names) expected += std::string(name) + "=" + StoredValue(name) + "\n";
  EXPECT_EQ(FileText(TestFolder() + "settings"), expected);
}

TEST(SavedLayout, HoldsPlacesSizesAndNumbers) {
  StartProgram();
  int twips = 600;
  for (const Placed& row : PlacedWindows()) {
    row.form->SetLeft(twips);
    row.form->SetTop(twips + 15);
    twips += 30;
  }
  The<MainForm>().SetWidth(10500);
  The<MainForm>().SetHeight(9000);
  The<Editor>().SetWidth(4500);
  The<Editor>().SetHeight(4515);
  MainRows = 11;
  MainLines = 22;
  MainZoom = 5;
  MainEdZoom = 6;
  SaveLayout();
  twips = 600;
  for (const Placed& row : PlacedWindows()) {
    EXPECT_EQ(StoredValue(std::string(row.name) + "Left"), std::to_string(twips));
    EXPECT_EQ(StoredValue(std::string(row.name) + "Top"), std::to_string(twips + 15));
    twips += 30;
  }
  EXPECT_EQ(StoredValue("MainFormWidth"), "10500");
  EXPECT_EQ(StoredValue("MainFormHeight"), "9000");
  EXPECT_EQ(StoredValue("EditorWidth"), "4500");
  EXPECT_EQ(StoredValue("EditorHeight"), "4515");
  EXPECT_EQ(StoredValue("MainRows"), "11");
  EXPECT_EQ(StoredValue("MainLines"), "22");
  EXPECT_EQ(StoredValue("MainZoom"), "5");
  EXPECT_EQ(StoredValue("MainEdZoom"), "6");
}

TEST(SavedLayout, HoldsTheFlags) {
  StartProgram();
  struct Flag {
    const char* name;
    FlatButton* button;
    bool inverse = false;
  };
  const Flag flags[] = {{"ShowBrowser", &The<MainForm>().fbnBrowser},
                        {"ShowEditor", &The<MainForm>().fbnEditor},
                        {"ShowTileTool", &The<MainForm>().fbnTile},
                        {"Grid", &The<BrowserControl>().fbnGrid},
                        {"EditorGrid", &The<EditorControl>().fbnEditorGrid},
                        {"ShowNonCopied", &The<EditorControl>().fbnNonCopied, true},
                        {"SaveWarning", &The<Options>().fbnSaveWarning},
                        {"Benchmark", &The<Options>().fbnBenchmark}};
  for (const bool checked : {false, true}) {
    for (const Flag& flag : flags) flag.button->SetChecked(checked);
    SaveLayout();
    for (const Flag& flag : flags) EXPECT_EQ(StoredValue(flag.name), checked != flag.inverse ? "Yes" : "No");
  }
}

TEST(SavedLayout, OfAFreshStartEqualsTheDefaultsToThePixel) {
  StartProgram();
  SaveLayout();
  const int top = ScreenHeightTwips() - 8970;
  const std::pair<const char*, int> defaults[] = {
      {"MainFormLeft", 0},         {"MainFormTop", top},       {"MainFormWidth", 12200},
      {"MainFormHeight", 8970},    {"BrowserControlLeft", 30}, {"BrowserControlTop", 30},
      {"BrowserLeft", 2700},       {"BrowserTop", 30},         {"EditorControlLeft", 5955},
      {"EditorControlTop", 3640},  {"EditorLeft", 5955},       {"EditorTop", 30},
      {"EditorWidth", 3995},       {"EditorHeight", 3585},     {"PaletteControlLeft", 8010},
      {"PaletteControlTop", 3640}, {"TileControlLeft", 9975},  {"TileControlTop", 30}};
  for (const auto& [name, twips] : defaults) EXPECT_NEAR(std::stoi(StoredValue(name)), twips, 7.5) << name;
}

// Saving and loading again must not let a window creep or grow, frame or no frame.
TEST(SavedLayout, LoadedAndSavedAgainStaysTheSame) {
  StartProgram();
  SaveLayout();
  const std::string first = FileText(TestFolder() + "settings");
  LoadLayout();
  SaveLayout();
  EXPECT_EQ(FileText(TestFolder() + "settings"), first);
}

TEST(SavedLayout, LeavesOutColorsModesAndOtherWindows) {
  StartProgram();
  const std::string before = FileText(TestFolder() + "settings");
  GridColor = 0x00FF00;
  GfxMode = 9;
  AddressShift = 3;
  The<COutPut>().SetLeft(900);
  The<TileControl>().SetWidth(3000);
  SaveLayout();
  const std::string after = FileText(TestFolder() + "settings");
  EXPECT_EQ(std::count(before.begin(), before.end(), '\n'), std::count(after.begin(), after.end(), '\n'));
  for (const char* name : {"GridColor", "GfxMode", "AddressShift", "COutPutLeft", "TileControlWidth"}) {
    EXPECT_EQ(after.find(name), std::string::npos) << name;
  }
}

TEST(SavedLayout, ACoordinateBeyondAnIntegerIsTheOverflowFault) {
  StartProgram();
  The<BrowserControl>().SetLeft(32760);
  SaveLayout();
  The<BrowserControl>().SetLeft(32775);
  const std::string topBefore = StoredValue("BrowserControlTop");
  The<BrowserControl>().SetTop(900);
  EXPECT_EQ(FaultOf([] { SaveLayout(); }), FaultKind::Overflow);
  EXPECT_EQ(StoredValue("BrowserControlLeft"), "32760")
      << "the rows before it are written, it and the rest not";
  EXPECT_EQ(StoredValue("BrowserControlTop"), topBefore);
}

TEST(LoadedLayout, AppliesPlacesSizesAndNumbers) {
  StartProgram();
  PutLayoutWith("MainRows", "12");
  LoadLayout();
  EXPECT_EQ(Text(The<MainForm>().Left()), "150");
  EXPECT_EQ(Text(The<MainForm>().Top()), "300");
  EXPECT_EQ(Text(The<MainForm>().Width()), "12000");
  EXPECT_EQ(Text(The<MainForm>().Height()), "9000");
  EXPECT_EQ(Text(The<BrowserControl>().Left()), "30");
  EXPECT_EQ(Text(The<Browser>().Left()), "2700");
  EXPECT_EQ(Text(The<FavoritesTool>().Left()), "1500");
  EXPECT_EQ(Text(The<FavoritesTool>().Top()), "1515");
  EXPECT_EQ(Text(The<ColorSet>().Left()), "1530");
  EXPECT_EQ(Text(The<pattern>().Left()), "1560");
  EXPECT_EQ(Text(The<pattern>().Top()), "1575");
  EXPECT_EQ(Text(The<Options>().Left()), "1590");
  EXPECT_EQ(Text(The<FileInfo>().Top()), "1635");
  EXPECT_EQ(Text(The<ColorDialog>().Top()), "1665");
  EXPECT_EQ(MainRows, 12);
  EXPECT_EQ(MainLines, 16);
}

TEST(LoadedLayout, LeavesThePanelsBarsAndLineBytesStale) {
  PutLayoutWith("MainRows", "12");
  StartProgram();
  EXPECT_EQ(MainRows, 12);
  EXPECT_EQ(The<BrowserControl>().hsbRows.Value(), 8);
  EXPECT_EQ(The<BrowserControl>().lblRows.Text(), "8");
  EXPECT_EQ(LineBytes, 256);
}

TEST(LoadedLayout, TheFlagsDecideWhichToolsShow) {
  for (const char* name : {"ShowBrowser", "ShowEditor", "ShowTileTool"}) {
    PutLayoutWith(name, "No");
    StartProgram();
    LoadLayout();
    auto& frame = The<MainForm>();
    EXPECT_EQ(frame.fbnBrowser.Checked(), std::string(name) != "ShowBrowser") << name;
    EXPECT_EQ(frame.fbnEditor.Checked(), std::string(name) != "ShowEditor") << name;
    EXPECT_EQ(frame.fbnTile.Checked(), std::string(name) != "ShowTileTool") << name;
    EXPECT_EQ(The<BrowserControl>().Visible(), frame.fbnBrowser.Checked()) << name;
    EXPECT_EQ(The<Editor>().Visible(), frame.fbnEditor.Checked()) << name;
    EXPECT_EQ(The<TileControl>().Visible(), frame.fbnTile.Checked()) << name;
  }
}

// Neither empty nor "Yes": the Browser stays hidden and no defaults are written.
class NotYes : public ::testing::TestWithParam<const char*> {};

TEST_P(NotYes, CountsAsNoAndIsNoFirstRun) {
  PutSettings("ShowBrowser=" + std::string(GetParam()) + "\n");
  StartProgram();
  EXPECT_FALSE(The<MainForm>().fbnBrowser.Checked());
  EXPECT_FALSE(The<BrowserControl>().Visible());
  EXPECT_EQ(FileText(TestFolder() + "settings"),
            "[SOFTWARE\\Kova\\BrolkPlus\\Settings]\nShowBrowser=" + std::string(GetParam()) +
                "\nCopyright=Copyright (c) 2026 The Brolk Plus developers\n");
}

INSTANTIATE_TEST_SUITE_P(Texts, NotYes, ::testing::Values("no", " ", "yes", "YES", "Yes ", "1"));

TEST(LoadedLayout, AnEmptyShowBrowserIsAFirstRun) {
  PutSettings("ShowBrowser=\nGrid=No\n");
  StartProgram();
  EXPECT_EQ(StoredValue("ShowBrowser"), "Yes");
  EXPECT_EQ(StoredValue("Grid"), "Yes");
}

TEST(LoadedLayout, WithTheBrowserOnAFileIsShownAtOnce) {
  StartProgram();
  OpenRomFile(MakeFile("game.gb", std::string(4096, 'x')));
  PutLayoutWith("MainZoom", "5");
  LoadLayout();
  EXPECT_TRUE(The<Browser>().Visible());
  EXPECT_EQ(MainZoom, 5);
  EXPECT_EQ(The<Browser>().vsbAddress.geometry().x(), The<Browser>().ScaleWidth() - 17);
  EXPECT_GE(The<Browser>().ScaleWidth(), 5 * 64 + 17) << "the window follows the loaded zoom";
}

TEST(LoadedLayout, SetsTheGridButtonsWithoutTheirClicks) {
  PutLayoutWith("Grid", "No");
  StartProgram();
  EXPECT_FALSE(The<BrowserControl>().fbnGrid.Checked());
  EXPECT_TRUE(ShowGrid) << "the lines stay until the button is clicked twice";
  ClickControl(The<BrowserControl>().fbnGrid);
  EXPECT_TRUE(ShowGrid);
  ClickControl(The<BrowserControl>().fbnGrid);
  EXPECT_FALSE(ShowGrid);
}

TEST(LoadedLayout, SetsTheEditorsGridButton) {
  PutLayoutWith("EditorGrid", "No");
  StartProgram();
  EXPECT_FALSE(The<EditorControl>().fbnEditorGrid.Checked());
}

TEST(LoadedLayout, NonCopiedTilesAreTheInverse) {
  StartProgram();
  The<EditorControl>().fbnNonCopied.SetChecked(true);
  SaveLayout();
  EXPECT_EQ(StoredValue("ShowNonCopied"), "No");
  The<EditorControl>().fbnNonCopied.SetChecked(false);
  LoadLayout();
  EXPECT_TRUE(The<EditorControl>().fbnNonCopied.Checked());
  EXPECT_TRUE(The<MainForm>().mnuNonCopied.Checked()) << "the mark of the menu stays stale";
}

TEST(LoadedLayout, OnlyEverChecksTheTwoSwitches) {
  StartProgram();
  PutLayoutWith("SaveWarning", "No");
  LoadLayout();
  EXPECT_TRUE(The<Options>().fbnSaveWarning.Checked()) << "not unchecked";
  The<Options>().fbnSaveWarning.SetChecked(false);
  The<Options>().fbnBenchmark.SetChecked(true);
  PutLayoutWith("MainRows", "8");
  LoadLayout();
  EXPECT_TRUE(The<Options>().fbnSaveWarning.Checked());
  EXPECT_TRUE(The<Options>().fbnBenchmark.Checked()) << "not unchecked";
}

TEST(LoadedLayout, TakesTheNamesOfThePatternWindowInAnyCase) {
  PutSettings("ShowBrowser=No\nPATTERNLEFT=900\npatterntop=915\n");
  StartProgram();
  EXPECT_EQ(Text(The<pattern>().Left()), "900");
  EXPECT_EQ(Text(The<pattern>().Top()), "915");
}

TEST(LoadedLayout, AMissingNumberIsZero) {
  PutSettings("ShowBrowser=No\nMainRows=8\nMainLines=16\nMainZoom=3\nMainEdZoom=3\nEditorLeft=\n");
  StartProgram();
  EXPECT_EQ(The<Editor>().Left(), 0);
  EXPECT_EQ(The<TileControl>().Top(), 0);
  EXPECT_EQ(The<MainForm>().Left(), 0);
}

TEST(LoadedLayout, AWidthOfZeroShrinksTheFrameToItsMinimum) {
  PutLayoutWith("MainFormWidth", "0");
  StartProgram();
  QApplication::processEvents();
  EXPECT_TRUE(The<MainForm>().isVisible());
  EXPECT_EQ(The<MainForm>().width(), std::max(1, The<MainForm>().minimumWidth()));
  EXPECT_LT(The<MainForm>().width(), 300);
}

TEST(LoadedLayout, ANumberBeyondAnIntegerIsTheOverflowFault) {
  StartProgram();
  PutLayoutWith("TileControlLeft", "40000");
  EXPECT_EQ(FaultOf([] { LoadLayout(); }), FaultKind::Overflow);
}

TEST(LoadedLayout, HidesTheToolsBeforeItReads) {
  StartProgram();
  PutLayoutWith("MainFormWidth", "99999");
  EXPECT_EQ(FaultOf([] { LoadLayout(); }), FaultKind::Overflow);
  EXPECT_FALSE(The<BrowserControl>().Visible());
  EXPECT_FALSE(The<Editor>().Visible());
  EXPECT_FALSE(The<TileControl>().Visible());
  EXPECT_FALSE(The<PaletteControl>().Visible());
}

TEST(DefaultedLayout, IsWrittenAndLoaded) {
  PutLayoutWith("MainRows", "12");
  StartProgram();
  The<BrowserControl>().SetLeft(4500);
  The<MainForm>().fbnTile.SetChecked(false);
  MainZoom = 9;
  DefaultLayout();
  EXPECT_EQ(Text(The<BrowserControl>().Left()), "30");
  EXPECT_TRUE(The<MainForm>().fbnTile.Checked());
  EXPECT_EQ(MainRows, 8);
  EXPECT_EQ(MainZoom, 3);
  EXPECT_EQ(StoredValue("MainFormTop"), std::to_string(ScreenHeightTwips() - 8970));
  EXPECT_EQ(The<MainForm>().Top(), ScreenHeightTwips() - 8970) << "at the bottom of the screen";
  EXPECT_EQ(The<MainForm>().Left(), 0);
}

// The frame's default size counts for the centring, not its real one; the tools' real outer sizes do.
TEST(DefaultedLayout, CentresTheFreeWindowsByTheConstants) {
  StartProgram();
  The<MainForm>().SetWidth(6000);
  The<MainForm>().SetHeight(6000);
  The<Options>().Show();
  QApplication::processEvents();
  const int width = static_cast<int>(The<Options>().Width());
  const int height = static_cast<int>(The<Options>().Height());
  DefaultLayout();
  const int top = ScreenHeightTwips() - 8970;
  EXPECT_EQ(StoredValue("OptionsLeft"), CentreText(12200, width, 0));
  EXPECT_EQ(StoredValue("OptionsTop"), CentreText(8970, height, top));
}

TEST(DefaultedLayout, ADefaultBeyondAnIntegerIsHeldToItsEnd) {
  StartProgram();
  for (const LayoutRow& row : LayoutRows()) {
    if (std::string(row.name) == "MainFormTop") {
      EXPECT_EQ(row.standard(), ScreenHeightTwips() - 8970);
    }
  }
  The<MainForm>().SetTop(60000);
  const auto rows = LayoutRows();
  const auto centred = std::find_if(
      rows.begin(), rows.end(), [](const LayoutRow& row) { return std::string(row.name) == "OptionsTop"; });
  EXPECT_GT(centred->standard(), 32767) << "what DefaultLayout holds to 32767";
}

// In a store that refuses writes the two procedures call each other until the stack is used up.
TEST(RefusingStore, EndsInTheStackFault) {
  MakeFile("blocked", std::string("a file where the folder should be"));
  setenv("BROLKPLUS_SETTINGS", (TestFolder() + "blocked/settings").c_str(), 1);
  EXPECT_EQ(FaultOf([] { The<MainForm>(); }), FaultKind::OutOfStackSpace);
  EXPECT_EQ(FileText(TestFolder() + "blocked"), "a file where the folder should be");
}

TEST(RefusingStore, LoadAndDefaultsFaultEachTime) {
  StartProgram();
  MakeFile("blocked", std::string());
  setenv("BROLKPLUS_SETTINGS", (TestFolder() + "blocked/settings").c_str(), 1);
  for (int time = 0; time < 2; ++time) {
    EXPECT_EQ(FaultOf([] { LoadLayout(); }), FaultKind::OutOfStackSpace);
    EXPECT_EQ(FaultOf([] { DefaultLayout(); }), FaultKind::OutOfStackSpace);
  }
  setenv("BROLKPLUS_SETTINGS", (TestFolder() + "settings").c_str(), 1);
  LoadLayout();
  EXPECT_TRUE(The<MainForm>().fbnBrowser.Checked());
}

TEST(RefusingStore, SavingIsSilent) {
  StartProgram();
  MakeFile("blocked", std::string());
  setenv("BROLKPLUS_SETTINGS", (TestFolder() + "blocked/settings").c_str(), 1);
  WithAnswers({}, [] { SaveLayout(); });
}

// A maximised or minimised frame tells and takes the values of its normal state.
TEST(FrameState, AMaximisedFrameSavesItsNormalState) {
  StartProgram();
  QApplication::processEvents();
  SaveLayout();
  const std::string normal = FileText(TestFolder() + "settings");
  The<MainForm>().showMaximized();
  QApplication::processEvents();
  SaveLayout();
  EXPECT_EQ(FileText(TestFolder() + "settings"), normal);
  The<MainForm>().showMinimized();
  QApplication::processEvents();
  SaveLayout();
  EXPECT_EQ(FileText(TestFolder() + "settings"), normal);
}

}  // namespace
}  // namespace brolk::test
