// SPDX-License-Identifier: MIT
#include "importers/palette_kinds.h"

#include "runtime/files.h"

namespace brolk {
namespace {

constexpr FixedNotice kFileMissing = {"Could not find the selected file.", "Loading process aborted",
                                      NoticeIcon::Exclamation};

template <typename Wanted>
std::string FilterOf(Wanted wanted) {
  std::string filter;
  for (const PaletteKind& kind : kPaletteKinds) {
    if (!wanted(kind)) continue;
    if (!filter.empty()) filter += '|';
    filter += kind.filter;
  }
  return filter;
}

const PaletteKind* KindAt(int filterIndex) {
  return filterIndex >= 1 && filterIndex <= kPaletteKindCount ? &kPaletteKinds[filterIndex - 1] : nullptr;
}

bool IsMissing(const FileSource& file) {
  return !file.inMemory && OpenFile(file.path, kOpenExist) < 0;
}

}  // namespace

std::string LoadFilter() {
  return FilterOf([](const PaletteKind&) { return true; });
}

std::string SaveFilter() {
  return FilterOf([](const PaletteKind& kind) { return kind.save != nullptr; });
}

LoadOutcome LoadPaletteFile(int filterIndex, const LoadRequest& request) {
  if (IsMissing(request.file)) return {kFileMissing, false};
  const PaletteKind* kind = KindAt(filterIndex);
  if (kind == nullptr || SetCount >= kind->fullAt) return {};
  return kind->load(*kind, request);
}

void SavePaletteFile(int filterIndex, std::string_view path) {
  const std::int16_t handle = OpenFile(path, kOpenCreate);
  const PaletteKind* kind = KindAt(filterIndex);
  if (kind != nullptr && kind->save != nullptr) kind->save(handle, path);
  _lclose(handle);
}

std::string_view FolderOf(std::string_view path) {
  const std::size_t separator = LastSeparator(path);
  return separator == std::string_view::npos ? std::string_view{} : path.substr(0, separator);
}

}  // namespace brolk
