// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace brolk {

inline constexpr int kRecentFileCount = 9;

// One place of the recent list. A place that is not enabled is free, whatever its path says.
struct RecentFile {
  bool enabled = false;
  std::string path;
};

// Newest first; [0] is the first entry.
using RecentFiles = std::array<RecentFile, kRecentFileCount>;

// One write into the list: an entry, counted from 1, gets this path and is enabled.
struct RecentWrite {
  int entry = 0;
  std::string path;
  bool operator==(const RecentWrite&) const = default;
};

// The writes that bring a file to the top of the list, in order, the top entry last. Every entry above the
// old place of the file moves down by one; the entries below stay. A file that is not among the first eight
// pushes the ninth out. Paths are compared byte for byte.
[[nodiscard]] std::vector<RecentWrite> WritesToTop(const RecentFiles& files, std::string_view path);

}  // namespace brolk
