// SPDX-License-Identifier: MIT
#include "browser/selection.h"

#include "runtime/numbers.h"

namespace brolk {
namespace {

PageSelection NextTile(PageSelection selection, std::int16_t rows, std::int16_t lines) {
  if (selection.column < rows - 1) {
    ++selection.column;
  } else if (selection.line < lines - 1) {
    ++selection.line;
    selection.fileLine = Wrap32(std::int64_t{selection.fileLine} + 1);
    selection.column = 0;
  }
  return selection;
}

PageSelection PreviousTile(PageSelection selection, std::int16_t rows) {
  if (selection.column > 0) {
    --selection.column;
  } else if (selection.line > 0) {
    --selection.line;
    selection.column = Wrap16(rows - 1);
    selection.fileLine = Wrap32(std::int64_t{selection.fileLine} - 1);
  }
  return selection;
}

}  // namespace

PageSelection MovedSelection(PageSelection selection, SelectionMove move, std::int16_t rows,
                             std::int16_t lines) {
  switch (move) {
    case SelectionMove::Next:
      return NextTile(selection, rows, lines);
    case SelectionMove::Previous:
      return PreviousTile(selection, rows);
    case SelectionMove::Down:
      if (selection.line < lines - 1) ++selection.line;
      return selection;
    case SelectionMove::Up:
      if (selection.line > 0) --selection.line;
      return selection;
    case SelectionMove::First:
      return {0, 0, selection.fileLine};
    case SelectionMove::Last:
      return {Wrap16(rows - 1), Wrap16(lines - 1), selection.fileLine};
  }
  return selection;
}

}  // namespace brolk
