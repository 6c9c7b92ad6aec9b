// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace brolk {

// Height of the primary screen in twips.
[[nodiscard]] int ScreenHeightTwips();

// Hands a file, mail or web address to the desktop's own opener; what it cannot open is passed over in
// silence. An existing file of that name is opened as a file, anything else is taken as an address.
void ShellOpen(const QString& target);

// What ShellOpen hands its addresses to; tests put their own here.
inline std::function<void(const QString&)> ShellOpener;

// True when another process of this user runs the program. The first call takes the user's lock and keeps it
// to the end of the process; the lock of a process that has died does not count. lockPath: the lock's file.
[[nodiscard]] bool PreviousInstance(const QString& lockPath);

// Seconds since midnight, with the fraction, as a single-precision number.
[[nodiscard]] float SecondsSinceMidnight();

}  // namespace brolk
