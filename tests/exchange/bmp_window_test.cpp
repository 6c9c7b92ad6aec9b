// SPDX-License-Identifier: MIT
#include "exchange/windows/bmp.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "browser/windows/browser_control.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "forms/windows.h"
#include "palette/windows/palette_control.h"
#include "shell/windows/main_form.h"
#include "shell/windows/options.h"
#include "support/dialog_hands.h"
#include "support/endless_child.h"
#include "support/program.h"
#include "tile/shared.h"

namespace brolk {
namespace {

using test::DialogWatch;

const char* const kFilter = "Bitmap file 128x128x256 colors (*.bmp)|*.bmp";

class BmpCommands : public testing::Test {
 protected:
  BmpCommands() { test::StartProgram(); }

  static void Import(const std::string& path) {
    const DialogWatch dialog(path);
    test::ClickControl(The<MainForm>().fbnBmpImport);
  }
  static void Export(const std::string& path) {
    const DialogWatch dialog(path);
    test::ClickControl(The<MainForm>().fbnBmpExport);
  }

  // Slot s holds pixel values s + i.
  static void FillSlots() {
    for (int slot = 0; slot <= 255; ++slot) {
      for (int i = 0; i <= 63; ++i) EditSlots[slot].Pixels[i] = static_cast<std::uint8_t>(slot + i);
      EditSlots[slot].Address = slot * 64;
    }
  }
};

TEST_F(BmpCommands, AskWithTheMainWindowsDialog) {
  The<MainForm>().cdlMain.FileName = QStringLiteral("left over");
  const DialogWatch dialog("");
  test::ClickControl(The<MainForm>().fbnBmpImport);
  The<MainForm>().cdlMain.FileName = QStringLiteral("left over");
  test::ClickControl(The<MainForm>().fbnBmpExport);
  ASSERT_EQ(dialog.seen.size(), 2U);
  EXPECT_EQ(dialog.seen[0].kind, CommonDialog::Kind::Open);
  EXPECT_EQ(dialog.seen[1].kind, CommonDialog::Kind::Save);
  for (const auto& seen : dialog.seen) {
    EXPECT_EQ(seen.name, "cdlMain");
    EXPECT_EQ(seen.filter, kFilter);
    EXPECT_EQ(seen.fileName, "");
  }
}

TEST_F(BmpCommands, CancelledImportChangesNothing) {
  FillSlots();
  Import("");
  EXPECT_EQ(EditSlots[3].Address, 192);
}

TEST_F(BmpCommands, WrongSizeIsTold) {
  FillSlots();
  const std::string path = test::MakeFile("small.bmp", std::string(17461, 'x'));
  const auto seen = test::WithAnswers({1}, [&] { Import(path); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, "Only 128x128 pixel 256 colors Bmp files can be imported.");
  EXPECT_EQ(seen[0].title, "Brolk Plus - Invalid file size");
  EXPECT_EQ(seen[0].icon, "msg-critical");
  EXPECT_EQ(EditSlots[3].Address, 192);
}

TEST_F(BmpCommands, MissingFileHasTheWrongSize) {
  const auto seen = test::WithAnswers({1}, [&] { Import(test::TestFolder() + "not-there.bmp"); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].title, "Brolk Plus - Invalid file size");
}

TEST_F(BmpCommands, WrongHeaderIsTold) {
  const std::string path = test::MakeFile("header.bmp", std::string(17462, 'x'));
  const auto seen = test::WithAnswers({1}, [&] { Import(path); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, "Only 128x128 pixel 256 colors Bmp files can be imported.");
  EXPECT_EQ(seen[0].title, "Brolk Plus - Invalid header");
  EXPECT_EQ(seen[0].icon, "msg-critical");
}

TEST_F(BmpCommands, ExportOfANewNameAsksNothing) {
  const std::string path = test::TestFolder() + "typed as it is";
  test::WithAnswers({}, [&] { Export(path); });
  EXPECT_EQ(test::FileText(path).size(), 17462U);
}

TEST_F(BmpCommands, CancelledExportWritesNothing) {
  test::WithAnswers({}, [&] { Export(""); });
}

TEST_F(BmpCommands, ExportOverAFileAsksFirst) {
  const std::string path = test::MakeFile("old.bmp", std::string("old"));
  const auto seen = test::WithAnswers({7}, [&] { Export(path); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, "Overwrite existing file?");
  EXPECT_EQ(seen[0].title, "Brolk Plus - File already exists");
  EXPECT_EQ(seen[0].icon, "msg-question");
  EXPECT_EQ(test::FileText(path), "old");
  test::WithAnswers({0}, [&] { Export(path); });
  EXPECT_EQ(test::FileText(path), "old") << "closed by the frame counts as No";
  test::WithAnswers({6}, [&] { Export(path); });
  EXPECT_EQ(test::FileText(path).size(), 17462U);
}

TEST_F(BmpCommands, AnotherReaderSeesTheSamePicture) {
  FillSlots();
  Palette[3] = 0x302010;
  const std::string path = test::TestFolder() + "qt.bmp";
  Export(path);
  const QImage image(QString::fromStdString(path));
  ASSERT_EQ(image.size(), QSize(128, 128));
  for (int y = 0; y < 128; ++y) {
    for (int x = 0; x < 128; ++x) {
      const int slot = y / 8 * 16 + x / 8;
      const int value = (slot + y % 8 * 8 + x % 8) % 256;
      ASSERT_EQ(image.pixelIndex(x, y), value) << x << "," << y;
      // The header tells of 16 colours, and this reader holds to it.
      if (value >= 16) continue;
      const QColor shown = image.pixelColor(x, y);
      EXPECT_EQ(shown.red(), RedOf(Palette[value])) << x << "," << y;
      EXPECT_EQ(shown.green(), GreenOf(Palette[value]));
      EXPECT_EQ(shown.blue(), BlueOf(Palette[value]));
    }
  }
}

TEST_F(BmpCommands, ImportRepaintsPanelEditorAndPage) {
  test::OpenRomFile(test::MakeFile("page.gbc", std::string(4096, '\0')));
  FillSlots();
  const std::string path = test::TestFolder() + "paint.bmp";
  Export(path);
  std::string bytes = test::FileText(path);
  bytes.replace(54, 4, std::string("\x11\x22\x33\0", 4));  // colour 0
  bytes[1078 + 127 * 128] = 0;                             // top left pixel
  test::WithAnswers({}, [&] { Import(test::MakeFile("paint.bmp", bytes)); });
  EXPECT_EQ(Palette[0], 0x112233);
  EXPECT_EQ(The<PaletteControl>().picColor.Canvas().GetPixel(2, 2), 0x112233);
  EXPECT_EQ(BrowserSurface.GetPixel(9, 9), 0x112233) << "the page shows zeros";
  const int beside = MainEdZoom / 2 + 1;  // inside the first pixel, off the grid line and the frame
  EXPECT_EQ(The<Editor>().Canvas().GetPixel(beside, beside), 0x112233);
}

TEST_F(BmpCommands, ImportDoesNotTellTheTileTool) {
  FillSlots();
  FileLength = 100000;
  The<TileControl>().LoadTile(5);
  ASSERT_EQ(The<TileControl>().txtAddress.Text(), "320");
  const std::string path = test::TestFolder() + "tool.bmp";
  Export(path);
  Import(path);
  EXPECT_EQ(EditSlots[5].Address, kUnaddressed);
  EXPECT_EQ(The<TileControl>().txtAddress.Text(), "320");
}

// A save of all with a file open does not come back; it runs in a second process.
TEST_F(BmpCommands, SaveOfAllAfterAnImportWritesNothing) {
  const std::string rom(20000, '\x5A');
  if (test::EndlessChild::Running()) {
    test::OpenRomFile(test::EndlessChild::Path());
    FillSlots();
    const std::string picture = test::TestFolder() + "save.bmp";
    Export(picture);
    Import(picture);
    The<Options>().fbnSaveWarning.SetChecked(false);
    std::ofstream(test::EndlessChild::Path() + ".started") << "now";
    test::ClickControl(The<EditorControl>().fbnSaveEdit);
    FAIL() << "the save came back";
  }
  const std::string path = test::MakeFile("untouched.gba", rom);
  test::EndlessChild child(path);
  ASSERT_TRUE(child.Until([&] { return std::filesystem::exists(path + ".started"); }));
  QTest::qWait(500);
  EXPECT_TRUE(child.StillRuns());
  EXPECT_TRUE(test::FileText(path) == rom);
}

}  // namespace
}  // namespace brolk
