// SPDX-License-Identifier: MIT
#include "shell/windows/new_msg_box.h"

#include <QApplication>
#include <QEventLoop>
#include <QHideEvent>
#include <QWindow>
#include <array>

#include "forms/windows.h"
#include "shell/windows/main_form.h"

namespace brolk {
namespace {

constexpr double kMarkerLeft = 3600;
constexpr double kMarkerSide = 480;
constexpr double kButtonLeft = 4080;
constexpr double kButtonWidth = 1200;
constexpr double kButtonHeight = 480;
constexpr std::array<double, kMsgButtonCount> kRowTops = {120, 720, 1320};

// What a screen reader says for a face; the face itself is a picture of the word.
constexpr std::array<const char*, 7> kFaceWords = {"OK", "Cancel", "Yes", "No", "Abort", "Retry", "Ignore"};

// The window that the box belongs to: the active one, else the one that is known to have been, else the
// frame.
Form* OwnerForm() {
  auto* active = dynamic_cast<Form*>(QApplication::activeWindow());
  if (active != nullptr && active->Visible()) return active;
  if (Form::Active() != nullptr) return dynamic_cast<Form*>(Form::Active()->window());
  return IsLoaded<MainForm>() ? &The<MainForm>() : nullptr;
}

}  // namespace

NewMsgBox::NewMsgBox() : Form({"NewMsgBox", "Brolk Plus", FormKind::Free, FormBorder::Fixed, 5385, 1935}) {
  setWindowModality(Qt::ApplicationModal);
  PlaceControls();
  const std::pair<Label*, const char*> store[] = {
      {&imgOk, "face-ok"},
      {&imgCancel, "face-cancel"},
      {&imgYes, "face-yes"},
      {&imgNo, "face-no"},
      {&imgAbort, "face-abort"},
      {&imgRetry, "face-retry"},
      {&imgIgnore, "face-ignore"},
      {&imgInfo, "msg-info"},
      {&imgExclamation, "msg-exclamation"},
      {&imgQuestion, "msg-question"},
      {&imgCritical, "msg-critical"},
      {&imgJa, "mark-enter"},
      {&imgNein, "mark-escape"},
      {&imgBlank, "blank"},
  };
  for (const auto& [image, picture] : store) {
    image->SetPicture(QString::fromLatin1(picture));
    image->hide();
  }
  fbnButton1.Click = [this] { Answer(0); };
  fbnButton2.Click = [this] { Answer(1); };
  fbnButton3.Click = [this] { Answer(2); };
}

void NewMsgBox::Form_Load() {}

void NewMsgBox::PlaceControls() {
  Place(imgMsgBox, 120, 120, 720, 720);
  Place(lblMsg, 960, 120, 2655, 975);
  lblMsg.SetWrap();
  for (std::size_t row = 0; row < kRowTops.size(); ++row) {
    Place(Marker(row), kMarkerLeft, kRowTops[row], kMarkerSide, kMarkerSide);
    Place(Button(row), kButtonLeft, kRowTops[row], kButtonWidth, kButtonHeight);
  }
}

FlatButton& NewMsgBox::Button(std::size_t index) {
  return *std::array{&fbnButton1, &fbnButton2, &fbnButton3}.at(index);
}

Label& NewMsgBox::Marker(std::size_t index) {
  return *std::array{&imgC1, &imgC2, &imgC3}.at(index);
}

const Label& NewMsgBox::FaceStore(MsgFace face) const {
  return *std::array{&imgOk, &imgCancel, &imgYes, &imgNo, &imgAbort, &imgRetry, &imgIgnore}.at(
      static_cast<std::size_t>(face));
}

void NewMsgBox::Dress(const MsgBoxState& state) {
  const std::array icons{&imgBlank, &imgCritical, &imgQuestion, &imgExclamation, &imgInfo};
  imgMsgBox.SetPicture(icons.at(static_cast<std::size_t>(state.icon))->Picture());
  for (std::size_t index = 0; index < state.buttons.size(); ++index) {
    const MsgButton& row = state.buttons[index];
    FlatButton& button = Button(index);
    button.SetPicture(FaceStore(row.face).Picture());
    button.setAccessibleName(QString::fromLatin1(kFaceWords.at(static_cast<std::size_t>(row.face))));
    button.setEnabled(row.shown);
    button.setVisible(row.shown);
    button.SetDefault(row.isDefault);
    button.SetCancel(row.isCancel);
    Marker(index).SetPicture(row.marker == MsgMarker::Green ? imgJa.Picture() : imgNein.Picture());
    Marker(index).setVisible(row.markerShown);
    if (row.isDefault) button.setFocus(Qt::OtherFocusReason);
  }
}

// A button means what its face says.
void NewMsgBox::Answer(int button) {
  const QString face = Button(static_cast<std::size_t>(button)).Picture();
  for (std::size_t index = 0; index < kFaceWords.size(); ++index) {
    const auto candidate = static_cast<MsgFace>(index);
    if (FaceStore(candidate).Picture() == face) MsgBoxResult = MsgBoxAnswer(button, candidate);
  }
  Hide();
}

void NewMsgBox::CenterOnOwner() {
  const Form* owner = OwnerForm();
  if (owner == nullptr) return;
  SetLeft(owner->Left() + (owner->Width() - Width()) / 2);
  SetTop(owner->Top() + (owner->Height() - Height()) / 2);
  if (owner->windowHandle() == nullptr) return;
  create();
  windowHandle()->setTransientParent(owner->windowHandle());
}

void NewMsgBox::ShowModal() {
  CenterOnOwner();
  QEventLoop loop;
  waiting_ = &loop;
  Show();
  raise();
  activateWindow();
  loop.exec();
  waiting_ = nullptr;
}

void NewMsgBox::hideEvent(QHideEvent* event) {
  Form::hideEvent(event);
  // Hidden with its owner by the window system is not answered.
  if (waiting_ != nullptr && !event->spontaneous()) waiting_->quit();
}

}  // namespace brolk
