// SPDX-License-Identifier: MIT
#include "palette/palette_files_kind.h"

namespace brolk {
namespace {

bool SizeFits(const PaletteKind& kind, const ByteReader& reader) {
  switch (kind.sizeTest) {
    case SizeTest::Exactly:
      return reader.Length() == kind.sizeBytes;
    case SizeTest::Above:
      return reader.Length() > kind.sizeBytes;
    case SizeTest::None:
      break;
  }
  return true;
}

bool SignatureFits(std::string_view signature, ByteReader& reader) {
  std::string head;
  std::uint8_t byte = 0;
  while (head.size() < signature.size()) {
    reader.Next(byte);
    head += static_cast<char>(byte);
  }
  return head == signature;
}

}  // namespace

std::optional<Notice> Refusal(const PaletteKind& kind, ByteReader& reader) {
  if (!SizeFits(kind, reader)) {
    if (kind.wrongSizeStaysOpen) reader.Abandon();
    return kind.wrongSize;
  }
  if (!SignatureFits(kind.signature, reader)) return kind.wrongSignature;
  return std::nullopt;
}

}  // namespace brolk
