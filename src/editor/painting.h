// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "editor/slots.h"

// What the tools do to the pixels of slots. Nothing here draws on the window. There is no undo: the way back
// is to read the tile from the file again.
namespace brolk {

// Puts a colour index down at one pixel of a slot; a non-copied slot becomes unaddressed. Every twin gets the
// same pixel, and the whole picture of this slot: where its other pixels differ, its picture and its pixels
// part until its surface is rebuilt. That is meant. pixelIndex outside 0 to 63 is the subscript fault.
void PaintPixel(std::uint8_t slot, std::int16_t pixelIndex, std::uint8_t colorIndex);

// Sets all 64 pixels of a slot and of its twins, whatever they were; a non-copied slot becomes unaddressed.
void FillSlot(std::uint8_t slot, std::uint8_t colorIndex);

// Copies pixels and picture of a slot to its twins.
void CopyToTwins(std::uint8_t slot);

// Left to right.
void FlipPixelsX(TilePixels& pixels);
// Top to bottom.
void FlipPixelsY(TilePixels& pixels);
// A quarter turn counterclockwise: the top right pixel goes to the top left corner.
void RotatePixels(TilePixels& pixels);

}  // namespace brolk
