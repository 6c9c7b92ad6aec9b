// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "forms/windows.h"
#include "shell/windows/main_form.h"
#include "support/program.h"

// What the window tests of the page and its panel share.
namespace brolk::test {

// Places in the list of modes.
enum ModePosition {
  kListSnes4 = 0,
  kListSnes8 = 1,
  kListSnes3 = 2,
  kListNes = 3,
  kListGameboy = 4,
  kListGba4 = 5,
  kListGba8 = 6,
  kListOneBit = 13,
  kListBitmap = 14,
};

// Bytes that differ from their neighbours and from those a page further on.
[[nodiscard]] std::vector<std::uint8_t> RampBytes(std::size_t count);

// A person's hands. A line is chosen in the dropped list, with its keys.
void ChooseInList(ComboList& list, int position);
void PressThumb(ScrollBar& bar);
// Moves a pressed thumb by some pixels along its bar.
void DragThumb(ScrollBar& bar, int pixels);
void ReleaseThumb(ScrollBar& bar, int pixels);
// Clicks the arrow at the end of a bar.
void ClickArrowUp(ScrollBar& bar);
// Turns the wheel over a control by some notches, away from the hand when positive.
void TurnWheel(QWidget& control, int notches);
void TypeAddress(const std::string& text);
void PressPage(Qt::MouseButton button, int x, int y);
void MovePointer(int x, int y);
// A press and a release on the page. Not at 0, 0: the tests' toolkit takes that for the middle.
void ClickPage(int x, int y);
void DoubleClickPage(int x, int y);
// A key of the numeric keypad with NumLock on, while the page has the keyboard.
void PressKeypad(int digit);
void PressPageKey(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// The program, started.
struct BrowserWindows : ::testing::Test {
  void SetUp() override;

  static Browser& Page() { return The<Browser>(); }
  static BrowserControl& Panel() { return The<BrowserControl>(); }
  static MainForm& Frame() { return The<MainForm>(); }
  static std::string Info() { return The<MainForm>().lblInfo.Text().toStdString(); }
  static std::string AddressBox() { return The<BrowserControl>().txtAddress.Text().toStdString(); }

  // Makes a file and opens it; an open file is closed first.
  static std::string OpenBytes(const std::string& name, const std::vector<std::uint8_t>& bytes);
  // 64 KiB in "GBA 8bpp": entry n of the page is byte n from the page's address. The page has been clicked,
  // so LineBytes is that of the mode.
  static const std::vector<std::uint8_t>& OpenGba8();
};

// The picture that the client area must show, worked out pixel by pixel: the entries painted in running order
// into a page of true size, each pixel enlarged, then grid and frame. `entries`: palette indices. `before`:
// what the page of true size held, seen where a tile leaves gaps.
[[nodiscard]] Surface NaivePage(const std::vector<std::uint8_t>& entries, Surface before = Surface(256, 256));

// The page as the window has it, without the strip of the scroll bar.
[[nodiscard]] Surface ShownPage();

// Bytes from an address on, for modes in which an entry is a byte.
[[nodiscard]] std::vector<std::uint8_t> EntriesFrom(const std::vector<std::uint8_t>& file,
                                                    std::int32_t address);

// The 64 pixels of a slot, and those of the tile at an address where a pixel is a byte.
[[nodiscard]] std::vector<std::uint8_t> PixelsOf(std::uint8_t slot);
[[nodiscard]] std::vector<std::uint8_t> TileAtAddress(const std::vector<std::uint8_t>& file,
                                                      std::int32_t address);

}  // namespace brolk::test
