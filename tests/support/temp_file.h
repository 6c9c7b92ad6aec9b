// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "runtime/files.h"

// Files for tests of rules, without the toolkit.
namespace brolk::test {

// A folder of its own that goes with the object.
class TempFolder final {
 public:
  TempFolder() {
    std::random_device device;
    do {
      path_ = std::filesystem::temp_directory_path() / ("brolk-" + std::to_string(device()));
    } while (!std::filesystem::create_directory(path_));
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  [[nodiscard]] std::string Path(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

// A file with these bytes, open from the start of the test to its end.
class TempFile final {
 public:
  explicit TempFile(const std::vector<std::uint8_t>& bytes, int style = kOpenReadWrite)
      : path_(folder_.Path("file.bin")) {
    std::ofstream(path_, std::ios::binary) << std::string(bytes.begin(), bytes.end());
    handle_ = OpenFile(path_, style);
  }
  ~TempFile() { _lclose(handle_); }
  TempFile(const TempFile&) = delete;
  TempFile& operator=(const TempFile&) = delete;

  [[nodiscard]] std::int16_t Handle() const { return handle_; }
  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] std::vector<std::uint8_t> Bytes() const {
    std::ifstream file(path_, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    return {text.begin(), text.end()};
  }

 private:
  TempFolder folder_;
  std::string path_;
  std::int16_t handle_ = -1;
};

}  // namespace brolk::test
