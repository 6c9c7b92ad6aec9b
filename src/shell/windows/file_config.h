// SPDX-License-Identifier: MIT
#pragma once

// The window layout between the windows and the settings store: which tools are on, where each window stands,
// page shape and zoom. It is written on the user's command and on a first run, never at the end.
namespace brolk {

// Writes every value of the layout. A coordinate beyond an Integer (32767 twips) is the overflow fault.
void SaveLayout();

// Reads every value of the layout and applies it: first the numbers, a missing one as 0, then the flags. A
// store without "ShowBrowser" is a first run: DefaultLayout takes over. The checked states of buttons are
// assigned without their clicks, so ShowGrid, the panel's scroll bars and LineBytes stay as they were.
void LoadLayout();

// Writes the defaults, then runs LoadLayout. In a store that refuses writes the two call each other until the
// program's own bound ends it with the stack fault: nothing else guards against that, and it is meant.
void DefaultLayout();

}  // namespace brolk
