// SPDX-License-Identifier: MIT
#pragma once

#include "forms/common_dialog.h"
#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/lists.h"
#include "forms/text_box.h"

namespace brolk {

// Named file addresses.
class FavoritesTool final : public Form {
 public:
  FavoritesTool();

  // Sorts, then rebuilds the list.
  void FillFavoritesList();

  void Form_Load() override;

  FlatButton fbnGotoFavorite{*this, "fbnGotoFavorite", "goto-favorite", "Go to Favorite"};
  FlatButton fbnAddFavorite{*this, "fbnAddFavorite", "add-favorite", "Add current address as a Favorite"};
  FlatButton fbnDelFavorite{*this, "fbnDelFavorite", "delete-favorite", "remove Favorite"};
  FlatButton fbnNewList{*this, "fbnNewList", "new-list", "clear Favorites list"};
  FlatButton fbnLoadFavorite{*this, "fbnLoadFavorite", "load-list", "load Favorites file"};
  FlatButton fbnSaveFavorite{*this, "fbnSaveFavorite", "save-list", "save Favorites file"};
  FlatButton fbnOrder{*this, "fbnOrder", "sort", "toggle sorting", FlatButton::Kind::Toggle};
  Label lblOrder{*this, "lblOrder", "sort Favorites by address", "toggle sorting"};
  TextBox txtName{*this, "txtName", "", "Name of the selected Favorite, double-click to rename it"};
  ListBox lstFavorites{*this, "lstFavorites", "double-click a favorite to go to it"};
  FlatButton fbnClose{*this, "fbnClose", "close", "Close Favorites Tool"};
  CommonDialog cdlFavorite{*this, "cdlFavorite"};

 private:
  void LayOut();
  void ConnectEvents();

  void lstFavorites_Click();
  void txtName_DblClick();
  void fbnGotoFavorite_Click();
  void fbnAddFavorite_Click();
  void fbnDelFavorite_Click();
  void fbnNewList_Click();
  void fbnOrder_Click();
  void lblOrder_Click();
  void fbnLoadFavorite_Click();
  void fbnSaveFavorite_Click();
};

}  // namespace brolk
