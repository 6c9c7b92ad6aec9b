// SPDX-License-Identifier: MIT
#include "runtime/byte_reads.h"

#include <span>

#include "runtime/files.h"

namespace brolk {

bool ReadByte(std::int16_t handle, std::uint8_t& byte) {
  return _hread(handle, std::span(&byte, 1)) == 1;
}

std::string ReadByteText(std::int16_t handle, std::size_t count) {
  std::string text(count, '\0');
  std::uint8_t byte = 0;
  for (char& target : text) {
    ReadByte(handle, byte);
    target = static_cast<char>(byte);
  }
  return text;
}

bool ReadZeroEndedText(std::int16_t handle, std::string& text) {
  text.clear();
  for (;;) {
    std::uint8_t byte = 0;
    if (!ReadByte(handle, byte)) return false;
    if (byte == 0) return true;
    text += static_cast<char>(byte);
  }
}

}  // namespace brolk
