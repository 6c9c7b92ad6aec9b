// SPDX-License-Identifier: MIT
#include "palette/windows/color_set.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QTest>

#include "forms/look.h"
#include "forms/windows.h"
#include "palette/color_sets.h"
#include "palette/palette_model.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/palette_control.h"
#include "shell/windows/main_form.h"
#include "shell/windows/new_msg_box.h"
#include "support/program.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

using ::testing::ElementsAre;

constexpr int kYes = 6;
constexpr int kNo = 7;

class ColorSetTool : public ::testing::Test {
 protected:
  void SetUp() override {
    StartProgram();
    tool = &The<ColorSet>();
    tool->Show();
  }

  // Adds a set of this name whose colours are all the same.
  void Add(const QString& name, ColorValue color) {
    Palette.fill(color);
    tool->txtName.SetText(name);
    ClickControl(tool->fbnAddSet);
  }

  void PressLine(int line) {
    QTest::mouseClick(tool->lstSets.viewport(), Qt::LeftButton, {}, CenterOf(line));
  }
  void DoubleClickLine(int line) {
    PressLine(line);
    QTest::mouseDClick(tool->lstSets.viewport(), Qt::LeftButton, {}, CenterOf(line));
  }
  QPoint CenterOf(int line) { return tool->lstSets.visualItemRect(tool->lstSets.item(line)).center(); }

  void Delete(Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(&tool->fbnDeleteSet, button);
    QTest::mouseRelease(&tool->fbnDeleteSet, button);
  }

  void Press(Qt::MouseButton button, QPointF at) {
    QMouseEvent press(QEvent::MouseButtonPress, at, tool->picColor.mapToGlobal(at), button, button,
                      Qt::NoModifier);
    QApplication::sendEvent(&tool->picColor, &press);
  }

  [[nodiscard]] std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (int line = 0; line < tool->lstSets.ListCount(); ++line)
      lines.push_back(tool->lstSets.List(line).toStdString());
    return lines;
  }

  void ExpectPictureOf(int set) {
    const int cell = tool->picColor.width() / 16;
    for (int y = 0; y < tool->picColor.height(); ++y) {
      for (int x = 0; x < tool->picColor.width(); ++x) {
        ASSERT_EQ(tool->picColor.Canvas().GetPixel(x, y), Sets[set].Colors[y / cell * 16 + x / cell])
            << x << ',' << y;
      }
    }
  }

  ColorSet* tool = nullptr;
};

TEST_F(ColorSetTool, HasItsCaptionTextsAndToolTips) {
  EXPECT_EQ(tool->Caption(), "Color Set");
  EXPECT_EQ(tool->Label1.Text(), "Color Set Display");
  EXPECT_EQ(tool->Label2.Text(), "Palette Import/Export");
  const std::pair<const char*, const char*> tips[] = {
      {"lstSets", "Here the color sets are listed"},
      {"txtName", "This is the description of the selected color set"},
      {"picColor", ""},
      {"fbnApplySet", "Apply the selected color set the current set to the browser"},
      {"fbnAddSet", "Add the editor's color set to the list"},
      {"fbnDeleteSet", "Left: Delete current | Right: Clear all"},
      {"fbnRandomPal", "Random Palette"},
      {"fbnColorSetLoad", "Load the color sets"},
      {"fbnColorSetSave", "Save the color sets"},
      {"cboColorCount", "Select how many colors you want to load or save"},
      {"cboPaletteType", "Selected the type of palette to load/save"},
      {"cboPaletteAddress",
       "Enter a color palette's address or select one after successfully searching for one"},
      {"fbnPalIn", "Load a palette from the given address"},
      {"fbnPalOut", "Save the selected palette to the given address"},
      {"fbnClose", "Close Color Set Tool"},
  };
  for (const auto& [name, tip] : tips) EXPECT_EQ(FindControl(*tool, name).toolTip(), tip) << name;
  EXPECT_NE(tool->findChild<CommonDialog*>("cdlColorSet"), nullptr);
}

TEST_F(ColorSetTool, StartsEmpty) {
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(SelectedSet, 0);
  EXPECT_EQ(tool->lstSets.ListCount(), 0);
  EXPECT_EQ(tool->txtName.Text(), "");
}

TEST_F(ColorSetTool, PictureIsAMultipleOf16Wide) {
  EXPECT_EQ(tool->picColor.width() % 16, 0);
  EXPECT_EQ(tool->picColor.width(), tool->picColor.height());
}

TEST(ColorSetLoad, ForgetsCountAndSelection) {
  SetCount = 5;
  SelectedSet = 3;
  StartProgram();
  The<ColorSet>();
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(SelectedSet, 0);
}

TEST_F(ColorSetTool, AddsTheLivePaletteUnderTheNameInTheBox) {
  const auto live = Palette;
  tool->txtName.SetText("First");
  ClickControl(tool->fbnAddSet);
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Colors, live);
  EXPECT_THAT(Lines(), ElementsAre("First"));
  EXPECT_EQ(tool->txtName.Text(), "First");
  ExpectPictureOf(0);
}

TEST_F(ColorSetTool, AddsAnEditorPaletteWithoutAName) {
  ClickControl(tool->fbnAddSet);
  EXPECT_THAT(Lines(), ElementsAre("Editor palette"));
  EXPECT_EQ(tool->txtName.Text(), "Editor palette");
}

TEST_F(ColorSetTool, ANewSetTakesTheShownNameUnlessItWasChanged) {
  Add("one", 1);
  ClickControl(tool->fbnAddSet);
  EXPECT_THAT(Lines(), ElementsAre("one", "one"));
  QTest::keyClicks(&tool->txtName, " more");
  ClickControl(tool->fbnAddSet);
  EXPECT_THAT(Lines(), ElementsAre("one", "one", "one more"));
}

TEST_F(ColorSetTool, NoLineIsHighlightedAfterTheListIsFilled) {
  Add("one", 1);
  Add("two", 2);
  EXPECT_EQ(tool->lstSets.ListIndex(), -1);
  PressLine(1);
  EXPECT_EQ(tool->lstSets.ListIndex(), 1);
  ClickControl(tool->fbnAddSet);
  EXPECT_EQ(tool->lstSets.ListIndex(), -1);
  EXPECT_EQ(SelectedSet, 1);
}

TEST_F(ColorSetTool, TheFocusHighlightsNoLine) {
  Add("one", 1);
  Add("two", 2);
  PressLine(1);
  ClickControl(tool->fbnAddSet);
  tool->txtName.setFocus(Qt::TabFocusReason);
  tool->SetFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(tool));
  tool->lstSets.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(tool->lstSets.hasFocus());
  EXPECT_EQ(tool->lstSets.ListIndex(), -1);
  EXPECT_TRUE(tool->lstSets.selectedItems().isEmpty());
}

TEST_F(ColorSetTool, AFurtherAddAt255SetsDoesNothing) {
  Add("x", 7);
  for (int count = 1; count < 255; ++count) AddEditorPalette("x");
  tool->txtName.SetText("too many");
  ClickControl(tool->fbnAddSet);
  EXPECT_EQ(SetCount, 255);
  EXPECT_EQ(tool->txtName.Text(), "too many") << "nothing is shown anew";
}

TEST_F(ColorSetTool, ARandomSetAt255SetsEmptiesTheList) {
  Add("x", 7);
  for (int count = 1; count < 255; ++count) AddEditorPalette("x");
  tool->RefreshSetList();
  EXPECT_EQ(tool->lstSets.ListCount(), 255);
  ClickControl(tool->fbnRandomPal);
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(tool->lstSets.ListCount(), 0);
  EXPECT_EQ(Sets[255].Name, "Random palette");
  EXPECT_EQ(tool->txtName.Text(), "x") << "an empty list leaves the name";
  ExpectPictureOf(0);
}

TEST_F(ColorSetTool, SelectsByAPressOnALine) {
  Add("one", 1);
  Add("two", 2);
  PressLine(1);
  EXPECT_EQ(SelectedSet, 1);
  EXPECT_EQ(tool->txtName.Text(), "two");
  ExpectPictureOf(1);
  EXPECT_EQ(Palette[0], 2) << "selecting applies nothing";
}

TEST_F(ColorSetTool, SelectsByTheArrowKeys) {
  Add("one", 1);
  Add("two", 2);
  Add("three", 3);
  PressLine(0);
  QTest::keyClick(&tool->lstSets, Qt::Key_Down);
  QTest::keyClick(&tool->lstSets, Qt::Key_Down);
  EXPECT_EQ(SelectedSet, 2);
  EXPECT_EQ(tool->txtName.Text(), "three");
}

TEST_F(ColorSetTool, ApplyCopiesTheSetToThePaletteAndRepaints) {
  OpenRomFile(MakeFile("black.gb", std::string(8192, '\0')));
  Add("one", 0x112233);
  Add("two", 0x445566);
  PressLine(0);
  ClickControl(tool->fbnApplySet);
  for (const ColorValue color : Palette) EXPECT_EQ(color, 0x112233);
  EXPECT_EQ(BrowserSurface.GetPixel(0, 0), 0x112233);
  EXPECT_EQ(The<PaletteControl>().picColor.Canvas().GetPixel(0, 0), 0x112233);
}

TEST_F(ColorSetTool, ADoubleClickOnALineSelectsThenApplies) {
  Add("one", 0x112233);
  Add("two", 0x445566);
  DoubleClickLine(0);
  EXPECT_EQ(SelectedSet, 0);
  EXPECT_EQ(Palette[255], 0x112233);
  DoubleClickLine(1);
  EXPECT_EQ(SelectedSet, 1);
  EXPECT_EQ(Palette[255], 0x445566);
}

TEST_F(ColorSetTool, ApplyOfAnEmptyListTurnsEverythingBlack) {
  ClickControl(tool->fbnApplySet);
  for (const ColorValue color : Palette) EXPECT_EQ(color, 0);
  EXPECT_EQ(The<PaletteControl>().picColor.Canvas().GetPixel(50, 50), 0);
}

// A tile width of 0 makes the repaint of the page fault, which shows that the panel comes last.
TEST_F(ColorSetTool, ApplyRepaintsThePanelLast) {
  OpenRomFile(MakeFile("black.gb", std::string(8192, '\0')));
  Add("one", 0x112233);
  TileWidth = 0;
  EXPECT_EQ(FaultOf([&] { ClickControl(tool->fbnApplySet); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(The<PaletteControl>().picColor.Canvas().GetPixel(0, 0), 0x0080FF);
}

TEST_F(ColorSetTool, ADoubleClickOnTheNameRenames) {
  Add("one", 1);
  Add("two", 2);
  PressLine(1);
  tool->txtName.clear();
  QTest::keyClicks(&tool->txtName, "second");
  EXPECT_THAT(Lines(), ElementsAre("one", "two")) << "typing alone changes nothing";
  EXPECT_EQ(Sets[1].Name, "two");
  QTest::mouseDClick(&tool->txtName, Qt::LeftButton);
  EXPECT_EQ(Sets[1].Name, "second");
  EXPECT_THAT(Lines(), ElementsAre("one", "second"));
}

TEST_F(ColorSetTool, NamesAreWindows1252) {
  Add(QString::fromUtf8("Gr\xC3\xBC\xC3\x9F\xE2\x82\xAC \xE2\x98\x85"), 1);
  EXPECT_EQ(Sets[0].Name, "Gr\xFC\xDF\x80 ?") << "a character outside becomes a question mark";
  EXPECT_EQ(tool->lstSets.List(0), QString::fromUtf8("Gr\xC3\xBC\xC3\x9F\xE2\x82\xAC ?"));
  EXPECT_EQ(tool->txtName.Text(), tool->lstSets.List(0));
}

TEST_F(ColorSetTool, DeletesOnThePress) {
  Add("one", 1);
  Add("two", 2);
  Add("three", 3);
  PressLine(0);
  QTest::mousePress(&tool->fbnDeleteSet, Qt::LeftButton);
  EXPECT_THAT(Lines(), ElementsAre("two", "three"));
  QTest::mouseRelease(&tool->fbnDeleteSet, Qt::LeftButton);
  EXPECT_EQ(SetCount, 2);
  EXPECT_EQ(SelectedSet, 0);
  EXPECT_EQ(Sets[2].Name, "one") << "the record moved behind the others";
  EXPECT_EQ(tool->txtName.Text(), "two");
  ExpectPictureOf(0);
}

TEST_F(ColorSetTool, DeletingTheLastLinePointsPastTheListAndShowsThatRecord) {
  Add("one", 1);
  Add("two", 2);
  PressLine(1);
  Delete();
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(SelectedSet, 1);
  EXPECT_EQ(tool->txtName.Text(), "two");
  ExpectPictureOf(1);
}

TEST_F(ColorSetTool, DeletingTheOnlySetLeavesThePictureAndEmptiesTheName) {
  Add("one", 0x112233);
  Delete();
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(tool->lstSets.ListCount(), 0);
  EXPECT_EQ(tool->txtName.Text(), "");
  EXPECT_EQ(Sets[0].Colors[100], 0);
  EXPECT_EQ(tool->picColor.Canvas().GetPixel(100, 100), 0x112233) << "until another set is shown";
  Add("next", 0x445566);
  EXPECT_EQ(tool->picColor.Canvas().GetPixel(100, 100), 0x445566);
}

TEST_F(ColorSetTool, ClearsAfterAQuestion) {
  Add("one", 1);
  Add("two", 2);
  PressLine(1);
  const auto boxes = WithAnswers({kYes}, [&] { Delete(Qt::RightButton); });
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "Really clear all entries?");
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Please confirm");
  EXPECT_EQ(boxes[0].icon, "msg-question");
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(SelectedSet, 1);
  EXPECT_EQ(Sets[0].Colors[0], 0);
  EXPECT_EQ(Sets[1].Colors[0], 2);
  EXPECT_EQ(tool->txtName.Text(), "");
  EXPECT_EQ(tool->lstSets.ListCount(), 0);
}

TEST_F(ColorSetTool, ClearAnsweredNoOrClosedChangesNothing) {
  Add("one", 1);
  Add("two", 2);
  PressLine(1);
  for (const int answer : {kNo, 0}) {
    const auto boxes = WithAnswers({answer}, [&] { Delete(Qt::RightButton); });
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(SetCount, 2);
    EXPECT_EQ(tool->txtName.Text(), "two");
    EXPECT_THAT(Lines(), ElementsAre("one", "two"));
    EXPECT_EQ(tool->lstSets.ListIndex(), -1) << "the list is filled anew all the same";
  }
}

TEST_F(ColorSetTool, AnyButtonButTheLeftClears) {
  Add("one", 1);
  WithAnswers({kYes}, [&] { Delete(Qt::MiddleButton); });
  EXPECT_EQ(SetCount, 0);
}

TEST_F(ColorSetTool, AnEmptyListIsNotAskedAbout) {
  tool->txtName.SetText("kept");
  const auto boxes = WithAnswers({}, [&] {
    Delete(Qt::RightButton);
    Delete(Qt::LeftButton);
  });
  EXPECT_TRUE(boxes.empty());
  EXPECT_EQ(tool->txtName.Text(), "kept");
}

TEST_F(ColorSetTool, AddsARandomSet) {
  ClickControl(tool->fbnRandomPal);
  EXPECT_EQ(SetCount, 1);
  EXPECT_THAT(Lines(), ElementsAre("Random palette"));
  EXPECT_EQ(tool->txtName.Text(), "Random palette");
  std::set<ColorValue> different(Sets[0].Colors.begin(), Sets[0].Colors.end());
  EXPECT_GT(different.size(), 200U);
  for (const ColorValue color : different) {
    EXPECT_GE(color, 0);
    EXPECT_LE(color, 0xFFFFFF);
  }
  ExpectPictureOf(0);
}

TEST_F(ColorSetTool, SetColorStoresAndShows) {
  Add("one", 1);
  tool->SetColor(0, 255, 0x778899);
  EXPECT_EQ(Sets[0].Colors[255], 0x778899);
  ExpectPictureOf(0);
  EXPECT_EQ(FaultOf([&] { tool->SetColor(-1, 0, 0); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(FaultOf([&] { tool->SetColor(256, 0, 0); }), FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(FaultOf([&] { tool->SetColor(0, 256, 0); }), FaultKind::SubscriptOutOfRange);
}

TEST_F(ColorSetTool, APressOnThePictureOpensThatColor) {
  Add("one", 1);
  Add("two", 2);
  PressLine(1);
  Sets[1].Colors[2 + 16 * 5] = 0x336699;
  Press(Qt::LeftButton, {2 * 12 + 3, 5 * 12 + 11});
  auto& dialog = The<ColorDialog>();
  EXPECT_TRUE(dialog.Visible());
  EXPECT_EQ(dialog.EditSet, 1);
  EXPECT_EQ(dialog.EditIndex, 82);
  EXPECT_EQ(dialog.vsbColor[0].Value(), 0x99);
  EXPECT_EQ(dialog.vsbColor[1].Value(), 0x66);
  EXPECT_EQ(dialog.vsbColor[2].Value(), 0x33);
  EXPECT_EQ(dialog.Left(), tool->Left() + 75);
  EXPECT_EQ(dialog.Top(), tool->Top() + 300);
}

TEST_F(ColorSetTool, AnyButtonOpensTheColorOnThePress) {
  Add("one", 1);
  int index = 0;
  for (const auto button : {Qt::RightButton, Qt::MiddleButton, Qt::LeftButton}) {
    ++index;
    Press(button, QPointF(index * 12, 0));
    EXPECT_EQ(The<ColorDialog>().EditIndex, index);
  }
}

TEST_F(ColorSetTool, EveryCellOfThePictureCanBeReached) {
  Add("one", 1);
  for (int index = 0; index < 256; ++index) {
    Press(Qt::LeftButton, QPointF(index % 16 * 12 + 11, index / 16 * 12 + 11));
    EXPECT_EQ(The<ColorDialog>().EditIndex, index);
  }
}

TEST_F(ColorSetTool, TheLastHalfPixelOfAScaledScreenIsTheLastCell) {
  Add("one", 1);
  Press(Qt::LeftButton, {191.5, 191.5});
  EXPECT_EQ(The<ColorDialog>().EditIndex, 255);
}

TEST_F(ColorSetTool, ThePictureCanBeUsedByKeyboard) {
  Add("one", 1);
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Space})
    QTest::keyClick(&tool->picColor, key);
  EXPECT_TRUE(The<ColorDialog>().Visible());
  EXPECT_EQ(The<ColorDialog>().EditIndex, 17);
}

TEST_F(ColorSetTool, APressBeyondColumn15RunsOnIntoTheNextRow) {
  Add("one", 1);
  Press(Qt::LeftButton, {192, 0});
  EXPECT_EQ(The<ColorDialog>().EditIndex, 16);
}

TEST_F(ColorSetTool, APressBelowTheCellsIsAFault) {
  Add("one", 1);
  EXPECT_EQ(FaultOf([&] { Press(Qt::LeftButton, QPointF(0, 192)); }), FaultKind::SubscriptOutOfRange);
}

TEST_F(ColorSetTool, APressOnThePictureOfAnEmptyListDoesNothing) {
  Press(Qt::LeftButton, {5, 5});
  Press(Qt::LeftButton, {0, 500});
  EXPECT_FALSE(The<ColorDialog>().Visible());
}

TEST_F(ColorSetTool, ConfirmingAColorShowsItInThePicture) {
  Add("one", 1);
  Press(Qt::LeftButton, {0, 0});
  QTest::keyClick(&The<ColorDialog>().vsbColor[0], Qt::Key_End);
  ClickControl(The<ColorDialog>().lblColorPreview);
  EXPECT_EQ(Sets[0].Colors[0], 255);
  EXPECT_EQ(tool->picColor.Canvas().GetPixel(3, 3), 255);
  EXPECT_EQ(tool->picColor.grab().toImage().pixelColor(3, 3), QColor(255, 0, 0));
  EXPECT_EQ(Palette[0], 1) << "the live palette waits until the set is applied";
}

TEST_F(ColorSetTool, ActivationShowsTheSelectedSet) {
  Add("one", 1);
  Sets[0].Colors.fill(0x654321);
  Sets[0].Name = "changed";
  The<MainForm>().SetFocus();
  tool->Form_Activate();
  EXPECT_EQ(tool->picColor.Canvas().GetPixel(0, 0), 0x654321);
  EXPECT_EQ(tool->txtName.Text(), "changed");
}

TEST_F(ColorSetTool, ShowingItAgainActivatesIt) {
  Add("one", 1);
  tool->Hide();
  The<PaletteControl>().Show();
  The<PaletteControl>().SetFocus();
  Sets[0].Name = "changed";
  tool->Show();
  EXPECT_EQ(tool->txtName.Text(), "changed");
}

TEST_F(ColorSetTool, CloseHidesAndKeepsTheList) {
  Add("one", 1);
  ClickControl(tool->fbnClose);
  EXPECT_FALSE(tool->Visible());
  tool->Show();
  EXPECT_THAT(Lines(), ElementsAre("one"));
  tool->close();
  EXPECT_FALSE(tool->Visible());
  EXPECT_EQ(&The<ColorSet>(), tool);
  EXPECT_EQ(SetCount, 1);
}

TEST_F(ColorSetTool, SaveButtonAsksForAFile) {
  std::vector<CommonDialog::Kind> asked;
  CommonDialog::Answer = [&](CommonDialog&, CommonDialog::Kind kind) { asked.push_back(kind); };
  ClickControl(tool->fbnColorSetSave);
  ClickControl(tool->fbnColorSetLoad);
  CommonDialog::Answer = nullptr;
  EXPECT_THAT(asked, ElementsAre(CommonDialog::Kind::Save, CommonDialog::Kind::Open));
}

}  // namespace
}  // namespace brolk::test
