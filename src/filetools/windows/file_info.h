// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "forms/flat_button.h"
#include "forms/form.h"
#include "forms/label.h"

namespace brolk {

// Report on the open file, and the checksum repair.
class FileInfo final : public Form {
 public:
  FileInfo();

  // Reads the open file anew and shows what it tells. A file that is not there, also the empty name of no
  // file, is the file fault once name and size are shown.
  void DoReport();

  std::int32_t RomChecksum = 0;  // the stored checksum as last read
  std::int32_t RunningSum = 0;   // the sum of the last repair

  Label lblFile{*this, "lblFile", "File"};
  Label lblName{*this, "lblName", "Filename here"};
  Label lblLenghtInfo{*this, "lblLenghtInfo", "Lenght"};
  Label lblLength{*this, "lblLength", "Lenght here"};
  Label lblAttributesInfo{*this, "lblAttributesInfo", "Attributes"};
  Label lblAttributes{*this, "lblAttributes", "Read only    Hidden    System    Archive"};
  Label imgReadOnly{*this, "imgReadOnly", ""};
  Label imgHidden{*this, "imgHidden", ""};
  Label imgSystem{*this, "imgSystem", ""};
  Label imgArchive{*this, "imgArchive", ""};
  Label imgYes{*this, "imgYes", ""};
  Label imgNo{*this, "imgNo", ""};
  Label lblGameboy{*this, "lblGameboy", "Gameboy/Gameboy Color Rom Info"};
  Label lblID{*this, "lblID", "ID:"};
  Label lblRomName{*this, "lblRomName", "ID here"};
  Label lblCrc{*this, "lblCrc", "Checksum stored in file:"};
  Label lblFileChecksum{*this, "lblFileChecksum", "Crc here"};
  FlatButton fbnDoChecksum{*this, "fbnDoChecksum", "repair-checksum", "Repair checksum"};
  Label lblDoChecksum{*this, "lblDoChecksum", "Repair checksum - Gameboy/GB Color only!"};
  FlatButton fbnClose{*this, "fbnClose", "close", "Close File Info"};

 private:
  void LayOut();
  void Dress();
  // Puts the four images under the words of lblAttributes.
  void PlaceAttributeImages();

  void ShowAttributes(int attributes);
  void fbnDoChecksum_Click();
};

}  // namespace brolk
