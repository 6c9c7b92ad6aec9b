// SPDX-License-Identifier: MIT
// One program for each kind of palette file; BROLK_FUZZ_KIND is its filter index.
#include <zlib.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "importers/palette_kinds.h"
#include "palette/palette_model.h"
#include "runtime/fault.h"

using namespace brolk;

namespace {

constexpr const PaletteKind& kKind = kPaletteKinds[BROLK_FUZZ_KIND - 1];
constexpr bool kIsText = kKind.load == LoadTextPalette;
constexpr bool kIsPacked = kKind.load == LoadPackedState;
// The kinds with faults of their own; a fault of any other kind ends the run.
constexpr bool kMayFault = kIsText || kKind.load == LoadPngPicture;

using Input = std::string;

// Input alone never has the right size and signature: give it them, and lay it where the colours are.
Input Dressed(const Input& input) {
  Input file(kKind.signature);
  file.resize(static_cast<std::size_t>(std::max<std::int64_t>(kKind.sizeBytes + 1, kKind.colorOffset)));
  if (kKind.sizeTest == SizeTest::Exactly) file.resize(static_cast<std::size_t>(kKind.sizeBytes));
  const std::size_t at = std::max(static_cast<std::size_t>(kKind.colorOffset), kKind.signature.size());
  if (kKind.sizeTest != SizeTest::Exactly) return file.replace(std::min(at, file.size()), Input::npos, input);
  return file.replace(at, std::min(input.size(), file.size() - at), input.substr(0, file.size() - at));
}

// A text file whose last colour line and what follows it is the input.
Input AsText(const Input& input) {
  Input file = std::string(kTextPaletteHeader) + "\n1\n\nname\n";
  for (int line = 0; line < 255; ++line) file += "1 2 3\n";
  return file + input;
}

std::string WritePacked(const Input& input, bool pack) {
  static const std::string path =
      (std::filesystem::temp_directory_path() / ("fuzz-" + std::to_string(std::random_device{}()))).string();
  gzFile file = gzopen(path.c_str(), pack ? "wb1" : "wbT");
  gzwrite(file, input.data(), static_cast<unsigned>(input.size()));
  gzclose(file);
  return path;
}

void Load(const FileSource& file, bool answer) {
  try {
    static_cast<void>(LoadPaletteFile(
        BROLK_FUZZ_KIND,
        {.file = file, .fileTitle = "t", .answerYes = [answer](const Notice&) { return answer; }}));
  } catch (const Fault&) {
    if (!kMayFault) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FillPow2();
  SetDefaultPalette();
  return 0;
}

// The first byte chooses the number of sets in the list, the answer and whether the input is dressed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const unsigned choice = size == 0 ? 0U : data[0];
  Input input(data + std::min<std::size_t>(size, 1), data + size);
  SetCount = static_cast<std::uint8_t>((choice >> 2 & 1U) != 0 ? 252 + (choice >> 3 & 3U) : choice >> 3 & 3U);
  const bool dressed = (choice & 1U) != 0;
  const bool answer = (choice & 2U) != 0;
  if (dressed && !kIsPacked) input = kIsText ? AsText(input) : Dressed(input);
  if (kIsPacked) {
    if (dressed) input = Dressed(input);
    Load(FileSource::AtPath(WritePacked(input, answer)), answer);
    return 0;
  }
  // A copy of its own size: one byte too far is seen.
  const std::vector<std::uint8_t> bytes(input.begin(), input.end());
  Load(FileSource::InMemory(bytes), answer);
  return 0;
}
