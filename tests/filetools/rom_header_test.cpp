// SPDX-License-Identifier: MIT
#include "filetools/rom_header.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/files.h"
#include "support/rule_files.h"

namespace brolk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SizeText, ShowsMegabytesCutToTwoDecimals) {
  EXPECT_EQ(SizeText(1572864), "1.5 MB (1572864 bytes)");
  EXPECT_EQ(SizeText(1048576), "1 MB (1048576 bytes)");
  EXPECT_EQ(SizeText(524288), "0.5 MB (524288 bytes)");
  EXPECT_EQ(SizeText(32768), "0.03 MB (32768 bytes)");
  EXPECT_EQ(SizeText(1048575), "0.99 MB (1048575 bytes)");
  EXPECT_EQ(SizeText(0x7FFFFFFF), "2047.99 MB (2147483647 bytes)");
}

TEST(SizeText, BelowAHundredthOfAMegabyteIsZero) {
  EXPECT_EQ(SizeText(0), "0 MB (0 bytes)");
  EXPECT_EQ(SizeText(10485), "0 MB (10485 bytes)");
  EXPECT_EQ(SizeText(10486), "0.01 MB (10486 bytes)");
}

TEST(SizeText, NegativeLengthsRoundDown) {
  EXPECT_EQ(SizeText(-1), "-0.01 MB (-1 bytes)");
  EXPECT_EQ(SizeText(INT32_MIN), "-2048 MB (-2147483648 bytes)");
}

// A file in which byte i is i mod 251, with its open handle.
class RomFile {
 public:
  explicit RomFile(std::size_t length) : RomFile(Counting(length)) {}
  explicit RomFile(const std::string& bytes)
      : path_(test::WriteRuleFile("repair.gb", bytes)), handle_(OpenFile(path_, kOpenReadWrite)) {}
  ~RomFile() { _lclose(handle_); }

  static std::string Counting(std::size_t length) {
    std::string bytes(length, '\0');
    for (std::size_t i = 0; i < length; ++i) bytes[i] = static_cast<char>(i % 251);
    return bytes;
  }

  [[nodiscard]] std::int16_t Handle() const { return handle_; }
  [[nodiscard]] std::string Read() const { return test::ReadRuleFile(path_); }

 private:
  std::string path_;
  std::int16_t handle_;
};

TEST(RomHeader, ReadsTitleAndChecksum) {
  std::string bytes(0x150, '\0');
  bytes.replace(308, 15, "FIFTEEN LETTERS");
  bytes[323] = 'X';  // behind the title
  bytes[334] = '\x12';
  bytes[335] = '\xFE';
  const RomFile rom(bytes);
  const RomHeader header = ReadRomHeader(rom.Handle());
  EXPECT_EQ(header.title, "FIFTEEN LETTERS");
  EXPECT_EQ(header.checksum, 0x12FE);
}

TEST(RomHeader, ZeroBytesStayInTheTitle) {
  std::string bytes(400, '\0');
  bytes.replace(308, 3, "ABC");
  EXPECT_EQ(ReadRomHeader(RomFile(bytes).Handle()).title, "ABC" + std::string(12, '\0'));
}

TEST(RomHeader, ChecksumIsNeverNegative) {
  EXPECT_EQ(ReadRomHeader(RomFile(std::string(336, '\xFF')).Handle()).checksum, 65535);
}

TEST(RomHeader, BytesBeyondTheEndRepeatTheLastOne) {
  EXPECT_EQ(ReadRomHeader(RomFile(std::string(310, 'a') + "bc").Handle()).title,
            "aabc" + std::string(11, 'c'));
  const RomHeader at335 = ReadRomHeader(RomFile(std::string(334, 'a') + "\x12").Handle());
  EXPECT_EQ(at335.checksum, 0x1212) << "byte 334 twice";
  const RomHeader at334 = ReadRomHeader(RomFile(std::string(334, 'a')).Handle());
  EXPECT_EQ(at334.checksum, 'a' * 257) << "the last byte of the title";
}

TEST(RomHeader, EmptyFileGivesZeros) {
  const RomHeader header = ReadRomHeader(RomFile(std::string()).Handle());
  EXPECT_EQ(header.title, std::string(15, '\0'));
  EXPECT_EQ(header.checksum, 0);
}

// What one repair told and did.
struct RepairRun {
  std::vector<std::string> texts;
  int failures = 0;
  std::int32_t sum = 0;
};

RepairRun RunRepair(std::int16_t handle, std::int32_t length) {
  RepairRun run;
  run.sum = RepairChecksum(
      handle, length, {[&](const std::string& text) { run.texts.push_back(text); }, [&] { ++run.failures; }});
  return run;
}

// The plain sum of the bytes from `first` to before `end`, in 16 bits.
std::int32_t PlainSum(const std::string& bytes, std::size_t first, std::size_t end) {
  std::int32_t sum = 0;
  for (std::size_t i = first; i < end; ++i) sum = (sum + static_cast<std::uint8_t>(bytes[i])) % 65536;
  return sum;
}

std::int32_t StoredSum(const std::string& bytes) {
  return static_cast<std::uint8_t>(bytes[334]) * 256 + static_cast<std::uint8_t>(bytes[335]);
}

TEST(RepairChecksum, MultiplesOf32KibSumTheFirst334BytesAlone) {
  for (const std::size_t length : {std::size_t{32768}, std::size_t{65536}, std::size_t{1048576}}) {
    const RomFile rom(length);
    const RepairRun run = RunRepair(rom.Handle(), static_cast<std::int32_t>(length));
    const std::string before = RomFile::Counting(length);
    const std::string after = rom.Read();
    EXPECT_EQ(StoredSum(after), PlainSum(before, 0, 334)) << length;
    EXPECT_EQ(run.sum, StoredSum(after));
    EXPECT_EQ(after.substr(0, 334), before.substr(0, 334));
    EXPECT_EQ(after.substr(336), before.substr(336));
    EXPECT_EQ(run.failures, 0);
  }
}

TEST(RepairChecksum, ShortFilesCountTheirLastByteTwice) {
  for (const std::size_t length : {336U, 337U, 1000U, 32766U}) {
    const RomFile rom(length);
    const std::string bytes = RomFile::Counting(length);
    const std::uint8_t last = static_cast<std::uint8_t>(bytes.back());
    // With 336 bytes no byte stands behind the checksum: the second of its own bytes is the last one read.
    RunRepair(rom.Handle(), static_cast<std::int32_t>(length));
    EXPECT_EQ(StoredSum(rom.Read()), (PlainSum(bytes, 0, 334) + PlainSum(bytes, 336, length) + last) % 65536)
        << length;
  }
}

TEST(RepairChecksum, LowSixteenBitsOfTheLengthBoundTheSecondPass) {
  // 65536 + 1000: bytes 336 to 1000, all of them there.
  const std::size_t length = 66536;
  const RomFile rom(length);
  RunRepair(rom.Handle(), static_cast<std::int32_t>(length));
  const std::string bytes = RomFile::Counting(length);
  EXPECT_EQ(StoredSum(rom.Read()), (PlainSum(bytes, 0, 334) + PlainSum(bytes, 336, 1001)) % 65536);
}

TEST(RepairChecksum, LengthsBelow336InTheLowBitsAddNothing) {
  const std::size_t length = 65536 + 335;
  const RomFile rom(length);
  RunRepair(rom.Handle(), static_cast<std::int32_t>(length));
  EXPECT_EQ(StoredSum(rom.Read()), PlainSum(RomFile::Counting(length), 0, 334));
}

TEST(RepairChecksum, SumWrapsAt65536) {
  const RomFile rom(std::string(1000, '\xFF'));
  RunRepair(rom.Handle(), 1000);
  EXPECT_EQ(StoredSum(rom.Read()), (334 + 664 + 1) * 255 % 65536);
}

TEST(RepairChecksum, SmallFilesRepeatTheirLastByteAndGrow) {
  const RomFile rom(std::string("\x01\x02\x03"));
  const RepairRun run = RunRepair(rom.Handle(), 3);
  EXPECT_EQ(run.sum, 1 + 2 + 332 * 3);
  const std::string after = rom.Read();
  EXPECT_EQ(after.size(), 336U);
  EXPECT_EQ(after.substr(0, 334), "\x01\x02\x03" + std::string(331, '\0'));
  EXPECT_EQ(StoredSum(after), run.sum);
}

TEST(RepairChecksum, EmptyFileSumsZeros) {
  const RomFile rom(std::string{});
  EXPECT_EQ(RunRepair(rom.Handle(), 0).sum, 0);
  EXPECT_EQ(rom.Read(), std::string(336, '\0'));
}

TEST(RepairChecksum, TellsEachPercent) {
  const RomFile rom(1000);
  const RepairRun run = RunRepair(rom.Handle(), 1000);
  ASSERT_EQ(run.texts.size(), 101U);
  EXPECT_EQ(run.texts[0], "Calculating, please wait...");
  EXPECT_EQ(run.texts[1], "Calculating, please wait...(1%)") << "at 10";
  EXPECT_EQ(run.texts[33], "Calculating, please wait...(33%)") << "at 330";
  EXPECT_EQ(run.texts[34], "Calculating, please wait... (34%)") << "at 340, with a blank from here on";
  EXPECT_EQ(run.texts[100], "Calculating, please wait... (100%)") << "the bound belongs to the loop";
}

TEST(RepairChecksum, FilesUnder100BytesTellOnePercentOnce) {
  for (const std::size_t length : {0U, 1U, 99U}) {
    const RomFile rom(length);
    EXPECT_THAT(RunRepair(rom.Handle(), static_cast<std::int32_t>(length)).texts,
                ElementsAre("Calculating, please wait...", "Calculating, please wait...(1%)"));
  }
}

TEST(RepairChecksum, MarkAt334Or335IsNeverMet) {
  for (const std::int32_t length : {33400, 33599}) {  // steps 334 and 335, low bits negative or not
    const RomFile rom(static_cast<std::size_t>(length));
    EXPECT_THAT(RunRepair(rom.Handle(), length).texts, ElementsAre("Calculating, please wait...")) << length;
  }
  const RomFile rom(16700);  // step 167: marks at 167 and 334
  EXPECT_THAT(RunRepair(rom.Handle(), 16700).texts,
              ElementsAre("Calculating, please wait...", "Calculating, please wait...(1%)"));
}

TEST(RepairChecksum, LengthIsTheOneGiven) {
  // A file that grew after it was opened: the stated length counts, the reads find the new bytes.
  const RomFile rom(2000);
  RunRepair(rom.Handle(), 1000);
  const std::string bytes = RomFile::Counting(2000);
  EXPECT_EQ(StoredSum(rom.Read()), (PlainSum(bytes, 0, 334) + PlainSum(bytes, 336, 1001)) % 65536);
}

TEST(RepairChecksum, NegativeLengthsStepBackwards) {
  // -3 / 100 has the integer part -1: the mark at -1 is never met.
  const RomFile rom(400);
  EXPECT_THAT(RunRepair(rom.Handle(), -3).texts, ElementsAre("Calculating, please wait..."));
  EXPECT_EQ(StoredSum(rom.Read()), PlainSum(RomFile::Counting(400), 0, 334));
}

TEST(RepairChecksum, EachFailedWriteIsTold) {
  EXPECT_EQ(RunRepair(-1, 0).failures, 2) << "no file is open";
  const std::string path = test::WriteRuleFile("readonly.gb", RomFile::Counting(400));
  const std::int16_t handle = OpenFile(path, kOpenRead);
  EXPECT_EQ(RunRepair(handle, 400).failures, 2);
  _lclose(handle);
  EXPECT_EQ(test::ReadRuleFile(path), RomFile::Counting(400));
}

TEST(RepairChecksum, OneFailedWriteIsToldOnceAndTheRunGoesOn) {
  const RomFile rom(400);
  FailFileCallsAfter(334 + 2 + (400 - 336 + 1) + 1);  // all reads and the first write
  const RepairRun run = RunRepair(rom.Handle(), 400);
  FailFileCallsAfter(-1);
  EXPECT_EQ(run.failures, 1);
  const std::string after = rom.Read();
  EXPECT_EQ(static_cast<std::uint8_t>(after[334]), run.sum / 256);
  EXPECT_EQ(static_cast<std::uint8_t>(after[335]), 335 % 251) << "untouched";
}

TEST(RepairChecksum, UnsteadyReadsKeepTheByteBefore) {
  const RomFile rom(std::string(400, '\x01'));
  FailFileCallsAfter(10);
  const RepairRun run = RunRepair(rom.Handle(), 400);
  FailFileCallsAfter(-1);
  EXPECT_EQ(run.sum, 334 + 65) << "ten bytes read, the last one stands in for all others";
}

}  // namespace
}  // namespace brolk
