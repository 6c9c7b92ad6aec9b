// SPDX-License-Identifier: MIT
#include "importers/gzip_file.h"

#include <zlib.h>

#ifdef _WIN32
#include <filesystem>
#endif

namespace brolk {
namespace {

gzFile OpenStream(const std::string& path) {
#ifdef _WIN32
  return gzopen_w(std::filesystem::path(std::u8string(path.begin(), path.end())).c_str(), "rb");
#else
  return gzopen(path.c_str(), "rb");
#endif
}

}  // namespace

GzipFile::GzipFile(const std::string& path) : stream_(OpenStream(path)) {}

GzipFile::~GzipFile() {
  gzclose(stream_);
}

void GzipFile::Seek(std::int32_t offset) {
  static_cast<void>(gzseek(stream_, offset, SEEK_SET));
}

void GzipFile::Read(std::span<std::uint8_t> target) {
  static_cast<void>(gzread(stream_, target.data(), static_cast<unsigned>(target.size())));
}

}  // namespace brolk
