// SPDX-License-Identifier: MIT
#include "runtime/byte_reader.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "support/temp_file.h"

namespace brolk::test {
namespace {

// Reading by bytes, from the disk and from memory alike.
class ByteReading : public ::testing::TestWithParam<bool> {
 protected:
  FileSource Source(const std::string& text) {
    bytes_.assign(text.begin(), text.end());
    if (GetParam()) return FileSource::InMemory(bytes_);
    file_.emplace(bytes_);
    return FileSource::AtPath(file_->Path());
  }

 private:
  std::optional<TempFile> file_;
  std::vector<std::uint8_t> bytes_;
};
std::string PlaceName(const ::testing::TestParamInfo<bool>& place) {
  return place.param ? "Memory" : "Disk";
}
INSTANTIATE_TEST_SUITE_P(, ByteReading, ::testing::Bool(), PlaceName);

std::string Numbered(std::size_t count) {
  std::string text;
  for (std::size_t at = 0; at < count; ++at) text += static_cast<char>(at * 7 + at / 256);
  return text;
}

TEST_P(ByteReading, DeliversEveryByteOnce) {
  for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 10000U}) {
    const std::string text = Numbered(size);
    const FileSource source = Source(text);
    ByteReader reader(source);
    EXPECT_EQ(reader.Length(), static_cast<std::int64_t>(size));
    std::string seen;
    for (std::uint8_t byte = 0; reader.Next(byte);) seen += static_cast<char>(byte);
    EXPECT_TRUE(seen == text) << size;
  }
}

TEST_P(ByteReading, LeavesTheByteAloneAtTheEnd) {
  const FileSource source = Source("A");
  ByteReader reader(source);
  std::uint8_t byte = 0;
  EXPECT_TRUE(reader.Next(byte));
  EXPECT_FALSE(reader.Next(byte));
  EXPECT_FALSE(reader.Next(byte));
  EXPECT_EQ(byte, 'A');
}

TEST_P(ByteReading, AWordKeepsTheHalfThatIsNotDelivered) {
  const FileSource source = Source("\x34\x12\x56");
  ByteReader reader(source);
  std::uint16_t word = 0;
  reader.NextWord(word);
  EXPECT_EQ(word, 0x1234);
  reader.NextWord(word);
  EXPECT_EQ(word, 0x1256);
  reader.NextWord(word);
  EXPECT_EQ(word, 0x1256);
}

TEST_P(ByteReading, SeeksAndSkipsLikeAPlainIndex) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const std::string text = Numbered(20000);
  const FileSource source = Source(text);
  ByteReader reader(source);
  std::size_t at = 0;
  for (int round = 0; round < 3000; ++round) {
    if (random() % 4 == 0) {
      at = random() % 20100;
      reader.Seek(static_cast<std::int32_t>(at));
    } else if (random() % 2 == 0) {
      const std::size_t step = random() % 300;
      at += step;
      reader.Skip(static_cast<std::int64_t>(step));
    }
    std::vector<std::uint8_t> target(random() % 600, 0xEE);
    const std::size_t there = at < text.size() ? std::min(target.size(), text.size() - at) : 0;
    ASSERT_EQ(reader.Read(target), there);
    for (std::size_t k = 0; k < target.size(); ++k) {
      ASSERT_EQ(target[k], k < there ? static_cast<unsigned char>(text[at + k]) : 0xEE);
    }
    // Past the end a reader from the disk stands where it was told, and one from memory at the end: neither
    // delivers anything until the next seek.
    at += there;
    if (at >= text.size()) reader.Seek(static_cast<std::int32_t>(at = 0));
  }
}

TEST_P(ByteReading, SkipsFurtherThanAnyFileIsLong) {
  const FileSource source = Source("some bytes");
  ByteReader reader(source);
  reader.Skip(0x7FFFFFFFLL * 2 + 10);
  std::uint8_t byte = 7;
  EXPECT_FALSE(reader.Next(byte));
  EXPECT_EQ(byte, 7);
}

TEST_P(ByteReading, TakesTextAndRepeatsTheLastByteAtTheEnd) {
  const FileSource source = Source("abc");
  ByteReader reader(source);
  EXPECT_EQ(reader.TakeText(0), "");
  EXPECT_EQ(reader.TakeText(2), "ab");
  EXPECT_EQ(reader.TakeText(3), "ccc");
  EXPECT_EQ(reader.TakeText(2), std::string(2, '\0')) << "each text starts with a byte of 0";
}

TEST_P(ByteReading, TakesTextUpToItsZeroByte) {
  const FileSource source = Source(std::string("one\0\0rest", 9));
  ByteReader reader(source);
  std::string text = "old";
  EXPECT_TRUE(reader.TakeZeroEndedText(text));
  EXPECT_EQ(text, "one");
  EXPECT_TRUE(reader.TakeZeroEndedText(text));
  EXPECT_EQ(text, "");
  EXPECT_FALSE(reader.TakeZeroEndedText(text)) << "no zero byte comes";
  EXPECT_EQ(text, "rest");
  EXPECT_FALSE(reader.TakeZeroEndedText(text));
  EXPECT_EQ(text, "");
}

TEST(ByteReaderFiles, AFileThatCannotBeOpenedDeliversNothing) {
  const TempFolder folder;
  ByteReader reader(FileSource::AtPath(folder.Path("missing")));
  EXPECT_FALSE(reader.IsOpen());
  std::uint8_t byte = 7;
  EXPECT_FALSE(reader.Next(byte));
  std::uint16_t word = 0x1234;
  reader.NextWord(word);
  EXPECT_EQ(word, 0x1234);
  reader.Seek(5);
  reader.Skip(5);
  EXPECT_FALSE(reader.Next(byte));
}

// Handle numbers are given out one after the other, so the reader's is the next.
TEST(ByteReaderFiles, ClosesUnlessAbandoned) {
  const TempFile file({1, 2, 3});
  const FileSource source = FileSource::AtPath(file.Path());
  const std::int16_t before = file.Handle();
  { const ByteReader reader(source); }
  EXPECT_EQ(_lclose(static_cast<std::int16_t>(before + 1)), -1);
  {
    ByteReader reader(source);
    reader.Abandon();
  }
  EXPECT_EQ(_lclose(static_cast<std::int16_t>(before + 2)), 0) << "it was left open";
}

}  // namespace
}  // namespace brolk::test
