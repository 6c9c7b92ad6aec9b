// SPDX-License-Identifier: MIT
#include "shell/info_panel.h"

#include "runtime/numbers.h"

namespace brolk {

InfoPanelLayout LayOutInfoPanel(double innerWidth, std::uint8_t twipsPerPixel) {
  InfoPanelLayout layout;
  layout.info.width = RoundHalfEven(innerWidth * 0.6);
  layout.address.width = RoundHalfEven(innerWidth * 0.2);
  layout.address.left = layout.info.width + twipsPerPixel;
  layout.position.width = RoundHalfEven(innerWidth * 0.1);
  layout.position.left = layout.address.left + layout.address.width + twipsPerPixel;
  layout.color.width = innerWidth - layout.info.width - layout.address.width - layout.position.width;
  layout.color.left = layout.position.left + layout.position.width + twipsPerPixel;
  return layout;
}

}  // namespace brolk
