// SPDX-License-Identifier: MIT
#pragma once

namespace brolk {

// Reads colour sets from a file that the user picks; the filter picked decides the kind of file, never its
// name or contents.
void LoadColorSets();

// Writes colour sets to a file that the user picks; an existing file is emptied without a question.
void SaveColorSets();

}  // namespace brolk
