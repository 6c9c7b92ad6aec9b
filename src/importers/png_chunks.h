// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "runtime/byte_reader.h"

namespace brolk {

// The class of a chunk. A known chunk of a wrong length is Invalid; an unknown one is told by the case of its
// first letter.
enum class ChunkKind : std::uint8_t {
  Header = 0,            // IHDR
  End = 1,               // IEND
  Image = 2,             // IDAT
  Gamma = 3,             // gAMA
  SignificantBits = 4,   // sBIT
  Palette = 5,           // PLTE
  Background = 6,        // bKGD
  Invalid = 7,           // a known chunk of a wrong length
  UnknownAncillary = 8,  // may be passed over
  UnknownCritical = 9,   // must not
};
inline constexpr std::size_t kChunkKinds = 10;

struct PngChunk {
  std::int32_t Length = 0;  // as the file tells it
  std::array<std::uint8_t, 4> ChunkType{};
  // The bytes that the file really has, at most as many as any rule looks at.
  std::vector<std::uint8_t> Data;

  // A byte of the data, counted from 1. One that the file lacks is 0.
  [[nodiscard]] std::uint8_t DataByte(std::size_t index) const {
    return index <= Data.size() ? Data[index - 1] : std::uint8_t{0};
  }
  // Big-endian numbers from the data, the first byte counted from 1.
  [[nodiscard]] std::uint16_t DataWord(std::size_t index) const;
  [[nodiscard]] std::uint32_t DataLong(std::size_t index) const;
};

// Takes a file apart into chunks. The position counts the bytes asked for and can pass the end of the file:
// what is missing there reads as 0.
class PngChunkReader final {
 public:
  explicit PngChunkReader(const FileSource& file)
      : reader_(file), length_(reader_.IsOpen() ? reader_.Length() : 0) {}

  [[nodiscard]] bool IsOpen() const { return reader_.IsOpen(); }
  [[nodiscard]] bool IsPastEnd() const { return position_ > length_; }
  [[nodiscard]] bool IsAtEnd() const { return position_ == length_; }

  [[nodiscard]] std::array<std::uint8_t, 8> ReadSignature();

  // Reads the next chunk and tells its kind. A negative length ends it at once, without type and data, as a
  // header chunk.
  ChunkKind ReadChunk(PngChunk& chunk);

 private:
  void ReadPadded(std::span<std::uint8_t> target);
  void Pass(std::int64_t count);

  ByteReader reader_;
  std::int64_t length_;
  std::int64_t position_ = 0;
};

}  // namespace brolk
