// SPDX-License-Identifier: MIT
#include "shell/settings_file.h"

#include <algorithm>

namespace brolk {
namespace {

char LowerAscii(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

std::string Escaped(std::string_view text) {
  std::string result;
  for (const char character : text) {
    switch (character) {
      case '\\':
        result += "\\\\";
        break;
      case '\n':
        result += "\\n";
        break;
      case '\r':
        result += "\\r";
        break;
      default:
        result += character;
    }
  }
  return result;
}

std::string Unescaped(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\' || at + 1 == text.size()) {
      result += text[at];
      continue;
    }
    ++at;
    result += text[at] == 'n' ? '\n' : text[at] == 'r' ? '\r' : text[at];
  }
  return result;
}

// Takes the first line off the content, without its end.
std::string_view TakeLine(std::string_view& content) {
  const std::size_t end = std::min(content.find('\n'), content.size());
  std::string_view line = content.substr(0, end);
  content.remove_prefix(std::min(end + 1, content.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

bool SameName(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char left, char right) { return LowerAscii(left) == LowerAscii(right); });
}

SettingsTables SettingsTables::Parse(std::string_view content) {
  SettingsTables result;
  std::string key;
  while (!content.empty()) {
    const std::string_view line = TakeLine(content);
    if (line.starts_with('[') && line.ends_with(']')) {
      key = line.substr(1, line.size() - 2);
      continue;
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || line.starts_with('#')) continue;
    result.Set(key, line.substr(0, equals), Unescaped(line.substr(equals + 1)));
  }
  return result;
}

std::string SettingsTables::Text() const {
  std::string result;
  for (const SettingsTable& table : tables_) {
    result += "[" + table.key + "]\n";
    for (const SettingsValue& value : table.values) result += value.name + "=" + Escaped(value.text) + "\n";
  }
  return result;
}

const SettingsValue* SettingsTables::Find(std::string_view key, std::string_view name) const {
  for (const SettingsTable& table : tables_) {
    if (!SameName(table.key, key)) continue;
    for (const SettingsValue& value : table.values) {
      if (SameName(value.name, name)) return &value;
    }
  }
  return nullptr;
}

SettingsTable& SettingsTables::TableOf(std::string_view key) {
  for (SettingsTable& table : tables_) {
    if (SameName(table.key, key)) return table;
  }
  return tables_.emplace_back(SettingsTable{std::string(key), {}});
}

void SettingsTables::Set(std::string_view key, std::string_view name, std::string_view text) {
  SettingsTable& table = TableOf(key);
  for (SettingsValue& value : table.values) {
    if (!SameName(value.name, name)) continue;
    value.text = text;
    return;
  }
  table.values.push_back({std::string(name), std::string(text)});
}

}  // namespace brolk
