// SPDX-License-Identifier: MIT
#include "runtime/ansi_text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace brolk {
namespace {

// The characters of the bytes 0x80 to 0x9F; all others stand for the character of the same number.
constexpr std::array<char32_t, 32> kUpperControls = {
    // Eight to a row, as code charts show them.
    // clang-format off
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
    // clang-format on
};

char32_t CharacterOf(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? kUpperControls[byte - 0x80U] : char32_t{byte};
}

char ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
  return found == kUpperControls.end() ? '?' : static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

void AppendUtf8(std::string& text, char32_t character) {
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | (character >> 6));
    text += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (character >> 12));
    text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (character & 0x3F));
  }
}

// How many bytes follow a lead byte, or -1 for a byte that leads nothing.
int Followers(unsigned char lead) {
  if (lead < 0x80) return 0;
  if (lead >= 0xC2 && lead <= 0xDF) return 1;
  if (lead >= 0xE0 && lead <= 0xEF) return 2;
  if (lead >= 0xF0 && lead <= 0xF4) return 3;
  return -1;
}

}  // namespace

std::string Utf8FromAnsi(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) AppendUtf8(text, CharacterOf(static_cast<unsigned char>(byte)));
  return text;
}

std::string AnsiFromUtf8(std::string_view text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size();) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    const int followers = Followers(lead);
    char32_t character = followers <= 0 ? lead : lead & (0x3FU >> followers);
    bool broken = followers < 0;
    for (int k = 0; k < followers && !broken; ++k) {
      broken = at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
      if (!broken) character = (character << 6) | (static_cast<unsigned char>(text[at++]) & 0x3FU);
    }
    bytes += broken ? '?' : ByteOf(character);
  }
  return bytes;
}

bool IsAnsiUpper(unsigned char byte) {
  if (byte >= 'A' && byte <= 'Z') return true;
  if (byte == 0x8A || byte == 0x8C || byte == 0x8E || byte == 0x9F) return true;
  return byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
}

}  // namespace brolk
