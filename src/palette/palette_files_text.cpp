// SPDX-License-Identifier: MIT
#include "palette/palette_files.h"
#include "palette/palette_model.h"
#include "runtime/fault.h"
#include "runtime/files.h"
#include "runtime/numbers.h"
#include "runtime/text_stream.h"

namespace brolk {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr FixedNotice kReplaceQuestion = {
    "Replace current list of color sets?\r\nSelect 'No' to add to the list.", "Replace color sets?",
    NoticeIcon::Question};

// The place of the first set to be read.
std::uint8_t StartPlace(const LoadRequest& request) {
  if (SetCount == 0 || request.answerYes(kReplaceQuestion)) return 0;
  return SetCount;
}

TextReader OpenText(const FileSource& file) {
  return file.inMemory ? TextReader(file.bytes) : TextReader(file.path);
}

bool AreDigits(std::string_view text, std::string_view digits) {
  return !text.empty() && text.find_first_not_of(digits) == std::string_view::npos;
}

// True when the whole text is one number: decimal digits with one optional point, or &H or &O and digits,
// with one optional sign.
bool IsNumber(std::string_view text) {
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  if (text.starts_with("&H") || text.starts_with("&h")) {
    return AreDigits(text.substr(2), "0123456789ABCDEFabcdef");
  }
  if (text.starts_with("&O") || text.starts_with("&o")) return AreDigits(text.substr(2), "01234567");
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos) return AreDigits(text, "0123456789");
  const std::string whole = std::string(text.substr(0, point)).append(text.substr(point + 1));
  return AreDigits(whole, "0123456789");
}

// Channels below 0 are taken as they stand; below an Integer they are the overflow fault.
std::int32_t ChannelOf(std::string_view part) {
  if (!IsNumber(part)) throw Fault(FaultKind::TypeMismatch);
  const double value = Val(part);
  return value > 255 ? 255 : RoundToInteger(value);
}

void ReadSet(TextReader& lines, ColorSetRecord& set) {
  set.Name = lines.ReadLine();
  for (ColorValue& color : set.Colors) color = ColorOfLine(lines.ReadLine());
  lines.SkipLine();
}

}  // namespace

ColorValue ColorOfLine(std::string_view line) {
  std::array<std::string_view, 3> parts;
  std::size_t count = 0;
  for (std::size_t start = 0; count < parts.size() && start <= line.size();) {
    const std::size_t blank = std::min(line.find(' ', start), line.size());
    parts[count++] = line.substr(start, blank - start);
    start = blank + 1;
  }
  if (count < parts.size()) throw Fault(FaultKind::SubscriptOutOfRange);
  const std::int64_t red = ChannelOf(parts[0]);
  const std::int64_t green = ChannelOf(parts[1]);
  const std::int64_t blue = ChannelOf(parts[2]);
  return Wrap32(red + green * 256 + blue * 65536);
}

LoadOutcome LoadTextPalette(const PaletteKind& kind, const LoadRequest& request) {
  const std::uint8_t start = StartPlace(request);
  TextReader lines = OpenText(request.file);
  if (lines.ReadLine() != kTextPaletteHeader) {
    lines.Abandon();
    return {kind.wrongSignature, false};
  }
  const std::uint8_t count = RoundToByte(Val(lines.ReadLine()));
  SetCount = count > 255 - start ? std::uint8_t{255} : WrapByte(start + count);
  lines.SkipLine();
  for (int place = start; place < SetCount; ++place) ReadSet(lines, Sets[place]);
  lines.Close();
  return {};
}

std::string TextPaletteOf(const ColorSetRecord& set) {
  std::string text = set.Name;
  text += kLineEnd;
  for (const ColorValue color : set.Colors) {
    text += NumberText(RedOf(color)) + ' ' + NumberText(GreenOf(color)) + ' ' + NumberText(BlueOf(color));
    text += kLineEnd;
  }
  return text;
}

void SaveTextPalette(std::int16_t handle, std::string_view path) {
  _lclose(handle);
  TextWriter lines(path);
  lines.WriteLine(kTextPaletteHeader);
  lines.WriteLine(NumberText(std::int32_t{SetCount}));
  lines.WriteBlankLines(1);
  const std::uint8_t last = WrapByte(SetCount - 1);
  for (std::uint8_t place = 0; place <= last; ++place) {
    // The line end that this adds is the empty line behind the set.
    lines.WriteLine(TextPaletteOf(Sets[place]));
  }
  lines.Close();
}

}  // namespace brolk
