// SPDX-License-Identifier: MIT
#include "browser/page_window.h"

#include "runtime/numbers.h"

namespace brolk {
namespace {

// What the frame and the scroll bar take. The width counts in twips, the height in pixels.
constexpr int kBesidePageTwips = 350;
constexpr int kAbovePagePx = 26;

}  // namespace

WindowExtent PageWindowExtent(const TileExtent& tile, std::int16_t rows, std::int16_t lines,
                              int twipsPerPixel) {
  const std::int64_t widthPx = std::int64_t{tile.zoom} * Wrap16(tile.width * rows);
  const std::int64_t heightPx = std::int64_t{tile.zoom} * Wrap16(tile.height * lines);
  return {widthPx * twipsPerPixel + kBesidePageTwips, (heightPx + kAbovePagePx) * twipsPerPixel};
}

std::string PageCaption(std::string_view fileName, std::string_view modeName) {
  return "Browser - '" + std::string(fileName) + "' in " + std::string(modeName) + " mode";
}

std::string RedrawTimeText(float before, float after) {
  const double milliseconds = IntegerPart((after - before) * 1000.0F);
  return "The last redraw took about " + NumberText(milliseconds / 1000.0) + " seconds.";
}

}  // namespace brolk
