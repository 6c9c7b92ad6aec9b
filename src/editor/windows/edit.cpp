// SPDX-License-Identifier: MIT
#include "editor/windows/edit.h"

#include "editor/drawing.h"
#include "editor/slots.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "forms/windows.h"
#include "palette/palette_model.h"
#include "runtime/numbers.h"
#include "shell/windows/msg_box.h"
#include "tile/shared.h"

namespace brolk {
namespace {

EditorOverlay CurrentOverlay() {
  return {The<EditorControl>().fbnEditorGrid.Checked(), GridColor, SelectionColor, EditSelColumn,
          EditSelLine};
}

}  // namespace

EditorView CurrentEditorView() {
  const Editor& editor = The<Editor>();
  return {MainEdZoom, Wrap16(editor.hsbEdit.Value()), Wrap16(editor.vsbEdit.Value()),
          Wrap16(editor.ScaleWidth()), Wrap16(editor.ScaleHeight())};
}

void RedrawEditor() {
  EmptySlotColor = The<EditorControl>().fbnNonCopied.Checked() ? EmptyColor : Palette[0];
  Editor& editor = The<Editor>();
  PaintWholeEditor(editor.Canvas(), CurrentEditorView(), CurrentOverlay(), EmptySlotColor);
  editor.Refresh();
}

void DrawEditorCell(std::int16_t Slot, std::int16_t Column, std::int16_t Line) {
  PaintCell(The<Editor>().Canvas(), CurrentEditorView(), EditSlots[Slot], Column, Line, EmptySlotColor);
}

void DrawTwinCells(std::uint8_t Slot) {
  for (const std::uint8_t twin : TwinsOf(Slot)) DrawEditorCell(Slot, ColumnOf(twin), LineOf(twin));
}

void DrawEditorOverlay() {
  PaintOverlay(The<Editor>().Canvas(), CurrentEditorView(), CurrentOverlay());
}

void AddTileToSlot(std::int32_t Address, std::uint8_t Slot) {
  if (EditSlots[Slot].Address == Address) {
    ShowMsgBox(QStringLiteral("There is already a tile with the same address in the editor."),
               kMsgExclamation, QStringLiteral("Editor error"));
    return;
  }
  EditSlots[Slot].Address = Address;
  ReadSlotPixels(Slot, Address);
}

void ClearEditor() {
  ClearAllSlots();
  RedrawEditor();
}

void CreateSlotSurfaces() {
  The<Editor>();
}

}  // namespace brolk
