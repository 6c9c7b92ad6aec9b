// SPDX-License-Identifier: MIT
#include "browser/recent_files.h"

namespace brolk {
namespace {

// The entry that holds the file, the topmost if there are several; the last entry when there is none.
int PlaceOf(const RecentFiles& files, std::string_view path) {
  for (int entry = 1; entry < kRecentFileCount; ++entry) {
    const RecentFile& file = files[static_cast<std::size_t>(entry - 1)];
    if (file.enabled && file.path == path) return entry;
  }
  return kRecentFileCount;
}

}  // namespace

std::vector<RecentWrite> WritesToTop(const RecentFiles& files, std::string_view path) {
  std::vector<RecentWrite> writes;
  for (int entry = PlaceOf(files, path) - 1; entry >= 1; --entry) {
    const RecentFile& file = files[static_cast<std::size_t>(entry - 1)];
    if (file.enabled) writes.push_back({entry + 1, file.path});
  }
  writes.push_back({1, std::string(path)});
  return writes;
}

}  // namespace brolk
