// SPDX-License-Identifier: MIT
// make_sample PICTURES OUTPUT: writes the sample ROMs from the text pictures of one folder into another.
#include <exception>
#include <fstream>
#include <iostream>
#include <string>

#include "sampler.h"
#include "tile/modes.h"

namespace brolk::sample {
namespace {

// One file for each mode that an extension opens, so that its first page shows the cover at once.
struct SampleFile {
  const char* name;
  GraphicsMode mode;
};

constexpr SampleFile kFiles[] = {
    {"sampler.bin", kMegaDrive}, {"sampler.gba", kGba4},         {"sampler.gb", kGameboy},
    {"sampler.nes", kNes},       {"sampler.vb", kVirtualBoy},    {"sampler.pce", kPcEngineChar},
    {"sampler.sms", kGameGear},  {"sampler.ngp", kNeoGeoPocket}, {"sampler.smc", kSnes4},
};

void WriteAll(const std::string& pictures, const std::string& output) {
  const Picture cover = ReadCover(pictures);
  const DayColors colors = ReadDayColors(pictures);
  for (const SampleFile& file : kFiles) {
    const std::vector<std::uint8_t> rom = BuildSampler(cover, colors, file.mode);
    std::ofstream stream(output + "/" + file.name, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(rom.data()), static_cast<std::streamsize>(rom.size()));
    if (!stream.flush()) throw std::runtime_error(std::string("cannot write ") + file.name);
  }
}

}  // namespace
}  // namespace brolk::sample

int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) {
    std::cerr << "usage: make_sample PICTURES OUTPUT\n";
    return 2;
  }
  try {
    brolk::sample::WriteAll(arguments[1], arguments[2]);
  } catch (const std::exception& failure) {
    std::cerr << "make_sample: " << failure.what() << '\n';
    return 1;
  }
  return 0;
}
