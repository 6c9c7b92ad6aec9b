// SPDX-License-Identifier: MIT
#include "browser/windows/open_rom.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "browser/browser_windows.h"
#include "browser/rom_kinds.h"
#include "browser/windows/page_view.h"
#include "editor/slots.h"
#include "editor/windows/tile_control.h"
#include "forms/common_dialog.h"
#include "runtime/files.h"
#include "shell/reg_keys.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk::test {
namespace {

struct OpeningAFile : BrowserWindows {};

const char* const kAskBeforeOpening =
    "Before you can open a new file, you have to close the opened file.\r\r"
    "Are you sure you want to close the opened file?";

std::string Setting(const std::string& name) {
  return RegGetString(kLocalMachine, kSettingsKey, name);
}

TEST_F(OpeningAFile, ShowsItsFirstPage) {
  const auto bytes = RampBytes(40000);
  ChooseInList(Panel().cboMode, kListGba8);
  const std::string path = OpenBytes("game.dat", bytes);
  EXPECT_TRUE(FileOpen);
  EXPECT_EQ(FileName, path);
  EXPECT_EQ(FileLength, 40000);
  EXPECT_EQ(BrowserAddress, 0);
  EXPECT_EQ(Info(), "Opened " + path + " (40000 bytes)");
  EXPECT_TRUE(Page().Visible());
  EXPECT_EQ(ShownPage(), NaivePage(bytes));
  EXPECT_EQ(The<TileControl>().LoadedSlot, -1) << "the tile tool is empty";
}

TEST_F(OpeningAFile, LeavesThePageActive) {
  OpenBytes("game.dat", RampBytes(4096));
  EXPECT_EQ(Form::Active(), &Page());
}

TEST_F(OpeningAFile, GivesThePageTheKeyboardAlsoWhenItShowsAlready) {
  OpenGba8();
  Panel().txtAddress.setFocus();
  Panel().SetFocus();
  ASSERT_EQ(Form::Active(), &Panel());
  OpenBytes("game.gb", RampBytes(4096));
  EXPECT_EQ(Form::Active(), &Page());
  EXPECT_EQ(LineBytes, 128) << "the activation has brought them up to the mode";
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() == &Page(); }, 2000));
}

TEST_F(OpeningAFile, SetsTheScrollRangeWithTheFormerLineBytes) {
  EXPECT_EQ(LineBytes, 256);
  OpenBytes("game.gb", RampBytes(65536));
  EXPECT_EQ(LineBytes, 128) << "the activation that follows has the new mode's";
  EXPECT_EQ(ScrollScale, 256);
  EXPECT_EQ(Page().vsbAddress.Max(), 240);
}

TEST_F(OpeningAFile, StartsAtTheTopAgain) {
  OpenGba8();
  Page().vsbAddress.SetValue(50);
  OpenBytes("other.dat", RampBytes(65536));
  EXPECT_EQ(Page().vsbAddress.Value(), 0);
  EXPECT_EQ(BrowserAddress, 0);
}

TEST_F(OpeningAFile, PicksTheModeByTheExtension) {
  OpenBytes("game.gbc", RampBytes(4096));
  EXPECT_EQ(Panel().cboMode.ListIndex(), 4);
  EXPECT_EQ(GfxMode, kGameboy);
  OpenBytes("name.tar.nes", RampBytes(4096));
  EXPECT_EQ(GfxMode, kNes);
  OpenBytes("Game.GBC", RampBytes(4096));
  EXPECT_EQ(GfxMode, kNes) << "upper case matches nothing";
  OpenBytes("game.smc", RampBytes(4096));
  EXPECT_EQ(GfxMode, kNes);
  OpenBytes("plain", RampBytes(4096));
  EXPECT_EQ(GfxMode, kNes);
}

TEST_F(OpeningAFile, RunsTheModeAlsoWhenItIsTheOneThatStands) {
  OpenBytes("one.gb", RampBytes(4096));
  Panel().hsbDiv.SetValue(3);
  OpenBytes("two.gb", RampBytes(4096));
  EXPECT_EQ(AddressShift, 0);
}

TEST_F(OpeningAFile, KeepsTheShiftWhenTheModeStays) {
  OpenGba8();
  Panel().hsbDiv.SetValue(3);
  OpenBytes("two.dat", RampBytes(4096));
  EXPECT_EQ(AddressShift, 3);
  EXPECT_EQ(BrowserAddress, 0) << "the opening itself shows the very start";
}

TEST_F(OpeningAFile, OpensAnEmptyFile) {
  const std::string path = OpenBytes("empty.dat", {});
  EXPECT_TRUE(FileOpen);
  EXPECT_EQ(Info(), "Opened " + path + " (0 bytes)");
  EXPECT_TRUE(Page().Visible());
}

TEST_F(OpeningAFile, TakesALengthOf2GigabytesOrMoreAsItsLow32Bits) {
  const std::string path = MakeFile("huge.dat", std::string());
  std::filesystem::resize_file(path, 3ULL << 30);
  OpenRomFile(path);
  EXPECT_TRUE(FileOpen);
  EXPECT_EQ(FileLength, -1073741824);
  EXPECT_EQ(ScrollScale, 1);
  EXPECT_EQ(Info(), "Opened " + path + " (-1073741824 bytes)");
  ClickArrowUp(Page().vsbAddress);
  ClickPage(30, 30);
}

TEST_F(OpeningAFile, ReadsAReadOnlyFile) {
  const std::string path = MakeFile("fixed.dat", RampBytes(4096));
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  ASSERT_EQ(FileAttributes(path), kAttributeReadOnly);
  OpenRomFile(path);
  EXPECT_GT(hFile, 0);
  EXPECT_EQ(_llseek(hFile, 0, kFromStart), 0);
  EXPECT_EQ(_hwrite(hFile, "x"), -1) << "it is open for reading alone";
}

TEST_F(OpeningAFile, AFileThatCannotBeOpenedCountsAsOpenAndShowsZeros) {
#ifdef __linux__
  // A running program cannot be opened for writing.
  const std::string path = QApplication::applicationFilePath().toStdString();
  ChooseInList(Panel().cboMode, kListGba8);
  OpenRomFile(path);
  EXPECT_LT(hFile, 0);
  EXPECT_TRUE(FileOpen);
  EXPECT_EQ(FileLength, static_cast<std::int32_t>(std::filesystem::file_size(path)));
  EXPECT_TRUE(Page().Visible());
  EXPECT_EQ(ShownPage(), NaivePage(std::vector<std::uint8_t>(8192)));
#endif
}

TEST_F(OpeningAFile, SlotsWithContentLoseTheirPlaceInTheFile) {
  OpenGba8();
  DoubleClickPage(30, 30);
  const auto before = EditSlots[0].Pixels;
  ASSERT_EQ(EditSlots[0].Address, 9 * 64);
  OpenBytes("other.dat", RampBytes(4096));
  EXPECT_EQ(EditSlots[0].Address, kUnaddressed);
  EXPECT_EQ(EditSlots[0].Pixels, before);
  EXPECT_EQ(EditSlots[1].Address, kNonCopied);
}

TEST_F(OpeningAFile, TheDialogGetsFolderFilterAndNoName) {
  OpenBytes("first.dat", RampBytes(4096));
  CommonDialog* shown = nullptr;
  QString folder, name, filter;
  CommonDialog::Answer = [&](CommonDialog& dialog, CommonDialog::Kind kind) {
    EXPECT_EQ(kind, CommonDialog::Kind::Open);
    shown = &dialog;
    folder = dialog.InitDir;
    name = dialog.FileName;
    filter = dialog.Filter;
  };
  WithAnswers({6}, [] { ClickControl(Panel().fbnOpenFile); });
  EXPECT_EQ(shown, &Frame().cdlMain);
  EXPECT_EQ(folder.toStdString() + "/", TestFolder());
  EXPECT_TRUE(name.isEmpty());
  EXPECT_EQ(filter.toStdString(), kRomFilter);
}

TEST_F(OpeningAFile, ThroughTheRealDialogByItsName) {
  const std::string path = MakeFile("typed.gb", RampBytes(4096));
  QTimer hands;
  QObject::connect(&hands, &QTimer::timeout, &hands, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    hands.stop();
    EXPECT_EQ(dialog->nameFilters().size(), 15);
    auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(name, nullptr);
    name->insert(QString::fromStdString(path));
    QTest::keyClick(name, Qt::Key_Return);
  });
  hands.start(0);
  ClickControl(Panel().fbnOpenFile);
  EXPECT_TRUE(FileOpen);
  EXPECT_EQ(FileName, path);
  EXPECT_EQ(GfxMode, kGameboy);
}

TEST_F(OpeningAFile, TheRealDialogCancelledOpensNothing) {
  QTimer hands;
  QObject::connect(&hands, &QTimer::timeout, &hands, [&] {
    if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) dialog->reject();
  });
  hands.start(0);
  WithAnswers({}, [] { ClickControl(Panel().fbnOpenFile); });
  EXPECT_FALSE(FileOpen);
  EXPECT_TRUE(FileName.empty());
}

TEST_F(OpeningAFile, ThroughTheMenuWithTheBrowserToolOff) {
  Frame().fbnBrowser.SetChecked(false);
  Frame().UpdateToolWindows();
  AnswerFileDialog(MakeFile("menu.dat", RampBytes(4096)));
  Frame().mnuOpen.trigger();
  EXPECT_TRUE(Frame().fbnBrowser.Checked());
  EXPECT_TRUE(FileOpen);
  EXPECT_TRUE(Page().Visible());
  EXPECT_TRUE(Panel().Visible());
}

TEST_F(OpeningAFile, TheMiddleButtonDoesNothing) {
  AnswerFileDialog(MakeFile("some.dat", RampBytes(4096)));
  ClickControl(Panel().fbnOpenFile, Qt::MiddleButton);
  EXPECT_FALSE(FileOpen);
}

TEST_F(OpeningAFile, ThePressCountsNotTheClick) {
  AnswerFileDialog(MakeFile("some.dat", RampBytes(4096)));
  QTest::mousePress(&Panel().fbnOpenFile, Qt::LeftButton);
  EXPECT_TRUE(FileOpen);
  QTest::mouseRelease(&Panel().fbnOpenFile, Qt::LeftButton);
}

// Another file is open.

TEST_F(OpeningAFile, AsksBeforeItClosesTheOpenOne) {
  OpenGba8();
  const auto seen = WithAnswers({7}, [] { ClickControl(Panel().fbnOpenFile); });
  EXPECT_EQ(seen[0].text, kAskBeforeOpening);
  EXPECT_EQ(seen[0].title, "Brolk Plus - Close file?");
  EXPECT_EQ(seen[0].icon, "msg-question");
}

TEST_F(OpeningAFile, NoLeavesEverythingAsItWas) {
  const auto& file = OpenGba8();
  DoubleClickPage(30, 30);
  Page().vsbAddress.SetValue(3);
  const auto handle = hFile;
  for (const int answer : {7, 0}) {
    WithAnswers({answer}, [] { ClickControl(Panel().fbnOpenFile); });
    EXPECT_TRUE(FileOpen);
    EXPECT_EQ(hFile, handle);
    EXPECT_EQ(OpenFileLength(hFile), 65536);
    EXPECT_EQ(EditSlots[0].Address, 9 * 64);
    EXPECT_EQ(ShownPage(), NaivePage(EntriesFrom(file, 3 * 512)));
  }
}

TEST_F(OpeningAFile, ACancelAfterYesLosesTheOldFile) {
  OpenGba8();
  DoubleClickPage(30, 30);
  const std::string info = Info();
  const auto handle = hFile;
  AnswerFileDialog("");
  WithAnswers({6}, [] { ClickControl(Panel().fbnOpenFile); });
  EXPECT_FALSE(FileOpen);
  EXPECT_TRUE(FileName.empty());
  EXPECT_EQ(OpenFileLength(handle), 0) << "the old file is closed already";
  EXPECT_EQ(Info(), info) << "no message at all";
  EXPECT_EQ(EditSlots[0].Address, kUnaddressed) << "this runs on failure too";
  EXPECT_TRUE(Page().Visible()) << "the page stays until the next redraw";
  ReloadPage();
  EXPECT_FALSE(Page().Visible());
}

TEST_F(OpeningAFile, AMissingFileOrAFolderIsPassedOverInSilence) {
  WithAnswers({}, [] { OpenRomFile(TestFolder() + "nothing.gb"); });
  EXPECT_FALSE(FileOpen);
  WithAnswers({}, [] { OpenRomFile(TestFolder()); });
  EXPECT_FALSE(FileOpen);
  EXPECT_EQ(Setting("LastOpen1"), "") << "no entry is made";
  EXPECT_EQ(Setting("RomPath"), "");
  EXPECT_EQ(GfxMode, kSnes4);
}

}  // namespace
}  // namespace brolk::test
