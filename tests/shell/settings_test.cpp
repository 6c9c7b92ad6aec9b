// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "runtime/fault.h"
#include "shell/dword_text.h"
#include "shell/reg_keys.h"
#include "shell/settings_store.h"

namespace brolk {
namespace {

namespace fs = std::filesystem;

class Settings : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "settings-XXXXXX").string();
    folder = mkdtemp(pattern.data());
    file = folder / "settings";
    setenv("BROLKPLUS_SETTINGS", file.c_str(), 1);
  }
  void TearDown() override {
    unsetenv("BROLKPLUS_SETTINGS");
    fs::remove_all(folder);
  }

  [[nodiscard]] std::string Content() const {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  void Fill(const std::string& content) const { std::ofstream(file, std::ios::binary) << content; }

  static std::string Save(std::string_view name, std::string value) {
    return RegSaveString(kLocalMachine, kSettingsKey, name, value);
  }
  static std::string Get(std::string_view name) { return RegGetString(kLocalMachine, kSettingsKey, name); }
  static int GetInteger(std::string_view name) { return RegGetInteger(kLocalMachine, kSettingsKey, name); }

  fs::path folder;
  fs::path file;
};

TEST_F(Settings, ATextComesBackAsItWas) {
  EXPECT_EQ(Save("RomPath", "/home/me/roms"), "0 0");
  EXPECT_EQ(Get("RomPath"), "/home/me/roms");
  EXPECT_EQ(Save("RomPath", "elsewhere"), "0 0");
  EXPECT_EQ(Get("RomPath"), "elsewhere");
}

TEST_F(Settings, EveryByteOfATextIsKept) {
  const std::vector<std::string> texts = {"a=b",
                                          "[c]",
                                          "#d",
                                          "one\ntwo",
                                          "one\r\ntwo\r",
                                          "back\\slash\\n",
                                          "\\",
                                          " ",
                                          "  both ends  ",
                                          "caf\xC3\xA9 \xE6\x97\xA5",
                                          "\ttab"};
  for (const std::string& text : texts) {
    Save("PaletteDir", text);
    Save("Other", "x");
    EXPECT_EQ(Get("PaletteDir"), text);
  }
}

TEST_F(Settings, TheFileHoldsOneTableForTheKeyInTheOrderOfTheFirstWrites) {
  Save("Copyright", "a notice");
  Save("RomPath", "/roms");
  Save("LastOpen1", "-");
  Save("RomPath", "/other");
  RegSaveInteger(kLocalMachine, kSettingsKey, "MainRows", 8);
  EXPECT_EQ(Content(),
            "[SOFTWARE\\Kova\\BrolkPlus\\Settings]\n"
            "Copyright=a notice\n"
            "RomPath=/other\n"
            "LastOpen1=-\n"
            "MainRows=8\n");
}

TEST_F(Settings, AnEmptyTextIsStoredAsABlankInTheCallersVariableToo) {
  std::string value;
  EXPECT_EQ(RegSaveString(kLocalMachine, kSettingsKey, "PaletteDir", value), "0 0");
  EXPECT_EQ(value, " ");
  EXPECT_EQ(Get("PaletteDir"), " ");
  EXPECT_EQ(GetInteger("PaletteDir"), 0);
}

TEST_F(Settings, AMissingValueReadsAsAnEmptyTextAndAsZero) {
  EXPECT_EQ(Get("RomPath"), "");
  EXPECT_EQ(GetInteger("MainRows"), 0);
  Save("Another", "7");
  EXPECT_EQ(Get("RomPath"), "");
  EXPECT_EQ(GetInteger("MainRows"), 0);
}

TEST_F(Settings, NamesHaveNoCase) {
  Save("PatternLeft", "30");
  EXPECT_EQ(Get("patternLeft"), "30");
  EXPECT_EQ(Get("PATTERNLEFT"), "30");
  Save("patternleft", "45");
  EXPECT_EQ(Get("PatternLeft"), "45");
  EXPECT_EQ(Content(), "[SOFTWARE\\Kova\\BrolkPlus\\Settings]\nPatternLeft=45\n");
  EXPECT_EQ(RegGetString(kLocalMachine, "software\\KOVA\\brolkplus\\settings", "PatternLeft"), "45");
}

TEST_F(Settings, AnotherKeyIsAnotherTable) {
  std::string value = "here";
  RegSaveString(kLocalMachine, "SOFTWARE\\Other", "RomPath", value);
  EXPECT_EQ(Get("RomPath"), "");
  Save("RomPath", "there");
  EXPECT_EQ(RegGetString(kLocalMachine, "SOFTWARE\\Other", "RomPath"), "here");
}

TEST_F(Settings, NumbersAreDecimalTextsWithoutPadding) {
  for (const int number : {0, 1, -1, 32767, -32768}) {
    EXPECT_EQ(RegSaveInteger(kLocalMachine, kSettingsKey, "N", static_cast<std::int16_t>(number)), "0 0");
    EXPECT_EQ(Get("N"), std::to_string(number));
    EXPECT_EQ(GetInteger("N"), number);
  }
}

TEST_F(Settings, ANumberIsTheHeadOfItsTextRounded) {
  const struct {
    const char* text;
    int number;
  } rows[] = {{"12 apples", 12}, {"2.5", 2}, {"3.5", 4},   {"-2.5", -2},  {"none", 0},
              {" ", 0},          {"  7", 7}, {"&H10", 16}, {"&HFF", 255}, {"32767.4", 32767}};
  for (const auto& row : rows) {
    Save("N", row.text);
    EXPECT_EQ(GetInteger("N"), row.number) << row.text;
  }
}

TEST_F(Settings, ANumberBeyondAnIntegerIsTheOverflowFault) {
  for (const char* text : {"32768", "-32769", "32767.5", "99999999999", "&H8000"}) {
    Save("N", text);
    try {
      (void)GetInteger("N");
      ADD_FAILURE() << text;
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::Overflow) << text;
    }
  }
}

TEST_F(Settings, ATextOf1024BytesOrMoreIsCutByTheReadBuffer) {
  Save("Long", std::string(1023, 'a'));
  EXPECT_EQ(Get("Long").size(), 1023U);
  Save("Long", std::string(1024, 'b'));
  EXPECT_EQ(Get("Long"), std::string(1024, 'b'));
  Save("Long", std::string(1024, 'c') + "beyond");
  EXPECT_EQ(Get("Long"), std::string(1024, 'c'));
  EXPECT_NE(Content().find("cbeyond"), std::string::npos) << "the store itself keeps the text whole";
}

TEST_F(Settings, ATextEndsAtItsFirstZeroByte) {
  Save("Zero", std::string("ab\0cd", 5));
  EXPECT_EQ(Get("Zero"), "ab");
}

TEST_F(Settings, AFileWrittenByHandReads) {
  Fill(
      "# a remark\r\n"
      "[Software\\Kova\\BrolkPlus\\Settings]\r\n"
      "ShowBrowser=no\r\n"
      "no value\n"
      "mainrows= 12\n"
      "\n"
      "[Elsewhere]\n"
      "ShowEditor=Yes\n"
      "Last=open");
  EXPECT_EQ(Get("ShowBrowser"), "no");
  EXPECT_EQ(GetInteger("MainRows"), 12);
  EXPECT_EQ(Get("ShowEditor"), "");
  EXPECT_EQ(RegGetString(kLocalMachine, "Elsewhere", "Last"), "open");
}

TEST_F(Settings, DamagedFilesReadAsFarAsTheyMeanAnything) {
  for (const std::string& content :
       {std::string("\0\0=\n", 4), std::string("==\n[\n]\n[]\n=\n"),
        std::string("[SOFTWARE\\Kova\\BrolkPlus\\Settings"), std::string("A=\\"), std::string(100000, '=')}) {
    Fill(content);
    EXPECT_EQ(Get("MainRows"), "");
    EXPECT_EQ(Save("MainRows", "8"), "0 0");
    EXPECT_EQ(Get("MainRows"), "8");
  }
}

TEST_F(Settings, AFolderThatIsMissingIsMade) {
  file = folder / "deep" / "er" / "settings";
  setenv("BROLKPLUS_SETTINGS", file.c_str(), 1);
  EXPECT_EQ(Save("RomPath", "x"), "0 0");
  EXPECT_EQ(Get("RomPath"), "x");
}

TEST_F(Settings, AStoreWhoseFolderCannotBeMadeTellsItInTheStatusAlone) {
  std::ofstream(folder / "blocked") << "a file where a folder should be";
  setenv("BROLKPLUS_SETTINGS", (folder / "blocked" / "settings").c_str(), 1);
  EXPECT_EQ(Save("RomPath", "x"), "5 6");
  EXPECT_EQ(RegSaveInteger(kLocalMachine, kSettingsKey, "MainRows", 8), "5 6");
  EXPECT_EQ(Get("RomPath"), "");
  EXPECT_EQ(GetInteger("MainRows"), 0);
}

TEST_F(Settings, AStoreThatIsAFolderRefusesTheValue) {
  fs::create_directories(file / "inside");
  EXPECT_EQ(Save("RomPath", "x"), "0 5");
  EXPECT_EQ(Get("RomPath"), "");
  EXPECT_FALSE(fs::exists(folder / "settings.new")) << "nothing may be left beside it";
}

// A run that dies while it writes leaves the file beside the settings, never a part in their place.
TEST_F(Settings, AHalfWrittenFileBesideIsPassedOver) {
  Save("RomPath", "good");
  std::ofstream(folder / "settings.new") << "[SOFTWARE\\Kova\\Bro";
  EXPECT_EQ(Get("RomPath"), "good");
  Save("MainRows", "9");
  EXPECT_EQ(Get("RomPath"), "good");
  EXPECT_EQ(Get("MainRows"), "9");
  EXPECT_FALSE(fs::exists(folder / "settings.new"));
}

TEST_F(Settings, TheFileIsReplacedAndNeverWrittenOver) {
  Save("RomPath", "first");
  fs::create_hard_link(file, folder / "before");
  Save("RomPath", "second");
  std::ifstream before(folder / "before", std::ios::binary);
  const std::string kept(std::istreambuf_iterator<char>(before), {});
  EXPECT_EQ(kept, "[SOFTWARE\\Kova\\BrolkPlus\\Settings]\nRomPath=first\n");
  EXPECT_EQ(Get("RomPath"), "second");
}

TEST_F(Settings, AFileBehindALinkIsReplacedWhereItIs) {
  fs::create_directories(folder / "real");
  std::ofstream(folder / "real" / "kept") << "";
  fs::create_symlink(folder / "real" / "kept", file);
  EXPECT_EQ(Save("RomPath", "x"), "0 0");
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_EQ(Get("RomPath"), "x");
  EXPECT_GT(fs::file_size(folder / "real" / "kept"), 0U);
}

struct Environment {
  const char* moved;
  const char* configuration;
  const char* home;
  const char* file;
};

void Set(const char* name, const char* value) {
  if (value == nullptr) {
    unsetenv(name);
  } else {
    setenv(name, value, 1);
  }
}

TEST(SettingsPlace, FollowsTheEnvironment) {
  const Environment rows[] = {
      {"/tmp/moved", "/conf", "/home/me", "/tmp/moved"},
      {nullptr, "/conf", "/home/me", "/conf/brolkplus/settings"},
      {"", "/conf", "/home/me", "/conf/brolkplus/settings"},
      {nullptr, nullptr, "/home/me", "/home/me/.config/brolkplus/settings"},
      {nullptr, "", "/home/me", "/home/me/.config/brolkplus/settings"},
      {nullptr, "relative", "/home/me", "/home/me/.config/brolkplus/settings"},
      {nullptr, nullptr, nullptr, ""},
  };
  for (const Environment& row : rows) {
    Set("BROLKPLUS_SETTINGS", row.moved);
    Set("XDG_CONFIG_HOME", row.configuration);
    Set("HOME", row.home);
    EXPECT_EQ(SettingsFile(), row.file);
  }
}

TEST(SettingsPlace, TheLockStandsBesideTheFile) {
  Set("BROLKPLUS_SETTINGS", "/tmp/moved");
  EXPECT_EQ(SettingsLockFile(), "/tmp/moved.lock");
}

TEST(SettingsPlace, WithoutAnyPlaceNothingIsStored) {
  for (const char* name : {"BROLKPLUS_SETTINGS", "XDG_CONFIG_HOME", "HOME"}) unsetenv(name);
  std::string value = "x";
  EXPECT_EQ(RegSaveString(kLocalMachine, kSettingsKey, "RomPath", value), "2 6");
  EXPECT_EQ(RegGetString(kLocalMachine, kSettingsKey, "RomPath"), "");
}

TEST(DwordText, GivesTheBytesFromTheLastToTheFirstWithoutLeadingZeros) {
  EXPECT_EQ(DwordText("\x12"), "&h12");
  EXPECT_EQ(DwordText("\x78\x56\x34\x12"), "&h12345678");
  EXPECT_EQ(DwordText("\xEF\x0A"), "&hAEF");
  EXPECT_EQ(DwordText("\x05\x01"), "&h15");
  EXPECT_EQ(DwordText(""), "&h");
}

}  // namespace
}  // namespace brolk
