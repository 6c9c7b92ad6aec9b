// SPDX-License-Identifier: MIT
#pragma once

namespace brolk {

// Chooses the display system before the toolkit starts. On Wayland a program cannot say where its free
// windows stand, and the layout of this one names their places; so where an X server (XWayland) is there as
// well, that comes first and Wayland second. Without Wayland, without X, and where the user has chosen
// (QT_QPA_PLATFORM), nothing changes.
void PreferPlaceableWindows();

}  // namespace brolk
