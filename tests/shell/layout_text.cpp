// SPDX-License-Identifier: MIT
#include "shell/layout_text.h"

#include <gtest/gtest.h>

#include "exchange/windows/pattern.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/color_set.h"
#include "shell/windows/options.h"
#include "support/program.h"

namespace brolk::test {
namespace {

const char* const kKeyLine = "[SOFTWARE\\Kova\\BrolkPlus\\Settings]\n";

int FrameTop() {
  return ScreenHeightTwips() - 8970;
}

// Width and height of the client areas in twips; before they are shown the windows have no frame.
struct Free {
  const char* name;
  int width;
  int height;
};

template <typename Window>
Free Row(const char* name) {
  return {name, The<Window>().width() * 15, The<Window>().height() * 15};
}

std::string CentredLines() {
  std::string lines;
  for (const Free& row :
       {Row<FavoritesTool>("FavoritesTool"), Row<ColorSet>("ColorSet"), Row<pattern>("Pattern"),
        Row<Options>("Options"), Row<FileInfo>("FileInfo"), Row<ColorDialog>("ColorDialog")}) {
    lines += std::string(row.name) + "Left=" + CentreText(12200, row.width, 0) + "\n";
    lines += std::string(row.name) + "Top=" + CentreText(8970, row.height, FrameTop()) + "\n";
  }
  return lines;
}

const char* const kChildLines =
    "BrowserControlLeft=30\n"
    "BrowserControlTop=30\n"
    "BrowserLeft=2700\n"
    "BrowserTop=30\n"
    "EditorControlLeft=5955\n"
    "EditorControlTop=3640\n"
    "EditorLeft=5955\n"
    "EditorTop=30\n"
    "EditorWidth=3995\n"
    "EditorHeight=3585\n"
    "PaletteControlLeft=8010\n"
    "PaletteControlTop=3640\n"
    "TileControlLeft=9975\n"
    "TileControlTop=30\n";

const char* const kPageAndFlagLines =
    "MainRows=8\n"
    "MainLines=16\n"
    "MainEdZoom=3\n"
    "MainZoom=3\n"
    "ShowBrowser=Yes\n"
    "ShowEditor=Yes\n"
    "ShowTileTool=Yes\n"
    "Grid=Yes\n"
    "EditorGrid=Yes\n"
    "ShowNonCopied=Yes\n"
    "SaveWarning=Yes\n"
    "Benchmark=No\n";

const char* const kFreeWindowLines =
    "FavoritesToolLeft=1500\nFavoritesToolTop=1515\nColorSetLeft=1530\nColorSetTop=1545\n"
    "PatternLeft=1560\nPatternTop=1575\nOptionsLeft=1590\nOptionsTop=1605\n"
    "FileInfoLeft=1620\nFileInfoTop=1635\nColorDialogLeft=1650\nColorDialogTop=1665\n";

}  // namespace

std::string CentreText(int spaceTwips, int sizeTwips, int startTwips) {
  const int doubled = spaceTwips - sizeTwips + 2 * startTwips;
  int half = doubled >= 0 ? doubled / 2 : (doubled - 1) / 2;
  if (doubled % 2 != 0 && half % 2 != 0) ++half;
  return std::to_string(half);
}

std::string FirstRunFile() {
  return kKeyLine + std::string("Copyright=Copyright (c) 2026 The Brolk Plus developers\n") +
         "MainFormWidth=12200\n"
         "MainFormHeight=8970\n"
         "MainFormLeft=0\n"
         "MainFormTop=" +
         std::to_string(FrameTop()) + "\n" + kChildLines + CentredLines() + kPageAndFlagLines;
}

void PutSettings(const std::string& lines) {
  MakeFile("settings", kKeyLine + lines);
}

void PutLayoutWith(const std::string& name, const std::string& value) {
  std::string lines =
      std::string("MainFormWidth=12000\nMainFormHeight=9000\nMainFormLeft=150\nMainFormTop=300\n") +
      kChildLines + kFreeWindowLines + kPageAndFlagLines;
  const std::size_t at = lines.starts_with(name + "=") ? 0 : lines.find("\n" + name + "=") + 1;
  ASSERT_EQ(lines.compare(at, name.size() + 1, name + "="), 0) << name;
  lines.replace(at, lines.find('\n', at) - at, name + "=" + value);
  PutSettings(lines);
}

std::string StoredValue(const std::string& name) {
  const std::string text = FileText(TestFolder() + "settings");
  const std::size_t at = text.find("\n" + name + "=");
  if (at == std::string::npos) return "(none)";
  const std::size_t start = at + name.size() + 2;
  return text.substr(start, text.find('\n', start) - start);
}

}  // namespace brolk::test
