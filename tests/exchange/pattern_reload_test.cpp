// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "editor/slots.h"
#include "exchange/address_patterns.h"
#include "palette/palette_model.h"
#include "runtime/files.h"
#include "support/rule_files.h"
#include "tile/modes.h"
#include "tile/shared.h"

namespace brolk {
namespace {

class PatternReload : public testing::Test {
 protected:
  PatternReload() {
    ClearAllSlots();
    FillModes();
    GfxMode = kGba8;
    std::string rom(256, '\0');
    for (std::size_t i = 0; i < rom.size(); ++i) rom[i] = static_cast<char>(i);
    hFile = OpenFile(test::WriteRuleFile("pattern.rom", rom), kOpenRead);
  }
  ~PatternReload() override { _lclose(hFile); }
};

TEST_F(PatternReload, ReadsAddressedTilesAndEmptiesTheOthers) {
  for (EditSlot& slot : EditSlots) slot.Pixels.fill(9);
  EditSlots[5].Address = 64;
  EditSlots[6].Address = kUnaddressed;
  Palette[64] = 0x123456;
  ReloadSlotsByAddress();
  for (int pixel = 0; pixel <= 63; ++pixel) {
    EXPECT_EQ(EditSlots[5].Pixels[pixel], 64 + pixel);
    EXPECT_EQ(EditSlots[6].Pixels[pixel], 0);
    EXPECT_EQ(EditSlots[200].Pixels[pixel], 0);
  }
  EXPECT_EQ(EditSlots[5].SlotSurface.GetPixel(0, 0), 0x123456);
  EXPECT_EQ(EditSlots[6].Address, kUnaddressed);
}

TEST_F(PatternReload, RunsThroughTheSharedPageBuffer) {
  EditSlots[255].Address = 128;
  ReloadSlotsByAddress();
  EXPECT_EQ(PageBuffer[0], 128);
  EXPECT_EQ(PageBuffer[63], 191);
}

TEST_F(PatternReload, AddressPastTheFileGivesWhatTheDecoderGives) {
  EditSlots[0].Address = 250;  // six bytes are left, the last one then counts on
  ReloadSlotsByAddress();
  EXPECT_EQ(EditSlots[0].Pixels[0], 250);
  EXPECT_EQ(EditSlots[0].Pixels[5], 255);
  EXPECT_EQ(EditSlots[0].Pixels[6], 255);
  EXPECT_EQ(EditSlots[0].Pixels[63], 255);
}

}  // namespace
}  // namespace brolk
