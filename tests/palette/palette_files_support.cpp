// SPDX-License-Identifier: MIT
#include "palette/palette_files_support.h"

#include <zlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "importers/gif_read.h"
#include "importers/png_fixture.h"
#include "palette/palette_model.h"

namespace brolk::test {

Bytes& Bytes::Text(std::string_view text) {
  text_ += text;
  return *this;
}
Bytes& Bytes::Byte(int value) {
  text_ += static_cast<char>(value);
  return *this;
}
Bytes& Bytes::List(std::initializer_list<int> values) {
  for (const int value : values) Byte(value);
  return *this;
}
Bytes& Bytes::Word(int value) {
  return Byte(value & 0xFF).Byte(value >> 8 & 0xFF);
}
Bytes& Bytes::Long(std::int64_t value) {
  return Word(static_cast<int>(value & 0xFFFF)).Word(static_cast<int>(value >> 16 & 0xFFFF));
}
Bytes& Bytes::BigWord(int value) {
  return Byte(value >> 8 & 0xFF).Byte(value & 0xFF);
}
Bytes& Bytes::BigLong(std::int64_t value) {
  return BigWord(static_cast<int>(value >> 16 & 0xFFFF)).BigWord(static_cast<int>(value & 0xFFFF));
}
Bytes& Bytes::Fill(std::size_t count, int value) {
  text_.append(count, static_cast<char>(value));
  return *this;
}
Bytes& Bytes::FillTo(std::size_t length) {
  text_.resize(std::max(length, text_.size()));
  return *this;
}

std::string Cut(const std::string& text, std::size_t count) {
  return text.substr(0, count);
}

void PaletteFilesTest::SetUp() {
  std::random_device random;
  folder_ =
      (std::filesystem::temp_directory_path() / ("palette-files-" + std::to_string(random()))).string() + "/";
  std::filesystem::create_directories(folder_);
  FillPow2();
  SetDefaultPalette();
  SetCount = 0;
  SelectedSet = 0;
  Sets.fill({});
  GifSignature = {};
  GifSignatureText.clear();
  GifScreen = {};
  GifPaletteLast = 0;
  GifPalette.clear();
}

void PaletteFilesTest::TearDown() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

std::string PaletteFilesTest::MakeFile(const std::string& name, const std::string& bytes) {
  std::ofstream(PathOf(name), std::ios::binary) << bytes;
  return PathOf(name);
}

std::string PaletteFilesTest::ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

LoadOutcome PaletteFilesTest::LoadPath(int filterIndex, const std::string& path) {
  return LoadPaletteFile(
      filterIndex,
      {.file = FileSource::AtPath(path), .fileTitle = fileTitle, .answerYes = [this](const Notice& question) {
         questions.push_back(question);
         return answerYes;
       }});
}

LoadOutcome PaletteFilesTest::Load(int filterIndex, const std::string& bytes) {
  return LoadPath(filterIndex, MakeFile("loaded", bytes));
}

FaultKind PaletteFilesTest::LoadFault(int filterIndex, const std::string& bytes) {
  return FaultOfAction([&] { static_cast<void>(Load(filterIndex, bytes)); });
}

void ExpectDone(const LoadOutcome& outcome) {
  EXPECT_FALSE(outcome.notice.has_value()) << outcome.notice->text;
  EXPECT_TRUE(outcome.refreshList);
}

void ExpectNotice(const LoadOutcome& outcome, std::string_view text, std::string_view title, int icon,
                  bool refreshList) {
  ASSERT_TRUE(outcome.notice.has_value());
  EXPECT_EQ(outcome.notice->text, text);
  EXPECT_EQ(outcome.notice->title, title);
  EXPECT_EQ(static_cast<int>(outcome.notice->icon), icon);
  EXPECT_EQ(outcome.refreshList, refreshList);
}

std::size_t CountOpenFiles() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

void FillList(int count, ColorValue color) {
  for (int place = 0; place < count; ++place) {
    Sets[place].Name = std::to_string(place);
    Sets[place].Colors.fill(color);
  }
  SetCount = static_cast<std::uint8_t>(count);
}

bool ListState::operator==(const ListState& other) const {
  return setCount == other.setCount &&
         std::equal(sets.begin(), sets.end(), other.sets.begin(), other.sets.end(),
                    [](const ColorSetRecord& a, const ColorSetRecord& b) {
                      return a.Name == b.Name && a.Colors == b.Colors;
                    });
}

ListState CurrentList() {
  return {SetCount, {Sets.begin(), Sets.end()}};
}

std::string TextFile(const std::string& count, std::initializer_list<std::string> names,
                     const std::string& colorLine) {
  std::string text = "Brolk Plus palette file\r\n" + count + "\r\n\r\n";
  for (const std::string& name : names) {
    text += name + "\r\n";
    for (int index = 0; index < 256; ++index) text += colorLine + "\r\n";
    text += "\r\n";
  }
  return text;
}

std::string OldBinaryFile(std::initializer_list<std::string> names, int red, int green, int blue) {
  Bytes bytes;
  bytes.Text("BXP");
  for (const std::string& name : names) {
    bytes.Text(name).Byte(0);
    for (int index = 0; index < 256; ++index) bytes.List({red, green, blue});
  }
  return bytes.Str();
}

std::string Gzip(const std::string& bytes) {
  z_stream stream{};
  EXPECT_EQ(deflateInit2(&stream, 9, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY), Z_OK);
  std::string packed(deflateBound(&stream, static_cast<uLong>(bytes.size())) + 64, '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
  stream.avail_in = static_cast<uInt>(bytes.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}

namespace {

// 512 words 0, 1, 2, ... at an offset.
Bytes WordsAt(std::size_t offset) {
  Bytes bytes;
  bytes.FillTo(offset);
  for (int word = 0; word < 512; ++word) bytes.Word(word);
  return bytes;
}

Bytes RiffSample() {
  Bytes bytes;
  bytes.Text("RIFF").Long(1044).Text("PAL data").Long(1032).Word(768).Word(256);
  for (int index = 0; index < 256; ++index) bytes.List({10, 200, 5, 77});
  return bytes.Fill(4);
}

Bytes TileLayerSample() {
  Bytes bytes;
  for (int index = 0; index < 16; ++index) bytes.List({index, index + 16, index + 32});
  return bytes;
}

Bytes GifSample() {
  return Bytes().Text("GIF89a").Word(320).Word(200).Byte(0x81).Byte(3).Byte(49).List(
      {10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 110, 120});
}

Bytes NesticleSample() {
  Bytes bytes;
  bytes.FillTo(22791);
  for (int index = 0; index < 32; ++index) bytes.Byte(index * 8);
  return bytes.FillTo(22992);
}

Bytes NoGmbSample() {
  Bytes bytes;
  bytes.Text("no$gmb snapshot").FillTo(1628);
  for (int index = 0; index < 64; ++index) bytes.Word(0x8000 + index);
  return bytes.FillTo(1757);
}

}  // namespace

SampleFile Sample(int filterIndex) {
  switch (filterIndex) {
    case kText:
      return {TextFile("2", {"Alpha", "Beta"}), {"Alpha", "Beta"}};
    case kOldBinary:
      return {OldBinaryFile({"Alpha", "Beta"}), {"Alpha", "Beta"}};
    case kRiff:
      return {RiffSample().Str(), {"Riff palette"}};
    case kTileLayer:
      return {TileLayerSample().Str(), {"Tile Layer palette"}};
    case kGif:
      return {GifSample().Str(), {"title.ext"}};
    case kPng:
      return {PngSample().Str(), {"title.ext"}};
    case kNesticle:
      return {NesticleSample().Str(), {"NESticle Sta palette"}};
    case kVgba:
      return {WordsAt(312536).FillTo(509144).Str(), {"VGBA Obj palette", "VGBA BG palette"}};
    case kNoGmb:
      return {NoGmbSample().Str(), {"No$gmb Sna palette"}};
    case kZsnes:
      return {WordsAt(52243).FillTo(274047).Str(), {"ZSnes palette"}};
    case kBoycott:
      return {Gzip(WordsAt(297421).Str()), {"Boycott Advance Obj palette", "Boycott Advance BG palette"}};
    case kCygne:
      return {WordsAt(66120).FillTo(135674).Str(), {"Cygne palette"}};
    case kVisualBoy:
      return {Gzip(WordsAt(33239).Str()), {"VisualBoyAdvance Obj palette", "VisualBoyAdvance BG palette"}};
    default:
      ADD_FAILURE() << "no kind " << filterIndex;
      return {};
  }
}

}  // namespace brolk::test
