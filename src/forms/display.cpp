// SPDX-License-Identifier: MIT
#include "forms/display.h"

#include <QByteArray>

namespace brolk {

void PreferPlaceableWindows() {
  constexpr const char* kChoice = "QT_QPA_PLATFORM";
  const bool onWayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  const bool hasX = !qEnvironmentVariableIsEmpty("DISPLAY");
  if (onWayland && hasX && qEnvironmentVariableIsEmpty(kChoice)) qputenv(kChoice, "xcb;wayland");
}

}  // namespace brolk
