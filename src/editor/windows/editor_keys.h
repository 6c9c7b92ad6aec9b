// SPDX-License-Identifier: MIT
#pragma once

// What the keys of the Editor's window do, key codes as in keys.h.
namespace brolk {

// A key without Shift, Control and Alt; a key that has no action does nothing.
void RunEditorKey(int keyCode);

// A key with Control alone.
void RunEditorControlKey(int keyCode);

}  // namespace brolk
