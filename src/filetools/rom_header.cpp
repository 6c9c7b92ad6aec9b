// SPDX-License-Identifier: MIT
#include "filetools/rom_header.h"

#include "runtime/files.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr std::int32_t kTitleOffset = 308;
constexpr int kTitleBytes = 15;
constexpr std::int32_t kChecksumOffset = 334;
constexpr std::int16_t kAfterChecksum = 336;

// Reads single bytes through one variable for all of them: what is not delivered keeps the byte before.
class ByteSource {
 public:
  explicit ByteSource(std::int16_t handle) : handle_(handle) {}

  std::uint8_t Next() {
    _hread(handle_, std::span(&byte_, 1));
    return byte_;
  }

 private:
  std::int16_t handle_;
  std::uint8_t byte_ = 0;
};

// The sum and the progress of one repair.
class Repair {
 public:
  Repair(std::int16_t handle, std::int32_t lengthBytes, const RepairEvents& events)
      : source_(handle),
        events_(events),
        step_(RoundToLong(IntegerPart(DivideReals(lengthBytes, 100)))),
        mark_(step_) {}

  void DropByte() { source_.Next(); }

  // Adds the next byte. i is its offset; bracket opens the percentage, with or without a blank before it.
  void AddByte(std::int32_t i, const char* bracket) {
    const std::int32_t byte = source_.Next();
    runningSum_ = runningSum_ + byte >= 65536 ? byte - (65536 - runningSum_) : runningSum_ + byte;
    if (i != mark_) return;
    percent_ = WrapByte(percent_ + 1);
    mark_ = Wrap32(std::int64_t{mark_} + step_);
    events_.progress(std::string(kCalculating) + bracket + std::to_string(percent_) + "%)");
  }

  [[nodiscard]] std::int32_t RunningSum() const { return runningSum_; }

 private:
  ByteSource source_;
  const RepairEvents& events_;
  std::int32_t runningSum_ = 0;
  std::int32_t step_;
  std::int32_t mark_;  // the offset at which the percentage grows next; one at 334 or 335 is never met
  std::uint8_t percent_ = 0;
};

void WriteSumByte(std::int16_t handle, std::int32_t value, const RepairEvents& events) {
  const auto byte = static_cast<std::uint8_t>(value);
  if (_hwrite(handle, std::span(&byte, 1)) != 1) events.writeFailed();
}

}  // namespace

std::string SizeText(std::int32_t lengthBytes) {
  const double megabytes = lengthBytes / 1048576.0;
  return NumberText(IntegerPart(megabytes * 100) / 100) + " MB (" + NumberText(lengthBytes) + " bytes)";
}

RomHeader ReadRomHeader(std::int16_t handle) {
  ByteSource source(handle);
  RomHeader header{};
  _llseek(handle, kTitleOffset, kFromStart);
  for (int k = 0; k < kTitleBytes; ++k) header.title += static_cast<char>(source.Next());
  _llseek(handle, kChecksumOffset, kFromStart);
  header.checksum = source.Next() * 256;
  header.checksum += source.Next();
  return header;
}

std::int32_t RepairChecksum(std::int16_t handle, std::int32_t lengthBytes, const RepairEvents& events) {
  events.progress(kCalculating);
  _llseek(handle, 0, kFromStart);
  Repair repair(handle, lengthBytes, events);
  for (std::int32_t i = 0; i < kChecksumOffset; ++i) repair.AddByte(i, "(");
  repair.DropByte();
  repair.DropByte();
  const std::int16_t last = Wrap16(lengthBytes);
  for (std::int16_t i = kAfterChecksum; i <= last; i = Wrap16(i + 1)) repair.AddByte(i, " (");
  _llseek(handle, kChecksumOffset, kFromStart);
  WriteSumByte(handle, repair.RunningSum() / 256, events);
  WriteSumByte(handle, repair.RunningSum() % 256, events);
  return repair.RunningSum();
}

}  // namespace brolk
