// SPDX-License-Identifier: MIT
#include "editor/editor_fixture.h"

#include <QApplication>
#include <QTimer>

#include "browser/windows/browser_control.h"
#include "editor/naive_editor.h"

namespace brolk::test {

Editor& EditorFixture::StartedEditor() {
  StartProgram();
  return The<Editor>();
}

void EditorFixture::SetUp() {
  editor().SetFocus();
  editor().fbnFit_Click();
  editor().SetLeft(0);
  editor().SetTop(0);
  RedrawEditor();
}

QPoint EditorFixture::At(int column, int line, int pixelX, int pixelY) {
  const int zoom = MainEdZoom;
  return {(column * 8 + pixelX) * zoom + zoom / 2, (line * 8 + pixelY) * zoom + zoom / 2};
}

std::string EditorFixture::Open(const std::string& name, const std::vector<std::uint8_t>& bytes,
                                GraphicsMode mode) {
  const std::string path = MakeFile(name, bytes);
  OpenRomFile(path);
  for (int position = 0; position < kModeCount; ++position) {
    if (kModeMap[static_cast<std::size_t>(position)] == mode)
      The<BrowserControl>().cboMode.SetListIndex(position);
  }
  EXPECT_TRUE(FileOpen);
  EXPECT_EQ(GfxMode, mode);
  editor().SetFocus();
  return path;
}

std::string EditorFixture::ColorStatus() {
  return The<MainForm>().lblColor.Text().toStdString();
}

std::string EditorFixture::PositionStatus() {
  return The<MainForm>().lblPosition.Text().toStdString();
}

void EditorFixture::ExpectFreshPicture() {
  const NaiveEditor naive{
      CurrentEditorView(),
      {The<EditorControl>().fbnEditorGrid.Checked(), GridColor, SelectionColor, EditSelColumn, EditSelLine},
      The<EditorControl>().fbnNonCopied.Checked() ? EmptyColor : Palette[0]};
  const Surface& canvas = The<Editor>().Canvas();
  ASSERT_EQ(canvas.Width(), The<Editor>().ScaleWidth());
  ASSERT_EQ(canvas.Height(), The<Editor>().ScaleHeight());
  for (int y = 0; y < canvas.Height(); ++y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      const std::optional<ColorValue> expected = naive.PixelAt(x, y);
      if (!expected) continue;
      ASSERT_EQ(canvas.GetPixel(x, y), *expected) << "at " << x << ", " << y;
    }
  }
}

void EditorFixture::ExpectFrame(int column, int line, ColorValue color) {
  const Surface& canvas = The<Editor>().Canvas();
  const int side = MainEdZoom * 8;
  const int left = column * side;
  const int top = line * side;
  for (int step = 0; step <= side; ++step) {
    ASSERT_EQ(canvas.GetPixel(left + step, top), color) << "top edge, " << step;
    ASSERT_EQ(canvas.GetPixel(left + step, top + side), color) << "bottom edge, " << step;
    ASSERT_EQ(canvas.GetPixel(left, top + step), color) << "left edge, " << step;
    ASSERT_EQ(canvas.GetPixel(left + side, top + step), color) << "right edge, " << step;
  }
}

void EditorFixture::ExpectCellShows(int column, int line, const EditSlot& slot) {
  const Surface& canvas = The<Editor>().Canvas();
  const int side = MainEdZoom * 8;
  for (int y = 1; y < side; ++y) {
    for (int x = 1; x < side; ++x) {
      const std::uint8_t index = slot.Pixels[y / MainEdZoom * 8 + x / MainEdZoom];
      ASSERT_EQ(canvas.GetPixel(column * side + x, line * side + y), Palette[index]) << x << ", " << y;
    }
  }
}

std::vector<std::string> WithMenusClosed(const std::function<void()>& action) {
  std::vector<std::string> titles;
  QTimer watcher;
  QObject::connect(&watcher, &QTimer::timeout, &watcher, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    titles.push_back(menu->title().toStdString());
    menu->close();
  });
  watcher.start(0);
  action();
  return titles;
}

}  // namespace brolk::test
