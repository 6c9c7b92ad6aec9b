// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The form of the settings file: a line "[key]" opens the table of a key, a line "name=text" is one value. In
// a text a backslash, a line feed and a carriage return are written as "\\", "\n" and "\r", so that every
// text stays on its line and comes back byte for byte. Lines end with a line feed; other lines mean nothing.
namespace brolk {

struct SettingsValue {
  std::string name;
  std::string text;
};

struct SettingsTable {
  std::string key;
  std::vector<SettingsValue> values;
};

// All tables of a settings file, in the order of the file.
class SettingsTables {
 public:
  [[nodiscard]] static SettingsTables Parse(std::string_view content);
  [[nodiscard]] std::string Text() const;

  // The value of that name, or null.
  [[nodiscard]] const SettingsValue* Find(std::string_view key, std::string_view name) const;
  // Sets or adds a value at the end of its table.
  void Set(std::string_view key, std::string_view name, std::string_view text);

 private:
  SettingsTable& TableOf(std::string_view key);

  std::vector<SettingsTable> tables_;
};

// Whether two names are the same without regard to the case of ASCII letters.
[[nodiscard]] bool SameName(std::string_view one, std::string_view other);

}  // namespace brolk
