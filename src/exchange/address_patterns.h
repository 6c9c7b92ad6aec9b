// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "runtime/bounded.h"
#include "runtime/byte_reader.h"

// Snapshots of the 256 slot addresses of the Editor under a description, and their .eap files.
namespace brolk {

inline constexpr std::int32_t kPatternLast = 63;

// Add stops one short of the table: only a file brings a 64th pattern.
inline constexpr std::int16_t kAddPatternLimit = 63;

struct EditorPattern {
  std::string Description;  // Windows-1252 bytes
  Bounded<std::int32_t, 255>
      Addresses;  // slot by slot: a file offset or -2; other negative values only in memory
};

// The patterns in list order, and how many are in use. They live as long as the process; the window's load
// empties the list.
inline Bounded<EditorPattern, kPatternLast> Patterns;
inline std::int16_t PatternCount = 0;

// Takes the addresses of all slots as a new pattern; -1 becomes -2, other negative values stay. An empty
// description becomes "No description". With 63 patterns or more nothing happens.
void AddPattern(std::string_view description);

// Moves the patterns behind `index` (0 to PatternCount - 1) down by one, reading one entry past the last.
// With all 64 in use that entry is index 64: the subscript fault, with the shift done and the count still 64.
// That is meant.
void DeletePattern(std::int16_t index);

// Gives the slots the addresses of a pattern. Pixels and surfaces stay.
void ApplyPatternAddresses(std::int16_t index);

// Reads the tile of each addressed slot through PageBuffer, empties the pixels of the others, and rebuilds
// all surfaces. Addresses stay.
void ReloadSlotsByAddress();

// An address in a file: its four bytes, least significant first; a negative one is FF FF FF FF.
[[nodiscard]] std::array<std::uint8_t, 4> PatternAddressBytes(std::int32_t address);

// The address of four bytes; the top bit of the fourth makes it -2, whatever the others say.
[[nodiscard]] std::int32_t PatternAddress(std::span<const std::uint8_t, 4> bytes);

// Writes all patterns to a file (path in UTF-8) over whatever stands there; failures go unnoticed.
void SavePatternFile(std::string_view path);

enum class PatternLoad { Done, NotFound, WrongHeader };

// Reads a file over the patterns. A file with another magic empties the list. Records are read up to the end
// of the file or to 64; one that the file's end cuts is not counted, and what stands in the table for it is
// half overwritten.
[[nodiscard]] PatternLoad LoadPatterns(const FileSource& file);

// The same for a path (UTF-8); a file that is not there changes nothing.
[[nodiscard]] PatternLoad LoadPatternFile(std::string_view path);

}  // namespace brolk
