// SPDX-License-Identifier: MIT
#include "tile/naive_tile.h"

#include <stdexcept>

namespace brolk::test {
namespace {

int BitOf(std::uint8_t byte, int bit) {
  return byte / (1 << bit) % 2;
}

// Where the planes of row y stand, in the order of their weights 1, 2, 4, ...
std::vector<int> PlaneBytes(int mode, int y) {
  switch (mode) {
    case 0:
      return {2 * y, 2 * y + 1};
    case 1:
      return {y, 8 + y};
    case 3:
      return {2 * y, 2 * y + 1, 16 + 2 * y, 17 + 2 * y};
    case 4:
      return {y};
    case 7:
      return {4 * y, 4 * y + 1, 4 * y + 2, 4 * y + 3};
    case 8:
      return {2 * y, 2 * y + 1, 16 + y};
    case 11:
      return {2 * y, 2 * y + 1, 16 + 2 * y, 17 + 2 * y, 32 + 2 * y, 33 + 2 * y, 48 + 2 * y, 49 + 2 * y};
    case 13:
      return {2 * y + 1, 2 * y, 17 + 2 * y, 16 + 2 * y};
    default:
      return {};
  }
}

std::uint8_t PackedPixel(int mode, std::span<const std::uint8_t> tile, int x, int y) {
  const auto i = static_cast<std::size_t>(8 * y + x);
  const auto row = static_cast<std::size_t>(2 * y);
  switch (mode) {
    case 2: {
      const std::uint8_t byte = x < 4 ? tile[row + 1] : tile[row];
      const int p = x % 4;
      return static_cast<std::uint8_t>(2 * BitOf(byte, 7 - 2 * p) + BitOf(byte, 6 - 2 * p));
    }
    case 5: {
      const int j = x % 4;
      return static_cast<std::uint8_t>(BitOf(tile[i / 4], 2 * j) + 2 * BitOf(tile[i / 4], 2 * j + 1));
    }
    case 6:
      return i % 2 == 0 ? tile[i / 2] / 16 : tile[i / 2] % 16;
    case 9:
      return i % 2 == 0 ? tile[i / 2] % 16 : tile[i / 2] / 16;
    case 10:
      return tile[i];
    default:
      throw std::logic_error("no regular mode");
  }
}

// The entry of the local array that read number `read` of a tile goes to.
std::size_t EntryOf(int mode, int read) {
  switch (mode) {
    case 4:
    case 5:
    case 6:
    case 9:
    case 10:
      return 0;
    case 7:
      return static_cast<std::size_t>(read % 4);
    case 8:
      return read < 16 ? static_cast<std::size_t>(read % 2) : 0;
    default:
      return static_cast<std::size_t>(read % 2);
  }
}

using Local = std::array<std::uint8_t, 4>;

// The bytes that a tile seems to have, stale ones included.
Bytes FetchTile(int mode, NaiveFile& file, Local& local) {
  Bytes tile(static_cast<std::size_t>(NaiveTileBytes(mode)));
  if (mode == 1) {
    for (std::size_t y = 0; y < 8; ++y) {
      file.Read(local[0]);
      tile[y] = local[0];
      file.SeekBy(7);
      file.Read(local[1]);
      tile[8 + y] = local[1];
      file.SeekBy(-8);
    }
    file.SeekBy(8);
    return tile;
  }
  for (std::size_t read = 0; read < tile.size(); ++read) {
    std::uint8_t& entry = local[EntryOf(mode, static_cast<int>(read))];
    file.Read(entry);
    tile[read] = entry;
  }
  return tile;
}

void ReadBitmapTile(NaiveFile& file, Local& local, BitmapShape shape, Bytes& pixels, std::size_t& at) {
  if (shape.depth == 0) {
    for (int y = 0; y < shape.height; ++y) {
      file.Read(local[0]);
      for (int x = 0; x < shape.width; ++x) {
        pixels.at(at++) = static_cast<std::uint8_t>(x < 8 ? BitOf(local[0], 7 - x) : 1);
      }
    }
  } else if (shape.depth == 1) {
    for (int y = 0; y < shape.height; ++y) {
      file.Read(local[0]);
      pixels.at(at) = 1;
      at += 4;
    }
  } else if (shape.depth == 2) {
    for (int i = 0; i < BitmapReads(shape); ++i) {
      file.Read(local[0]);
      pixels.at(at++) = local[0] % 16;
      pixels.at(at++) = local[0] / 16;
    }
  } else {
    for (int i = 0; i < BitmapReads(shape); ++i) {
      file.Read(local[0]);
      pixels.at(at++) = local[0];
    }
  }
}

void ReadSpriteTile(NaiveFile& file, Local& local, Bytes& pixels, std::size_t start) {
  for (int pass = 0; pass < 4; ++pass) {
    for (int r = 0; r < 16; ++r) {
      file.Read(local[0]);
      file.Read(local[1]);
      for (int x = 0; x < 8; ++x) {
        const std::size_t p = start + static_cast<std::size_t>(16 * r + 2 * x);
        if (pass == 0) pixels.at(p) = pixels.at(p + 8) = 0;
        pixels.at(p) = static_cast<std::uint8_t>(pixels.at(p) + BitOf(local[1], 7 - x) * (1 << pass));
        pixels.at(p + 8) = static_cast<std::uint8_t>(pixels.at(p + 8) + BitOf(local[0], 7 - x) * (1 << pass));
      }
    }
  }
}

}  // namespace

int BitmapReads(BitmapShape shape) {
  if (shape.depth < 2) return shape.height;
  int area = shape.width * shape.height % 65536;
  if (area >= 32768) area -= 65536;
  const int reads = shape.depth == 2 ? area / 2 : area;
  return (reads % 256 + 256) % 256;
}

int NaiveTileBytes(int mode) {
  return 8 * NaiveBitsPerPixel(mode);
}

int NaiveBitsPerPixel(int mode) {
  constexpr std::array<int, 15> kBits = {2, 2, 2, 4, 1, 2, 4, 4, 3, 4, 8, 8, 0, 4, 0};
  return kBits.at(static_cast<std::size_t>(mode));
}

std::string ModeLabel(int mode) {
  constexpr std::array<const char*, 15> kLabels = {
      "Gameboy", "Nes",  "NeoGeoPocket", "Snes4", "OneBit", "VirtualBoy",   "MegaDrive",     "GameGear",
      "Snes3",   "Gba4", "Gba8",         "Snes8", "Bitmap", "PcEngineChar", "PcEngineSprite"};
  return kLabels.at(static_cast<std::size_t>(mode));
}

std::uint8_t NaivePixel(int mode, std::span<const std::uint8_t> tile, int x, int y) {
  const std::vector<int> planes = PlaneBytes(mode, y);
  if (planes.empty()) return PackedPixel(mode, tile, x, y);
  int value = 0;
  for (std::size_t plane = 0; plane < planes.size(); ++plane) {
    value += BitOf(tile[static_cast<std::size_t>(planes[plane])], 7 - x) * (1 << plane);
  }
  return static_cast<std::uint8_t>(value);
}

Bytes NaiveDecode(int mode, std::span<const std::uint8_t> tile) {
  Bytes pixels;
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) pixels.push_back(NaivePixel(mode, tile, x, y));
  }
  return pixels;
}

Bytes NaiveEncode(int mode, std::span<const std::uint8_t> pixels) {
  Bytes tile(static_cast<std::size_t>(NaiveTileBytes(mode)));
  for (std::size_t bit = 0; bit < tile.size() * 8; ++bit) {
    Bytes probe(tile.size());
    probe[bit / 8] = static_cast<std::uint8_t>(1 << (bit % 8));
    const Bytes meaning = NaiveDecode(mode, probe);
    for (std::size_t i = 0; i < meaning.size(); ++i) {
      if (meaning[i] != 0 && (pixels[i] & meaning[i]) != 0) tile[bit / 8] = tile[bit / 8] | probe[bit / 8];
    }
  }
  return tile;
}

void NaiveFile::SeekTo(std::int64_t place) {
  if (open && place >= 0) position = place;
}

void NaiveFile::SeekBy(std::int64_t distance) {
  SeekTo(position + distance);
}

void NaiveFile::Read(std::uint8_t& target) {
  if (!open || readsLeft == 0) return;
  if (readsLeft > 0) --readsLeft;
  if (position >= static_cast<std::int64_t>(bytes.size())) return;
  target = bytes[static_cast<std::size_t>(position++)];
}

void NaiveRead(int mode, NaiveFile& file, std::int64_t address, int count, BitmapShape shape, Bytes& pixels) {
  Local local{};
  std::size_t at = 0;
  file.SeekTo(address);
  for (int tile = 0; tile < count; ++tile) {
    if (mode == 12) {
      ReadBitmapTile(file, local, shape, pixels, at);
    } else if (mode == 14) {
      ReadSpriteTile(file, local, pixels, at);
      at += 256;
    } else {
      for (const std::uint8_t pixel : NaiveDecode(mode, FetchTile(mode, file, local)))
        pixels.at(at++) = pixel;
    }
  }
}

}  // namespace brolk::test
