// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <regex>
#include <string>
#include <vector>

// Reads C source back as a reader of the text would: names and words of its arrays.
namespace brolk::test {

struct CArray {
  std::string name;
  std::vector<unsigned> words;
};

// The arrays of a text, in order.
inline std::vector<CArray> ReadArrays(const std::string& text) {
  static const std::regex start(R"(const unsigned int (\w*)\[\] = \{)");
  static const std::regex word(R"(0x([0-9A-F]{4}), )");
  std::vector<CArray> arrays;
  for (std::sregex_iterator at(text.begin(), text.end(), start), end; at != end; ++at) {
    const auto bodyStart = text.begin() + at->position() + at->length();
    const auto bodyEnd =
        text.begin() + static_cast<std::ptrdiff_t>(
                           std::min(text.find('}', static_cast<std::size_t>(at->position())), text.size()));
    CArray array{(*at)[1], {}};
    for (std::sregex_iterator value(bodyStart, bodyEnd, word); value != end; ++value)
      array.words.push_back(static_cast<unsigned>(std::stoul((*value)[1], nullptr, 16)));
    arrays.push_back(array);
  }
  return arrays;
}

}  // namespace brolk::test
