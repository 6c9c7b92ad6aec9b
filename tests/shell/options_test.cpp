// SPDX-License-Identifier: MIT
#include "shell/windows/options.h"

#include <gtest/gtest.h>

#include <QColorDialog>
#include <QTest>
#include <QTimer>

#include "browser/windows/browser_control.h"
#include "forms/look.h"
#include "forms/windows.h"
#include "shell/layout_text.h"
#include "shell/reg_keys.h"
#include "shell/windows/main_form.h"
#include "support/program.h"
#include "tile/shared.h"
#include "tile/windows/confirm_save.h"

namespace brolk::test {
namespace {

class OptionsWindow : public ::testing::Test {
 protected:
  void SetUp() override {
    StartProgram();
    ClickControl(The<MainForm>().fbnOptions);
  }
  Options& options() { return The<Options>(); }

  // Answers the colour dialog; no colour: a cancel.
  void Pick(Label& swatch, std::optional<ColorValue> color) {
    int asked = 0;
    CommonDialog::Answer = [&](CommonDialog& dialog, CommonDialog::Kind kind) {
      EXPECT_EQ(kind, CommonDialog::Kind::Color);
      EXPECT_EQ(&dialog, &The<MainForm>().cdlMain);
      if (color) dialog.Color = *color;
      ++asked;
    };
    ClickControl(swatch);
    CommonDialog::Answer = nullptr;
    EXPECT_EQ(asked, 1);
  }
  void CloseByFrame() {
    options().close();
    QApplication::processEvents();
  }
};

TEST_F(OptionsWindow, HasItsControlsAtTheirPlaces) {
  EXPECT_EQ(options().Caption(), "Options");
  EXPECT_EQ(options().size(), QSize(154, 312));
  EXPECT_EQ(options().minimumSize(), options().maximumSize());
  const struct {
    const char* name;
    int left, top;
  } places[] = {{"lblColors", 848, 0},
                {"lblGridColor", 120, 240},
                {"lblSelectionColor", 840, 240},
                {"lblEmptyColor", 1560, 240},
                {"lblBenchmark", 608, 720},
                {"fbnBenchmark", 120, 840},
                {"lblMeasure", 480, 960},
                {"lblWarning1", 480, 1320},
                {"fbnSaveWarning", 120, 1200},
                {"lblWarning", 120, 1560},
                {"lblAppearance", 600, 2280},
                {"fbnSaveNow", 240, 2520},
                {"lblSaveNow", 240, 3000},
                {"fbnLoadNow", 840, 2520},
                {"lblLoadNow", 840, 3000},
                {"fbnDefaultSettings", 1560, 2520},
                {"lblDefaultSettings", 1560, 3000},
                {"fbnClearRecent", 120, 3480},
                {"lblClearRecent", 720, 3600},
                {"fbnOk", 600, 4080}};
  for (const auto& place : places) {
    EXPECT_EQ(FindControl(options(), place.name).pos(),
              QPoint(PixelsFromTwips(place.left), PixelsFromTwips(place.top)))
        << place.name;
  }
  for (const char* swatch : {"lblGridColor", "lblSelectionColor", "lblEmptyColor"}) {
    EXPECT_EQ(FindControl(options(), swatch).size(), QSize(41, 25)) << swatch;
  }
  EXPECT_EQ(options().lblWarning.size(), QSize(143, 41));
  EXPECT_EQ(options().fbnOk.size(), QSize(80, 32));
}

TEST_F(OptionsWindow, NoTextIsCut) {
  for (Label* label : options().findChildren<Label*>()) {
    if (label->Text().isEmpty() || label == &options().lblBenchmark) continue;
    SCOPED_TRACE(label->objectName().toStdString());
    EXPECT_LE(label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height(),
              label->height());
    EXPECT_LE(label->minimumSizeHint().width(), label->width());
    EXPECT_LE(label->geometry().right(), options().width());
  }
}

TEST_F(OptionsWindow, ControlsDoNotOverlap) {
  const QList<QWidget*> controls = options().findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  for (const QWidget* one : controls) {
    for (const QWidget* other : controls) {
      if (one == other) continue;
      EXPECT_FALSE(one->geometry().intersects(other->geometry()))
          << one->objectName().toStdString() << " and " << other->objectName().toStdString();
    }
  }
}

TEST_F(OptionsWindow, TitlesAreBoldAndLabelsNavy) {
  for (Label* title :
       {&options().lblColors, &options().lblBenchmark, &options().lblWarning1, &options().lblAppearance})
    EXPECT_TRUE(title->font().bold()) << title->objectName().toStdString();
  EXPECT_FALSE(options().lblMeasure.font().bold());
  EXPECT_EQ(options().lblMeasure.palette().color(QPalette::WindowText), ScreenColor(0x800000));
  EXPECT_FALSE(options().lblMeasure.autoFillBackground());
}

TEST_F(OptionsWindow, TheSwitchesStartOffAndOn) {
  EXPECT_FALSE(options().fbnBenchmark.Checked());
  EXPECT_TRUE(options().fbnSaveWarning.Checked());
  EXPECT_TRUE(options().fbnBenchmark.isCheckable());
  EXPECT_TRUE(options().fbnSaveWarning.isCheckable());
}

TEST_F(OptionsWindow, IsModeless) {
  EXPECT_TRUE(options().Visible());
  EXPECT_EQ(options().windowModality(), Qt::NonModal);
  ClickControl(The<MainForm>().fbnTile);
  EXPECT_FALSE(The<MainForm>().fbnTile.Checked());
}

TEST_F(OptionsWindow, OpeningPutsTheColorsInUseIntoTheSwatches) {
  GridColor = 0x000011;
  SelectionColor = 0x002200;
  EmptyColor = 0x330000;
  ClickControl(The<MainForm>().fbnOptions);
  EXPECT_EQ(options().lblGridColor.BackColor(), 0x000011);
  EXPECT_EQ(options().lblSelectionColor.BackColor(), 0x002200);
  EXPECT_EQ(options().lblEmptyColor.BackColor(), 0x330000);
}

TEST_F(OptionsWindow, OpensAtTheStoredPlace) {
  EXPECT_EQ(std::to_string(static_cast<int>(std::lround(options().Left() / 15))),
            std::to_string(static_cast<int>(std::lround(std::stoi(StoredValue("OptionsLeft")) / 15.0))));
}

TEST_F(OptionsWindow, APickedColorStaysInTheSwatchUntilOk) {
  Pick(options().lblGridColor, 0x0000FF);
  EXPECT_EQ(options().lblGridColor.BackColor(), 0x0000FF);
  EXPECT_EQ(GridColor, 0x000000);
  ClickControl(options().fbnOk);
  EXPECT_EQ(GridColor, 0x0000FF);
  EXPECT_EQ(SelectionColor, 0xFFFFFF);
  EXPECT_EQ(EmptyColor, 0x800080);
  EXPECT_FALSE(options().Visible());
  EXPECT_TRUE(IsLoaded<Options>()) << "hidden and reused";
}

TEST_F(OptionsWindow, EachSwatchHasItsOwnColor) {
  Pick(options().lblGridColor, 0x0000FF);
  Pick(options().lblSelectionColor, 0x00FF00);
  Pick(options().lblEmptyColor, 0xFF0000);
  ClickControl(options().fbnOk);
  EXPECT_EQ(GridColor, 0x0000FF);
  EXPECT_EQ(SelectionColor, 0x00FF00);
  EXPECT_EQ(EmptyColor, 0xFF0000);
}

TEST_F(OptionsWindow, ACancelCopiesTheDialogsLastColorIn) {
  Pick(options().lblSelectionColor, std::nullopt);
  EXPECT_EQ(options().lblSelectionColor.BackColor(), 0x000000) << "black the first time";
  Pick(options().lblSelectionColor, 0x123456);
  Pick(options().lblEmptyColor, std::nullopt);
  EXPECT_EQ(options().lblEmptyColor.BackColor(), 0x123456);
}

// The real dialog: it shows its own last colour, not the swatch's.
TEST_F(OptionsWindow, TheDialogIsNotPrimedWithTheSwatch) {
  The<MainForm>().cdlMain.Color = 0x00C0FF;
  QColor shown;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    shown = dialog->currentColor();
    dialog->setCurrentColor(QColor(10, 20, 30));
    dialog->accept();
  });
  ClickControl(options().lblEmptyColor);
  EXPECT_EQ(shown, ScreenColor(0x00C0FF));
  EXPECT_EQ(options().lblEmptyColor.BackColor(), 10 + 20 * 256 + 30 * 65536);
  QTimer::singleShot(0, [&] { qobject_cast<QColorDialog*>(QApplication::activeModalWidget())->reject(); });
  ClickControl(options().lblGridColor);
  EXPECT_EQ(options().lblGridColor.BackColor(), 10 + 20 * 256 + 30 * 65536);
}

TEST_F(OptionsWindow, NothingIsStoredByOk) {
  const std::string before = FileText(TestFolder() + "settings");
  Pick(options().lblGridColor, 0x0000FF);
  ClickControl(options().fbnOk);
  EXPECT_EQ(FileText(TestFolder() + "settings"), before);
}

TEST_F(OptionsWindow, AReopenedWindowForgetsWhatWasNotConfirmed) {
  Pick(options().lblGridColor, 0x0000FF);
  ClickControl(The<MainForm>().fbnOptions);
  EXPECT_EQ(options().lblGridColor.BackColor(), 0x000000);
}

TEST_F(OptionsWindow, SaveLayoutStoresNoColorAndKeepsTheWindowOpen) {
  Pick(options().lblGridColor, 0x0000FF);
  options().fbnBenchmark.click();
  ClickControl(options().fbnSaveNow);
  EXPECT_TRUE(options().Visible());
  EXPECT_EQ(StoredValue("Benchmark"), "Yes");
  EXPECT_EQ(FileText(TestFolder() + "settings").find("Color="), std::string::npos);
}

TEST_F(OptionsWindow, TheLabelSavesAsWell) {
  options().fbnSaveWarning.click();
  ClickControl(options().lblSaveNow);
  EXPECT_EQ(StoredValue("SaveWarning"), "No");
}

TEST_F(OptionsWindow, LoadLayoutLoadsAndCloses) {
  for (const char* name : {"fbnLoadNow", "lblLoadNow"}) {
    ClickControl(The<MainForm>().fbnOptions);
    Pick(options().lblGridColor, 0x0000FF);
    PutLayoutWith("MainRows", "14");
    MainRows = 8;
    ClickControl(FindControl(options(), name));
    EXPECT_EQ(MainRows, 14) << name;
    EXPECT_FALSE(options().Visible()) << name;
    EXPECT_EQ(GridColor, 0x0000FF) << "closing is the click of OK";
  }
}

TEST_F(OptionsWindow, LoadLayoutWithAnEmptyStoreLaysTheDefaultsDown) {
  PutSettings("");
  ClickControl(options().fbnLoadNow);
  EXPECT_EQ(StoredValue("ShowBrowser"), "Yes");
  EXPECT_EQ(StoredValue("MainFormWidth"), "12200");
}

TEST_F(OptionsWindow, ResetAsksAndClosesOnYesAndOnNo) {
  for (const char* name : {"fbnDefaultSettings", "lblDefaultSettings"}) {
    for (const int answer : {6, 7, 0}) {
      ClickControl(The<MainForm>().fbnOptions);
      PutLayoutWith("MainRows", "14");
      Pick(options().lblEmptyColor, 0x0000FF);
      const auto boxes = WithAnswers({answer}, [&] { ClickControl(FindControl(options(), name)); });
      ASSERT_EQ(boxes.size(), 1U);
      EXPECT_EQ(boxes[0].text, "Really reset the current layout to defaults?");
      EXPECT_EQ(boxes[0].title, "Brolk Plus - Please confirm");
      EXPECT_EQ(boxes[0].icon, "msg-question");
      EXPECT_EQ(StoredValue("MainRows"), answer == 6 ? "8" : "14");
      EXPECT_FALSE(options().Visible());
      EXPECT_EQ(EmptyColor, 0x0000FF) << "the swatches are taken over";
      EmptyColor = 0x800080;
    }
  }
}

TEST_F(OptionsWindow, ClearRecentWritesNineFreeEntriesAndKeepsTheWindowOpen) {
  for (const char* name : {"fbnClearRecent", "lblClearRecent"}) {
    std::string path = "/roms/a.gb";
    RegSaveString(kLocalMachine, kSettingsKey, "LastOpen2", path);
    The<MainForm>().FillRecentMenu();
    EXPECT_TRUE(The<MainForm>().mnuRecent[1].isEnabled());
    const auto boxes = WithAnswers({6}, [&] { ClickControl(FindControl(options(), name)); });
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Are you sure to clear the recent files?");
    EXPECT_EQ(boxes[0].title, "Brolk Plus - Please confirm");
    for (int number = 1; number <= 9; ++number)
      EXPECT_EQ(StoredValue("LastOpen" + std::to_string(number)), "-");
    EXPECT_EQ(The<MainForm>().mnuRecent[1].Caption(), "Recent 2");
    EXPECT_FALSE(The<MainForm>().mnuRecent[1].isEnabled());
    EXPECT_TRUE(options().Visible());
  }
}

TEST_F(OptionsWindow, ClearRecentWritesInOrder) {
  WithAnswers({6}, [&] { ClickControl(options().fbnClearRecent); });
  const std::string text = FileText(TestFolder() + "settings");
  EXPECT_TRUE(
      text.ends_with("LastOpen1=-\nLastOpen2=-\nLastOpen3=-\nLastOpen4=-\nLastOpen5=-\n"
                     "LastOpen6=-\nLastOpen7=-\nLastOpen8=-\nLastOpen9=-\n"));
}

TEST_F(OptionsWindow, ANoToClearRecentFillsTheMenuAllTheSame) {
  std::string path = "/roms/late.gb";
  RegSaveString(kLocalMachine, kSettingsKey, "LastOpen5", path);
  WithAnswers({7}, [&] { ClickControl(options().fbnClearRecent); });
  EXPECT_EQ(StoredValue("LastOpen5"), "/roms/late.gb");
  EXPECT_EQ(The<MainForm>().mnuRecent[4].Caption(), "/roms/late.gb");
}

TEST_F(OptionsWindow, ClosingByTheFrameTakesTheColorsAndUnloads) {
  Pick(options().lblGridColor, 0x0000FF);
  options().fbnBenchmark.SetChecked(true);
  options().fbnSaveWarning.SetChecked(false);
  CloseByFrame();
  EXPECT_FALSE(IsLoaded<Options>());
  EXPECT_EQ(GridColor, 0x0000FF);
  EXPECT_FALSE(options().fbnBenchmark.Checked()) << "a fresh window";
  EXPECT_TRUE(options().fbnSaveWarning.Checked());
  EXPECT_FALSE(options().Visible());
}

TEST_F(OptionsWindow, AfterAnUnloadTheSaveWarningIsBack) {
  OpenRomFile(MakeFile("game.gb", std::string(4096, 'x')));
  options().fbnSaveWarning.SetChecked(false);
  WithAnswers({}, [] { EXPECT_TRUE(ConfirmSave()); });
  CloseByFrame();
  WithAnswers({7}, [] { EXPECT_FALSE(ConfirmSave()); });
}

TEST_F(OptionsWindow, AfterAnUnloadSavingTheLayoutStoresTheDesignState) {
  options().fbnSaveWarning.SetChecked(false);
  options().fbnBenchmark.SetChecked(true);
  CloseByFrame();
  ClickControl(The<MainForm>().fbnOptions);
  ClickControl(options().fbnSaveNow);
  EXPECT_EQ(StoredValue("SaveWarning"), "Yes");
  EXPECT_EQ(StoredValue("Benchmark"), "No");
}

TEST_F(OptionsWindow, AFreshWindowTakesTheLastStoredPlace) {
  PutLayoutWith("OptionsLeft", "2250");
  options().SetLeft(4500);
  CloseByFrame();
  EXPECT_EQ(options().Left(), 2250);
  EXPECT_EQ(options().Top(), 1605);
}

TEST_F(OptionsWindow, OtherwiseItStaysWhereTheUserPutIt) {
  options().SetLeft(4500);
  options().SetTop(1200);
  ClickControl(options().fbnOk);
  ClickControl(The<MainForm>().fbnOptions);
  EXPECT_EQ(options().Left(), 4500);
  EXPECT_EQ(options().Top(), 1200);
}

TEST_F(OptionsWindow, TheBenchmarkSwitchIsReadAtEachRedraw) {
  OpenRomFile(MakeFile("game.gb", std::string(4096, 'x')));
  options().fbnBenchmark.click();
  ClickControl(The<BrowserControl>().fbnGoToAddress);
  EXPECT_TRUE(The<MainForm>().lblInfo.Text().startsWith("The last redraw took about "));
}

TEST_F(OptionsWindow, SpaceOnALabelIsAClick) {
  PressKey(options().lblSaveNow, Qt::Key_Space);
  EXPECT_EQ(StoredValue("Copyright"), "Copyright (c) 2026 The Brolk Plus developers");
  const auto boxes = WithAnswers({7}, [&] { PressKey(options().lblClearRecent, Qt::Key_Space); });
  EXPECT_EQ(boxes.size(), 1U);
}

}  // namespace
}  // namespace brolk::test
