// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "editor/slots.h"
#include "palette/palette_model.h"
#include "runtime/files.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {

// The state right after the start, without a window: modes, start palette, 256 empty slots, no file.
class RuleFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    FillModes();
    SetDefaultPalette();
    ClearAllSlots();
  }

  void TearDown() override {
    if (!FileOpen) return;
    _lclose(hFile);
    std::filesystem::remove(path_);
  }

  // Opens a file that holds these bytes for reading and writing, as the program's open file.
  void OpenTestFile(const std::vector<std::uint8_t>& bytes) {
    path_ = std::filesystem::temp_directory_path() /
            ("brolk-editor-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::ofstream(path_, std::ios::binary) << std::string(bytes.begin(), bytes.end());
    FileName = path_.string();
    hFile = OpenFile(FileName, kOpenReadWrite);
    ASSERT_GT(hFile, 0);
    FileLength = static_cast<std::int32_t>(bytes.size());
    FileOpen = true;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace brolk::test
