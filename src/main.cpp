// SPDX-License-Identifier: MIT
#include "forms/application.h"
#include "forms/windows.h"
#include "shell/windows/main_form.h"

int main(int, char** arguments) {
  int argumentCount = 1;
  brolk::Application application(argumentCount, arguments);
  return application.Run([] { brolk::The<brolk::MainForm>(); });
}
