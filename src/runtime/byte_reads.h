// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Reading as the formats of the program do it: one byte with each file call.
namespace brolk {

// Reads the byte at the position; false when none is delivered, and `byte` stays as it was.
bool ReadByte(std::int16_t handle, std::uint8_t& byte);

// Reads `count` bytes through one variable that starts at 0: where none is delivered the byte before counts
// again.
[[nodiscard]] std::string ReadByteText(std::int16_t handle, std::size_t count);

// Reads up to a zero byte, which is not part of the text. False when the file ends before it; what was read
// stands in `text` all the same.
bool ReadZeroEndedText(std::int16_t handle, std::string& text);

}  // namespace brolk
