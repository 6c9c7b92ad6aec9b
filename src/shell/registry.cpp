// SPDX-License-Identifier: MIT
#include "shell/registry.h"

#include <windows.h>

#include <vector>

#include "shell/dword_text.h"

namespace brolk {
namespace {

constexpr DWORD kAccess = 0x2003F;
constexpr char kClassText[] = "1";
constexpr DWORD kReadBufferBytes = 1024;

HKEY RootKey(std::int32_t root) {
  return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(root));
}

std::string Converted(std::string_view text, UINT from, UINT to) {
  const int length = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(from, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()))));
  const int wideLength = static_cast<int>(wide.size());
  const int bytes = WideCharToMultiByte(to, 0, wide.data(), wideLength, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(bytes), '\0');
  WideCharToMultiByte(to, 0, wide.data(), wideLength, result.data(), bytes, nullptr, nullptr);
  return result;
}

// The bytes of a value, cut at the read buffer; none on failure.
std::optional<std::string> ReadValue(HKEY key, const std::string& name, DWORD& type) {
  DWORD size = 0;
  if (RegQueryValueExA(key, name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
    return std::nullopt;
  std::string bytes(size, '\0');
  if (RegQueryValueExA(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  bytes.resize(std::min(size, kReadBufferBytes));
  return bytes.substr(0, bytes.find('\0'));
}

}  // namespace

StoreResult StoreInRegistry(std::int32_t root, std::string_view key, std::string_view name,
                            std::string_view text) {
  SECURITY_ATTRIBUTES security{50, nullptr, -1};
  char keyClass[] = {kClassText[0], '\0'};
  HKEY handle = nullptr;
  DWORD disposition = 0;
  StoreResult result;
  result.key = static_cast<std::int32_t>(RegCreateKeyExA(RootKey(root), std::string(key).c_str(), 0, keyClass,
                                                         0, kAccess, &security, &handle, &disposition));
  const std::string bytes = Converted(text, CP_UTF8, CP_ACP);
  result.value = static_cast<std::int32_t>(RegSetValueExA(handle, std::string(name).c_str(), 0, REG_SZ,
                                                          reinterpret_cast<const BYTE*>(bytes.data()),
                                                          static_cast<DWORD>(bytes.size())));
  RegCloseKey(handle);
  return result;
}

std::optional<std::string> TextInRegistry(std::int32_t root, std::string_view key, std::string_view name) {
  HKEY handle = nullptr;
  if (RegOpenKeyExA(RootKey(root), std::string(key).c_str(), 0, kAccess, &handle) != ERROR_SUCCESS) {
    RegCloseKey(handle);
    return std::nullopt;
  }
  DWORD type = 0;
  const std::optional<std::string> bytes = ReadValue(handle, std::string(name), type);
  RegCloseKey(handle);
  if (!bytes) return std::nullopt;
  if (type == REG_SZ || type == REG_EXPAND_SZ) return Converted(*bytes, CP_ACP, CP_UTF8);
  return type == REG_DWORD ? DwordText(*bytes) : std::string();
}

}  // namespace brolk
