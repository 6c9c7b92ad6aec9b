// SPDX-License-Identifier: MIT
#include "palette/palette_model.h"

namespace brolk {

void FillPow2() {}
void SetDefaultPalette() {}
std::int32_t RedOf(ColorValue color) {
  return color & 0xFF;
}
std::int32_t GreenOf(ColorValue color) {
  return (color >> 8) & 0xFF;
}
std::int32_t BlueOf(ColorValue color) {
  return (color >> 16) & 0xFF;
}
ColorValue ColToRGB(std::int32_t, std::uint8_t) {
  return 0;
}
std::int32_t RGBToCol(ColorValue, std::uint8_t) {
  return 0;
}
std::int32_t ShiftRight(std::int32_t value, std::int32_t) {
  return value;
}

}  // namespace brolk
