// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brolk {

// Text in files is Windows-1252, text on screen is UTF-8. The five byte values without a character of their
// own stand for the control characters of the same number, so that every byte comes back as it was.
[[nodiscard]] std::string Utf8FromAnsi(std::string_view bytes);

// A character outside Windows-1252 becomes "?", and so does each byte of broken UTF-8.
[[nodiscard]] std::string AnsiFromUtf8(std::string_view text);

// True for the bytes that are upper-case letters in Windows-1252.
[[nodiscard]] bool IsAnsiUpper(unsigned char byte);

}  // namespace brolk
