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

  void DoReport();

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
};

}  // namespace brolk
