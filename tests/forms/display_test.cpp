// SPDX-License-Identifier: MIT
#include "forms/display.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <initializer_list>

namespace brolk {
namespace {

// The environment of a desktop; an empty value counts as not set.
struct Desktop {
  const char* waylandDisplay;
  const char* display;
  const char* platform;
};

// What the toolkit would find as its platform after the choice.
QByteArray PlatformOn(const Desktop& desktop) {
  struct Variable {
    const char* name;
    const char* value;
  };
  for (const Variable& variable :
       {Variable{"WAYLAND_DISPLAY", desktop.waylandDisplay}, Variable{"DISPLAY", desktop.display},
        Variable{"QT_QPA_PLATFORM", desktop.platform}}) {
    qputenv(variable.name, variable.value);
  }
  PreferPlaceableWindows();
  return qgetenv("QT_QPA_PLATFORM");
}

TEST(Display, PrefersXOnWaylandAndKeepsWaylandAsSecond) {
  EXPECT_EQ(PlatformOn({"wayland-0", ":0", ""}), "xcb;wayland");
}

TEST(Display, StaysOnWaylandWithoutX) {
  EXPECT_EQ(PlatformOn({"wayland-0", "", ""}), "");
}

TEST(Display, LeavesAnXDesktopAlone) {
  EXPECT_EQ(PlatformOn({"", ":0", ""}), "");
}

TEST(Display, KeepsTheChoiceOfTheUser) {
  EXPECT_EQ(PlatformOn({"wayland-0", ":0", "wayland"}), "wayland");
}

}  // namespace
}  // namespace brolk
