// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Reads C source back as a reader of the text would: names and words of its arrays.
namespace brolk::test {

struct CArray {
  std::string name;
  std::vector<unsigned> words;
};

// The arrays of a text, in order. One that the end of the text cuts counts with the words that are there.
inline std::vector<CArray> ReadArrays(const std::string& text) {
  constexpr std::string_view start = "const unsigned int ";
  std::vector<CArray> arrays;
  for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1)) {
    const std::size_t name = at + start.size();
    const std::size_t body = text.find("[] = {", name);
    if (body == std::string::npos) break;
    CArray array{text.substr(name, body - name), {}};
    const std::size_t end = text.find('}', body);
    for (std::size_t word = text.find("0x", body); word < end; word = text.find("0x", word + 1)) {
      if (word == std::string::npos) break;
      array.words.push_back(static_cast<unsigned>(std::stoul(text.substr(word + 2, 4), nullptr, 16)));
    }
    arrays.push_back(array);
  }
  return arrays;
}

}  // namespace brolk::test
