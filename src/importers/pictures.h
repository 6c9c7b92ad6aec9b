// SPDX-License-Identifier: MIT
#pragma once

#include "palette/palette_files_kind.h"

// The palettes of GIF and PNG pictures as colour sets, named after the file. Called with room in the list.
namespace brolk {

// A file that the reader refuses leaves the list as it was, and the shown list is not built again.
LoadOutcome LoadGifPicture(const PaletteKind& kind, const LoadRequest& request);

// A refused file leaves the list as it was, and the shown list is built again. A picture without a palette
// adds a set all the same, with the colours that its place held. A palette of more than 256 colours is the
// subscript fault at colour 256.
LoadOutcome LoadPngPicture(const PaletteKind& kind, const LoadRequest& request);

}  // namespace brolk
