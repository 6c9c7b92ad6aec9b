// SPDX-License-Identifier: MIT
#include "shell/message_box_rules.h"

#include <gtest/gtest.h>

namespace brolk {
namespace {

// The rules of the box once more, step by step, as a person would read them.
struct NaiveBox {
  MsgBoxState state;

  static bool Test(int flags, int mask) { return (flags & mask) == mask; }

  void Use(int button, MsgFace face) {
    state.buttons[button].shown = true;
    state.buttons[button].face = face;
  }
  void ShowMarker(int button, MsgMarker marker) {
    state.buttons[button].markerShown = true;
    state.buttons[button].marker = marker;
  }

  void Reset() {
    for (MsgButton& button : state.buttons) button = MsgButton{};
    state.buttons[0].marker = MsgMarker::Green;
    state.buttons[1].marker = MsgMarker::Red;
    state.buttons[2].marker = MsgMarker::Red;
    Use(0, MsgFace::Ok);
    state.buttons[0].isDefault = true;
    state.count = 1;
    state.icon = MsgIcon::Blank;
  }

  void TwoButtons(MsgFace first, MsgFace second) {
    Use(0, first);
    Use(1, second);
    state.buttons[1].isCancel = true;
    ShowMarker(0, MsgMarker::Green);
    ShowMarker(1, MsgMarker::Red);
    state.count = 2;
  }

  void YesNoCancel() {
    Use(0, MsgFace::Yes);
    Use(1, MsgFace::No);
    Use(2, MsgFace::Cancel);
    state.buttons[2].isCancel = true;
    ShowMarker(0, MsgMarker::Green);
    ShowMarker(2, MsgMarker::Red);
    state.count = 3;
  }

  void AbortRetryIgnore() {
    Use(0, MsgFace::Abort);
    Use(1, MsgFace::Retry);
    Use(2, MsgFace::Ignore);
    state.buttons[0].isDefault = false;
    state.buttons[0].isCancel = true;
    state.buttons[1].isDefault = true;
    ShowMarker(0, MsgMarker::Red);
    ShowMarker(1, MsgMarker::Green);
    state.count = 3;
  }

  void PickButtons(int flags) {
    if (Test(flags, 5)) {
      TwoButtons(MsgFace::Retry, MsgFace::Cancel);
    } else if (Test(flags, 4)) {
      TwoButtons(MsgFace::Yes, MsgFace::No);
    } else if (Test(flags, 3)) {
      YesNoCancel();
    } else if (Test(flags, 2)) {
      AbortRetryIgnore();
    } else if (Test(flags, 1)) {
      TwoButtons(MsgFace::Ok, MsgFace::Cancel);
    }
  }

  void PickIcon(int flags) {
    if (Test(flags, 64)) {
      state.icon = MsgIcon::Info;
    } else if (Test(flags, 48)) {
      state.icon = MsgIcon::Exclamation;
    } else if (Test(flags, 32)) {
      state.icon = MsgIcon::Question;
    } else if (Test(flags, 16)) {
      state.icon = MsgIcon::Critical;
    }
  }

  void Undefault(int button) {
    state.buttons[button].markerShown = false;
    state.buttons[button].isDefault = false;
  }
  void Default(int button) {
    ShowMarker(button, MsgMarker::Green);
    state.buttons[button].isCancel = false;
    state.buttons[button].isDefault = true;
  }

  void SecondIsDefault() {
    if (state.buttons[0].isDefault) {
      Undefault(0);
    } else if (state.buttons[2].isDefault) {
      Undefault(2);
    }
    Default(1);
  }
  void ThirdIsDefault() {
    if (state.buttons[0].isDefault) {
      Undefault(0);
    } else if (state.buttons[1].isDefault) {
      Undefault(1);
    }
    Default(2);
  }

  explicit NaiveBox(int flags) {
    Reset();
    PickButtons(flags);
    PickIcon(flags);
    if (state.count == 3 && Test(flags, 512)) {
      ThirdIsDefault();
    } else if (state.count == 3 && Test(flags, 256)) {
      SecondIsDefault();
    } else if (state.count == 2 && Test(flags, 256)) {
      SecondIsDefault();
    }
  }
};

void ExpectSame(const MsgBoxState& state, const MsgBoxState& naive) {
  EXPECT_EQ(state.count, naive.count);
  EXPECT_EQ(state.icon, naive.icon);
  for (std::size_t index = 0; index < state.buttons.size(); ++index) {
    SCOPED_TRACE("button " + std::to_string(index + 1));
    const MsgButton& button = state.buttons[index];
    const MsgButton& expected = naive.buttons[index];
    EXPECT_EQ(button.shown, expected.shown);
    if (expected.shown) {
      EXPECT_EQ(button.face, expected.face);
    }
    EXPECT_EQ(button.isDefault, expected.isDefault);
    EXPECT_EQ(button.isCancel, expected.isCancel);
    EXPECT_EQ(button.markerShown, expected.markerShown);
    EXPECT_EQ(button.marker, expected.marker);
  }
}

TEST(MessageBoxRules, EveryFlagsNumberEqualsTheNaiveBox) {
  for (int flags = -32768; flags <= 32767; ++flags) {
    SCOPED_TRACE("flags " + std::to_string(flags));
    ExpectSame(MsgBoxStateFor(static_cast<std::int16_t>(flags)), NaiveBox(flags).state);
    if (::testing::Test::HasFailure()) return;
  }
}

struct Expected {
  int flags;
  int count;
  std::array<MsgFace, 3> faces;
  int defaultButton;  // from 1, 0 for none
  int cancelButton;
  const char* markers;  // one letter for each button: green, red, or a blank
  MsgIcon icon;
};

constexpr Expected kBoxes[] = {
    {0, 1, {MsgFace::Ok}, 1, 0, "   ", MsgIcon::Blank},
    {1, 2, {MsgFace::Ok, MsgFace::Cancel}, 1, 2, "gr ", MsgIcon::Blank},
    {2, 3, {MsgFace::Abort, MsgFace::Retry, MsgFace::Ignore}, 2, 1, "rg ", MsgIcon::Blank},
    {3, 3, {MsgFace::Yes, MsgFace::No, MsgFace::Cancel}, 1, 3, "g r", MsgIcon::Blank},
    {4, 2, {MsgFace::Yes, MsgFace::No}, 1, 2, "gr ", MsgIcon::Blank},
    {5, 2, {MsgFace::Retry, MsgFace::Cancel}, 1, 2, "gr ", MsgIcon::Blank},
    // Yes and No, since all bits of 4 are set and not all of 5.
    {6, 2, {MsgFace::Yes, MsgFace::No}, 1, 2, "gr ", MsgIcon::Blank},
    {7, 2, {MsgFace::Retry, MsgFace::Cancel}, 1, 2, "gr ", MsgIcon::Blank},
    {16, 1, {MsgFace::Ok}, 1, 0, "   ", MsgIcon::Critical},
    {48, 1, {MsgFace::Ok}, 1, 0, "   ", MsgIcon::Exclamation},
    {64, 1, {MsgFace::Ok}, 1, 0, "   ", MsgIcon::Info},
    {112, 1, {MsgFace::Ok}, 1, 0, "   ", MsgIcon::Info},
    {36, 2, {MsgFace::Yes, MsgFace::No}, 1, 2, "gr ", MsgIcon::Question},
    {292, 2, {MsgFace::Yes, MsgFace::No}, 2, 0, " g ", MsgIcon::Question},
    // The third as default of a box of two, and any request of a box of one, do nothing.
    {548, 2, {MsgFace::Yes, MsgFace::No}, 1, 2, "gr ", MsgIcon::Question},
    {256, 1, {MsgFace::Ok}, 1, 0, "   ", MsgIcon::Blank},
    {512, 1, {MsgFace::Ok}, 1, 0, "   ", MsgIcon::Blank},
    {3 + 256, 3, {MsgFace::Yes, MsgFace::No, MsgFace::Cancel}, 2, 3, " gr", MsgIcon::Blank},
    {3 + 512, 3, {MsgFace::Yes, MsgFace::No, MsgFace::Cancel}, 3, 0, "  g", MsgIcon::Blank},
    // 512 goes before 256.
    {3 + 768, 3, {MsgFace::Yes, MsgFace::No, MsgFace::Cancel}, 3, 0, "  g", MsgIcon::Blank},
    {2 + 256, 3, {MsgFace::Abort, MsgFace::Retry, MsgFace::Ignore}, 2, 1, "rg ", MsgIcon::Blank},
    {2 + 512, 3, {MsgFace::Abort, MsgFace::Retry, MsgFace::Ignore}, 3, 1, "r g", MsgIcon::Blank},
};

char MarkerLetter(const MsgButton& button) {
  if (!button.markerShown) return ' ';
  return button.marker == MsgMarker::Green ? 'g' : 'r';
}

TEST(MessageBoxRules, TheSetsHaveTheirFacesMarkersAndRoles) {
  for (const Expected& box : kBoxes) {
    SCOPED_TRACE("flags " + std::to_string(box.flags));
    const MsgBoxState state = MsgBoxStateFor(static_cast<std::int16_t>(box.flags));
    EXPECT_EQ(state.count, box.count);
    EXPECT_EQ(state.icon, box.icon);
    for (int index = 0; index < kMsgButtonCount; ++index) {
      const MsgButton& button = state.buttons.at(static_cast<std::size_t>(index));
      EXPECT_EQ(button.shown, index < box.count);
      if (button.shown) {
        EXPECT_EQ(button.face, box.faces.at(static_cast<std::size_t>(index)));
      }
      EXPECT_EQ(button.isDefault, index + 1 == box.defaultButton);
      EXPECT_EQ(button.isCancel, index + 1 == box.cancelButton);
      EXPECT_EQ(MarkerLetter(button), box.markers[index]);
    }
  }
}

// What each face of each button answers, also for faces that no set gives to that button.
TEST(MessageBoxRules, TheFaceGivesTheAnswer) {
  const MsgFace faces[] = {MsgFace::Ok,    MsgFace::Cancel, MsgFace::Yes,   MsgFace::No,
                           MsgFace::Abort, MsgFace::Retry,  MsgFace::Ignore};
  const int answers[kMsgButtonCount][7] = {
      {1, 4, 6, 4, 3, 4, 4},
      {7, 2, 7, 7, 7, 4, 7},
      {2, 2, 2, 2, 2, 2, 5},
  };
  for (int button = 0; button < kMsgButtonCount; ++button) {
    for (std::size_t face = 0; face < std::size(faces); ++face) {
      EXPECT_EQ(MsgBoxAnswer(button, faces[face]), answers[button][face])
          << "button " << button + 1 << " face " << face;
    }
  }
}

}  // namespace
}  // namespace brolk
