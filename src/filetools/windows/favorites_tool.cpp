// SPDX-License-Identifier: MIT
#include "filetools/windows/favorites_tool.h"

#include "browser/windows/browser_control.h"
#include "filetools/favorite_files.h"
#include "filetools/favorites.h"
#include "forms/windows.h"
#include "runtime/ansi_text.h"
#include "runtime/files.h"
#include "shell/windows/msg_box.h"

namespace brolk {
namespace {

constexpr double kClientWidth = 4560;
constexpr double kClientHeight = 4875;

const char* const kLoadFilter =
    "Brolk Plus Favorites file (*.favorites)|*.favorites|old Brolk bookmark file (*.bmk)|*.bmk"
    "|All files (*.*)|*.*";
const char* const kSaveFilter = "Brolk Plus Favorites file (*.favorites)|*.favorites";

QString OnScreen(const std::string& text) {
  return QString::fromStdString(Utf8FromAnsi(text));
}

// Tells why a load did not take place.
void TellFailure(FavoritesLoad result) {
  struct Notice {
    FavoritesLoad result;
    const char* text;
    std::int16_t flags;
    const char* title;
  };
  static constexpr Notice kNotices[] = {
      {FavoritesLoad::NotFound, "Could not find the selected file.", kMsgCritical, "Loading process aborted"},
      {FavoritesLoad::WrongTextHeader, "This is no valid Brolk Plus favorites file.", kMsgExclamation,
       "Invalid favorites file"},
      {FavoritesLoad::WrongBinaryHeader, "Wrong header bytes", kMsgExclamation, "Not a Favorite file"},
  };
  for (const Notice& notice : kNotices) {
    if (notice.result == result)
      ShowMsgBox(QString::fromLatin1(notice.text), notice.flags, QString::fromLatin1(notice.title));
  }
}

}  // namespace

FavoritesTool::FavoritesTool()
    : Form({"FavoritesTool", "Favorites", FormKind::Free, FormBorder::Fixed, kClientWidth, kClientHeight}) {
  LayOut();
  ConnectEvents();
  fbnOrder.SetChecked(true);
  // ";" separates the fields of the text file.
  txtName.AcceptsCharacter = [](QChar character) { return character != QLatin1Char(';'); };
}

void FavoritesTool::LayOut() {
  const struct {
    QWidget& control;
    double left, top, width, height;
  } rows[] = {
      {lstFavorites, 120, 120, 4320, 3000},    //
      {txtName, 120, 3210, 4320, 315},         //
      {fbnGotoFavorite, 120, 3645, 510, 510},  //
      {fbnAddFavorite, 720, 3645, 510, 510},   //
      {fbnDelFavorite, 1320, 3645, 510, 510},  //
      {fbnNewList, 1920, 3645, 510, 510},      //
      {fbnLoadFavorite, 3330, 3645, 510, 510}, {fbnSaveFavorite, 3930, 3645, 510, 510},
      {fbnOrder, 120, 4245, 510, 510},         {lblOrder, 720, 4245, 2400, 510},
      {fbnClose, 3930, 4245, 510, 510},
  };
  for (const auto& row : rows) Place(row.control, row.left, row.top, row.width, row.height);
  lblOrder.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void FavoritesTool::ConnectEvents() {
  lstFavorites.Click = [this] { lstFavorites_Click(); };
  lstFavorites.DblClick = [this] { fbnGotoFavorite_Click(); };
  txtName.DblClick = [this] { txtName_DblClick(); };
  fbnGotoFavorite.Click = [this] { fbnGotoFavorite_Click(); };
  fbnAddFavorite.Click = [this] { fbnAddFavorite_Click(); };
  fbnDelFavorite.Click = [this] { fbnDelFavorite_Click(); };
  fbnNewList.Click = [this] { fbnNewList_Click(); };
  fbnOrder.Click = [this] { fbnOrder_Click(); };
  lblOrder.SetClick([this] { lblOrder_Click(); });
  fbnLoadFavorite.Click = [this] { fbnLoadFavorite_Click(); };
  fbnSaveFavorite.Click = [this] { fbnSaveFavorite_Click(); };
  fbnClose.Click = [this] { Hide(); };
}

void FavoritesTool::Form_Load() {
  SortByAddress = true;
  FavoriteCount = 0;
  SelectedFavorite = 0;
  FillFavoritesList();
}

void FavoritesTool::FillFavoritesList() {
  SortFavorites();
  lstFavorites.Clear();
  for (std::int16_t i = 0; i < FavoriteCount; ++i) lstFavorites.AddItem(OnScreen(FavoriteLine(Favorites[i])));
}

void FavoritesTool::lstFavorites_Click() {
  SelectedFavorite = static_cast<std::int16_t>(lstFavorites.ListIndex());
  txtName.SetText(OnScreen(Favorites[SelectedFavorite].Name));
}

void FavoritesTool::txtName_DblClick() {
  if (FavoriteCount <= 0) return;
  Favorites[SelectedFavorite].Name = AnsiFromUtf8(txtName.Text().toStdString());
  FillFavoritesList();
}

void FavoritesTool::fbnGotoFavorite_Click() {
  if (FavoriteCount <= 0) return;
  auto& panel = The<BrowserControl>();
  panel.txtAddress.SetText(QString::number(Favorites[SelectedFavorite].Address));
  panel.fbnGoToAddress_Click();
  SetFocus();
}

void FavoritesTool::fbnAddFavorite_Click() {
  if (FavoriteCount >= kFavoriteLimit) return;
  AddFavorite(The<BrowserControl>().txtAddress.Text().toStdString(),
              AnsiFromUtf8(txtName.Text().toStdString()));
  FillFavoritesList();
}

void FavoritesTool::fbnDelFavorite_Click() {
  if (FavoriteCount <= 0 || lstFavorites.ListIndex() < 0) return;
  DeleteFavorite();
  FillFavoritesList();
}

void FavoritesTool::fbnNewList_Click() {
  FavoriteCount = 0;
  FillFavoritesList();
}

void FavoritesTool::fbnOrder_Click() {
  SortByAddress = fbnOrder.Checked();
  FillFavoritesList();
}

void FavoritesTool::lblOrder_Click() {
  fbnOrder.SetChecked(!fbnOrder.Checked());
  fbnOrder_Click();
}

void FavoritesTool::fbnLoadFavorite_Click() {
  cdlFavorite.FileName.clear();
  cdlFavorite.Filter = QString::fromLatin1(kLoadFilter);
  cdlFavorite.ShowOpen();
  if (cdlFavorite.FileName.isEmpty()) return;
  const FavoritesLoad result = LoadFavoritesFile(cdlFavorite.FileName.toStdString());
  TellFailure(result);
  if (result == FavoritesLoad::Done || result == FavoritesLoad::WrongBinaryHeader) FillFavoritesList();
}

void FavoritesTool::fbnSaveFavorite_Click() {
  cdlFavorite.FileName.clear();
  cdlFavorite.Filter = QString::fromLatin1(kSaveFilter);
  cdlFavorite.ShowSave();
  if (cdlFavorite.FileName.isEmpty()) return;
  const std::string path = cdlFavorite.FileName.toStdString();
  if (OpenFile(path, kOpenExist) >= 0) {
    const std::uint8_t answer = ShowMsgBox(QStringLiteral("Overwrite existing file?"),
                                           kMsgYesNo + kMsgQuestion, QStringLiteral("File exists"));
    if (answer != kAnswerYes) return;
  }
  SaveFavoritesFile(path);
}

}  // namespace brolk
