// SPDX-License-Identifier: MIT
#pragma once

// The start-up builds the header strings through this one include.
#include "exchange/bitmap_file.h"  // IWYU pragma: export

namespace brolk {

// Asks for a 128 by 128 picture and reads it into palette and Editor. There is no question before; the tile
// tool is not told.
void ImportBmp();
// Asks for a name and writes the Editor as a picture.
void ExportBmp();

}  // namespace brolk
