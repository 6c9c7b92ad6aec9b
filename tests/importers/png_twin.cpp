// SPDX-License-Identifier: MIT
#include "importers/png_twin.h"

#include <cmath>
#include <set>

namespace brolk::test {
namespace {

// The file with as many zeros behind it as anyone asks for.
class Endless {
 public:
  explicit Endless(const std::string& file) : file_(file) {}
  [[nodiscard]] std::int64_t Byte(std::int64_t at) const {
    return at < Length() ? static_cast<unsigned char>(file_[static_cast<std::size_t>(at)]) : 0;
  }
  [[nodiscard]] std::int64_t Word(std::int64_t at) const { return Byte(at) * 256 + Byte(at + 1); }
  [[nodiscard]] std::int64_t Long(std::int64_t at) const { return Word(at) * 65536 + Word(at + 2); }
  [[nodiscard]] std::int64_t Signed(std::int64_t at) const {
    return Long(at) >= 0x80000000LL ? Long(at) - 0x100000000LL : Long(at);
  }
  [[nodiscard]] std::string Text(std::int64_t at, int count) const {
    std::string text;
    for (int k = 0; k < count; ++k) text += static_cast<char>(Byte(at + k));
    return text;
  }
  [[nodiscard]] std::int64_t Length() const { return static_cast<std::int64_t>(file_.size()); }

 private:
  const std::string& file_;
};

bool IsUpper(std::int64_t byte) {
  if (byte >= 'A' && byte <= 'Z') return true;
  if (byte == 0x8A || byte == 0x8C || byte == 0x8E || byte == 0x9F) return true;
  return byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
}

int KindOf(const std::string& type, std::int64_t length) {
  if (type == "IHDR") return length == 13 ? 0 : 7;
  if (type == "IEND") return 1;
  if (type == "IDAT") return 2;
  if (type == "gAMA") return length == 4 ? 3 : 7;
  if (type == "sBIT") return length < -1 ? 7 : 4;
  if (type == "PLTE") return length % 3 == 0 ? 5 : 7;
  if (type == "bKGD") return length == 1 || length == 2 || length == 6 ? 6 : 7;
  return IsUpper(static_cast<unsigned char>(type[0])) ? 9 : 8;
}

bool HeaderFits(const PngTwin& twin, std::int64_t compression, std::int64_t filter) {
  const std::set<int> depths[] = {{1, 2, 4, 8, 16}, {}, {8, 16}, {1, 2, 4, 8}, {8, 16}, {}, {8, 16}};
  if (twin.width < 1 || twin.height < 1) return false;
  if (twin.colorType > 6 || depths[twin.colorType].count(twin.bitDepth) == 0) return false;
  return compression == 0 && filter == 0 && (twin.interlace == 0 || twin.interlace == 1);
}

// A level of the picture's depth as 0 to 255, or -1.
std::int64_t Scaled(std::int64_t level, int bitDepth) {
  const double most = std::pow(2.0, bitDepth) - 1;
  return static_cast<double>(level) > most ? -1 : std::llrint(static_cast<double>(level) / most * 255);
}

std::int64_t BackgroundOf(const PngTwin& twin, const Endless& bytes, std::int64_t data, std::int64_t length) {
  const int type = twin.colorType;
  if (type == 3 && length == 1) {
    return bytes.Byte(data) <= static_cast<std::int64_t>(twin.palette.size()) - 1 ? bytes.Byte(data) : -1;
  }
  if ((type == 0 || type == 4) && length == 2) return Scaled(bytes.Word(data), twin.bitDepth);
  if ((type == 2 || type == 6) && length == 6) {
    const std::int64_t red = Scaled(bytes.Word(data), twin.bitDepth);
    const std::int64_t green = Scaled(bytes.Word(data + 2), twin.bitDepth);
    const std::int64_t blue = Scaled(bytes.Word(data + 4), twin.bitDepth);
    if (red < 0 || green < 0 || blue < 0) return -1;
    return red + green * 256 + blue * 65536;
  }
  return -1;
}

PngTwin Ended(PngTwin twin, int code) {
  twin.code = code;
  return twin;
}
PngTwin Faulted(PngTwin twin, FaultKind fault) {
  twin.fault = fault;
  return twin;
}

// Takes what a chunk of the kinds 0 and 3 to 6 tells; false makes the file invalid.
bool TakeChunk(PngTwin& twin, const Endless& bytes, const std::set<int>& seen, int kind, std::int64_t data,
               std::int64_t length) {
  if (kind == 0) {
    if (!seen.empty()) return false;
    twin.width = bytes.Signed(data);
    twin.height = bytes.Signed(data + 4);
    twin.bitDepth = static_cast<int>(bytes.Byte(data + 8));
    twin.colorType = static_cast<int>(bytes.Byte(data + 9));
    twin.interlace = static_cast<int>(bytes.Byte(data + 12));
    return HeaderFits(twin, bytes.Byte(data + 10), bytes.Byte(data + 11));
  }
  if (seen.count(kind) > 0) return false;
  if (kind != 6 && seen.count(5) + seen.count(2) > 0) return false;
  if (kind == 3) twin.gamma = static_cast<double>(bytes.Long(data)) / 100000.0;
  if (kind == 5) {
    if (static_cast<double>(length / 3) > std::pow(2.0, twin.bitDepth)) return false;
    if (twin.colorType != 2 && twin.colorType != 3 && twin.colorType != 6) return false;
    for (std::int64_t at = data; at < data + length; at += 3) {
      twin.palette.push_back(
          static_cast<std::int32_t>(bytes.Byte(at) + bytes.Byte(at + 1) * 256 + bytes.Byte(at + 2) * 65536));
    }
  }
  if (kind == 6) {
    const std::int64_t background = BackgroundOf(twin, bytes, data, length);
    if (background == -1) return false;
    twin.background = static_cast<std::int32_t>(background);
  }
  return true;
}

}  // namespace

PngTwin ReadPngNaively(const std::string& file) {
  const Endless bytes(file);
  PngTwin twin;
  std::set<int> seen;
  if (bytes.Text(0, 8) != "\x89PNG\r\n\x1A\n") return Ended(twin, 2);
  std::int64_t position = 8;
  while (position <= bytes.Length()) {
    const std::int64_t length = bytes.Signed(position);
    if (length < 0) return Ended(twin, 2);
    const std::int64_t data = position + 8;
    const int kind = KindOf(bytes.Text(position + 4, 4), length);
    position = data + length + 4;
    if (seen.count(0) == 0 && kind != 0) return Ended(twin, 2);
    if (kind == 1) return Ended(twin, position == bytes.Length() ? 0 : 2);
    if (kind == 7) return Ended(twin, 2);
    if (kind == 8) continue;
    if (kind == 9) return Ended(twin, 3);
    if (kind == 2) {
      if (length < 7) return Faulted(twin, FaultKind::SubscriptOutOfRange);
      if (bytes.Byte(data) % 16 != 8 || bytes.Byte(data) / 16 > 7) return Ended(twin, 2);
      if (seen.count(2) > 0) return Faulted(twin, FaultKind::DuplicateKey);
    } else if (!TakeChunk(twin, bytes, seen, kind, data, length)) {
      return Ended(twin, 2);
    }
    seen.insert(kind);
  }
  return Ended(twin, 2);
}

}  // namespace brolk::test
