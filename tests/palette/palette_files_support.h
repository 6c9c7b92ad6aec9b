// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "importers/palette_kinds.h"
#include "palette/color_sets.h"
#include "runtime/fault.h"

// What the tests of palette files share: files written from readable text, an empty list before each test,
// and loads by filter index.
namespace brolk::test {

// The filter indices, as the dialog counts them.
enum FilterIndex {
  kText = 1,
  kOldBinary,
  kRiff,
  kTileLayer,
  kGif,
  kPng,
  kNesticle,
  kVgba,
  kNoGmb,
  kZsnes,
  kBoycott,
  kCygne,
  kVisualBoy,
};

// Bytes put together piece by piece.
class Bytes {
 public:
  Bytes& Text(std::string_view text);
  Bytes& Byte(int value);
  Bytes& List(std::initializer_list<int> values);
  Bytes& Word(int value);              // 16 bits, low byte first
  Bytes& Long(std::int64_t value);     // 32 bits, low byte first
  Bytes& BigWord(int value);           // 16 bits, high byte first
  Bytes& BigLong(std::int64_t value);  // 32 bits, high byte first
  Bytes& Fill(std::size_t count, int value = 0);
  // Zeros up to this length in all.
  Bytes& FillTo(std::size_t length);
  Bytes& Add(const Bytes& other) { return Text(other.text_); }

  [[nodiscard]] const std::string& Str() const { return text_; }
  [[nodiscard]] std::size_t Size() const { return text_.size(); }

 private:
  std::string text_;
};

// The first `count` bytes of a text.
[[nodiscard]] std::string Cut(const std::string& text, std::size_t count);

class PaletteFilesTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Writes a file of the test's own folder and answers its path.
  std::string MakeFile(const std::string& name, const std::string& bytes);
  [[nodiscard]] std::string PathOf(const std::string& name) const { return folder_ + name; }
  [[nodiscard]] static std::string ReadFile(const std::string& path);

  // Loads a file with these bytes (or the file at a path) under a filter index. A question is answered with
  // answerYes; questions counts how often one came.
  LoadOutcome Load(int filterIndex, const std::string& bytes);
  LoadOutcome LoadPath(int filterIndex, const std::string& path);
  // The fault that such a load ends in.
  FaultKind LoadFault(int filterIndex, const std::string& bytes);

  std::string fileTitle = "title.ext";
  bool answerYes = true;
  std::vector<Notice> questions;

 private:
  std::string folder_;
};

// A load that said nothing and had the list built again.
void ExpectDone(const LoadOutcome& outcome);
// A load that told exactly this.
void ExpectNotice(const LoadOutcome& outcome, std::string_view text, std::string_view title, int icon,
                  bool refreshList);

// Number of files that this process holds open.
[[nodiscard]] std::size_t CountOpenFiles();

// Fills the list with `count` sets whose names are their places and whose colours are `color`.
void FillList(int count, ColorValue color = 0);

// Everything that a load may change.
struct ListState {
  std::uint8_t setCount;
  std::vector<ColorSetRecord> sets;
  bool operator==(const ListState& other) const;
};
[[nodiscard]] ListState CurrentList();

// The fault kind that an action ends in; none fails the test.
template <typename Action>
FaultKind FaultOfAction(Action action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.Kind();
  }
  ADD_FAILURE() << "no fault was raised";
  return FaultKind::OutOfStackSpace;
}

// A valid file of each kind, with colours that show byte order and place, and the names of the sets in it.
struct SampleFile {
  std::string bytes;
  std::vector<std::string> names;
};
[[nodiscard]] SampleFile Sample(int filterIndex);

// One file of the text format: the header, the count, a set of one colour everywhere for each name.
[[nodiscard]] std::string TextFile(const std::string& count, std::initializer_list<std::string> names,
                                   const std::string& colorLine = "10 200 5");
// The same in the old binary format.
[[nodiscard]] std::string OldBinaryFile(std::initializer_list<std::string> names, int red = 10,
                                        int green = 200, int blue = 5);

// Bytes as a gzip stream.
[[nodiscard]] std::string Gzip(const std::string& bytes);

}  // namespace brolk::test
