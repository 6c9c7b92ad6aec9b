// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "editor/geometry.h"
#include "forms/drawing_form.h"
#include "forms/flat_button.h"
#include "forms/scroll_bar.h"

namespace brolk {

// The 256 slots: pointer and keyboard become edits. All points are pixels of the client area.
class Editor final : public DrawingForm {
 public:
  Editor();

  // Drops the tile selected in the Browser on the slot under a point. A point outside does nothing.
  void DragToEditor(std::int16_t x, std::int16_t y);
  // Lays the controls out and scrolls back to the top left corner.
  void FormatEditScr();
  void fbnFit_Click();

  void Form_Resize() override;
  void Form_MouseDown(int button, int shift, float x, float y) override;
  void Form_MouseMove(int button, int shift, float x, float y) override;
  void Form_MouseUp(int button, int shift, float x, float y) override;
  void Form_KeyDown(int keyCode, int shift) override;

  // True (-1) from the press that selects a slot until the next pointer event without a button, or until the
  // pointer leaves the grid.
  std::int16_t SlotDragging = 0;

  FlatButton fbnFit{*this, "fbnFit", "fit", "Resize the editor to fit all 16x16 tiles"};
  ScrollBar hsbEdit{Qt::Horizontal, *this, "hsbEdit", 0, 0, 0};
  ScrollBar vsbEdit{Qt::Vertical, *this, "vsbEdit", 0, 0, 0};

 private:
  void PointerEvent(int button, float x, float y);
  void ShowStatus(const EditorPlace& place);
  void DropDraggedSlot(const EditorPlace& place);
  void UseTool(const EditorPlace& place);
  void SelectAt(const EditorPlace& place);
  void PaintAt(const EditorPlace& place);
  void FillAt(const EditorPlace& place);
  void DrawEdited(const EditorPlace& place);
  void RightButton(const EditorPlace& place, float x, float y);

  // The pop-up menu has been shown for the right button that is still down.
  bool menuShown_ = false;
};

}  // namespace brolk
