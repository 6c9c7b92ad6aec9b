// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brolk {

// How a number of the registry reads as a text: "&h" and the hexadecimal digits of each byte, from the last
// to the first, each byte without a leading zero. bytes: already cut at the first zero byte. The lost zeros
// are meant: the bytes 05 01 read as "&h15".
[[nodiscard]] std::string DwordText(std::string_view bytes);

}  // namespace brolk
