// SPDX-License-Identifier: MIT
#include "support/program.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "browser/windows/browser_control.h"
#include "forms/application.h"
#include "forms/common_dialog.h"
#include "forms/windows.h"
#include "shell/windows/main_form.h"
#include "shell/windows/new_msg_box.h"

namespace brolk::test {
namespace {

QTemporaryDir& Folder() {
  static QTemporaryDir folder;
  return folder;
}

// The button of the box that is up whose face gives this result.
FlatButton* ButtonFor(NewMsgBox& box, int result) {
  static const char* const faces[] = {"",           "face-ok",     "face-cancel", "face-abort",
                                      "face-retry", "face-ignore", "face-yes",    "face-no"};
  for (FlatButton* button : {&box.fbnButton1, &box.fbnButton2, &box.fbnButton3}) {
    if (!button->isHidden() && button->Picture() == QLatin1String(faces[result])) return button;
  }
  return nullptr;
}

}  // namespace

std::string TestFolder() {
  return Folder().path().toStdString() + "/";
}

void StartProgram() {
  setenv("BROLKPLUS_SETTINGS", (TestFolder() + "settings").c_str(), 1);
  The<MainForm>();
}

std::string MakeFile(const std::string& name, const std::vector<std::uint8_t>& bytes) {
  return MakeFile(name, std::string(bytes.begin(), bytes.end()));
}

std::string MakeFile(const std::string& name, const std::string& bytes) {
  const std::string path = TestFolder() + name;
  std::ofstream(path, std::ios::binary) << bytes;
  return path;
}

std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::uint8_t> FileBytes(const std::string& path) {
  const std::string text = FileText(path);
  return {text.begin(), text.end()};
}

QWidget& FindControl(QWidget& window, const char* name) {
  auto* control = window.findChild<QWidget*>(QString::fromUtf8(name));
  if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *control;
}

void ClickControl(QWidget& control, Qt::MouseButton button) {
  QTest::mouseClick(&control, button);
}

void PressKey(QWidget& target, int key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&target, static_cast<Qt::Key>(key), modifiers);
}

std::vector<SeenBox> WithAnswers(std::initializer_list<int> results, const std::function<void()>& action) {
  std::vector<SeenBox> seen;
  std::vector<int> pending(results);
  std::reverse(pending.begin(), pending.end());
  QTimer watcher;
  QObject::connect(&watcher, &QTimer::timeout, &watcher, [&] {
    if (!IsLoaded<NewMsgBox>() || !The<NewMsgBox>().Visible()) return;
    auto& box = The<NewMsgBox>();
    seen.push_back({box.lblMsg.Text().toStdString(), box.Caption().toStdString(),
                    box.imgMsgBox.Picture().toStdString()});
    const int result = pending.empty() ? 0 : pending.back();
    if (!pending.empty()) pending.pop_back();
    FlatButton* button = result == 0 ? nullptr : ButtonFor(box, result);
    if (button != nullptr) {
      ClickControl(*button);
    } else {
      EXPECT_EQ(result, 0) << "the box has no such button";
      box.close();
    }
  });
  watcher.start(0);
  action();
  watcher.stop();
  EXPECT_EQ(seen.size(), results.size()) << "number of message boxes";
  return seen;
}

FaultKind FaultOf(const std::function<void()>& action) {
  std::vector<FaultKind> faults;
  Application::OnFault = [&](const Fault& fault) { faults.push_back(fault.Kind()); };
  try {
    action();
  } catch (const Fault& fault) {
    faults.push_back(fault.Kind());
  }
  Application::OnFault = nullptr;
  if (faults.empty()) {
    ADD_FAILURE() << "no fault was raised";
    throw std::runtime_error("no fault was raised");
  }
  return faults.front();
}

void AnswerFileDialog(const std::string& path, int filterIndex) {
  CommonDialog::Answer = [path, filterIndex](CommonDialog& dialog, CommonDialog::Kind) {
    if (path.empty()) return;
    dialog.FileName = QString::fromStdString(path);
    dialog.FileTitle = dialog.FileName.mid(dialog.FileName.lastIndexOf(QLatin1Char('/')) + 1);
    dialog.FilterIndex = filterIndex;
  };
}

void OpenRomFile(const std::string& path) {
  AnswerFileDialog(path);
  ClickControl(The<BrowserControl>().fbnOpenFile);
  CommonDialog::Answer = nullptr;
}

}  // namespace brolk::test
