// SPDX-License-Identifier: MIT
#include "shell/windows/file_config.h"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "forms/windows.h"
#include "runtime/fault.h"
#include "runtime/numbers.h"
#include "shell/reg_keys.h"
#include "shell/windows/layout_rows.h"
#include "shell/windows/main_form.h"

namespace brolk {
namespace {

// How deep LoadLayout and DefaultLayout may call each other. A working store needs two levels.
constexpr int kDeepestCall = 100;

class CallDepth {
 public:
  CallDepth() {
    if (++depth == kDeepestCall) {
      --depth;
      throw Fault(FaultKind::OutOfStackSpace);
    }
  }
  ~CallDepth() { --depth; }
  CallDepth(const CallDepth&) = delete;
  CallDepth& operator=(const CallDepth&) = delete;

 private:
  static inline int depth = 0;
};

void Write(const LayoutRow& row, std::int16_t value) {
  if (row.group != LayoutGroup::Flag) {
    RegSaveInteger(kLocalMachine, kSettingsKey, row.name, value);
    return;
  }
  std::string text = value != 0 ? "Yes" : "No";
  RegSaveString(kLocalMachine, kSettingsKey, row.name, text);
}

void LoadNumber(const LayoutRow& row) {
  row.apply(RegGetInteger(kLocalMachine, kSettingsKey, row.readName != nullptr ? row.readName : row.name));
}

// Any other text than "Yes" to the letter counts as no.
void LoadFlag(const LayoutRow& row) {
  row.apply(RegGetString(kLocalMachine, kSettingsKey, row.name) == "Yes" ? 1 : 0);
}

// The rows of a group in the order in which defaults are laid down.
std::vector<LayoutRow> RowsOf(LayoutGroup group) {
  std::vector<LayoutRow> rows;
  std::ranges::copy_if(LayoutRows(), std::back_inserter(rows),
                       [group](const LayoutRow& row) { return row.group == group; });
  std::ranges::stable_sort(rows, {}, &LayoutRow::rank);
  return rows;
}

// A default beyond an Integer is held to its end, so that a first start on a very tall screen does not fault.
std::int16_t StandardOf(const LayoutRow& row) {
  using Limits = std::numeric_limits<std::int16_t>;
  return RoundToInteger(std::clamp(row.standard(), double{Limits::min()}, double{Limits::max()}));
}

}  // namespace

void SaveLayout() {
  for (const LayoutRow& row : LayoutRows()) Write(row, RoundToInteger(row.read()));
}

void LoadLayout() {
  const CallDepth depth;
  auto& frame = The<MainForm>();
  for (FlatButton* tool : {&frame.fbnBrowser, &frame.fbnEditor, &frame.fbnTile}) {
    tool->SetChecked(false);
    frame.UpdateToolWindows();
  }
  // The frame takes its size before its place, as in the defaults.
  for (const LayoutRow& row : RowsOf(LayoutGroup::Frame)) LoadNumber(row);
  for (const LayoutRow& row : LayoutRows()) {
    if (row.group != LayoutGroup::Frame && row.group != LayoutGroup::Flag) LoadNumber(row);
  }
  // Only now: a first run puts every window at 0 before.
  if (RegGetString(kLocalMachine, kSettingsKey, "ShowBrowser").empty()) {
    DefaultLayout();
    return;
  }
  for (const LayoutRow& row : RowsOf(LayoutGroup::Flag)) LoadFlag(row);
}

void DefaultLayout() {
  const CallDepth depth;
  for (const LayoutRow& row : RowsOf(LayoutGroup::Frame)) {
    const std::int16_t standard = StandardOf(row);
    Write(row, standard);
    // The rows of the centred windows count from the frame's new top.
    if (std::string_view(row.name) == "MainFormTop") row.apply(standard);
  }
  using enum LayoutGroup;
  for (const LayoutGroup group : {Child, Centered, Page, Flag}) {
    for (const LayoutRow& row : RowsOf(group)) Write(row, StandardOf(row));
  }
  LoadLayout();
}

}  // namespace brolk
