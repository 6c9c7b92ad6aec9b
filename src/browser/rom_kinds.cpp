// SPDX-License-Identifier: MIT
#include "browser/rom_kinds.h"

namespace brolk {
namespace {

struct RomKind {
  std::string_view extension;
  int modePosition;
};

constexpr RomKind kRomKinds[] = {
    {"nes", 3}, {"fds", 3}, {"gb", 4},   {"gbc", 4}, {"gba", 5},  {"agb", 5},  {"vb", 7},   {"bin", 8},
    {"pce", 9}, {"gg", 11}, {"sms", 11}, {"ws", 11}, {"wsc", 11}, {"ngp", 12}, {"npc", 12},
};

}  // namespace

std::string_view ExtensionOf(std::string_view path) {
  const std::size_t point = path.rfind('.');
  return point == std::string_view::npos ? path : path.substr(point + 1);
}

std::optional<int> ModePositionFor(std::string_view path) {
  const std::string_view extension = ExtensionOf(path);
  for (const RomKind& kind : kRomKinds) {
    if (kind.extension == extension) return kind.modePosition;
  }
  return std::nullopt;
}

}  // namespace brolk
