// SPDX-License-Identifier: MIT
#include "picture.h"

#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace brolk::sample {
namespace {

constexpr std::uint8_t kThrough = 0xFF;  // the background stays
constexpr int kLetterSide = 8;

// The lines of a text file without remarks and empty lines.
std::vector<std::string> ReadLines(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty() && line.front() != ';') lines.push_back(line);
  }
  return lines;
}

std::uint8_t ColorOf(char digit) {
  if (digit == '.') return kThrough;
  if (digit >= '0' && digit <= '9') return static_cast<std::uint8_t>(digit - '0');
  if (digit >= 'A' && digit <= 'F') return static_cast<std::uint8_t>(digit - 'A' + 10);
  throw std::runtime_error(std::string("no colour: ") + digit);
}

Picture ReadPicture(const std::string& path) {
  Picture picture;
  for (const std::string& line : ReadLines(path)) {
    if (picture.height++ == 0) picture.width = static_cast<int>(line.size());
    if (static_cast<int>(line.size()) != picture.width) throw std::runtime_error("uneven rows in " + path);
    for (const char digit : line) picture.pixels.push_back(ColorOf(digit));
  }
  return picture;
}

using Letters = std::map<char, std::vector<std::string>>;

Letters ReadLetters(const std::string& path) {
  const std::vector<std::string> lines = ReadLines(path);
  Letters letters;
  for (std::size_t at = 0; at + kLetterSide < lines.size(); at += kLetterSide + 1) {
    const auto rows = lines.begin() + static_cast<std::ptrdiff_t>(at) + 1;
    letters[lines[at].at(0)] = {rows, rows + kLetterSide};
  }
  return letters;
}

class Cover final {
 public:
  explicit Cover(const std::string& folder)
      : folder_(folder), letters_(ReadLetters(folder + "/letters.txt")) {
    picture_.pixels.resize(std::size_t{kCoverWidth} * kCoverHeight);
  }

  void Draw(const std::string& command) {
    std::istringstream words(command);
    std::string kind;
    words >> kind;
    if (kind == "fill") {
      Fill(words);
    } else if (kind == "picture") {
      Place(words);
    } else if (kind == "text") {
      Write(words);
    } else {
      throw std::runtime_error("no command: " + command);
    }
  }

  [[nodiscard]] const Picture& Result() const { return picture_; }

 private:
  void Set(int x, int y, std::uint8_t color) {
    if (x < 0 || y < 0 || x >= kCoverWidth || y >= kCoverHeight || color == kThrough) return;
    const int at = y * kCoverWidth + x;
    picture_.pixels[static_cast<std::size_t>(at)] = color;
  }

  void Fill(std::istream& words) {
    char color = '0';
    int left = 0, top = 0, width = 0, height = 0;
    words >> color >> left >> top >> width >> height;
    for (int y = top; y < top + height; ++y) {
      for (int x = left; x < left + width; ++x) Set(x, y, ColorOf(color));
    }
  }

  void Place(std::istream& words) {
    std::string name;
    int left = 0, top = 0;
    words >> name >> left >> top;
    const Picture picture = ReadPicture(folder_ + "/" + name + ".txt");
    for (int y = 0; y < picture.height; ++y) {
      for (int x = 0; x < picture.width; ++x) Set(left + x, top + y, picture.At(x, y));
    }
  }

  void Write(std::istream& words) {
    char ink = '0';
    int left = 0, top = 0;
    std::string text;
    words >> ink >> left >> top >> text;
    for (const char character : text) {
      const std::vector<std::string>& rows = letters_.at(character);
      for (int y = 0; y < kLetterSide; ++y) {
        const std::string& row = rows[static_cast<std::size_t>(y)];
        for (int x = 0; x < kLetterSide; ++x) {
          if (row.at(static_cast<std::size_t>(x)) == '#') Set(left + x, top + y, ColorOf(ink));
        }
      }
      left += kLetterSide;
    }
  }

  std::string folder_;
  Letters letters_;
  Picture picture_{kCoverWidth, kCoverHeight, {}};
};

}  // namespace

Picture ReadCover(const std::string& folder) {
  Cover cover(folder);
  for (const std::string& command : ReadLines(folder + "/cover.txt")) cover.Draw(command);
  return cover.Result();
}

DayColors ReadDayColors(const std::string& folder) {
  const std::vector<std::string> lines = ReadLines(folder + "/daylight.txt");
  DayColors colors{};
  for (std::size_t index = 0; index < colors.size(); ++index) {
    std::istringstream words(lines.at(index));
    for (int& channel : colors[index]) {
      if (!(words >> channel)) throw std::runtime_error("no colour: " + lines[index]);
    }
  }
  return colors;
}

}  // namespace brolk::sample
