// SPDX-License-Identifier: MIT
#include "importers/pictures.h"

#include "importers/gif_read.h"
#include "importers/png.h"
#include "palette/color_sets.h"
#include "runtime/ansi_text.h"
#include "runtime/files.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr std::string_view kPngErrorTitle = "Error reading Png file";
constexpr FixedNotice kTrueColor = {"Png files in True Color are not supported.", "Wrong Png file format"};

// The one reader, made at the first use.
cPng& PngReader() {
  static cPng reader;
  return reader;
}

Notice PngRefusal(PngResult result) {
  std::string text;
  switch (result) {
    case PngResult::NotOpened:
      text = "The file couldn't be opened: \r\n" + OpenErrorText();
      break;
    case PngResult::Unsupported:
      text = "This Png file version is not supported.";
      break;
    case PngResult::NotValid:
    case PngResult::Read:
      text = "This is no valid Png file.";
      break;
  }
  return {std::move(text), kPngErrorTitle, NoticeIcon::Critical};
}

void BlackenFrom(ColorSetRecord& set, int first) {
  for (int index = first; index <= 255; ++index) set.Colors[index] = 0;
}

void NameAndCount(ColorSetRecord& set, const LoadRequest& request) {
  set.Name = AnsiFromUtf8(request.fileTitle);
  ++SetCount;
}

}  // namespace

LoadOutcome LoadGifPicture(const PaletteKind&, const LoadRequest& request) {
  std::optional<Notice> refusal;
  if (!ReadGifPalette(request.file, refusal)) return {std::move(refusal), false};
  ColorSetRecord& set = Sets[SetCount];
  for (int index = 0; index <= GifPaletteLast; ++index) {
    const GifColor& color = GifPalette[static_cast<std::size_t>(index)];
    set.Colors[index] = PackRgb(color.red, color.green, color.blue);
  }
  BlackenFrom(set, GifPaletteLast + 1);
  NameAndCount(set, request);
  return {};
}

LoadOutcome LoadPngPicture(const PaletteKind&, const LoadRequest& request) {
  cPng& png = PngReader();
  const PngResult result = png.ReadPngFile(request.file);
  if (result != PngResult::Read) return {PngRefusal(result), true};
  LoadOutcome outcome;
  ColorSetRecord& set = Sets[SetCount];
  if (png.IsPalette()) {
    for (std::int32_t index = 0; index < png.ClrTableSize(); ++index) {
      set.Colors[index] = png.ColorTable(Wrap16(index + 1));
    }
    BlackenFrom(set, png.ClrTableSize());
  } else {
    outcome.notice = kTrueColor;
  }
  NameAndCount(set, request);
  return outcome;
}

}  // namespace brolk
