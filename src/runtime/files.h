// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace brolk {

// Styles of OpenFile.
inline constexpr int kOpenRead = 0;
inline constexpr int kOpenReadWrite = 2;
inline constexpr int kOpenCreate = 0x1000;
inline constexpr int kOpenExist = 0x4000;

// Origins of _llseek.
inline constexpr int kFromStart = 0;
inline constexpr int kFromHere = 1;

// Bits of FileAttributes.
inline constexpr int kAttributeReadOnly = 1;
inline constexpr int kAttributeHidden = 2;
inline constexpr int kAttributeSystem = 4;
inline constexpr int kAttributeArchive = 32;

// Opens a file (path in UTF-8) and answers a handle of 1 or more, or -1 on failure. kOpenRead and
// kOpenReadWrite open what is there; kOpenCreate makes the file or empties it, open for reading and writing;
// kOpenExist only tests: 0 or more when a file of that name is there, and no handle stays open. A folder or
// an empty name is a failure. A handle number is never given out twice in a run, so a stale handle reaches no
// other file.
[[nodiscard]] std::int16_t OpenFile(std::string_view path, int style);

// Why the OpenFile before this call failed, in the platform's words. Means nothing after one that went well.
[[nodiscard]] std::string OpenErrorText();

// Moves the position of a handle to `offset` bytes from the start (kFromStart) or from the present position
// (kFromHere). Answers the new position (its low 32 bits), or -1: the handle is not open or the place is
// negative, and the position stays.
std::int32_t _llseek(std::int16_t handle, std::int32_t offset, int origin);

// Reads up to target.size() bytes at the position and moves it on. Answers the number of bytes delivered: 0
// at or past the end, -1 when the handle is not open for reading; bytes that were not delivered are left
// alone.
std::int32_t _hread(std::int16_t handle, std::span<std::uint8_t> target);

// Writes the bytes at the position and moves it on. Unbuffered: they are in the file when the call returns. A
// position past the end leaves a gap of zero bytes. Answers the number of bytes written, or -1 when the
// handle is not open for writing.
std::int32_t _hwrite(std::int16_t handle, std::span<const std::uint8_t> bytes);
std::int32_t _hwrite(std::int16_t handle, std::string_view bytes);

// Closes a handle. Answers 0, or -1 when it was not open.
std::int32_t _lclose(std::int16_t handle);

// The length in bytes of the file behind an open handle, 0 when it is not open.
[[nodiscard]] std::int64_t OpenFileLength(std::int16_t handle);

// The present position of an open handle in bytes from the start, 0 when it is not open.
[[nodiscard]] std::int64_t OpenFilePosition(std::int16_t handle);

// The length of a file by its name: the low 32 bits, taken as signed, so 2 GiB and more is negative. No such
// file: the file fault.
[[nodiscard]] std::int32_t FileLengthOf(std::string_view path);

// The attributes of a file by its name, as kAttribute bits: read-only means that no write permission bit is
// set, hidden a leading dot (or the platform's own flag); system and archive exist only where the platform
// has them. No such file: the file fault.
[[nodiscard]] int FileAttributes(std::string_view path);

// The last separator of a path: "/", and "\" too where the platform separates with it. npos when there is
// none.
[[nodiscard]] std::size_t LastSeparator(std::string_view path);

// Failure on demand, for tests: after `calls` further reads or writes of any handle, each following one fails
// as a full or broken device would (reads deliver nothing, writes write nothing). -1 switches it off.
void FailFileCallsAfter(std::int64_t calls);

// Number of _hread calls since the start of the process; benchmarks and tests count with it.
[[nodiscard]] std::int64_t FileReadCalls();

}  // namespace brolk
