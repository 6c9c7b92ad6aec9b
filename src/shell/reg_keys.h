// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brolk {

inline constexpr std::int32_t kLocalMachine = static_cast<std::int32_t>(0x80000002);
inline constexpr std::string_view kSettingsKey = "SOFTWARE\\Kova\\BrolkPlus\\Settings";

// Stores a text under a name and answers "0 0" on success. An empty Value becomes one blank, in the caller's
// variable too: no empty text is ever stored. Failures are told by the answer alone.
std::string RegSaveString(std::int32_t Root, std::string_view SubKey, std::string_view ValueName,
                          std::string& Value);

// Stores a number as decimal text.
std::string RegSaveInteger(std::int32_t Root, std::string_view SubKey, std::string_view ValueName,
                           std::int16_t Value);

// The text under a name, cut at 1024 bytes; empty when there is none. Names are compared without regard to
// case.
[[nodiscard]] std::string RegGetString(std::int32_t Root, std::string_view SubKey,
                                       std::string_view ValueName);

// The number at the head of the text, rounded; a missing value gives 0, a number beyond an Integer is the
// overflow fault.
[[nodiscard]] std::int16_t RegGetInteger(std::int32_t Root, std::string_view SubKey,
                                         std::string_view ValueName);

}  // namespace brolk
