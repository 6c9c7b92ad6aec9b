// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <limits>

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "editor/slots.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "exchange/windows/c_output.h"
#include "exchange/windows/pattern.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/application.h"
#include "forms/windows.h"
#include "palette/palette_model.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "runtime/files.h"
#include "shell/info_panel.h"
#include "shell/layout_text.h"
#include "shell/windows/about.h"
#include "shell/windows/init_defaults.h"
#include "shell/windows/main_form.h"
#include "shell/windows/new_msg_box.h"
#include "shell/windows/options.h"
#include "support/program.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

TEST(StartUp, ShowsVersionAndGreeting) {
  StartProgram();
  auto& frame = The<MainForm>();
  EXPECT_EQ(frame.Caption(), "Brolk Plus 0.64");
  EXPECT_EQ(frame.lblInfo.Text(), "Brolk Plus 0.64 - May the Brolk be with you!");
  EXPECT_EQ(frame.lblAddress.Text(), "Konnichi wa!");
  EXPECT_EQ(frame.lblPosition.Text(), "X: 0   Y: 0");
  EXPECT_EQ(frame.lblColor.Text(), "Color 0");
  EXPECT_TRUE(frame.isVisible());
}

TEST(StartUp, FillsTheSharedBlock) {
  StartProgram();
  EXPECT_EQ(CellSize, 8);
  EXPECT_EQ(LineBytes, 256);
  EXPECT_EQ(TwipsPerPixel, 15);
  EXPECT_EQ(Pow2[0], 1);
  EXPECT_EQ(Pow2[30], 1073741824);
  EXPECT_EQ(Pow2[31], std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(MainRows, 8);
  EXPECT_EQ(MainLines, 16);
  EXPECT_EQ(MainZoom, 3);
  EXPECT_EQ(MainEdZoom, 3);
  EXPECT_TRUE(ShowGrid);
  EXPECT_FALSE(FileOpen);
  EXPECT_EQ(BrowserSurface.Width(), 256);
  EXPECT_EQ(BrowserSurface.Height(), 256);
}

// The modes are filled before the Browser panel loads, and its load selects the first entry of the list,
// which is another mode than the one the defaults name.
TEST(StartUp, LeavesTheModeOfTheFirstEntryInTheList) {
  StartProgram();
  EXPECT_EQ(GfxMode, 3);
  auto& list = The<BrowserControl>().cboMode;
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(list.Text(), "Snes 4bpp");
  ASSERT_EQ(list.count(), 15);
  for (int position = 0; position < 15; ++position) {
    EXPECT_EQ(list.itemText(position), Modes[kModeMap.at(static_cast<std::size_t>(position))].Name);
    EXPECT_FALSE(list.itemText(position).isEmpty());
  }
}

TEST(StartUp, LoadsTheTileToolWithSlotOneAndEmptiesTheEditor) {
  StartProgram();
  EXPECT_EQ(The<TileControl>().LoadedSlot, 1);
  EXPECT_EQ(The<TileControl>().LoadedAddress, kNonCopied);
  EXPECT_EQ(The<TileControl>().txtAddress.Text(), "n/a");
  for (int slot = 0; slot < 256; ++slot) EXPECT_EQ(EditSlots[slot].Address, kNonCopied);
}

TEST(StartUp, AFirstStartShowsAllToolsButThePage) {
  StartProgram();
  for (const Form* shown :
       std::initializer_list<Form*>{&The<BrowserControl>(), &The<PaletteControl>(), &The<Editor>(),
                                    &The<EditorControl>(), &The<TileControl>()}) {
    EXPECT_TRUE(shown->Visible()) << shown->objectName().toStdString();
    EXPECT_TRUE(shown->isVisible()) << shown->objectName().toStdString();
  }
  for (const Form* hidden : std::initializer_list<Form*>{
           &The<Browser>(), &The<COutPut>(), &The<ColorSet>(), &The<FavoritesTool>(), &The<FileInfo>(),
           &The<pattern>(), &The<Options>(), &The<ColorDialog>(), &The<About>(), &The<NewMsgBox>()}) {
    EXPECT_FALSE(hidden->Visible()) << hidden->objectName().toStdString();
  }
  EXPECT_TRUE(The<MainForm>().fbnBrowser.Checked());
  EXPECT_TRUE(The<MainForm>().fbnEditor.Checked());
  EXPECT_TRUE(The<MainForm>().fbnTile.Checked());
}

TEST(StartUp, AFirstStartWritesTheNoticeAndAllDefaults) {
  StartProgram();
  EXPECT_EQ(FileText(TestFolder() + "settings"), FirstRunFile());
}

TEST(StartUp, ALaterStartWritesTheNoticeAlone) {
  PutLayoutWith("MainRows", "10");
  const std::string before = FileText(TestFolder() + "settings");
  StartProgram();
  EXPECT_EQ(FileText(TestFolder() + "settings"),
            before + "Copyright=Copyright (c) 2026 The Brolk Plus developers\n");
  EXPECT_EQ(MainRows, 10);
}

TEST(StartUp, ReplacesAnOldNotice) {
  PutSettings("copyright=of long ago\nShowBrowser=No\n");
  StartProgram();
  EXPECT_EQ(FileText(TestFolder() + "settings"),
            "[SOFTWARE\\Kova\\BrolkPlus\\Settings]\n"
            "copyright=Copyright (c) 2026 The Brolk Plus developers\n"
            "ShowBrowser=No\n");
}

TEST(StartUp, FillsTheRecentMenu) {
  PutSettings("ShowBrowser=No\nLastOpen2=/roms/two.gb\nLastOpen3=-\n");
  StartProgram();
  auto& frame = The<MainForm>();
  EXPECT_EQ(frame.mnuRecent[1].Caption(), "/roms/two.gb");
  EXPECT_TRUE(frame.mnuRecent[1].isEnabled());
  EXPECT_EQ(frame.mnuRecent[2].Caption(), "Recent 3");
  EXPECT_FALSE(frame.mnuRecent[2].isEnabled());
}

// The mark of the menu item is set after the layout has set the button.
TEST(StartUp, MarksNonCopiedTilesAfterTheLayout) {
  PutLayoutWith("ShowNonCopied", "No");
  StartProgram();
  EXPECT_TRUE(The<EditorControl>().fbnNonCopied.Checked());
  EXPECT_FALSE(The<MainForm>().mnuNonCopied.Checked());
}

// A window that shows before the frame would come up by itself on the desktop.
TEST(StartUp, NoFreeWindowIsShownOnTheWay) {
  class Watcher final : public QObject {
   public:
    bool eventFilter(QObject* watched, QEvent* event) override {
      if (event->type() == QEvent::Show && qobject_cast<QWidget*>(watched) != nullptr &&
          qobject_cast<QWidget*>(watched)->isWindow()) {
        shown.push_back(watched->objectName().toStdString());
      }
      return false;
    }
    std::vector<std::string> shown;
  } watcher;
  qApp->installEventFilter(&watcher);
  StartProgram();
  EXPECT_EQ(watcher.shown, (std::vector<std::string>{"MainForm"}));
}

TEST(InitDefaults, GivesEveryValueItsStart) {
  StartProgram();
  MainRows = MainLines = TileWidth = TileHeight = MainZoom = MainEdZoom = 31;
  PaletteSide = 16;
  GfxMode = 9;
  GridColor = SelectionColor = EmptyColor = 0x123456;
  ShowGrid = false;
  Modes[3].BytesPerTile = 1;
  EditSlots[7].Address = 32;
  Palette[5] = 0;
  const auto color = [](int index) { return Palette[index]; };
  InitDefaults();
  EXPECT_EQ(MainRows, 8);
  EXPECT_EQ(MainLines, 16);
  EXPECT_EQ(TileWidth, 8);
  EXPECT_EQ(TileHeight, 8);
  EXPECT_EQ(MainZoom, 3);
  EXPECT_EQ(MainEdZoom, 3);
  EXPECT_EQ(PaletteSide, 4);
  EXPECT_EQ(GfxMode, 0);
  EXPECT_EQ(GridColor, 0x000000);
  EXPECT_EQ(SelectionColor, 0xFFFFFF);
  EXPECT_EQ(EmptyColor, 0x800080);
  EXPECT_TRUE(ShowGrid);
  EXPECT_EQ(Modes[3].BytesPerTile, 32);
  EXPECT_EQ(EditSlots[7].Address, kNonCopied);
  EXPECT_NEAR(The<Editor>().Width(), 4000, 7.5);
  EXPECT_NEAR(The<Editor>().Height(), 4000, 7.5);
  const ColorValue fifth = color(5);
  SetDefaultPalette();
  EXPECT_EQ(color(5), fifth);
  EXPECT_EQ(The<ColorSet>().cboPaletteType.count(), 3);
}

// The end of the process. Each of these runs the event loop that the program runs.
int RunUntil(const std::function<void()>& lastAct) {
  return dynamic_cast<Application*>(qApp)->Run([&] {
    StartProgram();
    QTimer::singleShot(0, lastAct);
  });
}

TEST(ShutDown, ExitEndsTheProcessWithoutAQuestion) {
  const int status = RunUntil([] {
    OpenRomFile(MakeFile("game.gb", std::string(4096, 'x')));
    EditSlots[3].Address = -1;
    EditSlots[3].Pixels[5] = 2;
    The<MainForm>().mnuExit.trigger();
  });
  EXPECT_EQ(status, 0);
  EXPECT_FALSE(IsLoaded<NewMsgBox>());
  EXPECT_EQ(FileText(TestFolder() + "game.gb"), std::string(4096, 'x'));
}

TEST(ShutDown, TheCloseBoxOfTheFrameEndsTheProcess) {
  EXPECT_EQ(RunUntil([] { The<MainForm>().close(); }), 0);
  EXPECT_FALSE(IsLoaded<MainForm>());
}

TEST(ShutDown, EveryWindowIsUnloaded) {
  RunUntil([] { The<MainForm>().mnuExit.trigger(); });
  EXPECT_FALSE(IsLoaded<About>() || IsLoaded<Browser>() || IsLoaded<BrowserControl>() ||
               IsLoaded<ColorDialog>() || IsLoaded<ColorSet>() || IsLoaded<COutPut>() || IsLoaded<Editor>() ||
               IsLoaded<EditorControl>() || IsLoaded<FavoritesTool>() || IsLoaded<FileInfo>() ||
               IsLoaded<NewMsgBox>() || IsLoaded<Options>() || IsLoaded<PaletteControl>() ||
               IsLoaded<pattern>() || IsLoaded<TileControl>() || IsLoaded<MainForm>());
  EXPECT_EQ(QApplication::topLevelWidgets().size(), 0) << "and freed";
}

TEST(ShutDown, FreesTheSurfacesAndClosesTheFile) {
  std::int16_t handle = -1;
  RunUntil([&] {
    OpenRomFile(MakeFile("game.gb", std::string(4096, 'x')));
    handle = hFile;
    EXPECT_EQ(OpenFileLength(handle), 4096);
    The<MainForm>().mnuExit.trigger();
  });
  EXPECT_EQ(OpenFileLength(handle), 0);
  EXPECT_EQ(BrowserSurface.Width(), 0);
}

TEST(ShutDown, SavesNothing) {
  std::string before;
  RunUntil([&] {
    before = FileText(TestFolder() + "settings");
    MainZoom = 7;
    The<MainForm>().mnuExit.trigger();
  });
  EXPECT_EQ(FileText(TestFolder() + "settings"), before);
}

TEST(ShutDown, ASecondPassIsHarmless) {
  RunUntil([] {
    MainForm::QuitProgram();
    MainForm::QuitProgram();
  });
  EXPECT_TRUE(Application::Ending());
}

}  // namespace
}  // namespace brolk::test
