// SPDX-License-Identifier: MIT
#include "forms/keys.h"

#include <QKeyEvent>
#include <iterator>

namespace brolk {
namespace {

struct KeyRow {
  int toolkitKey;
  int code;
};

constexpr KeyRow kKeys[] = {
    {Qt::Key_Return, kKeyEnter},      {Qt::Key_Enter, kKeyEnter},          {Qt::Key_Escape, kKeyEscape},
    {Qt::Key_Space, kKeySpace},       {Qt::Key_Left, kKeypad0 + 4},        {Qt::Key_Right, kKeypad0 + 6},
    {Qt::Key_Up, kKeypad0 + 8},       {Qt::Key_Down, kKeypad0 + 2},        {Qt::Key_Home, kKeypad0 + 7},
    {Qt::Key_End, kKeypad0 + 1},      {Qt::Key_PageUp, kKeypad0 + 9},      {Qt::Key_Plus, kKeypadAdd},
    {Qt::Key_Minus, kKeypadSubtract}, {Qt::Key_Asterisk, kKeypadMultiply}, {Qt::Key_Slash, kKeypadDivide},
};

bool IsOperator(int code) {
  return code == kKeypadAdd || code == kKeypadSubtract || code == kKeypadMultiply || code == kKeypadDivide;
}

}  // namespace

int KeyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
  if (key >= Qt::Key_0 && key <= Qt::Key_9) {
    return event.modifiers().testFlag(Qt::KeypadModifier) ? kKeypad0 + key - Qt::Key_0 : key;
  }
  for (const KeyRow& row : kKeys) {
    if (row.toolkitKey == key) return row.code;
  }
  return 0;
}

int ShiftBitsOf(const QKeyEvent& event) {
  const int bits = ShiftBitsOf(static_cast<unsigned int>(event.modifiers()));
  return IsOperator(KeyCodeOf(event)) ? bits & ~kShiftKey : bits;
}

int ButtonBitsOf(unsigned int toolkitButtons) {
  return ((toolkitButtons & Qt::LeftButton) != 0 ? kLeftButton : 0) |
         ((toolkitButtons & Qt::RightButton) != 0 ? kRightButton : 0) |
         ((toolkitButtons & Qt::MiddleButton) != 0 ? kMiddleButton : 0);
}

int ShiftBitsOf(unsigned int toolkitModifiers) {
  return ((toolkitModifiers & Qt::ShiftModifier) != 0 ? kShiftKey : 0) |
         ((toolkitModifiers & Qt::ControlModifier) != 0 ? kControlKey : 0) |
         ((toolkitModifiers & Qt::AltModifier) != 0 ? kAltKey : 0);
}

}  // namespace brolk
