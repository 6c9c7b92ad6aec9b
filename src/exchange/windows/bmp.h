// SPDX-License-Identifier: MIT
#pragma once

namespace brolk {

// Builds the two fixed header strings of the picture file.
void InitBmpHeader();
// Asks for a 128 by 128 picture and reads it into palette and Editor.
void ImportBmp();
// Asks for a name and writes the Editor as a picture.
void ExportBmp();

}  // namespace brolk
