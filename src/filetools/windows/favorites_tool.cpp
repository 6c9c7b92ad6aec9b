// SPDX-License-Identifier: MIT
#include "filetools/windows/favorites_tool.h"

namespace brolk {

FavoritesTool::FavoritesTool()
    : Form({"FavoritesTool", "Favorites", FormKind::Free, FormBorder::Fixed, 4800, 5400}) {}

void FavoritesTool::FillFavoritesList() {}
void FavoritesTool::Form_Load() {}

}  // namespace brolk
