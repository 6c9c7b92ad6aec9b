// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

namespace brolk {

inline constexpr int kMsgButtonCount = 3;

enum class MsgFace : std::uint8_t { Ok, Cancel, Yes, No, Abort, Retry, Ignore };
enum class MsgIcon : std::uint8_t { Blank, Critical, Question, Exclamation, Info };
enum class MsgMarker : std::uint8_t { Green, Red };

// One button of the box and the marker to its left.
struct MsgButton {
  bool shown = false;
  MsgFace face = MsgFace::Ok;
  bool isDefault = false;  // Enter presses it
  bool isCancel = false;   // Escape presses it
  bool markerShown = false;
  MsgMarker marker = MsgMarker::Red;
};

// What the box shows for a set of flags.
struct MsgBoxState {
  std::array<MsgButton, kMsgButtonCount> buttons;
  int count = 1;
  MsgIcon icon = MsgIcon::Blank;
};

// Flags: the numbers of the platform's own message box. A test for a mask passes when all bits of the mask
// are set, and the tests run from the largest mask down, so 7 shows Retry and Cancel, and 112 the information
// icon.
[[nodiscard]] MsgBoxState MsgBoxStateFor(std::int16_t flags);

// The result of a click on a button (0 to 2): the face is what gives a button its meaning.
[[nodiscard]] std::uint8_t MsgBoxAnswer(int button, MsgFace face);

}  // namespace brolk
