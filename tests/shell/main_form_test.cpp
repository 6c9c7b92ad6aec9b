// SPDX-License-Identifier: MIT
#include "shell/windows/main_form.h"

#include <gtest/gtest.h>

#include <QMdiSubWindow>
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
#include "forms/application.h"
#include "forms/look.h"
#include "forms/windows.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "shell/info_panel.h"
#include "shell/reg_keys.h"
#include "shell/windows/about.h"
#include "shell/windows/options.h"
#include "support/program.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

class Frame : public ::testing::Test {
 protected:
  void SetUp() override { StartProgram(); }
  MainForm& frame() { return The<MainForm>(); }
};

TEST_F(Frame, TheToolbarHasItsButtonsAtTheirPlaces) {
  const struct {
    int left, width;
    const char* name;
    const char* toolTip;
    bool toggle;
  } rows[] = {
      {120, 540, "fbnBrowser", "Show/Hide the Browser and its controls", true},
      {720, 540, "fbnEditor", "Show/Hide the Editor and its controls", true},
      {1320, 540, "fbnTile", "Show/Hide the Tile Tool", true},
      {1920, 150, "fbnSeparator1", "", false},
      {2040, 540, "fbnEditPattern", "Editor Address Pattern tool", false},
      {2640, 540, "fbnColorSet", "Color Set tool", false},
      {3240, 540, "fbnFavorite", "Show Favorites", false},
      {3840, 540, "fbnFileInfo", "Show File info", false},
      {4440, 540, "fbnBmpImport", "Import a Bmp file into the editor", false},
      {5040, 540, "fbnBmpExport", "Export the editor to a Bmp file", false},
      {5640, 150, "fbnSeparator2", "", false},
      {5760, 540, "fbnHelp", "Show Help file", false},
      {6360, 540, "fbnOptions", "Options", false},
      {6960, 540, "fbnAbout", "About Brolk Plus", false},
  };
  auto& toolbar = FindControl(frame(), "picToolbar");
  EXPECT_EQ(toolbar.findChildren<FlatButton*>(Qt::FindDirectChildrenOnly).size(),
            static_cast<qsizetype>(std::size(rows)));
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const auto& button = Find<FlatButton>(toolbar, row.name);
    EXPECT_EQ(button.geometry(), QRect(row.left / 15, 8, row.width / 15, 36));
    EXPECT_EQ(button.toolTip(), row.toolTip);
    EXPECT_EQ(button.isCheckable(), row.toggle);
  }
}

TEST_F(Frame, ToolbarAndInfoPanelAreDockedToTheFrame) {
  auto& toolbar = FindControl(frame(), "picToolbar");
  auto& info = FindControl(frame(), "picInfo");
  const int menuHeight = frame().menuBar.height();
  EXPECT_EQ(toolbar.geometry().topLeft(), QPoint(0, menuHeight));
  EXPECT_EQ(toolbar.width(), frame().width());
  EXPECT_EQ(info.height(), 18);
  EXPECT_EQ(info.geometry().bottom(), frame().height() - 1);
  EXPECT_EQ(info.width(), frame().width());
  EXPECT_EQ(frame().mdiArea.geometry().top(), toolbar.geometry().bottom() + 1);
  EXPECT_EQ(frame().mdiArea.geometry().bottom(), info.geometry().top() - 1);
  frame().resize(1000, 700);
  QApplication::processEvents();
  EXPECT_EQ(toolbar.width(), 1000);
  EXPECT_EQ(info.geometry(), QRect(0, 700 - 18, 1000, 18));
}

TEST_F(Frame, HasItsColors) {
  const QImage picture = frame().grab().toImage();
  const QRect area = frame().mdiArea.geometry();
  EXPECT_EQ(picture.pixelColor(area.bottomRight() - QPoint(3, 3)), ScreenColor(0x800080));
  EXPECT_EQ(FindControl(frame(), "picInfo").palette().color(QPalette::Window), ScreenColor(0x80FF));
  for (const char* name : {"lblInfo", "lblAddress", "lblPosition", "lblColor"}) {
    const auto& label = Find<Label>(FindControl(frame(), "picInfo"), name);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), ScreenColor(0xFFFF)) << name;
    EXPECT_NE(label.frameShape(), QFrame::NoFrame) << name;
  }
  EXPECT_NE(frame().lblPosition.alignment() & Qt::AlignHCenter, 0);
}

// Twips to pixels as the forms do it.
int Px(double twips) {
  return PixelsFromTwips(twips);
}

void ExpectLabels(MainForm& frame) {
  const InfoPanelLayout layout = LayOutInfoPanel(frame.width() * 15.0, 15);
  const std::pair<Label*, InfoPanelLayout::Place> rows[] = {{&frame.lblInfo, layout.info},
                                                            {&frame.lblAddress, layout.address},
                                                            {&frame.lblPosition, layout.position},
                                                            {&frame.lblColor, layout.color}};
  for (const auto& [label, place] : rows) {
    SCOPED_TRACE(label->objectName().toStdString());
    EXPECT_EQ(label->x(), Px(place.left));
    EXPECT_EQ(label->y(), 1) << "10 twips";
    EXPECT_EQ(label->width(), Px(place.width));
  }
}

TEST_F(Frame, EveryResizeLaysTheInfoLabelsOut) {
  for (const int width : {801, 813, 1000, 1279}) {
    frame().resize(width, 600);
    QApplication::processEvents();
    ExpectLabels(frame());
  }
  frame().resize(1000, 600);
  QApplication::processEvents();
  EXPECT_EQ(frame().lblInfo.geometry().x(), 0);
  EXPECT_EQ(frame().lblInfo.width(), 600);
  EXPECT_EQ(frame().lblAddress.x(), 601);
  EXPECT_EQ(frame().lblAddress.width(), 200);
  EXPECT_EQ(frame().lblPosition.x(), 802);
  EXPECT_EQ(frame().lblPosition.width(), 100);
  EXPECT_EQ(frame().lblColor.x(), 903);
  EXPECT_EQ(frame().lblColor.width(), 100);
}

TEST_F(Frame, MinimisingLeavesTheLabelsAndRestoringLaysThemOut) {
  frame().resize(1000, 600);
  QApplication::processEvents();
  frame().showMinimized();
  QApplication::processEvents();
  frame().resize(500, 300);
  frame().Form_Resize();
  EXPECT_EQ(frame().lblInfo.width(), 600) << "minimised: left as they were";
  frame().showNormal();
  frame().resize(900, 600);
  QApplication::processEvents();
  ExpectLabels(frame());
}

bool Shown(const Form& form) {
  return form.Visible();
}

// The rule of the three toggles over all of their states, with and without a file.
TEST_F(Frame, TheTogglesDecideWhichWindowsShow) {
  for (int state = 0; state < 16; ++state) {
    SCOPED_TRACE(state);
    const bool browser = (state & 1) != 0;
    const bool editor = (state & 2) != 0;
    const bool tile = (state & 4) != 0;
    FileOpen = (state & 8) != 0;
    The<Browser>().Hide();
    frame().fbnBrowser.SetChecked(browser);
    frame().fbnEditor.SetChecked(editor);
    frame().fbnTile.SetChecked(tile);
    frame().UpdateToolWindows();
    EXPECT_EQ(Shown(The<Browser>()), browser && FileOpen);
    EXPECT_EQ(Shown(The<BrowserControl>()), browser);
    EXPECT_EQ(Shown(The<Editor>()), editor);
    EXPECT_EQ(Shown(The<EditorControl>()), editor);
    EXPECT_EQ(Shown(The<TileControl>()), tile);
    EXPECT_EQ(Shown(The<PaletteControl>()), browser || editor);
    EXPECT_FALSE(Shown(The<COutPut>())) << "outside of the rule";
  }
  FileOpen = false;
}

TEST_F(Frame, APageThatShowsStaysWhenTheFileHasGone) {
  frame().fbnBrowser.SetChecked(true);
  FileOpen = true;
  frame().UpdateToolWindows();
  FileOpen = false;
  frame().UpdateToolWindows();
  EXPECT_TRUE(Shown(The<Browser>())) << "the rule shows it with a file and hides it with the tool alone";
}

TEST_F(Frame, WithTheBrowserOnAndNoFileThePanelsShowAndThePageDoesNot) {
  EXPECT_TRUE(frame().fbnBrowser.Checked());
  EXPECT_TRUE(Shown(The<BrowserControl>()));
  EXPECT_TRUE(Shown(The<PaletteControl>()));
  EXPECT_FALSE(Shown(The<Browser>()));
  OpenRomFile(MakeFile("game.gb", std::string(4096, 'x')));
  EXPECT_TRUE(Shown(The<Browser>()));
}

TEST_F(Frame, ThePaletteStaysUntilBrowserAndEditorAreOff) {
  ClickControl(frame().fbnBrowser);
  EXPECT_FALSE(Shown(The<BrowserControl>()));
  EXPECT_TRUE(Shown(The<PaletteControl>()));
  ClickControl(frame().fbnEditor);
  EXPECT_FALSE(Shown(The<Editor>()));
  EXPECT_FALSE(Shown(The<PaletteControl>()));
  ClickControl(frame().fbnBrowser);
  EXPECT_TRUE(Shown(The<PaletteControl>()));
}

TEST_F(Frame, ATilesToggleShowsAndHidesTheTileTool) {
  ClickControl(frame().fbnTile);
  EXPECT_FALSE(Shown(The<TileControl>()));
  ClickControl(frame().fbnTile);
  EXPECT_TRUE(Shown(The<TileControl>()));
}

TEST_F(Frame, HidingAToolKeepsItsWindow) {
  const auto* window = &The<BrowserControl>();
  ClickControl(frame().fbnBrowser);
  EXPECT_TRUE(IsLoaded<BrowserControl>());
  EXPECT_EQ(&The<BrowserControl>(), window);
}

TEST_F(Frame, ClosingAToolByItsFrameHidesItAndLeavesTheToggle) {
  The<TileControl>().ChildFrame()->close();
  EXPECT_FALSE(Shown(The<TileControl>()));
  EXPECT_TRUE(frame().fbnTile.Checked());
  EXPECT_TRUE(IsLoaded<TileControl>());
}

TEST_F(Frame, SevenWindowsAreItsChildrenAndTheOthersStandFree) {
  for (Form* child : std::initializer_list<Form*>{&The<Browser>(), &The<BrowserControl>(), &The<Editor>(),
                                                  &The<EditorControl>(), &The<TileControl>(),
                                                  &The<PaletteControl>(), &The<COutPut>()}) {
    ASSERT_NE(child->ChildFrame(), nullptr) << child->objectName().toStdString();
    EXPECT_EQ(child->window(), &frame()) << child->objectName().toStdString();
    EXPECT_EQ(child->ChildFrame()->mdiArea(), &frame().mdiArea);
  }
  for (Form* free :
       std::initializer_list<Form*>{&The<ColorSet>(), &The<FavoritesTool>(), &The<FileInfo>(),
                                    &The<pattern>(), &The<Options>(), &The<ColorDialog>(), &The<About>()}) {
    EXPECT_TRUE(free->isWindow()) << free->objectName().toStdString();
    EXPECT_EQ(free->parentWidget(), &frame()) << "it stays in front of the frame";
  }
}

TEST_F(Frame, ToolsThatNeedAFileSayThatThereIsNone) {
  for (FlatButton* button : {&frame().fbnFavorite, &frame().fbnFileInfo}) {
    const auto boxes = WithAnswers({1}, [&] { ClickControl(*button); });
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "This tool is not available when no file is opened.");
    EXPECT_EQ(boxes[0].title, "Brolk Plus - Tool not available");
    EXPECT_EQ(boxes[0].icon, "msg-info");
  }
  EXPECT_FALSE(Shown(The<FavoritesTool>()));
  EXPECT_FALSE(Shown(The<FileInfo>()));
}

TEST_F(Frame, WithAFileTheyShowAndTakeTheFocus) {
  OpenRomFile(MakeFile("game.gb", std::string(4096, 'x')));
  ClickControl(frame().fbnFavorite);
  EXPECT_TRUE(Shown(The<FavoritesTool>()));
  EXPECT_EQ(Form::Active(), &The<FavoritesTool>());
  ClickControl(frame().fbnFileInfo);
  EXPECT_TRUE(Shown(The<FileInfo>()));
  EXPECT_EQ(Form::Active(), &The<FileInfo>());
  EXPECT_NE(The<FileInfo>().lblLength.Text(), "Lenght here") << "the report has run";
  // A second click brings the tool that is already up to the front.
  ClickControl(frame().fbnFavorite);
  EXPECT_EQ(Form::Active(), &The<FavoritesTool>());
}

TEST_F(Frame, TheOtherToolButtonsShowTheirWindows) {
  ClickControl(frame().fbnEditPattern);
  EXPECT_TRUE(Shown(The<pattern>()));
  ClickControl(frame().fbnColorSet);
  EXPECT_TRUE(Shown(The<ColorSet>()));
  EXPECT_EQ(Form::Active(), &The<ColorSet>());
  ClickControl(frame().fbnOptions);
  EXPECT_TRUE(Shown(The<Options>()));
  ClickControl(frame().fbnAbout);
  EXPECT_TRUE(Shown(The<About>()));
}

TEST_F(Frame, TheBitmapButtonsAskForAFile) {
  std::vector<CommonDialog::Kind> asked;
  CommonDialog::Answer = [&](CommonDialog&, CommonDialog::Kind kind) { asked.push_back(kind); };
  ClickControl(frame().fbnBmpImport);
  ClickControl(frame().fbnBmpExport);
  CommonDialog::Answer = nullptr;
  EXPECT_EQ(asked, (std::vector{CommonDialog::Kind::Open, CommonDialog::Kind::Save}));
}

TEST_F(Frame, SeparatorsDoNothing) {
  for (const FlatButton* separator : {&frame().fbnSeparator1, &frame().fbnSeparator2}) {
    EXPECT_FALSE(separator->isEnabled());
    EXPECT_FALSE(separator->Click);
  }
}

void StoreText(const char* name, std::string text) {
  RegSaveString(kLocalMachine, kSettingsKey, name, text);
}

TEST_F(Frame, TheRecentMenuShowsTheStoredPaths) {
  StoreText("LastOpen1", "/roms/a & b.gb");
  StoreText("LastOpen2", "-");
  StoreText("LastOpen4", "x.nes");
  StoreText("LastOpen9", "");
  frame().FillRecentMenu();
  const char* const captions[] = {"/roms/a & b.gb", "Recent 2", "Recent 3", "x.nes", "Recent 5",
                                  "Recent 6",       "Recent 7", "Recent 8", " "};
  const bool enabled[] = {true, false, false, true, false, false, false, false, true};
  for (int index = 0; index < 9; ++index) {
    EXPECT_EQ(frame().mnuRecent[index].Caption(), captions[index]);
    EXPECT_EQ(frame().mnuRecent[index].isEnabled(), enabled[index]) << index + 1;
  }
  EXPECT_EQ(frame().mnuRecent[0].text(), "/roms/a && b.gb") << "the ampersand shows as it is";
}

TEST_F(Frame, AFreedEntryBecomesAPlaceholderAgain) {
  StoreText("LastOpen3", "/roms/c.gb");
  frame().FillRecentMenu();
  EXPECT_EQ(frame().mnuRecent[2].Caption(), "/roms/c.gb");
  StoreText("LastOpen3", "-");
  frame().FillRecentMenu();
  EXPECT_EQ(frame().mnuRecent[2].Caption(), "Recent 3");
  EXPECT_FALSE(frame().mnuRecent[2].isEnabled());
}

TEST_F(Frame, ControlOOnTheFrameItselfOpensAFile) {
  const std::string path = MakeFile("game.gb", std::string(4096, 'x'));
  AnswerFileDialog(path);
  PressKey(frame(), Qt::Key_O, Qt::ControlModifier);
  CommonDialog::Answer = nullptr;
  EXPECT_TRUE(FileOpen);
  EXPECT_EQ(FileName, path);
}

TEST_F(Frame, HasTheKeyboardAfterTheStart) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frame()));
  EXPECT_EQ(QApplication::focusWidget(), &frame());
}

TEST_F(Frame, OtherKeysOnTheFrameDoNothing) {
  bool asked = false;
  CommonDialog::Answer = [&](CommonDialog&, CommonDialog::Kind) { asked = true; };
  PressKey(frame(), Qt::Key_O);
  PressKey(frame(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
  PressKey(frame(), Qt::Key_C, Qt::ControlModifier);
  CommonDialog::Answer = nullptr;
  EXPECT_FALSE(asked);
}

}  // namespace
}  // namespace brolk::test
