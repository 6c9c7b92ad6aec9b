// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

namespace brolk {

// Mouse buttons and shift keys as bits.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
inline constexpr int kMiddleButton = 4;
inline constexpr int kShiftKey = 1;
inline constexpr int kControlKey = 2;
inline constexpr int kAltKey = 4;

// Key codes. The keypad codes stand for the keypad with NumLock on; arrows, Home, End, Page Up and the main +
// - * / count as the keypad's.
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeySpace = 32;
inline constexpr int kKeypad0 = 96;
inline constexpr int kKeypadMultiply = 106;
inline constexpr int kKeypadAdd = 107;
inline constexpr int kKeypadSubtract = 109;
inline constexpr int kKeypadDivide = 111;

// The code of a key event, 0 for a key without one. Letters have the code of their capital.
[[nodiscard]] int KeyCodeOf(const QKeyEvent& event);

// The shift bits of a key event. Shift that only serves to type one of + - * / does not count.
[[nodiscard]] int ShiftBitsOf(const QKeyEvent& event);

// Mouse buttons as bits.
[[nodiscard]] int ButtonBitsOf(unsigned int toolkitButtons);

// Shift keys as bits.
[[nodiscard]] int ShiftBitsOf(unsigned int toolkitModifiers);

}  // namespace brolk
