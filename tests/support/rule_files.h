// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "runtime/fault.h"

// What tests of rules share: files of their own and faults. No toolkit.
namespace brolk::test {

// A folder of this process, removed when it ends.
class RuleFolder {
 public:
  RuleFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("brolk-rule-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  ~RuleFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  RuleFolder(const RuleFolder&) = delete;
  RuleFolder& operator=(const RuleFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// The path of a name in the folder, UTF-8.
inline std::string RulePath(std::string_view name) {
  static const RuleFolder folder;
  const std::u8string path = (folder.Path() / std::u8string(name.begin(), name.end())).u8string();
  return {path.begin(), path.end()};
}

inline std::filesystem::path NativeRulePath(const std::string& path) {
  return std::filesystem::path(std::u8string(path.begin(), path.end()));
}

// Writes a file of the folder and answers its path.
inline std::string WriteRuleFile(std::string_view name, std::string_view bytes) {
  const std::string path = RulePath(name);
  std::ofstream(NativeRulePath(path), std::ios::binary) << bytes;
  return path;
}

// The bytes of a file; an absent one fails the test.
inline std::string ReadRuleFile(const std::string& path) {
  std::ifstream file(NativeRulePath(path), std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

// The kind of fault that an action ends in; none fails the test.
inline FaultKind RuleFaultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.Kind();
  }
  ADD_FAILURE() << "no fault was raised";
  return FaultKind{-1};
}

// A text with zero bytes in it.
template <std::size_t Size>
std::string Bytes(const char (&literal)[Size]) {
  return std::string(literal, Size - 1);
}

}  // namespace brolk::test
