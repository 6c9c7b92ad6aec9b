// SPDX-License-Identifier: MIT
#include "palette/color_set_tool.h"

#include <gmock/gmock.h>

#include <set>

#include "palette/windows/palette_control.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

using ::testing::ElementsAre;

constexpr int kYes = 6;
constexpr int kNo = 7;

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
