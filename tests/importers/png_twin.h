// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "runtime/fault.h"

namespace brolk::test {

// What a read of a PNG file ends in, told by a reader that is slow, plain and obviously right.
struct PngTwin {
  int code = 2;                    // 0, 2 or 3, unless there is a fault
  std::optional<FaultKind> fault;  // the read ended the program
  // After code 0:
  std::int64_t width = 0;
  std::int64_t height = 0;
  int bitDepth = 0;
  int colorType = 0;
  int interlace = 0;
  std::vector<std::int32_t> palette;       // colour values
  std::optional<std::int32_t> background;  // an index, a grey level or a colour value
  double gamma = -1;
};

[[nodiscard]] PngTwin ReadPngNaively(const std::string& file);

}  // namespace brolk::test
