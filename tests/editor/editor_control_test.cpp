// SPDX-License-Identifier: MIT
#include "editor/windows/editor_control.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <thread>

#include "browser/windows/browser_control.h"
#include "editor/editor_fixture.h"
#include "exchange/windows/c_output.h"
#include "palette/palette_model.h"
#include "shell/windows/options.h"
#include "support/endless_child.h"

namespace brolk::test {
namespace {

struct EditorPanel : EditorFixture {
  std::string Info() { return The<MainForm>().lblInfo.Text().toStdString(); }
};

TEST_F(EditorPanel, StartsInSelectWithGridAndHiddenNonCopiedTiles) {
  EXPECT_EQ(panel().Caption(), "Editor Control");
  EXPECT_TRUE(panel().fbnSelect.Checked());
  EXPECT_FALSE(panel().fbnPaint.Checked());
  EXPECT_FALSE(panel().fbnFill.Checked());
  EXPECT_TRUE(panel().fbnEditorGrid.Checked());
  EXPECT_FALSE(panel().fbnNonCopied.Checked());
  EXPECT_EQ(EditTool, 0);
}

TEST_F(EditorPanel, SwitchesTheTool) {
  const struct {
    FlatButton& button;
    MenuItem& item;
  } rows[] = {{panel().fbnSelect, The<MainForm>().mnuSelectMode},
              {panel().fbnPaint, The<MainForm>().mnuPaintMode},
              {panel().fbnFill, The<MainForm>().mnuFillMode}};
  const Surface before = editor().Canvas();
  for (const int choice : {2, 1, 0, 1}) {
    ClickControl(rows[choice].button);
    EXPECT_EQ(EditTool, choice);
    for (int other = 0; other < 3; ++other) {
      EXPECT_EQ(rows[other].button.Checked(), other == choice);
      EXPECT_EQ(rows[other].item.Checked(), other == choice);
    }
  }
  EXPECT_EQ(editor().Canvas(), before) << "nothing is redrawn";
}

TEST_F(EditorPanel, KeepsTheCheckedToolCheckedWhenItIsClickedAgain) {
  ClickControl(panel().fbnSelect);
  EXPECT_TRUE(panel().fbnSelect.Checked());
  ClickControl(panel().fbnFill);
  ClickControl(panel().fbnFill);
  EXPECT_TRUE(panel().fbnFill.Checked());
  EXPECT_EQ(EditTool, 2);
}

TEST_F(EditorPanel, RedrawsWithAndWithoutGrid) {
  The<TileControl>().Hide();
  ClickControl(panel().fbnEditorGrid);
  EXPECT_FALSE(panel().fbnEditorGrid.Checked());
  ExpectFreshPicture();
  EXPECT_TRUE(The<TileControl>().Visible()) << "the tool windows that are on show";
  ClickControl(panel().fbnEditorGrid);
  ExpectFreshPicture();
}

TEST_F(EditorPanel, MakesNonCopiedTilesStandOutAndTurnsTheMark) {
  ASSERT_TRUE(The<MainForm>().mnuNonCopied.Checked());
  ClickControl(panel().fbnNonCopied);
  EXPECT_EQ(editor().Canvas().GetPixel(100, 100), 0x800080);
  EXPECT_FALSE(The<MainForm>().mnuNonCopied.Checked());
  ExpectFreshPicture();
  ClickControl(panel().fbnNonCopied);
  EXPECT_EQ(editor().Canvas().GetPixel(100, 100), Palette[0]);
  EXPECT_TRUE(The<MainForm>().mnuNonCopied.Checked());
}

TEST_F(EditorPanel, EnlargesWithTheButtonCalledZoomOut) {
  EXPECT_EQ(panel().fbnEditZoomOut.toolTip(), "Zoom in");
  ClickControl(panel().fbnEditZoomOut);
  EXPECT_EQ(MainEdZoom, 4);
  EXPECT_TRUE(editor().hsbEdit.isVisible()) << "laid out anew";
  ExpectFreshPicture();
  EXPECT_EQ(panel().fbnEditZoomIn.toolTip(), "Zoom out");
  ClickControl(panel().fbnEditZoomIn);
  ClickControl(panel().fbnEditZoomIn);
  EXPECT_EQ(MainEdZoom, 2);
  EXPECT_FALSE(editor().hsbEdit.isVisible());
  ExpectFreshPicture();
}

TEST_F(EditorPanel, StopsAt30AndAt2WithoutAMessageAndWithoutARedraw) {
  WithAnswers({}, [this] {
    for (const std::int16_t zoom : {std::int16_t{30}, std::int16_t{2}}) {
      MainEdZoom = zoom;
      editor().Canvas().Fill(0x123456);
      const Surface before = editor().Canvas();
      ClickControl(zoom == 30 ? panel().fbnEditZoomOut : panel().fbnEditZoomIn);
      EXPECT_EQ(MainEdZoom, zoom);
      EXPECT_EQ(editor().Canvas(), before);
    }
  });
}

TEST_F(EditorPanel, ZoomsBackToTheTopLeftCorner) {
  editor().SetClientSize(300, 200);
  editor().hsbEdit.SetValue(50);
  ClickControl(panel().fbnEditZoomOut);
  EXPECT_EQ(editor().hsbEdit.Value(), 0);
  EXPECT_EQ(editor().hsbEdit.Max(), 512 - 283);
  ExpectFreshPicture();
}

TEST_F(EditorPanel, ZoomsFromTheMenuWithTheCrossedNames) {
  The<MainForm>().mnuEditorZoomIn.trigger();
  EXPECT_EQ(MainEdZoom, 4);
  The<MainForm>().mnuEditorZoomOut.trigger();
  EXPECT_EQ(MainEdZoom, 3);
}

TEST_F(EditorPanel, ClearsAllTilesAfterAQuestion) {
  for (int slot = 0; slot < 256; ++slot) SetSlot(static_cast<std::uint8_t>(slot), -1, CountingTile());
  EditSelColumn = 4;
  EditSelLine = 5;
  tool().LoadTile(84);
  const auto boxes = WithAnswers({6}, [this] { ClickControl(panel().fbnEditClear); });
  EXPECT_EQ(boxes[0].text, "Really clear all tiles in the editor?");
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Clear all tiles?");
  EXPECT_EQ(boxes[0].icon, "msg-question");
  for (const EditSlot& slot : EditSlots) ASSERT_EQ(slot.Address, -2);
  EXPECT_EQ(tool().LoadedSlot, -1);
  EXPECT_EQ(tool().txtAddress.Text(), "n/a");
  EXPECT_FALSE(tool().txtAddress.isEnabled());
  EXPECT_EQ(EditSelColumn, 4) << "the selection stays";
  EXPECT_EQ(EditSelLine, 5);
  ExpectFreshPicture();
}

TEST_F(EditorPanel, LeavesAllAsItWasOnAnyOtherAnswer) {
  SetSlot(3, -1, CountingTile());
  for (const int answer : {7, 0}) WithAnswers({answer}, [this] { ClickControl(panel().fbnEditClear); });
  EXPECT_EQ(EditSlots[3].Address, -1);
  EXPECT_EQ(EditSlots[3].Pixels, CountingTile());
}

TEST_F(EditorPanel, AsksBeforeAReloadAlsoWithoutAFile) {
  SetSlot(3, 64, CountingTile());
  const auto boxes = WithAnswers({6}, [this] { ClickControl(panel().fbnReload); });
  EXPECT_EQ(boxes[0].text, "Do you really want to reload all tiles?");
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Reload");
  EXPECT_EQ(boxes[0].icon, "msg-question");
  EXPECT_EQ(EditSlots[3].Pixels, CountingTile());
}

TEST_F(EditorPanel, ReloadsNothingWhenTheUserDoesNotAgree) {
  Open("rom.gba", std::vector<std::uint8_t>(1024, 5), kGba8);
  SetSlot(3, 64, CountingTile());
  for (const int answer : {7, 0}) WithAnswers({answer}, [this] { ClickControl(panel().fbnReload); });
  EXPECT_EQ(EditSlots[3].Pixels, CountingTile());
}

TEST_F(EditorPanel, SavesNothingWithoutAFileAndSaysSo) {
  SetSlot(3, 64, CountingTile());
  WithAnswers({}, [this] { ClickControl(panel().fbnSaveEdit); });
  EXPECT_EQ(Info(), "Saved0 tiles to file");
}

TEST_F(EditorPanel, SavesNothingWhenTheUserDoesNotAgreeAndSaysSo) {
  const std::string path = Open("rom.gba", std::vector<std::uint8_t>(1024), kGba8);
  SetSlot(3, 64, CountingTile());
  The<BrowserControl>().txtAddress.SetText("kept");
  WithAnswers({7}, [this] { ClickControl(panel().fbnSaveEdit); });
  EXPECT_EQ(Info(), "Saved0 tiles to file");
  EXPECT_EQ(FileBytes(path), std::vector<std::uint8_t>(1024));
  EXPECT_EQ(The<BrowserControl>().txtAddress.Text(), "0") << "the page is loaded again";
}

TEST_F(EditorPanel, OpensTheConverter) {
  ClickControl(panel().fbnCOutPut);
  EXPECT_TRUE(The<COutPut>().Visible());
  EXPECT_FALSE(The<COutPut>().isModal());
}

// --- The two commands that never come back. The file holds 8-bit tiles, 16 of them.

constexpr std::size_t kTileBytes = 64;
constexpr std::size_t kFileBytes = 16 * kTileBytes;

bool HoldsTile(const std::vector<std::uint8_t>& bytes, std::size_t address, std::uint8_t value) {
  return std::all_of(bytes.begin() + static_cast<std::ptrdiff_t>(address),
                     bytes.begin() + static_cast<std::ptrdiff_t>(address + kTileBytes),
                     [value](std::uint8_t byte) { return byte == value; });
}

// Slots in an order that tells which was written last: two twins of unequal content, one tile in the last
// place that fits, one a byte before it, one unaddressed.
void FillSlotsToSave() {
  SetSlot(0, 0, PlainTile(10));
  SetSlot(1, 128, PlainTile(11));
  SetSlot(2, 128, PlainTile(12));
  SetSlot(3, kFileBytes - kTileBytes, PlainTile(13));
  SetSlot(4, -1, PlainTile(14));
  SetSlot(255, 256, PlainTile(15));
}

struct EditorPanelEndless : EditorPanel {
  // What the second process does; it must not come back.
  void RunHere(const std::function<void()>& command) {
    OpenRomFile(EndlessChild::Path());
    The<BrowserControl>().cboMode.SetListIndex(6);
    ASSERT_EQ(GfxMode, kGba8);
    FillSlotsToSave();
    WithAnswers({6}, command);
    FAIL() << "the command came back";
  }
};

TEST_F(EditorPanelEndless, SavesAllTilesAgainAndAgain) {
  if (EndlessChild::Running()) return RunHere([this] { ClickControl(panel().fbnSaveEdit); });
  const std::string path = MakeFile("rom.gba", std::vector<std::uint8_t>(kFileBytes));
  EndlessChild child(path);
  const auto saved = [&path] {
    const std::vector<std::uint8_t> bytes = FileBytes(path);
    return HoldsTile(bytes, 0, 10) && HoldsTile(bytes, 128, 12) && HoldsTile(bytes, 256, 15);
  };
  ASSERT_TRUE(child.Until(saved));
  // Slot 255 has been written: what is wiped now can only come from another round.
  MakeFile("rom.gba", std::vector<std::uint8_t>(kFileBytes, 99));
  ASSERT_TRUE(child.Until(saved));
  EXPECT_TRUE(child.StillRuns());
  const std::vector<std::uint8_t> bytes = FileBytes(path);
  EXPECT_EQ(bytes.size(), kFileBytes);
  EXPECT_TRUE(HoldsTile(bytes, kFileBytes - kTileBytes, 99)) << "ends exactly at the end of the file";
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), 14), 0) << "unaddressed slots are left out";
  EXPECT_TRUE(HoldsTile(bytes, 64, 99));
}

// In the second process, beside the command: tells what the first pixels of some slots are, in a file beside
// the ROM, whenever one changes.
void ReportSlots(const std::string& path) {
  std::thread([path] {
    std::string before;
    for (;; std::this_thread::sleep_for(std::chrono::milliseconds(2))) {
      std::string now;
      for (const int slot : {0, 4, 5, 255}) {
        const volatile std::uint8_t& pixel = EditSlots[slot].Pixels[63];
        now += std::to_string(pixel) + " ";
      }
      if (now != before) std::ofstream(path, std::ios::app) << now << "\n";
      before = now;
    }
  }).detach();
}

TEST_F(EditorPanelEndless, ReloadsAllTilesAgainAndAgain) {
  if (EndlessChild::Running()) {
    ReportSlots(EndlessChild::Path() + ".report");
    return RunHere([this] { ClickControl(panel().fbnReload); });
  }
  const std::string path = MakeFile("rom.gba", std::vector<std::uint8_t>(kFileBytes, 42));
  MakeFile("rom.gba.report", std::string());
  EndlessChild child(path);
  // Slots 0 and 255 have an address; 4 is unaddressed and 5 non-copied, and both stay.
  const auto reports = [&path](const char* line) {
    return FileText(path + ".report").find(line) != std::string::npos;
  };
  ASSERT_TRUE(child.Until([&] { return reports("42 14 0 42 "); }));
  MakeFile("rom.gba", std::vector<std::uint8_t>(kFileBytes, 50));
  ASSERT_TRUE(child.Until([&] { return reports("50 14 0 50 "); })) << "read in another round";
  EXPECT_TRUE(child.StillRuns());
  EXPECT_EQ(FileBytes(path), std::vector<std::uint8_t>(kFileBytes, 50));
}

}  // namespace
}  // namespace brolk::test
