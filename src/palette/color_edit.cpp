// SPDX-License-Identifier: MIT
#include "palette/color_edit.h"

namespace brolk {

ColorTarget TargetOf(std::int16_t editSet) {
  if (editSet == kLivePalette) return ColorTarget::LivePalette;
  if (editSet == kLivePaletteUnseen) return ColorTarget::LivePaletteUnseen;
  return editSet < 0 ? ColorTarget::Nothing : ColorTarget::ColorSet;
}

ColorValue PreviewTextColor(std::int32_t red, std::int32_t green) {
  return PackRgb(255 - red, 255 - green, 0);
}

std::int32_t FiveBits(std::int32_t channel) {
  return channel / 8;
}

}  // namespace brolk
