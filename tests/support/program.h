// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "runtime/fault.h"

// What window tests share: the program started as a user starts it, files of its own, and a person's hands.
namespace brolk::test {

// Runs the whole start-up in this process, with an empty settings file in the test's own folder.
void StartProgram();

// The test's own empty folder, removed when the process ends; with a separator at the end.
[[nodiscard]] std::string TestFolder();

// Writes bytes to a file of the test's folder and answers its full path.
std::string MakeFile(const std::string& name, const std::vector<std::uint8_t>& bytes);
std::string MakeFile(const std::string& name, const std::string& bytes);

// The bytes of a file; an absent file fails the test.
[[nodiscard]] std::vector<std::uint8_t> FileBytes(const std::string& path);
[[nodiscard]] std::string FileText(const std::string& path);

// The control with a given object name below a window; an absent one fails the test and ends it.
QWidget& FindControl(QWidget& window, const char* name);
template <typename Control>
Control& Find(QWidget& window, const char* name) {
  return dynamic_cast<Control&>(FindControl(window, name));
}

// Real clicks and keys.
void ClickControl(QWidget& control, Qt::MouseButton button = Qt::LeftButton);
void PressKey(QWidget& target, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// Answers the message boxes that come up while `action` runs, in order, by clicking the button with that face
// (or by the frame for 0), and gives back what each showed. A box too many or too few fails the test.
struct SeenBox {
  std::string text;
  std::string title;  // the caption of the window
  std::string icon;   // name of the picture
};
std::vector<SeenBox> WithAnswers(std::initializer_list<int> results, const std::function<void()>& action);

// The kind of fault that `action` ends in, through the event loop or directly; no fault fails the test.
FaultKind FaultOf(const std::function<void()>& action);

// Opens a file of this path through the real open button; the dialog is answered by its seam.
void OpenRomFile(const std::string& path);

// Answers the next file dialogs with these paths (empty: cancel) and filter index.
void AnswerFileDialog(const std::string& path, int filterIndex = 1);

}  // namespace brolk::test
