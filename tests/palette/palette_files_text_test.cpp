// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>

#include "palette/palette_files_support.h"

namespace brolk::test {
namespace {

using TextPalette = PaletteFilesTest;

constexpr ColorValue kPlain = 10 + 200 * 256 + 5 * 65536;

// The text file of 200 sets, named by their places.
std::string ManySets(int count) {
  std::string text = TextFile(std::to_string(count), {});
  for (int place = 0; place < count; ++place) {
    text += "file " + std::to_string(place) + "\r\n";
    for (int index = 0; index < 256; ++index) text += "1 2 3\r\n";
    text += "\r\n";
  }
  return text;
}

// A file of one set whose first colour line is this.
std::string FirstLine(const std::string& line) {
  std::string text = TextFile("1", {"One"});
  const std::string usual = "10 200 5\r\n";
  return text.replace(text.find(usual), usual.size(), line + "\r\n");
}

std::size_t LineCount(const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// The first `count` lines of a text, with their ends.
std::string FirstLines(const std::string& text, std::size_t count) {
  std::size_t end = 0;
  for (std::size_t line = 0; line < count; ++line) end = text.find('\n', end) + 1;
  return text.substr(0, end);
}

TEST_F(TextPalette, LoadsNamesAndColours) {
  ExpectDone(Load(kText, TextFile("2", {"Alpha", "Beta  two"})));
  EXPECT_EQ(SetCount, 2);
  EXPECT_EQ(Sets[0].Name, "Alpha");
  EXPECT_EQ(Sets[1].Name, "Beta  two");
  for (int index = 0; index < 256; ++index) {
    ASSERT_EQ(Sets[0].Colors[index], kPlain);
    ASSERT_EQ(Sets[1].Colors[index], kPlain);
  }
  EXPECT_TRUE(questions.empty());
}

TEST_F(TextPalette, KeepsTheOrderOfColourLines) {
  std::string text = "Brolk Plus palette file\r\n1\r\n\r\nRamp\r\n";
  for (int index = 0; index < 256; ++index) text += std::to_string(index) + " 0 1\r\n";
  ExpectDone(Load(kText, text + "\r\n"));
  for (int index = 0; index < 256; ++index) ASSERT_EQ(Sets[0].Colors[index], index + 65536);
}

TEST_F(TextPalette, TakesBareLineFeedsAndALastLineWithoutEnd) {
  std::string text = TextFile("1", {"One"});
  std::erase(text, '\r');
  // The empty line behind the set needs no end of its own, but it must be there: one blank is enough.
  text.back() = ' ';
  ExpectDone(Load(kText, text));
  EXPECT_EQ(Sets[0].Name, "One");
}

TEST_F(TextPalette, KeepsNamesByteForByte) {
  std::string name;
  for (int byte = 1; byte < 256; ++byte) {
    if (byte != '\n' && byte != '\r') name += static_cast<char>(byte);
  }
  ExpectDone(Load(kText, TextFile("1", {name})));
  EXPECT_EQ(Sets[0].Name, name);
  SavePaletteFile(kText, PathOf("saved"));
  EXPECT_EQ(ReadFile(PathOf("saved")), TextFile("1", {name}));
}

TEST_F(TextPalette, DropsOneCarriageReturnBeforeTheLineFeed) {
  ExpectDone(Load(kText, TextFile("1", {"Two\r"})));
  EXPECT_EQ(Sets[0].Name, "Two\r");
}

TEST_F(TextPalette, DoesNotAskWithAnEmptyList) {
  ExpectDone(Load(kText, TextFile("1", {"One"})));
  EXPECT_TRUE(questions.empty());
}

TEST_F(TextPalette, AsksBeforeItReplacesTheList) {
  FillList(3, 99);
  ExpectDone(Load(kText, TextFile("1", {"One"})));
  ASSERT_EQ(questions.size(), 1U);
  EXPECT_EQ(questions[0].text, "Replace current list of color sets?\r\nSelect 'No' to add to the list.");
  EXPECT_EQ(questions[0].title, "Replace color sets?");
  EXPECT_EQ(static_cast<int>(questions[0].icon), 32);
  EXPECT_EQ(SetCount, 1);
  EXPECT_EQ(Sets[0].Name, "One");
  EXPECT_EQ(Sets[1].Name, "1");
  EXPECT_EQ(Sets[1].Colors[0], 99);
}

TEST_F(TextPalette, AddsToTheListOnNo) {
  FillList(3, 99);
  answerYes = false;
  ExpectDone(Load(kText, TextFile("2", {"One", "Two"})));
  EXPECT_EQ(SetCount, 5);
  EXPECT_EQ(Sets[2].Name, "2");
  EXPECT_EQ(Sets[3].Name, "One");
  EXPECT_EQ(Sets[4].Name, "Two");
}

TEST_F(TextPalette, AsksEvenForAnInvalidFile) {
  FillList(1);
  const ListState before = CurrentList();
  ExpectNotice(Load(kText, "something else\r\n"), "This is not a valid BrolkPlus palette file",
               "Error on opening file", 48, false);
  EXPECT_EQ(questions.size(), 1U);
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(TextPalette, RejectsAnyOtherFirstLine) {
  for (const char* line :
       {"", " Brolk Plus palette file", "Brolk Plus palette file ", "brolk plus palette file",
        "Brolk Plus palette fil", "Brolk Plus palette file\r"}) {
    const std::string rest = TextFile("1", {"One"}).substr(23);
    ExpectNotice(Load(kText, line + rest), "This is not a valid BrolkPlus palette file",
                 "Error on opening file", 48, false);
    EXPECT_EQ(SetCount, 0) << line;
  }
}

TEST_F(TextPalette, LeavesTheRejectedFileOpen) {
  const std::size_t open = CountOpenFiles();
  static_cast<void>(Load(kText, "something else\r\n"));
  EXPECT_EQ(CountOpenFiles(), open + 1);
}

TEST_F(TextPalette, ClosesTheFileThatItLoaded) {
  const std::size_t open = CountOpenFiles();
  static_cast<void>(Load(kText, TextFile("1", {"One"})));
  EXPECT_EQ(CountOpenFiles(), open);
}

TEST_F(TextPalette, ReadsTheLeadingNumberOfTheCountLine) {
  for (const char* count : {"1", "  1", "1 set", "&H1", "0.9", "1.5e3", "+1", "1,5"}) {
    SetCount = 0;
    // 1.5 rounds to the even 2, so that file needs two sets.
    const bool two = std::string(count) == "1.5e3";
    ExpectDone(Load(kText, two ? TextFile(count, {"One", "Two"}) : TextFile(count, {"One"})));
    EXPECT_EQ(SetCount, two ? 2 : 1) << count;
  }
}

TEST_F(TextPalette, RoundsACountOfTwoAndAHalfToTwo) {
  ExpectDone(Load(kText, TextFile("2.5", {"One", "Two"})));
  EXPECT_EQ(SetCount, 2);
}

TEST_F(TextPalette, CountZeroIntoAnEmptyListReadsNoSet) {
  for (const char* count : {"0", "none", "", "0.5", "-0.5"}) {
    ExpectDone(Load(kText, TextFile(count, {})));
    EXPECT_EQ(SetCount, 0) << count;
    EXPECT_EQ(Sets[0].Name, "") << count;
  }
}

TEST_F(TextPalette, CountZeroReplacesTheListByAnEmptyOne) {
  FillList(3);
  ExpectDone(Load(kText, TextFile("0", {})));
  EXPECT_EQ(SetCount, 0);
  EXPECT_EQ(Sets[0].Name, "0");
}

TEST_F(TextPalette, ACountOutsideAByteIsTheOverflowFault) {
  FillList(2);
  const ListState before = CurrentList();
  for (const char* count : {"300", "256", "255.5", "-1", "-0.6", "99999999999999999999", "&H100"}) {
    EXPECT_EQ(LoadFault(kText, TextFile(count, {"One"})), FaultKind::Overflow) << count;
    EXPECT_EQ(CurrentList(), before);
  }
}

TEST_F(TextPalette, AddsOnlyUpTo255Sets) {
  FillList(100);
  answerYes = false;
  ExpectDone(Load(kText, ManySets(200)));
  EXPECT_EQ(SetCount, 255);
  EXPECT_EQ(Sets[99].Name, "99");
  EXPECT_EQ(Sets[100].Name, "file 0");
  EXPECT_EQ(Sets[254].Name, "file 154");
  EXPECT_EQ(Sets[255].Name, "");
}

TEST_F(TextPalette, ReadsNoSetThatThereIsNoRoomFor) {
  FillList(255);
  answerYes = false;
  const ListState before = CurrentList();
  ExpectDone(Load(kText, TextFile("1", {"One"})));
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(TextPalette, FillsTheListExactly) {
  FillList(254);
  answerYes = false;
  ExpectDone(Load(kText, TextFile("1", {"One"})));
  EXPECT_EQ(SetCount, 255);
  EXPECT_EQ(Sets[254].Name, "One");
}

TEST_F(TextPalette, ASetIsNeededForEachOfTheCount) {
  EXPECT_EQ(LoadFault(kText, TextFile("3", {"One", "Two"})), FaultKind::InputPastEnd);
  EXPECT_EQ(SetCount, 3);
  EXPECT_EQ(Sets[1].Name, "Two");
}

TEST_F(TextPalette, AFileCutAtAnyLineIsAFault) {
  const std::string whole = TextFile("1", {"One"});
  const std::size_t lines = LineCount(whole);
  ASSERT_EQ(lines, 3U + 1 + 256 + 1);
  for (const std::size_t kept : {0U, 1U, 2U, 3U, 4U, 5U, 100U, 259U, 260U}) {
    SetCount = 0;
    EXPECT_EQ(LoadFault(kText, FirstLines(whole, kept)), FaultKind::InputPastEnd) << kept;
    // The count is raised as soon as its line has been read.
    EXPECT_EQ(SetCount, kept >= 2 ? 1 : 0) << kept;
  }
  EXPECT_EQ(FirstLines(whole, lines), whole);
}

TEST_F(TextPalette, KeepsTheColoursReadBeforeAFault) {
  const std::string whole = TextFile("1", {"One"});
  EXPECT_EQ(LoadFault(kText, FirstLines(whole, 4 + 7)), FaultKind::InputPastEnd);
  EXPECT_EQ(Sets[0].Name, "One");
  EXPECT_EQ(Sets[0].Colors[6], kPlain);
  EXPECT_EQ(Sets[0].Colors[7], 0);
}

TEST_F(TextPalette, ALineWithFewerThanThreePartsIsAFault) {
  for (const char* line : {"", "10", "10 200"}) {
    SetCount = 0;
    EXPECT_EQ(LoadFault(kText, FirstLine(line)), FaultKind::SubscriptOutOfRange) << line;
    EXPECT_EQ(SetCount, 1) << line;
  }
}

TEST_F(TextPalette, APartThatIsNoNumberIsAFault) {
  for (const char* line : {"x 2 3", "1 y 3", "1 2 z", "1  2 3", " 1 2 3", "1 2 ", "1\t2 3 4", "12abc 2 3",
                           "1 - 3", "1 . 3", "1 &H 3", "1 &Hxx 3", "1 &O9 3", "1 1.2.3 3"}) {
    EXPECT_EQ(LoadFault(kText, FirstLine(line)), FaultKind::TypeMismatch) << line;
  }
}

TEST_F(TextPalette, IgnoresAFourthPart) {
  for (const char* line : {"1 2 3 4", "1 2 3 x", "1 2 3 ", "1 2 3  "}) {
    SetCount = 0;
    ExpectDone(Load(kText, FirstLine(line)));
    EXPECT_EQ(Sets[0].Colors[0], 0x030201) << line;
    EXPECT_EQ(Sets[0].Colors[1], kPlain) << line;
  }
}

TEST_F(TextPalette, AChannelAbove255CountsAs255) {
  EXPECT_EQ(ColorOfLine("256 0 0"), 255);
  EXPECT_EQ(ColorOfLine("0 70000 0"), 255 * 256);
  EXPECT_EQ(ColorOfLine("0 0 99999999999999999999999"), 255 * 65536);
  EXPECT_EQ(ColorOfLine("255.4 0 0"), 255);
}

TEST_F(TextPalette, RoundsAChannelTiesToEven) {
  EXPECT_EQ(ColorOfLine("2.5 3.5 0.5"), 2 + 4 * 256);
  EXPECT_EQ(ColorOfLine("&HFF &o17 +7"), 255 + 15 * 256 + 7 * 65536);
}

TEST_F(TextPalette, AFileThatCannotBeOpenedIsTheFileFault) {
  const PaletteKind& kind = kPaletteKinds[kText - 1];
  const LoadRequest request{.file = FileSource::AtPath(PathOf("missing")), .fileTitle = "", .answerYes = {}};
  EXPECT_EQ(FaultOfAction([&] { static_cast<void>(kind.load(kind, request)); }), FaultKind::FileNotFound);
}

TEST_F(TextPalette, SavesAllSets) {
  FillList(2);
  Sets[0].Colors.fill(kPlain);
  Sets[1].Colors.fill(0x00FF8001);
  Sets[2].Name = "not saved";
  SelectedSet = 1;
  std::string expected = "Brolk Plus palette file\r\n2\r\n\r\n";
  expected += "0\r\n";
  for (int index = 0; index < 256; ++index) expected += "10 200 5\r\n";
  expected += "\r\n1\r\n";
  for (int index = 0; index < 256; ++index) expected += "1 128 255\r\n";
  expected += "\r\n";
  const ListState before = CurrentList();
  SavePaletteFile(kText, PathOf("saved"));
  EXPECT_EQ(ReadFile(PathOf("saved")), expected);
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(TextPalette, AFileOfOneSetHas261Lines) {
  FillList(1);
  SavePaletteFile(kText, PathOf("saved"));
  EXPECT_EQ(LineCount(ReadFile(PathOf("saved"))), 261U);
}

TEST_F(TextPalette, SavesAFullListAndLoadsItBack) {
  FillList(255);
  for (int place = 0; place < 255; ++place) Sets[place].Colors[place] = place * 65793;
  const ListState before = CurrentList();
  const std::size_t open = CountOpenFiles();
  SavePaletteFile(kText, PathOf("saved"));
  EXPECT_EQ(CountOpenFiles(), open);
  Sets.fill({});
  SetCount = 0;
  ExpectDone(LoadPath(kText, PathOf("saved")));
  EXPECT_EQ(CurrentList(), before);
}

TEST_F(TextPalette, SavesAColourWithATopByteByItsChannels) {
  FillList(1);
  Sets[0].Colors[0] = -14326;  // a green of 200 with red 10 and blue 0, as a Riff file leaves it
  SavePaletteFile(kText, PathOf("saved"));
  const std::string saved = ReadFile(PathOf("saved"));
  EXPECT_NE(saved.find("0\r\n10 201 0\r\n0 0 0\r\n"), std::string::npos);
}

TEST_F(TextPalette, OverwritesAnExistingFile) {
  FillList(1);
  const std::string path = MakeFile("saved", std::string(100000, 'x'));
  SavePaletteFile(kText, path);
  EXPECT_EQ(ReadFile(path).find('x'), std::string::npos);
}

TEST_F(TextPalette, SavingToAPathThatCannotBeMadeIsTheFileFault) {
  FillList(1);
  EXPECT_EQ(FaultOfAction([&] { SavePaletteFile(kText, PathOf("no/such/folder")); }),
            FaultKind::FileNotFound);
}

}  // namespace
}  // namespace brolk::test
