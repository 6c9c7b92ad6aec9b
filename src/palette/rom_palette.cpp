// SPDX-License-Identifier: MIT
#include "palette/rom_palette.h"

#include <array>
#include <span>

#include "palette/color_sets.h"
#include "palette/palette_model.h"
#include "runtime/files.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr std::int32_t kNesFormat = 2;
constexpr std::int32_t kWordBytes = 2;
constexpr std::int32_t kTopBit = 32768;

// The variable that every read of one run goes into. It is zero once, before the run: a read that delivers
// one byte of two replaces the low one, a read that delivers none leaves both.
class WordVariable final {
 public:
  void Read(std::int16_t handle, std::size_t byteCount) {
    static_cast<void>(_hread(handle, std::span(bytes_).first(byteCount)));
  }
  [[nodiscard]] std::int32_t Value() const { return bytes_[0] + bytes_[1] * 256; }

 private:
  std::array<std::uint8_t, kWordBytes> bytes_{};
};

void SeekTo(std::int16_t handle, const std::string& addressText) {
  _llseek(handle, RoundToLong(Val(addressText)), kFromStart);
}

// The seek back covers a whole word whatever the read delivered: past the end of the file each colour
// overwrites the one before.
void WriteColor(std::int16_t handle, WordVariable& word, ColorValue color, std::uint8_t format) {
  word.Read(handle, kWordBytes);
  _llseek(handle, -kWordBytes, kFromHere);
  const std::int32_t newWord = word.Value() / kTopBit * kTopBit + RGBToCol(color, format);
  std::string text = NumberText(newWord);
  text.resize(kWordBytes, '\0');
  _hwrite(handle, text);
}

}  // namespace

void FillPaletteFormats() {
  PaletteFormats[0] = {"15 bpc RGB", 2};
  PaletteFormats[1] = {"15 bpc BGR (SNES)", 2};
  PaletteFormats[2] = {"6 bpc NES", 1};
}

std::string DecimalAddress(std::string_view text) {
  return NumberText(Val(text));
}

void LoadRomPalette(std::int16_t handle, const RomPaletteRun& run, std::string_view typeName) {
  if (SetCount == kFullSetCount) return;
  const std::uint8_t byteCount = PaletteFormats[run.format].BytesPerColor;
  SeekTo(handle, run.addressText);
  ColorSetRecord& set = Sets[SetCount];
  WordVariable word;
  for (std::int32_t index = 0; index < run.count; ++index) {
    word.Read(handle, byteCount);
    set.Colors[index] = ColToRGB(word.Value(), static_cast<std::uint8_t>(run.format));
  }
  for (std::int32_t index = run.count; index < set.Colors.Size(); ++index) set.Colors[index] = 0;
  set.Name = std::string(typeName) + " at " + DecimalAddress(run.addressText);
  ++SetCount;
}

bool WriteRomPalette(std::int16_t handle, const RomPaletteRun& run) {
  SeekTo(handle, run.addressText);
  WordVariable word;
  for (std::int32_t index = 0; index < run.count; ++index) {
    if (run.format == kNesFormat) return false;
    WriteColor(handle, word, Sets[SelectedSet].Colors[index], static_cast<std::uint8_t>(run.format));
  }
  return true;
}

}  // namespace brolk
