// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Where the settings live: named texts in one flat table for each key. Key and value names are compared
// without regard to case (ASCII letters). On Windows the registry holds them; elsewhere, and wherever
// BROLKPLUS_SETTINGS names a file, one text file does.
namespace brolk {

// Result codes of a store operation, the platform's numbers.
inline constexpr std::int32_t kStoreSuccess = 0;
inline constexpr std::int32_t kStoreFileNotFound = 2;
inline constexpr std::int32_t kStoreAccessDenied = 5;
inline constexpr std::int32_t kStoreInvalidHandle = 6;

// The two results of storing one text: making or opening the key, then setting the value.
struct StoreResult {
  std::int32_t key = kStoreSuccess;
  std::int32_t value = kStoreSuccess;
};

// The settings file: BROLKPLUS_SETTINGS, else brolkplus/settings below XDG_CONFIG_HOME or ~/.config (on
// Windows below the user's application data). Empty when none of them is known.
[[nodiscard]] std::filesystem::path SettingsFile();

// The lock file beside the settings file: moved settings have their own.
[[nodiscard]] std::filesystem::path SettingsLockFile();

// Stores a text (UTF-8) under a name of a key; the spelling of a name that is there already stays.
StoreResult StoreText(std::int32_t root, std::string_view key, std::string_view name, std::string_view text);

// The text under a name, whole; none when it was never stored.
[[nodiscard]] std::optional<std::string> StoredText(std::int32_t root, std::string_view key,
                                                    std::string_view name);

}  // namespace brolk
