// SPDX-License-Identifier: MIT
#include "exchange/windows/c_output.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "browser/windows/page_view.h"
#include "editor/windows/editor_control.h"
#include "exchange/c_arrays.h"
#include "forms/windows.h"
#include "palette/palette_model.h"
#include "shell/windows/main_form.h"
#include "support/dialog_hands.h"
#include "support/program.h"
#include "support/shown_texts.h"
#include "tile/shared.h"

namespace brolk {
namespace {

using test::ClickControl;
using test::DialogWatch;
using testing::ElementsAre;

class COutPutWindow : public testing::Test {
 protected:
  COutPutWindow() {
    test::StartProgram();
    std::filesystem::current_path(test::TestFolder());
    ClickControl(The<EditorControl>().fbnCOutPut);
  }

  void Convert(const std::string& path) {
    const DialogWatch dialog(path);
    ClickControl(tool.fbnCCodeSprite);
  }
  std::string Palette(const std::string& path) {
    const DialogWatch dialog(path);
    ClickControl(tool.fbnCCodePalette);
    return test::FileText(test::TestFolder() + "Palette.h");
  }

  COutPut& tool = The<COutPut>();
};

TEST_F(COutPutWindow, StartsWithTheFirstEntries) {
  EXPECT_TRUE(tool.Visible());
  EXPECT_EQ(tool.Caption(), "Tile and Palette C/C++ Converter");
  const auto texts = [](const ComboList& list) {
    std::vector<std::string> result;
    for (int i = 0; i < list.count(); ++i) result.push_back(list.itemText(i).toStdString());
    EXPECT_EQ(list.ListIndex(), 0);
    return result;
  };
  EXPECT_THAT(texts(tool.cboSize), ElementsAre("8", "16", "32", "64"));
  EXPECT_THAT(texts(tool.cboShape), ElementsAre("Square", "Wide", "High"));
  EXPECT_THAT(texts(tool.cboTilemode), ElementsAre("GBA 16 bpp", "GBA 256 bpp"));
  EXPECT_THAT(texts(tool.cboPaletteType), ElementsAre("15 bpc BGR", "15 bpc RGB"));
  EXPECT_THAT(texts(tool.cboColorCount), ElementsAre("16", "256"));
  EXPECT_EQ(tool.txtSprite.Text(), "sprite");
  EXPECT_EQ(tool.txtPalette.Text(), "palette");
  EXPECT_EQ(tool.lblInfo.Text(), "Convert 1x1 of 8x8 = 1 tiles");
  EXPECT_EQ(tool.SpriteWidth, 8);
  EXPECT_EQ(tool.SpriteHeight, 8);
}

TEST_F(COutPutWindow, NoRowAppliesBeforeBothListsHaveAnEntry) {
  COutPut fresh;
  EXPECT_EQ(fresh.lblInfo.Text(), "Label1");
  EXPECT_EQ(fresh.cboSize.ListIndex(), -1);
  fresh.cboSize.SetListIndex(2);
  EXPECT_EQ(fresh.SpriteWidth, 0);
  EXPECT_EQ(fresh.hsbRows.Max(), 16);
  EXPECT_EQ(fresh.lblInfo.Text(), "Convert 1x1 of 0x0 = 0 tiles");
  fresh.cboShape.SetListIndex(0);
  EXPECT_EQ(fresh.SpriteWidth, 32);
  EXPECT_EQ(fresh.hsbRows.Max(), 4);
}

TEST_F(COutPutWindow, EverySizeAndShapeSetsTheTable) {
  for (int size = 0; size < 4; ++size) {
    for (int shape = 0; shape < 3; ++shape) {
      tool.cboSize.SetListIndex(size);
      tool.cboShape.SetListIndex(shape);
      const SpriteSize& row = kSpriteSizes[size][shape];
      EXPECT_EQ(tool.SpriteWidth, row.widthPx);
      EXPECT_EQ(tool.SpriteHeight, row.heightPx);
      EXPECT_EQ(tool.hsbRows.Max(), row.maxRows);
      EXPECT_EQ(tool.hsbLines.Max(), row.maxLines);
    }
  }
}

TEST_F(COutPutWindow, AUsersChoiceInTheListsActsToo) {
  test::PressKey(tool.cboSize, Qt::Key_Down);
  test::PressKey(tool.cboShape, Qt::Key_Down);
  EXPECT_EQ(tool.lblInfo.Text(), "Convert 1x1 of 32x8 = 4 tiles");
}

TEST_F(COutPutWindow, ASmallerMaximumPullsTheValueDown) {
  tool.hsbRows.SetValue(16);
  tool.hsbLines.SetValue(3);
  EXPECT_EQ(tool.lblInfo.Text(), "Convert 16x3 of 8x8 = 48 tiles");
  tool.cboSize.SetListIndex(1);
  EXPECT_EQ(tool.hsbRows.Value(), 8);
  EXPECT_EQ(tool.lblRows.Text(), "8");
  EXPECT_EQ(tool.lblLines.Text(), "3");
  EXPECT_EQ(tool.lblInfo.Text(), "Convert 8x3 of 16x16 = 96 tiles");
}

TEST_F(COutPutWindow, LabelsFollowTheThumb) {
  tool.hsbLines.setSliderDown(true);
  tool.hsbLines.setSliderPosition(5);
  EXPECT_EQ(tool.lblLines.Text(), "5");
  EXPECT_EQ(tool.lblInfo.Text(), "Convert 1x5 of 8x8 = 5 tiles");
  tool.hsbLines.setSliderDown(false);
  EXPECT_EQ(tool.lblLines.Text(), "5");
  test::PressKey(tool.hsbRows, Qt::Key_Right);
  EXPECT_EQ(tool.lblRows.Text(), "2");
}

TEST_F(COutPutWindow, DialogsAskForAHeaderFile) {
  const DialogWatch dialog("");
  tool.cdlCOutPut.FileName = QStringLiteral("left over");
  ClickControl(tool.fbnCCodeSprite);
  tool.cdlCOutPut.FileName = QStringLiteral("left over");
  ClickControl(tool.fbnCCodePalette);
  ASSERT_EQ(dialog.seen.size(), 2U);
  for (const auto& seen : dialog.seen) {
    EXPECT_EQ(seen.kind, CommonDialog::Kind::Save);
    EXPECT_EQ(seen.name, "cdlCOutPut");
    EXPECT_EQ(seen.filter, "C header files (*.h)|*.h");
    EXPECT_EQ(seen.fileName, "");
  }
}

TEST_F(COutPutWindow, CancelsCreateNothingAndLeaveTheOpenFile) {
  test::OpenRomFile(test::MakeFile("kept.gb", std::string(4096, '\x11')));
  const std::int16_t before = hFile;
  const DialogWatch dialog("");
  ClickControl(tool.fbnCCodeSprite);
  ClickControl(tool.fbnCCodePalette);
  EXPECT_EQ(hFile, before);
  EXPECT_FALSE(std::filesystem::exists(test::TestFolder() + "Palette.h"));
  EXPECT_EQ(tool.lblInfo.Text(), "Convert 1x1 of 8x8 = 1 tiles");
}

TEST_F(COutPutWindow, TilesGoToTheChosenName) {
  EditSlots[0].Pixels[0] = 10;
  tool.txtSprite.SetText("hero");
  const std::string path = test::MakeFile("chosen name", std::string(5000, 'x'));
  test::WithAnswers({}, [&] { Convert(path); });
  EXPECT_EQ(test::FileText(path).substr(0, 42), "const unsigned int hero0[] = {\r\n  0x000A, ");
  EXPECT_EQ(tool.lblInfo.Text(), "Converted 1 tiles");
}

TEST_F(COutPutWindow, ProgressIsShownTileByTile) {
  tool.cboSize.SetListIndex(1);
  tool.hsbRows.SetValue(2);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&The<MainForm>()));
  QCoreApplication::processEvents();
  test::ShownTexts shown(tool.lblInfo);
  Convert(test::TestFolder() + "progress.h");
  EXPECT_THAT(shown.texts, ElementsAre("Convert 2x1 of 16x16 = 8 tiles", "Converting... 0 of 8 tiles done.",
                                       "Converting... 1 of 8 tiles done.", "Converting... 2 of 8 tiles done.",
                                       "Converting... 3 of 8 tiles done.", "Converting... 4 of 8 tiles done.",
                                       "Converting... 5 of 8 tiles done.", "Converting... 6 of 8 tiles done.",
                                       "Converting... 7 of 8 tiles done.", "Converted 8 tiles"));
}

TEST_F(COutPutWindow, SecondTileModeWritesTwoPixelsAWord) {
  EditSlots[0].Pixels[0] = 0x34;
  EditSlots[0].Pixels[1] = 0x12;
  tool.cboTilemode.SetListIndex(1);
  const std::string path = test::TestFolder() + "wide.h";
  Convert(path);
  const auto arrays = test::ReadArrays(test::FileText(path));
  ASSERT_EQ(arrays.size(), 1U);
  EXPECT_EQ(arrays[0].words.size(), 32U);
  EXPECT_EQ(arrays[0].words[0], 0x1234U);
}

TEST_F(COutPutWindow, SpritesKeepTheirNumbers) {
  tool.cboSize.SetListIndex(1);
  tool.hsbRows.SetValue(2);
  tool.hsbLines.SetValue(2);
  const std::string path = test::TestFolder() + "gaps.h";
  Convert(path);
  std::vector<std::string> names;
  for (const auto& array : test::ReadArrays(test::FileText(path))) names.push_back(array.name);
  EXPECT_THAT(names, ElementsAre("sprite0", "sprite1", "sprite8", "sprite9"));
}

TEST_F(COutPutWindow, HighSmallSpritesBeyondEightLinesEndInTheFault) {
  tool.cboShape.SetListIndex(2);
  tool.hsbLines.SetValue(9);
  EXPECT_EQ(tool.lblInfo.Text(), "Convert 1x9 of 8x16 = 18 tiles");
  const std::string path = test::TestFolder() + "fault.h";
  EXPECT_EQ(test::FaultOf([&] { Convert(path); }), FaultKind::SubscriptOutOfRange);
  const std::string text = test::FileText(path);
  EXPECT_TRUE(text.ends_with("const unsigned int sprite64[] = {\r\n  "));
  EXPECT_EQ(tool.lblInfo.Text(), "Converting... 16 of 18 tiles done.");
}

TEST_F(COutPutWindow, PaletteAlwaysGoesToTheFixedName) {
  const std::string chosen = test::TestFolder() + "chosen.h";
  test::MakeFile("Palette.h", std::string(9000, 'x'));
  brolk::Palette[0] = 0x0000FF;
  const QString mainInfo = The<MainForm>().lblInfo.Text();
  std::string text;
  test::WithAnswers({}, [&] { text = Palette(chosen); });
  EXPECT_FALSE(std::filesystem::exists(chosen));
  EXPECT_EQ(text.substr(0, 44), "const unsigned int palette[] = {\r\n  0x7C00, ") << "red goes high with BGR";
  EXPECT_EQ(test::ReadArrays(text)[0].words.size(), 16U);
  EXPECT_EQ(tool.lblInfo.Text(), "Convert 1x1 of 8x8 = 1 tiles") << "nothing is told";
  EXPECT_EQ(The<MainForm>().lblInfo.Text(), mainInfo);
}

TEST_F(COutPutWindow, SecondPaletteTypePutsRedLow) {
  brolk::Palette[0] = 0x0000FF;
  tool.cboPaletteType.SetListIndex(1);
  tool.cboColorCount.SetListIndex(1);
  tool.txtPalette.SetText("");
  const std::string text = Palette("anything");
  EXPECT_EQ(text.substr(0, 37), "const unsigned int [] = {\r\n  0x001F, ");
  EXPECT_EQ(test::ReadArrays(text)[0].words.size(), 256U);
}

TEST_F(COutPutWindow, ThePageCanNoLongerBeRead) {
  test::OpenRomFile(test::MakeFile("lost.gb", std::string(4096, '\xFF')));
  ReloadPage();
  ASSERT_EQ(PageBuffer[0], 3);
  Palette("anything");
  EXPECT_TRUE(FileOpen);
  ReloadPage();
  EXPECT_EQ(PageBuffer[0], 0);
  test::WithAnswers({6}, [] { test::OpenRomFile(test::MakeFile("found.gb", std::string(4096, '\xFF'))); });
  EXPECT_EQ(PageBuffer[0], 3) << "until a file is opened again";
}

TEST_F(COutPutWindow, CloseHidesAndKeepsTheChoices) {
  tool.cboSize.SetListIndex(3);
  ClickControl(tool.fbnClose);
  EXPECT_FALSE(tool.Visible());
  ClickControl(The<EditorControl>().fbnCOutPut);
  EXPECT_TRUE(tool.Visible());
  EXPECT_EQ(tool.cboSize.ListIndex(), 3);
}

}  // namespace
}  // namespace brolk
