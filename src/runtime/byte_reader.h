// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace brolk {

// A file to read: one on the disk by its path (UTF-8), or its bytes in memory, which must outlive every
// reader.
struct FileSource {
  std::string path;
  std::span<const std::uint8_t> bytes;
  bool inMemory = false;

  [[nodiscard]] static FileSource AtPath(std::string path) { return {std::move(path), {}, false}; }
  [[nodiscard]] static FileSource InMemory(std::span<const std::uint8_t> bytes) { return {{}, bytes, true}; }
};

// The bytes of a file, one after the other. A file that cannot be opened delivers none. Reads ahead in blocks
// of its own size, so nothing is allocated by what a file says.
class ByteReader final {
 public:
  explicit ByteReader(const FileSource& source);
  // Closes the file.
  ~ByteReader();
  ByteReader(const ByteReader&) = delete;
  ByteReader& operator=(const ByteReader&) = delete;

  [[nodiscard]] bool IsOpen() const;

  // The length in bytes. A file that cannot be opened has its length all the same.
  [[nodiscard]] std::int64_t Length() const;

  // Takes the next byte. False at the end: nothing is delivered, and `byte` keeps what it held.
  bool Next(std::uint8_t& byte);

  // Takes two bytes as a word, low byte first. A byte that is not delivered leaves its half of `word` alone.
  void NextWord(std::uint16_t& word);

  // Fills the target as far as the file goes and answers the number of bytes delivered; the rest is left
  // alone.
  std::size_t Read(std::span<std::uint8_t> target);

  // The next `count` bytes, taken through one variable that starts at 0: past the end the last one counts
  // again.
  [[nodiscard]] std::string TakeText(std::size_t count);

  // Takes bytes up to a zero byte, which is not part of the text. False when the file ends before it; what
  // came stands in `text` all the same.
  bool TakeZeroEndedText(std::string& text);

  // Goes to `offset` bytes from the start, 0 or more. Past the end nothing is delivered.
  void Seek(std::int32_t offset);

  // Passes over `count` bytes, 0 or more, also past the end.
  void Skip(std::int64_t count);

  // Leaves the file open to the end of the process, for the rules that stop without closing.
  void Abandon();

 private:
  bool Refill();

  FileSource source_;
  std::int16_t handle_ = -1;
  std::array<std::uint8_t, 4096> block_{};
  std::span<const std::uint8_t> ahead_;
};

}  // namespace brolk
