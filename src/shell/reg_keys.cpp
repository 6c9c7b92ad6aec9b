// SPDX-License-Identifier: MIT
#include "shell/reg_keys.h"

namespace brolk {

std::string RegSaveString(std::int32_t, std::string_view, std::string_view, std::string&) {
  return "0 0";
}
std::string RegSaveInteger(std::int32_t, std::string_view, std::string_view, std::int16_t) {
  return "0 0";
}
std::string RegGetString(std::int32_t, std::string_view, std::string_view) {
  return {};
}
std::int16_t RegGetInteger(std::int32_t, std::string_view, std::string_view) {
  return 0;
}

}  // namespace brolk
