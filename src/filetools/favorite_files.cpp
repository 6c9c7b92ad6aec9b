// SPDX-License-Identifier: MIT
#include "filetools/favorite_files.h"

#include <cstdint>
#include <string>

#include "filetools/favorites.h"
#include "runtime/fault.h"
#include "runtime/files.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr std::string_view kTextHeader = "Brolk Plus favorites file";
constexpr std::string_view kCountRemark =
    " favorites   <- update this number if you change the file manually!";
constexpr std::string_view kBinaryMagic = "BXB";

// The number at the head of the count line: above 256 is 256, below 1 is 1, a fraction rounds.
std::int16_t CountOf(std::string_view line) {
  const double number = Val(line);
  if (number > kFavoriteLimit) return kFavoriteLimit;
  if (number < 1) return 1;
  return RoundToInteger(number);
}

// The name begins two places behind the ";", whatever stands between.
void ReadTextRecord(std::string_view line, FavoriteRecord& favorite) {
  const std::size_t separator = line.find(';');
  if (separator == std::string_view::npos) throw Fault(FaultKind::InvalidProcedureCall);
  favorite.Address = RoundToLong(Val(line.substr(0, separator)));
  favorite.Name = separator + 2 <= line.size() ? line.substr(separator + 2) : std::string_view();
}

// The address is stored once all four bytes are there; with the top bit set it is negative.
bool ReadBinaryRecord(ByteReader& reader, FavoriteRecord& favorite) {
  if (!reader.TakeZeroEndedText(favorite.Name)) return false;
  std::int64_t address = 0;
  for (int k = 0; k < 4; ++k) {
    std::uint8_t byte = 0;
    if (!reader.Next(byte)) return false;
    address += std::int64_t{byte} << (8 * k);
  }
  favorite.Address = Wrap32(address);
  return true;
}

}  // namespace

FavoritesLoad LoadTextFavorites(TextReader& reader) {
  if (reader.ReadLine() != kTextHeader) return FavoritesLoad::WrongTextHeader;
  reader.SkipLine();
  const std::int16_t count = CountOf(reader.ReadLine());
  reader.SkipLine();
  for (std::int16_t i = 0; i < count; ++i) ReadTextRecord(reader.ReadLine(), Favorites[i]);
  FavoriteCount = count;
  return FavoritesLoad::Done;
}

FavoritesLoad LoadBinaryFavorites(const FileSource& file) {
  ByteReader reader(file);
  const bool valid = reader.TakeText(kBinaryMagic.size()) == kBinaryMagic;
  std::int16_t count = 0;
  while (valid && count < kFavoriteLimit && ReadBinaryRecord(reader, Favorites[count])) ++count;
  FavoriteCount = count;
  return valid ? FavoritesLoad::Done : FavoritesLoad::WrongBinaryHeader;
}

FavoritesLoad LoadFavoritesFile(std::string_view path) {
  if (OpenFile(path, kOpenExist) < 0) return FavoritesLoad::NotFound;
  if (!path.ends_with(".favorites")) return LoadBinaryFavorites(FileSource::AtPath(std::string(path)));
  TextReader reader(path);
  return LoadTextFavorites(reader);
}

void SaveFavoritesFile(std::string_view path) {
  TextWriter writer(path);
  writer.WriteLine(kTextHeader);
  writer.WriteBlankLines(1);
  writer.WriteLine(NumberText(FavoriteCount) + std::string(kCountRemark));
  writer.WriteBlankLines(1);
  for (std::int16_t i = 0; i < FavoriteCount; ++i)
    writer.WriteLine(NumberText(Favorites[i].Address) + "; " + Favorites[i].Name);
}

}  // namespace brolk
