// SPDX-License-Identifier: MIT
// Lines of text files, and the characters in them.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "runtime/ansi_text.h"
#include "runtime/fault.h"
#include "runtime/files.h"
#include "runtime/text_stream.h"
#include "support/temp_file.h"

namespace brolk::test {
namespace {

using Lines = std::vector<std::string>;

class TextFile : public ::testing::Test {
 protected:
  std::string Path() const { return folder_.Path("text"); }
  void Write(const std::string& bytes) const { std::ofstream(Path(), std::ios::binary) << bytes; }
  std::string Content() const {
    std::ifstream file(Path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // All lines up to the end-of-file fault.
  Lines ReadAll() const {
    Lines lines;
    TextReader reader(Path());
    try {
      for (;;) lines.push_back(reader.ReadLine());
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::InputPastEnd);
    }
    return lines;
  }

  TempFolder folder_;
};

TEST_F(TextFile, EndsLinesAtALineFeedAndDropsOneCarriageReturn) {
  Write("a\r\nb\nc\r\r\n\r\n\nd\re\n");
  EXPECT_EQ(ReadAll(), (Lines{"a", "b", "c\r", "", "", "d\re"}));
}

TEST_F(TextFile, NeedsNoEndOfTheLastLine) {
  Write("a\r\nb");
  EXPECT_EQ(ReadAll(), (Lines{"a", "b"}));
  Write("a\r\nb\r");
  EXPECT_EQ(ReadAll(), (Lines{"a", "b\r"}));
}

TEST_F(TextFile, HasNoLineWhenEmpty) {
  Write("");
  EXPECT_EQ(ReadAll(), Lines{});
}

TEST_F(TextFile, KeepsZeroBytesAndHighBytes) {
  Write(std::string("a\0\xFF\r\n", 5));
  EXPECT_EQ(ReadAll(), (Lines{std::string("a\0\xFF", 3)}));
}

TEST_F(TextFile, IsReadWholeWhateverItsLength) {
  Write(std::string(200000, 'x') + "\r\ny");
  EXPECT_EQ(ReadAll(), (Lines{std::string(200000, 'x'), "y"}));
}

TEST_F(TextFile, SkipsLinesWithTheSameFault) {
  Write("a\r\nb\r\n");
  TextReader reader(Path());
  reader.SkipLine();
  EXPECT_EQ(reader.ReadLine(), "b");
  EXPECT_THROW(reader.SkipLine(), Fault);
}

TEST_F(TextFile, IsTheFileFaultWhenItCannotBeOpened) {
  for (const std::string& path : {Path(), folder_.Path("no/folder")}) {
    try {
      const TextReader reader(path);
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::FileNotFound);
    }
  }
  EXPECT_THROW(TextWriter(folder_.Path("no/folder")), Fault);
}

TEST_F(TextFile, StaysOpenOnlyWhenItIsAbandoned) {
  Write("a");
  const auto nextHandle = [this] {
    const std::int16_t handle = OpenFile(Path(), kOpenRead);
    _lclose(handle);
    return static_cast<std::int16_t>(handle + 1);
  };
  const std::int16_t closed = nextHandle();
  {
    TextReader reader(Path());
    reader.Close();
    EXPECT_EQ(_llseek(closed, 0, kFromStart), -1);
  }
  const std::int16_t destroyed = nextHandle();
  { const TextReader reader(Path()); }
  EXPECT_EQ(_llseek(destroyed, 0, kFromStart), -1);
  const std::int16_t abandoned = nextHandle();
  { TextReader(Path()).Abandon(); }
  EXPECT_EQ(_llseek(abandoned, 0, kFromStart), 0);
  _lclose(abandoned);
}

TEST_F(TextFile, IsWrittenWithCarriageReturnAndLineFeed) {
  Write("something longer that was there before");
  TextWriter writer(Path());
  EXPECT_EQ(Content(), "");
  writer.WriteLine("a\xE4");
  EXPECT_EQ(Content(), "a\xE4\r\n");
  writer.WriteBlankLines(2);
  writer.WriteLine("");
  EXPECT_EQ(Content(), "a\xE4\r\n\r\n\r\n\r\n");
  writer.Close();
  writer.WriteLine("lost");
  EXPECT_EQ(Content(), "a\xE4\r\n\r\n\r\n\r\n");
}

TEST(SplitAtBlanks, CutsAtEverySingleBlank) {
  EXPECT_EQ(SplitAtBlanks("1 2 3"), (Lines{"1", "2", "3"}));
  EXPECT_EQ(SplitAtBlanks("1  2"), (Lines{"1", "", "2"}));
  EXPECT_EQ(SplitAtBlanks(" 1 "), (Lines{"", "1", ""}));
  EXPECT_EQ(SplitAtBlanks("1\t2"), (Lines{"1\t2"}));
  EXPECT_EQ(SplitAtBlanks(""), Lines{});
}

TEST(AnsiText, BringsEveryByteBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    EXPECT_EQ(AnsiFromUtf8(Utf8FromAnsi(one)), one) << byte;
  }
}

TEST(AnsiText, KnowsTheCharactersOfWindows1252) {
  EXPECT_EQ(Utf8FromAnsi("\x80\x99\xE4\xFF"), "\xE2\x82\xAC\xE2\x84\xA2\xC3\xA4\xC3\xBF");
  EXPECT_EQ(AnsiFromUtf8("\xE2\x82\xAC\xC5\xB8\xC3\x9F"), "\x80\x9F\xDF");
}

TEST(AnsiText, PutsAQuestionMarkForOtherCharacters) {
  EXPECT_EQ(AnsiFromUtf8("a\xE3\x81\x82"
                         "b"),
            "a?b");
  EXPECT_EQ(AnsiFromUtf8("\xF0\x9F\x98\x80"), "?");
  EXPECT_EQ(AnsiFromUtf8("\xCE\xB1"), "?");
}

TEST(AnsiText, PutsAQuestionMarkForBrokenUtf8) {
  EXPECT_EQ(AnsiFromUtf8("\xC3"), "?");
  EXPECT_EQ(AnsiFromUtf8("\xFF"
                         "a"),
            "?a");
  EXPECT_EQ(AnsiFromUtf8("\xE2\x82z"), "?z");
  EXPECT_EQ(AnsiFromUtf8("\xA4"), "?");
}

TEST(AnsiText, TellsUpperCaseLetters) {
  const std::string upper =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZ\x8A\x8C\x8E\x9F"
      "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF"
      "\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE";
  for (int byte = 0; byte < 256; ++byte) {
    const bool expected = upper.find(static_cast<char>(byte)) != std::string::npos;
    EXPECT_EQ(IsAnsiUpper(static_cast<unsigned char>(byte)), expected) << byte;
  }
}

}  // namespace
}  // namespace brolk::test
