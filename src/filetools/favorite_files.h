// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "runtime/byte_reader.h"
#include "runtime/text_stream.h"

// The files of the favorites list: .favorites (text, read and written) and .bmk (binary, read only). Paths
// are UTF-8.
namespace brolk {

// How a load ended. The wrong header of a text file leaves the list as it was, that of any other file empties
// it.
enum class FavoritesLoad { Done, NotFound, WrongTextHeader, WrongBinaryHeader };

// Reads lines over the list. A line or a skip past the end is the end-of-file fault; the count line alone
// decides how many records are read, 1 at least and 256 at most, so a list saved empty cannot be read back. A
// record without ";" is the procedure call fault, an address beyond 32 bits the overflow fault. That is
// meant.
[[nodiscard]] FavoritesLoad LoadTextFavorites(TextReader& reader);

// Reads the old format over the list: records up to the end of the file or to 256; one that the end cuts is
// not counted and keeps its old address.
[[nodiscard]] FavoritesLoad LoadBinaryFavorites(const FileSource& file);

// Reads a file as text if its extension is exactly "favorites", letter case included, and as the old format
// otherwise.
[[nodiscard]] FavoritesLoad LoadFavoritesFile(std::string_view path);

// Writes the list as text over whatever stands there. A file that cannot be created is the file fault.
void SaveFavoritesFile(std::string_view path);

}  // namespace brolk
