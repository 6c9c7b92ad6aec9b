// SPDX-License-Identifier: MIT
#include "shell/windows/about.h"

#include <QMouseEvent>
#include <QPainter>

#include "forms/look.h"
#include "forms/screen.h"
#include "forms/windows.h"
#include "shell/windows/main_form.h"

namespace brolk {
namespace {

constexpr ColorValue kWhite = 0xFFFFFF;

// The picture of the window has light plates for the navy texts, and is dark behind the white ones. Pixels.
constexpr QRect kVersionPlate(20, 196, 220, 24);
constexpr QRect kEmailPlate(20, 236, 220, 36);
constexpr QRect kHomepagePlate(259, 236, 220, 36);
constexpr QRect kMakerLine(20, 296, 459, 20);
constexpr QRect kCreditLine(20, 320, 459, 20);
constexpr int kButtonPx = 36;

void OpenMail() {
  ShellOpen(QStringLiteral("mailto:") + The<About>().lblEmail.Text() + QStringLiteral("?subject=BrolkPlus"));
}

void OpenHomepage() {
  ShellOpen(The<About>().lblHomepage.Text());
}

void FillPlate(const QRect& plate, FlatButton& button, Label& label, void (*open)()) {
  button.setGeometry(plate.x(), plate.y(), kButtonPx, kButtonPx);
  label.setGeometry(plate.adjusted(kButtonPx, 0, 0, 0));
  label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  button.setCursor(Qt::PointingHandCursor);
  label.setCursor(Qt::PointingHandCursor);
  button.Click = open;
  label.SetClick(open);
}

}  // namespace

About::About() : Form({"About", "", FormKind::Free, FormBorder::Fixed, 7485, 5415}) {
  setAccessibleName(QStringLiteral("About Brolk Plus"));
  PlaceControls();
  for (Label* label : {&lblVersion, &lblVoska, &lblTarn}) label->SetClick([this] { Hide(); });
  // Nothing is picked out when the window comes up; Tab goes to the first control.
  setFocus();
}

void About::PlaceControls() {
  lblVersion.setGeometry(kVersionPlate);
  lblVersion.SetCentered();
  FillPlate(kEmailPlate, fbnEmail, lblEmail, OpenMail);
  FillPlate(kHomepagePlate, fbnHomepage, lblHomepage, OpenHomepage);
  lblVoska.setGeometry(kMakerLine);
  lblTarn.setGeometry(kCreditLine);
  for (Label* label : {&lblVoska, &lblTarn}) {
    label->SetCentered();
    label->SetTextColor(kWhite);
  }
}

void About::Form_Activate() {
  const auto& frame = The<MainForm>();
  SetTop((frame.Height() - Height()) / 2 + frame.Top());
  SetLeft((frame.Width() - Width()) / 2 + frame.Left());
}

void About::Form_Deactivate() {
  Hide();
}

void About::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawPixmap(0, 0, PicturePixmap(QStringLiteral("background-about"), size(), devicePixelRatioF()));
}

void About::mouseReleaseEvent(QMouseEvent*) {
  Hide();
}

}  // namespace brolk
