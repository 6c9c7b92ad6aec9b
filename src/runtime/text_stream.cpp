// SPDX-License-Identifier: MIT
#include "runtime/text_stream.h"

#include <algorithm>
#include <array>

#include "runtime/fault.h"
#include "runtime/files.h"

namespace brolk {

TextReader::TextReader(std::string_view path) : handle_(OpenFile(path, kOpenRead)) {
  if (handle_ < 0) throw Fault(FaultKind::FileNotFound);
  std::array<std::uint8_t, 65536> block{};
  for (;;) {
    const std::int32_t count = _hread(handle_, block);
    if (count <= 0) break;
    content_.append(reinterpret_cast<const char*>(block.data()), static_cast<std::size_t>(count));
  }
}

TextReader::TextReader(std::span<const std::uint8_t> bytes)
    : handle_(-1), content_(bytes.begin(), bytes.end()) {}

TextReader::~TextReader() {
  Close();
}

std::string TextReader::ReadLine() {
  if (position_ >= content_.size()) throw Fault(FaultKind::InputPastEnd);
  const std::size_t end = std::min(content_.find('\n', position_), content_.size());
  std::size_t length = end - position_;
  if (end < content_.size() && length > 0 && content_[end - 1] == '\r') --length;
  std::string line = content_.substr(position_, length);
  position_ = end + 1;
  return line;
}

void TextReader::SkipLine() {
  static_cast<void>(ReadLine());
}

void TextReader::Close() {
  if (handle_ >= 0) _lclose(handle_);
  handle_ = -1;
}

void TextReader::Abandon() {
  handle_ = -1;
}

TextWriter::TextWriter(std::string_view path) : handle_(OpenFile(path, kOpenCreate)) {
  if (handle_ < 0) throw Fault(FaultKind::FileNotFound);
}

TextWriter::~TextWriter() {
  Close();
}

void TextWriter::WriteLine(std::string_view bytes) {
  _hwrite(handle_, std::string(bytes) + "\r\n");
}

void TextWriter::WriteBlankLines(int count) {
  for (int line = 0; line < count; ++line) WriteLine("");
}

void TextWriter::Close() {
  if (handle_ >= 0) _lclose(handle_);
  handle_ = -1;
}

std::vector<std::string> SplitAtBlanks(std::string_view text) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  std::size_t start = 0;
  for (;;) {
    const std::size_t blank = text.find(' ', start);
    pieces.emplace_back(text.substr(start, blank == std::string_view::npos ? blank : blank - start));
    if (blank == std::string_view::npos) return pieces;
    start = blank + 1;
  }
}

}  // namespace brolk
