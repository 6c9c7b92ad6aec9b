// SPDX-License-Identifier: MIT
#include "palette/palette_model.h"

#include <array>
#include <cstdlib>

#include "palette/nes_colors.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr std::int32_t kRampFirst = 16;
constexpr std::int32_t kRampTop = 271;  // index + red of every ramp entry

// Storage formats of a colour, the positions of the list of palette types.
constexpr std::uint8_t kFormatRgb = 0;
constexpr std::uint8_t kFormatBgr = 1;
constexpr std::uint8_t kFormatNes = 2;

struct Rgb {
  std::int32_t red, green, blue;
};

// Four short ramps: orange, red, green, blue.
constexpr std::array<Rgb, kRampFirst> kFixedColors = {{
    {255, 128, 0},
    {192, 64, 0},
    {128, 0, 0},
    {96, 0, 0},  // 0 to 3
    {255, 0, 0},
    {208, 0, 0},
    {160, 0, 0},
    {112, 0, 0},  // 4 to 7
    {0, 255, 0},
    {0, 208, 0},
    {0, 160, 0},
    {0, 112, 0},  // 8 to 11
    {0, 0, 255},
    {0, 0, 208},
    {0, 0, 160},
    {0, 0, 112},  // 12 to 15
}};

// Remainder modulo 256, brought back to 0..255 when it is negative.
std::int32_t ChannelOf(std::int32_t value) {
  const std::int32_t rest = value % 256;
  return rest < 0 ? rest + 256 : rest;
}

// One 5-bit field times 8, in a byte: 31 becomes 248, the low bits stay empty.
std::int32_t ChannelOfField(std::int32_t field) {
  return WrapByte(field % 32 * 8);
}

std::int32_t Distance(ColorValue one, ColorValue other) {
  return std::abs(RedOf(one) - RedOf(other)) + std::abs(GreenOf(one) - GreenOf(other)) +
         std::abs(BlueOf(one) - BlueOf(other));
}

// The search for the nearest NES colour. The best distance starts at 0 and none is smaller, so the answer is
// 0 for every colour. That is meant.
std::int32_t NearestNesColor(ColorValue color) {
  std::int32_t answer = 0;
  std::int32_t best = 0;
  for (std::int32_t index = 0; index < NesPalette.Size(); ++index) {
    const std::int32_t distance = Distance(color, NesPalette[index]);
    if (distance >= best) continue;
    best = distance;
    answer = index;
  }
  return answer;
}

}  // namespace

void FillPow2() {
  for (std::int32_t bit = 0; bit < Pow2.Size(); ++bit) Pow2[bit] = Wrap32(std::int64_t{1} << bit);
}

void SetDefaultPalette() {
  std::int32_t index = 0;
  for (const Rgb& color : kFixedColors) Palette[index++] = PackRgb(color.red, color.green, color.blue);
  for (; index < Palette.Size(); ++index) {
    const std::int32_t value = kRampTop - index;
    Palette[index] = PackRgb(value, RoundToLong(value * 0.75), RoundToLong(value * 0.25));
  }
  index = 0;
  for (const ColorValue color : kNesColors) NesPalette[index++] = color;
}

std::int32_t RedOf(ColorValue color) {
  return ChannelOf(color);
}
std::int32_t GreenOf(ColorValue color) {
  return ChannelOf(color / 256);
}
std::int32_t BlueOf(ColorValue color) {
  return ChannelOf(color / 65536);
}

// The two conversions are no mirror images: a format that reads red from the high field writes it to the low
// one. A word that is read and written back has red and blue exchanged. That is meant.
ColorValue ColToRGB(std::int32_t word, std::uint8_t format) {
  const std::int32_t low = ChannelOfField(word);
  const std::int32_t middle = ChannelOfField(word / 32);
  const std::int32_t high = ChannelOfField(word / 1024);
  if (format == kFormatRgb) return PackRgb(high, middle, low);
  if (format == kFormatBgr) return PackRgb(low, middle, high);
  return 0;
}

std::int32_t RGBToCol(ColorValue color, std::uint8_t format) {
  const std::int32_t red = RedOf(color) / 8;
  const std::int32_t green = GreenOf(color) / 8;
  const std::int32_t blue = BlueOf(color) / 8;
  if (format == kFormatRgb) return blue * 1024 + green * 32 + red;
  if (format == kFormatBgr) return red * 1024 + green * 32 + blue;
  if (format == kFormatNes) return NearestNesColor(color);
  return 0;
}

std::int32_t ShiftRight(std::int32_t value, std::int32_t bits) {
  if (bits < 1) return value;
  if (bits > 31) return 0;
  if (value >= 0) return DivideIntegers(value, Pow2[bits]);
  return DivideIntegers(value & 0x7FFFFFFF, Pow2[bits]) | Pow2[31 - bits];
}

}  // namespace brolk
