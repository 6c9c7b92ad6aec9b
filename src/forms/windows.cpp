// SPDX-License-Identifier: MIT
#include "forms/windows.h"

#include <QMdiSubWindow>

namespace brolk::windows_detail {

void Discard(Form& form) {
  form.Hide();
  if (form.ChildFrame() != nullptr) form.ChildFrame()->deleteLater();
  form.deleteLater();
}

}  // namespace brolk::windows_detail
