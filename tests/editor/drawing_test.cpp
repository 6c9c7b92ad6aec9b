// SPDX-License-Identifier: MIT
#include "editor/drawing.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "editor/naive_editor.h"
#include "editor/rule_fixture.h"

namespace brolk::test {
namespace {

constexpr ColorValue kBefore = 0x010203;
constexpr ColorValue kEmpty = 0x800080;
constexpr ColorValue kGrid = 0x00FF00;
constexpr ColorValue kFrame = 0xFFFFFF;

Surface Client(const EditorView& view) {
  Surface client(view.scaleWidth, view.scaleHeight);
  client.Fill(kBefore);
  return client;
}

// Every pixel of the client area against a function of its place.
template <typename Expected>
void ExpectPicture(const Surface& client, Expected expected) {
  for (int y = 0; y < client.Height(); ++y) {
    for (int x = 0; x < client.Width(); ++x) {
      ASSERT_EQ(client.GetPixel(x, y), expected(x, y)) << "at " << x << ", " << y;
    }
  }
}

struct Drawing : RuleFixture {
  void SetUp() override {
    RuleFixture::SetUp();
    for (int index = 0; index < 64; ++index) filled.Pixels[index] = static_cast<std::uint8_t>(index + 16);
    filled.Address = 0;
    for (int index = 0; index < 64; ++index)
      filled.SlotSurface.SetPixel(index % 8, index / 8, Palette[index + 16]);
  }
  EditSlot filled;
};

TEST_F(Drawing, ScalesATileWithoutSmoothing) {
  for (const std::int16_t zoom : {std::int16_t{2}, std::int16_t{3}, std::int16_t{30}}) {
    const EditorView view{zoom, 0, 0, 600, 600};
    Surface client = Client(view);
    PaintCell(client, view, filled, 1, 1, kEmpty);
    const int side = zoom * 8;
    ExpectPicture(client, [&](int x, int y) {
      if (x < side || y < side || x >= 2 * side || y >= 2 * side) return kBefore;
      return Palette[(y - side) / zoom * 8 + (x - side) / zoom + 16];
    });
  }
}

TEST_F(Drawing, ShowsAnUnaddressedSlotsPicture) {
  const EditorView view{2, 0, 0, 40, 40};
  Surface client = Client(view);
  filled.Address = -1;
  PaintCell(client, view, filled, 0, 0, kEmpty);
  EXPECT_EQ(client.GetPixel(15, 15), Palette[79]);
  EXPECT_EQ(client.GetPixel(16, 15), kBefore);
}

TEST_F(Drawing, MakesAnEmptyCellOnePixelLargerToTheRightAndBelow) {
  const EditorView view{3, 0, 0, 80, 80};
  Surface client = Client(view);
  filled.Address = -2;
  PaintCell(client, view, filled, 1, 2, kEmpty);
  ExpectPicture(client,
                [](int x, int y) { return x >= 24 && x <= 48 && y >= 48 && y <= 72 ? kEmpty : kBefore; });
}

TEST_F(Drawing, PaintsNothingForASlotBelowTheMarks) {
  const EditorView view{3, 0, 0, 80, 80};
  Surface client = Client(view);
  for (const std::int32_t address : {-3, -30000}) {
    filled.Address = address;
    PaintCell(client, view, filled, 1, 1, kEmpty);
  }
  ExpectPicture(client, [](int, int) { return kBefore; });
}

TEST_F(Drawing, MovesCellsWithTheScrollBars) {
  const EditorView view{3, 10, 30, 60, 60};
  Surface client = Client(view);
  PaintCell(client, view, filled, 1, 1, kEmpty);
  ExpectPicture(client, [this](int x, int y) {
    const int inX = x + 10 - 24;
    const int inY = y + 30 - 24;
    if (inX < 0 || inY < 0 || inX >= 24 || inY >= 24) return kBefore;
    return Palette[inY / 3 * 8 + inX / 3 + 16];
  });
}

TEST_F(Drawing, PaintsTheOutsideInWindowCoordinates) {
  for (const std::int16_t scroll : {std::int16_t{0}, std::int16_t{50}}) {
    const EditorView view{2, scroll, scroll, 300, 280};
    Surface client = Client(view);
    PaintOutside(client, view);
    ExpectPicture(client, [](int x, int y) { return x >= 256 || y >= 256 ? kOutsideColor : kBefore; });
  }
  EXPECT_EQ(kOutsideColor, PackRgb(172, 172, 172));
}

TEST_F(Drawing, PaintsNoOutsideInAWindowSmallerThanTheGrid) {
  const EditorView view{3, 0, 0, 200, 384};
  Surface client = Client(view);
  PaintOutside(client, view);
  ExpectPicture(client, [](int, int) { return kBefore; });
}

TEST_F(Drawing, StartsGridLinesAtTheWindowsEdge) {
  // The grid lies at -100 and ends at 156: the lines run from 0 to 155 all the same.
  const EditorView view{2, 100, 100, 200, 200};
  Surface client = Client(view);
  PaintOverlay(client, view, {true, kGrid, kFrame, 0, 0});
  ExpectPicture(client, [](int x, int y) {
    const bool upright = (x + 100) % 16 == 0 && x <= 156 && y < 156;
    const bool across = (y + 100) % 16 == 0 && y <= 156 && x < 156;
    return upright || across ? kGrid : kBefore;
  });
}

TEST_F(Drawing, LeavesTheEndPointOfGridLinesOut) {
  const EditorView view{2, 0, 0, 300, 300};
  Surface client = Client(view);
  PaintOverlay(client, view, {true, kGrid, kFrame, 0, 0});
  EXPECT_EQ(client.GetPixel(256, 255), kGrid);
  EXPECT_EQ(client.GetPixel(255, 256), kGrid);
  EXPECT_EQ(client.GetPixel(256, 256), kBefore) << "both last lines end before it";
}

TEST_F(Drawing, FramesTheSelectionAloneWithoutGrid) {
  const EditorView view{3, 5, 7, 300, 300};
  Surface client = Client(view);
  PaintOverlay(client, view, {false, kGrid, kFrame, 2, 1});
  ExpectPicture(client, [](int x, int y) {
    const int left = 48 - 5, top = 24 - 7;
    const bool inside = x >= left && x <= left + 24 && y >= top && y <= top + 24;
    const bool edge = x == left || x == left + 24 || y == top || y == top + 24;
    return inside && edge ? kFrame : kBefore;
  });
}

TEST_F(Drawing, FramesTheSelectionOverTheGrid) {
  const EditorView view{3, 0, 0, 400, 400};
  Surface client = Client(view);
  PaintOverlay(client, view, {true, kGrid, kFrame, 15, 15});
  EXPECT_EQ(client.GetPixel(360, 360), kFrame);
  EXPECT_EQ(client.GetPixel(384, 384), kFrame);
  EXPECT_EQ(client.GetPixel(372, 372), kBefore) << "the frame is not filled";
  EXPECT_EQ(client.GetPixel(384, 359), kGrid);
}

TEST_F(Drawing, EqualsThePlainPictureOnRandomEditors) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  const auto below = [&random](int bound) {
    return static_cast<std::int16_t>(random() % static_cast<unsigned>(bound));
  };
  for (int round = 0; round < 8; ++round) {
    for (int slot = 0; slot < 256; ++slot) {
      EditSlots[slot].Address = below(5) - 3;
      for (std::uint8_t& pixel : EditSlots[slot].Pixels) pixel = static_cast<std::uint8_t>(random());
      RefreshSlotSurface(static_cast<std::uint8_t>(slot));
    }
    const auto zoom = static_cast<std::int16_t>(2 + below(4));
    const EditorView view{zoom, below(150), below(150), static_cast<std::int16_t>(120 + below(300)),
                          static_cast<std::int16_t>(120 + below(300))};
    const EditorOverlay overlay{below(2) == 1, kGrid, kFrame, below(16), below(16)};
    Surface client = Client(view);
    PaintWholeEditor(client, view, overlay, kEmpty);
    const NaiveEditor naive{view, overlay, kEmpty};
    ExpectPicture(client, [&naive](int x, int y) { return naive.PixelAt(x, y).value_or(kBefore); });
  }
}

}  // namespace
}  // namespace brolk::test
