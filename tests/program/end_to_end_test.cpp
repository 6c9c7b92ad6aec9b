// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <random>

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "forms/windows.h"
#include "palette/windows/palette_control.h"
#include "shell/windows/main_form.h"
#include "support/program.h"

// The main road of the program, by mouse and keys alone: open a file, take a tile, paint one pixel, save, and
// look at the bytes.
namespace brolk::test {
namespace {

constexpr int kZoom = 3;
constexpr int kFileBytes = 16384;
constexpr int kTileColumn = 3;
constexpr int kTileLine = 2;
constexpr int kTilesInALine = 8;

struct BitPlace {
  int byte;
  int bit;
};

// Where the bit of one plane of the pixel (x, y) lies in a tile.
using Layout = BitPlace (*)(int x, int y, int plane);

struct ModeRow {
  const char* name;
  int listPosition;
  int bytesPerTile;
  int planes;
  Layout layout;
};

BitPlace Interleaved(int x, int y, int plane) {
  return {16 * (plane / 2) + 2 * y + plane % 2, 7 - x};
}

const ModeRow kModes[] = {
    {"Snes4bpp", 0, 32, 4, Interleaved},
    {"Snes8bpp", 1, 64, 8, Interleaved},
    {"Snes3bpp", 2, 24, 3,
     [](int x, int y, int plane) -> BitPlace {
       return {plane < 2 ? 2 * y + plane : 16 + y, 7 - x};
     }},
    {"Nes", 3, 16, 2,
     [](int x, int y, int plane) -> BitPlace {
       return {8 * plane + y, 7 - x};
     }},
    {"Gameboy", 4, 16, 2, Interleaved},
    {"Gba4bpp", 5, 32, 4,
     [](int x, int y, int plane) -> BitPlace {
       return {(8 * y + x) / 2, 4 * (x % 2) + plane};
     }},
    {"Gba8bpp", 6, 64, 8,
     [](int x, int y, int plane) -> BitPlace {
       return {8 * y + x, plane};
     }},
    {"VirtualBoy", 7, 16, 2,
     [](int x, int y, int plane) -> BitPlace {
       return {(8 * y + x) / 4, 2 * (x % 4) + plane};
     }},
    {"MegaDrive", 8, 32, 4,
     [](int x, int y, int plane) -> BitPlace {
       return {(8 * y + x) / 2, 4 * (1 - x % 2) + plane};
     }},
    {"PcEngineChar", 9, 32, 4,
     [](int x, int y, int plane) -> BitPlace {
       return {16 * (plane / 2) + 2 * y + 1 - plane % 2, 7 - x};
     }},
    {"GameGear", 11, 32, 4,
     [](int x, int y, int plane) -> BitPlace {
       return {4 * y + plane, 7 - x};
     }},
    {"NeoGeoPocket", 12, 16, 2,
     [](int x, int y, int plane) -> BitPlace {
       return {2 * y + (x < 4 ? 1 : 0), 6 - 2 * (x % 4) + plane};
     }},
    {"OneBit", 13, 8, 1,
     [](int x, int y, int) -> BitPlace {
       return {y, 7 - x};
     }},
};

int PixelIn(const std::vector<std::uint8_t>& file, const ModeRow& mode, int address, int x, int y) {
  int value = 0;
  for (int plane = 0; plane < mode.planes; ++plane) {
    const BitPlace place = mode.layout(x, y, plane);
    value |= ((file[static_cast<std::size_t>(address + place.byte)] >> place.bit) & 1) << plane;
  }
  return value;
}

void PutPixel(std::vector<std::uint8_t>& file, const ModeRow& mode, int address, int x, int y, int value) {
  for (int plane = 0; plane < mode.planes; ++plane) {
    const BitPlace place = mode.layout(x, y, plane);
    std::uint8_t& byte = file[static_cast<std::size_t>(address + place.byte)];
    byte = static_cast<std::uint8_t>((byte & ~(1 << place.bit)) | (((value >> plane) & 1) << place.bit));
  }
}

std::vector<std::uint8_t> RandomBytes(unsigned seed) {
  std::mt19937 generator(seed);
  std::vector<std::uint8_t> bytes(kFileBytes);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(generator());
  return bytes;
}

// Opens a file as a person does: the open button, the name typed into the dialog, Enter.
void OpenThroughTheDialog(const std::string& path) {
  QTimer::singleShot(0, [&path] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name->setText(QString::fromStdString(path));
    QTest::keyClick(name, Qt::Key_Return);
  });
  ClickControl(The<BrowserControl>().fbnOpenFile);
}

void ChooseMode(int listPosition) {
  ComboList& list = The<BrowserControl>().cboMode;
  while (list.ListIndex() < listPosition) QTest::keyClick(&list, Qt::Key_Down);
}

// A double click takes the tile into slot 0; a click selects that slot.
void TakeTileIntoSlot0() {
  constexpr int cell = 8 * kZoom;
  const QPoint tile(kTileColumn * cell + 5, kTileLine * cell + 5);
  QTest::mouseClick(&The<Browser>(), Qt::LeftButton, {}, tile);
  QTest::mouseDClick(&The<Browser>(), Qt::LeftButton, {}, tile);
  QTest::mouseClick(&The<Editor>(), Qt::LeftButton, {}, {1, 1});
  QTest::mouseMove(&The<Editor>(), {2, 2});
}

void PaintPixel(int x, int y, int colour) {
  constexpr int swatch = 24;
  QTest::mouseClick(&The<PaletteControl>().picColor, Qt::LeftButton, {},
                    {swatch * (colour % 4) + swatch / 2, swatch * (colour / 4) + swatch / 2});
  ClickControl(The<EditorControl>().fbnPaint);
  QTest::mouseClick(&The<Editor>(), Qt::LeftButton, {}, {x * kZoom + 1, y * kZoom + 1});
}

class EndToEnd : public ::testing::TestWithParam<ModeRow> {};

TEST_P(EndToEnd, OnePaintedPixelChangesItsBitsInTheFileAndNothingElse) {
  const ModeRow& mode = GetParam();
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::vector<std::uint8_t> expected = RandomBytes(seed);
  const std::string path = MakeFile("game", expected);
  const int address = (kTilesInALine * kTileLine + kTileColumn) * mode.bytesPerTile;
  constexpr int x = 5;
  constexpr int y = 6;
  const int highest = std::min((1 << mode.planes) - 1, 15);
  const int colour = PixelIn(expected, mode, address, x, y) == highest ? highest - 1 : highest;

  StartProgram();
  OpenThroughTheDialog(path);
  ChooseMode(mode.listPosition);
  TakeTileIntoSlot0();
  EXPECT_EQ(The<TileControl>().txtAddress.Text().toInt(), address);
  PaintPixel(x, y, colour);
  EXPECT_EQ(FileBytes(path), expected) << "painting alone leaves the file alone";
  const auto boxes = WithAnswers({6}, [] { PressKey(The<Editor>(), Qt::Key_S); });
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Save?");

  PutPixel(expected, mode, address, x, y, colour);
  EXPECT_EQ(FileBytes(path), expected);
}

INSTANTIATE_TEST_SUITE_P(InEveryRegularMode, EndToEnd, ::testing::ValuesIn(kModes),
                         [](const ::testing::TestParamInfo<ModeRow>& row) {
                           return std::string(row.param.name);
                         });

}  // namespace
}  // namespace brolk::test
