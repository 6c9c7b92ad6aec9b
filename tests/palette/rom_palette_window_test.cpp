// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "browser/windows/browser.h"
#include "forms/windows.h"
#include "palette/color_sets.h"
#include "palette/palette_model.h"
#include "palette/windows/color_set.h"
#include "support/program.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

constexpr int kOk = 1;
constexpr int kYes = 6;
constexpr int kNo = 7;

// Lines of cboColorCount and cboPaletteType.
constexpr int kOneColor = 0;
constexpr int kTwoColors = 1;
constexpr int kSnes = 1;
constexpr int kNes = 2;

class RomPaletteBox : public ::testing::Test {
 protected:
  void SetUp() override {
    StartProgram();
    tool = &The<ColorSet>();
    tool->Show();
  }

  void Open(const std::string& bytes) {
    path = MakeFile("colors.gb", bytes);
    OpenRomFile(path);
  }

  void TypeAddress(const QString& text) {
    QLineEdit& field = *tool->cboPaletteAddress.lineEdit();
    field.selectAll();
    QTest::keyClicks(&field, text);
  }

  void LoadPalette() { ClickControl(tool->fbnPalIn); }
  std::vector<SeenBox> Write(std::initializer_list<int> answers = {kYes}) {
    return WithAnswers(answers, [&] { ClickControl(tool->fbnPalOut); });
  }
  [[nodiscard]] std::string Address() const { return tool->cboPaletteAddress.Text().toStdString(); }

  ColorSet* tool = nullptr;
  std::string path;
};

TEST_F(RomPaletteBox, StartsWithItsLists) {
  QStringList counts;
  for (int line = 0; line < tool->cboColorCount.count(); ++line)
    counts.append(tool->cboColorCount.itemText(line));
  EXPECT_EQ(counts, QStringList({"1", "2", "4", "8", "16", "256"}));
  EXPECT_EQ(tool->cboColorCount.Text(), "16");
  QStringList types;
  for (int line = 0; line < tool->cboPaletteType.count(); ++line)
    types.append(tool->cboPaletteType.itemText(line));
  EXPECT_EQ(types, QStringList({"15 bpc RGB", "15 bpc BGR (SNES)", "6 bpc NES"}));
  EXPECT_EQ(tool->cboPaletteType.Text(), "15 bpc RGB");
  EXPECT_EQ(Address(), "0");
  EXPECT_EQ(tool->cboPaletteAddress.count(), 0);
  EXPECT_TRUE(tool->cboPaletteAddress.isEditable());
  EXPECT_FALSE(tool->cboColorCount.isEditable());
  EXPECT_FALSE(tool->cboPaletteType.isEditable());
}

TEST_F(RomPaletteBox, FormatsCanBeSetAgain) {
  tool->cboPaletteType.SetListIndex(2);
  tool->SetPaletteFormats();
  EXPECT_EQ(tool->cboPaletteType.count(), 3);
  EXPECT_EQ(tool->cboPaletteType.ListIndex(), 0);
}

TEST_F(RomPaletteBox, LoadsFromAHexadecimalAddressAndShowsItInDecimal) {
  std::string rom(8192, '\0');
  rom[0x20] = '\x00';
  rom[0x21] = '\x7C';
  Open(rom);
  TypeAddress("&H20");
  LoadPalette();
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Name, "15 bpc RGB at 32");
  EXPECT_EQ(Sets[0].Colors[0], 0x0000F8);
  EXPECT_EQ(Address(), "32");
  EXPECT_EQ(tool->lstSets.List(0), "15 bpc RGB at 32");
  EXPECT_EQ(tool->txtName.Text(), "15 bpc RGB at 32");
  EXPECT_EQ(tool->picColor.Canvas().GetPixel(0, 0), 0x0000F8);
}

TEST_F(RomPaletteBox, LoadsTheChosenCountUnderTheChosenType) {
  Open(std::string(8192, '\x1F'));
  tool->cboColorCount.setCurrentIndex(kTwoColors);
  tool->cboPaletteType.setCurrentIndex(kSnes);
  TypeAddress("4096");
  LoadPalette();
  EXPECT_EQ(Sets[0].Name, "15 bpc BGR (SNES) at 4096");
  EXPECT_EQ(Sets[0].Colors[1], ColToRGB(0x1F1F, 1));
  EXPECT_EQ(Sets[0].Colors[2], 0);
}

TEST_F(RomPaletteBox, LoadsAll256Colors) {
  Open(std::string(8192, '\xFF'));
  tool->cboColorCount.setCurrentIndex(5);
  LoadPalette();
  for (const ColorValue color : Sets[0].Colors) EXPECT_EQ(color, 0xF8F8F8);
}

TEST_F(RomPaletteBox, KeepsAFractionInTheField) {
  Open(std::string(8192, '\0'));
  TypeAddress("12.5");
  LoadPalette();
  EXPECT_EQ(Address(), "12.5");
  EXPECT_EQ(Sets[0].Name, "15 bpc RGB at 12.5");
}

TEST_F(RomPaletteBox, ATextWithoutANumberIsZero) {
  Open(std::string(8192, '\0'));
  TypeAddress("nowhere");
  LoadPalette();
  EXPECT_EQ(Address(), "0");
  EXPECT_EQ(Sets[0].Name, "15 bpc RGB at 0");
}

TEST_F(RomPaletteBox, LoadsBlackWithoutAFile) {
  ASSERT_FALSE(FileOpen);
  TypeAddress("7");
  LoadPalette();
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(tool->lstSets.List(0), "15 bpc RGB at 7");
  for (const ColorValue color : Sets[0].Colors) EXPECT_EQ(color, 0);
}

TEST_F(RomPaletteBox, LoadsNothingIntoAFullList) {
  Open(std::string(8192, '\0'));
  for (int count = 0; count < 255; ++count) AddEditorPalette("x");
  TypeAddress("&H20");
  const auto boxes = WithAnswers({}, [&] { LoadPalette(); });
  EXPECT_TRUE(boxes.empty());
  EXPECT_EQ(SetCount, 255);
  EXPECT_EQ(Address(), "&H20") << "the field is not rewritten";
}

TEST_F(RomPaletteBox, AnAddressBeyond32BitsIsTheOverflowFault) {
  Open(std::string(8192, '\0'));
  TypeAddress("2147483648");
  EXPECT_EQ(FaultOf([&] { LoadPalette(); }), FaultKind::Overflow);
  EXPECT_EQ(SetCount, 0);
}

TEST_F(RomPaletteBox, WritesTwoDigitsAfterTheQuestion) {
  Open(std::string(16, '.'));
  ClickControl(tool->fbnAddSet);
  tool->SetColor(0, 0, 0x0000FF);
  tool->SetColor(0, 1, 0x000048);
  tool->cboColorCount.setCurrentIndex(kTwoColors);
  TypeAddress("&HA");
  const auto boxes = Write();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Save?");
  EXPECT_EQ(FileText(path), std::string("..........31") + "9" + std::string(1, '\0') + "..");
  EXPECT_EQ(Address(), "10");
}

TEST_F(RomPaletteBox, WritesNothingWhenTheUserSaysNo) {
  Open(std::string(16, '.'));
  TypeAddress("&HA");
  Write({kNo});
  EXPECT_EQ(FileText(path), std::string(16, '.'));
  EXPECT_EQ(Address(), "&HA") << "the field is rewritten only after the question";
}

TEST_F(RomPaletteBox, WritesNothingWithoutAFileAndAsksNothing) {
  EXPECT_TRUE(Write({}).empty());
}

TEST_F(RomPaletteBox, WriteOfNesPalettesIsNotThereYet) {
  Open(std::string(16, '.'));
  tool->cboPaletteType.setCurrentIndex(kNes);
  TypeAddress("&H5");
  const auto boxes = Write({kYes, kOk});
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[1].text, "Sorry, not yet implented ^_^;;");
  EXPECT_EQ(boxes[1].title, "Brolk Plus - Future feature");
  EXPECT_EQ(boxes[1].icon, "msg-info");
  EXPECT_EQ(FileText(path), std::string(16, '.'));
  EXPECT_EQ(Address(), "5");
}

TEST_F(RomPaletteBox, WriteLeavesThePageAsItWas) {
  Open(std::string(8192, '\0'));
  const Surface before = The<Browser>().Canvas();
  const std::string addressBefore = std::to_string(BrowserAddress);
  ClickControl(tool->fbnAddSet);
  Write();
  EXPECT_NE(FileText(path), std::string(8192, '\0'));
  EXPECT_EQ(The<Browser>().Canvas(), before);
  EXPECT_EQ(PageBuffer[0], 0) << "nothing is decoded again";
}

TEST_F(RomPaletteBox, AWordReadAndWrittenBackBecomesDigits) {
  std::string rom(16, '\0');
  rom[1] = '\x7C';
  Open(rom);
  tool->cboColorCount.setCurrentIndex(kOneColor);
  LoadPalette();
  EXPECT_EQ(Sets[0].Colors[0], 0x0000F8);
  Write();
  EXPECT_EQ(FileText(path).substr(0, 2), "31");
}

}  // namespace
}  // namespace brolk::test
