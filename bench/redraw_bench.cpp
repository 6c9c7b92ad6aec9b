// SPDX-License-Identifier: MIT
// Redrawing the default page, 8 by 16 tiles at zoom 3, with grid and frame: our surfaces against the
// toolkit's own scaled picture and lines.
#include <benchmark/benchmark.h>

#include <QColor>
#include <QImage>
#include <QPainter>
#include <algorithm>

#include "browser/page_paint.h"
#include "page_bytes.h"
#include "palette/palette_model.h"
#include "tile/shared.h"

namespace brolk::bench {
namespace {

constexpr int kColumns = 8;
constexpr int kLines = 16;
constexpr int kZoom = 3;
constexpr int kWidthPx = kColumns * 8 * kZoom;
constexpr int kHeightPx = kLines * 8 * kZoom;

void SetDefaultPage() {
  MainRows = kColumns;
  MainLines = kLines;
  TileWidth = TileHeight = 8;
  MainZoom = kZoom;
  SelColumn = 3;
  SelLine = 5;
  const std::vector<std::uint8_t> pixels = PageBytes(kPageBufferLast + 1);
  std::ranges::copy(pixels, PageBuffer.All().begin());
  for (int index = 0; index < 256; ++index) Palette[index] = PackRgb(index, 255 - index, index / 2);
}

void RedrawWithSurfaces(benchmark::State& state) {
  SetDefaultPage();
  Surface page(kPageSurfacePx, kPageSurfacePx);
  Surface window(kWidthPx, kHeightPx);
  for (auto _ : state) {
    PaintPagePixels(page);
    BlitPagePixels(window, page);
    DrawPageGrid(window, kWidthPx * 15.0, kHeightPx * 15.0);
    DrawPageFrame(window);
    benchmark::DoNotOptimize(window.Data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(RedrawWithSurfaces);

void RedrawStepPaint(benchmark::State& state) {
  SetDefaultPage();
  Surface page(kPageSurfacePx, kPageSurfacePx);
  for (auto _ : state) {
    PaintPagePixels(page);
    benchmark::DoNotOptimize(page.Data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(RedrawStepPaint);

void RedrawStepBlit(benchmark::State& state) {
  SetDefaultPage();
  const Surface page(kPageSurfacePx, kPageSurfacePx);
  Surface window(kWidthPx, kHeightPx);
  for (auto _ : state) {
    BlitPagePixels(window, page);
    benchmark::DoNotOptimize(window.Data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(RedrawStepBlit);

void RedrawStepGridAndFrame(benchmark::State& state) {
  SetDefaultPage();
  Surface window(kWidthPx, kHeightPx);
  for (auto _ : state) {
    DrawPageGrid(window, kWidthPx * 15.0, kHeightPx * 15.0);
    DrawPageFrame(window);
    benchmark::DoNotOptimize(window.Data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(RedrawStepGridAndFrame);

// The toolkit's part: the decoded pixels into a picture of 256 by 256, that scaled without smoothing, then
// lines.
void PaintPicture(QImage& picture, const QRgb* colors) {
  const std::uint8_t* next = PageBuffer.All().data();
  for (int tile = 0; tile < kColumns * kLines; ++tile) {
    for (int y = 0; y < 8; ++y) {
      auto* row = reinterpret_cast<QRgb*>(picture.scanLine(tile / kColumns * 8 + y)) + tile % kColumns * 8;
      for (int x = 0; x < 8; ++x) row[x] = colors[*next++];
    }
  }
}

void DrawWithPainter(QImage& window, const QImage& picture) {
  QPainter painter(&window);
  painter.drawImage(QRect(0, 0, kWidthPx, kHeightPx), picture, QRect(0, 0, kColumns * 8, kLines * 8));
  painter.setPen(Qt::black);
  for (int column = 0; column < kColumns; ++column) painter.drawLine(column * 24, 0, column * 24, kHeightPx);
  for (int line = 0; line < kLines; ++line) painter.drawLine(0, line * 24, kWidthPx, line * 24);
  painter.setPen(Qt::white);
  painter.drawRect(SelColumn * 24, SelLine * 24, 24, 24);
}

void RedrawWithToolkit(benchmark::State& state) {
  SetDefaultPage();
  QImage picture(kPageSurfacePx, kPageSurfacePx, QImage::Format_RGB32);
  picture.fill(Qt::black);
  QImage window(kWidthPx, kHeightPx, QImage::Format_RGB32);
  std::vector<QRgb> colors;
  for (int index = 0; index < 256; ++index) colors.push_back(qRgb(index, 255 - index, index / 2));
  for (auto _ : state) {
    PaintPicture(picture, colors.data());
    DrawWithPainter(window, picture);
    benchmark::DoNotOptimize(window.bits());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(RedrawWithToolkit);

}  // namespace
}  // namespace brolk::bench
