// SPDX-License-Identifier: MIT
#include "browser/rom_kinds.h"

#include <gtest/gtest.h>

#include <string>

#include "tile/modes.h"

namespace brolk {
namespace {

// The name of the mode that a file name gives, empty when the mode stays.
std::string ModeNameFor(std::string_view path) {
  const auto position = ModePositionFor(path);
  if (!position) return "";
  FillModes();
  return Modes[kModeMap[static_cast<std::size_t>(*position)]].Name;
}

TEST(RomKind, EveryExtensionHasItsMode) {
  const std::pair<const char*, const char*> expected[] = {
      {"nes", "Nes"},
      {"fds", "Nes"},
      {"gb", "Gameboy"},
      {"gbc", "Gameboy"},
      {"gba", "GBA 4bpp"},
      {"agb", "GBA 4bpp"},
      {"vb", "Virtual Boy"},
      {"bin", "Sega Mega Drive"},
      {"pce", "PC Engine 8x8 char"},
      {"gg", "GG, MS, WSC"},
      {"sms", "GG, MS, WSC"},
      {"ws", "GG, MS, WSC"},
      {"wsc", "GG, MS, WSC"},
      {"ngp", "Neo Geo Pocket"},
      {"npc", "Neo Geo Pocket"},
  };
  for (const auto& [extension, mode] : expected) {
    EXPECT_EQ(ModeNameFor(std::string("/roms/game.") + extension), mode) << extension;
  }
}

TEST(RomKind, TheseKeepTheMode) {
  for (const char* extension : {"smc", "swc", "fig", "hdf", "txt", "", "nes ", "gb1"}) {
    EXPECT_EQ(ModeNameFor(std::string("/roms/game.") + extension), "") << extension;
  }
}

TEST(RomKind, CaseMatters) {
  EXPECT_EQ(ModeNameFor("/roms/Game.GBC"), "");
  EXPECT_EQ(ModeNameFor("/roms/game.Gb"), "");
  EXPECT_EQ(ModeNameFor("/roms/game.gbc"), "Gameboy");
}

TEST(RomKind, TheLastPointCounts) {
  EXPECT_EQ(ModeNameFor("name.tar.nes"), "Nes");
  EXPECT_EQ(ModeNameFor("name.nes.tar"), "");
}

TEST(RomKind, WithoutAPointInTheNameTheFoldersCount) {
  EXPECT_EQ(ExtensionOf("/my.roms/game"), "roms/game");
  EXPECT_EQ(ExtensionOf("/roms/game"), "/roms/game");
  EXPECT_EQ(ModeNameFor("/roms.nes/game"), "");
  EXPECT_EQ(ModeNameFor("nes"), "Nes") << "a bare name is its own extension";
}

TEST(RomFilter, IsTheListOfTheDialog) {
  std::size_t bars = 0;
  for (const char character : kRomFilter) bars += character == '|' ? 1 : 0;
  EXPECT_EQ(bars, 29U) << "15 pairs";
  EXPECT_NE(kRomFilter.find(";*pce;"), std::string_view::npos) << "the pattern without a point";
  EXPECT_TRUE(
      kRomFilter.starts_with("All compatible Roms|*.gb;*.gbc;*.ngp;*.npc;*.smc;*.swc;*.fig;*.nes;*.fds;"));
  EXPECT_TRUE(kRomFilter.ends_with("|IntelliVision Roms (*.bin)|*.bin|All files (*.*)|*.*"));
}

}  // namespace
}  // namespace brolk
