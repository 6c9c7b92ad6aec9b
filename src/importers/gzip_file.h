// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>

struct gzFile_s;

namespace brolk {

// A gzip stream on the disk, read as its unpacked bytes; a file that is none is read as it stands. No error
// is told: what cannot be read is not delivered.
class GzipFile final {
 public:
  // path in UTF-8.
  explicit GzipFile(const std::string& path);
  ~GzipFile();
  GzipFile(const GzipFile&) = delete;
  GzipFile& operator=(const GzipFile&) = delete;

  // Goes to `offset` unpacked bytes from the start.
  void Seek(std::int32_t offset);
  // Fills the target as far as the stream goes; the rest is left alone.
  void Read(std::span<std::uint8_t> target);

 private:
  gzFile_s* stream_;
};

}  // namespace brolk
