// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "editor/slots.h"
#include "exchange/c_source.h"
#include "palette/palette_model.h"
#include "support/rule_files.h"

namespace brolk {
namespace {

// The values that an array must hold, worked out pixel by pixel.
struct Expected {
  std::string name;
  std::vector<int> words;
};

// A program that leaves with 0 when all arrays of the two headers hold what they must.
std::string CheckingProgram(const std::vector<Expected>& arrays) {
  std::string program = "#include \"Palette.h\"\n#include \"sprites.h\"\n";
  for (const Expected& array : arrays) {
    program += "static const unsigned int want_" + array.name + "[] = {";
    for (const int word : array.words) program += std::to_string(word) + "u, ";
    program += "0u};\n";
  }
  program += "int main(void) {\n  unsigned int i;\n";
  for (const Expected& array : arrays) {
    const std::string count = std::to_string(array.words.size());
    program +=
        "  if (sizeof(" + array.name + ") / sizeof(" + array.name + "[0]) != " + count + ") return 1;\n";
    program += "  for (i = 0; i < " + count + "; i++) if (" + array.name + "[i] != want_" + array.name +
               "[i]) return 2;\n";
  }
  return program + "  return 0;\n}\n";
}

std::vector<int> SpriteWords(const std::vector<int>& slots, TileWords words) {
  std::vector<int> result;
  for (const int slot : slots) {
    const auto& pixels = EditSlots[slot].Pixels;
    for (int i = 0; words == TileWords::Colors16 && i < 16; ++i) {
      result.push_back(pixels[2 * i] % 16 + pixels[2 * i + 1] % 16 * 16 + pixels[2 * i + 2] % 16 * 256 +
                       pixels[2 * i + 3] % 16 * 4096);
    }
    for (int i = 0; words == TileWords::Colors256 && i < 32; ++i)
      result.push_back(pixels[2 * i] + pixels[2 * i + 1] * 256);
  }
  return result;
}

class CCompile : public testing::TestWithParam<TileWords> {
 protected:
  CCompile() : folderBefore_(std::filesystem::current_path()) {
    std::filesystem::current_path(test::NativeRulePath(test::RulePath("")));
    SetDefaultPalette();
    const unsigned seed = std::random_device{}();
    RecordProperty("seed", std::to_string(seed));
    std::mt19937 random(seed);
    for (EditSlot& slot : EditSlots) {
      for (std::uint8_t& pixel : slot.Pixels) pixel = static_cast<std::uint8_t>(random());
    }
  }
  void SetUp() override {
#ifdef _WIN32
    GTEST_SKIP() << "the compilers belong to the system that builds the program";
#endif
  }
  ~CCompile() override {
    std::filesystem::current_path(folderBefore_);
  }

  // Writes both headers and the program that checks them.
  static void WriteSources(TileWords words, const std::string& program) {
    WritePaletteSource("palette", 256, 1);
    WriteSpriteSource(
        test::RulePath("sprites.h"),
        {.name = "hero", .widthPx = 16, .heightPx = 16, .rows = 2, .lines = 2, .maxRows = 8, .words = words},
        [](int) {});
    std::vector<Expected> arrays = {{"palette", {}}};
    for (int i = 0; i < 256; ++i) {
      const ColorValue color = Palette[i];
      arrays[0].words.push_back((color & 0xFF) / 8 * 1024 + ((color >> 8) & 0xFF) / 8 * 32 +
                                (color >> 16) / 8);
    }
    const int firsts[] = {0, 2, 32, 34};
    const char* const names[] = {"hero0", "hero1", "hero8", "hero9"};
    for (int k = 0; k < 4; ++k) {
      const int first = firsts[k];
      arrays.push_back({names[k], SpriteWords({first, first + 1, first + 16, first + 17}, words)});
    }
    test::WriteRuleFile(program, CheckingProgram(arrays));
  }

  static int Run(const std::string& command) {
    return std::system(command.c_str());
  }

 private:
  std::filesystem::path folderBefore_;
};

TEST_P(CCompile, ACCompilerTakesTheHeaders) {
  WriteSources(GetParam(), "check.c");
  ASSERT_EQ(Run("\"" BROLK_C_COMPILER "\" -std=c99 -Wall -Wextra -pedantic -Werror -o check_c check.c"), 0);
  EXPECT_EQ(Run("./check_c"), 0);
}

TEST_P(CCompile, ACppCompilerTakesTheHeaders) {
  WriteSources(GetParam(), "check.cpp");
  ASSERT_EQ(
      Run("\"" BROLK_CXX_COMPILER "\" -std=c++11 -Wall -Wextra -pedantic -Werror -o check_cpp check.cpp"), 0);
  EXPECT_EQ(Run("./check_cpp"), 0);
}

INSTANTIATE_TEST_SUITE_P(BothModes, CCompile, testing::Values(TileWords::Colors16, TileWords::Colors256),
                         [](const auto& mode) {
                           return mode.param == TileWords::Colors16 ? "SixteenColors" : "ManyColors";
                         });

}  // namespace
}  // namespace brolk
