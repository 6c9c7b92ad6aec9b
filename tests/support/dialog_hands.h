// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <vector>

#include "forms/common_dialog.h"

// Looks at the file dialogs that a window shows, and answers them all with one path; empty is a cancel.
namespace brolk::test {

struct SeenDialog {
  CommonDialog::Kind kind;
  std::string name;
  std::string filter;
  std::string fileName;  // as it stood when the dialog came up
};

class DialogWatch {
 public:
  explicit DialogWatch(const std::string& path) {
    CommonDialog::Answer = [this, path](CommonDialog& dialog, CommonDialog::Kind kind) {
      seen.push_back({kind, dialog.objectName().toStdString(), dialog.Filter.toStdString(),
                      dialog.FileName.toStdString()});
      if (!path.empty()) dialog.FileName = QString::fromStdString(path);
    };
  }
  ~DialogWatch() { CommonDialog::Answer = nullptr; }
  DialogWatch(const DialogWatch&) = delete;
  DialogWatch& operator=(const DialogWatch&) = delete;

  std::vector<SeenDialog> seen;
};

}  // namespace brolk::test
