// SPDX-License-Identifier: MIT
#pragma once

// Every control of every window as it stands before its window has loaded: name, kind, text (null: the
// makers' own words), tool tip, range and start value.

namespace brolk::test {

enum class ControlKind { Button, Toggle, Label, Text, Bar, Combo, List, Picture };

struct ControlRow {
  const char* name;
  ControlKind kind;
  const char* text;
  const char* toolTip;
  int minimum = 0;  // of a scroll bar
  int maximum = 0;
  int value = 0;  // of a scroll bar, or 1 for a checked button
};

// One control to a line.
// clang-format off
inline constexpr ControlRow kBrowserControls[] = {
    {"vsbAddress", ControlKind::Bar, "", "", 0, 0, 0},
};

inline constexpr ControlRow kBrowserControlControls[] = {
    {"lblFile", ControlKind::Label, "File", ""},
    {"fbnOpenFile", ControlKind::Button, "", "Left: Open Dialog | Right: open last opened Rom"},
    {"fbnOpenRecent", ControlKind::Button, "", "Recent files list"},
    {"fbnCloseFile", ControlKind::Button, "", "Close Rom"},
    {"fbnFileInfo", ControlKind::Button, "", "Show File info"},
    {"fbnFavorite", ControlKind::Button, "", "Show Favorites"},
    {"lblVisuals", ControlKind::Label, "Visuals", ""},
    {"fbnBrowserZoomIn", ControlKind::Button, "", "Zoom in"},
    {"fbnBrowserZoomOut", ControlKind::Button, "", "Zoom out"},
    {"fbnGrid", ControlKind::Toggle, "", "Toggle grid", 0, 0, 1},
    {"fbnColorSet", ControlKind::Button, "", "Open the Color Set Tool"},
    {"lblAddress", ControlKind::Label, "Address", ""},
    {"txtAddress", ControlKind::Text, "0", ""},
    {"fbnGoToAddress", ControlKind::Button, "", "Go to Address"},
    {"hsbDiv", ControlKind::Bar, "", "", 0, 16, 0},
    {"lblDiv", ControlKind::Label, "8", "Shift amount"},
    {"lblModes", ControlKind::Label, "Modes", ""},
    {"cboMode", ControlKind::Combo, "", "Select mode to use when reading and writing tiles"},
    {"lblSize", ControlKind::Label, "Browser Size", ""},
    {"hsbRows", ControlKind::Bar, "", "", 2, 32, 8},
    {"lblRows", ControlKind::Label, "8", "Browser width"},
    {"hsbLines", ControlKind::Bar, "", "", 6, 32, 16},
    {"lblLines", ControlKind::Label, "16", "Browser height"},
    {"lblBtimap", ControlKind::Label, "Bitmap Mode", ""},
    {"cboBitmapMode", ControlKind::Combo, "", ""},
    {"hsbBitmapWidth", ControlKind::Bar, "", "", 1, 32, 8},
    {"lblBitmapWidth", ControlKind::Label, "8", "Bitmap width"},
    {"hsbBitmapHeight", ControlKind::Bar, "", "", 1, 32, 8},
    {"lblBitmapHeight", ControlKind::Label, "8", "Bitmap height"},
    {"fbnSeparator1", ControlKind::Button, "", ""},
    {"fbnSeparator2", ControlKind::Button, "", ""},
    {"fbnSeparator3", ControlKind::Button, "", ""},
    {"fbnSeparator4", ControlKind::Button, "", ""},
    {"fbnSeparator5", ControlKind::Button, "", ""},
};

inline constexpr ControlRow kEditorControls[] = {
    {"fbnFit", ControlKind::Button, "", "Resize the editor to fit all 16x16 tiles"},
    {"hsbEdit", ControlKind::Bar, "", "", 0, 0, 0},
    {"vsbEdit", ControlKind::Bar, "", "", 0, 0, 0},
};

inline constexpr ControlRow kEditorControlControls[] = {
    {"fbnSeparator1", ControlKind::Button, "", ""},
    {"fbnSelect", ControlKind::Toggle, "", "Switch to 'Select' mode", 0, 0, 1},
    {"fbnPaint", ControlKind::Toggle, "", "Switch to 'Paint' mode"},
    {"fbnFill", ControlKind::Toggle, "", "Switch to 'Fill' mode"},
    {"fbnEditorGrid", ControlKind::Toggle, "", "Grid on/off", 0, 0, 1},
    {"fbnNonCopied", ControlKind::Toggle, "", "Show/hide noncopied tiles"},
    {"fbnSaveEdit", ControlKind::Button, "", "Save all tiles to file"},
    {"fbnReload", ControlKind::Button, "", "Reload all tiles"},
    {"fbnEditClear", ControlKind::Button, "", "Clear all tiles"},
    {"fbnEditZoomOut", ControlKind::Button, "", "Zoom in"},
    {"fbnEditZoomIn", ControlKind::Button, "", "Zoom out"},
    {"fbnCOutPut", ControlKind::Button, "", "Open the 'C Output' tool"},
};

inline constexpr ControlRow kTileControlControls[] = {
    {"txtAddress", ControlKind::Text, "0", "Tile Address (Decimal)"},
    {"lblHex", ControlKind::Label, "0", "Tile Address (Hex)"},
    {"fbnSaveTile", ControlKind::Button, "", "Save the selected tile to file"},
    {"fbnReloadTile", ControlKind::Button, "", "Reload the selected tile from file"},
    {"fbnDeleteSprite", ControlKind::Button, "", "Clear the selected tile"},
    {"fbnCopySelTile", ControlKind::Button, "", "Copy selected tile to the selected position in the browser"},
    {"fbnCopyToAddress", ControlKind::Button, "", "Copy selected tile to the address beneath"},
    {"fbnFlipX", ControlKind::Button, "", "Horizantally flip the selected tile"},
    {"fbnFlipY", ControlKind::Button, "", "Vertically flip the selected tile"},
    {"fbnRotate", ControlKind::Button, "", "Rotate the selected tile"},
};

inline constexpr ControlRow kPaletteControlControls[] = {
    {"picColor", ControlKind::Picture, "", "Left: Choose color for Paint or Fill mode | Right: Edit color"},
    {"shpCol", ControlKind::Picture, "", ""},
    {"lblSwitch", ControlKind::Label, "256/16/4 colors", "Switch between 256, 16 and 4 colors display"},
    {"fbnPalShiftLeft", ControlKind::Button, "", "Shift the selected number of colors to the left"},
    {"fbnPalShiftRight", ControlKind::Button, "", "Shift the selected number of colors to the right"},
    {"fbnPalShiftNum", ControlKind::Button, "1", "Number of colors to shift"},
};

inline constexpr ControlRow kCOutPutControls[] = {
    {"lblTileCon", ControlKind::Label, "Tile Converter", ""},
    {"lblSize", ControlKind::Label, "Tile size in pixel", ""},
    {"cboSize", ControlKind::Combo, "", "Choose size of tiles"},
    {"lblShape", ControlKind::Label, "Tile shape", ""},
    {"cboShape", ControlKind::Combo, "", "Choose shape of tiles"},
    {"lblRows2", ControlKind::Label, "Rows", ""},
    {"lblRows", ControlKind::Label, "1", ""},
    {"hsbRows", ControlKind::Bar, "", "", 1, 16, 1},
    {"lblLines2", ControlKind::Label, "Lines", ""},
    {"lblLines", ControlKind::Label, "1", ""},
    {"hsbLines", ControlKind::Bar, "", "", 1, 16, 1},
    {"cboTilemode", ControlKind::Combo, "", "Choose tile mode"},
    {"lblNames", ControlKind::Label, "Names", ""},
    {"lblSprite", ControlKind::Label, "Name of sprite variable:", ""},
    {"txtSprite", ControlKind::Text, "sprite", ""},
    {"fbnCCodeSprite", ControlKind::Button, "", "Convert editor tiles to C code"},
    {"lblInfo", ControlKind::Label, "Label1", ""},
    {"lblColPalCon", ControlKind::Label, "Color Palette Converter", ""},
    {"cboPaletteType", ControlKind::Combo, "", ""},
    {"cboColorCount", ControlKind::Combo, "", ""},
    {"lblPalette", ControlKind::Label, "Name of palette variable:", ""},
    {"txtPalette", ControlKind::Text, "palette", ""},
    {"fbnCCodePalette", ControlKind::Button, "", "Display palette to C code"},
    {"fbnClose", ControlKind::Button, "", "Close Converter Tool"},
};

inline constexpr ControlRow kColorSetControls[] = {
    {"Label1", ControlKind::Label, "Color Set Display", ""},
    {"lstSets", ControlKind::List, "", "Here the color sets are listed"},
    {"txtName", ControlKind::Text, "", "This is the description of the selected color set"},
    {"picColor", ControlKind::Picture, "", ""},
    {"fbnApplySet", ControlKind::Button, "", "Apply the selected color set the current set to the browser"},
    {"fbnAddSet", ControlKind::Button, "", "Add the editor's color set to the list"},
    {"fbnDeleteSet", ControlKind::Button, "", "Left: Delete current | Right: Clear all"},
    {"fbnRandomPal", ControlKind::Button, "", "Random Palette"},
    {"fbnColorSetLoad", ControlKind::Button, "", "Load the color sets"},
    {"fbnColorSetSave", ControlKind::Button, "", "Save the color sets"},
    {"Label2", ControlKind::Label, "Palette Import/Export", ""},
    {"cboColorCount", ControlKind::Combo, "", "Select how many colors you want to load or save"},
    {"cboPaletteType", ControlKind::Combo, "", "Selected the type of palette to load/save"},
    {"cboPaletteAddress", ControlKind::Combo, "", "Enter a color palette's address or select one after successfully searching for one"},
    {"fbnPalIn", ControlKind::Button, "", "Load a palette from the given address"},
    {"fbnPalOut", ControlKind::Button, "", "Save the selected palette to the given address"},
    {"fbnClose", ControlKind::Button, "", "Close Color Set Tool"},
};

inline constexpr ControlRow kFavoritesToolControls[] = {
    {"fbnGotoFavorite", ControlKind::Button, "", "Go to Favorite"},
    {"fbnAddFavorite", ControlKind::Button, "", "Add current address as a Favorite"},
    {"fbnDelFavorite", ControlKind::Button, "", "remove Favorite"},
    {"fbnNewList", ControlKind::Button, "", "clear Favorites list"},
    {"fbnLoadFavorite", ControlKind::Button, "", "load Favorites file"},
    {"fbnSaveFavorite", ControlKind::Button, "", "save Favorites file"},
    {"fbnOrder", ControlKind::Toggle, "", "toggle sorting", 0, 0, 1},
    {"lblOrder", ControlKind::Label, "sort Favorites by address", "toggle sorting"},
    {"txtName", ControlKind::Text, "", "Name of the selected Favorite, double-click to rename it"},
    {"lstFavorites", ControlKind::List, "", "double-click a favorite to go to it"},
    {"fbnClose", ControlKind::Button, "", "Close Favorites Tool"},
};

inline constexpr ControlRow kFileInfoControls[] = {
    {"lblFile", ControlKind::Label, "File", ""},
    {"lblName", ControlKind::Label, "Filename here", ""},
    {"lblLenghtInfo", ControlKind::Label, "Lenght", ""},
    {"lblLength", ControlKind::Label, "Lenght here", ""},
    {"lblAttributesInfo", ControlKind::Label, "Attributes", ""},
    {"lblAttributes", ControlKind::Label, "Read only    Hidden    System    Archive", ""},
    {"imgReadOnly", ControlKind::Label, "", ""},
    {"imgHidden", ControlKind::Label, "", ""},
    {"imgSystem", ControlKind::Label, "", ""},
    {"imgArchive", ControlKind::Label, "", ""},
    {"imgYes", ControlKind::Label, "", ""},
    {"imgNo", ControlKind::Label, "", ""},
    {"lblGameboy", ControlKind::Label, "Gameboy/Gameboy Color Rom Info", ""},
    {"lblID", ControlKind::Label, "ID:", ""},
    {"lblRomName", ControlKind::Label, "ID here", ""},
    {"lblCrc", ControlKind::Label, "Checksum stored in file:", ""},
    {"lblFileChecksum", ControlKind::Label, "Crc here", ""},
    {"fbnDoChecksum", ControlKind::Button, "", "Repair checksum"},
    {"lblDoChecksum", ControlKind::Label, "Repair checksum - Gameboy/GB Color only!", ""},
    {"fbnClose", ControlKind::Button, "", "Close File Info"},
};

inline constexpr ControlRow kPatternControls[] = {
    {"lstPat", ControlKind::List, "", ""},
    {"txtDescription", ControlKind::Text, "", ""},
    {"fbnLoadPat", ControlKind::Button, "", "Apply the selected address pattern to the editor"},
    {"fbnAddPat", ControlKind::Button, "", "Add an Editor Address Pattern"},
    {"fbnDelPat", ControlKind::Button, "", "Delete the selected Editor Address Pattern"},
    {"fbnSave", ControlKind::Button, "", "Save the set of Editor Address Patterns"},
    {"fbnLoad", ControlKind::Button, "", "Load a set of Editor Address Patterns"},
    {"fbnRedraw", ControlKind::Toggle, "", "", 0, 0, 1},
    {"lblRedraw", ControlKind::Label, "Reload the editor's tiles after applying the address pattern.", ""},
    {"fbnBmp", ControlKind::Toggle, "", ""},
    {"lblBmp", ControlKind::Label, "Only apply new addresses but do not reload (for Bmp Import).", ""},
    {"fbnClose", ControlKind::Button, "", "Close Editor Adress Patterns Tool"},
};

inline constexpr ControlRow kOptionsControls[] = {
    {"lblColors", ControlKind::Label, "Colors", ""},
    {"lblGridColor", ControlKind::Label, "", "The grids will be displayed using this color"},
    {"lblSelectionColor", ControlKind::Label, "", "The selection boxes use this color"},
    {"lblEmptyColor", ControlKind::Label, "", "A tile w/o address will be displayed in this color"},
    {"lblBenchmark", ControlKind::Label, "Benchmark Measure redraw time", ""},
    {"fbnBenchmark", ControlKind::Toggle, "", "toggle Benchmarking"},
    {"lblMeasure", ControlKind::Label, "Measure redraw time", ""},
    {"lblWarning1", ControlKind::Label, "Show save warning", ""},
    {"fbnSaveWarning", ControlKind::Toggle, "", "toggle save warning", 0, 0, 1},
    {"lblWarning", ControlKind::Label, "Be careful - if you deactivate the save warning, you could damage a file by accident.", ""},
    {"lblAppearance", ControlKind::Label, "Appearance", ""},
    {"fbnSaveNow", ControlKind::Button, "", "Save current layout"},
    {"lblSaveNow", ControlKind::Label, "Save layout", ""},
    {"fbnLoadNow", ControlKind::Button, "", "Load saved layout"},
    {"lblLoadNow", ControlKind::Label, "Load layout", ""},
    {"fbnDefaultSettings", ControlKind::Button, "", "Reset layout to defaults"},
    {"lblDefaultSettings", ControlKind::Label, "Reset to defaults", ""},
    {"fbnClearRecent", ControlKind::Button, "", "Clear recent files"},
    {"lblClearRecent", ControlKind::Label, "Clear recent files", ""},
    {"fbnOk", ControlKind::Button, "", ""},
};

inline constexpr ControlRow kColorDialogControls[] = {
    {"vsbColor(0)", ControlKind::Bar, "", "", 0, 255, 0},
    {"vsbColor(1)", ControlKind::Bar, "", "", 0, 255, 0},
    {"vsbColor(2)", ControlKind::Bar, "", "", 0, 255, 0},
    {"lblColorValue(0)", ControlKind::Label, "255", "This is the current 'Red' value"},
    {"lblColorValue(1)", ControlKind::Label, "255", "This is the current 'Green' value"},
    {"lblColorValue(2)", ControlKind::Label, "255", "This is the current 'Blue' value"},
    {"lblColorValue(3)", ControlKind::Label, "31", "This is the current 'Red' 5 bit value"},
    {"lblColorValue(4)", ControlKind::Label, "31", "This is the current 'Green' 5 bit value"},
    {"lblColorValue(5)", ControlKind::Label, "31", "This is the current 'Blue' 5 bit value"},
    {"lblColorPreview", ControlKind::Label, "OK", "Confirm new color"},
    {"fbnCancel", ControlKind::Button, "", "Close Color Tool"},
};

inline constexpr ControlRow kAboutControls[] = {
    {"lblVersion", ControlKind::Label, "Version 0.64 build 2600", ""},
    {"lblVoska", ControlKind::Label, nullptr, ""},
    {"lblTarn", ControlKind::Label, nullptr, ""},
    {"lblEmail", ControlKind::Label, nullptr, "Email me"},
    {"lblHomepage", ControlKind::Label, nullptr, "Go to Homepage"},
    {"fbnEmail", ControlKind::Button, "", "Email me"},
    {"fbnHomepage", ControlKind::Button, "", "Go to Homepage"},
};

inline constexpr ControlRow kNewMsgBoxControls[] = {
    {"imgOk", ControlKind::Label, "", ""},
    {"imgCancel", ControlKind::Label, "", ""},
    {"imgYes", ControlKind::Label, "", ""},
    {"imgNo", ControlKind::Label, "", ""},
    {"imgAbort", ControlKind::Label, "", ""},
    {"imgRetry", ControlKind::Label, "", ""},
    {"imgIgnore", ControlKind::Label, "", ""},
    {"imgInfo", ControlKind::Label, "", ""},
    {"imgExclamation", ControlKind::Label, "", ""},
    {"imgQuestion", ControlKind::Label, "", ""},
    {"imgCritical", ControlKind::Label, "", ""},
    {"imgJa", ControlKind::Label, "", ""},
    {"imgNein", ControlKind::Label, "", ""},
    {"imgBlank", ControlKind::Label, "", ""},
    {"imgMsgBox", ControlKind::Label, "", ""},
    {"lblMsg", ControlKind::Label, "", ""},
    {"imgC1", ControlKind::Label, "", ""},
    {"imgC2", ControlKind::Label, "", ""},
    {"imgC3", ControlKind::Label, "", ""},
    {"fbnButton1", ControlKind::Button, "", ""},
    {"fbnButton2", ControlKind::Button, "", ""},
    {"fbnButton3", ControlKind::Button, "", ""},
    {"imgOk", ControlKind::Label, "", ""},
    {"imgCancel", ControlKind::Label, "", ""},
    {"imgYes", ControlKind::Label, "", ""},
    {"imgNo", ControlKind::Label, "", ""},
    {"imgAbort", ControlKind::Label, "", ""},
    {"imgRetry", ControlKind::Label, "", ""},
    {"imgIgnore", ControlKind::Label, "", ""},
    {"imgInfo", ControlKind::Label, "", ""},
    {"imgExclamation", ControlKind::Label, "", ""},
    {"imgQuestion", ControlKind::Label, "", ""},
    {"imgCritical", ControlKind::Label, "", ""},
    {"imgJa", ControlKind::Label, "", ""},
    {"imgNein", ControlKind::Label, "", ""},
    {"imgBlank", ControlKind::Label, "", ""},
};

inline constexpr ControlRow kMainFormControls[] = {
    {"fbnBrowser", ControlKind::Toggle, "", "Show/Hide the Browser and its controls"},
    {"fbnEditor", ControlKind::Toggle, "", "Show/Hide the Editor and its controls"},
    {"fbnTile", ControlKind::Toggle, "", "Show/Hide the Tile Tool"},
    {"fbnSeparator1", ControlKind::Button, "", ""},
    {"fbnEditPattern", ControlKind::Button, "", "Editor Address Pattern tool"},
    {"fbnColorSet", ControlKind::Button, "", "Color Set tool"},
    {"fbnFavorite", ControlKind::Button, "", "Show Favorites"},
    {"fbnFileInfo", ControlKind::Button, "", "Show File info"},
    {"fbnBmpImport", ControlKind::Button, "", "Import a Bmp file into the editor"},
    {"fbnBmpExport", ControlKind::Button, "", "Export the editor to a Bmp file"},
    {"fbnSeparator2", ControlKind::Button, "", ""},
    {"fbnHelp", ControlKind::Button, "", "Show Help file"},
    {"fbnOptions", ControlKind::Button, "", "Options"},
    {"fbnAbout", ControlKind::Button, "", "About Brolk Plus"},
    {"lblInfo", ControlKind::Label, "Info", ""},
    {"lblAddress", ControlKind::Label, "Address: 0", ""},
    {"lblPosition", ControlKind::Label, "X: 0   Y: 0", ""},
    {"lblColor", ControlKind::Label, "Color 0", ""},
};

// clang-format on

}  // namespace brolk::test
