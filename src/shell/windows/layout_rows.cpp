// SPDX-License-Identifier: MIT
#include "shell/windows/layout_rows.h"

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "browser/windows/page_view.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "exchange/windows/pattern.h"
#include "filetools/windows/favorites_tool.h"
#include "filetools/windows/file_info.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "palette/windows/color_dialog.h"
#include "palette/windows/color_set.h"
#include "palette/windows/palette_control.h"
#include "shell/windows/main_form.h"
#include "shell/windows/options.h"
#include "tile/shared.h"

namespace brolk {
namespace {

constexpr int kFrameWidth = 12200;
constexpr int kFrameHeight = 8970;

template <int Value>
double Fixed() {
  return Value;
}

double BottomOfScreen() {
  return ScreenHeightTwips() - kFrameHeight;
}

// In the middle of a frame of the default size at the frame's present top, in single precision. The frame's
// real size does not count: that is meant.
template <typename Window>
double CentreX() {
  return (static_cast<float>(kFrameWidth) - static_cast<float>(The<Window>().Width())) / 2.0F;
}
template <typename Window>
double CentreY() {
  return (static_cast<float>(kFrameHeight) - static_cast<float>(The<Window>().Height())) / 2.0F +
         static_cast<float>(The<MainForm>().Top());
}

template <typename Window>
double Left() {
  return The<Window>().Left();
}
template <typename Window>
double Top() {
  return The<Window>().Top();
}
template <typename Window>
double Width() {
  return The<Window>().Width();
}
template <typename Window>
double Height() {
  return The<Window>().Height();
}
template <typename Window>
void SetLeft(std::int16_t twips) {
  The<Window>().SetLeft(twips);
}
template <typename Window>
void SetTop(std::int16_t twips) {
  The<Window>().SetTop(twips);
}
template <typename Window>
void SetWidth(std::int16_t twips) {
  The<Window>().SetWidth(twips);
}
template <typename Window>
void SetHeight(std::int16_t twips) {
  The<Window>().SetHeight(twips);
}

template <std::int16_t& Variable>
double Number() {
  return Variable;
}
template <std::int16_t& Variable>
void SetNumber(std::int16_t value) {
  Variable = value;
}

template <typename Window, FlatButton Window::*Button>
double Checked() {
  return (The<Window>().*Button).Checked() ? 1 : 0;
}
// Assigning the state raises no click: ShowGrid, pictures and marks keep what they had.
template <typename Window, FlatButton Window::*Button>
void SetChecked(std::int16_t yes) {
  (The<Window>().*Button).SetChecked(yes != 0);
}
// Only ever checked by the layout, never unchecked. That is meant.
template <typename Window, FlatButton Window::*Button>
void CheckOnly(std::int16_t yes) {
  if (yes != 0) (The<Window>().*Button).SetChecked(true);
}
template <FlatButton MainForm::*Button>
void SetTool(std::int16_t yes) {
  SetChecked<MainForm, Button>(yes);
  if (yes != 0) The<MainForm>().UpdateToolWindows();
}
void SetBrowserTool(std::int16_t yes) {
  SetTool<&MainForm::fbnBrowser>(yes);
  if (yes == 0) return;
  FormatBrowser();
  ReloadPage();
}

// The setting tells whether non-copied tiles show as tiles, the button the opposite.
double NonCopiedShown() {
  return The<EditorControl>().fbnNonCopied.Checked() ? 0 : 1;
}
void SetNonCopiedShown(std::int16_t yes) {
  The<EditorControl>().fbnNonCopied.SetChecked(yes == 0);
}

using enum LayoutGroup;

constexpr LayoutRow kRows[] = {
    {"ShowBrowser", Flag, 0, Fixed<1>, Checked<MainForm, &MainForm::fbnBrowser>, SetBrowserTool},
    {"ShowEditor", Flag, 0, Fixed<1>, Checked<MainForm, &MainForm::fbnEditor>, SetTool<&MainForm::fbnEditor>},
    {"ShowTileTool", Flag, 0, Fixed<1>, Checked<MainForm, &MainForm::fbnTile>, SetTool<&MainForm::fbnTile>},
    {"Grid", Flag, 0, Fixed<1>, Checked<BrowserControl, &BrowserControl::fbnGrid>,
     SetChecked<BrowserControl, &BrowserControl::fbnGrid>},
    {"EditorGrid", Flag, 0, Fixed<1>, Checked<EditorControl, &EditorControl::fbnEditorGrid>,
     SetChecked<EditorControl, &EditorControl::fbnEditorGrid>},
    {"ShowNonCopied", Flag, 0, Fixed<1>, NonCopiedShown, SetNonCopiedShown},
    {"SaveWarning", Flag, 0, Fixed<1>, Checked<Options, &Options::fbnSaveWarning>,
     CheckOnly<Options, &Options::fbnSaveWarning>},
    {"Benchmark", Flag, 0, Fixed<0>, Checked<Options, &Options::fbnBenchmark>,
     CheckOnly<Options, &Options::fbnBenchmark>},
    {"MainFormLeft", Frame, 3, Fixed<0>, Left<MainForm>, SetLeft<MainForm>},
    {"MainFormTop", Frame, 4, BottomOfScreen, Top<MainForm>, SetTop<MainForm>},
    {"MainFormWidth", Frame, 1, Fixed<kFrameWidth>, Width<MainForm>, SetWidth<MainForm>},
    {"MainFormHeight", Frame, 2, Fixed<kFrameHeight>, Height<MainForm>, SetHeight<MainForm>},
    {"BrowserControlLeft", Child, 0, Fixed<30>, Left<BrowserControl>, SetLeft<BrowserControl>},
    {"BrowserControlTop", Child, 0, Fixed<30>, Top<BrowserControl>, SetTop<BrowserControl>},
    {"BrowserLeft", Child, 0, Fixed<2700>, Left<Browser>, SetLeft<Browser>},
    {"BrowserTop", Child, 0, Fixed<30>, Top<Browser>, SetTop<Browser>},
    {"MainRows", Page, 1, Fixed<8>, Number<MainRows>, SetNumber<MainRows>},
    {"MainLines", Page, 2, Fixed<16>, Number<MainLines>, SetNumber<MainLines>},
    {"MainZoom", Page, 4, Fixed<3>, Number<MainZoom>, SetNumber<MainZoom>},
    {"EditorControlLeft", Child, 0, Fixed<5955>, Left<EditorControl>, SetLeft<EditorControl>},
    {"EditorControlTop", Child, 0, Fixed<3640>, Top<EditorControl>, SetTop<EditorControl>},
    {"EditorLeft", Child, 0, Fixed<5955>, Left<Editor>, SetLeft<Editor>},
    {"EditorTop", Child, 0, Fixed<30>, Top<Editor>, SetTop<Editor>},
    {"EditorWidth", Child, 0, Fixed<3995>, Width<Editor>, SetWidth<Editor>},
    {"EditorHeight", Child, 0, Fixed<3585>, Height<Editor>, SetHeight<Editor>},
    {"MainEdZoom", Page, 3, Fixed<3>, Number<MainEdZoom>, SetNumber<MainEdZoom>},
    {"PaletteControlLeft", Child, 0, Fixed<8010>, Left<PaletteControl>, SetLeft<PaletteControl>},
    {"PaletteControlTop", Child, 0, Fixed<3640>, Top<PaletteControl>, SetTop<PaletteControl>},
    {"TileControlLeft", Child, 0, Fixed<9975>, Left<TileControl>, SetLeft<TileControl>},
    {"TileControlTop", Child, 0, Fixed<30>, Top<TileControl>, SetTop<TileControl>},
    {"FavoritesToolLeft", Centered, 0, CentreX<FavoritesTool>, Left<FavoritesTool>, SetLeft<FavoritesTool>},
    {"FavoritesToolTop", Centered, 0, CentreY<FavoritesTool>, Top<FavoritesTool>, SetTop<FavoritesTool>},
    {"ColorSetLeft", Centered, 0, CentreX<ColorSet>, Left<ColorSet>, SetLeft<ColorSet>},
    {"ColorSetTop", Centered, 0, CentreY<ColorSet>, Top<ColorSet>, SetTop<ColorSet>},
    {"PatternLeft", Centered, 0, CentreX<pattern>, Left<pattern>, SetLeft<pattern>, "patternLeft"},
    {"PatternTop", Centered, 0, CentreY<pattern>, Top<pattern>, SetTop<pattern>, "patternTop"},
    {"OptionsLeft", Centered, 0, CentreX<Options>, Left<Options>, SetLeft<Options>},
    {"OptionsTop", Centered, 0, CentreY<Options>, Top<Options>, SetTop<Options>},
    {"FileInfoLeft", Centered, 0, CentreX<FileInfo>, Left<FileInfo>, SetLeft<FileInfo>},
    {"FileInfoTop", Centered, 0, CentreY<FileInfo>, Top<FileInfo>, SetTop<FileInfo>},
    {"ColorDialogLeft", Centered, 0, CentreX<ColorDialog>, Left<ColorDialog>, SetLeft<ColorDialog>},
    {"ColorDialogTop", Centered, 0, CentreY<ColorDialog>, Top<ColorDialog>, SetTop<ColorDialog>},
};

}  // namespace

std::span<const LayoutRow> LayoutRows() {
  return kRows;
}

}  // namespace brolk
