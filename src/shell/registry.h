// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "shell/settings_store.h"

// The settings in the registry. Windows only.
namespace brolk {

// Opens or makes the key and sets a value of the type REG_SZ, in the system's ANSI code page, without a
// terminating zero.
StoreResult StoreInRegistry(std::int32_t root, std::string_view key, std::string_view name,
                            std::string_view text);

// The text of a value of the type REG_SZ or REG_EXPAND_SZ; a REG_DWORD as "&h" and the hexadecimal digits of
// its bytes up to the first zero byte, from the last to the first, no leading zeros; an empty text for any
// other type. None when the key or the value cannot be read.
[[nodiscard]] std::optional<std::string> TextInRegistry(std::int32_t root, std::string_view key,
                                                        std::string_view name);

}  // namespace brolk
