// SPDX-License-Identifier: MIT
#include "shell/settings_store.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <system_error>

#include "shell/settings_file.h"

#ifdef _WIN32
#include "shell/registry.h"
#endif

namespace brolk {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
fs::path EnvironmentPath(const wchar_t* name) {
  const wchar_t* value = _wgetenv(name);
  return value == nullptr ? fs::path() : fs::path(value);
}
fs::path MovedFile() {
  return EnvironmentPath(L"BROLKPLUS_SETTINGS");
}
fs::path ConfigurationFolder() {
  return EnvironmentPath(L"LOCALAPPDATA");
}
#else
fs::path EnvironmentPath(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? fs::path() : fs::path(value);
}
fs::path MovedFile() {
  return EnvironmentPath("BROLKPLUS_SETTINGS");
}
fs::path ConfigurationFolder() {
  // A relative folder in the variable counts as none.
  fs::path folder = EnvironmentPath("XDG_CONFIG_HOME");
  if (folder.is_absolute()) return folder;
  const fs::path home = EnvironmentPath("HOME");
  return home.empty() ? home : home / ".config";
}
#endif

// The tables of the file, none in a file that is not there. No answer for one that is there and cannot be
// read: what it holds must not be replaced.
std::optional<SettingsTables> ReadTables(const fs::path& path) {
  std::error_code error;
  if (!fs::exists(path, error)) return SettingsTables();
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  if (file.peek() != std::ifstream::traits_type::eof()) content << file.rdbuf();
  if (!file.is_open() || file.bad() || content.fail()) return std::nullopt;
  return SettingsTables::Parse(content.str());
}

// Puts the whole content beside the file and then in its place, so that a reader, or a run that dies
// half-way, meets the old file or the new one and never a part.
bool ReplaceContent(const fs::path& path, const std::string& content) {
  std::error_code error;
  const fs::path target = fs::is_symlink(path, error) ? fs::weakly_canonical(path, error) : path;
  fs::path fresh = target;
  fresh += ".new";
  std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
  file << content;
  file.close();
  if (file.fail()) {
    fs::remove(fresh, error);
    return false;
  }
  fs::rename(fresh, target, error);
  if (!error) return true;
  fs::remove(fresh, error);
  return false;
}

StoreResult StoreInFile(std::string_view key, std::string_view name, std::string_view text) {
  const fs::path path = SettingsFile();
  if (path.empty()) return {kStoreFileNotFound, kStoreInvalidHandle};
  std::error_code error;
  if (path.has_parent_path()) fs::create_directories(path.parent_path(), error);
  if (error) return {kStoreAccessDenied, kStoreInvalidHandle};
  std::optional<SettingsTables> tables = ReadTables(path);
  if (!tables) return {kStoreSuccess, kStoreAccessDenied};
  tables->Set(key, name, text);
  return {kStoreSuccess, ReplaceContent(path, tables->Text()) ? kStoreSuccess : kStoreAccessDenied};
}

std::optional<std::string> TextInFile(std::string_view key, std::string_view name) {
  const std::optional<SettingsTables> tables = ReadTables(SettingsFile());
  const SettingsValue* value = tables ? tables->Find(key, name) : nullptr;
  if (value == nullptr) return std::nullopt;
  return value->text;
}

}  // namespace

fs::path SettingsFile() {
  fs::path moved = MovedFile();
  if (!moved.empty()) return moved;
  const fs::path folder = ConfigurationFolder();
  return folder.empty() ? folder : folder / "brolkplus" / "settings";
}

fs::path SettingsLockFile() {
  fs::path lock = SettingsFile();
  lock += ".lock";
  return lock;
}

#ifdef _WIN32
StoreResult StoreText(std::int32_t root, std::string_view key, std::string_view name, std::string_view text) {
  return MovedFile().empty() ? StoreInRegistry(root, key, name, text) : StoreInFile(key, name, text);
}
std::optional<std::string> StoredText(std::int32_t root, std::string_view key, std::string_view name) {
  return MovedFile().empty() ? TextInRegistry(root, key, name) : TextInFile(key, name);
}
#else
// A file knows no roots: there is one table for each key.
StoreResult StoreText(std::int32_t, std::string_view key, std::string_view name, std::string_view text) {
  return StoreInFile(key, name, text);
}
std::optional<std::string> StoredText(std::int32_t, std::string_view key, std::string_view name) {
  return TextInFile(key, name);
}
#endif

}  // namespace brolk
