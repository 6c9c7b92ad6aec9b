// SPDX-License-Identifier: MIT
#include "exchange/windows/pattern.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "browser/windows/browser_control.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "exchange/address_patterns.h"
#include "exchange/windows/bmp.h"
#include "forms/windows.h"
#include "palette/palette_model.h"
#include "shell/windows/main_form.h"
#include "shell/windows/options.h"
#include "support/dialog_hands.h"
#include "support/endless_child.h"
#include "support/list_hands.h"
#include "support/program.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk {
namespace {

using test::ClickControl;
using test::DialogWatch;
using test::LinesOf;
using testing::ElementsAre;
using testing::IsEmpty;

const char* const kFilter = "Brolk editor patterns file (*.eap)|*.eap|All files (*.*)|*.*";

class PatternWindow : public testing::Test {
 protected:
  PatternWindow() {
    test::StartProgram();
    ClickControl(The<MainForm>().fbnEditPattern);
  }

  void Add(const char* description) {
    tool.txtDescription.SetText(QString::fromUtf8(description));
    ClickControl(tool.fbnAddPat);
  }

  void DoubleClickDescription() {
    QTest::mouseDClick(&tool.txtDescription, Qt::LeftButton, {}, tool.txtDescription.rect().center());
  }

  // Opens a file and shows its bytes as they are, one to a pixel.
  static void OpenInBytes(const std::string& path) {
    test::OpenRomFile(path);
    for (int position = 0; position < The<BrowserControl>().cboMode.count(); ++position) {
      if (kModeMap[static_cast<std::size_t>(position)] == kGba8)
        The<BrowserControl>().cboMode.SetListIndex(position);
    }
  }

  // The same for a new file in which tile n holds the byte n 64 times.
  static std::string OpenTiles(int tiles) {
    std::string rom;
    for (int tile = 0; tile < tiles; ++tile) rom += std::string(64, static_cast<char>(tile));
    const std::string path = test::MakeFile("tiles.bin", rom);
    OpenInBytes(path);
    return path;
  }

  pattern& tool = The<pattern>();
};

TEST_F(PatternWindow, StartsEmptyAndOnReload) {
  EXPECT_TRUE(tool.Visible());
  EXPECT_EQ(tool.Caption(), "Editor Address Pattern");
  EXPECT_EQ(PatternCount, 0);
  EXPECT_EQ(tool.lstPat.ListCount(), 0);
  EXPECT_EQ(tool.txtDescription.Text(), "");
  EXPECT_TRUE(tool.fbnRedraw.Checked());
  EXPECT_FALSE(tool.fbnBmp.Checked());
}

TEST_F(PatternWindow, AddShowsTheDescriptionAndSelectsNothing) {
  Add("Mario");
  Add("");
  Add("gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xD0\x96");  // a last letter that files do not know
  EXPECT_THAT(LinesOf(tool.lstPat),
              ElementsAre("Mario", "No description", "gr\xC3\xBC\xC3\x9F \xE2\x82\xAC ?"));
  EXPECT_EQ(tool.lstPat.ListIndex(), -1);
  EXPECT_EQ(Patterns[2].Description, "gr\xFC\xDF \x80 ?");
}

TEST_F(PatternWindow, AddAt63RefreshesTheListAlone) {
  for (int i = 0; i < 63; ++i) AddPattern("x");
  tool.RefreshPatternList();
  test::ClickLine(tool.lstPat, 62);
  Add("one too many");
  EXPECT_EQ(tool.lstPat.ListCount(), 63);
  EXPECT_EQ(tool.lstPat.ListIndex(), -1);
}

TEST_F(PatternWindow, SelectingShowsTheDescriptionByPointerAndKey) {
  Add("one");
  Add("two");
  test::ClickLine(tool.lstPat, 0);
  EXPECT_EQ(tool.txtDescription.Text(), "one");
  test::PressKey(tool.lstPat, Qt::Key_Down);
  EXPECT_EQ(tool.txtDescription.Text(), "two");
}

TEST_F(PatternWindow, DoubleClickOnTheDescriptionRenames) {
  Add("one");
  Add("two");
  test::ClickLine(tool.lstPat, 1);
  tool.txtDescription.SetText("new");
  DoubleClickDescription();
  EXPECT_THAT(LinesOf(tool.lstPat), ElementsAre("one", "new"));
  EXPECT_EQ(Patterns[1].Description, "new");
  EXPECT_EQ(tool.lstPat.ListIndex(), -1);
}

TEST_F(PatternWindow, RenameWithoutASelectionStoresNothing) {
  Add("one");
  tool.txtDescription.SetText("new");
  Patterns[0].Description = "changed behind the list";
  DoubleClickDescription();
  EXPECT_THAT(LinesOf(tool.lstPat), ElementsAre("changed behind the list"))
      << "the list is rebuilt all the same";
}

TEST_F(PatternWindow, DeleteTakesTheSelectedLine) {
  for (const char* name : {"one", "two", "three"}) Add(name);
  ClickControl(tool.fbnDelPat);
  EXPECT_EQ(PatternCount, 3) << "nothing is selected";
  test::ClickLine(tool.lstPat, 1);
  ClickControl(tool.fbnDelPat);
  EXPECT_THAT(LinesOf(tool.lstPat), ElementsAre("one", "three"));
  EXPECT_EQ(tool.lstPat.ListIndex(), -1);
}

TEST_F(PatternWindow, DeleteWith64EndsInTheFault) {
  for (int i = 0; i < 63; ++i) AddPattern("x");
  PatternCount = 64;
  tool.RefreshPatternList();
  test::ClickLine(tool.lstPat, 10);
  EXPECT_EQ(test::FaultOf([&] { ClickControl(tool.fbnDelPat); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(PatternCount, 64);
}

TEST_F(PatternWindow, ApplyNeedsALineAndAFile) {
  Add("one");
  test::ClickLine(tool.lstPat, 0);
  test::WithAnswers({}, [&] { ClickControl(tool.fbnLoadPat); });
  OpenTiles(4);
  tool.RefreshPatternList();
  test::WithAnswers({}, [&] { ClickControl(tool.fbnLoadPat); });
}

TEST_F(PatternWindow, ApplyAsksFirst) {
  OpenTiles(4);
  EditSlots[0].Address = 64;
  Add("one");
  EditSlots[0].Address = 5;
  test::ClickLine(tool.lstPat, 0);
  for (const int answer : {7, 0}) {
    const auto seen = test::WithAnswers({answer}, [&] { ClickControl(tool.fbnLoadPat); });
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, "Do you really want to apply the editor address pattern?");
    EXPECT_EQ(seen[0].title, "Brolk Plus - Applying editor address pattern");
    EXPECT_EQ(seen[0].icon, "msg-question");
    EXPECT_EQ(EditSlots[0].Address, 5);
  }
  test::WithAnswers({6}, [&] { ClickControl(tool.fbnLoadPat); });
  EXPECT_EQ(EditSlots[0].Address, 64);
}

TEST_F(PatternWindow, ApplyWithReloadReadsTheTiles) {
  OpenTiles(8);
  EditSlots[1].Address = 3 * 64;
  Add("one");
  ClearAllSlots();
  EditSlots[9].Pixels.fill(7);
  Palette[3] = 0x00ABCDEF;
  test::ClickLine(tool.lstPat, 0);
  test::WithAnswers({6}, [&] { ClickControl(tool.fbnLoadPat); });
  EXPECT_EQ(EditSlots[1].Pixels[0], 3);
  EXPECT_EQ(EditSlots[1].Pixels[63], 3);
  EXPECT_EQ(EditSlots[9].Pixels[0], 0);
  EXPECT_EQ(PageBuffer[0], 3) << "the reads go through the shared buffer";
  const int insideSlot1 = MainEdZoom * 8 + MainEdZoom + 1;
  EXPECT_EQ(The<Editor>().Canvas().GetPixel(insideSlot1, MainEdZoom + 1), 0xABCDEF);
}

TEST_F(PatternWindow, DoubleClickOnALineApplies) {
  OpenTiles(8);
  EditSlots[0].Address = 2 * 64;
  Add("one");
  ClearAllSlots();
  test::WithAnswers({6}, [&] { test::DoubleClickLine(tool.lstPat, 0); });
  EXPECT_EQ(EditSlots[0].Address, 128);
  EXPECT_EQ(EditSlots[0].Pixels[5], 2);
}

TEST_F(PatternWindow, ApplyWithoutReloadKeepsPixelsAndPicture) {
  OpenTiles(8);
  EditSlots[0].Address = 64;
  Add("one");
  ClearAllSlots();
  EditSlots[0].Pixels.fill(6);
  EditSlots[3].Pixels.fill(5);
  const Surface before = The<Editor>().Canvas();
  ClickControl(tool.fbnBmp);
  test::ClickLine(tool.lstPat, 0);
  test::WithAnswers({6}, [&] { ClickControl(tool.fbnLoadPat); });
  EXPECT_EQ(EditSlots[0].Address, 64);
  EXPECT_EQ(EditSlots[0].Pixels[0], 6);
  EXPECT_EQ(EditSlots[3].Address, kNonCopied) << "on a slot that still holds pixels";
  EXPECT_EQ(EditSlots[3].Pixels[0], 5);
  EXPECT_EQ(The<Editor>().Canvas(), before);
}

TEST_F(PatternWindow, ApplyDoesNotTellTheTileTool) {
  OpenTiles(8);
  EditSlots[0].Address = 64;
  Add("one");
  EditSlots[0].Address = 128;
  The<TileControl>().LoadTile(0);
  test::ClickLine(tool.lstPat, 0);
  test::WithAnswers({6}, [&] { ClickControl(tool.fbnLoadPat); });
  EXPECT_EQ(The<TileControl>().txtAddress.Text(), "128");
}

TEST_F(PatternWindow, ExactlyOneOfThePairIsChecked) {
  const auto check = [&](bool reload) {
    EXPECT_EQ(tool.fbnRedraw.Checked(), reload);
    EXPECT_EQ(tool.fbnBmp.Checked(), !reload);
  };
  ClickControl(tool.fbnRedraw);
  check(true);
  ClickControl(tool.fbnBmp);
  check(false);
  ClickControl(tool.fbnBmp);
  check(false);
  ClickControl(tool.lblRedraw);
  check(true);
  ClickControl(tool.lblBmp);
  check(false);
  test::PressKey(tool.lblRedraw, Qt::Key_Space);
  check(true);
}

TEST_F(PatternWindow, SaveOverwritesWithoutAQuestion) {
  Add("abc");
  const std::string path = test::MakeFile("old.eap", std::string("old"));
  const QString infoBefore = The<MainForm>().lblInfo.Text();
  const DialogWatch dialog(path);
  test::WithAnswers({}, [&] { ClickControl(tool.fbnSave); });
  ASSERT_EQ(dialog.seen.size(), 1U);
  EXPECT_EQ(dialog.seen[0].kind, CommonDialog::Kind::Save);
  EXPECT_EQ(dialog.seen[0].name, "cdlPattern");
  EXPECT_EQ(dialog.seen[0].filter, kFilter);
  EXPECT_EQ(dialog.seen[0].fileName, "");
  EXPECT_EQ(test::FileText(path).size(), 3U + 4 + 1024);
  EXPECT_EQ(The<MainForm>().lblInfo.Text(), infoBefore);
}

TEST_F(PatternWindow, CancelsDoNothing) {
  Add("abc");
  tool.cdlPattern.FileName = QStringLiteral("left over");
  const DialogWatch dialog("");
  test::WithAnswers({}, [&] {
    ClickControl(tool.fbnSave);
    ClickControl(tool.fbnLoad);
  });
  ASSERT_EQ(dialog.seen.size(), 2U);
  EXPECT_EQ(dialog.seen[1].kind, CommonDialog::Kind::Open);
  EXPECT_EQ(dialog.seen[1].filter, kFilter);
  EXPECT_EQ(PatternCount, 1);
}

TEST_F(PatternWindow, LoadShowsTheFile) {
  Add("abc");
  Add("\xE2\x82\xAC");
  const std::string path = test::TestFolder() + "trip.eap";
  const DialogWatch dialog(path);
  ClickControl(tool.fbnSave);
  PatternCount = 0;
  test::WithAnswers({}, [&] { ClickControl(tool.fbnLoad); });
  EXPECT_THAT(LinesOf(tool.lstPat), ElementsAre("abc", "\xE2\x82\xAC"));
}

TEST_F(PatternWindow, LoadOfAMissingFileIsTold) {
  Add("abc");
  const DialogWatch dialog(test::TestFolder() + "not-there.eap");
  const auto seen = test::WithAnswers({1}, [&] { ClickControl(tool.fbnLoad); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, "Could not find the selected file.");
  EXPECT_EQ(seen[0].title, "Brolk Plus - Loading process aborted");
  EXPECT_EQ(seen[0].icon, "msg-exclamation");
  EXPECT_THAT(LinesOf(tool.lstPat), ElementsAre("abc"));
}

TEST_F(PatternWindow, LoadOfAWrongFileIsToldAndEmptiesTheList) {
  Add("abc");
  const DialogWatch dialog(test::MakeFile("wrong.eap", std::string("BXB...")));
  const auto seen = test::WithAnswers({1}, [&] { ClickControl(tool.fbnLoad); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, "Wrong header bytes");
  EXPECT_EQ(seen[0].title, "Brolk Plus - Not an editor address pattern file");
  EXPECT_EQ(seen[0].icon, "msg-critical");
  EXPECT_THAT(LinesOf(tool.lstPat), IsEmpty());
}

TEST_F(PatternWindow, CutFileIsNotReported) {
  const DialogWatch dialog(test::MakeFile("cut.eap", std::string("BXAabc")));
  test::WithAnswers({}, [&] { ClickControl(tool.fbnLoad); });
  EXPECT_EQ(PatternCount, 0);
}

TEST_F(PatternWindow, CloseHidesAndKeepsThePatterns) {
  Add("abc");
  ClickControl(tool.fbnClose);
  EXPECT_FALSE(tool.Visible());
  ClickControl(The<MainForm>().fbnEditPattern);
  EXPECT_TRUE(tool.Visible());
  tool.close();
  EXPECT_FALSE(tool.Visible());
  EXPECT_EQ(PatternCount, 1);
}

// An imported picture gets its addresses back, and the save of all writes it to them. The save never comes
// back; it runs in a second process.
TEST_F(PatternWindow, ImportedPictureIsSavedToThePlacesOfThePattern) {
  const auto valueOf = [](int slot) { return static_cast<std::uint8_t>(slot == 7 ? 0 : 255 - slot); };
  if (!test::EndlessChild::Running()) {
    const std::string path = OpenTiles(256 + 1);
    std::string expected;
    for (int slot = 0; slot <= 255; ++slot) expected += std::string(64, static_cast<char>(valueOf(slot)));
    expected += std::string(64, '\0');  // the 257th tile
    test::EndlessChild child(path);
    EXPECT_TRUE(child.Until([&] { return test::FileText(path) == expected; }));
    EXPECT_TRUE(child.StillRuns());
    return;
  }
  OpenInBytes(test::EndlessChild::Path());
  for (int slot = 0; slot <= 255; ++slot) {
    EditSlots[slot].Address = slot * 64;
    EditSlots[slot].Pixels.fill(valueOf(slot));
  }
  Add("all");
  const DialogWatch dialog(test::TestFolder() + "picture.bmp");
  ExportBmp();
  ImportBmp();
  ASSERT_EQ(EditSlots[7].Address, kNonCopied);
  ClickControl(tool.lblBmp);
  test::ClickLine(tool.lstPat, 0);
  test::WithAnswers({6}, [&] { ClickControl(tool.fbnLoadPat); });
  ASSERT_EQ(EditSlots[7].Address, 7 * 64) << "slots of zeros get their address too";
  The<Options>().fbnSaveWarning.SetChecked(false);
  ClickControl(The<EditorControl>().fbnSaveEdit);
  FAIL() << "the save came back";
}

}  // namespace
}  // namespace brolk
