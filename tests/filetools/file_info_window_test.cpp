// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "browser/windows/browser_control.h"
#include "filetools/windows/file_info.h"
#include "forms/windows.h"
#include "runtime/files.h"
#include "shell/windows/main_form.h"
#include "support/endless_child.h"
#include "support/program.h"
#include "support/shown_texts.h"
#include "tile/shared.h"

namespace brolk {
namespace {

using test::ClickControl;

const char* const kCaption = "Repair checksum - Gameboy/GB Color only!";

std::string Rom(std::size_t length) {
  std::string bytes(length, '\x01');
  if (length >= 336) {
    bytes.replace(308, 15, std::string("BROLK\0\0\0\0\0\0\0\0\0\0", 15));
    bytes[334] = '\x0A';
    bytes[335] = '\xBC';
  }
  return bytes;
}

class FileInfoWindow : public testing::Test {
 protected:
  FileInfoWindow() { test::StartProgram(); }

  std::string Open(const std::string& name, const std::string& bytes) {
    std::string path = test::MakeFile(name, bytes);
    test::OpenRomFile(path);
    ClickControl(The<MainForm>().fbnFileInfo);
    return path;
  }

  [[nodiscard]] std::vector<std::string> AttributePictures() const {
    std::vector<std::string> pictures;
    for (const Label* image : {&tool.imgReadOnly, &tool.imgHidden, &tool.imgSystem, &tool.imgArchive})
      pictures.push_back(image->Picture().toStdString());
    return pictures;
  }

  FileInfo& tool = The<FileInfo>();
};

TEST_F(FileInfoWindow, HasItsTextsBeforeTheFirstReport) {
  EXPECT_EQ(tool.Caption(), "File Info");
  EXPECT_EQ(tool.lblName.Text(), "Filename here");
  EXPECT_EQ(tool.lblLenghtInfo.Text(), "Lenght");
  EXPECT_EQ(tool.lblLength.Text(), "Lenght here");
  EXPECT_EQ(tool.lblRomName.Text(), "ID here");
  EXPECT_EQ(tool.lblFileChecksum.Text(), "Crc here");
  EXPECT_EQ(tool.lblDoChecksum.Text(), kCaption);
}

TEST_F(FileInfoWindow, HeadingsAreBold) {
  for (const Label* label : {&tool.lblFile, &tool.lblLenghtInfo, &tool.lblAttributesInfo, &tool.lblGameboy})
    EXPECT_TRUE(label->font().bold());
  EXPECT_FALSE(tool.lblName.font().bold());
}

TEST_F(FileInfoWindow, IsNotAvailableWithoutAFile) {
  const auto seen = test::WithAnswers({1, 1}, [] {
    ClickControl(The<MainForm>().fbnFileInfo);
    ClickControl(The<BrowserControl>().fbnFileInfo);
  });
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[0].title, "Brolk Plus - Tool not available");
  EXPECT_FALSE(tool.Visible());
}

TEST_F(FileInfoWindow, ReportsNameSizeTitleAndChecksum) {
  const std::string path = Open("game.gb", Rom(1572864));
  EXPECT_TRUE(tool.Visible());
  EXPECT_EQ(Form::Active(), &tool);
  EXPECT_EQ(tool.lblName.Text().toStdString(), path);
  EXPECT_EQ(tool.lblName.toolTip().toStdString(), path);
  EXPECT_EQ(tool.lblLength.Text(), "1.5 MB (1572864 bytes)");
  EXPECT_EQ(tool.lblRomName.Text(), QString::fromLatin1("BROLK\0\0\0\0\0\0\0\0\0\0", 15));
  EXPECT_EQ(tool.lblRomName.text(), "BROLK          ") << "zero bytes show as blanks";
  EXPECT_EQ(tool.lblFileChecksum.Text(), "ABC") << "no leading zeros";
  EXPECT_EQ(tool.RomChecksum, 0xABC);
  EXPECT_EQ(tool.lblDoChecksum.Text(), kCaption);
}

TEST_F(FileInfoWindow, EveryControlCharacterOfTheTitleShowsAsABlank) {
  std::string bytes = Rom(400);
  bytes.replace(308, 15, "A\r\nB\tC\x7F\x01 DEFGHI");
  Open("control.gb", bytes);
  EXPECT_EQ(tool.lblRomName.Text(), "A\r\nB\tC\x7F\x01 DEFGHI");
  EXPECT_EQ(tool.lblRomName.text(), "A  B C   DEFGHI");
}

TEST_F(FileInfoWindow, TitleIsReadAsWindows1252) {
  std::string bytes = Rom(400);
  bytes.replace(308, 2, "\x80\xFC");
  Open("ansi.gb", bytes);
  EXPECT_EQ(tool.lblRomName.Text().left(2).toStdString(), "\xE2\x82\xAC\xC3\xBC");
}

TEST_F(FileInfoWindow, ShowsTheAttributes) {
  const std::string plain = Open("plain.gb", Rom(400));
  using testing::ElementsAre;
  EXPECT_THAT(AttributePictures(), ElementsAre("no-mark", "no-mark", "no-mark", "no-mark"));
  std::filesystem::permissions(plain, std::filesystem::perms::owner_read);
  ClickControl(The<BrowserControl>().fbnFileInfo);
  EXPECT_THAT(AttributePictures(), ElementsAre("yes-mark", "no-mark", "no-mark", "no-mark"));
  EXPECT_EQ(tool.imgReadOnly.accessibleName(), "Read only: yes");
  test::WithAnswers({6}, [&] { Open(".hidden.gb", Rom(400)); });
  EXPECT_THAT(AttributePictures(), ElementsAre("no-mark", "yes-mark", "no-mark", "no-mark"));
}

TEST_F(FileInfoWindow, ImagesStandUnderTheirWords) {
  Open("plain.gb", Rom(400));
  int right = -1;
  for (const Label* image : {&tool.imgReadOnly, &tool.imgHidden, &tool.imgSystem, &tool.imgArchive}) {
    EXPECT_EQ(image->size(), QSize(32, 32));
    EXPECT_TRUE(image->isVisible());
    EXPECT_GT(image->x(), right);
    EXPECT_GE(image->y(), tool.lblAttributes.geometry().bottom());
    right = image->geometry().right();
  }
  EXPECT_FALSE(tool.imgYes.isVisible());
  EXPECT_FALSE(tool.imgNo.isVisible());
  EXPECT_EQ(tool.imgYes.size(), QSize(32, 32));
}

TEST_F(FileInfoWindow, DoesNotFollowAnotherFileByItself) {
  const std::string first = Open("first.gb", Rom(400));
  test::WithAnswers({6}, [] { test::OpenRomFile(test::MakeFile("second.gb", Rom(500))); });
  EXPECT_EQ(tool.lblName.Text().toStdString(), first);
  ClickControl(The<MainForm>().fbnFileInfo);
  EXPECT_EQ(tool.lblLength.Text(), "0 MB (500 bytes)");
}

TEST_F(FileInfoWindow, ShortFilesRepeatTheirLastByte) {
  Open("short.gb", std::string(334, '\x01') + "\x12");
  EXPECT_EQ(tool.lblFileChecksum.Text(), "1212");
}

TEST_F(FileInfoWindow, RepairAsksNothingAndReports) {
  const std::string path = Open("repair.gb", Rom(32768));
  test::WithAnswers({}, [&] { ClickControl(tool.fbnDoChecksum); });
  std::int32_t sum = 0;
  for (std::size_t i = 0; i < 334; ++i) sum += static_cast<std::uint8_t>(Rom(32768)[i]);
  EXPECT_EQ(tool.RunningSum, sum);
  EXPECT_EQ(tool.RomChecksum, sum);
  EXPECT_EQ(tool.lblFileChecksum.Text(), QString::number(sum, 16).toUpper());
  EXPECT_EQ(tool.lblDoChecksum.Text(), kCaption);
  std::string expected = Rom(32768);
  expected[334] = static_cast<char>(sum / 256);
  expected[335] = static_cast<char>(sum % 256);
  EXPECT_TRUE(test::FileText(path) == expected);
}

TEST_F(FileInfoWindow, ProgressIsShown) {
  Open("progress.gb", Rom(800));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&tool));
  test::ShownTexts shown(tool.lblDoChecksum);
  ClickControl(tool.fbnDoChecksum);
  QCoreApplication::processEvents();
  ASSERT_EQ(shown.texts.size(), 101U + 1);
  EXPECT_EQ(shown.texts.front(), "Calculating, please wait...");
  EXPECT_EQ(shown.texts[41], "Calculating, please wait...(41%)");
  EXPECT_EQ(shown.texts[42], "Calculating, please wait... (42%)");
  EXPECT_EQ(shown.texts.back(), kCaption);
}

TEST_F(FileInfoWindow, EachFailedWriteIsTold) {
  const std::string bytes = Rom(400);
  const std::string path = Open("broken.gb", bytes);
  const std::int16_t before = hFile;
  hFile = OpenFile(path, kOpenRead);
  const auto seen = test::WithAnswers({1, 1}, [&] { ClickControl(tool.fbnDoChecksum); });
  ASSERT_EQ(seen.size(), 2U);
  for (const auto& box : seen) {
    EXPECT_EQ(box.text, "Could not write checksum to file.");
    EXPECT_EQ(box.title, "Brolk Plus - Error while saving");
    EXPECT_EQ(box.icon, "msg-exclamation");
  }
  EXPECT_TRUE(test::FileText(path) == bytes);
  _lclose(hFile);
  hFile = before;
}

TEST_F(FileInfoWindow, RepairWithNoFileTellsTwiceAndFaults) {
  tool.Show();
  test::WithAnswers({1, 1}, [&] {
    EXPECT_EQ(test::FaultOf([&] { ClickControl(tool.fbnDoChecksum); }), FaultKind::FileNotFound);
  });
  EXPECT_EQ(tool.lblName.Text(), "");
  EXPECT_EQ(tool.lblLength.Text(), "0 MB (0 bytes)");
}

TEST_F(FileInfoWindow, ReportOnAFileThatIsGoneIsTheFileFault) {
  const std::string path = Open("gone.gb", Rom(400));
  std::filesystem::remove(path);
  EXPECT_EQ(test::FaultOf([] { ClickControl(The<MainForm>().fbnFileInfo); }), FaultKind::FileNotFound);
}

TEST_F(FileInfoWindow, RepairOfATinyFileGrowsIt) {
  const std::string path = Open("tiny.gb", std::string("\x01\x02"));
  ClickControl(tool.fbnDoChecksum);
  const std::int32_t sum = 1 + 2 + 332 * 2;
  EXPECT_EQ(test::FileText(path), "\x01\x02" + std::string(332, '\0') + static_cast<char>(sum / 256) +
                                      static_cast<char>(sum % 256));
  EXPECT_EQ(tool.lblFileChecksum.Text(), QString::number(sum, 16).toUpper());
}

TEST_F(FileInfoWindow, RepairOf32767BytesNeverEnds) {
  if (test::EndlessChild::Running()) {
    test::OpenRomFile(test::EndlessChild::Path());
    ClickControl(The<MainForm>().fbnFileInfo);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tool));
    test::ShownTexts shown(tool.lblDoChecksum);
    shown.Heard = [](const std::string& text) {
      if (text.ends_with("(100%)")) std::ofstream(test::EndlessChild::Path() + ".through") << text;
    };
    ClickControl(tool.fbnDoChecksum);
    FAIL() << "the repair came back";
  }
  const std::string path = test::MakeFile("endless.gb", Rom(32767));
  test::EndlessChild child(path);
  ASSERT_TRUE(child.Until([&] { return std::filesystem::exists(path + ".through"); }))
      << "it went through the whole file";
  QTest::qWait(500);
  EXPECT_TRUE(child.StillRuns()) << "and goes on";
  EXPECT_TRUE(test::FileText(path) == Rom(32767)) << "nothing was written";
}

TEST_F(FileInfoWindow, CloseHidesTheTool) {
  Open("close.gb", Rom(400));
  ClickControl(tool.fbnClose);
  EXPECT_FALSE(tool.Visible());
}

}  // namespace
}  // namespace brolk
