// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brolk::test {

// The settings file after a first run on the present screen, byte for byte; the places of the centred windows
// come from their sizes.
[[nodiscard]] std::string FirstRunFile();

// Where a centred window stands by default, worked out in whole numbers.
[[nodiscard]] std::string CentreText(int spaceTwips, int sizeTwips, int startTwips);

// Writes the settings file that the program will start with: the lines below the line of the key.
void PutSettings(const std::string& lines);

// The settings as a first run leaves them, with one value changed.
void PutLayoutWith(const std::string& name, const std::string& value);

// The value under a name of the settings file as it is on disk; "(none)" when there is none.
[[nodiscard]] std::string StoredValue(const std::string& name);

}  // namespace brolk::test
