// SPDX-License-Identifier: MIT
#include "shell/message_box_rules.h"

#include <optional>

namespace brolk {
namespace {

constexpr std::int16_t kSecondIsDefault = 256;
constexpr std::int16_t kThirdIsDefault = 512;
constexpr int kNone = -1;

struct ButtonSet {
  std::int16_t mask;
  int count;
  std::array<MsgFace, kMsgButtonCount> faces;
  int defaultButton;
  int cancelButton;
  // Whether the markers of the default and cancel buttons show: a box with OK alone has none.
  bool markers;
};

// The first row whose mask fits wins; the last one always does.
constexpr ButtonSet kButtonSets[] = {
    {5, 2, {MsgFace::Retry, MsgFace::Cancel, MsgFace::Ok}, 0, 1, true},
    {4, 2, {MsgFace::Yes, MsgFace::No, MsgFace::Ok}, 0, 1, true},
    {3, 3, {MsgFace::Yes, MsgFace::No, MsgFace::Cancel}, 0, 2, true},
    {2, 3, {MsgFace::Abort, MsgFace::Retry, MsgFace::Ignore}, 1, 0, true},
    {1, 2, {MsgFace::Ok, MsgFace::Cancel, MsgFace::Ok}, 0, 1, true},
    {0, 1, {MsgFace::Ok, MsgFace::Ok, MsgFace::Ok}, 0, kNone, false},
};

struct IconRow {
  std::int16_t mask;
  MsgIcon icon;
};
constexpr IconRow kIcons[] = {
    {64, MsgIcon::Info},     {48, MsgIcon::Exclamation}, {32, MsgIcon::Question},
    {16, MsgIcon::Critical}, {0, MsgIcon::Blank},
};

struct AnswerRow {
  int button;
  std::optional<MsgFace> face;  // none: any other face
  std::uint8_t result;
};
constexpr AnswerRow kAnswers[] = {
    {0, MsgFace::Ok, 1},  {0, MsgFace::Abort, 3},  {0, MsgFace::Yes, 6},
    {0, std::nullopt, 4}, {1, MsgFace::Cancel, 2}, {1, MsgFace::Retry, 4},
    {1, std::nullopt, 7}, {2, MsgFace::Ignore, 5}, {2, std::nullopt, 2},
};

bool Has(std::int16_t flags, std::int16_t mask) {
  return (flags & mask) == mask;
}

template <typename Row, std::size_t Size>
const Row& FirstFitting(const Row (&rows)[Size], std::int16_t flags) {
  for (const Row& row : rows) {
    if (Has(flags, row.mask)) return row;
  }
  return rows[Size - 1];
}

MsgBoxState StateOf(const ButtonSet& set) {
  MsgBoxState state;
  state.count = set.count;
  for (int index = 0; index < kMsgButtonCount; ++index) {
    MsgButton& button = state.buttons.at(static_cast<std::size_t>(index));
    button.shown = index < set.count;
    if (button.shown) button.face = set.faces.at(static_cast<std::size_t>(index));
    button.isDefault = index == set.defaultButton;
    button.isCancel = index == set.cancelButton;
    button.markerShown = set.markers && (button.isDefault || button.isCancel);
    button.marker = index == (set.markers ? set.defaultButton : 0) ? MsgMarker::Green : MsgMarker::Red;
  }
  return state;
}

// Gives the default to another button. The one that had it loses its marker; the new one loses the cancel
// setting, so a box whose default moved onto its cancel button leaves Escape without effect. That is meant.
void MoveDefault(MsgBoxState& state, std::size_t target) {
  for (std::size_t index = 0; index < state.buttons.size(); ++index) {
    MsgButton& button = state.buttons[index];
    if (index == target || !button.isDefault) continue;
    button.isDefault = false;
    button.markerShown = false;
  }
  MsgButton& button = state.buttons[target];
  button.markerShown = true;
  button.marker = MsgMarker::Green;
  button.isCancel = false;
  button.isDefault = true;
}

}  // namespace

MsgBoxState MsgBoxStateFor(std::int16_t flags) {
  MsgBoxState state = StateOf(FirstFitting(kButtonSets, flags));
  state.icon = FirstFitting(kIcons, flags).icon;
  if (state.count == 3 && Has(flags, kThirdIsDefault)) {
    MoveDefault(state, 2);
  } else if (state.count >= 2 && Has(flags, kSecondIsDefault)) {
    MoveDefault(state, 1);
  }
  return state;
}

std::uint8_t MsgBoxAnswer(int button, MsgFace face) {
  for (const AnswerRow& row : kAnswers) {
    if (row.button == button && row.face.value_or(face) == face) return row.result;
  }
  return 0;
}

}  // namespace brolk
