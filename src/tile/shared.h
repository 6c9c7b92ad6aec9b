// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "runtime/bounded.h"
#include "runtime/surface.h"

// The shared block: what the whole program knows about the open file and the way it is shown. One copy, alive
// from start to exit, read and written directly by every rule and window. Integer is 16-bit signed, Long
// 32-bit signed, Byte 8-bit unsigned.
namespace brolk {

// The open file.
inline std::int16_t hFile = -1;      // handle of OpenFile; stale while no file is open
inline std::string FileName;         // full path, UTF-8
inline std::int32_t FileLength = 0;  // bytes
inline bool FileOpen = false;

// The page.
inline std::int32_t BrowserAddress = 0;  // file offset of the first byte of the page
inline std::uint8_t AddressShift = 0;    // bytes added to every line-aligned address
inline std::int16_t MainRows = 8;        // tiles side by side: the name says rows, the meaning is columns
inline std::int16_t MainLines = 16;      // tile lines down the page
inline std::int16_t TileWidth = 8;       // pixels; differs from 8 in Bitmap Mode alone
inline std::int16_t TileHeight = 8;
inline std::int16_t MainZoom = 3;     // screen pixels for a tile pixel, Browser
inline std::int16_t MainEdZoom = 3;   // the same, Editor
inline std::uint8_t GfxMode = 0;      // index into Modes
inline std::int16_t ScrollScale = 0;  // scroll positions that the file is divided into
inline std::uint8_t CellSize = 0;     // the constant 8 that the pointer status divides by
inline std::int32_t LineBytes =
    0;                         // file bytes of one tile line of the page; 16-bit when computed, then extended
inline std::int32_t Line = 0;  // index of the tile line at BrowserAddress

// Position of the list of bitmap depths (cboBitmapMode): 0 to 3 for 1, 2, 4, 8 bits per pixel. The list's
// window keeps it in step.
inline std::int16_t BitmapModePosition = 0;

// The selection.
inline std::int16_t SelColumn = 0;
inline std::int16_t SelLine = 0;
inline std::int16_t EditSelColumn = 0;
inline std::int16_t EditSelLine = 0;

// The look.
inline bool ShowGrid = true;
inline ColorValue GridColor = 0x000000;
inline ColorValue SelectionColor = 0xFFFFFF;
inline ColorValue EmptyColor = 0x800080;
inline std::uint8_t PaletteSide = 4;  // cells in a row of the palette panel

// Decoded pixels of the last ReadTile, as palette indices in tile order. Never cleared.
inline constexpr std::int32_t kPageBufferLast = 65536;
inline Bounded<std::uint8_t, kPageBufferLast> PageBuffer;

// The page at true size.
inline constexpr int kPageSurfacePx = 256;
inline Surface BrowserSurface;

// The file offset of the selected tile: (MainRows * SelLine + SelColumn) * BytesPerTile + BrowserAddress.
// Both products wrap at 16 bits, and the second is sign-extended before the addition: tiles far down a large
// page lie below BrowserAddress. That is meant.
[[nodiscard]] std::int32_t SelectedAddress();

}  // namespace brolk
