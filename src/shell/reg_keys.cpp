// SPDX-License-Identifier: MIT
#include "shell/reg_keys.h"

#include "runtime/numbers.h"
#include "shell/settings_store.h"

namespace brolk {
namespace {

// A read goes through a buffer of this many bytes, which cuts a longer text.
constexpr std::size_t kReadBufferBytes = 1024;

}  // namespace

std::string RegSaveString(std::int32_t Root, std::string_view SubKey, std::string_view ValueName,
                          std::string& Value) {
  if (Value.empty()) Value = " ";
  const StoreResult result = StoreText(Root, SubKey, ValueName, Value);
  return NumberText(result.key) + " " + NumberText(result.value);
}

std::string RegSaveInteger(std::int32_t Root, std::string_view SubKey, std::string_view ValueName,
                           std::int16_t Value) {
  std::string text = NumberText(Value);
  return RegSaveString(Root, SubKey, ValueName, text);
}

std::string RegGetString(std::int32_t Root, std::string_view SubKey, std::string_view ValueName) {
  std::string text = StoredText(Root, SubKey, ValueName).value_or("").substr(0, kReadBufferBytes);
  return text.substr(0, text.find('\0'));
}

std::int16_t RegGetInteger(std::int32_t Root, std::string_view SubKey, std::string_view ValueName) {
  return RoundToInteger(Val(RegGetString(Root, SubKey, ValueName)));
}

}  // namespace brolk
