// SPDX-License-Identifier: MIT
#include "filetools/windows/file_info.h"

#include "filetools/rom_header.h"
#include "runtime/ansi_text.h"
#include "runtime/files.h"
#include "runtime/numbers.h"
#include "shell/windows/msg_box.h"
#include "tile/shared.h"

namespace brolk {
namespace {

constexpr double kClientWidth = 4800;
constexpr double kClientHeight = 4485;
constexpr double kImageTop = 2250;
constexpr int kImagePx = 32;

}  // namespace

FileInfo::FileInfo()
    : Form({"FileInfo", "File Info", FormKind::Free, FormBorder::Fixed, kClientWidth, kClientHeight}) {
  LayOut();
  Dress();
  PlaceAttributeImages();
  fbnDoChecksum.Click = [this] { fbnDoChecksum_Click(); };
  fbnClose.Click = [this] { Hide(); };
}

void FileInfo::LayOut() {
  const struct {
    QWidget& control;
    double left, top, width, height;
  } rows[] = {
      {lblFile, 120, 75, 4560, 255},              //
      {lblName, 120, 360, 4560, 660},             //
      {lblLenghtInfo, 120, 1080, 4560, 255},      //
      {lblLength, 120, 1365, 4560, 255},          //
      {lblAttributesInfo, 120, 1710, 4560, 255},  //
      {lblAttributes, 120, 1995, 4560, 255},      //
      {lblGameboy, 120, 2865, 4560, 255},         //
      {lblID, 120, 3150, 2040, 255},              //
      {lblRomName, 2220, 3150, 2460, 255},        //
      {lblCrc, 120, 3435, 2040, 255},             //
      {lblFileChecksum, 2220, 3435, 2460, 255},   //
      {fbnDoChecksum, 120, 3855, 510, 510},       //
      {lblDoChecksum, 720, 3855, 3330, 510},      //
      {fbnClose, 4170, 3855, 510, 510},
  };
  for (const auto& row : rows) Place(row.control, row.left, row.top, row.width, row.height);
}

void FileInfo::Dress() {
  for (Label* heading : {&lblFile, &lblLenghtInfo, &lblAttributesInfo, &lblGameboy}) {
    heading->SetBold();
    heading->SetCentered();
  }
  for (Label* label : {&lblName, &lblDoChecksum}) label->SetWrap();
  lblName.SetContent(Label::Content::Path);
  lblRomName.SetContent(Label::Content::RawLine);
  lblDoChecksum.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  imgYes.SetPicture(QStringLiteral("yes-mark"));
  imgNo.SetPicture(QStringLiteral("no-mark"));
  for (Label* store : {&imgYes, &imgNo}) {
    store->resize(kImagePx, kImagePx);
    store->hide();
  }
}

void FileInfo::PlaceAttributeImages() {
  const QString captions = lblAttributes.Text();
  const QFontMetrics metrics = lblAttributes.fontMetrics();
  const struct {
    Label& image;
    QString word;
  } rows[] = {
      {imgReadOnly, "Read only"}, {imgHidden, "Hidden"}, {imgSystem, "System"}, {imgArchive, "Archive"}};
  for (const auto& row : rows) {
    const int left = metrics.horizontalAdvance(captions.left(captions.indexOf(row.word)));
    const int center = lblAttributes.x() + left + metrics.horizontalAdvance(row.word) / 2;
    row.image.setGeometry(center - kImagePx / 2, PixelsFromTwips(kImageTop), kImagePx, kImagePx);
  }
}

void FileInfo::ShowAttributes(int attributes) {
  const struct {
    Label& image;
    int bit;
    const char* name;
  } rows[] = {
      {imgReadOnly, kAttributeReadOnly, "Read only"},
      {imgHidden, kAttributeHidden, "Hidden"},
      {imgSystem, kAttributeSystem, "System"},
      {imgArchive, kAttributeArchive, "Archive"},
  };
  for (const auto& row : rows) {
    const bool set = (attributes & row.bit) != 0;
    row.image.SetPicture(set ? imgYes.Picture() : imgNo.Picture());
    row.image.setAccessibleName(QString::fromLatin1(row.name) + QLatin1String(set ? ": yes" : ": no"));
  }
}

void FileInfo::DoReport() {
  const QString name = QString::fromStdString(FileName);
  lblName.SetText(name);
  lblName.setToolTip(name);
  lblLength.SetText(QString::fromStdString(SizeText(FileLength)));
  ShowAttributes(FileAttributes(FileName));
  const RomHeader header = ReadRomHeader(hFile);
  lblRomName.SetText(QString::fromStdString(Utf8FromAnsi(header.title)));
  RomChecksum = header.checksum;
  lblFileChecksum.SetText(QString::fromStdString(HexText(RomChecksum)));
  lblDoChecksum.SetText(QString::fromLatin1(kRepairCaption));
}

// Without a question first: the save warning is not asked.
void FileInfo::fbnDoChecksum_Click() {
  const RepairEvents events{[this](const std::string& text) {
                              lblDoChecksum.SetText(QString::fromStdString(text));
                              lblDoChecksum.Refresh();
                            },
                            [] {
                              ShowMsgBox(QStringLiteral("Could not write checksum to file."), kMsgExclamation,
                                         QStringLiteral("Error while saving"));
                            }};
  RunningSum = RepairChecksum(hFile, FileLength, events);
  lblDoChecksum.SetText(QString::fromLatin1(kRepairCaption));
  DoReport();
}

}  // namespace brolk
