// SPDX-License-Identifier: MIT
#include "shell/windows/main_form.h"

#include <QVBoxLayout>

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "browser/windows/page_view.h"
#include "editor/windows/edit.h"
#include "editor/windows/editor.h"
#include "editor/windows/editor_control.h"
#include "editor/windows/tile_control.h"
#include "exchange/windows/bmp.h"
#include "forms/application.h"
#include "forms/keys.h"
#include "forms/look.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "palette/palette_model.h"
#include "palette/windows/palette_control.h"
#include "palette/windows/palette_panel.h"
#include "shell/info_panel.h"
#include "shell/reg_keys.h"
#include "shell/settings_store.h"
#include "shell/windows/file_config.h"
#include "shell/windows/init_defaults.h"
#include "shell/windows/msg_box.h"
#include "tile/shared.h"

namespace brolk {
namespace {

const char* const kVersionText = "Brolk Plus " BROLK_VERSION;
const char* const kCopyright = "Copyright (c) 2026 The Brolk Plus developers";

constexpr double kInfoPanelHeight = 270;
constexpr double kInfoLabelHeight = 255;

}  // namespace

MainForm::MainForm() : Form({"MainForm", "Brolk Plus", FormKind::Frame, FormBorder::Sizable, 12200, 8970}) {
  SetChildArea(&mdiArea);
  mdiArea.setObjectName(QStringLiteral("mdiArea"));
  mdiArea.setBackground(ScreenColor(kFrameColor));
  mdiArea.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  mdiArea.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  BuildToolbar();
  BuildInfoPanel();
  BuildMenus();
  auto* docking = new QVBoxLayout(this);
  docking->setContentsMargins(0, 0, 0, 0);
  docking->setSpacing(0);
  docking->setMenuBar(&menuBar);
  docking->addWidget(&picToolbar);
  docking->addWidget(&mdiArea, 1);
  docking->addWidget(&picInfo);
}

void MainForm::BuildInfoPanel() {
  picInfo.setObjectName(QStringLiteral("picInfo"));
  picInfo.setFixedHeight(PixelsFromTwips(kInfoPanelHeight));
  picInfo.setAutoFillBackground(true);
  QPalette colors = picInfo.palette();
  colors.setColor(QPalette::Window, ScreenColor(kInfoPanelColor));
  picInfo.setPalette(colors);
  for (Label* label : {&lblInfo, &lblAddress, &lblPosition, &lblColor}) {
    label->SetBorder();
    label->SetTextColor(kInfoTextColor);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }
  lblPosition.SetCentered();
}

// The start of the program. The order is fixed: Modes and Pow2 must be filled before the windows that read
// them load, and no window shows before LoadLayout.
void MainForm::Form_Load() {
  const auto lock = SettingsLockFile().u8string();
  if (PreviousInstance(QString::fromUtf8(reinterpret_cast<const char*>(lock.data())))) {
    UnloadFrame();
    return;
  }
  std::string copyright = kCopyright;
  RegSaveString(kLocalMachine, kSettingsKey, "Copyright", copyright);
  SetCaption(QString::fromLatin1(kVersionText));
  lblInfo.SetText(QString::fromLatin1(kVersionText) + QStringLiteral(" - May the Brolk be with you!"));
  lblAddress.SetText(QStringLiteral("Konnichi wa!"));
  ScrollScale = 32767;
  CellSize = 8;
  LineBytes = 256;
  TwipsPerPixel = kTwipsPerPixel;
  InitBmpHeader();
  FillPow2();
  InitDefaults();
  PaintPalettePanel();
  CreateSurfaces();
  FormatBrowser();
  The<TileControl>().LoadTile(1);
  ClearEditor();
  RedrawEditor();
  LoadLayout();
  FillRecentMenu();
  mnuNonCopied.SetChecked(!The<EditorControl>().fbnNonCopied.Checked());
  // The frame shows once its load event is through; the child window shown last stays the active one.
  show();
  // The keyboard starts on the frame itself, so that its keys work before any window has been clicked.
  setFocus(Qt::OtherFocusReason);
}

void MainForm::Form_Resize() {
  if (isMinimized()) return;
  const InfoPanelLayout layout =
      LayOutInfoPanel(ScaleWidth() * static_cast<double>(kTwipsPerPixel), TwipsPerPixel);
  Place(lblInfo, layout.info.left, kInfoLabelTop, layout.info.width, kInfoLabelHeight);
  Place(lblAddress, layout.address.left, kInfoLabelTop, layout.address.width, kInfoLabelHeight);
  Place(lblPosition, layout.position.left, kInfoLabelTop, layout.position.width, kInfoLabelHeight);
  Place(lblColor, layout.color.left, kInfoLabelTop, layout.color.width, kInfoLabelHeight);
}

void MainForm::UpdateToolWindows() {
  if (fbnBrowser.Checked()) {
    if (FileOpen) The<Browser>().Show();
    The<BrowserControl>().Show();
    The<PaletteControl>().Show();
  } else {
    The<Browser>().Hide();
    The<BrowserControl>().Hide();
  }
  if (fbnEditor.Checked()) {
    The<Editor>().Show();
    The<EditorControl>().Show();
    The<PaletteControl>().Show();
  } else {
    The<Editor>().Hide();
    The<EditorControl>().Hide();
  }
  if (fbnTile.Checked()) {
    The<TileControl>().Show();
  } else {
    The<TileControl>().Hide();
  }
  if (!fbnBrowser.Checked() && !fbnEditor.Checked()) The<PaletteControl>().Hide();
}

void MainForm::ToolNotAvailable() {
  ShowMsgBox(QStringLiteral("This tool is not available when no file is opened."), kMsgInformation,
             QStringLiteral("Tool not available"));
}

void MainForm::FillRecentMenu() {
  for (int number = 1; number <= kRecentCount; ++number) {
    const std::string path = RegGetString(kLocalMachine, kSettingsKey, "LastOpen" + std::to_string(number));
    const bool taken = !path.empty() && path != "-";
    MenuItem& item = mnuRecent[number - 1];
    item.SetCaption(taken ? QString::fromStdString(path) : QStringLiteral("Recent %1").arg(number));
    item.setEnabled(taken);
  }
}

// The frame has the keys of the Browser panel, so that a file can be opened while the keyboard is on the
// frame itself.
void MainForm::Form_KeyDown(int keyCode, int shift) {
  The<BrowserControl>().Form_KeyDown(keyCode, shift);
}

}  // namespace brolk
