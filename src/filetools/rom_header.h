// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

// What the file information tells of a file, and the repair of the Game Boy checksum. The fields are read
// from every file, whatever its console.
namespace brolk {

// "1.5 MB (1572864 bytes)": the megabytes have two decimals, cut and not rounded, and no trailing zeros.
[[nodiscard]] std::string SizeText(std::int32_t lengthBytes);

struct RomHeader {
  std::string title;      // 15 Windows-1252 bytes from offset 308, zero bytes included
  std::int32_t checksum;  // 0 to 65535, from offset 334, high byte first
};

// Reads both fields byte by byte from an open file. A read that delivers nothing leaves the byte before in
// force, 0 at the start: in a file of 335 bytes byte 334 counts twice for the checksum.
[[nodiscard]] RomHeader ReadRomHeader(std::int16_t handle);

// The captions of a repair.
inline constexpr const char* kRepairCaption = "Repair checksum - Gameboy/GB Color only!";
inline constexpr const char* kCalculating = "Calculating, please wait...";

struct RepairEvents {
  std::function<void(const std::string& text)> progress;  // a new caption
  std::function<void()> writeFailed;                      // one of the two writes did not write its byte
};

// Sums the bytes of an open file, writes the sum at offset 334, high byte first, and answers it.
//
// The bytes from 336 on are counted in 16 bits against the low 16 bits of the length taken as signed. That is
// meant: a multiple of 32768 sums its first 334 bytes alone, 336 to 32766 sum up to that number included (the
// read at the end of the file delivers nothing and the last byte counts twice), and with 32767 the loop never
// ends. A file under 334 bytes grows with zeros.
std::int32_t RepairChecksum(std::int16_t handle, std::int32_t lengthBytes, const RepairEvents& events);

}  // namespace brolk
