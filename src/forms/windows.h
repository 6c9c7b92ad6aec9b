// SPDX-License-Identifier: MIT
#pragma once

#include "forms/form.h"

namespace brolk {

namespace windows_detail {
template <typename Window>
inline Window* instance = nullptr;
// Takes the window from the screen and frees it once no event of it is running any more.
void Discard(Form& form);
}  // namespace windows_detail

// The one window of a class. It is made and loaded at the first reference and can be reached while it loads.
template <typename Window>
Window& The() {
  if (windows_detail::instance<Window> != nullptr) return *windows_detail::instance<Window>;
  auto* window = new Window;
  windows_detail::instance<Window> = window;
  // A window that unloads itself while it loads lives on until its caller is through.
  window->Load();
  return *window;
}

template <typename Window>
[[nodiscard]] bool IsLoaded() {
  return windows_detail::instance<Window> != nullptr;
}

// Takes the window and its controls away; the next reference makes a fresh one. A window that is not there
// stays so.
template <typename Window>
void UnloadWindow() {
  Window* window = windows_detail::instance<Window>;
  if (window == nullptr) return;
  windows_detail::instance<Window> = nullptr;
  windows_detail::Discard(*window);
}

}  // namespace brolk
