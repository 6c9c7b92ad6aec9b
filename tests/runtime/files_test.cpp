// SPDX-License-Identifier: MIT
#include "runtime/files.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "runtime/fault.h"
#include "support/temp_file.h"

namespace brolk::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes ReadUpTo(std::int16_t handle, std::size_t count) {
  Bytes bytes(count);
  const std::int32_t delivered = _hread(handle, bytes);
  bytes.resize(delivered < 0 ? 0 : static_cast<std::size_t>(delivered));
  return bytes;
}

TEST(OpenFile, FailsForWhatIsNoFile) {
  const TempFolder folder;
  EXPECT_EQ(OpenFile(folder.Path("absent"), kOpenRead), -1);
  EXPECT_EQ(OpenFile(folder.Path("absent"), kOpenReadWrite), -1);
  EXPECT_EQ(OpenFile(folder.Path(""), kOpenRead), -1);
  EXPECT_EQ(OpenFile("", kOpenRead), -1);
  EXPECT_EQ(OpenFile("", kOpenCreate), -1);
  EXPECT_EQ(OpenFile(folder.Path("absent/file"), kOpenCreate), -1);
  EXPECT_FALSE(std::filesystem::exists(folder.Path("absent")));
}

TEST(OpenFile, TellsWhetherAFileIsThereWithoutKeepingItOpen) {
  const TempFile file({1});
  EXPECT_GE(OpenFile(file.Path(), kOpenExist), 0);
  EXPECT_EQ(OpenFile(file.Path() + "x", kOpenExist), -1);
  EXPECT_EQ(OpenFile(std::filesystem::path(file.Path()).parent_path().string(), kOpenExist), -1);
  EXPECT_EQ(OpenFile("", kOpenExist), -1);
}

TEST(OpenFile, EmptiesAFileThatItCreates) {
  const TempFile file({1, 2, 3});
  const std::int16_t handle = OpenFile(file.Path(), kOpenCreate);
  EXPECT_EQ(OpenFileLength(handle), 0);
  EXPECT_EQ(_hwrite(handle, Bytes{7, 8}), 2);
  _llseek(handle, 0, kFromStart);
  EXPECT_EQ(ReadUpTo(handle, 5), (Bytes{7, 8}));
  _lclose(handle);
}

TEST(OpenFile, TakesPathsInUtf8) {
  const TempFolder folder;
  const std::string path = folder.Path("\xC3\xA4\xE3\x81\x82.bin");
  _lclose(OpenFile(path, kOpenCreate));
  EXPECT_EQ(FileLengthOf(path), 0);
}

TEST(Handles, AreNeverGivenOutTwice) {
  const TempFile file({1});
  std::int16_t last = file.Handle();
  for (int i = 0; i < 100; ++i) {
    const std::int16_t handle = OpenFile(file.Path(), kOpenRead);
    EXPECT_GT(handle, last);
    last = handle;
    _lclose(handle);
  }
}

TEST(Handles, EndAtTheLargestInteger) {
  const TempFile file({1});
  EXPECT_EXIT(
      {
        std::int16_t last = 0;
        for (std::int16_t handle = 0; (handle = OpenFile(file.Path(), kOpenRead)) > 0; _lclose(handle))
          last = handle;
        std::exit(last == 32767 ? 0 : 1);
      },
      ::testing::ExitedWithCode(0), "");
}

TEST(Handles, ReachNothingOnceClosed) {
  std::int16_t stale = -1;
  {
    const TempFile file({1, 2, 3});
    stale = file.Handle();
  }
  const TempFile other({4, 5, 6});
  for (const std::int16_t handle : {stale, std::int16_t{-1}, std::int16_t{0}, std::int16_t{32000}}) {
    std::uint8_t byte = 77;
    EXPECT_EQ(_hread(handle, std::span(&byte, 1)), -1);
    EXPECT_EQ(byte, 77);
    EXPECT_EQ(_hwrite(handle, Bytes{9}), -1);
    EXPECT_EQ(_llseek(handle, 0, kFromStart), -1);
    EXPECT_EQ(_lclose(handle), -1);
    EXPECT_EQ(OpenFileLength(handle), 0);
    EXPECT_EQ(OpenFilePosition(handle), 0);
  }
  EXPECT_EQ(other.Bytes(), (Bytes{4, 5, 6}));
}

TEST(Seeking, GoesFromTheStartAndFromHere) {
  const TempFile file({1, 2, 3, 4, 5});
  EXPECT_EQ(_llseek(file.Handle(), 3, kFromStart), 3);
  EXPECT_EQ(_llseek(file.Handle(), -2, kFromHere), 1);
  EXPECT_EQ(ReadUpTo(file.Handle(), 1), (Bytes{2}));
  EXPECT_EQ(_llseek(file.Handle(), 100, kFromHere), 102);
}

TEST(Seeking, FailsAtANegativePlaceAndStays) {
  const TempFile file({1, 2, 3});
  _llseek(file.Handle(), 2, kFromStart);
  EXPECT_EQ(_llseek(file.Handle(), -1, kFromStart), -1);
  EXPECT_EQ(_llseek(file.Handle(), -3, kFromHere), -1);
  EXPECT_EQ(OpenFilePosition(file.Handle()), 2);
}

TEST(Reading, StopsAtTheEndAndLeavesTheRest) {
  const TempFile file({1, 2, 3});
  std::array<std::uint8_t, 5> target = {9, 9, 9, 9, 9};
  EXPECT_EQ(_hread(file.Handle(), target), 3);
  EXPECT_EQ(target, (std::array<std::uint8_t, 5>{1, 2, 3, 9, 9}));
  EXPECT_EQ(_hread(file.Handle(), target), 0);
  _llseek(file.Handle(), 50, kFromStart);
  EXPECT_EQ(_hread(file.Handle(), target), 0);
  EXPECT_EQ(OpenFilePosition(file.Handle()), 50);
}

TEST(Writing, IsInTheFileAtOnce) {
  const TempFile file({1, 2, 3});
  _llseek(file.Handle(), 1, kFromStart);
  EXPECT_EQ(_hwrite(file.Handle(), Bytes{8, 9, 10}), 3);
  EXPECT_EQ(file.Bytes(), (Bytes{1, 8, 9, 10}));
  EXPECT_EQ(_hwrite(file.Handle(), std::string_view("\0A", 2)), 2);
  EXPECT_EQ(file.Bytes(), (Bytes{1, 8, 9, 10, 0, 'A'}));
}

TEST(Writing, FillsAGapWithZeros) {
  const TempFile file({1});
  _llseek(file.Handle(), 4, kFromStart);
  EXPECT_EQ(file.Bytes(), (Bytes{1}));
  _hwrite(file.Handle(), Bytes{2});
  EXPECT_EQ(file.Bytes(), (Bytes{1, 0, 0, 0, 2}));
  EXPECT_EQ(OpenFileLength(file.Handle()), 5);
}

TEST(Writing, FailsOnAFileOpenedForReading) {
  const TempFile file({1, 2}, kOpenRead);
  EXPECT_EQ(_hwrite(file.Handle(), Bytes{9}), -1);
  EXPECT_EQ(file.Bytes(), (Bytes{1, 2}));
}

TEST(FailingCalls, DeliverNothingAfterTheGivenNumber) {
  const TempFile file({1, 2, 3, 4});
  FailFileCallsAfter(2);
  EXPECT_EQ(ReadUpTo(file.Handle(), 1), (Bytes{1}));
  EXPECT_EQ(_hwrite(file.Handle(), Bytes{9}), 1);
  EXPECT_EQ(ReadUpTo(file.Handle(), 1), Bytes{});
  EXPECT_EQ(_hwrite(file.Handle(), Bytes{9}), -1);
  FailFileCallsAfter(-1);
  EXPECT_EQ(ReadUpTo(file.Handle(), 1), (Bytes{3}));
  EXPECT_EQ(file.Bytes(), (Bytes{1, 9, 3, 4}));
}

TEST(FailingCalls, CountTheReads) {
  const TempFile file({1, 2, 3, 4});
  const std::int64_t before = FileReadCalls();
  static_cast<void>(ReadUpTo(file.Handle(), 3));
  static_cast<void>(ReadUpTo(file.Handle(), 3));
  EXPECT_EQ(FileReadCalls() - before, 2);
}

TEST(LengthByName, IsTheFileFaultForNoFile) {
  const TempFile file({1, 2, 3});
  EXPECT_EQ(FileLengthOf(file.Path()), 3);
  EXPECT_THROW(static_cast<void>(FileLengthOf(file.Path() + "x")), Fault);
  EXPECT_THROW(static_cast<void>(FileLengthOf("")), Fault);
}

TEST(LengthByName, IsTheLow32BitsTakenAsSigned) {
  const TempFile file({});
  const auto lengthAt = [&](std::uintmax_t length) {
    std::filesystem::resize_file(file.Path(), length);
    return FileLengthOf(file.Path());
  };
  EXPECT_EQ(lengthAt(0x7FFFFFFF), 2147483647);
  EXPECT_EQ(lengthAt(0x80000000), -2147483647 - 1);
  EXPECT_EQ(lengthAt(0x100000005), 5);
  EXPECT_EQ(OpenFileLength(file.Handle()), 0x100000005);
}

TEST(Attributes, ShowHiddenAndReadOnly) {
  const TempFolder folder;
  const auto attributesOf = [&](const std::string& name, std::filesystem::perms permissions) {
    std::ofstream(folder.Path(name)) << "x";
    std::filesystem::permissions(folder.Path(name), permissions);
    return FileAttributes(folder.Path(name));
  };
  using std::filesystem::perms;
  EXPECT_EQ(attributesOf("plain", perms::owner_read | perms::owner_write), 0);
  EXPECT_EQ(attributesOf("locked", perms::owner_read | perms::group_read), kAttributeReadOnly);
  EXPECT_EQ(attributesOf("group", perms::owner_read | perms::group_write), 0);
  EXPECT_EQ(attributesOf(".hidden", perms::owner_read | perms::owner_write), kAttributeHidden);
  EXPECT_EQ(attributesOf(".both", perms::owner_read), kAttributeHidden | kAttributeReadOnly);
}

TEST(Attributes, AreTheFileFaultForNoFile) {
  const TempFolder folder;
  for (const std::string& path : {folder.Path("absent"), std::string()}) {
    try {
      static_cast<void>(FileAttributes(path));
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::FileNotFound);
    }
  }
}

TEST(LastSeparator, IsTheSlash) {
  EXPECT_EQ(LastSeparator("/roms/game.gb"), 5U);
  EXPECT_EQ(LastSeparator("game.gb"), std::string_view::npos);
  EXPECT_EQ(LastSeparator(""), std::string_view::npos);
#ifndef _WIN32
  EXPECT_EQ(LastSeparator("/a\\b"), 0U);
#endif
}

}  // namespace
}  // namespace brolk::test
