// SPDX-License-Identifier: MIT
#include "forms/keys.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace brolk {
namespace {

int Code(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return KeyCodeOf(QKeyEvent(QEvent::KeyPress, key, modifiers));
}

TEST(KeyCodes, OfTheKeypadAreThoseWithNumLockOn) {
  for (int digit = 0; digit <= 9; ++digit) EXPECT_EQ(Code(Qt::Key_0 + digit, Qt::KeypadModifier), 96 + digit);
  EXPECT_EQ(Code(Qt::Key_Asterisk, Qt::KeypadModifier), 106);
  EXPECT_EQ(Code(Qt::Key_Plus, Qt::KeypadModifier), 107);
  EXPECT_EQ(Code(Qt::Key_Minus, Qt::KeypadModifier), 109);
  EXPECT_EQ(Code(Qt::Key_Slash, Qt::KeypadModifier), 111);
}

TEST(KeyCodes, OfArrowsHomeEndAndPageUpAreThoseOfTheKeypad) {
  EXPECT_EQ(Code(Qt::Key_Right), 102);
  EXPECT_EQ(Code(Qt::Key_Left), 100);
  EXPECT_EQ(Code(Qt::Key_Up), 104);
  EXPECT_EQ(Code(Qt::Key_Down), 98);
  EXPECT_EQ(Code(Qt::Key_Home), 103);
  EXPECT_EQ(Code(Qt::Key_End), 97);
  EXPECT_EQ(Code(Qt::Key_PageUp), 105);
  EXPECT_EQ(Code(Qt::Key_Home, Qt::KeypadModifier), 103) << "NumLock off";
}

TEST(KeyCodes, OfLettersAreTheirCapitals) {
  EXPECT_EQ(Code(Qt::Key_A), 65);
  EXPECT_EQ(Code(Qt::Key_S), 83);
  EXPECT_EQ(Code(Qt::Key_6), 54) << "the digit row is not the keypad";
  EXPECT_EQ(Code(Qt::Key_F5), 0);
}

TEST(ShiftBits, LeaveOutAShiftThatOnlyTypesAnOperator) {
  EXPECT_EQ(ShiftBitsOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Plus, Qt::ShiftModifier)), 0);
  EXPECT_EQ(ShiftBitsOf(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier)), 1);
  EXPECT_EQ(ShiftBitsOf(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier | Qt::AltModifier)), 6);
}

}  // namespace
}  // namespace brolk
