// SPDX-License-Identifier: MIT
#include "runtime/byte_reader.h"

#include <algorithm>
#include <limits>

#include "runtime/files.h"

namespace brolk {

ByteReader::ByteReader(const FileSource& source) : source_(source) {
  if (source_.inMemory) {
    ahead_ = source_.bytes;
  } else {
    handle_ = OpenFile(source_.path, kOpenRead);
  }
}

ByteReader::~ByteReader() {
  if (handle_ >= 0) _lclose(handle_);
}

bool ByteReader::IsOpen() const {
  return source_.inMemory || handle_ >= 0;
}

std::int64_t ByteReader::Length() const {
  if (source_.inMemory) return static_cast<std::int64_t>(source_.bytes.size());
  return handle_ >= 0 ? OpenFileLength(handle_) : FileLengthOf(source_.path);
}

bool ByteReader::Refill() {
  const std::int32_t count = _hread(handle_, block_);
  ahead_ = std::span(block_).first(static_cast<std::size_t>(std::max(count, 0)));
  return !ahead_.empty();
}

bool ByteReader::Next(std::uint8_t& byte) {
  if (ahead_.empty() && !Refill()) return false;
  byte = ahead_.front();
  ahead_ = ahead_.subspan(1);
  return true;
}

void ByteReader::NextWord(std::uint16_t& word) {
  std::uint8_t low = static_cast<std::uint8_t>(word & 0xFF);
  std::uint8_t high = static_cast<std::uint8_t>(word >> 8);
  if (Next(low)) Next(high);
  word = static_cast<std::uint16_t>(low | (high << 8));
}

std::size_t ByteReader::Read(std::span<std::uint8_t> target) {
  std::size_t done = 0;
  while (done < target.size() && (!ahead_.empty() || Refill())) {
    const std::size_t count = std::min(ahead_.size(), target.size() - done);
    std::copy_n(ahead_.begin(), count, target.subspan(done).begin());
    ahead_ = ahead_.subspan(count);
    done += count;
  }
  return done;
}

std::string ByteReader::TakeText(std::size_t count) {
  std::string text;
  std::uint8_t byte = 0;
  for (std::size_t k = 0; k < count; ++k) {
    Next(byte);
    text += static_cast<char>(byte);
  }
  return text;
}

bool ByteReader::TakeZeroEndedText(std::string& text) {
  text.clear();
  for (std::uint8_t byte = 0; Next(byte);) {
    if (byte == 0) return true;
    text += static_cast<char>(byte);
  }
  return false;
}

void ByteReader::Seek(std::int32_t offset) {
  if (source_.inMemory) {
    ahead_ = source_.bytes.subspan(std::min(static_cast<std::size_t>(offset), source_.bytes.size()));
    return;
  }
  ahead_ = {};
  _llseek(handle_, offset, kFromStart);
}

void ByteReader::Skip(std::int64_t count) {
  const std::int64_t inBlock = std::min(count, static_cast<std::int64_t>(ahead_.size()));
  ahead_ = ahead_.subspan(static_cast<std::size_t>(inBlock));
  for (std::int64_t left = count - inBlock; left > 0;) {
    const std::int64_t step = std::min<std::int64_t>(left, std::numeric_limits<std::int32_t>::max());
    _llseek(handle_, static_cast<std::int32_t>(step), kFromHere);
    left -= step;
  }
}

void ByteReader::Abandon() {
  handle_ = -1;
}

}  // namespace brolk
