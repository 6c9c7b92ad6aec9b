// SPDX-License-Identifier: MIT
#include "tile/windows/confirm_save.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "editor/editor_fixture.h"
#include "runtime/fault.h"
#include "runtime/files.h"
#include "shell/windows/options.h"

namespace brolk::test {
namespace {

struct SaveGate : EditorFixture {
  // The gate's answer while the user answers the boxes.
  static bool Asked(std::initializer_list<int> answers, std::vector<SeenBox>* boxes = nullptr) {
    bool agreed = false;
    const auto seen = WithAnswers(answers, [&agreed] { agreed = ConfirmSave(); });
    if (boxes != nullptr) *boxes = seen;
    return agreed;
  }
  static FlatButton& Switch() { return The<Options>().fbnSaveWarning; }
};

TEST_F(SaveGate, RefusesWithoutAWordWhileNoFileIsOpen) {
  ASSERT_TRUE(Switch().Checked());
  EXPECT_FALSE(Asked({}));
  Switch().SetChecked(false);
  EXPECT_FALSE(Asked({}));
}

TEST_F(SaveGate, AsksBeforeAWrite) {
  Open("rom.bin", std::vector<std::uint8_t>(64), kSnes4);
  std::vector<SeenBox> boxes;
  EXPECT_TRUE(Asked({6}, &boxes));
  EXPECT_EQ(boxes[0].text,
            "You are about to save to file. This will change the\rfile permanently.\r\r"
            "You should always keep a backup\rof the file you are altering.\r\rDo you want to save?");
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Save?");
  EXPECT_EQ(boxes[0].icon, "msg-question");
}

TEST_F(SaveGate, AgreesToYesAlone) {
  Open("rom.bin", std::vector<std::uint8_t>(64), kSnes4);
  EXPECT_FALSE(Asked({7}));
  EXPECT_FALSE(Asked({0})) << "closed by its frame";
  EXPECT_TRUE(Asked({6}));
  EXPECT_FALSE(Asked({7})) << "the answer is not remembered";
}

TEST_F(SaveGate, AsksNothingWithTheWarningOff) {
  Open("rom.bin", std::vector<std::uint8_t>(64), kSnes4);
  Switch().SetChecked(false);
  EXPECT_TRUE(Asked({}));
}

TEST_F(SaveGate, RefusesAHiddenFileAsReadOnlyBeforeItAsksTheSwitch) {
  const std::string path = Open(".hidden.bin", std::vector<std::uint8_t>(64), kSnes4);
  ASSERT_NE(FileAttributes(path) & kAttributeHidden, 0);
  for (const bool warning : {true, false}) {
    Switch().SetChecked(warning);
    std::vector<SeenBox> boxes;
    EXPECT_FALSE(Asked({1}, &boxes));
    EXPECT_EQ(boxes[0].text, "The opened file is 'read only'.");
    EXPECT_EQ(boxes[0].title, "Brolk Plus - Could not write to file");
    EXPECT_EQ(boxes[0].icon, "msg-exclamation");
  }
}

TEST_F(SaveGate, AsksForAFileWithoutWritePermissionAndTheWriteFailsSilently) {
  const std::string path = MakeFile("rom.gba", std::vector<std::uint8_t>(1024));
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  OpenRomFile(path);
  ASSERT_EQ(FileAttributes(path), kAttributeReadOnly);
  SetSlot(0, 64, PlainTile(1));
  editor().SetFocus();
  mouse.Click(At(0, 0));
  mouse.Move(At(0, 0));
  WithAnswers({6}, [this] { ClickControl(tool().fbnSaveTile); });
  EXPECT_EQ(FileBytes(path), std::vector<std::uint8_t>(1024));
}

TEST_F(SaveGate, IsTheFileFaultWhenTheFileHasGone) {
  const std::string path = Open("rom.bin", std::vector<std::uint8_t>(64), kSnes4);
  std::filesystem::remove(path);
  EXPECT_EQ(FaultOf([] { static_cast<void>(ConfirmSave()); }), FaultKind::FileNotFound);
}

TEST_F(SaveGate, ChangesNothing) {
  const std::string path = Open("rom.bin", std::vector<std::uint8_t>(64, 3), kSnes4);
  static_cast<void>(Asked({6}));
  EXPECT_EQ(FileBytes(path), std::vector<std::uint8_t>(64, 3));
  EXPECT_TRUE(FileOpen);
}

}  // namespace
}  // namespace brolk::test
