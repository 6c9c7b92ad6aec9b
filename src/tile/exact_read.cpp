// SPDX-License-Identifier: MIT
#include "tile/exact_read.h"

#include "runtime/bounded.h"
#include "runtime/byte_loop.h"
#include "runtime/files.h"
#include "runtime/numbers.h"
#include "tile/layout.h"
#include "tile/shared.h"

namespace brolk {
namespace {

// Positions of the list of bitmap depths.
enum BitmapDepth : std::int16_t { kBitmap1Bpp = 0, kBitmap2Bpp = 1, kBitmap4Bpp = 2, kBitmap8Bpp = 3 };

constexpr int kSpritePasses = 4;
constexpr int kSpriteRows = 16;
constexpr int kSpriteEntries = 256;  // positions that a sprite advances in PageBuffer
constexpr int kSpriteBytes = 128;
constexpr int kSpriteHalf = 8;  // distance of the two entries that one bit position fills

// How many bytes a bitmap tile of 4 bits per pixel reads: its low byte counts. The product is cut to 16 bits.
std::int16_t Bitmap4Limit() {
  return static_cast<std::int16_t>(DivideIntegers(Wrap16(TileWidth * TileHeight), 2));
}

std::int16_t Bitmap8Limit() {
  return Wrap16(TileWidth * TileHeight);
}

class FileBytes final {
 public:
  explicit FileBytes(std::int16_t handle) : handle_(handle) {}
  void Read(std::uint8_t& target) { _hread(handle_, std::span(&target, 1)); }
  void Move(std::int32_t offset) { _llseek(handle_, offset, kFromHere); }

 private:
  std::int16_t handle_;
};

// Bytes that are all there: no read comes to their end.
class MemoryBytes final {
 public:
  explicit MemoryBytes(std::span<const std::uint8_t> bytes) : next_(bytes.data()) {}
  void Read(std::uint8_t& target) { target = *next_++; }
  void Move(std::int32_t offset) { next_ += offset; }

 private:
  const std::uint8_t* next_;
};

template <typename Source>
class TileReader final {
 public:
  explicit TileReader(Source source) : source_(source) {}

  void ReadTiles(std::uint8_t mode, std::int16_t count) {
    if (mode >= kModeCount) return;
    const std::int16_t last = Wrap16(count - 1);
    for (std::int16_t tile = 0; tile <= last; tile = Wrap16(tile + 1)) ReadOne(mode);
  }

 private:
  void ReadOne(std::uint8_t mode) {
    switch (mode) {
      case kNes:
        return ReadNes();
      case kNeoGeoPocket:
        return ReadNeoGeoPocket();
      case kVirtualBoy:
        return ReadVirtualBoy();
      case kMegaDrive:
      case kGba4:
        return ReadNibbles(kTileLayouts[mode]);
      case kGba8:
        return ReadBytes(kTilePixels);
      case kBitmapMode:
        return ReadBitmap();
      case kPcEngineSprite:
        return ReadSprite();
      default:
        return ReadPlanar(kTileLayouts[mode]);
    }
  }

  void Read(int entry) { source_.Read(local_[entry]); }

  // Eight pixels from the plane bytes in the first entries of the local array. The first plane of a tile
  // stores, the others add to what is there.
  void WriteRow(std::span<const std::uint8_t> planes, bool isFirstRun) {
    for (int x = 0; x < kTileSidePx; ++x) {
      for (std::size_t byte = 0; byte < planes.size(); ++byte) {
        const unsigned bit = local_[static_cast<int>(byte)] >> (7 - x) & 1U;
        const unsigned before = isFirstRun && byte == 0 ? 0 : PageBuffer[entry_];
        PageBuffer[entry_] = WrapByte(before + (bit << planes[byte]));
      }
      ++entry_;
    }
  }

  void ReadPlanar(const TileLayout& layout) {
    for (std::size_t run = 0; run < layout.runCount; ++run) {
      if (run > 0) entry_ -= kTilePixels;
      const auto planes = std::span(layout.runs[run].plane).first(layout.runs[run].bytesPerRow);
      for (int y = 0; y < kTileSidePx; ++y) {
        for (int byte = 0; byte < layout.runs[run].bytesPerRow; ++byte) Read(byte);
        WriteRow(planes, run == 0);
      }
    }
  }

  // The second plane stands 8 bytes behind the first and is reached by moving to and fro. A read that fails
  // does not move the file on, so at the end of a file every following row starts earlier. That is meant.
  void ReadNes() {
    constexpr std::array<std::uint8_t, 2> kPlanes = {0, 1};
    for (int y = 0; y < kTileSidePx; ++y) {
      Read(0);
      source_.Move(7);
      Read(1);
      source_.Move(-8);
      WriteRow(kPlanes, true);
    }
    source_.Move(8);
  }

  // The left half of a row is in its second byte.
  void ReadNeoGeoPocket() {
    for (int y = 0; y < kTileSidePx; ++y) {
      Read(0);
      Read(1);
      for (int x = 0; x < kTileSidePx; ++x) {
        const unsigned byte = local_[x < 4 ? 1 : 0];
        PageBuffer[entry_++] = static_cast<std::uint8_t>(byte >> (6 - 2 * (x % 4)) & 3U);
      }
    }
  }

  // From the rightmost pixel of a byte to the leftmost, so a fault comes before the first of the four is
  // written.
  void ReadVirtualBoy() {
    for (int byte = 0; byte < kTilePixels / 4; ++byte) {
      Read(0);
      for (int pixel = 3; pixel >= 0; --pixel) {
        PageBuffer[entry_ + pixel] = static_cast<std::uint8_t>(local_[0] >> (2 * pixel) & 3U);
      }
      entry_ += 4;
    }
  }

  // Both entries are zeroed before one of them is filled.
  void WriteNibbles(LeftmostPixel leftmost) {
    const bool high = leftmost == LeftmostPixel::InHighBits;
    PageBuffer[entry_] = 0;
    PageBuffer[entry_ + 1] = 0;
    PageBuffer[entry_ + (high ? 0 : 1)] = local_[0] >> 4;
    PageBuffer[entry_ + (high ? 1 : 0)] = local_[0] & 0x0F;
    entry_ += 2;
  }

  void ReadNibbles(const TileLayout& layout) {
    for (int byte = 0; byte < layout.bytesPerTile; ++byte) {
      Read(0);
      WriteNibbles(layout.leftmost);
    }
  }

  void ReadBytes(int count) {
    for (int byte = 0; byte < count; ++byte) ReadByte();
  }

  void ReadByte() {
    Read(0);
    PageBuffer[entry_++] = local_[0];
  }

  // The depth is asked for each tile. The loops count in bytes: see CountBytes.
  void ReadBitmap() {
    switch (BitmapModePosition) {
      case kBitmap1Bpp:
        return CountBytes(TileHeight, [this](std::uint8_t) { ReadBitmapRow(); });
      case kBitmap2Bpp:
        return CountBytes(TileHeight, [this](std::uint8_t) { ReadBitmapPair(); });
      case kBitmap4Bpp:
        return CountBytes(Bitmap4Limit(), [this](std::uint8_t) {
          Read(0);
          WriteNibbles(LeftmostPixel::InLowBits);
        });
      case kBitmap8Bpp:
        return CountBytes(Bitmap8Limit(), [this](std::uint8_t) { ReadByte(); });
      default:
        return;
    }
  }

  // One byte for the whole row. Pixels beyond the eighth are tested with a mask of 0, which is always met:
  // they are 1.
  void ReadBitmapRow() {
    Read(0);
    CountBytes(TileWidth, [this](std::uint8_t x) {
      PageBuffer[entry_++] = static_cast<std::uint8_t>(x > 7 ? 1U : local_[0] >> (7 - x) & 1U);
    });
  }

  // At this depth the mask is always 0: the byte has no effect, the entry is 1, and the three entries after
  // it keep what they had. That is meant.
  void ReadBitmapPair() {
    Read(0);
    PageBuffer[entry_] = 1;
    entry_ += 4;
  }

  // Four passes over the same 256 positions. The positions advance by 2 for each bit while the second entry
  // is 8 on, so the entries of a row overlap, and odd entries are never written. That is meant.
  void ReadSprite() {
    for (int pass = 0; pass < kSpritePasses; ++pass) {
      if (pass > 0) entry_ -= kSpriteEntries;
      for (int row = 0; row < kSpriteRows; ++row) {
        Read(0);
        Read(1);
        for (int x = 0; x < 8; ++x) WriteSpriteBits(pass, x);
      }
    }
  }

  void WriteSpriteBits(int pass, int x) {
    if (pass == 0) {
      PageBuffer[entry_] = 0;
      PageBuffer[entry_ + kSpriteHalf] = 0;
    }
    AddSpriteBit(entry_, local_[1] >> (7 - x), pass);
    AddSpriteBit(entry_ + kSpriteHalf, local_[0] >> (7 - x), pass);
    entry_ += 2;
  }

  static void AddSpriteBit(std::int32_t entry, int bits, int pass) {
    if ((bits & 1) != 0) PageBuffer[entry] = WrapByte(PageBuffer[entry] + (1 << pass));
  }

  Source source_;
  Bounded<std::uint8_t, 3> local_;
  std::int32_t entry_ = 0;  // the running index into PageBuffer
};

// What one tile costs: bytes of the file, entries that it advances, and the highest entry that it touches,
// counted from its first. No bytes: a tile that reads nothing or never ends.
struct TileCost {
  std::int64_t bytes = 0;
  std::int64_t entries = 0;
  std::int64_t highest = 0;
};

TileCost BitmapTileCost() {
  const std::int64_t width = WrapByte(TileWidth);
  const std::int64_t height = WrapByte(TileHeight);
  const std::int64_t count4 = WrapByte(Bitmap4Limit());
  const std::int64_t count8 = WrapByte(Bitmap8Limit());
  switch (BitmapModePosition) {
    case kBitmap1Bpp:
      return width == 0 ? TileCost{} : TileCost{height, height * width, height * width - 1};
    case kBitmap2Bpp:
      return {height, height * 4, height * 4 - 4};
    case kBitmap4Bpp:
      return {count4, count4 * 2, count4 * 2 - 1};
    case kBitmap8Bpp:
      return {count8, count8, count8 - 1};
    default:
      return {};
  }
}

TileCost CostOf(std::uint8_t mode) {
  if (mode == kBitmapMode) return BitmapTileCost();
  if (mode == kPcEngineSprite) {
    return {kSpriteBytes, kSpriteEntries, kSpriteEntries - 2 + kSpriteHalf};
  }
  if (mode >= kModeCount) return {};
  return {kTileLayouts[mode].bytesPerTile, kTilePixels, kTilePixels - 1};
}

}  // namespace

std::optional<std::size_t> BytesOfCall(std::int16_t count) {
  const TileCost cost = CostOf(GfxMode);
  if (count <= 0 || cost.bytes == 0) return std::nullopt;
  if ((count - 1) * cost.entries + cost.highest > kPageBufferLast) return std::nullopt;
  return static_cast<std::size_t>(count * cost.bytes);
}

void ReadTilesByteByByte(std::int16_t handle, std::int16_t count) {
  TileReader<FileBytes>(FileBytes(handle)).ReadTiles(GfxMode, count);
}

void ReadTilesFromMemory(std::span<const std::uint8_t> bytes, std::int16_t count) {
  TileReader<MemoryBytes>(MemoryBytes(bytes)).ReadTiles(GfxMode, count);
}

}  // namespace brolk
