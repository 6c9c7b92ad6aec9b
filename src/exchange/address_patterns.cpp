// SPDX-License-Identifier: MIT
#include "exchange/address_patterns.h"

#include "editor/slots.h"
#include "runtime/files.h"
#include "tile/shared.h"
#include "tile/tile.h"

namespace brolk {
namespace {

constexpr std::string_view kMagic = "BXA";

bool ReadAddress(ByteReader& reader, std::int32_t& address) {
  std::array<std::uint8_t, 4> bytes{};
  for (std::uint8_t& byte : bytes) {
    if (!reader.Next(byte)) return false;
  }
  address = PatternAddress(bytes);
  return true;
}

bool ReadPattern(ByteReader& reader, EditorPattern& pattern) {
  if (!reader.TakeZeroEndedText(pattern.Description)) return false;
  for (std::int32_t& address : pattern.Addresses) {
    if (!ReadAddress(reader, address)) return false;
  }
  return true;
}

// The number of whole records that follow, 64 at most; more data is passed over.
std::int16_t ReadPatterns(ByteReader& reader) {
  std::int16_t count = 0;
  for (EditorPattern& pattern : Patterns) {
    if (!ReadPattern(reader, pattern)) break;
    ++count;
  }
  return count;
}

void ReloadSlot(EditSlot& slot) {
  if (slot.Address < 0) {
    slot.Pixels.fill(0);
    return;
  }
  ReadTile(hFile, slot.Address, 1);
  for (int pixel = 0; pixel <= 63; ++pixel) slot.Pixels[pixel] = PageBuffer[pixel];
}

}  // namespace

void AddPattern(std::string_view description) {
  if (PatternCount >= kAddPatternLimit) return;
  EditorPattern& pattern = Patterns[PatternCount];
  pattern.Description = description.empty() ? "No description" : description;
  for (int slot = 0; slot <= 255; ++slot) {
    const std::int32_t address = EditSlots[slot].Address;
    pattern.Addresses[slot] = address == kUnaddressed ? kNonCopied : address;
  }
  ++PatternCount;
}

void DeletePattern(std::int16_t index) {
  for (std::int16_t j = index; j <= PatternCount - 1; ++j) Patterns[j] = Patterns[j + 1];
  --PatternCount;
}

void ApplyPatternAddresses(std::int16_t index) {
  for (int slot = 0; slot <= 255; ++slot) EditSlots[slot].Address = Patterns[index].Addresses[slot];
}

void ReloadSlotsByAddress() {
  for (int slot = 0; slot <= 255; ++slot) {
    ReloadSlot(EditSlots[slot]);
    RefreshSlotSurface(static_cast<std::uint8_t>(slot));
  }
}

std::array<std::uint8_t, 4> PatternAddressBytes(std::int32_t address) {
  const std::uint32_t bits = address < 0 ? 0xFFFFFFFFU : static_cast<std::uint32_t>(address);
  std::array<std::uint8_t, 4> bytes{};
  for (std::size_t k = 0; k < bytes.size(); ++k) bytes[k] = static_cast<std::uint8_t>(bits >> (8 * k));
  return bytes;
}

std::int32_t PatternAddress(std::span<const std::uint8_t, 4> bytes) {
  if ((bytes[3] & 0x80) != 0) return -2;
  return bytes[0] + bytes[1] * 256 + bytes[2] * 65536 + bytes[3] * 16777216;
}

void SavePatternFile(std::string_view path) {
  const std::int16_t handle = OpenFile(path, kOpenCreate);
  _hwrite(handle, kMagic);
  for (std::int16_t p = 0; p < PatternCount; ++p) {
    _hwrite(handle, Patterns[p].Description);
    _hwrite(handle, std::string_view("\0", 1));
    for (const std::int32_t address : Patterns[p].Addresses) _hwrite(handle, PatternAddressBytes(address));
  }
  _lclose(handle);
}

PatternLoad LoadPatterns(const FileSource& file) {
  ByteReader reader(file);
  const bool valid = reader.TakeText(kMagic.size()) == kMagic;
  PatternCount = valid ? ReadPatterns(reader) : std::int16_t{0};
  return valid ? PatternLoad::Done : PatternLoad::WrongHeader;
}

PatternLoad LoadPatternFile(std::string_view path) {
  if (OpenFile(path, kOpenExist) < 0) return PatternLoad::NotFound;
  return LoadPatterns(FileSource::AtPath(std::string(path)));
}

}  // namespace brolk
