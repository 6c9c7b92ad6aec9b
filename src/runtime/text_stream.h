// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brolk {

// The lines of a text file, as bytes. A line ends at a line feed, and one carriage return before it is
// dropped; the last line needs no end.
class TextReader final {
 public:
  // Opens the file (path in UTF-8). A file that cannot be opened is the file fault.
  explicit TextReader(std::string_view path);
  // Reads lines from bytes in memory.
  explicit TextReader(std::span<const std::uint8_t> bytes);
  ~TextReader();
  TextReader(const TextReader&) = delete;
  TextReader& operator=(const TextReader&) = delete;

  // The next line without its end. Reading past the last one is the end-of-file fault.
  std::string ReadLine();
  // Passes over the next line, with the same fault.
  void SkipLine();
  // Ends the use of the file; later calls do nothing.
  void Close();
  // Leaves the file open to the end of the process, for the rules that stop without closing.
  void Abandon();

 private:
  std::int16_t handle_;
  std::string content_;
  std::size_t position_ = 0;
};

// Writes a text file line by line; a line ends with a carriage return and a line feed. Existing files are
// overwritten. Unbuffered.
class TextWriter final {
 public:
  // Creates the file (path in UTF-8). A file that cannot be created is the file fault.
  explicit TextWriter(std::string_view path);
  ~TextWriter();
  TextWriter(const TextWriter&) = delete;
  TextWriter& operator=(const TextWriter&) = delete;

  void WriteLine(std::string_view bytes);
  // Writes `count` empty lines.
  void WriteBlankLines(int count);
  void Close();

 private:
  std::int16_t handle_;
};

// A text cut at every single blank: two blanks in a row give an empty piece between them. An empty text gives
// no piece.
[[nodiscard]] std::vector<std::string> SplitAtBlanks(std::string_view text);

}  // namespace brolk
