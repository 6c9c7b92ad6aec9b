// SPDX-License-Identifier: MIT
#include "runtime/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <system_error>
#include <unordered_map>

#include "runtime/fault.h"
#include "runtime/numbers.h"

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace brolk {
namespace {

// What a handle number stands for.
struct OpenEntry {
  int descriptor;
};

std::unordered_map<std::int16_t, OpenEntry>& Table() {
  static std::unordered_map<std::int16_t, OpenEntry> table;
  return table;
}

std::int32_t nextHandle = 1;
std::int64_t readCalls = 0;
std::int64_t callsUntilFailure = -1;
std::error_code openError;

std::filesystem::path NativePath(std::string_view path) {
  return std::filesystem::path(std::u8string(path.begin(), path.end()));
}

bool CallFails() {
  if (callsUntilFailure < 0) return false;
  if (callsUntilFailure == 0) return true;
  --callsUntilFailure;
  return false;
}

#ifdef _WIN32
using Offset = __int64;
int OpenDescriptor(std::string_view path, int flags) {
  return _wopen(NativePath(path).c_str(), flags | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}
Offset SeekDescriptor(int descriptor, Offset offset, int origin) {
  return _lseeki64(descriptor, offset, origin);
}
constexpr int kFlagsRead = _O_RDONLY;
constexpr int kFlagsReadWrite = _O_RDWR;
constexpr int kFlagsCreate = _O_RDWR | _O_CREAT | _O_TRUNC;
long ReadDescriptor(int descriptor, void* target, std::size_t size) {
  return _read(descriptor, target, static_cast<unsigned>(std::min<std::size_t>(size, 1U << 30)));
}
long WriteDescriptor(int descriptor, const void* bytes, std::size_t size) {
  return _write(descriptor, bytes, static_cast<unsigned>(std::min<std::size_t>(size, 1U << 30)));
}
void CloseDescriptor(int descriptor) {
  _close(descriptor);
}
#else
using Offset = off_t;
int OpenDescriptor(std::string_view path, int flags) {
  return ::open(NativePath(path).c_str(), flags | O_CLOEXEC, 0666);
}
Offset SeekDescriptor(int descriptor, Offset offset, int origin) {
  return ::lseek(descriptor, offset, origin);
}
constexpr int kFlagsRead = O_RDONLY;
constexpr int kFlagsReadWrite = O_RDWR;
constexpr int kFlagsCreate = O_RDWR | O_CREAT | O_TRUNC;
long ReadDescriptor(int descriptor, void* target, std::size_t size) {
  return static_cast<long>(::read(descriptor, target, size));
}
long WriteDescriptor(int descriptor, const void* bytes, std::size_t size) {
  return static_cast<long>(::write(descriptor, bytes, size));
}
void CloseDescriptor(int descriptor) {
  ::close(descriptor);
}
#endif

const OpenEntry* Find(std::int16_t handle) {
  const auto found = Table().find(handle);
  return found == Table().end() ? nullptr : &found->second;
}

bool IsExistingFile(std::string_view path) {
  std::error_code ignored;
  const auto status = std::filesystem::status(NativePath(path), ignored);
  return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

int FlagsOf(int style) {
  if ((style & kOpenCreate) != 0) return kFlagsCreate;
  return (style & kOpenReadWrite) != 0 ? kFlagsReadWrite : kFlagsRead;
}

}  // namespace

std::int16_t OpenFile(std::string_view path, int style) {
  if ((style & kOpenExist) != 0) return IsExistingFile(path) ? 0 : -1;
  openError = std::make_error_code(std::errc::no_such_file_or_directory);
  if (path.empty() || ((style & kOpenCreate) == 0 && !IsExistingFile(path))) return -1;
  openError = std::make_error_code(std::errc::too_many_files_open);
  if (nextHandle > std::numeric_limits<std::int16_t>::max()) return -1;
  const int descriptor = OpenDescriptor(path, FlagsOf(style));
  openError = std::error_code(errno, std::generic_category());
  if (descriptor < 0) return -1;
  const auto handle = static_cast<std::int16_t>(nextHandle++);
  Table()[handle] = OpenEntry{descriptor};
  return handle;
}

std::string OpenErrorText() {
  return openError.message();
}

std::int32_t _llseek(std::int16_t handle, std::int32_t offset, int origin) {
  const OpenEntry* entry = Find(handle);
  if (entry == nullptr) return -1;
  const Offset base = origin == kFromHere ? SeekDescriptor(entry->descriptor, 0, SEEK_CUR) : 0;
  if (base + offset < 0) return -1;
  return Wrap32(SeekDescriptor(entry->descriptor, base + offset, SEEK_SET));
}

std::int32_t _hread(std::int16_t handle, std::span<std::uint8_t> target) {
  ++readCalls;
  const OpenEntry* entry = Find(handle);
  if (entry == nullptr) return -1;
  if (CallFails()) return 0;
  std::size_t done = 0;
  while (done < target.size()) {
    const long count = ReadDescriptor(entry->descriptor, target.data() + done, target.size() - done);
    if (count < 0 && done == 0) return -1;
    if (count <= 0) break;
    done += static_cast<std::size_t>(count);
  }
  return static_cast<std::int32_t>(done);
}

std::int32_t _hwrite(std::int16_t handle, std::span<const std::uint8_t> bytes) {
  const OpenEntry* entry = Find(handle);
  if (entry == nullptr || CallFails()) return -1;
  std::size_t done = 0;
  while (done < bytes.size()) {
    const long count = WriteDescriptor(entry->descriptor, bytes.data() + done, bytes.size() - done);
    if (count < 0 && done == 0) return -1;
    if (count <= 0) break;
    done += static_cast<std::size_t>(count);
  }
  return static_cast<std::int32_t>(done);
}

std::int32_t _hwrite(std::int16_t handle, std::string_view bytes) {
  return _hwrite(handle, std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
}

std::int32_t _lclose(std::int16_t handle) {
  const auto found = Table().find(handle);
  if (found == Table().end()) return -1;
  CloseDescriptor(found->second.descriptor);
  Table().erase(found);
  return 0;
}

std::int64_t OpenFileLength(std::int16_t handle) {
  const OpenEntry* entry = Find(handle);
  if (entry == nullptr) return 0;
  const Offset here = SeekDescriptor(entry->descriptor, 0, SEEK_CUR);
  const Offset length = SeekDescriptor(entry->descriptor, 0, SEEK_END);
  SeekDescriptor(entry->descriptor, here, SEEK_SET);
  return length;
}

std::int64_t OpenFilePosition(std::int16_t handle) {
  const OpenEntry* entry = Find(handle);
  return entry == nullptr ? 0 : SeekDescriptor(entry->descriptor, 0, SEEK_CUR);
}

std::int32_t FileLengthOf(std::string_view path) {
  std::error_code failure;
  const auto length = std::filesystem::file_size(NativePath(path), failure);
  if (failure) throw Fault(FaultKind::FileNotFound);
  return Wrap32(static_cast<std::int64_t>(length));
}

#ifdef _WIN32
int FileAttributes(std::string_view path) {
  const DWORD attributes = GetFileAttributesW(NativePath(path).c_str());
  if (path.empty() || attributes == INVALID_FILE_ATTRIBUTES) throw Fault(FaultKind::FileNotFound);
  return static_cast<int>(attributes &
                          (kAttributeReadOnly | kAttributeHidden | kAttributeSystem | kAttributeArchive));
}
std::size_t LastSeparator(std::string_view path) {
  return path.find_last_of("\\/");
}
#else
int FileAttributes(std::string_view path) {
  using std::filesystem::perms;
  std::error_code failure;
  const auto status = std::filesystem::status(NativePath(path), failure);
  if (path.empty() || failure || !std::filesystem::exists(status)) throw Fault(FaultKind::FileNotFound);
  const bool writable =
      (status.permissions() & (perms::owner_write | perms::group_write | perms::others_write)) != perms::none;
  const std::string name = NativePath(path).filename().string();
  return (writable ? 0 : kAttributeReadOnly) | (name.starts_with('.') ? kAttributeHidden : 0);
}
std::size_t LastSeparator(std::string_view path) {
  return path.rfind('/');
}
#endif

void FailFileCallsAfter(std::int64_t calls) {
  callsUntilFailure = calls;
}

std::int64_t FileReadCalls() {
  return readCalls;
}

}  // namespace brolk
