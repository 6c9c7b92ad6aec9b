// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "browser/page_pointer.h"

namespace brolk {

// Width of the scroll bar beside the page, in pixels.
inline constexpr int kPageScrollBarPx = 17;

// The outer size of the window around a page, in twips: the page, the scroll bar and the frame. The product
// of tile size and count is 16-bit; the zoom does not wrap.
struct WindowExtent {
  std::int64_t width = 0;
  std::int64_t height = 0;
};
[[nodiscard]] WindowExtent PageWindowExtent(const TileExtent& tile, std::int16_t rows, std::int16_t lines,
                                            int twipsPerPixel);

// "Browser - 'game.gb' in Gameboy mode".
[[nodiscard]] std::string PageCaption(std::string_view fileName, std::string_view modeName);

// "The last redraw took about 0.015 seconds.", with whole milliseconds, the fraction cut off. The two times
// are seconds since midnight.
[[nodiscard]] std::string RedrawTimeText(float before, float after);

}  // namespace brolk
