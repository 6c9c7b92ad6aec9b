// SPDX-License-Identifier: MIT
#include "editor/windows/tile_control.h"

#include <gtest/gtest.h>

#include <QTest>

#include "browser/windows/browser.h"
#include "browser/windows/browser_control.h"
#include "editor/editor_fixture.h"
#include "palette/palette_model.h"
#include "runtime/fault.h"
#include "runtime/files.h"
#include "shell/windows/options.h"

namespace brolk::test {
namespace {

constexpr std::size_t kTileBytes = 64;
constexpr std::size_t kFileBytes = 32 * kTileBytes;

// A file of 32 tiles at 8 bits, tile t of colour t, slot 0 a copy of tile 5.
struct TileTool : EditorFixture {
  void SetUp() override {
    EditorFixture::SetUp();
    std::vector<std::uint8_t> bytes(kFileBytes);
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i / kTileBytes);
    path = Open("rom.gba", bytes, kGba8);
    AddTileToSlot(5 * 64, 0);
    Select(0);
  }

  // Selects a slot with the pointer.
  void Select(std::uint8_t slot) {
    editor().SetFocus();
    mouse.Click(At(ColumnOf(slot), LineOf(slot)));
    mouse.Move(At(ColumnOf(slot), LineOf(slot)));
  }

  void Type(const char* text) {
    tool().txtAddress.setFocus();
    tool().txtAddress.selectAll();
    QTest::keyClick(&tool().txtAddress, Qt::Key_Delete);
    QTest::keyClicks(&tool().txtAddress, QString::fromLatin1(text));
  }

  [[nodiscard]] std::string Box() { return tool().txtAddress.Text().toStdString(); }
  [[nodiscard]] std::string Hex() { return tool().lblHex.Text().toStdString(); }

  // The value of all bytes of the tile at an address, -1 when they differ.
  [[nodiscard]] int FileTile(std::size_t address) const {
    const std::vector<std::uint8_t> bytes = FileBytes(path);
    for (std::size_t i = 1; i < kTileBytes; ++i) {
      if (bytes.at(address + i) != bytes.at(address)) return -1;
    }
    return bytes.at(address);
  }

  std::string path;
};

// --- LoadTile and the address box

TEST_F(EditorFixture, TheTileToolShowsNaAfterTheStart) {
  EXPECT_EQ(tool().Caption(), "Tile Tool");
  EXPECT_EQ(tool().txtAddress.Text(), "n/a");
  EXPECT_EQ(tool().lblHex.Text(), "n/a");
  EXPECT_FALSE(tool().txtAddress.isEnabled());
  EXPECT_EQ(tool().LoadedSlot, 1);
  EXPECT_EQ(tool().LoadedAddress, -2);
}

TEST_F(EditorFixture, TheTileToolLoadsWithTheNegativeLimitInItsBox) {
  UnloadWindow<TileControl>();
  TileControl& fresh = The<TileControl>();
  EXPECT_EQ(fresh.txtAddress.Text(), "-32") << "no file: 0 minus the bytes of a tile";
  EXPECT_EQ(fresh.lblHex.Text(), "00000000h");
  fresh.LoadTile(1);
  EXPECT_EQ(fresh.txtAddress.Text(), "n/a");
}

TEST_F(TileTool, ShowsTheAddressInDecimalAndHexadecimal) {
  EXPECT_EQ(Box(), "320");
  EXPECT_EQ(Hex(), "00000140h");
  EXPECT_TRUE(tool().txtAddress.isEnabled());
  EXPECT_EQ(tool().LoadedSlot, 0);
  EXPECT_EQ(tool().LoadedAddress, 320);
}

TEST_F(TileTool, ShowsNaInADisabledBoxForNoSlotAndForNonCopiedOnes) {
  for (const std::int16_t slot : {std::int16_t{-1}, std::int16_t{9}}) {
    tool().LoadTile(0);
    tool().LoadTile(slot);
    EXPECT_EQ(Box(), "n/a");
    EXPECT_EQ(Hex(), "n/a");
    EXPECT_FALSE(tool().txtAddress.isEnabled());
    EXPECT_EQ(tool().LoadedSlot, slot);
    EXPECT_EQ(tool().LoadedAddress, -2);
  }
}

TEST_F(TileTool, ShowsNaInAnEnabledBoxForAnUnaddressedSlot) {
  SetSlot(9, -1, PlainTile(3));
  tool().LoadTile(9);
  EXPECT_EQ(Box(), "n/a");
  EXPECT_EQ(Hex(), "n/a");
  EXPECT_TRUE(tool().txtAddress.isEnabled());
  EXPECT_EQ(tool().LoadedAddress, -1);
  Type("17");
  EXPECT_EQ(Box(), "n/a") << "what is typed goes back at once";
}

TEST_F(TileTool, RefusesASlotNumberBeyondTheLast) {
  EXPECT_EQ(FaultOf([this] { tool().LoadTile(256); }), FaultKind::SubscriptOutOfRange);
}

TEST_F(TileTool, SnapsATypedNumberToTheLimitAtOnce) {
  Type("99999");
  EXPECT_EQ(Box(), "1984") << "2048 minus 64, with the last digits typed behind it and snapped again";
  EXPECT_EQ(Hex(), "000007C0h");
  EXPECT_EQ(EditSlots[0].Address, 320) << "the slot's address is not touched";
  EXPECT_EQ(tool().LoadedAddress, 320);
}

TEST_F(TileTool, ShowsZeroForAnEmptyBox) {
  Type("");
  EXPECT_EQ(Box(), "");
  EXPECT_EQ(Hex(), "00000000h");
}

TEST_F(TileTool, TakesTheDecimalDigitsBeforeHexadecimalOnes) {
  Type("12ff");
  EXPECT_EQ(Box(), "12ff");
  EXPECT_EQ(Hex(), "0000000Ch");
}

TEST_F(TileTool, TakesHexadecimalWithItsPrefix) {
  Type("&H1F");
  EXPECT_EQ(Box(), "&H1F");
  EXPECT_EQ(Hex(), "0000001Fh");
}

TEST_F(TileTool, LimitsTheSlotsOwnAddressInTheBox) {
  SetSlot(9, 2000, PlainTile(3));
  tool().LoadTile(9);
  EXPECT_EQ(Box(), "1984");
  EXPECT_EQ(tool().LoadedAddress, 2000);
}

TEST_F(TileTool, TakesTheLimitOfTheModeOfTheMoment) {
  The<BrowserControl>().cboMode.SetListIndex(13);
  ASSERT_EQ(GfxMode, kOneBit);
  Type("99999");
  EXPECT_EQ(Box(), "2040");
}

// --- Save

TEST_F(TileTool, SavesTheTileWhereItCameFrom) {
  EditSlots[0].Pixels = PlainTile(77);
  const auto boxes = WithAnswers({6}, [this] { ClickControl(tool().fbnSaveTile); });
  EXPECT_EQ(boxes[0].title, "Brolk Plus - Save?");
  EXPECT_EQ(FileTile(320), 77);
  EXPECT_EQ(FileTile(256), 4);
  EXPECT_EQ(FileTile(384), 6);
  EXPECT_EQ(PageBuffer[320], 77) << "the page is loaded again";
}

TEST_F(TileTool, SavesAtTheSlotsOwnAddressWhateverTheBoxSays) {
  EditSlots[0].Pixels = PlainTile(77);
  Type("640");
  WithAnswers({6}, [this] { ClickControl(tool().fbnSaveTile); });
  EXPECT_EQ(FileTile(320), 77);
  EXPECT_EQ(FileTile(640), 10);
}

TEST_F(TileTool, SavesAtTheAddressThatTheSlotHasNow) {
  // A swap gives the slot another address; the box and the reload keep the former one.
  AddTileToSlot(640, 1);
  mouse.Drag(At(0, 0), At(1, 0));
  mouse.Move(At(1, 0));
  ASSERT_EQ(EditSlots[0].Address, 640);
  EXPECT_EQ(Box(), "320");
  EditSlots[0].Pixels = PlainTile(77);
  WithAnswers({6}, [this] { ClickControl(tool().fbnSaveTile); });
  EXPECT_EQ(FileTile(640), 77);
  EXPECT_EQ(FileTile(320), 5);
  ClickControl(tool().fbnReloadTile);
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(5)) << "read from the remembered address";
}

TEST_F(TileTool, SavesNoTileThatEndsAtTheEndOfTheFile) {
  for (const std::int32_t address : {1984, 1985, 4000}) {
    EditSlots[0].Address = address;
    EditSlots[0].Pixels = PlainTile(77);
    WithAnswers({}, [this] { ClickControl(tool().fbnSaveTile); });
  }
  EXPECT_EQ(FileTile(1984), 31);
  EditSlots[0].Address = 1983;
  WithAnswers({6}, [this] { ClickControl(tool().fbnSaveTile); });
  EXPECT_EQ(FileBytes(path)[1983], 77);
}

TEST_F(TileTool, SavesNoSlotThatHasLostItsAddressAndReloadsThePage) {
  EditSlots[0].Address = -1;
  PageBuffer[0] = 99;
  WithAnswers({}, [this] { ClickControl(tool().fbnSaveTile); });
  EXPECT_EQ(PageBuffer[0], 0);
}

TEST_F(TileTool, ReloadsThePageAlsoWhenTheUserDoesNotAgree) {
  EditSlots[0].Pixels = PlainTile(77);
  PageBuffer[0] = 99;
  WithAnswers({7}, [this] { ClickControl(tool().fbnSaveTile); });
  EXPECT_EQ(FileTile(320), 5);
  EXPECT_EQ(PageBuffer[0], 0);
}

// --- Reload

TEST_F(TileTool, ReloadsTheTileFromItsRememberedAddress) {
  SetSlot(7, 320, PlainTile(50));
  EditSlots[0].Pixels = PlainTile(77);
  Type("640");
  ClickControl(tool().fbnReloadTile);
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(5));
  EXPECT_EQ(EditSlots[7].Pixels, PlainTile(50)) << "twins are not updated";
  ExpectFreshPicture();
}

TEST_F(TileTool, ReloadsInTheModeOfTheMoment) {
  The<BrowserControl>().cboMode.SetListIndex(8);
  ASSERT_EQ(GfxMode, kMegaDrive);
  ClickControl(tool().fbnReloadTile);
  EXPECT_EQ(EditSlots[0].Pixels[0], 0);
  EXPECT_EQ(EditSlots[0].Pixels[1], 5);
}

TEST_F(TileTool, ReloadsNothingWithoutAFile) {
  EditSlots[0].Pixels = PlainTile(77);
  WithAnswers({6}, [] { The<MainForm>().mnuClose.trigger(); });
  ClickControl(tool().fbnReloadTile);
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(77));
}

// --- Clear

TEST_F(TileTool, ClearsThisSlotAloneWithoutAQuestion) {
  AddTileToSlot(320, 1);
  WithAnswers({}, [this] { ClickControl(tool().fbnDeleteSprite); });
  EXPECT_EQ(EditSlots[0].Address, -2);
  EXPECT_EQ(EditSlots[0].Pixels, PlainTile(0));
  EXPECT_EQ(EditSlots[1].Address, 320);
  EXPECT_EQ(Box(), "n/a");
  EXPECT_FALSE(tool().txtAddress.isEnabled());
  EXPECT_EQ(FileTile(320), 5) << "the file is not touched";
  ExpectFrame(0, 0, SelectionColor);
  ExpectFreshPicture();
}

// --- The two copies

TEST_F(TileTool, CopiesTheTileOverTheOneSelectedInTheBrowser) {
  Mouse overBrowser(The<Browser>());
  The<Browser>().SetFocus();
  overBrowser.Click({3 * 24 + 2, 1 * 24 + 2});
  WithAnswers({6}, [this] { ClickControl(tool().fbnCopySelTile); });
  EXPECT_EQ(FileTile(11 * 64), 5);
  EXPECT_EQ(FileTile(12 * 64), 12);
  EXPECT_EQ(EditSlots[0].Address, 320) << "the slot keeps its own address";
  EXPECT_EQ(PageBuffer[11 * 64], 5);
}

TEST_F(TileTool, CopiesNothingWhenTheUserDoesNotAgree) {
  PageBuffer[0] = 99;
  for (const int answer : {7, 0}) WithAnswers({answer}, [this] { ClickControl(tool().fbnCopySelTile); });
  EXPECT_EQ(FileTile(0), 0);
  EXPECT_EQ(PageBuffer[0], 99) << "and does not load the page";
}

TEST_F(TileTool, CopiesTheTileToTheAddressInTheBox) {
  Type("1000");
  WithAnswers({6}, [this] { ClickControl(tool().fbnCopyToAddress); });
  EXPECT_EQ(FileTile(1000), 5);
  EXPECT_EQ(EditSlots[0].Address, 320);
  EXPECT_EQ(PageBuffer[1000], 5);
}

TEST_F(TileTool, LoadsThePageInEveryCaseAfterACopyToAnAddress) {
  PageBuffer[0] = 99;
  WithAnswers({7}, [this] { ClickControl(tool().fbnCopyToAddress); });
  EXPECT_EQ(FileTile(320), 5);
  EXPECT_EQ(PageBuffer[0], 0);
  tool().LoadTile(-1);
  PageBuffer[0] = 99;
  WithAnswers({}, [this] { ClickControl(tool().fbnCopyToAddress); });
  EXPECT_EQ(PageBuffer[0], 0) << "also after n/a";
}

TEST_F(TileTool, CopiesToTheLastPlaceOfTheFileWhichASaveLeavesOut) {
  Type("1984");
  WithAnswers({6}, [this] { ClickControl(tool().fbnCopyToAddress); });
  EXPECT_EQ(FileTile(1984), 5);
  EXPECT_EQ(FileBytes(path).size(), kFileBytes);
}

TEST_F(TileTool, CopiesToWhereTheFileStandsWhenTheAddressIsNegative) {
  for (const char* text : {"-5", "-99999999999"}) {
    Type(text);
    EXPECT_EQ(Hex(), "00000000h");
    ASSERT_EQ(_llseek(hFile, 128, kFromStart), 128);
    EditSlots[0].Pixels = PlainTile(88);
    The<Options>().fbnSaveWarning.SetChecked(false);
    ClickControl(tool().fbnCopyToAddress);
    EXPECT_EQ(FileTile(128), 88);
  }
}

TEST_F(TileTool, GrowsTheFileWithoutFollowingItsLength) {
  // The box was held to the limit of another mode.
  The<BrowserControl>().cboMode.SetListIndex(13);
  Type("2040");
  The<BrowserControl>().cboMode.SetListIndex(6);
  ASSERT_EQ(GfxMode, kGba8);
  WithAnswers({6}, [this] { ClickControl(tool().fbnCopyToAddress); });
  EXPECT_EQ(FileBytes(path).size(), 2040 + kTileBytes);
  EXPECT_EQ(FileLength, static_cast<std::int32_t>(kFileBytes));
}

// --- Moving pixels

TEST_F(TileTool, FlipsLeftToRightAndTopToBottom) {
  SetSlot(0, 320, CountingTile());
  ClickControl(tool().fbnFlipX);
  EXPECT_EQ(EditSlots[0].Pixels[0], 7);
  EXPECT_EQ(EditSlots[0].Pixels[56], 63);
  ExpectFreshPicture();
  ClickControl(tool().fbnFlipX);
  EXPECT_EQ(EditSlots[0].Pixels, CountingTile());
  ClickControl(tool().fbnFlipY);
  EXPECT_EQ(EditSlots[0].Pixels[0], 56);
  EXPECT_EQ(EditSlots[0].Pixels[7], 63);
  ExpectFreshPicture();
  ClickControl(tool().fbnFlipY);
  EXPECT_EQ(EditSlots[0].Pixels, CountingTile());
}

TEST_F(TileTool, TurnsCounterclockwise) {
  SetSlot(0, 320, CountingTile());
  ClickControl(tool().fbnRotate);
  EXPECT_EQ(EditSlots[0].Pixels[0], 7);
  EXPECT_EQ(EditSlots[0].Pixels[56], 0);
  ExpectFreshPicture();
  for (int turn = 1; turn < 4; ++turn) ClickControl(tool().fbnRotate);
  EXPECT_EQ(EditSlots[0].Pixels, CountingTile());
}

TEST_F(TileTool, SpreadsMovedPixelsToTwins) {
  for (FlatButton* button : {&tool().fbnFlipX, &tool().fbnFlipY, &tool().fbnRotate}) {
    SetSlot(0, 320, CountingTile());
    SetSlot(100, 320, CountingTile(64));
    SetSlot(101, 321, CountingTile(64));
    RedrawEditor();
    ClickControl(*button);
    EXPECT_EQ(EditSlots[100].Pixels, EditSlots[0].Pixels);
    EXPECT_EQ(EditSlots[101].Pixels, CountingTile(64));
    ExpectFreshPicture();
  }
}

TEST_F(TileTool, RedrawsTheWholeEditorForAFlipButNotForATurn) {
  panel().fbnEditorGrid.SetChecked(false);
  for (FlatButton* button : {&tool().fbnFlipX, &tool().fbnFlipY, &tool().fbnRotate}) {
    editor().Canvas().Fill(0x123456);
    ClickControl(*button);
    const bool redrawn = editor().Canvas().GetPixel(200, 200) != 0x123456;
    EXPECT_EQ(redrawn, button != &tool().fbnRotate);
    ExpectFrame(0, 0, SelectionColor);
    ExpectCellShows(0, 0, EditSlots[0]);
  }
}

TEST_F(TileTool, MovesThePixelsOfItsOwnSlotAndNotOfTheSelection) {
  SetSlot(0, 320, CountingTile());
  SetSlot(1, 640, CountingTile(100));
  EditSelColumn = 1;
  ClickControl(tool().fbnFlipX);
  EXPECT_EQ(EditSlots[0].Pixels[0], 7);
  EXPECT_EQ(EditSlots[1].Pixels, CountingTile(100));
}

TEST_F(TileTool, ChangesSlotsAndNotTheFile) {
  const std::vector<std::uint8_t> before = FileBytes(path);
  for (FlatButton* button : {&tool().fbnFlipX, &tool().fbnFlipY, &tool().fbnRotate}) ClickControl(*button);
  EXPECT_EQ(FileBytes(path), before);
}

// --- n/a

TEST_F(TileTool, DoesNothingForAnUnaddressedSlot) {
  const std::vector<std::uint8_t> before = FileBytes(path);
  SetSlot(9, -1, CountingTile());
  Select(9);
  PageBuffer[0] = 99;
  WithAnswers({}, [this] {
    for (FlatButton* button : {&tool().fbnSaveTile, &tool().fbnReloadTile, &tool().fbnDeleteSprite,
                               &tool().fbnCopySelTile, &tool().fbnFlipX, &tool().fbnFlipY, &tool().fbnRotate})
      ClickControl(*button);
  });
  EXPECT_EQ(EditSlots[9].Pixels, CountingTile());
  EXPECT_EQ(EditSlots[9].Address, -1);
  EXPECT_EQ(FileBytes(path), before);
  EXPECT_EQ(PageBuffer[0], 99) << "not even the page is loaded";
}

TEST_F(TileTool, WorksFromTheMenuWithMirrorAndFlipExchanged) {
  SetSlot(0, 320, CountingTile());
  The<MainForm>().mnuTileMirror.trigger();
  EXPECT_EQ(EditSlots[0].Pixels[0], 56) << "top to bottom";
  SetSlot(0, 320, CountingTile());
  The<MainForm>().mnuTileFlip.trigger();
  EXPECT_EQ(EditSlots[0].Pixels[0], 7) << "left to right";
  The<MainForm>().mnuTileClear.trigger();
  EXPECT_EQ(EditSlots[0].Address, -2);
}

TEST_F(TileTool, WorksFromTheMenuWhileItIsOffAndStaysOff) {
  ClickControl(The<MainForm>().fbnTile);
  ASSERT_FALSE(tool().Visible());
  SetSlot(0, 320, CountingTile());
  The<MainForm>().mnuTileRotate.trigger();
  EXPECT_EQ(EditSlots[0].Pixels[0], 7);
  EXPECT_FALSE(tool().Visible());
  EXPECT_FALSE(The<MainForm>().fbnTile.Checked());
}

// --- The two modes that cannot be saved

TEST_F(TileTool, WritesNothingInBitmapMode) {
  const std::vector<std::uint8_t> before = FileBytes(path);
  The<BrowserControl>().cboMode.SetListIndex(14);
  ASSERT_EQ(GfxMode, kBitmapMode);
  EditSlots[0].Pixels = PlainTile(77);
  WithAnswers({6, 6, 6}, [this] {
    ClickControl(tool().fbnSaveTile);
    ClickControl(tool().fbnCopySelTile);
    ClickControl(tool().fbnCopyToAddress);
  });
  EXPECT_EQ(FileBytes(path), before);
}

TEST_F(TileTool, IsASubscriptFaultInTheSpriteModeWithTheFileUnchanged) {
  const std::vector<std::uint8_t> before = FileBytes(path);
  The<BrowserControl>().cboMode.SetListIndex(10);
  ASSERT_EQ(GfxMode, kPcEngineSprite);
  EXPECT_EQ(FaultOf([this] { WithAnswers({6}, [this] { ClickControl(tool().fbnSaveTile); }); }),
            FaultKind::SubscriptOutOfRange);
  EXPECT_EQ(FileBytes(path), before);
}

}  // namespace
}  // namespace brolk::test
