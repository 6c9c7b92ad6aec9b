// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstdint>

namespace brolk {

// Flags: one button set, one icon, one default.
inline constexpr std::int16_t kMsgOkOnly = 0;
inline constexpr std::int16_t kMsgYesNo = 4;
inline constexpr std::int16_t kMsgCritical = 16;
inline constexpr std::int16_t kMsgQuestion = 32;
inline constexpr std::int16_t kMsgExclamation = 48;
inline constexpr std::int16_t kMsgInformation = 64;

// Results; a box closed by its frame answers 0.
inline constexpr std::uint8_t kAnswerYes = 6;
inline constexpr std::uint8_t kAnswerNo = 7;

// The one message box. Blocks until the user answers.
std::uint8_t ShowMsgBox(const QString& Prompt, std::int16_t Flags, const QString& Title);

}  // namespace brolk
