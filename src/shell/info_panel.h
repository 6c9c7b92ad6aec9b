// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace brolk {

// Twips in one screen pixel, read once at the start.
inline std::uint8_t TwipsPerPixel = 0;

// Top of the labels in the info panel, in twips.
inline constexpr double kInfoLabelTop = 10;

// Places of the four labels in the info panel, in twips, in their order from the left: lblInfo, lblAddress,
// lblPosition, lblColor. Whole numbers, kept wide so that no screen is too large for them.
struct InfoPanelLayout {
  struct Place {
    double left = 0;
    double width = 0;
  };
  Place info;
  Place address;
  Place position;
  Place color;
};

// Shares the inner width of the frame (twips) out: 6, 2 and 1 tenths, rounded to the nearest, ties to even,
// and the rest. A pixel stands between two labels and is not taken off the widths, so the last label ends
// three pixels beyond the panel. That is meant.
[[nodiscard]] InfoPanelLayout LayOutInfoPanel(double innerWidth, std::uint8_t twipsPerPixel);

}  // namespace brolk
