// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "palette/palette_files_kind.h"

// The reader of a GIF picture's global colour table. Its state is kept from file to file: what a short file
// does not overwrite stays in force from the file before. That is meant.
namespace brolk {

struct GifColor {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
};

// The logical screen descriptor, bytes 6 to 12 of the file.
struct GifScreenRecord {
  std::uint16_t width = 0;
  std::uint16_t height = 0;
  std::uint8_t flags = 0;  // bit 7: there is a global table; bits 0 to 2: its bits less one
  std::uint8_t backgroundIndex = 0;
  std::uint8_t aspect = 0;
};

inline std::array<std::uint8_t, 6> GifSignature{};
inline std::string GifSignatureText;
inline GifScreenRecord GifScreen;
inline std::int16_t GifPaletteLast = 0;  // last valid index of GifPalette
inline std::vector<GifColor> GifPalette;

// Reads signature, screen and table of a file (path in UTF-8). True when GifPalette and GifPaletteLast hold a
// table; otherwise `refusal` tells why not. A table that the file cuts short is black from there on. A file
// that cannot be opened is the file fault.
[[nodiscard]] bool ReadGifPalette(std::string_view fileName, std::optional<Notice>& refusal);
[[nodiscard]] bool ReadGifPalette(const FileSource& file, std::optional<Notice>& refusal);

// One character for each byte: the byte's own from 32 on, a blank below.
[[nodiscard]] std::string BytesToText(std::span<const std::uint8_t> bytes);

// Whether the flags of GifScreen announce a global table.
[[nodiscard]] bool GifHasPalette();

// Bits of an index into the table, 1 to 8.
[[nodiscard]] std::int16_t GifPaletteBits();

}  // namespace brolk
