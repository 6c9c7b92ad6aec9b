// SPDX-License-Identifier: MIT
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "palette/palette_files_support.h"

namespace brolk::test {
namespace {

using EndlessSave = PaletteFilesTest;

constexpr rlim_t kMostBytes = 3000000;

// Saves in a child process that may write only so many bytes to a file. Answers the signal that ended it, 0
// when the save came to an end.
int SignalOfSave(int filterIndex, const std::string& path) {
  const pid_t child = fork();
  if (child == 0) {
    const rlimit limit{kMostBytes, kMostBytes};
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, SIG_DFL);
    alarm(60);
    SavePaletteFile(filterIndex, path);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

// The sets 0 to 255, over and over, as far as the bound lets them.
std::string Repeated(const std::string& head, const std::string& allSets, std::size_t size) {
  std::string text = head;
  while (text.size() < size) text += allSets;
  return text.substr(0, size);
}

void FillAllRecords() {
  for (int place = 0; place < 256; ++place) {
    Sets[place].Name = "record " + std::to_string(place);
    Sets[place].Colors.fill(place * 65793);
  }
}

TEST_F(EndlessSave, ATextFileOfAnEmptyListTakesSetsWithoutEnd) {
  FillAllRecords();
  EXPECT_EQ(SignalOfSave(kText, PathOf("endless")), SIGXFSZ);
  std::string allSets;
  for (const ColorSetRecord& set : Sets) allSets += TextPaletteOf(set) + "\r\n";
  const std::string written = ReadFile(PathOf("endless"));
  ASSERT_GT(written.size(), allSets.size() * 3) << "the places begin anew";
  EXPECT_TRUE(written == Repeated("Brolk Plus palette file\r\n0\r\n\r\n", allSets, written.size()));
}

TEST_F(EndlessSave, AnOldBinaryFileOfAnEmptyListTakesSetsWithoutEnd) {
  FillAllRecords();
  EXPECT_EQ(SignalOfSave(kOldBinary, PathOf("endless")), SIGXFSZ);
  std::string allSets;
  for (const ColorSetRecord& set : Sets) allSets += OldBinaryPaletteOf(set);
  const std::string written = ReadFile(PathOf("endless"));
  ASSERT_GT(written.size(), allSets.size() * 3) << "the places begin anew";
  EXPECT_TRUE(written == Repeated("BXP", allSets, written.size()));
}

TEST_F(EndlessSave, OneSetIsEnoughForAnEnd) {
  FillList(1);
  EXPECT_EQ(SignalOfSave(kText, PathOf("text")), 0);
  EXPECT_EQ(SignalOfSave(kOldBinary, PathOf("binary")), 0);
}

TEST_F(EndlessSave, TheFormatsOfOneSetEndWithAnEmptyList) {
  EXPECT_EQ(SignalOfSave(kRiff, PathOf("riff")), 0);
  EXPECT_EQ(SignalOfSave(kTileLayer, PathOf("tile")), 0);
}

}  // namespace
}  // namespace brolk::test
