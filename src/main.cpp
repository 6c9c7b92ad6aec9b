// SPDX-License-Identifier: MIT
#include "forms/application.h"
#include "forms/display.h"
#include "forms/windows.h"
#include "shell/windows/main_form.h"

int main(int, char** arguments) {
  brolk::PreferPlaceableWindows();
  int argumentCount = 1;
  brolk::Application application(argumentCount, arguments);
  return application.Run([] { brolk::The<brolk::MainForm>(); });
}
