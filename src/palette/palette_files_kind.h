// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/byte_reader.h"
#include "runtime/surface.h"

namespace brolk {

// The icons of the message box, with its flag numbers.
enum class NoticeIcon : std::int16_t { Critical = 16, Question = 32, Exclamation = 48 };

// A message whose text is fixed.
struct FixedNotice {
  std::string_view text;
  std::string_view title;
  NoticeIcon icon = NoticeIcon::Critical;
};

// What the user is to be told or asked.
struct Notice {
  Notice(std::string noticeText, std::string_view noticeTitle, NoticeIcon noticeIcon)
      : text(std::move(noticeText)), title(noticeTitle), icon(noticeIcon) {}
  Notice(const FixedNotice& fixed) : Notice(std::string(fixed.text), fixed.title, fixed.icon) {}

  std::string text;
  std::string title;
  NoticeIcon icon;
};

// How a load ended, apart from what it left in Sets and SetCount: what to tell, and whether the shown list is
// built again afterwards (each refusal has its own rule).
struct LoadOutcome {
  std::optional<Notice> notice;
  bool refreshList = true;
};

struct LoadRequest {
  FileSource file;
  std::string fileTitle;                         // the name without its folder, UTF-8
  std::function<bool(const Notice&)> answerYes;  // asks the user; true for Yes
};

enum class SizeTest { None, Exactly, Above };

// One kind of file that colour sets are read from, and some of them written to. Everything that differs from
// kind to kind is here; fields that a kind has no use for keep their defaults.
struct PaletteKind {
  // Name and pattern, as the file dialog takes them.
  std::string_view filter;

  // Reads the file; called with room in the list.
  LoadOutcome (*load)(const PaletteKind& kind, const LoadRequest& request) = nullptr;
  // Writes into a file that has just been made or emptied; null for a kind that is only read.
  void (*save)(std::int16_t handle, std::string_view path) = nullptr;

  // With this many sets or more in the list nothing is read and nothing said. kNeverFull: no such test, and
  // SetCount wraps.
  int fullAt = kNeverFull;

  // What the file must be like, tested in this order, and what is told otherwise.
  SizeTest sizeTest = SizeTest::None;
  std::int64_t sizeBytes = 0;
  FixedNotice wrongSize{};
  std::string_view signature{};  // the first bytes
  FixedNotice wrongSignature{};

  // Where the first colour is, in bytes from the start; how many entries of how many bytes make a set, and
  // the colour of an entry. The colours behind the last entry become 0.
  std::int32_t colorOffset = 0;
  int entryCount = 0;
  int entryBytes = 2;
  ColorValue (*decode)(std::uint16_t entry) = nullptr;

  // The names of the sets that are added, in order; one name, one set.
  std::array<std::string_view, 2> setNames{};

  // A file of the wrong size stays open to the end of the process. That is meant.
  bool wrongSizeStaysOpen = false;

  static constexpr int kNeverFull = 256;
};

// Holds the file against the size test and the signature of its kind, in this order, and takes the signature
// from the reader. What is to be told when it does not pass.
[[nodiscard]] std::optional<Notice> Refusal(const PaletteKind& kind, ByteReader& reader);

}  // namespace brolk
