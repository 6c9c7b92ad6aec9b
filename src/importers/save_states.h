// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "palette/palette_files_kind.h"

// Colour tables out of the save states of console emulators. Nothing of a state is looked at but what its
// kind names: size, signature and the place of the colours.
namespace brolk {

// Adds one set for each name of the kind, one after the other from the kind's offset on. A read past the end
// repeats the last entry. A file that is refused leaves the list as it was, and the shown list is not built
// again.
LoadOutcome LoadSaveState(const PaletteKind& kind, const LoadRequest& request);

// The same for a state inside a gzip stream, where the offset counts the unpacked bytes. Nothing is tested: a
// file that is no stream is read as it stands, and what it lacks is what the buffer held, which begins as
// zeros and serves both sets.
LoadOutcome LoadPackedState(const PaletteKind& kind, const LoadRequest& request);

// Entries as colours: an index of which the low 6 bits count, into the NES table; 15-bit words with red high
// or red low; words of 4 bits a channel, red high, whose top four bits are ignored.
[[nodiscard]] ColorValue DecodeNesIndex(std::uint16_t entry);
[[nodiscard]] ColorValue DecodeRedHigh(std::uint16_t entry);
[[nodiscard]] ColorValue DecodeRedLow(std::uint16_t entry);
[[nodiscard]] ColorValue DecodeFourBits(std::uint16_t entry);

}  // namespace brolk
