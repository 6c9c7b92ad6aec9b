// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "shell/message_box_rules.h"

class QEventLoop;

namespace brolk {

// The answer of the box: 0 while there is none, and when it is closed by its frame.
inline std::uint8_t MsgBoxResult = 0;

// The window of the message box. One box exists; each call of ShowMsgBox dresses it anew.
class NewMsgBox final : public Form {
 public:
  NewMsgBox();

  // Puts the buttons, markers and the icon into this state.
  void Dress(const MsgBoxState& state);
  // Shows the window, centred on the active one, and returns when it has been answered, closed or taken away.
  // The rest of the program gets no input meanwhile.
  void ShowModal();

  void Form_Load() override;

  Label imgMsgBox{*this, "imgMsgBox", ""};
  Label lblMsg{*this, "lblMsg", ""};
  Label imgC1{*this, "imgC1", ""};
  Label imgC2{*this, "imgC2", ""};
  Label imgC3{*this, "imgC3", ""};
  FlatButton fbnButton1{*this, "fbnButton1", "face-ok", ""};
  FlatButton fbnButton2{*this, "fbnButton2", "face-no", ""};
  FlatButton fbnButton3{*this, "fbnButton3", "face-cancel", ""};

  // The store of pictures: copied, never shown themselves.
  Label imgOk{*this, "imgOk", ""};
  Label imgCancel{*this, "imgCancel", ""};
  Label imgYes{*this, "imgYes", ""};
  Label imgNo{*this, "imgNo", ""};
  Label imgAbort{*this, "imgAbort", ""};
  Label imgRetry{*this, "imgRetry", ""};
  Label imgIgnore{*this, "imgIgnore", ""};
  Label imgInfo{*this, "imgInfo", ""};
  Label imgExclamation{*this, "imgExclamation", ""};
  Label imgQuestion{*this, "imgQuestion", ""};
  Label imgCritical{*this, "imgCritical", ""};
  Label imgJa{*this, "imgJa", ""};
  Label imgNein{*this, "imgNein", ""};
  Label imgBlank{*this, "imgBlank", ""};

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void PlaceControls();
  void Answer(int button);
  [[nodiscard]] FlatButton& Button(std::size_t index);
  [[nodiscard]] Label& Marker(std::size_t index);
  [[nodiscard]] const Label& FaceStore(MsgFace face) const;
  void CenterOnOwner();

  QEventLoop* waiting_ = nullptr;
};

}  // namespace brolk
