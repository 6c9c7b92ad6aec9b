// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

// Naive twins of the tile engine: one pixel and one byte at a time, written down from the layouts of the
// consoles and the rules of reading, without a line of the program's own code.
namespace brolk::test {

using Bytes = std::vector<std::uint8_t>;

// The modes with a layout of their own, by number, and the bytes of a tile.
inline constexpr std::array<int, 13> kRegularModes = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13};
[[nodiscard]] int NaiveTileBytes(int mode);
[[nodiscard]] int NaiveBitsPerPixel(int mode);
[[nodiscard]] std::string ModeLabel(int mode);

// The colour index at (x, y) of one tile.
[[nodiscard]] std::uint8_t NaivePixel(int mode, std::span<const std::uint8_t> tile, int x, int y);

// The 64 indices of one tile.
[[nodiscard]] Bytes NaiveDecode(int mode, std::span<const std::uint8_t> tile);

// The bytes of one tile; every pixel fits the mode. Built by setting the bits that NaivePixel reads.
[[nodiscard]] Bytes NaiveEncode(int mode, std::span<const std::uint8_t> pixels);

// A file in memory with a position, which may stop to deliver after some reads.
struct NaiveFile {
  Bytes bytes;
  std::int64_t position = 0;
  bool open = true;
  std::int64_t readsLeft = -1;  // -1: no limit

  void SeekTo(std::int64_t place);
  void SeekBy(std::int64_t distance);
  // Leaves `target` alone where there is nothing to read.
  void Read(std::uint8_t& target);
};

// Reads `count` (1 or more) tiles of any mode from `address` on into `pixels`, which has room for them and
// keeps what is not written. The shape of a bitmap tile: depth 0 to 3, width and height 1 to 255.
struct BitmapShape {
  int depth = 0;
  int width = 8;
  int height = 8;
};

// The bytes that one tile of this shape reads: at 4 and 8 bits per pixel the low byte of the area, counted in
// 16 bits and halved at 4. 0: the tile never ends.
[[nodiscard]] int BitmapReads(BitmapShape shape);

// Reads `count` tiles of any mode from `address` on into `pixels`, which keeps what is not written. Entries
// beyond its end throw std::out_of_range. No tile may be endless.
void NaiveRead(int mode, NaiveFile& file, std::int64_t address, int count, BitmapShape shape, Bytes& pixels);

}  // namespace brolk::test
