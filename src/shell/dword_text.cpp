// SPDX-License-Identifier: MIT
#include "shell/dword_text.h"

#include <cstdint>

#include "runtime/numbers.h"

namespace brolk {

std::string DwordText(std::string_view bytes) {
  std::string text = "&h";
  for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
    text += HexText(static_cast<std::uint8_t>(*byte));
  }
  return text;
}

}  // namespace brolk
