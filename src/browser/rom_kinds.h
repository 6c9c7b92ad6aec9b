// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace brolk {

// The filter of the open dialog. One pattern of the first group has no point: that is meant.
inline constexpr std::string_view kRomFilter =
    "All compatible "
    "Roms|*.gb;*.gbc;*.ngp;*.npc;*.smc;*.swc;*.fig;*.nes;*.fds;*.vb;*.bin;*.gg;*.sms;*.ws;*.wsc;"
    "*.hdf;*pce;*.gba;*.agb"
    "|Super Nintendo Roms (*.smc,*.swc,*.fig)|*.smc;*.swc;*.fig"
    "|NES Roms (*.nes,*.fds)|*.nes;*.fds"
    "|Gameboy Roms (*.gb,*.gbc)|*.gb;*.gbc"
    "|Gameboy Advance Roms (*.gba,*.agb,*.bin)|*.gba;*.agb;*.bin"
    "|Virtual Boy Roms (*.vb)|*.vb"
    "|Sega Mega Drive Roms (*.bin)|*.bin"
    "|Master System Roms (*.sms)|*.sms"
    "|Game Gear Roms (*.gg)|*.gg"
    "|Neo Geo Pocket Roms (*.ngp,*.npc)|*.ngp;*.npc"
    "|x68000 Harddisk Images (*.hdf)|*.hdf"
    "|PC Engine Roms (*.pce)|*.pce"
    "|Wonder Swan Color Roms (*.ws,*.wsc)|*.ws;*.wsc"
    "|IntelliVision Roms (*.bin)|*.bin"
    "|All files (*.*)|*.*";

// What follows the last point of a path, the whole path when there is none. The point may stand in the name
// of a folder.
[[nodiscard]] std::string_view ExtensionOf(std::string_view path);

// The position in the list of modes that a file is opened with, by its extension; nothing when the mode
// stays. Bytes are compared: "GBC" is no "gbc".
[[nodiscard]] std::optional<int> ModePositionFor(std::string_view path);

}  // namespace brolk
