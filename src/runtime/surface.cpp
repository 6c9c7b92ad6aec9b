// SPDX-License-Identifier: MIT
#include "runtime/surface.h"

#include <algorithm>
#include <cstring>

namespace brolk {
namespace {

constexpr int kOutside = -1;

// The source column of each target column from `first` up to `end`, counted from the left of the whole
// rectangle of `width` columns; kOutside where the source has none.
std::vector<int> SourcePlaces(int first, int end, int width, int sourceX, int sourceWidth, int sourceEnd) {
  std::vector<int> places(static_cast<std::size_t>(end - first));
  const std::int64_t start = static_cast<std::int64_t>(first) * sourceWidth;
  std::int64_t place = sourceX + start / width;
  std::int64_t rest = start % width;  // distance from the last source column in steps of 1 / width
  for (int& target : places) {
    target = place >= 0 && place < sourceEnd ? static_cast<int>(place) : kOutside;
    for (rest += sourceWidth; rest >= width; rest -= width) ++place;
  }
  return places;
}

void PickPixels(const std::uint32_t* source, const std::vector<int>& columns, bool hasGaps,
                std::uint32_t* target) {
  if (!hasGaps) {
    std::ranges::transform(columns, target, [source](int column) { return source[column]; });
    return;
  }
  for (const int column : columns) {
    if (column != kOutside) *target = source[column];
    ++target;
  }
}

}  // namespace

ColorValue PackRgb(std::int32_t red, std::int32_t green, std::int32_t blue) {
  return std::min(red, 255) + std::min(green, 255) * 256 + std::min(blue, 255) * 65536;
}

Surface::Surface(int width, int height)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), PixelOf(0)) {}

void Surface::Resize(int width, int height, ColorValue fill) {
  if (width == width_ && height == height_) return;
  Surface next(width, height);
  next.Fill(fill);
  const int sharedWidth = std::min(width_, next.width_);
  for (int y = 0; y < std::min(height_, next.height_); ++y) std::copy_n(Row(y), sharedWidth, next.Row(y));
  *this = std::move(next);
}

void Surface::Fill(ColorValue color) {
  std::fill(pixels_.begin(), pixels_.end(), PixelOf(color));
}

void Surface::SetPixel(int x, int y, ColorValue color) {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
  pixels_[Offset(x, y)] = PixelOf(color);
}

ColorValue Surface::GetPixel(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return -1;
  return static_cast<ColorValue>(pixels_[Offset(x, y)] & 0xFFFFFFU);
}

void Surface::StretchBlt(int x, int y, int width, int height, const Surface& source, int sourceX, int sourceY,
                         int sourceWidth, int sourceHeight) {
  if (width <= 0 || height <= 0 || sourceWidth <= 0 || sourceHeight <= 0) return;
  const int left = std::max(x, 0);
  const int right = std::min(x + width, width_);
  if (left >= right) return;
  const std::vector<int> columns =
      SourcePlaces(left - x, right - x, width, sourceX, sourceWidth, source.width_);
  const bool hasGaps = std::ranges::find(columns, kOutside) != columns.end();
  int paintedSourceRow = kOutside;
  int paintedRow = kOutside;
  for (int row = std::max(y, 0); row < std::min(y + height, height_); ++row) {
    const int fromY = sourceY + static_cast<int>(static_cast<std::int64_t>(row - y) * sourceHeight / height);
    if (fromY < 0 || fromY >= source.height_) continue;
    if (fromY == paintedSourceRow && !hasGaps) {
      std::copy(Row(paintedRow) + left, Row(paintedRow) + right, Row(row) + left);
      continue;
    }
    PickPixels(source.Row(fromY), columns, hasGaps, Row(row) + left);
    paintedSourceRow = fromY;
    paintedRow = row;
  }
}

void Surface::FillSpan(int left, int right, int y, std::uint32_t pixel) {
  if (y < 0 || y >= height_) return;
  const int from = std::max(left, 0);
  const int to = std::min(right, width_);
  if (from < to) std::fill(Row(y) + from, Row(y) + to, pixel);
}

void Surface::Rectangle(int left, int top, int right, int bottom, ColorValue pen,
                        std::optional<ColorValue> fill) {
  if (right <= left || bottom <= top) return;
  if (fill) {
    for (int y = std::max(top, 0); y < std::min(bottom, height_); ++y)
      FillSpan(left, right, y, PixelOf(*fill));
  }
  FillSpan(left, right, top, PixelOf(pen));
  FillSpan(left, right, bottom - 1, PixelOf(pen));
  Line(left, top, left, bottom, pen);
  Line(right - 1, top, right - 1, bottom, pen);
}

void Surface::Line(int fromX, int fromY, int toX, int toY, ColorValue pen) {
  if (fromY == toY) {
    const int left = toX >= fromX ? fromX : toX + 1;
    const int right = toX >= fromX ? toX : fromX + 1;
    FillSpan(left, right, fromY, PixelOf(pen));
    return;
  }
  if (fromX < 0 || fromX >= width_) return;
  const int top = toY >= fromY ? fromY : toY + 1;
  const int bottom = toY >= fromY ? toY : fromY + 1;
  for (int y = std::max(top, 0); y < std::min(bottom, height_); ++y) pixels_[Offset(fromX, y)] = PixelOf(pen);
}

void Surface::Box(int left, int top, int right, int bottom, ColorValue color) {
  for (int y = std::max(std::min(top, bottom), 0); y <= std::min(std::max(top, bottom), height_ - 1); ++y) {
    FillSpan(std::min(left, right), std::max(left, right) + 1, y, PixelOf(color));
  }
}

}  // namespace brolk
