// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "browser/windows/browser_control.h"
#include "filetools/favorites.h"
#include "filetools/windows/favorites_tool.h"
#include "forms/windows.h"
#include "shell/windows/main_form.h"
#include "support/dialog_hands.h"
#include "support/list_hands.h"
#include "support/program.h"
#include "tile/shared.h"

namespace brolk {
namespace {

using test::ClickControl;
using test::DialogWatch;
using test::LinesOf;
using testing::ElementsAre;
using testing::IsEmpty;

const char* const kLoadFilter =
    "Brolk Plus Favorites file (*.favorites)|*.favorites|old Brolk bookmark file (*.bmk)|*.bmk|All files "
    "(*.*)|*.*";
const char* const kSaveFilter = "Brolk Plus Favorites file (*.favorites)|*.favorites";

class FavoritesWindow : public testing::Test {
 protected:
  FavoritesWindow() {
    test::StartProgram();
    test::OpenRomFile(test::MakeFile("page.gb", std::string(65536, '\x11')));
    ClickControl(The<MainForm>().fbnFavorite);
  }

  void Add(const char* address, const char* name) {
    The<BrowserControl>().txtAddress.SetText(QString::fromUtf8(address));
    tool.txtName.SetText(QString::fromUtf8(name));
    ClickControl(tool.fbnAddFavorite);
  }
  void AddThree() {
    Add("512", "b");
    Add("256", "c");
    Add("1024", "a");
  }
  void DoubleClickName() {
    QTest::mouseDClick(&tool.txtName, Qt::LeftButton, {}, tool.txtName.rect().center());
  }

  FavoritesTool& tool = The<FavoritesTool>();
};

TEST_F(FavoritesWindow, StartsEmptyInAddressOrder) {
  EXPECT_TRUE(tool.Visible());
  EXPECT_EQ(tool.Caption(), "Favorites");
  EXPECT_TRUE(tool.fbnOrder.Checked());
  EXPECT_TRUE(SortByAddress);
  EXPECT_EQ(FavoriteCount, 0);
  EXPECT_EQ(SelectedFavorite, 0);
  EXPECT_EQ(tool.lstFavorites.ListCount(), 0);
}

TEST_F(FavoritesWindow, LoadOfTheWindowEmptiesTheList) {
  AddThree();
  SortByAddress = false;
  SelectedFavorite = 2;
  tool.Form_Load();
  EXPECT_EQ(FavoriteCount, 0);
  EXPECT_EQ(SelectedFavorite, 0);
  EXPECT_TRUE(SortByAddress);
  EXPECT_EQ(tool.lstFavorites.ListCount(), 0);
}

TEST_F(FavoritesWindow, AddTakesAddressAndName) {
  AddThree();
  Add("&H10", "");
  EXPECT_THAT(LinesOf(tool.lstFavorites),
              ElementsAre("16 (No description)", "256 (c)", "512 (b)", "1024 (a)"));
  EXPECT_EQ(tool.lstFavorites.ListIndex(), -1);
}

TEST_F(FavoritesWindow, AddAt256DoesNothing) {
  for (int i = 0; i < 256; ++i) AddFavorite("1", "x");
  tool.FillFavoritesList();
  test::ClickLine(tool.lstFavorites, 255);
  Add("99999999999", "beyond every number");
  EXPECT_EQ(FavoriteCount, 256);
  EXPECT_EQ(tool.lstFavorites.ListIndex(), 255);
  EXPECT_EQ(SelectedFavorite, 255);
}

TEST_F(FavoritesWindow, AddBeyond32BitsIsTheOverflowFault) {
  EXPECT_EQ(test::FaultOf([&] { Add("2147483648", "x"); }), FaultKind::Overflow);
}

TEST_F(FavoritesWindow, SelectingShowsTheName) {
  AddThree();
  test::ClickLine(tool.lstFavorites, 2);
  EXPECT_EQ(SelectedFavorite, 2);
  EXPECT_EQ(tool.txtName.Text(), "a");
  test::PressKey(tool.lstFavorites, Qt::Key_Up);
  EXPECT_EQ(SelectedFavorite, 1);
  EXPECT_EQ(tool.txtName.Text(), "b");
}

TEST_F(FavoritesWindow, GoJumpsAndKeepsTheFocus) {
  AddThree();
  test::ClickLine(tool.lstFavorites, 1);
  ClickControl(tool.fbnGotoFavorite);
  EXPECT_EQ(BrowserAddress, 512);
  EXPECT_EQ(The<BrowserControl>().txtAddress.Text(), "512");
  EXPECT_EQ(Form::Active(), &tool);
  test::DoubleClickLine(tool.lstFavorites, 2);
  EXPECT_EQ(BrowserAddress, 1024);
}

TEST_F(FavoritesWindow, GoWithAnEmptyListDoesNothing) {
  The<BrowserControl>().txtAddress.SetText("77");
  ClickControl(tool.fbnGotoFavorite);
  EXPECT_EQ(The<BrowserControl>().txtAddress.Text(), "77");
}

TEST_F(FavoritesWindow, GoFollowsTheStaleSelectionBehindTheList) {
  AddThree();
  test::ClickLine(tool.lstFavorites, 2);
  ClickControl(tool.fbnDelFavorite);
  EXPECT_EQ(SelectedFavorite, 2);
  ClickControl(tool.fbnGotoFavorite);
  EXPECT_EQ(BrowserAddress, 1024) << "the deleted record still stands there";
}

TEST_F(FavoritesWindow, DeleteNeedsASelectedLine) {
  AddThree();
  ClickControl(tool.fbnDelFavorite);
  EXPECT_EQ(FavoriteCount, 3);
  test::ClickLine(tool.lstFavorites, 0);
  ClickControl(tool.fbnDelFavorite);
  EXPECT_THAT(LinesOf(tool.lstFavorites), ElementsAre("512 (b)", "1024 (a)"));
  EXPECT_EQ(tool.lstFavorites.ListIndex(), -1);
}

TEST_F(FavoritesWindow, RenameGoesToTheSelectedRecord) {
  AddThree();
  test::ClickLine(tool.lstFavorites, 1);
  tool.txtName.SetText("new");
  DoubleClickName();
  EXPECT_THAT(LinesOf(tool.lstFavorites), ElementsAre("256 (c)", "512 (new)", "1024 (a)"));
  tool.txtName.SetText("again");
  DoubleClickName();
  EXPECT_EQ(tool.lstFavorites.List(1), "512 (again)") << "without a selected line too";
}

TEST_F(FavoritesWindow, RenameWithAnEmptyListDoesNothing) {
  Favorites[0].Name = "old";
  tool.txtName.SetText("new");
  DoubleClickName();
  EXPECT_EQ(Favorites[0].Name, "old");
}

TEST_F(FavoritesWindow, TheSemicolonKeyIsSwallowed) {
  tool.txtName.SetText("");
  QTest::keyClicks(&tool.txtName, "a;b,c:");
  EXPECT_EQ(tool.txtName.Text(), "ab,c:");
  tool.txtName.SetText("x;y");
  EXPECT_EQ(tool.txtName.Text(), "x;y") << "it may come by other means";
}

TEST_F(FavoritesWindow, OrderButtonAndLabelChangeTheOrder) {
  AddThree();
  ClickControl(tool.fbnOrder);
  EXPECT_FALSE(SortByAddress);
  EXPECT_THAT(LinesOf(tool.lstFavorites), ElementsAre("a (1024)", "b (512)", "c (256)"));
  ClickControl(tool.lblOrder);
  EXPECT_TRUE(tool.fbnOrder.Checked());
  EXPECT_TRUE(SortByAddress);
  EXPECT_THAT(LinesOf(tool.lstFavorites), ElementsAre("256 (c)", "512 (b)", "1024 (a)"));
  ClickControl(tool.lblOrder);
  EXPECT_FALSE(tool.fbnOrder.Checked());
  EXPECT_EQ(tool.lstFavorites.List(0), "a (1024)");
}

TEST_F(FavoritesWindow, NewListAsksNothing) {
  AddThree();
  test::WithAnswers({}, [&] { ClickControl(tool.fbnNewList); });
  EXPECT_EQ(FavoriteCount, 0);
  EXPECT_EQ(tool.lstFavorites.ListCount(), 0);
}

TEST_F(FavoritesWindow, DialogsStartEmptyWithTheirFilters) {
  tool.cdlFavorite.FileName = QStringLiteral("left over");
  const DialogWatch dialog("");
  ClickControl(tool.fbnLoadFavorite);
  tool.cdlFavorite.FileName = QStringLiteral("left over");
  ClickControl(tool.fbnSaveFavorite);
  ASSERT_EQ(dialog.seen.size(), 2U);
  EXPECT_EQ(dialog.seen[0].kind, CommonDialog::Kind::Open);
  EXPECT_EQ(dialog.seen[0].filter, kLoadFilter);
  EXPECT_EQ(dialog.seen[1].kind, CommonDialog::Kind::Save);
  EXPECT_EQ(dialog.seen[1].filter, kSaveFilter);
  for (const auto& seen : dialog.seen) {
    EXPECT_EQ(seen.name, "cdlFavorite");
    EXPECT_EQ(seen.fileName, "");
  }
  EXPECT_EQ(tool.cdlFavorite.InitDir, "");
}

TEST_F(FavoritesWindow, SaveWritesTheListAsItStands) {
  AddThree();
  ClickControl(tool.fbnOrder);
  const std::string path = test::TestFolder() + "typed without an end";
  const DialogWatch dialog(path);
  test::WithAnswers({}, [&] { ClickControl(tool.fbnSaveFavorite); });
  EXPECT_EQ(test::FileText(path),
            "Brolk Plus favorites file\r\n\r\n"
            "3 favorites   <- update this number if you change the file manually!\r\n\r\n"
            "1024; a\r\n512; b\r\n256; c\r\n");
}

TEST_F(FavoritesWindow, SaveOverAFileAsksFirst) {
  const std::string path = test::MakeFile("old.favorites", std::string("old"));
  const DialogWatch dialog(path);
  for (const int answer : {7, 0}) {
    const auto seen = test::WithAnswers({answer}, [&] { ClickControl(tool.fbnSaveFavorite); });
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, "Overwrite existing file?");
    EXPECT_EQ(seen[0].title, "Brolk Plus - File exists");
    EXPECT_EQ(seen[0].icon, "msg-question");
    EXPECT_EQ(test::FileText(path), "old");
  }
  test::WithAnswers({6}, [&] { ClickControl(tool.fbnSaveFavorite); });
  EXPECT_EQ(test::FileText(path).substr(0, 25), "Brolk Plus favorites file");
}

TEST_F(FavoritesWindow, SaveThatCannotBeCreatedIsTheFileFault) {
  const DialogWatch dialog(test::TestFolder() + "no-such-folder/x.favorites");
  EXPECT_EQ(test::FaultOf([&] { ClickControl(tool.fbnSaveFavorite); }), FaultKind::FileNotFound);
}

TEST_F(FavoritesWindow, CharactersOutsideTheCodePageBecomeQuestionMarks) {
  Add("5", "\xE2\x82\xAC \xD0\x96");
  const std::string path = test::TestFolder() + "ansi.favorites";
  const DialogWatch dialog(path);
  ClickControl(tool.fbnSaveFavorite);
  EXPECT_TRUE(test::FileText(path).ends_with("5; \x80 ?\r\n"));
  ClickControl(tool.fbnLoadFavorite);
  EXPECT_THAT(LinesOf(tool.lstFavorites), ElementsAre("5 (\xE2\x82\xAC ?)"));
}

TEST_F(FavoritesWindow, LoadSortsWhatItRead) {
  const DialogWatch dialog(
      test::MakeFile("list.favorites",
                     std::string("Brolk Plus favorites file\r\n\r\n2\r\n\r\n9; nine; and more\r\n3; three")));
  test::WithAnswers({}, [&] { ClickControl(tool.fbnLoadFavorite); });
  EXPECT_THAT(LinesOf(tool.lstFavorites), ElementsAre("3 (three)", "9 (nine; and more)"));
}

TEST_F(FavoritesWindow, LoadReadsTheOldFormat) {
  const DialogWatch dialog(test::MakeFile("old.bmk", std::string("BXBFont\0\0\1\0\0", 12)));
  test::WithAnswers({}, [&] { ClickControl(tool.fbnLoadFavorite); });
  EXPECT_THAT(LinesOf(tool.lstFavorites), ElementsAre("256 (Font)"));
}

TEST_F(FavoritesWindow, LoadLeavesTheSelectedIndex) {
  AddThree();
  test::ClickLine(tool.lstFavorites, 2);
  const DialogWatch dialog(test::MakeFile("empty.bmk", std::string("BXB")));
  ClickControl(tool.fbnLoadFavorite);
  EXPECT_EQ(FavoriteCount, 0);
  EXPECT_EQ(SelectedFavorite, 2);
}

struct Refusal {
  const char* file;
  const char* content;  // null: the file is not there
  const char* text;
  const char* title;
  const char* icon;
  int countAfter;
};

TEST_F(FavoritesWindow, EveryRefusalIsTold) {
  const Refusal rows[] = {
      {"gone.favorites", nullptr, "Could not find the selected file.", "Brolk Plus - Loading process aborted",
       "msg-critical", 3},
      {"gone.bmk", nullptr, "Could not find the selected file.", "Brolk Plus - Loading process aborted",
       "msg-critical", 3},
      {"wrong.favorites", "Something else\r\n", "This is no valid Brolk Plus favorites file.",
       "Brolk Plus - Invalid favorites file", "msg-exclamation", 3},
      {"wrong.bmk", "BXA", "Wrong header bytes", "Brolk Plus - Not a Favorite file", "msg-exclamation", 0},
      {"capitals.FAVORITES", "Brolk Plus favorites file\r\n\r\n1\r\n\r\n5; x", "Wrong header bytes",
       "Brolk Plus - Not a Favorite file", "msg-exclamation", 0},
  };
  for (const Refusal& row : rows) {
    SCOPED_TRACE(row.file);
    ClickControl(tool.fbnNewList);
    AddThree();
    const DialogWatch dialog(row.content == nullptr ? test::TestFolder() + row.file
                                                    : test::MakeFile(row.file, std::string(row.content)));
    const auto seen = test::WithAnswers({1}, [&] { ClickControl(tool.fbnLoadFavorite); });
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, row.text);
    EXPECT_EQ(seen[0].title, row.title);
    EXPECT_EQ(seen[0].icon, row.icon);
    EXPECT_EQ(FavoriteCount, row.countAfter);
    EXPECT_EQ(tool.lstFavorites.ListCount(), row.countAfter);
  }
}

TEST_F(FavoritesWindow, AnEmptySavedListEndsInTheFault) {
  const DialogWatch dialog(test::TestFolder() + "empty.favorites");
  ClickControl(tool.fbnSaveFavorite);
  EXPECT_EQ(test::FaultOf([&] { ClickControl(tool.fbnLoadFavorite); }), FaultKind::InputPastEnd);
}

TEST_F(FavoritesWindow, ALineWithoutSemicolonEndsInTheFault) {
  const DialogWatch dialog(
      test::MakeFile("bad.favorites", std::string("Brolk Plus favorites file\r\n\r\n1\r\n\r\nno separator")));
  EXPECT_EQ(test::FaultOf([&] { ClickControl(tool.fbnLoadFavorite); }), FaultKind::InvalidProcedureCall);
}

TEST_F(FavoritesWindow, CloseHidesAndKeepsTheList) {
  AddThree();
  ClickControl(tool.fbnClose);
  EXPECT_FALSE(tool.Visible());
  ClickControl(The<BrowserControl>().fbnFavorite);
  EXPECT_TRUE(tool.Visible());
  EXPECT_EQ(tool.lstFavorites.ListCount(), 3);
}

TEST(FavoritesWithoutAFile, AreNotAvailable) {
  test::StartProgram();
  const auto seen = test::WithAnswers({1}, [] { ClickControl(The<MainForm>().fbnFavorite); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, "This tool is not available when no file is opened.");
  EXPECT_FALSE(The<FavoritesTool>().Visible());
}

}  // namespace
}  // namespace brolk
