// SPDX-License-Identifier: MIT
#include "browser/browser_windows.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>
#include <cstdlib>

#include "editor/slots.h"
#include "palette/palette_model.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

QRect PartOf(const ScrollBar& bar, QStyle::SubControl part) {
  QStyleOptionSlider option;
  option.initFrom(&bar);
  option.subControls = QStyle::SC_All;
  option.orientation = bar.orientation();
  if (bar.orientation() == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
  option.minimum = bar.minimum();
  option.maximum = bar.maximum();
  option.sliderPosition = bar.sliderPosition();
  option.sliderValue = bar.value();
  option.singleStep = bar.singleStep();
  option.pageStep = bar.pageStep();
  return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
}

QPoint thumbStart;

QPoint Along(const ScrollBar& bar, int pixels) {
  return thumbStart + (bar.orientation() == Qt::Horizontal ? QPoint(pixels, 0) : QPoint(0, pixels));
}

}  // namespace

std::vector<std::uint8_t> RampBytes(std::size_t count) {
  std::vector<std::uint8_t> bytes(count);
  for (std::size_t at = 0; at < count; ++at)
    bytes[at] = static_cast<std::uint8_t>(at * 7 + at / 64 + at / 4096);
  return bytes;
}

void ChooseInList(ComboList& list, int position) {
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_F4);
  QAbstractItemView& lines = *list.view();
  QTest::keyClick(&lines, Qt::Key_Home);
  for (int step = 0; step < position; ++step) QTest::keyClick(&lines, Qt::Key_Down);
  QTest::keyClick(&lines, Qt::Key_Return);
}

void PressThumb(ScrollBar& bar) {
  thumbStart = PartOf(bar, QStyle::SC_ScrollBarSlider).center();
  QTest::mousePress(&bar, Qt::LeftButton, {}, thumbStart);
}

void DragThumb(ScrollBar& bar, int pixels) {
  QTest::mouseMove(&bar, Along(bar, pixels));
}

void ReleaseThumb(ScrollBar& bar, int pixels) {
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, Along(bar, pixels));
}

void ClickArrowUp(ScrollBar& bar) {
  QTest::mouseClick(&bar, Qt::LeftButton, {}, PartOf(bar, QStyle::SC_ScrollBarAddLine).center());
}

void TurnWheel(QWidget& control, int notches) {
  const QPointF at(control.rect().center());
  for (int notch = 0; notch < std::abs(notches); ++notch) {
    QWheelEvent event(at, control.mapToGlobal(at), {}, {0, notches > 0 ? 120 : -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &event);
  }
}

void TypeAddress(const std::string& text) {
  auto& box = The<BrowserControl>().txtAddress;
  box.setFocus();
  box.selectAll();
  QTest::keyClicks(&box, QString::fromStdString(text));
  QTest::mouseClick(&The<BrowserControl>().fbnGoToAddress, Qt::LeftButton);
}

void PressPage(Qt::MouseButton button, int x, int y) {
  QTest::mousePress(&The<Browser>(), button, {}, QPoint(x, y));
}

void MovePointer(int x, int y) {
  QTest::mouseMove(&The<Browser>(), QPoint(x, y));
}

void ClickPage(int x, int y) {
  QTest::mouseClick(&The<Browser>(), Qt::LeftButton, {}, QPoint(x, y));
}

void DoubleClickPage(int x, int y) {
  ClickPage(x, y);
  QTest::mouseDClick(&The<Browser>(), Qt::LeftButton, {}, QPoint(x, y));
  QTest::mouseRelease(&The<Browser>(), Qt::LeftButton, {}, QPoint(x, y));
}

void PressKeypad(int digit) {
  QTest::keyClick(&The<Browser>(), static_cast<Qt::Key>(Qt::Key_0 + digit), Qt::KeypadModifier);
}

void PressPageKey(int key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&The<Browser>(), static_cast<Qt::Key>(key), modifiers);
}

void BrowserWindows::SetUp() {
  StartProgram();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Frame()));
}

std::string BrowserWindows::OpenBytes(const std::string& name, const std::vector<std::uint8_t>& bytes) {
  const std::string path = MakeFile(name, bytes);
  if (FileOpen) {
    WithAnswers({6}, [&] { OpenRomFile(path); });
  } else {
    OpenRomFile(path);
  }
  return path;
}

const std::vector<std::uint8_t>& BrowserWindows::OpenGba8() {
  static const std::vector<std::uint8_t> bytes = RampBytes(65536);
  ChooseInList(Panel().cboMode, kListGba8);
  OpenBytes("page.dat", bytes);
  // The opening has set the scroll range with the former line bytes; choosing the mode sets it with its own.
  ChooseInList(Panel().cboMode, kListGba8);
  return bytes;
}

Surface NaivePage(const std::vector<std::uint8_t>& entries, Surface truth) {
  const int zoom = MainZoom;
  const int cellWidth = zoom * TileWidth;
  const int cellHeight = zoom * TileHeight;
  std::size_t next = 0;
  for (int line = 0; line < MainLines; ++line)
    for (int column = 0; column < MainRows; ++column)
      for (int a = 0; a < TileWidth; ++a)
        for (int b = 0; b < TileHeight; ++b)
          truth.SetPixel(column * TileWidth + b, line * TileHeight + a, Palette[entries.at(next++)]);
  Surface shown(cellWidth * MainRows, cellHeight * MainLines);
  for (int y = 0; y < shown.Height(); ++y) {
    for (int x = 0; x < shown.Width(); ++x) {
      ColorValue color = truth.GetPixel(x / zoom, y / zoom);
      if (ShowGrid && (x % cellWidth == 0 || y % cellHeight == 0)) color = GridColor;
      const int left = SelColumn * cellWidth;
      const int top = SelLine * cellHeight;
      const bool inColumns = x >= left && x <= left + cellWidth;
      const bool inLines = y >= top && y <= top + cellHeight;
      const bool onEdge = x == left || x == left + cellWidth || y == top || y == top + cellHeight;
      if (inColumns && inLines && onEdge) color = 0xFFFFFF;
      shown.SetPixel(x, y, color);
    }
  }
  return shown;
}

Surface ShownPage() {
  Surface& canvas = The<Browser>().Canvas();
  const int width = MainZoom * TileWidth * MainRows;
  const int height = MainZoom * TileHeight * MainLines;
  Surface page(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) page.SetPixel(x, y, canvas.GetPixel(x, y));
  return page;
}

std::vector<std::uint8_t> EntriesFrom(const std::vector<std::uint8_t>& file, std::int32_t address) {
  return {file.begin() + address, file.end()};
}

// The bytes that a slot holds.
std::vector<std::uint8_t> PixelsOf(std::uint8_t slot) {
  const auto pixels = EditSlots[slot].Pixels.All();
  return {pixels.begin(), pixels.end()};
}

std::vector<std::uint8_t> TileAtAddress(const std::vector<std::uint8_t>& file, std::int32_t address) {
  return {file.begin() + address, file.begin() + address + 64};
}

}  // namespace brolk::test
