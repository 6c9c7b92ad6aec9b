// SPDX-License-Identifier: MIT
#include "importers/png.h"

#include <algorithm>
#include <optional>

#include "importers/png_chunks.h"
#include "runtime/fault.h"
#include "runtime/numbers.h"

namespace brolk {
namespace {

constexpr std::array<std::uint8_t, 8> kPngSignature = {137, 80, 78, 71, 13, 10, 26, 10};
constexpr std::int32_t kShortestImage = 7;  // method, flags, one byte of data, check value
constexpr int kMethodDeflate = 8;
constexpr int kLargestWindow = 112;

// The bit depths that go with a colour type, as a mask: depth d is bit d.
struct AllowedDepths {
  std::uint8_t colorType;
  std::uint32_t depths;
};
constexpr std::uint32_t Depths(std::initializer_list<int> depths) {
  std::uint32_t mask = 0;
  for (const int depth : depths) mask |= 1U << depth;
  return mask;
}
constexpr AllowedDepths kAllowedDepths[] = {
    {0, Depths({1, 2, 4, 8, 16})}, {2, Depths({8, 16})}, {3, Depths({1, 2, 4, 8})},
    {4, Depths({8, 16})},          {6, Depths({8, 16})},
};

bool IsAllowed(std::uint8_t colorType, std::uint8_t bitDepth) {
  return std::any_of(std::begin(kAllowedDepths), std::end(kAllowedDepths), [&](const AllowedDepths& row) {
    return row.colorType == colorType && bitDepth < 32 && (row.depths >> bitDepth & 1U) != 0;
  });
}

bool IsValid(const PngHeader& header) {
  return header.width >= 1 && header.height >= 1 && IsAllowed(header.colorType, header.bitDepth) &&
         header.compression == 0 && header.filter == 0 && header.interlace <= 1;
}

// The kinds met so far.
class SeenChunks final {
 public:
  [[nodiscard]] bool Has(ChunkKind kind) const { return seen_[static_cast<std::size_t>(kind)]; }
  [[nodiscard]] bool HasAny(std::initializer_list<ChunkKind> kinds) const {
    return std::any_of(kinds.begin(), kinds.end(), [&](ChunkKind kind) { return Has(kind); });
  }
  [[nodiscard]] bool IsEmpty() const {
    return std::none_of(seen_.begin(), seen_.end(), [](bool seen) { return seen; });
  }
  // A kind that is there already is the duplicate-key fault.
  void Add(ChunkKind kind) {
    if (Has(kind)) throw Fault(FaultKind::DuplicateKey);
    seen_[static_cast<std::size_t>(kind)] = true;
  }

 private:
  std::array<bool, kChunkKinds> seen_{};
};

// One read of one file, up to the state that is to be committed.
class PngRead final {
 public:
  explicit PngRead(PngChunkReader& chunks) : chunks_(chunks) { state_.gamma = -1; }

  PngResult Run();
  PngState TakeState() { return std::move(state_); }

 private:
  // The end of the read, or nothing to go on with the next chunk.
  using Verdict = std::optional<PngResult>;
  using Step = Verdict (PngRead::*)();

  Verdict TakeHeader();
  Verdict TakeEnd() { return chunks_.IsAtEnd() ? PngResult::Read : PngResult::NotValid; }
  Verdict TakeImage();
  Verdict TakeGamma();
  Verdict TakeSignificantBits();
  Verdict TakePalette();
  Verdict TakeBackground();
  Verdict Refuse() { return PngResult::NotValid; }
  Verdict PassOver() { return std::nullopt; }
  Verdict GiveUp() { return PngResult::Unsupported; }

  [[nodiscard]] PngBackground ParseBackground() const;
  [[nodiscard]] std::optional<std::int16_t> ScaledLevel(std::size_t index) const;
  [[nodiscard]] std::int32_t LargestLevel() const { return (1 << state_.header.bitDepth) - 1; }

  // One step for each ChunkKind, in order.
  static constexpr std::array<Step, kChunkKinds> kSteps = {&PngRead::TakeHeader,
                                                           &PngRead::TakeEnd,
                                                           &PngRead::TakeImage,
                                                           &PngRead::TakeGamma,
                                                           &PngRead::TakeSignificantBits,
                                                           &PngRead::TakePalette,
                                                           &PngRead::TakeBackground,
                                                           &PngRead::Refuse,
                                                           &PngRead::PassOver,
                                                           &PngRead::GiveUp};

  PngChunkReader& chunks_;
  PngChunk chunk_;
  SeenChunks seen_;
  PngState state_;
};

PngResult PngRead::Run() {
  if (chunks_.ReadSignature() != kPngSignature) return PngResult::NotValid;
  while (!chunks_.IsPastEnd()) {
    const ChunkKind kind = chunks_.ReadChunk(chunk_);
    if (kind != ChunkKind::Header && !seen_.Has(ChunkKind::Header)) return PngResult::NotValid;
    if (const Verdict verdict = (this->*kSteps[static_cast<std::size_t>(kind)])()) return *verdict;
    if (kind != ChunkKind::UnknownAncillary) seen_.Add(kind);
  }
  return PngResult::NotValid;
}

PngRead::Verdict PngRead::TakeHeader() {
  if (!seen_.IsEmpty()) return PngResult::NotValid;
  state_.header = {static_cast<std::int32_t>(chunk_.DataLong(1)),
                   static_cast<std::int32_t>(chunk_.DataLong(5)),
                   chunk_.DataByte(9),
                   chunk_.DataByte(10),
                   chunk_.DataByte(11),
                   chunk_.DataByte(12),
                   chunk_.DataByte(13)};
  if (!IsValid(state_.header)) return PngResult::NotValid;
  return std::nullopt;
}

// Has no test of its own against a second image chunk, so that one ends at the duplicate key. That is meant.
PngRead::Verdict PngRead::TakeImage() {
  if (chunk_.Length < kShortestImage) throw Fault(FaultKind::SubscriptOutOfRange);
  const int method = chunk_.DataByte(1);
  if ((method & 0x0F) != kMethodDeflate || (method & 0xF0) > kLargestWindow) return PngResult::NotValid;
  return std::nullopt;
}

PngRead::Verdict PngRead::TakeGamma() {
  if (seen_.HasAny({ChunkKind::Gamma, ChunkKind::Palette, ChunkKind::Image})) return PngResult::NotValid;
  state_.gamma = static_cast<float>(chunk_.DataLong(1) / 100000.0);
  return std::nullopt;
}

PngRead::Verdict PngRead::TakeSignificantBits() {
  if (seen_.HasAny({ChunkKind::SignificantBits, ChunkKind::Palette, ChunkKind::Image})) {
    return PngResult::NotValid;
  }
  return std::nullopt;
}

PngRead::Verdict PngRead::TakePalette() {
  if (seen_.HasAny({ChunkKind::Palette, ChunkKind::Image})) return PngResult::NotValid;
  const std::int32_t count = chunk_.Length / 3;
  const std::uint8_t type = state_.header.colorType;
  if (count > LargestLevel() + 1 || (type != 3 && type != 2 && type != 6)) return PngResult::NotValid;
  // A chunk that the file cuts ends the read in any case: nothing is allocated for it.
  if (chunks_.IsPastEnd()) return PngResult::NotValid;
  state_.palette.resize(static_cast<std::size_t>(count));
  for (std::size_t entry = 0; entry < state_.palette.size(); ++entry) {
    state_.palette[entry] = {.blue = chunk_.DataByte(3 * entry + 3),
                             .green = chunk_.DataByte(3 * entry + 2),
                             .red = chunk_.DataByte(3 * entry + 1)};
  }
  return std::nullopt;
}

PngRead::Verdict PngRead::TakeBackground() {
  if (seen_.Has(ChunkKind::Background)) return PngResult::NotValid;
  state_.background = ParseBackground();
  if (state_.background.index() == 0) return PngResult::NotValid;
  return std::nullopt;
}

// A level of the picture's depth at a place of the data, scaled to 0..255; none when it exceeds the depth.
std::optional<std::int16_t> PngRead::ScaledLevel(std::size_t index) const {
  const std::int32_t level = chunk_.DataWord(index);
  if (level > LargestLevel()) return std::nullopt;
  return RoundToInteger(DivideReals(level, LargestLevel()) * 255);
}

// Empty when the chunk does not fit the picture.
PngBackground PngRead::ParseBackground() const {
  const std::uint8_t type = state_.header.colorType;
  if (type == 3 && chunk_.Length == 1) {
    const std::uint8_t entry = chunk_.DataByte(1);
    if (entry < state_.palette.size()) return entry;
  } else if ((type == 0 || type == 4) && chunk_.Length == 2) {
    if (const auto grey = ScaledLevel(1)) return *grey;
  } else if ((type == 2 || type == 6) && chunk_.Length == 6) {
    const auto red = ScaledLevel(1);
    const auto green = ScaledLevel(3);
    const auto blue = ScaledLevel(5);
    if (red && green && blue) return PackRgb(*red, *green, *blue);
  }
  return {};
}

}  // namespace

ColorValue cPng::BackClrRgb() const {
  if (const auto* entry = std::get_if<std::uint8_t>(&state_.background)) return ColorTable(*entry);
  if (const auto* grey = std::get_if<std::int16_t>(&state_.background)) return PackRgb(*grey, *grey, *grey);
  if (const auto* color = std::get_if<std::int32_t>(&state_.background)) return *color;
  return 0;
}

ColorValue cPng::ColorTable(std::int16_t index) const {
  if (index < 1 || index > ClrTableSize()) return 0;
  const PngColor& color = state_.palette[static_cast<std::size_t>(index) - 1];
  return PackRgb(color.red, color.green, color.blue);
}

PngResult cPng::ReadPngFile(const FileSource& file) {
  PngChunkReader chunks(file);
  if (!chunks.IsOpen()) return PngResult::NotOpened;
  PngRead read(chunks);
  const PngResult result = read.Run();
  if (result == PngResult::Read) state_ = read.TakeState();
  return result;
}

PngResult cPng::ReadPngFile(std::string_view fileName) {
  return ReadPngFile(FileSource::AtPath(std::string(fileName)));
}

}  // namespace brolk
