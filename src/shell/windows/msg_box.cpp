// SPDX-License-Identifier: MIT
#include "shell/windows/msg_box.h"

#include "forms/windows.h"
#include "shell/message_box_rules.h"
#include "shell/windows/new_msg_box.h"

namespace brolk {

std::uint8_t ShowMsgBox(const QString& Prompt, std::int16_t Flags, const QString& Title) {
  auto& box = The<NewMsgBox>();
  MsgBoxResult = 0;
  box.Dress(MsgBoxStateFor(Flags));
  box.lblMsg.SetText(Prompt);
  box.lblMsg.setAccessibleName(Prompt);
  const QString product = QStringLiteral("Brolk Plus");
  box.SetCaption(Title.isEmpty() ? product : product + QStringLiteral(" - ") + Title);
  box.ShowModal();
  return MsgBoxResult;
}

}  // namespace brolk
