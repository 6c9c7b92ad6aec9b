// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QMenu>
#include <functional>
#include <string>
#include <vector>

#include "editor/slots.h"
#include "editor/tiles.h"
#include "editor/windows/edit.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "forms/windows.h"
#include "shell/windows/main_form.h"
#include "support/mouse.h"
#include "support/program.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {

// The program right after its start, at zoom 3, the Editor in front and large enough for the whole grid.
class EditorFixture : public ::testing::Test {
 protected:
  void SetUp() override;

  // The point of the client area in the middle of a pixel of a slot's tile, unscrolled.
  [[nodiscard]] static QPoint At(int column, int line, int pixelX = 0, int pixelY = 0);

  // Opens a file of this test that holds these bytes, in the given mode, and goes back to the Editor.
  std::string Open(const std::string& name, const std::vector<std::uint8_t>& bytes, GraphicsMode mode);

  // What the status line says.
  [[nodiscard]] static std::string ColorStatus();
  [[nodiscard]] static std::string PositionStatus();

  // The Editor's canvas against a picture painted afresh from slots and state.
  static void ExpectFreshPicture();
  // A cell's outline: each pixel in this colour.
  static void ExpectFrame(int column, int line, ColorValue color);
  // A cell without its outline shows the slot.
  static void ExpectCellShows(int column, int line, const EditSlot& slot);

  // Starts the program, so that the members below have their windows.
  [[nodiscard]] static Editor& StartedEditor();

  Mouse mouse{StartedEditor()};

  Editor& editor() { return The<Editor>(); }
  EditorControl& panel() { return The<EditorControl>(); }
  TileControl& tool() { return The<TileControl>(); }
};

// Runs an action that shows pop-up menus, closes each, and answers their titles.
std::vector<std::string> WithMenusClosed(const std::function<void()>& action);

}  // namespace brolk::test
