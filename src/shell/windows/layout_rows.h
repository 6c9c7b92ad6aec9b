// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

namespace brolk {

// What a value of the layout belongs to. The default layout is laid down group by group, in this order.
enum class LayoutGroup {
  Frame,     // the main window, whose place the centred windows use
  Child,     // windows at fixed places of the main window
  Centered,  // free windows in the middle of the main window's default place
  Page,      // page shape and zoom
  Flag,      // "Yes" or "No"
};

// One value of the layout between the store and the windows. Flags count as 1 and 0 here.
struct LayoutRow {
  const char* name;  // what it is written under
  LayoutGroup group;
  int rank;  // place among the rows of its group where defaults are laid down; equal ranks keep the table's
             // order
  double (*standard)();         // the default, before it is taken to an Integer
  double (*read)();             // twips, a plain number or a flag
  void (*apply)(std::int16_t);  // the same
  // What it is read under, if that is spelt otherwise: the store takes both for one name.
  const char* readName = nullptr;
};

// All values of the layout, in the order in which they are saved and loaded.
[[nodiscard]] std::span<const LayoutRow> LayoutRows();

}  // namespace brolk
