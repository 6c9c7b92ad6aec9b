// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "importers/pictures.h"
#include "importers/save_states.h"
#include "palette/palette_files.h"

// Every kind of file that colour sets come from. The dialogs, the loader, the writer and the tests go through
// this one table; a new kind is one row.
namespace brolk {

inline constexpr FixedNotice WrongFormat(std::string_view text) {
  return {text, "Wrong file format"};
}

// In the order of the file dialog's filter, which alone decides the kind. The kinds that are written come
// first.
inline constexpr PaletteKind kPaletteKinds[] = {
    {.filter = "Brolk Plus palette (*.palette)|*.palette",
     .load = LoadTextPalette,
     .save = SaveTextPalette,
     .wrongSignature = {"This is not a valid BrolkPlus palette file", "Error on opening file",
                        NoticeIcon::Exclamation}},
    {.filter = "old Brolk palette file (*.bxp)|*.bxp",
     .load = LoadOldBinaryPalette,
     .save = SaveOldBinaryPalette,
     .signature = kOldBinaryHeader,
     .wrongSignature = {"Wrong header bytes", "Not a palette file"}},
    {.filter = "Microsoft Riff palette file (*.pal)|*.pal",
     .load = LoadRiffPalette,
     .save = SaveRiffPalette,
     .fullAt = 255,
     .sizeTest = SizeTest::Exactly,
     .sizeBytes = kRiffPaletteBytes,
     .wrongSize = WrongFormat("Not a 256 color Riff palette. Filesize must be 1052."),
     .signature = {RiffHeader.data(), RiffHeader.size()},
     .wrongSignature = WrongFormat("Not a 256 color Riff file.\rWrong header."),
     .setNames = {"Riff palette"}},
    {.filter = "Tile Layer DOS palette file (*.pal)|*.pal",
     .load = LoadTileLayerPalette,
     .save = SaveTileLayerPalette,
     .fullAt = 255,
     .setNames = {"Tile Layer palette"}},
    {.filter = "Gif Image (*.gif)|*.gif", .load = LoadGifPicture, .fullAt = 255},
    {.filter = "Png Image (*.png)|*.png", .load = LoadPngPicture, .fullAt = 255},
    {.filter = "NESticle Savestates (*.st?)|*.st?",
     .load = LoadSaveState,
     .fullAt = 255,
     .sizeTest = SizeTest::Exactly,
     .sizeBytes = 22992,
     .wrongSize = WrongFormat("Not a NESticle savestate. Filesize must be 22992 bytes."),
     .colorOffset = 22791,
     .entryCount = 32,
     .entryBytes = 1,
     .decode = DecodeNesIndex,
     .setNames = {"NESticle Sta palette"},
     .wrongSizeStaysOpen = true},
    {.filter = "VGBA 1.0 Savestate (*.sta)|*.sta",
     .load = LoadSaveState,
     .fullAt = 254,
     .sizeTest = SizeTest::Exactly,
     .sizeBytes = 509144,
     .wrongSize = WrongFormat("Not a VGBA 1.0 savestate. Filesize must be 509144 bytes."),
     .colorOffset = 312536,
     .entryCount = 256,
     .decode = DecodeRedHigh,
     .setNames = {"VGBA Obj palette", "VGBA BG palette"}},
    {.filter = "No$gmb Savestate (*.sna)|*.sna",
     .load = LoadSaveState,
     .fullAt = 255,
     .sizeTest = SizeTest::Above,
     .sizeBytes = 1756,
     .wrongSize = WrongFormat("Not a No$gmb savestate.\rFilesize is too small."),
     .signature = "no$gmb snapshot",
     .wrongSignature = WrongFormat("Not a no$gmb palette file. Wrong header bytes."),
     .colorOffset = 1628,
     .entryCount = 64,
     .decode = DecodeRedHigh,
     .setNames = {"No$gmb Sna palette"}},
    // One set, and still room for two is asked for. That is meant; the Cygne kind does the same.
    {.filter = "ZSnes Savestate (*.zs?)|*.zs?",
     .load = LoadSaveState,
     .fullAt = 254,
     .sizeTest = SizeTest::Exactly,
     .sizeBytes = 274047,
     .wrongSize = WrongFormat("Not a ZSnes savestate. Filesize must be 274047 bytes."),
     .colorOffset = 52243,
     .entryCount = 256,
     .decode = DecodeRedLow,
     .setNames = {"ZSnes palette"}},
    {.filter = "Boycott Advanced Savestate (*.cot)|*.cot",
     .load = LoadPackedState,
     .colorOffset = 297421,
     .entryCount = 256,
     .decode = DecodeRedLow,
     .setNames = {"Boycott Advance Obj palette", "Boycott Advance BG palette"}},
    {.filter = "Cygne Savestate (*.wss)|*.wss",
     .load = LoadSaveState,
     .fullAt = 254,
     .sizeTest = SizeTest::Exactly,
     .sizeBytes = 135674,
     .wrongSize = WrongFormat("Not a Cygne savestate. Filesize must be 135674 bytes."),
     .colorOffset = 66120,
     .entryCount = 256,
     .decode = DecodeFourBits,
     .setNames = {"Cygne palette"}},
    {.filter = "VisualBoyAdvance Savestate (*.sgm)|*.sgm",
     .load = LoadPackedState,
     .colorOffset = 33239,
     .entryCount = 256,
     .decode = DecodeRedLow,
     .setNames = {"VisualBoyAdvance Obj palette", "VisualBoyAdvance BG palette"}},
};
inline constexpr int kPaletteKindCount = static_cast<int>(std::size(kPaletteKinds));

// The filters of the load and save dialogs: all kinds; those that can be written.
[[nodiscard]] std::string LoadFilter();
[[nodiscard]] std::string SaveFilter();

// Reads a file as the kind of that filter index, from 1; an index without a kind reads nothing. A file that
// is not there is refused. Faults as the kinds tell.
[[nodiscard]] LoadOutcome LoadPaletteFile(int filterIndex, const LoadRequest& request);

// Makes or empties the file (path in UTF-8) and writes it as the kind of that filter index, from 1. An index
// without a written kind leaves it empty. Failures go unnoticed, but the text kind faults on a path that
// cannot be written.
void SavePaletteFile(int filterIndex, std::string_view path);

// What a path has before its last separator; empty for a path without one.
[[nodiscard]] std::string_view FolderOf(std::string_view path);

}  // namespace brolk
